// TTurnedPicture: what is drawn on it lying is shown standing on end, turned to the right: text runs from top to
// bottom. The system's own turned text is spaced differently, and not every font has it.
#pragma once

#include "vcl/graphics/Bitmap.h"

class TTurnedPicture {
public:
    // Of the size at which it will stand. The pixels are those of the picture before.
    void SetSize(int Width, int Height);
    // To draw on, from (0, 0) to (Height, Width).
    TCanvas* GetCanvas() { return FLying.Canvas; }
    PROPERTY_READ(TCanvas*, Canvas);
    // The upper left corner comes to X, Y.
    void Show(HDC Context, int X, int Y);

private:
    int FWidth = 0;
    int FHeight = 0;
    // As large as any picture was, and made anew for larger ones only.
    TBitmap FLying;
    TBitmap FStanding;
};
