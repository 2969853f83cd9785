#include "toolbar/DrawBitmapTransparent.h"

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/MaskedImage.h"

void DrawBitmapTransparent(TCanvas* Canvas, int X, int Y, TBitmap* Bitmap, TColor TransparentColor)
{
    if (Bitmap && !Bitmap->Empty)
        Bitmap->Masked(TransparentColor).Draw(Canvas->BareHandle(), X, Y);
}
