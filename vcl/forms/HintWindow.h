// THintWindow: the small window that shows a hint.
#pragma once

#include "vcl/controls/CustomControl.h"

class THintWindow : public TCustomControl {
    VCL_CLASS(THintWindow, TCustomControl)
public:
    explicit THintWindow(TComponent* AOwner);

    // The window's size for a text broken at MaxWidth pixels; at 0, 0.
    virtual TRect CalcHintRect(int MaxWidth, const AnsiString& Hint, void* Data);
    // Shows the text in R, in screen coordinates, moved to where it fits into the display. Never takes the focus.
    virtual void ActivateHint(const TRect& R, const AnsiString& Hint);
    virtual void ActivateHintData(const TRect& R, const AnsiString& Hint, void* Data);
    // Takes the window off the screen.
    void ReleaseHandle() { DestroyHandle(); }
    bool IsShowing();

protected:
    void CreateParams(TCreateParams& Params) override;
    void Paint() override;

private:
    void WMNCHitTest(TMessage& Message);
    void WMMouseActivate(TMessage& Message);
};
