// Children of TWinControl and their layout.
#include "vcl/classes/StillThere.h"
#include "vcl/controls/Aligner.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/WinControl.h"
#include "vcl/system/Scope.h"

#include <algorithm>
#include <ranges>

void TWinControl::InsertControl(TControl* Control)
{
    Perform(CM_CONTROLLISTCHANGE, reinterpret_cast<uintptr_t>(Control), 1);
    FChildren.Add(Control);
    if (auto* Window = As<TWinControl>(Control))
        FTabList.Add(Window);
    Control->FParent = this;
    if (!Control->GetControlState().Contains(csReadingState)) {
        Control->Perform(CM_PARENTCOLORCHANGED);
        Control->Perform(CM_PARENTSHOWHINTCHANGED);
        Control->Perform(CM_PARENTFONTCHANGED);
        if (auto* Window = As<TWinControl>(Control)) {
            Window->Perform(CM_PARENTCTL3DCHANGED);
            if (Window->FMovesOver)
                TakeWindow(*Window);
            Window->UpdateControlState();
        } else if (FHandle) {
            Control->Invalidate();
        }
        AlignControl(Control);
    }
    Perform(CM_CONTROLCHANGE, reinterpret_cast<uintptr_t>(Control), 1);
}

void TWinControl::RemoveControl(TControl* Control)
{
    Perform(CM_CONTROLCHANGE, reinterpret_cast<uintptr_t>(Control), 0);
    if (auto* Window = As<TWinControl>(Control)) {
        if (TFormLink* Form = ParentFormLink())
            Form->DefocusControl(Window, true);
        if (!Window->FMovesOver)
            Window->DestroyHandle();
    } else if (FHandle) {
        Control->InvalidateControl(Control->GetVisible(), false);
    }
    FChildren.Remove(Control);
    if (auto* Window = As<TWinControl>(Control))
        FTabList.Remove(Window);
    Control->FParent = nullptr;
    Perform(CM_CONTROLLISTCHANGE, reinterpret_cast<uintptr_t>(Control), 0);
    if (!IsDestroying())
        Realign();
}

bool TWinControl::ContainsControl(const TControl* Control) const
{
    while (Control && Control != this)
        Control = Control->FParent;
    return Control == this;
}

TControl* TWinControl::ControlAtPos(const TPoint& Pos, bool AllowDisabled, bool AllowWinControls) const
{
    auto Hit = [&](TControl* Control) {
        TPoint Local = Pos - TPoint(Control->FLeft, Control->FTop);
        if (Local.X < 0 || Local.Y < 0 || Local.X >= Control->FWidth || Local.Y >= Control->FHeight)
            return false;
        if (Control->IsDesigning() ? Control->GetControlStyle().Contains(csNoDesignVisible) : !Control->FVisible)
            return false;
        return (AllowDisabled || Control->GetEnabled() || Control->IsDesigning()) && Control->HitTest(Local);
    };
    if (AllowWinControls)
        for (TWinControl* Child : FChildren.Windows() | std::views::reverse)
            if (Hit(Child))
                return Child;
    for (TControl* Child : FChildren.Graphics() | std::views::reverse)
        if (Hit(Child))
            return Child;
    return nullptr;
}

void TWinControl::Broadcast(TMessage& Message)
{
    const TStillThere Still(this);
    for (int I = 0; Still && I < GetControlCount() && Message.Result == 0; ++I) {
        TControl* Control = GetControls(I);
        Message.Result = Control->Perform(Message.Msg, Message.WParam, Message.LParam);
    }
}

void TWinControl::NotifyControls(uint32_t Msg)
{
    const TStillThere Still(this);
    for (int I = 0; Still && I < GetControlCount(); ++I)
        GetControls(I)->Perform(Msg);
}

void TWinControl::GetChildren(const TGetChildProc& Proc, TComponent* Root)
{
    for (int I = 0; I < GetControlCount(); ++I)
        if (GetControls(I)->GetOwner() == Root)
            Proc(GetControls(I));
}

void TWinControl::SetChildOrder(TComponent* Child, int Order)
{
    auto* Control = As<TControl>(Child);
    if (!Control || Control->GetParent() != this)
        return;
    FChildren.Move(Control, Order);
    if (auto* Window = As<TWinControl>(Child); Window && Window->FHandle)
        RestoreWindowOrder(Window);
}

void TWinControl::SetZOrder(bool TopMost)
{
    if (TWinControl* Parent = GetParent())
        Parent->FChildren.MoveToEnd(this, TopMost);
    if (FHandle)
        SetWindowPos(FHandle, TopMost ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// ---- layout

void TWinControl::AlignControls(TControl* Control, TRect& Rect)
{
    AdjustClientRect(Rect);
    TAligner::Align(*this, Control, Rect);
}

void TWinControl::AdjustClientRect(TRect&) const
{}

void TWinControl::AlignControl(TControl* Control)
{
    if (!FHandle || IsDestroying())
        return;
    if (FAlignLevel != 0) {
        FAlignNeeded = true;
        return;
    }
    const TStillThere Still(this);
    {
        DisableAlign();
        const bool Outer = std::exchange(FAligning, true);
        const TScopeExit End([&] {
            if (!Still)
                return;
            FAligning = Outer;
            InvalidatePending();
            FAlignNeeded = false; // requests from the layout itself have been dealt with
            --FAlignLevel;
        });
        TRect Rect = GetClientRect();
        AlignControls(Control, Rect);
    }
    if (Still && GetAutoSize() && GetControlCount() > 0)
        AdjustSize();
}

// During a layout the areas are collected and invalidated together: each InvalidateRect is slow.
void TWinControl::InvalidateArea(const TRect& Area, bool Erase)
{
    UnionRect(FPending, FPending, Area);
    FPendingErase |= Erase;
    if (!FAligning)
        InvalidatePending();
}

void TWinControl::InvalidatePending()
{
    if (FHandle && !FPending.IsEmpty())
        InvalidateRect(FHandle, &FPending, FPendingErase);
    FPending = {};
    FPendingErase = false;
}

void TWinControl::EnableAlign()
{
    if (--FAlignLevel == 0 && FAlignNeeded)
        Realign();
}

void TWinControl::Realign()
{
    FAlignNeeded = FAlignLevel != 0;
    AlignControl(nullptr);
}

void TWinControl::ScrollBy(int DeltaX, int DeltaY)
{
    const TStillThere Still(this);
    DisableAlign();
    for (int I = 0; Still && I < GetControlCount(); ++I) {
        TControl* Control = GetControls(I);
        Control->SetBounds(Control->FLeft + DeltaX, Control->FTop + DeltaY, Control->FWidth, Control->FHeight);
    }
    if (!Still)
        return;
    FAlignNeeded = false;
    EnableAlign();
}

bool TWinControl::CanAutoSize(int& NewWidth, int& NewHeight)
{
    if (GetControlCount() == 0)
        return false;
    int Right = 0;
    int Bottom = 0;
    for (int I = 0; I < GetControlCount(); ++I) {
        TControl* Control = GetControls(I);
        if (!Control->GetVisible() && !IsDesigning())
            continue;
        Right = std::max(Right, Control->FLeft + Control->FWidth);
        Bottom = std::max(Bottom, Control->FTop + Control->FHeight);
    }
    TRect Client = GetClientRect();
    NewWidth = GetWidth() - Client.Width() + Right;
    NewHeight = GetHeight() - Client.Height() + Bottom;
    return true;
}

void TWinControl::SetBounds(int ALeft, int ATop, int AWidth, int AHeight)
{
    if (!FHandle) {
        inherited::SetBounds(ALeft, ATop, AWidth, AHeight);
        return;
    }
    AWidth = std::max(AWidth, 0);
    AHeight = std::max(AHeight, 0);
    if (!CheckNewSize(AWidth, AHeight))
        return;
    if (ALeft == FLeft && ATop == FTop && AWidth == FWidth && AHeight == FHeight)
        return;
    if (!IsIconic(FHandle)) {
        // WM_WINDOWPOSCHANGED and WM_SIZE, which this sends, update the rest.
        SetWindowPos(FHandle, nullptr, ALeft, ATop, AWidth, AHeight, SWP_NOZORDER | SWP_NOACTIVATE);
        return;
    }
    FLeft = ALeft;
    FTop = ATop;
    FWidth = AWidth;
    FHeight = AHeight;
}

TRect TWinControl::GetClientRect() const
{
    if (!FHandle)
        return inherited::GetClientRect();
    TRect Client;
    ::GetClientRect(FHandle, &Client);
    return Client;
}

TPoint TWinControl::GetClientOrigin() const
{
    POINT Origin{};
    ::ClientToScreen(const_cast<TWinControl*>(this)->GetHandle(), &Origin);
    return Origin;
}
