// TTurnedPicture: a picture that is drawn horizontally and shown turned by 90 degrees to the right, so that text runs
// from top to bottom. The system's own turned text is spaced differently, and not every font has it.
#pragma once

#include "vcl/graphics/Bitmap.h"

class TTurnedPicture {
public:
    // The size of the turned picture. The pixels are not cleared.
    void SetSize(int Width, int Height);
    // To draw on, from (0, 0) to (Height, Width).
    TCanvas* GetCanvas() { return FLying.Canvas; }
    PROPERTY_READ(TCanvas*, Canvas);
    // The upper left corner comes to X, Y.
    void Show(HDC Context, int X, int Y);

private:
    int FWidth = 0;
    int FHeight = 0;
    // They only grow, to the largest size that was asked for.
    TBitmap FLying;
    TBitmap FStanding;
};
