#include "menus/TurnedPicture.h"

#include "vcl/graphics/Canvas.h"

#include <algorithm>

namespace {

// The rows of a bitmap with 32 bits to a pixel, which lie at equal distances.
class TPixelRows {
public:
    explicit TPixelRows(TBitmap& Bitmap)
        : FFirst(static_cast<uint32_t*>(Bitmap.ScanLine[0])),
          FStride(Bitmap.Height > 1 ? static_cast<uint32_t*>(Bitmap.ScanLine[1]) - FFirst : 0)
    {}

    uint32_t* operator[](int Row) const { return FFirst + Row * FStride; }

private:
    uint32_t* FFirst;
    ptrdiff_t FStride;
};

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
    const TPixelRows Lying(FLying);
    const TPixelRows Standing(FStanding);
    for (int Row = 0; Row < FHeight; ++Row) {
        uint32_t* To = Standing[Row];
        for (int Column = 0; Column < FWidth; ++Column)
            To[Column] = Lying[FWidth - 1 - Column][Row];
    }
    BitBlt(Context, X, Y, FWidth, FHeight, FStanding.Canvas->Handle, 0, 0, SRCCOPY);
}
