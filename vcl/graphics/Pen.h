// TPen: how a canvas draws lines and outlines.
#pragma once

#include "vcl/graphics/Color.h"
#include "vcl/graphics/GraphicsObject.h"
#include "vcl/graphics/SharedHandle.h"

VCL_ENUM(TPenStyle, psSolid, psDash, psDot, psDashDot, psDashDotDot, psClear, psInsideFrame);
VCL_ENUM(TPenMode, pmBlack, pmWhite, pmNop, pmNot, pmCopy, pmNotCopy, pmMergePenNot, pmMaskPenNot, pmMergeNotPen,
         pmMaskNotPen, pmMerge, pmNotMerge, pmMask, pmNotMask, pmXor, pmNotXor);

struct TPenKey {
    COLORREF Color;
    int32_t Width;
    uint32_t Style; // the system's PS_ number

    friend bool operator==(const TPenKey& A, const TPenKey& B) = default;
};

struct TPenKind {
    using TKey = TPenKey;
    using THandle = HPEN;
    static constexpr size_t IdleLimit = 256; // a gradient's worth
    static size_t Hash(const TPenKey& Key);
    static HPEN Create(const TPenKey& Key);
};
using TSharedPen = TSharedHandle<TPenKind>;

class TPen : public TGraphicsObject {
    VCL_CLASS(TPen, TGraphicsObject)
public:
    // Black, solid, one pixel wide, pmCopy.
    TPen() = default;

    void Assign(TPersistent* Source) override;

    // Shared with pens of the same value: good until this pen changes, and never to be deleted. A handle that is set is
    // owned by the pen from then on and its values become the pen's.
    HPEN GetHandle() const;
    void SetHandle(HPEN Value);
    PROPERTY(HPEN, Handle);

    TColor GetColor() const { return FColor; }
    void SetColor(TColor Value);
    PROPERTY(TColor, Color);
    TPenMode GetMode() const { return FMode; }
    void SetMode(TPenMode Value);
    PROPERTY(TPenMode, Mode);
    // Broken lines are only drawn one pixel wide; wider ones come out solid.
    TPenStyle GetStyle() const { return FStyle; }
    void SetStyle(TPenStyle Value);
    PROPERTY(TPenStyle, Style);
    // In pixels. A negative width is ignored; 0 is one pixel.
    int GetWidth() const { return FWidth; }
    void SetWidth(int Value);
    PROPERTY(int, Width);

private:
    void ChangedValue();

    mutable TSharedPen FShared; // empty, or possibly of a system colour's former value
    TColor FColor = clBlack;
    int FWidth = 1;
    TPenStyle FStyle = psSolid;
    TPenMode FMode = pmCopy;
    bool FAdopted = false;
};
