// A window of the system that has the keyboard, for menus to open over.
#pragma once

#include "vcl/system/WindowsApi.h"

// DestroyWindow ends it.
inline HWND NewTopWindow()
{
    HWND Window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 100, 100, 300, 200, nullptr, nullptr,
                                  nullptr, nullptr);
    SetForegroundWindow(Window);
    SetFocus(Window);
    return Window;
}
