#include "vcl/graphics/MaskedImage.h"

#include "vcl/graphics/BitmapImage.h"

namespace {

constexpr BLENDFUNCTION ByAlpha = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
constexpr uint32_t ColorBits = 0x00FFFFFF;
constexpr uint32_t Drawn = 0xFF000000;

uint32_t PixelOf(TColor Color)
{
    COLORREF Rgb = ColorToRGB(Color < 0 ? Color : TColor(Color & ~PaletteRelative));
    return static_cast<uint32_t>(GetRValue(Rgb)) << 16 | GetGValue(Rgb) << 8 | GetBValue(Rgb);
}

} // namespace

TMaskedImage::TMaskedImage(int Width, int Height) : FWidth(Width), FHeight(Height)
{
    BITMAPINFO Info = {DibHeader(FWidth, -FHeight, 32), {}};
    void* Bits = nullptr;
    FContext = TMemoryDC::Checked(CreateCompatibleDC(nullptr));
    FBitmap = TBitmapHandle::Checked(CreateDIBSection(nullptr, &Info, DIB_RGB_COLORS, &Bits, nullptr, 0));
    FPixels = static_cast<uint32_t*>(Bits);
    FOldBitmap = SelectObject(FContext.Get(), FBitmap.Get());
}

TMaskedImage::TMaskedImage(TBitmap* Bitmap, TColor TransparentColor)
{
    if (!Bitmap || Bitmap->GetEmpty())
        return;
    *this = TMaskedImage(Bitmap->GetWidth(), Bitmap->GetHeight());
    BitBlt(FContext.Get(), 0, 0, FWidth, FHeight, Bitmap->Image().Context(), 0, 0, SRCCOPY);
    GdiFlush();

    bool All = TransparentColor == clNone;
    uint32_t LeftOut = All ? 0 : PixelOf(TransparentColor);
    FOpaque = true;
    for (uint32_t *Pixel = FPixels, *End = FPixels + static_cast<size_t>(FWidth) * FHeight; Pixel != End; ++Pixel) {
        uint32_t Color = *Pixel & ColorBits;
        bool Draws = All || Color != LeftOut;
        *Pixel = Draws ? Color | Drawn : 0;
        FOpaque &= Draws;
    }
}

TMaskedImage::~TMaskedImage()
{
    if (FContext)
        SelectObject(FContext.Get(), FOldBitmap);
}

uint32_t* TMaskedImage::Pixels()
{
    GdiFlush();
    FOpaque = false; // they may be about to change
    return FPixels;
}

void TMaskedImage::Draw(HDC Target, int X, int Y, const TRect& Source) const
{
    TRect Inside;
    if (!IntersectRect(Inside, Source, TRect(0, 0, FWidth, FHeight)))
        return;
    X += Inside.left - Source.left;
    Y += Inside.top - Source.top;
    if (FOpaque)
        BitBlt(Target, X, Y, Inside.Width(), Inside.Height(), FContext.Get(), Inside.left, Inside.top, SRCCOPY);
    else
        AlphaBlend(Target, X, Y, Inside.Width(), Inside.Height(), FContext.Get(), Inside.left, Inside.top,
                   Inside.Width(), Inside.Height(), ByAlpha);
}

void TMaskedImage::Stretch(HDC Target, const TRect& Dest, const TRect& Source) const
{
    if (Dest.Width() == Source.Width() && Dest.Height() == Source.Height()) {
        Draw(Target, Dest.left, Dest.top, Source);
        return;
    }
    TRect Inside;
    if (Dest.IsEmpty() || Source.IsEmpty() || !IntersectRect(Inside, Source, TRect(0, 0, FWidth, FHeight)))
        return;
    // What is cut from the source is cut from the target in proportion.
    TRect Part(Dest.left + MulDiv(Inside.left - Source.left, Dest.Width(), Source.Width()),
               Dest.top + MulDiv(Inside.top - Source.top, Dest.Height(), Source.Height()),
               Dest.left + MulDiv(Inside.right - Source.left, Dest.Width(), Source.Width()),
               Dest.top + MulDiv(Inside.bottom - Source.top, Dest.Height(), Source.Height()));
    int OldMode = SetStretchBltMode(Target, COLORONCOLOR);
    AlphaBlend(Target, Part.left, Part.top, Part.Width(), Part.Height(), FContext.Get(), Inside.left, Inside.top,
               Inside.Width(), Inside.Height(), ByAlpha);
    SetStretchBltMode(Target, OldMode);
}
