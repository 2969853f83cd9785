// Hidden windows for timers, notifications and menu commands.
#pragma once

#include "vcl/classes/InputTypes.h"
#include "vcl/system/WindowsApi.h"

// Makes a hidden top-level window. The messages that come after its creation go to Method, which hands those that it
// does not handle to DefaultWindowProc. Raises EOutOfResources when the system has no window left.
HWND AllocateHWnd(const TWndMethod& Method);
// Destroys it; from here on Method is not called. nullptr is ignored.
void DeallocateHWnd(HWND Window);

// The system's default handling of Message.
void DefaultWindowProc(HWND Window, TMessage& Message);
