#include "vcl/forms/FormFocus.h"

#include "vcl/forms/CustomForm.h"
#include "vcl/forms/Screen.h"
#include "vcl/system/Scope.h"

#include <utility>

void TFormFocus::SetActive(TWinControl* Control)
{
    if (Control == FForm)
        Control = nullptr;
    if (FActive == Control)
        return;
    const bool Loading = FForm->ComponentState.Contains(csLoading);
    if (Control && (!FForm->ContainsControl(Control) || (!Loading && !Control->CanFocus())))
        throw EInvalidOperation("Cannot focus a disabled or invisible window");
    FActive = Control;
    if (!Loading && FForm->Active)
        SetWindowFocus();
}

void TFormFocus::SetWindowFocus()
{
    TWinControl* Control = FActive && !FForm->GetDesigner() && FActive->CanFocus() ? FActive : FForm;
    ::SetFocus(Control->Handle);
}

void TFormFocus::Leave()
{
    FActive = nullptr;
}

void TFormFocus::SelectFirst()
{
    if (!FActive && !FForm->ComponentState.Contains(csDesigning))
        if (TWinControl* First = FForm->FindNextControl(nullptr, true, true, false))
            SetActive(First);
}

bool TFormFocus::StillOn(HWND Focus, const TWinControl* Control) const
{
    return FTarget == Control && GetFocus() == Focus;
}

bool TFormFocus::SetFocusedControl(TWinControl* Control)
{
    // The windows of a form that is being deleted pass the focus on as they go; nobody is told.
    if (FForm->ComponentState.Contains(csDestroying))
        return false;
    if (!FForm->GetDesigner())
        FActive = Control == FForm ? nullptr : Control;
    FForm->FocusInMdiChild();
    Screen->SetActive(FForm, Control);
    if (Control->ControlState.Contains(csFocusing))
        return true;

    FTarget = Control;
    Control->SetControlFlag(csFocusing, true);
    bool Kept = false;
    {
        const TScopeExit Done([&] {
            if (FTarget == Control)
                Control->SetControlFlag(csFocusing, false);
        });
        Kept = ActivateForm() && LeaveFor(Control) && EnterDownTo(Control);
    }
    if (Kept)
        Screen->ReportActive();
    return Kept;
}

// CM_DEACTIVATE to the form that was active before, CM_ACTIVATE to this one.
bool TFormFocus::ActivateForm()
{
    if (Screen->FFocusedForm == FForm)
        return true;
    HWND Focus = GetFocus();
    TWinControl* Target = FTarget;
    TCustomForm* Before = std::exchange(Screen->FFocusedForm, FForm);
    if (Before)
        Before->Perform(CM_DEACTIVATE);
    if (!StillOn(Focus, Target))
        return false;
    FForm->Perform(CM_ACTIVATE);
    return StillOn(Focus, Target);
}

bool TFormFocus::LeaveFor(TWinControl* Control)
{
    HWND Focus = GetFocus();
    while (FFocused && !FFocused->ContainsControl(Control)) {
        TWinControl* Left = FFocused;
        FFocused = Left->Parent;
        Left->Perform(CM_EXIT);
        if (!StillOn(Focus, Control))
            return false;
    }
    return true;
}

bool TFormFocus::EnterDownTo(TWinControl* Control)
{
    HWND Focus = GetFocus();
    if (!FFocused)
        FFocused = FForm;
    if (FFocused == Control)
        return true;
    while (FFocused != Control) {
        TWinControl* Entered = Control;
        while (Entered->Parent != FFocused)
            Entered = Entered->Parent;
        FFocused = Entered;
        Entered->Perform(CM_ENTER);
        if (!StillOn(Focus, Control) || !FFocused || !FFocused->ContainsControl(Control))
            return false;
    }
    for (TWinControl* Area = Control->Parent; Area; Area = Area->Parent)
        if (auto* Scrolling = As<TScrollingWinControl>(Area))
            Scrolling->AutoScrollInView(Control);
    FForm->Perform(CM_FOCUSCHANGED, 0, reinterpret_cast<intptr_t>(Control));
    return StillOn(Focus, Control);
}

void TFormFocus::DefocusControl(TWinControl* Control, bool Removing)
{
    if (Removing) {
        // The form hears of the deletion of what it owns only, so all references end here.
        if (FFocused && Control->ContainsControl(FFocused))
            FFocused = Control->Parent;
        if (FTarget && Control->ContainsControl(FTarget))
            FTarget = nullptr;
        Screen->ForgetIn(Control);
    }
    if (!FActive || !Control->ContainsControl(FActive))
        return;
    FActive = nullptr;
    const bool Going = FForm->ComponentState.Contains(csDestroying) || Control == FForm;
    if (!Going && FForm->Active)
        SetWindowFocus();
}
