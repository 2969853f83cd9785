#include "vcl/menus/MenuBitmap.h"

#include <algorithm>

namespace {

uint32_t PixelOf(COLORREF Color)
{
    return 0xFF000000 | static_cast<uint32_t>(GetRValue(Color)) << 16 | GetGValue(Color) << 8 | GetBValue(Color);
}

// Paints the shape of Source with its upper left corner at Offset, Offset. What is white is no part of the shape.
void Stamp(TMaskedImage& Target, TMaskedImage& Source, int Offset, COLORREF Color)
{
    constexpr uint32_t White = 0xFFFFFFFF;
    const uint32_t* From = Source.Pixels();
    for (int Y = 0; Y < Source.Height(); ++Y) {
        uint32_t* To = Target.Pixels() + (Y + Offset) * Target.Width() + Offset;
        for (int X = 0; X < Source.Width(); ++X, ++From, ++To)
            if (*From != 0 && *From != White)
                *To = PixelOf(Color);
    }
}

} // namespace

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
    const COLORREF Colors[2] = {ColorToRGB(clBtnHighlight), ColorToRGB(clBtnShadow)};
    if (!FDisabled.Empty() && std::equal(Colors, Colors + 2, FDisabledColors))
        return FDisabled;
    TMaskedImage Source(&FBitmap, FBitmap.TransparentColor);
    FDisabled = TMaskedImage(FBitmap.Width + 1, FBitmap.Height + 1);
    Stamp(FDisabled, Source, 1, Colors[0]);
    Stamp(FDisabled, Source, 0, Colors[1]);
    std::copy(Colors, Colors + 2, FDisabledColors);
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
