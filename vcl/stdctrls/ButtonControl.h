// TButtonControl: what the controls over the system's button class have in common.
#pragma once

#include "vcl/controls/WinControl.h"

class TButtonControl : public TWinControl {
    VCL_CLASS(TButtonControl, TWinControl)
public:
    explicit TButtonControl(TComponent* AOwner);

    bool AccessibleDefaultAction() override;

protected:
    // For the controls that can be checked.
    virtual bool GetChecked() const { return false; }
    virtual void SetChecked(bool) {}
    PROPERTY(bool, Checked);
    // While true, the window's notifications of clicks are not passed on.
    bool ClicksDisabled = false;

    // Sets the window's style of the BS_ constants; does nothing without a window.
    void SendStyle(unsigned Style);
    void WndProc(TMessage& Message) override;
};
