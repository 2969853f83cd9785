#include "vcl/forms/HintController.h"

#include "vcl/classes/StillThere.h"
#include "vcl/controls/WinControl.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Screen.h"

#include <algorithm>
#include <utility>

namespace {

constexpr UINT_PTR TimerId = 1;

// A modal form, or a message box, has disabled the window that Control stands on.
bool IsBlocked(const TControl* Control)
{
    const TWinControl* Window = As<TWinControl>(Control);
    if (!Window)
        Window = Control->Parent;
    return Window && Window->HandleAllocated() &&
           !IsWindowEnabled(GetAncestor(const_cast<TWinControl*>(Window)->Handle, GA_ROOT));
}

TControl* HintControlOf(TControl* Control)
{
    while (Control && !Control->ShowHint)
        Control = Control->Parent;
    const bool Shows = Control && !Control->ComponentState.Contains(csDesigning) && !IsBlocked(Control);
    return Shows ? Control : nullptr;
}

// The hint of Control, or of the nearest parent that has one.
AnsiString HintOf(TControl* Control)
{
    for (; Control; Control = Control->Parent)
        if (AnsiString Hint = Control->Hint; !Hint.empty())
            return Hint;
    return {};
}

// Control, or what it lies in, is being deleted.
bool IsInDestroyed(TControl* Control)
{
    while (Control && !Control->ComponentState.Contains(csDestroying))
        Control = Control->Parent;
    return Control != nullptr;
}

// How far below its hot spot the cursor reaches, in pixels: the hint starts there.
int CursorReach()
{
    ICONINFO Info{};
    HCURSOR Cursor = GetCursor();
    int Reach = GetSystemMetrics(SM_CYCURSOR) / 2;
    if (!Cursor || !GetIconInfo(Cursor, &Info))
        return Reach;
    BITMAP Mask{};
    if (GetObjectW(Info.hbmMask, sizeof Mask, &Mask)) {
        const int Height = Info.hbmColor ? Mask.bmHeight : Mask.bmHeight / 2;
        Reach = std::min(Height - static_cast<int>(Info.yHotspot), Reach + 4);
    }
    DeleteObject(Info.hbmMask);
    if (Info.hbmColor)
        DeleteObject(Info.hbmColor);
    return Reach;
}

} // namespace

THintController::~THintController()
{
    Stop();
}

void THintController::HotControlChanged(TControl* Old, TControl* New)
{
    const TComponentRef<TControl> Owner(HintControlOf(New));
    // While a form is deleted, what its OnHint handler needs may be deleted already.
    if (!IsInDestroyed(Old))
        FApplication.Hint = GetLongHint(HintOf(New));
    if (Owner && Owner.Get() == FControl.Get() && FPhase != hpNone && FPhase != hpHidden)
        return;
    const bool WasShowing = FPhase == hpShowing;
    Cancel();
    FControl = Owner;
    FPhase = hpNone;
    if (Owner && FApplication.ShowHint)
        Start(hpWaiting, WasShowing ? FApplication.HintShortPause : FApplication.HintPause);
}

void THintController::PointerMoved(const TPoint& Pos)
{
    if (FPhase != hpShowing || FCursorRect.Contains(Pos))
        return;
    Hide();
    Start(hpWaiting, FApplication.HintShortPause);
}

void THintController::Cancel()
{
    Stop();
    Hide();
    FPhase = hpHidden;
}

void THintController::Hide()
{
    FWindow.reset();
}

void THintController::Start(TPhase Phase, int Milliseconds)
{
    FPhase = Phase;
    FTimerRuns = true;
    SetTimer(FApplication.Handle, TimerId, static_cast<UINT>(Milliseconds), nullptr);
}

void THintController::Stop()
{
    if (std::exchange(FTimerRuns, false) && FApplication.HandleAllocated())
        KillTimer(FApplication.Handle, TimerId);
}

bool THintController::Timer(uintptr_t Id)
{
    if (Id != TimerId)
        return false;
    const TPhase Phase = FPhase;
    Stop();
    if (Phase == hpShowing && !FReshow) {
        Cancel();
        return true;
    }
    POINT Pos;
    if ((Phase == hpWaiting || Phase == hpShowing) && GetCursorPos(&Pos))
        Activate(Pos);
    return true;
}

void THintController::Activate(const TPoint& Pos)
{
    TControl* Control = HintControlOf(FindDragTarget(Pos, true));
    // A program in the background shows no hints.
    if (!Control || !GetActiveWindow() || !FApplication.ShowHint) {
        Cancel();
        return;
    }
    FControl = Control;
    THintInfo Info;
    Info.HintControl = Control;
    Info.HintWindowClass = FApplication.HintWindowClass ? FApplication.HintWindowClass : THintWindow::StaticClass();
    Info.HintPos = {Pos.x, Pos.y + CursorReach()};
    Info.HintMaxWidth = Screen->Width;
    Info.HintColor = FApplication.HintColor;
    Info.CursorRect = Rect(0, 0, Control->Width, Control->Height);
    Info.CursorPos = Control->ScreenToClient(Pos);
    Info.HideTimeout = FApplication.HintHidePause;
    Info.HintStr = GetShortHint(HintOf(Control));
    if (Ask(Info) && !Info.HintStr.empty())
        Show(Info);
    else
        Cancel();
}

bool THintController::Ask(THintInfo& Info) const
{
    const TControl* Asked = Info.HintControl;
    const TStillThere Still(Info.HintControl);
    bool CanShow = Info.HintControl->Perform(CM_HINTSHOW, 0, reinterpret_cast<intptr_t>(&Info)) == 0;
    if (!Still)
        return false;
    FApplication.OnShowHint(Info.HintStr, CanShow, Info);
    return CanShow && Info.HintControl && (Still || Info.HintControl != Asked);
}

void THintController::Show(const THintInfo& Info)
{
    const TPoint Origin = Info.HintControl->ClientToScreen({0, 0});
    FCursorRect = Info.CursorRect;
    OffsetRect(FCursorRect, Origin.X, Origin.Y);

    if (!FWindow || FWindow->ClassType() != Info.HintWindowClass)
        FWindow.reset(static_cast<THintWindow*>(Info.HintWindowClass->Create(nullptr)));
    FWindow->Color = Info.HintColor;
    TRect R = FWindow->CalcHintRect(Info.HintMaxWidth, Info.HintStr, Info.HintData);
    OffsetRect(R, Info.HintPos.x, Info.HintPos.y);
    FWindow->ActivateHintData(R, Info.HintStr, Info.HintData);

    FReshow = Info.ReshowTimeout > 0;
    Start(hpShowing, FReshow ? Info.ReshowTimeout : Info.HideTimeout);
}
