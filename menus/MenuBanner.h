// TkelMenuBanner: the picture that runs down one side of an Office menu.
#pragma once

#include "vcl/graphics/Color.h"
#include "vcl/graphics/Picture.h"

VCL_ENUM(TMenuBannerPosition, mbpLeft, mbpRight);
VCL_ENUM(TPicturePosition, ppTop, ppBottom, ppCenter);

class TkelMenuBanner : public TPersistent {
    VCL_CLASS(TkelMenuBanner, TPersistent)
public:
    TkelMenuBanner() = default;

    // Another banner, its picture copied; anything else raises EConvertError.
    void Assign(TPersistent* Source) override;

    // The colour of the column around the picture.
    TColor BackColor = clBlack;
    // The banner's own; setting copies. Without a picture there is no banner.
    TPicture* GetPicture() { return &FPicture; }
    void SetPicture(TPicture* Value) { FPicture.Assign(Value); }
    PROPERTY(TPicture*, Picture);
    // The side of the menu.
    TMenuBannerPosition Position = mbpLeft;
    // Where in its column the picture is.
    TPicturePosition PicturePosition = ppTop;

private:
    TPicture FPicture;
};
