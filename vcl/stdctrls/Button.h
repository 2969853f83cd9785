// TButton: the system's push button.
#pragma once

#include "vcl/forms/FormTypes.h"
#include "vcl/stdctrls/ButtonControl.h"

class TButton : public TButtonControl {
    VCL_CLASS(TButton, TButtonControl)
public:
    explicit TButton(TComponent* AOwner);

    // Enter presses the button, unless another button has the focus.
    bool GetDefault() const { return FDefault; }
    void SetDefault(bool Value);
    PROPERTY(bool, Default);
    // Escape presses the button.
    bool Cancel = false;
    // A click gives this result to the form; mrNone leaves the form alone.
    TModalResult ModalResult = mrNone;

    // The form gets ModalResult, then OnClick is raised.
    void Click() override;

    int AccessibleRole() const override;
    int AccessibleState() const override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    // Draws the button as the one that Enter presses, or not.
    virtual void SetButtonStyle(bool ADefault);
    // The button is what Enter would press now.
    bool IsActive() const { return FActive; }

private:
    void CNCommand(TWMCommand& Message);
    void CMDialogKey(TCMDialogKey& Message);
    void CMDialogChar(TCMDialogChar& Message);
    void CMFocusChanged(TMessage& Message);

    bool FDefault = false;
    bool FActive = false;
};
