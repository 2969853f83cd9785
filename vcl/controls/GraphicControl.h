// TGraphicControl: a control without a window that paints itself onto its parent's.
#pragma once

#include "vcl/controls/Control.h"
#include "vcl/graphics/Canvas.h"

// A canvas on a control: its device context is got when something is drawn and given back soon after.
class TControlCanvas : public TCanvas {
    VCL_CLASS(TControlCanvas, TCanvas)
public:
    explicit TControlCanvas(TControl* Control = nullptr) : FControl(Control) {}
    ~TControlCanvas() override;

    TControl* GetControl() const { return FControl; }
    void SetControl(TControl* Value);
    PROPERTY(TControl*, Control);

    // Gives the device context back to the system.
    void FreeHandle();

protected:
    void CreateHandle() override;

private:
    TControl* FControl;
    HWND FWindow = nullptr;
    HDC FDeviceContext = nullptr;
};

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
