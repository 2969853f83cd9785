// TCustomControl: a windowed control that paints itself.
#pragma once

#include "vcl/controls/ControlCanvas.h"
#include "vcl/controls/WinControl.h"

class TCustomControl : public TWinControl {
    VCL_CLASS(TCustomControl, TWinControl)
public:
    explicit TCustomControl(TComponent* AOwner);
    ~TCustomControl() override;

    TCanvas* GetCanvas() { return &FCanvas; }
    PROPERTY_READ(TCanvas*, Canvas);

protected:
    // Draws the control's client area, before its windowless children.
    virtual void Paint() {}
    void PaintWindow(HDC DC) override;
    bool PaintsItself() const override { return true; }

private:
    TControlCanvas FCanvas;
};
