// TBitmapCanvas: what TBitmap::Canvas is.
#pragma once

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"

class TBitmapCanvas : public TCanvas {
    VCL_CLASS(TBitmapCanvas, TCanvas)
public:
    // Bitmap owns the canvas.
    explicit TBitmapCanvas(TBitmap& Bitmap) : FBitmap(Bitmap) {}
    ~TBitmapCanvas() override { Detach(); }

    // Leaves the image, which is about to go or to be shared no more.
    void Detach();

protected:
    void CreateHandle() override;
    void Changing() override;
    void Changed() override;

private:
    TBitmap& FBitmap;
    TMemoryDC FEmptyContext; // to measure text on an empty bitmap
};
