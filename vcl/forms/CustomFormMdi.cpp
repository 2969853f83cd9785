// MDI: what forms with the styles fsMDIForm and fsMDIChild do beyond others.
#include "vcl/classes/ListIndex.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/MdiFrame.h"
#include "vcl/forms/Screen.h"
#include "vcl/system/Scope.h"

#include <algorithm>

// The form is one, or will be when it has its window.
bool TCustomForm::IsMdiChild() const
{
    return FFormStyle == fsMDIChild && !Parent && !ParentWindow && !IsDesigning();
}

// That a child's window lies in; nullptr without one.
TMdiFrame* TCustomForm::FrameOfChild() const
{
    if (!FFormState.Contains(fsCreatedMDIChild) || !HandleAllocated())
        return nullptr;
    HWND Client = GetAncestor(const_cast<TCustomForm*>(this)->GetHandle(), GA_PARENT);
    auto* Frame = As<TCustomForm>(FindControl(GetAncestor(Client, GA_PARENT)));
    return Frame ? Frame->FMdiFrame.get() : nullptr;
}

TCustomForm* TCustomForm::NeedMdiParent()
{
    if (TCustomForm* Form = Application->MdiParent())
        return Form;
    throw EInvalidOperation("Cannot create form. No MDI forms are currently active");
}

void TCustomForm::ChangeMdiStyle(TFormStyle Value)
{
    const bool Making = IsLoading() || FFormState.Contains(fsCreating);
    if (Value == fsMDIChild && !Parent && !Making)
        NeedMdiParent();
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
    UpdateMenu();
    Realign();
    if (Application->MdiParent() != this)
        return;
    // Those that lost their windows with the one before.
    for (int I = Screen->CustomFormCount; I-- > 0;)
        if (TCustomForm* Form = Screen->CustomForms[I]; Form->IsMdiChild() && !Form->HandleAllocated())
            Form->UpdateControlState();
}

void TCustomForm::DestroyMdiFrame()
{
    if (!FMdiFrame)
        return;
    if (FMenu)
        FMenu->OnBarChange = nullptr;
    while (TForm* Child = LowestMdiChild())
        static_cast<TCustomForm*>(Child)->DestroyHandle();
    FMdiFrame.reset();
}

void TCustomForm::DestroyMdiChildren()
{
    while (TForm* Child = LowestMdiChild())
        delete Child;
}

// From the lowest on, none becomes active when another one goes.
TForm* TCustomForm::LowestMdiChild() const
{
    const std::vector<TForm*> Children = FMdiFrame ? FMdiFrame->Children() : std::vector<TForm*>();
    return Children.empty() ? nullptr : Children.back();
}

void TCustomForm::BarChanged()
{
    if (FMdiFrame)
        FMdiFrame->UpdateMenu();
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

void TCustomForm::MdiChildParams(TCreateParams& Params)
{
    Params.WndParent = NeedMdiParent()->ClientHandle;
    Params.ExStyle |= WS_EX_MDICHILD;
}

void TCustomForm::CreateWindowHandle(const TCreateParams& Params)
{
    // Its first messages need the default procedure of children.
    if (IsMdiChild())
        FFormState << fsCreatedMDIChild;
    TScopeExit Failed([this] { FFormState >> fsCreatedMDIChild; });
    TScrollingWinControl::CreateWindowHandle(Params);
    Failed.Dismiss();
}

void TCustomForm::DestroyWindowHandle()
{
    if (TMdiFrame* Frame = FrameOfChild()) {
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
    TMdiFrame* Frame = FrameOfChild();
    if (Frame && TopMost)
        Frame->Activate(Handle);
    else
        TScrollingWinControl::SetZOrder(TopMost);
}

void TCustomForm::PlaceMdiChild()
{
    if (FPosition == poDesigned || FPosition == poDefault || FPosition == poDefaultPosOnly ||
        FPosition == poDefaultSizeOnly)
        return;
    // Centred on anything else it would lie outside.
    TRect Area;
    ::GetClientRect(GetAncestor(Handle, GA_PARENT), &Area);
    SetBounds(std::max(0, (Area.Width() - Width) / 2), std::max(0, (Area.Height() - Height) / 2), Width, Height);
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

// A control of the form, or the form itself, has got the focus.
void TCustomForm::FocusInMdiChild()
{
    TMdiFrame* Frame = FrameOfChild();
    if (!Frame)
        return;
    // When the program becomes active again, the child does.
    Frame->Form().FFocus.Leave();
    Frame->Activate(Handle);
}

void TCustomForm::WMMDIActivate(TMessage& Message)
{
    Inherited(Message);
    if (FrameOfChild())
        MergeMenu(reinterpret_cast<HWND>(Message.LParam) == Handle);
}

void TCustomForm::WMMouseActivate(TMessage& Message)
{
    if (TMdiFrame* Frame = FrameOfChild())
        Frame->Activate(Handle);
    Inherited(Message);
}
