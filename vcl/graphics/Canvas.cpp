#include "vcl/graphics/Canvas.h"

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/MaskedImage.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Ident.h"
#include "vcl/system/Utf.h"

namespace {

constexpr TCanvasState AllValid = {csHandleValid, csFontValid, csPenValid, csBrushValid};
constexpr TCanvasState ObjectsValid = {csFontValid, csPenValid, csBrushValid};

constexpr int PenModes[] = {R2_BLACK,       R2_WHITE,      R2_NOP,         R2_NOT,        R2_COPYPEN,  R2_NOTCOPYPEN,
                            R2_MERGEPENNOT, R2_MASKPENNOT, R2_MERGENOTPEN, R2_MASKNOTPEN, R2_MERGEPEN, R2_NOTMERGEPEN,
                            R2_MASKPEN,     R2_NOTMASKPEN, R2_XORPEN,      R2_NOTXORPEN};

struct TNamedMode {
    const char* Name;
    TCopyMode Value;
};

constexpr TNamedMode NamedModes[] = {
    {"cmBlackness", cmBlackness},   {"cmDstInvert", cmDstInvert},   {"cmMergeCopy", cmMergeCopy},
    {"cmMergePaint", cmMergePaint}, {"cmNotSrcCopy", cmNotSrcCopy}, {"cmNotSrcErase", cmNotSrcErase},
    {"cmPatCopy", cmPatCopy},       {"cmPatInvert", cmPatInvert},   {"cmPatPaint", cmPatPaint},
    {"cmSrcAnd", cmSrcAnd},         {"cmSrcCopy", cmSrcCopy},       {"cmSrcErase", cmSrcErase},
    {"cmSrcInvert", cmSrcInvert},   {"cmSrcPaint", cmSrcPaint},     {"cmWhiteness", cmWhiteness},
};

bool IdentToCopyMode(std::string_view Ident, int64_t& Mode)
{
    for (const TNamedMode& Named : NamedModes)
        if (SameIdent(Named.Name, Ident)) {
            Mode = Named.Value;
            return true;
        }
    return false;
}

bool CopyModeToIdent(int64_t Mode, AnsiString& Ident)
{
    for (const TNamedMode& Named : NamedModes)
        if (Named.Value == Mode) {
            Ident = Named.Name;
            return true;
        }
    return false;
}

} // namespace

const TIdentMap CopyModeIdents = {&IdentToCopyMode, &CopyModeToIdent};

void TCanvas::Describe(TClassBuilder<TCanvas>& Class)
{
    Class.Property<&Self::GetBrush, &Self::SetBrush>("Brush");
    Class.Value<&Self::CopyMode>("CopyMode").Default(cmSrcCopy);
    Class.Property<&Self::GetFont, &Self::SetFont>("Font");
    Class.Property<&Self::GetPen, &Self::SetPen>("Pen");
}

TCanvas::TCanvas()
{
    FFont.OnChange = {this, &TCanvas::FontChanged};
    FPen.OnChange = {this, &TCanvas::PenChanged};
    FBrush.OnChange = {this, &TCanvas::BrushChanged};
}

TCanvas::~TCanvas()
{
    DeselectHandles();
}

// --- The context and what is selected in it ------------------------------------------------------

HDC TCanvas::GetHandle()
{
    Changing();
    RequiredState(AllValid);
    return FHandle;
}

void TCanvas::SetHandle(HDC Value)
{
    if (FHandle == Value)
        return;
    if (FHandle) {
        DeselectHandles();
        GetCurrentPositionEx(FHandle, &FPenPos);
        FState = {};
    }
    FHandle = Value;
    if (FHandle) {
        FState << csHandleValid;
        MoveToEx(FHandle, FPenPos.x, FPenPos.y, nullptr);
    }
}

void TCanvas::Refresh()
{
    DeselectHandles();
}

HDC TCanvas::RequireHandle()
{
    if (!FHandle) {
        CreateHandle();
        if (!FHandle)
            throw EInvalidOperation("Canvas does not allow drawing");
    }
    return FHandle;
}

void TCanvas::RequiredState(TCanvasState Required)
{
    TCanvasState Missing = Required - FState;
    if (Missing.Empty())
        return;
    RequireHandle();
    SelectObjects(Required - FState);
    FState = FState + Required;
}

void TCanvas::SelectObjects(TCanvasState Missing)
{
    if (Missing.Contains(csFontValid)) {
        SelectObject(FHandle, FFont.GetHandle());
        SetTextColor(FHandle, ColorToRGB(FFont.GetColor()));
    }
    if (Missing.Contains(csPenValid)) {
        SelectObject(FHandle, FPen.GetHandle());
        SetROP2(FHandle, PenModes[FPen.GetMode()]);
    }
    if (Missing.Contains(csBrushValid)) {
        COLORREF Color = ColorToRGB(FBrush.GetColor());
        SelectObject(FHandle, FBrush.GetHandle());
        // The background of text and of broken lines; the inverted colour keeps hatches visible on monochrome devices.
        SetBkColor(FHandle, FBrush.IsSolid() ? Color : ~Color & 0xFFFFFF);
        SetBkMode(FHandle, FBrush.IsSolid() ? OPAQUE : TRANSPARENT);
    }
}

void TCanvas::DeselectHandles()
{
    if (!FHandle || (FState * ObjectsValid).Empty())
        return;
    SelectObject(FHandle, GetStockObject(BLACK_PEN));
    SelectObject(FHandle, GetStockObject(HOLLOW_BRUSH));
    SelectObject(FHandle, GetStockObject(SYSTEM_FONT));
    FState = FState - ObjectsValid;
}

// The shared handle may be gone by the time that another one is selected, so it leaves the context now.
void TCanvas::FontChanged(TObject*)
{
    if (!FState.Contains(csFontValid))
        return;
    FState >> csFontValid;
    SelectObject(FHandle, GetStockObject(SYSTEM_FONT));
}

void TCanvas::PenChanged(TObject*)
{
    if (!FState.Contains(csPenValid))
        return;
    FState >> csPenValid;
    SelectObject(FHandle, GetStockObject(BLACK_PEN));
}

void TCanvas::BrushChanged(TObject*)
{
    if (!FState.Contains(csBrushValid))
        return;
    FState >> csBrushValid;
    SelectObject(FHandle, GetStockObject(HOLLOW_BRUSH));
}

template <class Operation>
void TCanvas::Paint(TCanvasState Required, Operation&& Operate)
{
    Changing();
    RequiredState(Required);
    Operate(FHandle);
    Changed();
}

// --- Lines and shapes ----------------------------------------------------------------------------

TPoint TCanvas::GetPenPos()
{
    TPoint Position;
    GetCurrentPositionEx(RequireHandle(), &Position);
    return Position;
}

void TCanvas::SetPenPos(const TPoint& Value)
{
    MoveTo(Value.x, Value.y);
}

TRect TCanvas::GetClipRect()
{
    TRect Box;
    GetClipBox(RequireHandle(), &Box);
    return Box;
}

TColor TCanvas::GetPixels(int X, int Y)
{
    return TColor(GetPixel(RequireHandle(), X, Y));
}

void TCanvas::SetPixels(int X, int Y, TColor Value)
{
    Paint({csHandleValid}, [&](HDC Context) { SetPixelV(Context, X, Y, ColorToRGB(Value)); });
}

void TCanvas::MoveTo(int X, int Y)
{
    MoveToEx(RequireHandle(), X, Y, nullptr);
}

void TCanvas::LineTo(int X, int Y)
{
    Paint({csHandleValid, csPenValid, csBrushValid}, [&](HDC Context) { ::LineTo(Context, X, Y); });
}

void TCanvas::Polyline(std::span<const TPoint> Points)
{
    Paint({csHandleValid, csPenValid, csBrushValid},
          [&](HDC Context) { ::Polyline(Context, Points.data(), static_cast<int>(Points.size())); });
}

void TCanvas::PolyBezier(std::span<const TPoint> Points)
{
    Paint({csHandleValid, csPenValid, csBrushValid},
          [&](HDC Context) { ::PolyBezier(Context, Points.data(), static_cast<DWORD>(Points.size())); });
}

void TCanvas::Arc(int X1, int Y1, int X2, int Y2, int X3, int Y3, int X4, int Y4)
{
    Paint({csHandleValid, csPenValid, csBrushValid},
          [&](HDC Context) { ::Arc(Context, X1, Y1, X2, Y2, X3, Y3, X4, Y4); });
}

void TCanvas::Rectangle(int X1, int Y1, int X2, int Y2)
{
    Paint({csHandleValid, csPenValid, csBrushValid}, [&](HDC Context) { ::Rectangle(Context, X1, Y1, X2, Y2); });
}

void TCanvas::RoundRect(int X1, int Y1, int X2, int Y2, int CornerWidth, int CornerHeight)
{
    Paint({csHandleValid, csPenValid, csBrushValid},
          [&](HDC Context) { ::RoundRect(Context, X1, Y1, X2, Y2, CornerWidth, CornerHeight); });
}

void TCanvas::Ellipse(int X1, int Y1, int X2, int Y2)
{
    Paint({csHandleValid, csPenValid, csBrushValid}, [&](HDC Context) { ::Ellipse(Context, X1, Y1, X2, Y2); });
}

void TCanvas::Polygon(std::span<const TPoint> Points)
{
    Paint({csHandleValid, csPenValid, csBrushValid},
          [&](HDC Context) { ::Polygon(Context, Points.data(), static_cast<int>(Points.size())); });
}

void TCanvas::Chord(int X1, int Y1, int X2, int Y2, int X3, int Y3, int X4, int Y4)
{
    Paint({csHandleValid, csPenValid, csBrushValid},
          [&](HDC Context) { ::Chord(Context, X1, Y1, X2, Y2, X3, Y3, X4, Y4); });
}

void TCanvas::Pie(int X1, int Y1, int X2, int Y2, int X3, int Y3, int X4, int Y4)
{
    Paint({csHandleValid, csPenValid, csBrushValid},
          [&](HDC Context) { ::Pie(Context, X1, Y1, X2, Y2, X3, Y3, X4, Y4); });
}

// --- Areas ---------------------------------------------------------------------------------------

void TCanvas::FillRect(const TRect& R)
{
    // Only a hatch depends on what is set along with the brush.
    TCanvasState Required = {csHandleValid};
    if (FBrush.GetStyle() > bsClear)
        Required << csBrushValid;
    Paint(Required, [&](HDC Context) { ::FillRect(Context, &R, FBrush.GetHandle()); });
}

void TCanvas::FrameRect(const TRect& R)
{
    Paint({csHandleValid, csBrushValid}, [&](HDC Context) { ::FrameRect(Context, &R, FBrush.GetHandle()); });
}

void TCanvas::FloodFill(int X, int Y, TColor Color, TFillStyle FillStyle)
{
    UINT Kind = FillStyle == fsSurface ? FLOODFILLSURFACE : FLOODFILLBORDER;
    Paint({csHandleValid, csBrushValid}, [&](HDC Context) { ExtFloodFill(Context, X, Y, ColorToRGB(Color), Kind); });
}

void TCanvas::DrawFocusRect(const TRect& R)
{
    Paint({csHandleValid, csBrushValid}, [&](HDC Context) { ::DrawFocusRect(Context, &R); });
}

// --- Pictures ------------------------------------------------------------------------------------

void TCanvas::Draw(int X, int Y, TGraphic* Graphic)
{
    if (Graphic && !Graphic->GetEmpty())
        StretchDraw(Bounds(X, Y, Graphic->GetWidth(), Graphic->GetHeight()), Graphic);
}

void TCanvas::StretchDraw(const TRect& R, TGraphic* Graphic)
{
    if (!Graphic || Graphic->GetEmpty())
        return;
    // Monochrome pictures are drawn in the font's and the brush's colours.
    Changing();
    RequiredState({csHandleValid, csFontValid, csBrushValid});
    Graphic->Draw(this, R);
    Changed();
}

void TCanvas::CopyRect(const TRect& Dest, TCanvas* Canvas, const TRect& Source)
{
    Changing();
    RequiredState({csHandleValid, csFontValid, csBrushValid});
    HDC From = Canvas->RequireHandle();
    if (Canvas != this)
        Canvas->RequiredState({csBrushValid}); // its colour becomes white on a monochrome target
    if (Dest.Width() == Source.Width() && Dest.Height() == Source.Height()) {
        BitBlt(FHandle, Dest.left, Dest.top, Dest.Width(), Dest.Height(), From, Source.left, Source.top,
               static_cast<DWORD>(CopyMode));
    } else {
        int OldMode = SetStretchBltMode(FHandle, COLORONCOLOR);
        StretchBlt(FHandle, Dest.left, Dest.top, Dest.Width(), Dest.Height(), From, Source.left, Source.top,
                   Source.Width(), Source.Height(), static_cast<DWORD>(CopyMode));
        SetStretchBltMode(FHandle, OldMode);
    }
    Changed();
}

void TCanvas::BrushCopy(const TRect& Dest, TBitmap* Bitmap, const TRect& Source, TColor Color)
{
    if (!Bitmap || Bitmap->GetEmpty())
        return;
    const TMaskedImage& Image = Bitmap->Masked(Color);
    Paint({csHandleValid, csBrushValid}, [&](HDC Context) {
        ::FillRect(Context, &Dest, FBrush.GetHandle());
        Image.Stretch(Context, Dest, Source);
    });
}

// --- Text ----------------------------------------------------------------------------------------

void TCanvas::TextOut(int X, int Y, std::string_view Text)
{
    TWideText Wide(Text);
    auto Size = static_cast<UINT>(Wide.size());
    Paint({csHandleValid, csFontValid, csBrushValid}, [&](HDC Context) {
        TSize Extent;
        ExtTextOutW(Context, X, Y, static_cast<UINT>(TextFlags), nullptr, Wide.c_str(), Size, nullptr);
        GetTextExtentPoint32W(Context, Wide.c_str(), static_cast<int>(Size), &Extent);
        MoveToEx(Context, X + Extent.cx, Y, nullptr);
    });
}

void TCanvas::TextRect(const TRect& R, int X, int Y, std::string_view Text)
{
    TWideText Wide(Text);
    UINT Options = static_cast<UINT>(TextFlags) | ETO_CLIPPED;
    if (FBrush.GetStyle() != bsClear)
        Options |= ETO_OPAQUE;
    Paint({csHandleValid, csFontValid, csBrushValid}, [&](HDC Context) {
        ExtTextOutW(Context, X, Y, Options, &R, Wide.c_str(), static_cast<UINT>(Wide.size()), nullptr);
    });
}

TSize TCanvas::TextExtent(std::string_view Text)
{
    TWideText Wide(Text);
    TSize Extent;
    RequiredState({csHandleValid, csFontValid});
    GetTextExtentPoint32W(FHandle, Wide.c_str(), static_cast<int>(Wide.size()), &Extent);
    return Extent;
}

int DrawText(HDC Context, std::string_view Text, TRect& R, unsigned Flags)
{
    TWideText Wide(Text);
    return DrawTextW(Context, Wide.data(), static_cast<int>(Wide.size()), &R, Flags);
}
