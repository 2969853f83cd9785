// TPaintBox: a control that the application paints.
#pragma once

#include "vcl/controls/GraphicControl.h"

class TPaintBox : public TGraphicControl {
    VCL_CLASS(TPaintBox, TGraphicControl)
public:
    explicit TPaintBox(TComponent* AOwner);

    // Draws on Canvas, which has the control's font and a brush of its colour. The background is not filled.
    TNotifyEvent OnPaint;

    int AccessibleRole() const override;

protected:
    void Paint() override;
};
