// TMaskedImage: a picture prepared for fast drawing with one of its colours left out.
//
// It is made once from a bitmap and then drawn, whole or in parts, with one call each; the pixels that are drawn keep
// their exact colours, the others leave the target untouched.
#pragma once

#include "vcl/graphics/Color.h"
#include "vcl/graphics/Handle.h"
#include "vcl/graphics/Types.h"

class TBitmap;

class TMaskedImage {
public:
    // Nothing; draws nothing.
    TMaskedImage() = default;
    // The pixels of TransparentColor (system colours and palette-relative ones are resolved) are left out; clNone keeps
    // them all. An empty bitmap gives an image that draws nothing.
    TMaskedImage(TBitmap* Bitmap, TColor TransparentColor);
    // All left out; for filling through Pixels.
    TMaskedImage(int Width, int Height);
    TMaskedImage(TMaskedImage&&) = default;
    TMaskedImage& operator=(TMaskedImage&&) = default;
    ~TMaskedImage();

    bool Empty() const { return !FBitmap; }
    int Width() const { return FWidth; }
    int Height() const { return FHeight; }

    // The part at Source of the image, one to one, with its upper left corner at X, Y. What of Source lies outside of
    // the image is not drawn.
    void Draw(HDC Target, int X, int Y, const TRect& Source) const;
    void Draw(HDC Target, int X, int Y) const { Draw(Target, X, Y, TRect(0, 0, FWidth, FHeight)); }
    // The part at Source stretched to Dest, each pixel drawn or left out as a whole.
    void Stretch(HDC Target, const TRect& Dest, const TRect& Source) const;

    // The pixels, the top row first, as $AARRGGBB: $FF on top where the pixel is drawn, 0 where it is left out. They
    // may be changed, to make variants of the image (disabled, hot) or half transparent ones; the colours are
    // multiplied by alpha.
    uint32_t* Pixels();
    // The context that holds the image, to draw on it by other means; alpha is then to be set in Pixels.
    HDC Context() { return FContext.Get(); }

private:
    TMemoryDC FContext;
    TBitmapHandle FBitmap;
    HGDIOBJ FOldBitmap = nullptr;
    uint32_t* FPixels = nullptr;
    int FWidth = 0;
    int FHeight = 0;
    bool FOpaque = false;
};
