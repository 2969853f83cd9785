// TkelOfficeLabel: a label that is grey until the mouse comes over it.
#pragma once

#include "vcl/stdctrls/Label.h"

// Grey it is one line at the top, aligned by Alignment; WordWrap, Layout and the accelerator do not count.
class TkelOfficeLabel : public TLabel {
    VCL_CLASS(TkelOfficeLabel, TLabel)
public:
    using TLabel::TLabel;

protected:
    void Paint() override;

private:
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);
    void SetMouseInside(TMessage& Message, bool Value);

    bool FMouseInside = false;
};
