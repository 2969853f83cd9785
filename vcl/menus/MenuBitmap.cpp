#include "vcl/menus/MenuBitmap.h"

TMenuBitmap::TMenuBitmap(const TNotifyEvent& OnChange) : FOnChange(OnChange)
{
    FBitmap.OnChange = {this, &TMenuBitmap::Changed};
}

void TMenuBitmap::Changed(TObject* Sender)
{
    FDisabled = TMaskedImage();
    FOnChange(Sender);
}

const TMaskedImage& TMenuBitmap::Disabled()
{
    constexpr uint32_t White = 0xFFFFFFFF;
    const TEmbossing Colors;
    if (!FDisabled.Empty() && Colors == FDisabledColors)
        return FDisabled;
    TMaskedImage Source(&FBitmap, FBitmap.TransparentColor);
    FDisabled = TMaskedImage(Source.Width() + 1, Source.Height() + 1);
    FDisabledColors = Colors;
    Colors.Stamp(FDisabled, 0, 0, Source.Pixels(), Source.Width(), Size(),
                 [](uint32_t Pixel) { return Pixel != 0 && Pixel != White; });
    return FDisabled;
}

void TMenuBitmap::Draw(HDC Context, int X, int Y, bool Enabled)
{
    if (Empty())
        return;
    if (Enabled)
        FBitmap.Masked(FBitmap.TransparentColor).Draw(Context, X, Y);
    else
        Disabled().Draw(Context, X, Y);
}
