// The first example of the documentation without any library: a window with a button. Prints the microseconds from the
// start of the process until it is painted.
#include "bench/bare/Startup.h"

int WINAPI WinMain(HINSTANCE Instance, HINSTANCE, LPSTR, int)
{
    WNDCLASSW Class = {};
    Class.lpfnWndProc = &DefWindowProcW;
    Class.hInstance = Instance;
    Class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    Class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    Class.lpszClassName = L"BareWindow";
    RegisterClassW(&Class);
    HWND Window = CreateWindowExW(0, Class.lpszClassName, L"First steps", WS_OVERLAPPEDWINDOW, 400, 300, 250, 120,
                                  nullptr, nullptr, Instance, nullptr);
    CreateWindowExW(0, L"BUTTON", L"Click me", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 16, 44, 208, 25, Window, nullptr,
                    Instance, nullptr);
    ShowAndPaint(Window);
    PrintStartup();
    DestroyWindow(Window);
}
