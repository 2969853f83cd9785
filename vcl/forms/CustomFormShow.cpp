// Showing, hiding, closing and modal display of forms.
#include "vcl/controls/DragManager.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/MdiFrame.h"
#include "vcl/forms/ModalWindows.h"
#include "vcl/forms/Screen.h"

void TCustomForm::SetVisible(bool Value)
{
    if (FFormState.Contains(fsCreating)) {
        if (Value)
            FFormState << fsVisible;
        else
            FFormState >> fsVisible;
        return;
    }
    if (FFormState.Contains(fsShowing) && Value != Visible)
        throw EInvalidOperation("Cannot change Visible in OnShow or OnHide");
    if (!Value && Visible && IsMdiChild() && !IsDestroying())
        throw EInvalidOperation("Cannot hide an MDI Child Form");
    if (!Value)
        FFormState >> fsVisible;
    TScrollingWinControl::SetVisible(Value);
}

void TCustomForm::FinishCreation()
{
    FFormState >> fsCreating;
    DoCreate();
    if (FFormState.Contains(fsVisible))
        Visible = true;
}

void TCustomForm::Show()
{
    Visible = true;
    if (!HandleAllocated() || !Showing)
        return;
    if (TMdiFrame* Frame = FrameOfChild())
        Frame->Activate(Handle);
    else if (Parent)
        BringToFront();
    else
        SetWindowPos(Handle, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void TCustomForm::CMShowingChanged(TMessage&)
{
    FFormState << fsShowing;
    try {
        if (Showing)
            ShowWindowNow();
        else
            HideWindowNow();
    } catch (...) {
        Application->HandleException(this);
    }
    FFormState >> fsShowing;
}

void TCustomForm::ShowWindowNow()
{
    constexpr int Commands[] = {SW_SHOWNORMAL, SW_SHOWMINNOACTIVE, SW_SHOWMAXIMIZED};
    try {
        if (!IsDesigning())
            DoShow();
    } catch (...) {
        Application->HandleException(this);
    }
    PlaceForShowing();
    FFocus.SelectFirst();
    if (TMdiFrame* Frame = FrameOfChild())
        Frame->Show(Handle, FWindowState);
    else if (Parent || ParentWindow)
        SetWindowPos(Handle, nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    else
        ShowWindow(Handle, Commands[FWindowState]);
}

void TCustomForm::HideWindowNow()
{
    try {
        if (!IsDesigning())
            DoHide();
    } catch (...) {
        Application->HandleException(this);
    }
    MergeMenu(false);
    if (Active && !FFormState.Contains(fsModal))
        ActivateNext();
    SetWindowPos(Handle, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
}

// The system would look among other programs' windows, too.
void TCustomForm::ActivateNext()
{
    for (int I = 0; I < Screen->CustomFormCount; ++I) {
        TCustomForm* Form = Screen->CustomForms[I];
        if (Form == this || !Form->Showing || Form->Parent || Form->IsMdiChild() || !Form->HandleAllocated())
            continue;
        if (IsWindowEnabled(Form->Handle) && !IsIconic(Form->Handle)) {
            SetActiveWindow(Form->Handle);
            return;
        }
    }
}

// ---- closing

bool TCustomForm::CloseQuery()
{
    for (int I = 0; I < MDIChildCount; ++I)
        if (!MDIChildren[I]->CloseQuery())
            return false;
    bool CanClose = true;
    OnCloseQuery(this, CanClose);
    return CanClose;
}

TCloseAction TCustomForm::DefaultCloseAction() const
{
    if (!IsMdiChild())
        return caHide;
    return FBorderIcons.Contains(biMinimize) ? caMinimize : caNone;
}

void TCustomForm::Close()
{
    if (FFormState.Contains(fsModal)) {
        ModalResult = mrCancel;
        return;
    }
    if (!CloseQuery())
        return;
    TCloseAction Action = DefaultCloseAction();
    DoClose(Action);
    if (Action == caNone)
        return;
    if (Application->MainForm == this)
        Application->Terminate();
    else if (Action == caHide)
        Hide();
    else if (Action == caMinimize)
        WindowState = wsMinimized;
    else
        Release();
}

void TCustomForm::Release()
{
    Application->ReleaseLater(this);
}

void TCustomForm::WMClose(TMessage&)
{
    Close();
}

void TCustomForm::WMQueryEndSession(TMessage& Message)
{
    Message.Result = CloseQuery();
}

// ---- modal display

namespace {

// What was active before, and becomes it again.
class TActiveWindow {
public:
    TActiveWindow() : FActive(GetActiveWindow()), FFocus(GetFocus()) {}
    void Restore() const
    {
        if (FActive && IsWindow(FActive) && IsWindowVisible(FActive))
            SetActiveWindow(FActive);
        if (FFocus && IsWindow(FFocus) && GetActiveWindow() == FActive && IsWindowVisible(FFocus))
            ::SetFocus(FFocus);
    }
    HWND Window() const { return FActive; }

private:
    HWND FActive;
    HWND FFocus;
};

} // namespace

TModalResult TCustomForm::ShowModal()
{
    TDragManager::End(false);
    if (Visible || !Enabled || FFormState.Contains(fsModal) || Parent || IsMdiChild())
        throw EInvalidOperation("Cannot make a visible window modal");
    if (HWND Capture = GetCapture())
        SendMessageW(Capture, WM_CANCELMODE, 0, 0);
    ReleaseCapture();
    Application->CancelHint();

    FFormState << fsModal;
    const TActiveWindow Before;
    const TCursor CursorBefore = Screen->Cursor;
    Screen->Cursor = crDefault;
    HandleNeeded();
    TModalWindows Others(Handle);
    Application->ModalStarted();
    // Finishes what was begun, however the form ends.
    auto Finish = [&] {
        Others.Enable();
        FFormState >> fsModal;
        try {
            Hide();
        } catch (...) {
            Application->HandleException(this);
        }
        Screen->Cursor = CursorBefore;
        Before.Restore();
        Application->ModalFinished();
    };
    try {
        const TModalResult Result = RunModal(Before.Window());
        Finish();
        return Result;
    } catch (...) {
        Finish();
        throw;
    }
}

TModalResult TCustomForm::RunModal(HWND Above)
{
    // Above what was active, whatever is clicked.
    const LONG_PTR OwnerBefore = GetWindowLongPtrW(Handle, GWLP_HWNDPARENT);
    if (Above)
        SetWindowLongPtrW(Handle, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(Above));
    Show();
    ModalResult = mrNone;
    while (ModalResult == mrNone) {
        Application->HandleMessage();
        if (Application->Terminated || !HandleAllocated())
            ModalResult = mrCancel;
        else if (ModalResult != mrNone)
            CloseModal();
    }
    const TModalResult Result = ModalResult;
    if (HandleAllocated()) {
        Perform(CM_DEACTIVATE);
        SetWindowLongPtrW(Handle, GWLP_HWNDPARENT, OwnerBefore);
    }
    return Result;
}

void TCustomForm::CloseModal()
{
    try {
        TCloseAction Action = caNone;
        if (CloseQuery()) {
            Action = caHide;
            DoClose(Action);
        }
        if (Action == caNone)
            ModalResult = mrNone;
        else if (Action == caFree)
            Release();
    } catch (...) {
        ModalResult = mrNone;
        Application->HandleException(this);
    }
}
