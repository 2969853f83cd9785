// TCanvas: drawing on a device context with the canvas's own pen, brush and font.
//
// Coordinates are in pixels of the device context. A text's background and a broken line's gaps are filled with the
// brush's colour when its style is bsSolid, and left alone otherwise.
//
// Canvases, and all that is drawn with or on, belong to the thread of the user interface.
#pragma once

#include "vcl/graphics/Brush.h"
#include "vcl/graphics/Font.h"
#include "vcl/graphics/Pen.h"
#include "vcl/graphics/Types.h"

#include <initializer_list>
#include <span>

class TGraphic;

// How CopyRect, and Draw of a bitmap, combine source and destination: the system's raster operations.
enum TCopyMode : int32_t {};
constexpr TCopyMode cmBlackness = TCopyMode(BLACKNESS);
constexpr TCopyMode cmDstInvert = TCopyMode(DSTINVERT);
constexpr TCopyMode cmMergeCopy = TCopyMode(MERGECOPY);
constexpr TCopyMode cmMergePaint = TCopyMode(MERGEPAINT);
constexpr TCopyMode cmNotSrcCopy = TCopyMode(NOTSRCCOPY);
constexpr TCopyMode cmNotSrcErase = TCopyMode(NOTSRCERASE);
constexpr TCopyMode cmPatCopy = TCopyMode(PATCOPY);
constexpr TCopyMode cmPatInvert = TCopyMode(PATINVERT);
constexpr TCopyMode cmPatPaint = TCopyMode(PATPAINT);
constexpr TCopyMode cmSrcAnd = TCopyMode(SRCAND);
constexpr TCopyMode cmSrcCopy = TCopyMode(SRCCOPY);
constexpr TCopyMode cmSrcErase = TCopyMode(SRCERASE);
constexpr TCopyMode cmSrcInvert = TCopyMode(SRCINVERT);
constexpr TCopyMode cmSrcPaint = TCopyMode(SRCPAINT);
constexpr TCopyMode cmWhiteness = TCopyMode(WHITENESS);
extern const TIdentMap CopyModeIdents;
INTEGER_IDENTS(TCopyMode, CopyModeIdents)

VCL_ENUM(TFillStyle, fsSurface, fsBorder);
VCL_ENUM(TCanvasStateFlag, csHandleValid, csFontValid, csPenValid, csBrushValid);
using TCanvasState = Set<TCanvasStateFlag>;

class TCanvas : public TPersistent {
    VCL_CLASS(TCanvas, TPersistent)
public:
    TCanvas();
    ~TCanvas() override;

    // The device context, with pen, brush and font selected. It stays whoever's it was: setting another one, or
    // nullptr, takes the canvas's objects out of the old one and leaves it open. Raises EInvalidOperation "Canvas does
    // not allow drawing" when there is none.
    HDC GetHandle();
    void SetHandle(HDC Value);
    PROPERTY(HDC, Handle);
    bool HandleAllocated() const { return FHandle != nullptr; }
    // The context for drawing that uses neither pen, brush nor font of the canvas: they may not be selected, which
    // saves the time that selecting a font takes.
    HDC BareHandle()
    {
        Changing();
        return RequireHandle();
    }
    // Selects pen, brush and font anew before the next drawing, for when something else has changed the context.
    void Refresh();

    TBrush* GetBrush() { return &FBrush; }
    void SetBrush(TBrush* Value) { FBrush.Assign(Value); }
    PROPERTY(TBrush*, Brush);
    TFont* GetFont() { return &FFont; }
    void SetFont(TFont* Value) { FFont.Assign(Value); }
    PROPERTY(TFont*, Font);
    TPen* GetPen() { return &FPen; }
    void SetPen(TPen* Value) { FPen.Assign(Value); }
    PROPERTY(TPen*, Pen);
    TCopyMode CopyMode = cmSrcCopy;
    // The system's ETO_ flags for TextOut and TextRect.
    int TextFlags = 0;

    TPoint GetPenPos();
    void SetPenPos(const TPoint& Value);
    PROPERTY(TPoint, PenPos);
    // The part of the context that can be drawn on.
    TRect GetClipRect();
    PROPERTY_READ(TRect, ClipRect);
    // One pixel's colour; TColor(-1) outside of ClipRect.
    TColor GetPixels(int X, int Y);
    void SetPixels(int X, int Y, TColor Value);
    PROPERTY_INDEXED(TColor, Pixels);

    // Lines are drawn with the pen; the last point is not drawn.
    void MoveTo(int X, int Y);
    void LineTo(int X, int Y);
    void Polyline(std::span<const TPoint> Points);
    void Polyline(std::initializer_list<TPoint> Points) { Polyline(std::span(Points.begin(), Points.size())); }
    void PolyBezier(std::span<const TPoint> Points);
    void Arc(int X1, int Y1, int X2, int Y2, int X3, int Y3, int X4, int Y4);

    // Shapes are outlined with the pen and filled with the brush; X2 and Y2 lie just outside.
    void Rectangle(int X1, int Y1, int X2, int Y2);
    void Rectangle(const TRect& R) { Rectangle(R.left, R.top, R.right, R.bottom); }
    void RoundRect(int X1, int Y1, int X2, int Y2, int CornerWidth, int CornerHeight);
    void Ellipse(int X1, int Y1, int X2, int Y2);
    void Ellipse(const TRect& R) { Ellipse(R.left, R.top, R.right, R.bottom); }
    void Polygon(std::span<const TPoint> Points);
    void Polygon(std::initializer_list<TPoint> Points) { Polygon(std::span(Points.begin(), Points.size())); }
    void Chord(int X1, int Y1, int X2, int Y2, int X3, int Y3, int X4, int Y4);
    void Pie(int X1, int Y1, int X2, int Y2, int X3, int Y3, int X4, int Y4);

    // With the brush.
    void FillRect(const TRect& R);
    // One pixel wide.
    void FrameRect(const TRect& R);
    // fsSurface: fills the area of Color around the point; fsBorder: fills up to lines of Color.
    void FloodFill(int X, int Y, TColor Color, TFillStyle FillStyle);
    // Inverts a dotted frame; a second call removes it.
    void DrawFocusRect(const TRect& R);

    // nullptr and empty graphics draw nothing.
    void Draw(int X, int Y, TGraphic* Graphic);
    void StretchDraw(const TRect& R, TGraphic* Graphic);
    // From another canvas (or this one), stretched to Dest, combined by CopyMode.
    void CopyRect(const TRect& Dest, TCanvas* Canvas, const TRect& Source);
    // From a bitmap, stretched to Dest, with the brush in place of the pixels of Color.
    void BrushCopy(const TRect& Dest, TBitmap* Bitmap, const TRect& Source, TColor Color);

    // The pen position moves to the end of the text.
    void TextOut(int X, int Y, std::string_view Text);
    // Clipped to R, which is filled with the brush's colour unless its style is bsClear.
    void TextRect(const TRect& R, int X, int Y, std::string_view Text);
    TSize TextExtent(std::string_view Text);
    int TextWidth(std::string_view Text) { return TextExtent(Text).cx; }
    int TextHeight(std::string_view Text) { return TextExtent(Text).cy; }

    // Before and after each change to the picture.
    TNotifyEvent OnChanging;
    TNotifyEvent OnChange;

protected:
    // Called when the context is needed and there is none; sets Handle.
    virtual void CreateHandle() {}
    virtual void Changing() { OnChanging(this); }
    virtual void Changed() { OnChange(this); }
    // Sees to it that the context is there and the objects are selected.
    void RequiredState(TCanvasState Required);
    // The bare context; no object needs to be selected.
    HDC RequireHandle();

private:
    friend class TGraphic;

    template <class Operation>
    void Paint(TCanvasState Required, Operation&& Operate);
    void SelectObjects(TCanvasState Missing);
    void DeselectHandles();
    void FontChanged(TObject* Sender);
    void PenChanged(TObject* Sender);
    void BrushChanged(TObject* Sender);

    HDC FHandle = nullptr;
    TFont FFont;
    TPen FPen;
    TBrush FBrush;
    TPoint FPenPos; // while there is no context
    TCanvasState FState;
};

// The system's DrawText for UTF-8: DT_ flags, R in and out; returns the height in pixels.
int DrawText(HDC Context, std::string_view Text, TRect& R, unsigned Flags);
