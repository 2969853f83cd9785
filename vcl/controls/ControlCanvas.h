// TControlCanvas: a canvas on a control. Its device context is got when something is drawn and given back when the
// message in which that happened has been handled.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/graphics/Canvas.h"

class TControlCanvas : public TCanvas {
    VCL_CLASS(TControlCanvas, TCanvas)
public:
    explicit TControlCanvas(TControl* Control = nullptr) : FControl(Control) {}
    ~TControlCanvas() override;

    TControl* GetControl() const { return FControl; }
    void SetControl(TControl* Value);
    PROPERTY(TControl*, Control);

    // Gives the device context back to the system. While Paint runs the context is the painter's and stays.
    void FreeHandle();
    // The same for all control canvases.
    static void FreeHandles();

protected:
    void CreateHandle() override;

private:
    TControl* FControl;
    HWND FWindow = nullptr;
    HDC FDeviceContext = nullptr;
    TControlCanvas* FNextWithHandle = nullptr;
};
