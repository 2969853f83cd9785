// Showing, hiding, closing and modal display of forms.
#include "vcl/classes/StillThere.h"
#include "vcl/controls/DragManager.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/MdiFrame.h"
#include "vcl/forms/ModalSession.h"
#include "vcl/forms/Screen.h"
#include "vcl/system/Guard.h"

#include <deque>

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
    if (!Value && Visible && FMdiChild.IsOne() && !IsDestroying())
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
    if (FMdiChild.Activate())
        return;
    if (Parent)
        BringToFront();
    else
        SetWindowPos(Handle, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void TCustomForm::CMShowingChanged(TMessage&)
{
    const TStillThere StillThere(this);
    FFormState << fsShowing;
    Guarded(this, [this] {
        if (Showing)
            ShowWindowNow();
        else
            HideWindowNow();
    });
    if (StillThere)
        FFormState >> fsShowing;
}

void TCustomForm::ShowWindowNow()
{
    constexpr int Commands[] = {SW_SHOWNORMAL, SW_SHOWMINNOACTIVE, SW_SHOWMAXIMIZED};
    const TStillThere StillThere(this);
    if (!IsDesigning())
        Guarded(this, [this] { DoShow(); });
    if (!StillThere || !HandleAllocated())
        return;
    PlaceForShowing();
    FFocus.SelectFirst();
    if (TMdiFrame* Frame = FMdiChild.Frame())
        Frame->Show(Handle, FWindowState);
    else if (Parent || ParentWindow)
        SetWindowPos(Handle, nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    else
        ShowWindow(Handle, Commands[FWindowState]);
}

void TCustomForm::HideWindowNow()
{
    const TStillThere StillThere(this);
    if (!IsDesigning())
        Guarded(this, [this] { DoHide(); });
    if (!StillThere || !HandleAllocated())
        return;
    FMenu.Merge(false);
    if (Active && !FFormState.Contains(fsModal))
        ActivateNext();
    SetWindowPos(Handle, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
}

// Left to itself, the system would also choose a window of another program.
void TCustomForm::ActivateNext()
{
    for (int I = 0; I < Screen->CustomFormCount; ++I) {
        TCustomForm* Form = Screen->CustomForms[I];
        if (Form == this || !Form->Showing || Form->Parent || Form->FMdiChild.IsOne() || !Form->HandleAllocated())
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
    // A handler may close or delete children.
    const std::vector<TForm*> Shown = FMdiFrame ? FMdiFrame->Children() : std::vector<TForm*>();
    const std::deque<TComponentRef<TForm>> Children(Shown.begin(), Shown.end());
    const TStillThere StillThere(this);
    for (const TComponentRef<TForm>& Child : Children)
        if (Child && !Child->CloseQuery())
            return false;
    if (!StillThere)
        return false;
    bool CanClose = true;
    OnCloseQuery(this, CanClose);
    return CanClose;
}

TCloseAction TCustomForm::DefaultCloseAction() const
{
    if (!FMdiChild.IsOne())
        return caHide;
    return FBorderIcons.Contains(biMinimize) ? caMinimize : caNone;
}

void TCustomForm::Close()
{
    if (FFormState.Contains(fsModal)) {
        ModalResult = mrCancel;
        return;
    }
    const TStillThere StillThere(this);
    if (!CloseQuery() || !StillThere)
        return;
    TCloseAction Action = DefaultCloseAction();
    DoClose(Action);
    if (!StillThere || Action == caNone)
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

TModalResult TCustomForm::ShowModal()
{
    TDragManager::End(false);
    if (Visible || !Enabled || FFormState.Contains(fsModal) || Parent || FMdiChild.IsOne())
        throw EInvalidOperation("Cannot make a visible window modal");
    if (HWND Capture = GetCapture())
        SendMessageW(Capture, WM_CANCELMODE, 0, 0);
    ReleaseCapture();
    Application->CancelHint();
    return TModalSession(this).Run();
}
