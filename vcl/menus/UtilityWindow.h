// Hidden windows for timers, notifications and menu commands.
#pragma once

#include "vcl/classes/InputTypes.h"
#include "vcl/system/WindowsApi.h"

// Makes a hidden top-level window whose messages go to Method, once it is made; DefaultWindowProc gives one to the
// system. Raises EOutOfResources when the system has no window left.
HWND AllocateHWnd(const TWndMethod& Method);
// Destroys it; from here on Method is not called. nullptr is ignored.
void DeallocateHWnd(HWND Window);

// Message's ordinary treatment by the system.
void DefaultWindowProc(HWND Window, TMessage& Message);
