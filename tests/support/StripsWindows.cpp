#include "tests/support/Strips.h"

#include "vcl/graphics/Canvas.h"

TColor StripColor(int X, int Y)
{
    if (X % 16 == 0 && Y % 16 == 15) // lower left of a cell
        return StripMask;
    if ((X == 15 && Y == 15) || (X + Y) % 5 == 1)
        return clBlack;
    if ((X + Y) % 5 == 0)
        return StripMask;
    return TColor(X % 256 | Y << 8 | (X / 256 * 16 + 1) << 16);
}

void FillStrip(TBitmap* Bitmap, int Width, int Height, TPixelFormat Format)
{
    Bitmap->PixelFormat = Format;
    Bitmap->SetSize(Width, Height);
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X)
            SetPixelV(Bitmap->Canvas->Handle, X, Y, StripColor(X, Y));
    Bitmap->Modified = true;
}

void DrawExpectedCell(TPixelImage& Image, int X, int Y, const TRect& Source, TColor Mask)
{
    for (int Row = Source.top; Row < Source.bottom; ++Row)
        for (int Column = Source.left; Column < Source.right; ++Column)
            if (StripColor(Column, Row) != Mask)
                Image.Set(X + Column - Source.left, Y + Row - Source.top, StripColor(Column, Row));
}

void DrawExpectedEmbossed(TPixelImage& Image, int X, int Y, const TRect& Source)
{
    for (int Row = 0; Row < Source.Height(); ++Row)
        for (int Column = 0; Column < Source.Width(); ++Column)
            if (StripColor(Source.left + Column, Source.top + Row) == clBlack) {
                Image.Set(X + Column + 1, Y + Row + 1, clBtnHighlight);
                Image.Set(X + Column, Y + Row, clBtnShadow);
            }
}

TPixelImage PixelsOf(TBitmap* Bitmap)
{
    TPixelImage Image(Bitmap->Width, Bitmap->Height);
    for (int Y = 0; Y < Bitmap->Height; ++Y)
        for (int X = 0; X < Bitmap->Width; ++X)
            Image.Set(X, Y, Bitmap->Canvas->Pixels[X][Y]);
    return Image;
}
