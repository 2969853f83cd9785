// TMouse: which control has captured the mouse, and which one the pointer is over.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/system/WindowsApi.h"

class TMouse {
public:
    // The control that gets all mouse messages, or nullptr. A windowless control captures through its parent's window.
    static TControl* CaptureControl();
    // nullptr releases the capture. A windowless control that loses the capture gets WM_CAPTURECHANGED, as a window
    // does.
    static void SetCaptureControl(TControl* Control);
    // Releases the capture when Control has it, because its press has ended; it gets no WM_CAPTURECHANGED.
    static void GiveBack(TControl* Control);

    // The control that the pointer is over: it was the last to get CM_MOUSEENTER.
    static TControl* HotControl() { return Hot; }
    // The pointer is now over Control (nullptr: over no control). Sends CM_MOUSELEAVE and CM_MOUSEENTER; while the
    // mouse is captured only the capturing control gets them.
    static void SetHotControl(TControl* Control);
    // The same for a caller who knows which control has the capture (nullptr: none): asking the system is slow.
    static void SetHotControl(TControl* Control, TControl* Owner);
    // Sets the hot control by the pointer's current position.
    static void UpdateHotControl();
    // Keeps the hot control up to date while the pointer is over a window that belongs to no control but lies in one,
    // such as the edit of a combo box. The message loop calls it with every message.
    static void FollowOverForeignWindow(const MSG& Message);
    // Has the system send WM_MOUSELEAVE to Window when the pointer leaves it.
    static void RequestLeave(HWND Window);

    // The system has given the capture to another window, or to none (nullptr).
    static void CaptureChanged(HWND NewOwner);
    // The window of Control is being destroyed.
    static void WindowGone(const TWinControl& Control);
    // Control is being deleted.
    static void Forget(TControl* Control);

private:
    static void TellLost(TControl* Control, HWND NewOwner);

    static TControl* Hot;
    static TControl* Capture; // only when it is windowless
    static HWND Foreign;      // the foreign window that the pointer is over
};
