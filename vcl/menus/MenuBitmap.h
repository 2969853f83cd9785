// TMenuBitmap: the picture of one menu item.
#pragma once

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Embossing.h"

class TMenuBitmap : public TObject {
public:
    explicit TMenuBitmap(const TNotifyEvent& OnChange);

    // The item's own; its lower left pixel's colour is left out unless it has another TransparentColor.
    TBitmap* Bitmap() { return &FBitmap; }
    bool Empty() const { return FBitmap.GetEmpty(); }
    TSize Size() const { return {FBitmap.GetWidth(), FBitmap.GetHeight()}; }
    // A disabled one is engraved in the system's colours.
    void Draw(HDC Context, int X, int Y, bool Enabled);

private:
    void Changed(TObject* Sender);
    const TMaskedImage& Disabled();

    TBitmap FBitmap;
    TMaskedImage FDisabled; // prepared when first drawn
    TEmbossing FDisabledColors;
    TNotifyEvent FOnChange;
};
