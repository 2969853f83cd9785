// TGraphicControl: a control without a window that paints itself onto its parent's.
#pragma once

#include "vcl/controls/Control.h"
#include "vcl/controls/ControlCanvas.h"

class TGraphicControl : public TControl {
    VCL_CLASS(TGraphicControl, TControl)
public:
    explicit TGraphicControl(TComponent* AOwner);
    ~TGraphicControl() override;

    // What to draw on. Asked for outside of Paint it is the control's own from then on, with the pen, brush and font
    // that were set last. A control that never asks paints on a passing one, which starts out as a new canvas each
    // time: most controls do, and are a third smaller for it.
    TCanvas* GetCanvas();
    PROPERTY_READ(TCanvas*, Canvas);

protected:
    // Draws the control; (0, 0) is its top left corner and everything outside it is clipped.
    virtual void Paint() {}

private:
    void WMPaint(TMessage& Message);
    void PaintOn(TControlCanvas& Canvas, HDC DC);

    TControlCanvas* FCanvas = nullptr;
    bool FCanvasPasses = false; // it is not the control's own
};
