// TBrush: how a canvas fills areas.
#pragma once

#include "vcl/graphics/Color.h"
#include "vcl/graphics/GraphicsObject.h"
#include "vcl/graphics/SharedHandle.h"

class TBitmap;

VCL_ENUM(TBrushStyle, bsSolid, bsClear, bsHorizontal, bsVertical, bsFDiagonal, bsBDiagonal, bsCross, bsDiagCross);

struct TBrushKey {
    COLORREF Color;
    TBrushStyle Style;
    TBitmap* Bitmap = nullptr;

    friend bool operator==(const TBrushKey& A, const TBrushKey& B) = default;
};

struct TBrushKind {
    using TKey = TBrushKey;
    using THandle = HBRUSH;
    static constexpr size_t IdleLimit = 256; // a gradient's worth
    static size_t Hash(const TBrushKey& Key);
    static HBRUSH Create(const TBrushKey& Key);
};
using TSharedBrush = TSharedHandle<TBrushKind>;

class TBrush : public TGraphicsObject {
    VCL_CLASS(TBrush, TGraphicsObject)
public:
    // White and solid.
    TBrush() = default;

    void Assign(TPersistent* Source) override;

    // Shared with brushes of the same value: good until this brush changes, and never to be deleted. A handle that is
    // set is owned by the brush from then on and its values become the brush's.
    HBRUSH GetHandle() const;
    void SetHandle(HBRUSH Value);
    PROPERTY(HBRUSH, Handle);

    // Setting it ends a pattern.
    TColor GetColor() const { return FColor; }
    void SetColor(TColor Value);
    PROPERTY(TColor, Color);
    // Setting it ends a pattern.
    TBrushStyle GetStyle() const { return FStyle; }
    void SetStyle(TBrushStyle Value);
    PROPERTY(TBrushStyle, Style);
    // A pattern to fill with, or nullptr. The bitmap stays the caller's and is read when it is set: later changes to it
    // do not show until it is set again.
    TBitmap* GetBitmap() const;
    void SetBitmap(TBitmap* Value);
    PROPERTY(TBitmap*, Bitmap);

    // Whether text and broken lines over this brush get an opaque background.
    bool IsSolid() const { return FStyle == bsSolid && !GetBitmap(); }

private:
    void ChangedValue();

    mutable TSharedBrush FShared; // empty, or possibly of a system colour's former value
    TColor FColor = clWhite;
    TBrushStyle FStyle = bsSolid;
    bool FAdopted = false; // the handle was set from outside or is a pattern
};
