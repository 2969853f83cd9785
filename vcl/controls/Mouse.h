// TMouse: which control has the mouse and which one it is over.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/system/WindowsApi.h"

class TMouse {
public:
    // The control that gets all mouse messages, or nullptr. A windowless control captures through its parent's window.
    static TControl* CaptureControl();
    static void SetCaptureControl(TControl* Control);

    // The control that the pointer is over, as CM_MOUSEENTER and CM_MOUSELEAVE have told.
    static TControl* HotControl() { return Hot; }
    // The pointer is now over Control (nullptr: over none of ours). While the mouse is captured only the capturing
    // control is told.
    static void SetHotControl(TControl* Control);
    // The same by someone who knows that Owner has the mouse (nullptr: nobody of ours): asking the system takes long.
    static void SetHotControl(TControl* Control, TControl* Owner);
    // Asks where the pointer is now; for when controls moved under it.
    static void UpdateHotControl();
    // The system gave the mouse to another window, or to none (nullptr).
    static void CaptureChanged(HWND NewOwner);
    // Control is going away.
    static void Forget(TControl* Control);

private:
    static TControl* Hot;
    static TControl* Capture;
};
