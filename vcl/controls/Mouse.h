// TMouse: which control has the mouse and which one it is over.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/system/WindowsApi.h"

class TMouse {
public:
    // The control that gets all mouse messages, or nullptr. A windowless control captures through its parent's window.
    static TControl* CaptureControl();
    // nullptr: no control. A windowless control that loses the mouse this way gets WM_CAPTURECHANGED, as a window does.
    static void SetCaptureControl(TControl* Control);
    // Control's press has ended, and with it the capture; Control is not told.
    static void GiveBack(TControl* Control);

    // The control that the pointer is over, as CM_MOUSEENTER and CM_MOUSELEAVE have told.
    static TControl* HotControl() { return Hot; }
    // The pointer is now over Control (nullptr: over none of ours). While the mouse is captured only the capturing
    // control is told.
    static void SetHotControl(TControl* Control);
    // The same by someone who knows that Owner has the mouse (nullptr: nobody of ours): asking the system takes long.
    static void SetHotControl(TControl* Control, TControl* Owner);
    // Asks where the pointer is now; for when controls moved under it.
    static void UpdateHotControl();
    // Follows the pointer over windows that lie in a control but are not a control's own, such as the edit in a combo
    // box. Message is one of the message loop's.
    static void FollowOverForeignWindow(const MSG& Message);
    // Has the system send WM_MOUSELEAVE to Window when the pointer leaves it.
    static void RequestLeave(HWND Window);

    // The system gave the mouse to another window, or to none (nullptr).
    static void CaptureChanged(HWND NewOwner);
    // The window of Control is going away.
    static void WindowGone(const TWinControl& Control);
    // Control is going away.
    static void Forget(TControl* Control);

private:
    static void TellLost(TControl* Control, HWND NewOwner);

    static TControl* Hot;
    static TControl* Capture; // only when it is windowless
    static HWND Foreign;      // the foreign window that the pointer is over
};
