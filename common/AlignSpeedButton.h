// TAlignSpeedButton: a speed button that can be aligned and tells when the pointer comes and goes.
#pragma once

#include "vcl/buttons/SpeedButton.h"

class TAlignSpeedButton : public TSpeedButton {
    VCL_CLASS(TAlignSpeedButton, TSpeedButton)
public:
    using TSpeedButton::TSpeedButton;

    TNotifyEvent OnMouseEnter;
    TNotifyEvent OnMouseLeave;

private:
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);
};
