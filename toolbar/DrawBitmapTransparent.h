// DrawBitmapTransparent: the library's masked drawing of bitmaps.
#pragma once

#include "vcl/graphics/Color.h"

class TBitmap;
class TCanvas;

// Draws the whole bitmap with its upper left corner at X, Y. Pixels of TransparentColor (system and palette-relative
// colours are resolved) leave the canvas as it is; all others come out in their exact colour. What this needs is
// prepared once and kept with the bitmap until that changes. nullptr and an empty bitmap draw nothing.
void DrawBitmapTransparent(TCanvas* Canvas, int X, int Y, TBitmap* Bitmap, TColor TransparentColor);
