#include "vcl/controls/Mouse.h"

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/WinControl.h"

#include <utility>

TControl* TMouse::Hot = nullptr;
TControl* TMouse::Capture = nullptr;
HWND TMouse::Foreign = nullptr;

// ---- capture

TControl* TMouse::CaptureControl()
{
    if (Capture)
        return Capture;
    HWND Window = GetCapture();
    return Window ? FindControl(Window) : nullptr;
}

void TMouse::SetCaptureControl(TControl* Control)
{
    auto* Window = As<TWinControl>(Control);
    const bool Windowless = Control && !Window;
    if (Windowless)
        Window = Control->GetParent();
    if (Control && !Window)
        return;
    HWND Handle = Window ? Window->GetHandle() : nullptr;

    // These calls send WM_CAPTURECHANGED, whose handlers may delete controls.
    const TComponentRef<TControl> New(Windowless ? Control : nullptr);
    const TComponentRef<TControl> Before(std::exchange(Capture, nullptr));
    if (Handle)
        SetCapture(Handle);
    else
        ReleaseCapture();
    if (New && !Capture && GetCapture() == Handle)
        Capture = New;
    if (Before && Before.Get() != Control)
        TellLost(Before, Handle);
}

void TMouse::GiveBack(TControl* Control)
{
    if (CaptureControl() != Control)
        return;
    Capture = nullptr;
    ReleaseCapture();
}

void TMouse::CaptureChanged(HWND NewOwner)
{
    if (Capture && (!Capture->GetParent() || Capture->GetParent()->FHandle != NewOwner))
        TellLost(std::exchange(Capture, nullptr), NewOwner);
}

void TMouse::WindowGone(const TWinControl& Control)
{
    if (Capture && Capture->GetParent() == &Control)
        TellLost(std::exchange(Capture, nullptr), nullptr);
}

void TMouse::TellLost(TControl* Control, HWND NewOwner)
{
    Control->Perform(WM_CAPTURECHANGED, 0, reinterpret_cast<intptr_t>(NewOwner));
}

// ---- the control under the pointer

void TMouse::SetHotControl(TControl* Control)
{
    if (Hot != Control)
        SetHotControl(Control, CaptureControl());
}

void TMouse::SetHotControl(TControl* Control, TControl* Owner)
{
    if (Hot == Control)
        return;
    const TComponentRef<TControl> Old(std::exchange(Hot, Control));
    // While a control has the capture, the others get no messages. Hot becomes nullptr when a handler deletes that
    // control.
    if (Old && (!Owner || Owner == Old))
        Old->Perform(CM_MOUSELEAVE);
    if (Control && Hot == Control && (!Owner || Owner == Control))
        Control->Perform(CM_MOUSEENTER);
    TFormHost::Get().HotControlChanged(Old, Hot);
}

void TMouse::UpdateHotControl()
{
    POINT Screen;
    SetHotControl(GetCursorPos(&Screen) ? FindDragTarget(Screen, true) : nullptr);
}

void TMouse::FollowOverForeignWindow(const MSG& Message)
{
    if (Message.message == WM_MOUSEMOVE && !FindControl(Message.hwnd) && FindEnclosingControl(Message.hwnd)) {
        if (Foreign != Message.hwnd)
            RequestLeave(Message.hwnd);
        Foreign = Message.hwnd;
        UpdateHotControl();
    } else if (Message.message == WM_MOUSELEAVE && Foreign == Message.hwnd) {
        Foreign = nullptr;
        // The control that contains the window is hot already, so nothing else requests this message for its own
        // window.
        POINT Screen;
        HWND Now = GetCursorPos(&Screen) ? WindowFromPoint(Screen) : nullptr;
        if (FindControl(Now))
            RequestLeave(Now);
        UpdateHotControl();
    }
}

void TMouse::RequestLeave(HWND Window)
{
    TRACKMOUSEEVENT Track{sizeof(TRACKMOUSEEVENT), TME_LEAVE, Window, 0};
    TrackMouseEvent(&Track);
}

void TMouse::Forget(TControl* Control)
{
    if (Capture == Control)
        GiveBack(Control);
    if (Hot == Control) {
        Hot = nullptr;
        TFormHost::Get().HotControlChanged(Control, nullptr);
    }
}
