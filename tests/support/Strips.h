// Strips and image lists with known pixels.
#pragma once

#include "tests/support/PixelImage.h"
#include "vcl/graphics/Bitmap.h"

constexpr TColor StripMask = TColor(0xFF00FF);

// A colour that tells where in the strip the pixel lies. The lower left pixel and a diagonal stripe have the mask's
// colour, another stripe is black.
TColor StripColor(int X, int Y);
// A bitmap of such pixels, 24 bits each.
void FillStrip(TBitmap* Bitmap, int Width, int Height, TPixelFormat Format = pf24bit);
// Puts the part of a strip at Source onto Image as masked drawing should: without the mask's pixels.
void DrawExpectedCell(TPixelImage& Image, int X, int Y, const TRect& Source, TColor Mask = StripMask);
// The same embossed: shadow where it is black, highlight to the lower right.
void DrawExpectedEmbossed(TPixelImage& Image, int X, int Y, const TRect& Source);
// The pixels of a bitmap.
TPixelImage PixelsOf(TBitmap* Bitmap);
