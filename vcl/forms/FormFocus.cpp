#include "vcl/forms/FormFocus.h"

#include "vcl/classes/StillThere.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/Screen.h"

#include <utility>

// One change of the focus. Handlers may move the focus on, or delete the form and its TFormFocus with it.
class TFormFocus::TChange {
public:
    TChange(TFormFocus& Focus, TWinControl* Control)
        : FFocus(Focus),
          FForm(Focus.FForm),
          FControl(Control),
          FWindow(GetFocus())
    {
        Focus.FTarget = Control;
        Control->SetControlFlag(csFocusing, true);
    }
    ~TChange()
    {
        if (IsTarget())
            FControl->SetControlFlag(csFocusing, false);
    }
    TChange(const TChange&) = delete;

    bool GoesOn() const { return IsTarget() && GetFocus() == FWindow; }

private:
    bool IsTarget() const { return FForm && FFocus.FTarget == FControl; }

    TFormFocus& FFocus;
    const TStillThere FForm;
    TWinControl* const FControl;
    const HWND FWindow;
};

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

bool TFormFocus::SetFocusedControl(TWinControl* Control)
{
    // When the windows of a form are destroyed the system passes the focus on among them; nobody is told.
    if (FForm->ComponentState.Contains(csDestroying))
        return false;
    if (!FForm->GetDesigner())
        FActive = Control == FForm ? nullptr : Control;
    FForm->FMdiChild.Focused();
    Screen->SetActive(FForm, Control);
    if (Control->ControlState.Contains(csFocusing))
        return true;

    bool Kept = false;
    {
        const TChange Change(*this, Control);
        Kept = ActivateForm(Change) && LeaveFor(Control, Change) && EnterDownTo(Control, Change);
    }
    if (Kept)
        Screen->ReportActive();
    return Kept;
}

// CM_DEACTIVATE to the form that was active before, CM_ACTIVATE to this one.
bool TFormFocus::ActivateForm(const TChange& Change)
{
    if (Screen->FFocusedForm == FForm)
        return true;
    TCustomForm* Before = std::exchange(Screen->FFocusedForm, FForm);
    if (Before)
        Before->Perform(CM_DEACTIVATE);
    if (!Change.GoesOn())
        return false;
    FForm->Perform(CM_ACTIVATE);
    return Change.GoesOn();
}

bool TFormFocus::LeaveFor(TWinControl* Control, const TChange& Change)
{
    while (FFocused && !FFocused->ContainsControl(Control)) {
        TWinControl* Left = FFocused;
        FFocused = Left->Parent;
        Left->Perform(CM_EXIT);
        if (!Change.GoesOn())
            return false;
    }
    return true;
}

bool TFormFocus::EnterDownTo(TWinControl* Control, const TChange& Change)
{
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
        if (!Change.GoesOn() || !FFocused || !FFocused->ContainsControl(Control))
            return false;
    }
    for (TWinControl* Area = Control->Parent; Area; Area = Area->Parent)
        if (auto* Scrolling = As<TScrollingWinControl>(Area))
            Scrolling->AutoScrollInView(Control);
    FForm->Perform(CM_FOCUSCHANGED, 0, reinterpret_cast<intptr_t>(Control));
    return Change.GoesOn();
}

void TFormFocus::DefocusControl(TWinControl* Control, bool Removing)
{
    if (Removing) {
        // What leaves the form must not be referred to any more, although it may live on elsewhere.
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
