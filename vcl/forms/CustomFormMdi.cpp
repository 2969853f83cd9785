// MDI: what forms with the styles fsMDIForm and fsMDIChild do beyond others.
#include "vcl/classes/ListIndex.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/MdiFrame.h"
#include "vcl/forms/Screen.h"
#include "vcl/system/Scope.h"

#include <algorithm>

void TCustomForm::ChangeMdiStyle(TFormStyle Value)
{
    const bool Making = IsLoading() || FFormState.Contains(fsCreating);
    if (Value == fsMDIChild && !Parent && !Making)
        TMdiChildPart::NeedMainForm();
    const bool HadWindow = HandleAllocated();
    DestroyHandle();
    FFormStyle = Value;
    if (Value == fsMDIChild && FPosition == poDesigned)
        Position = poDefault;
    if (HadWindow && Value != fsMDIChild)
        HandleNeeded();
    UpdateControlState();
    // Children are never hidden.
    if (Value == fsMDIChild)
        Visible = true;
}

// ---- the form that holds the children

HWND TCustomForm::GetClientHandle() const
{
    return FMdiFrame ? FMdiFrame->Client() : nullptr;
}

void TCustomForm::CreateMdiFrame()
{
    FMdiFrame = std::make_unique<TMdiFrame>(*this);
    FMenu.Update();
    Realign();
    if (Application->MdiParent() != this)
        return;
    // Children whose windows were destroyed together with the previous frame get new ones.
    for (int I = Screen->CustomFormCount; I-- > 0;)
        if (TCustomForm* Form = Screen->CustomForms[I]; Form->FMdiChild.IsOne() && !Form->HandleAllocated())
            Form->UpdateControlState();
}

void TCustomForm::DestroyMdiFrame()
{
    if (!FMdiFrame)
        return;
    if (TMainMenu* Bar = Menu)
        Bar->OnBarChange = nullptr;
    for (TForm* Child; (Child = FMdiFrame->LowestChild());)
        static_cast<TCustomForm*>(Child)->DestroyHandle();
    FMdiFrame.reset();
}

void TCustomForm::AlignControls(TControl* Control, TRect& Rect)
{
    TScrollingWinControl::AlignControls(Control, Rect);
    if (FMdiFrame)
        FMdiFrame->Place(Rect);
}

TForm* TCustomForm::GetActiveMDIChild() const
{
    return FMdiFrame ? FMdiFrame->ActiveChild() : nullptr;
}

int TCustomForm::GetMDIChildCount() const
{
    return FMdiFrame ? static_cast<int>(FMdiFrame->Children().size()) : 0;
}

TForm* TCustomForm::GetMDIChildren(int Index) const
{
    const std::vector<TForm*> Children = FMdiFrame ? FMdiFrame->Children() : std::vector<TForm*>();
    CheckListIndex(Index, static_cast<int>(Children.size()));
    return Children[static_cast<size_t>(Index)];
}

void TCustomForm::Cascade()
{
    if (FMdiFrame)
        FMdiFrame->Send(WM_MDICASCADE);
}

void TCustomForm::Tile()
{
    if (FMdiFrame)
        FMdiFrame->Send(WM_MDITILE, TileMode == tbHorizontal ? MDITILE_HORIZONTAL : MDITILE_VERTICAL);
}

void TCustomForm::ArrangeIcons()
{
    if (FMdiFrame)
        FMdiFrame->Send(WM_MDIICONARRANGE);
}

void TCustomForm::Next()
{
    if (FMdiFrame)
        FMdiFrame->Send(WM_MDINEXT, 0, FALSE);
}

void TCustomForm::Previous()
{
    if (FMdiFrame)
        FMdiFrame->Send(WM_MDINEXT, 0, TRUE);
}

AnsiString TCustomForm::GetText() const
{
    return FMdiFrame ? FMdiFrame->Caption : TScrollingWinControl::GetText();
}

void TCustomForm::StoreText(const AnsiString& Value)
{
    if (FMdiFrame)
        FMdiFrame->Caption = Value;
    TScrollingWinControl::StoreText(Value);
}

void TCustomForm::CMColorChanged(TMessage& Message)
{
    Inherited(Message);
    if (FMdiFrame)
        FMdiFrame->Invalidate();
}

// The system tells top-level windows only.
void TCustomForm::WMSysColorChange(TMessage& Message)
{
    Inherited(Message);
    if (FMdiFrame)
        FMdiFrame->TellChildren(Message);
}

// ---- children

void TCustomForm::CreateWindowHandle(const TCreateParams& Params)
{
    // Even the first messages of the window need the default procedure of MDI children.
    if (FMdiChild.IsOne())
        FFormState << fsCreatedMDIChild;
    TScopeExit Failed([this] { FFormState >> fsCreatedMDIChild; });
    TScrollingWinControl::CreateWindowHandle(Params);
    Failed.Dismiss();
}

void TCustomForm::DestroyWindowHandle()
{
    if (TMdiFrame* Frame = FMdiChild.Frame()) {
        SetControlFlag(csDestroyingHandle, true);
        // The form hears that it is no longer active.
        Frame->Destroy(Handle);
    }
    FFormState >> fsCreatedMDIChild;
    if (HandleAllocated())
        TScrollingWinControl::DestroyWindowHandle();
    SetControlFlag(csDestroyingHandle, false);
}

void TCustomForm::SetZOrder(bool TopMost)
{
    if (!TopMost || !FMdiChild.Activate())
        TScrollingWinControl::SetZOrder(TopMost);
}

// ---- messages

void TCustomForm::DefaultHandler(TMessage& Message)
{
    if (!HandleAllocated())
        return;
    if (FFormState.Contains(fsCreatedMDIChild))
        Message.Result = DefMDIChildProcW(Handle, Message.Msg, Message.WParam, Message.LParam);
    else if (FMdiFrame)
        FMdiFrame->DefaultHandler(Message);
    else
        TScrollingWinControl::DefaultHandler(Message);
}

void TCustomForm::WndProc(TMessage& Message)
{
    if (Message.Msg == WM_SETFOCUS && PassFocusOn())
        return;
    TScrollingWinControl::WndProc(Message);
}

// The form that holds children passes the focus on to the active one, and that to its active control.
bool TCustomForm::PassFocusOn()
{
    if (IsDestroying() || ControlState.Contains(csDestroyingHandle))
        return false;
    TWinControl* Heir = FFormState.Contains(fsCreatedMDIChild) ? FFocus.Active() : ActiveMDIChild;
    if (!Heir || !Heir->HandleAllocated() || !Heir->CanFocus() || !IsWindowVisible(Heir->Handle))
        return false;
    ::SetFocus(Heir->Handle);
    return true;
}

void TCustomForm::WMMDIActivate(TMessage& Message)
{
    Inherited(Message);
    if (FMdiChild.Frame())
        FMenu.Merge(reinterpret_cast<HWND>(Message.LParam) == Handle);
}

void TCustomForm::WMMouseActivate(TMessage& Message)
{
    FMdiChild.Activate();
    Inherited(Message);
}
