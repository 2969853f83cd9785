// TGraphicControl: a control without a window that paints itself onto its parent's.
#pragma once

#include "vcl/controls/Control.h"
#include "vcl/controls/ControlCanvas.h"

class TGraphicControl : public TControl {
    VCL_CLASS(TGraphicControl, TControl)
public:
    explicit TGraphicControl(TComponent* AOwner);
    ~TGraphicControl() override;

    // What to draw on. When it is first used outside of Paint the control gets a canvas of its own, which keeps its
    // pen, brush and font. Until then each Paint uses a temporary canvas, which saves a third of the control's memory.
    TCanvas* GetCanvas();
    PROPERTY_READ(TCanvas*, Canvas);

protected:
    // Draws the control; (0, 0) is its top left corner and everything outside it is clipped.
    virtual void Paint() {}

private:
    void WMPaint(TMessage& Message);
    void PaintOn(TControlCanvas& Canvas, HDC DC);

    TControlCanvas* FCanvas = nullptr;
    bool FCanvasPasses = false; // FCanvas is a temporary one, made for the current Paint
};
