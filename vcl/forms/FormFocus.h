// TFormFocus: which control of a form has the focus, and who is told when that changes.
#pragma once

#include "vcl/controls/ControlTypes.h"

class TCustomForm;

class TFormFocus {
public:
    explicit TFormFocus(TCustomForm* Form) : FForm(Form) {}

    // The active control; nullptr when it is the form itself.
    TWinControl* Active() const { return FActive; }
    void SetActive(TWinControl* Control);
    // A control of the form has the focus now: CM_EXIT and CM_ENTER go to what is left and entered, CM_FOCUSCHANGED to
    // the whole form. False when a handler has moved the focus on.
    bool SetFocusedControl(TWinControl* Control);
    void DefocusControl(TWinControl* Control, bool Removing);
    // Gives the window focus to the active control, or to the form.
    void SetWindowFocus();
    // The first control in tab order becomes active, if none is.
    void SelectFirst();
    // Component is going away.
    void Forget(const TComponent* Component);
    // The application has another active form now: the focus stays remembered, but the controls are told of the exit
    // only when another one of this form is entered.
    TWinControl* Focused() const { return FFocused; }

private:
    bool LeaveUpTo(TWinControl* Control);
    bool EnterDownTo(TWinControl* Control);

    TCustomForm* FForm;
    TWinControl* FActive = nullptr;  // what will have the focus when the form is active
    TWinControl* FFocused = nullptr; // the last one that was told CM_ENTER
};
