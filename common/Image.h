// TkelImage: an image that tells when the pointer comes and goes.
#pragma once

#include "vcl/extctrls/Image.h"

class TkelImage : public TImage {
    VCL_CLASS(TkelImage, TImage)
public:
    using TImage::TImage;

    TNotifyEvent OnMouseEnter;
    TNotifyEvent OnMouseLeave;

private:
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);
};
