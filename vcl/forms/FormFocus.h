// TFormFocus: which control of a form has the focus, and who is told when that changes.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/ControlTypes.h"
#include "vcl/system/WindowsApi.h"

class TCustomForm;

class TFormFocus {
public:
    explicit TFormFocus(TCustomForm* Form) : FForm(Form) {}

    // The control that has the focus when the form is active; nullptr when that is the form itself.
    TWinControl* Active() const { return FActive; }
    // Raises EInvalidOperation when Control cannot be it.
    void SetActive(TWinControl* Control);
    // A control of the form has the focus now: CM_EXIT and CM_ENTER go to what is left and entered, CM_FOCUSCHANGED to
    // the whole form. False when a handler has moved the focus on.
    bool SetFocusedControl(TWinControl* Control);
    // Control is hidden or disabled, or (Removing) leaves the form with everything in it.
    void DefocusControl(TWinControl* Control, bool Removing);
    // Gives the window focus to the active control, or to the form.
    void SetWindowFocus();
    // An MDI child of the form gets the focus: no control of the form itself is active any more.
    void Leave();
    // The first control in tab order becomes active, if none is.
    void SelectFirst();

private:
    class TChange;

    bool ActivateForm(const TChange& Change);
    bool LeaveFor(TWinControl* Control, const TChange& Change);
    bool EnterDownTo(TWinControl* Control, const TChange& Change);

    TCustomForm* FForm;
    TComponentRef<TWinControl> FActive;
    TComponentRef<TWinControl> FFocused; // the last one that was told CM_ENTER
    TComponentRef<TWinControl> FTarget;  // the one that is getting the focus now
};
