// TGraphicControl: a control without a window that paints itself onto its parent's.
#pragma once

#include "vcl/controls/Control.h"
#include "vcl/controls/ControlCanvas.h"

class TGraphicControl : public TControl {
    VCL_CLASS(TGraphicControl, TControl)
public:
    explicit TGraphicControl(TComponent* AOwner);
    ~TGraphicControl() override;

    TCanvas* GetCanvas() { return &FCanvas; }
    PROPERTY_READ(TCanvas*, Canvas);

protected:
    // Draws the control; (0, 0) is its top left corner and everything outside it is clipped.
    virtual void Paint() {}

private:
    void WMPaint(TMessage& Message);

    TControlCanvas FCanvas;
};
