// A window without any library: what starting a program costs at least. Prints the microseconds from the start of the
// process until the window is painted.
#include "vcl/system/WindowsApi.h"

#include <cstdint>
#include <cstdio>

namespace {

uint64_t Microseconds(const FILETIME& Time)
{
    return ((uint64_t{Time.dwHighDateTime} << 32) | Time.dwLowDateTime) / 10;
}

} // namespace

int main()
{
    WNDCLASSW Class = {};
    Class.lpfnWndProc = &DefWindowProcW;
    Class.hInstance = GetModuleHandleW(nullptr);
    Class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    Class.lpszClassName = L"BareWindow";
    RegisterClassW(&Class);
    HWND Window = CreateWindowExW(0, Class.lpszClassName, L"Bare", WS_OVERLAPPEDWINDOW, 10, 10, 800, 600, nullptr,
                                  nullptr, Class.hInstance, nullptr);
    ShowWindow(Window, SW_SHOW);
    UpdateWindow(Window);
    MSG Message;
    while (PeekMessageW(&Message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&Message);
    GdiFlush();
    FILETIME Started, Exit, Kernel, User, Now;
    GetSystemTimeAsFileTime(&Now);
    GetProcessTimes(GetCurrentProcess(), &Started, &Exit, &Kernel, &User);
    std::printf("%llu\n", static_cast<unsigned long long>(Microseconds(Now) - Microseconds(Started)));
    DestroyWindow(Window);
    return 0;
}
