// TWindowClass: the window classes that controls register, and the way from a window back to its control.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/system/WindowsApi.h"

struct TCreateParams;

class TWindowClass {
public:
    // Registers Params' class when it is not yet, and creates the window for Control. Raises EOSError when the system
    // refuses.
    static HWND CreateWindowFor(TWinControl& Control, const TCreateParams& Params);
    // Separates the window from its control: from here on its messages go to Procedure, its native class's.
    static void ReturnToSystem(HWND Window, WNDPROC Procedure);
    // The control of a window of ours; nullptr for every other window.
    static TWinControl* ControlOf(HWND Window);

private:
    static LRESULT CALLBACK WindowProcedure(HWND Window, UINT Msg, WPARAM WParam, LPARAM LParam);
    static void Register(const TCreateParams& Params);
};
