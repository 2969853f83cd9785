// Hidden windows for timers, notifications and menu commands, and where exceptions in window procedures go.
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

// Called inside a catch block: reports the exception that is being handled. No exception leaves a window procedure;
// it comes here. Default: a message box with the exception's text. The application puts its own function here.
using TExceptionReport = void (*)(TObject* Sender);
extern TExceptionReport ReportException;
