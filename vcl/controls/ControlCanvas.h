// TControlCanvas: a canvas on a control. Its device context is obtained when something is drawn and released
// when the current message has been handled.
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

    // Releases the device context. The one that Paint draws on was obtained elsewhere and is kept.
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
