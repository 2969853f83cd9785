#include "menus/TurnedPicture.h"

#include "vcl/graphics/Canvas.h"

#include <algorithm>

namespace {

void Grow(TBitmap& Bitmap, int Width, int Height)
{
    Bitmap.PixelFormat = pf32bit;
    if (Bitmap.Width < Width || Bitmap.Height < Height)
        Bitmap.SetSize(std::max(Bitmap.GetWidth(), Width), std::max(Bitmap.GetHeight(), Height));
}

} // namespace

void TTurnedPicture::SetSize(int Width, int Height)
{
    FWidth = Width;
    FHeight = Height;
    Grow(FLying, Height, Width);
    Grow(FStanding, Width, Height);
}

void TTurnedPicture::Show(HDC Context, int X, int Y)
{
    GdiFlush();
    for (int Row = 0; Row < FHeight; ++Row) {
        auto* To = static_cast<uint32_t*>(FStanding.ScanLine[Row]);
        for (int Column = 0; Column < FWidth; ++Column)
            To[Column] = static_cast<const uint32_t*>(FLying.ScanLine[FWidth - 1 - Column])[Row];
    }
    BitBlt(Context, X, Y, FWidth, FHeight, FStanding.Canvas->Handle, 0, 0, SRCCOPY);
}
