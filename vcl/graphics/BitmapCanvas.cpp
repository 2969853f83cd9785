#include "vcl/graphics/BitmapCanvas.h"

#include "vcl/graphics/BitmapImage.h"
#include "vcl/system/ClassBuilder.h"

void TBitmapCanvas::Describe(TClassBuilder<TBitmapCanvas>&)
{}

void TBitmapCanvas::CreateHandle()
{
    if (FBitmap.GetEmpty()) {
        if (!FEmptyContext)
            FEmptyContext = TMemoryDC::Checked(CreateCompatibleDC(nullptr));
        SetHandle(FEmptyContext.Get());
        return;
    }
    TBitmapImage& Image = FBitmap.Image();
    Image.Attach(this);
    SetHandle(Image.Context());
}

void TBitmapCanvas::Detach()
{
    if (FBitmap.FImage)
        FBitmap.FImage->Detach(this);
    SetHandle(nullptr);
    FEmptyContext.Reset();
}

void TBitmapCanvas::Changing()
{
    inherited::Changing();
    if (!FBitmap.GetEmpty())
        FBitmap.OwnImage();
}

void TBitmapCanvas::Changed()
{
    inherited::Changed();
    FBitmap.Changed(this);
}
