// How long a program took to start.
#pragma once

#include "vcl/system/WindowsApi.h"

#include <cstdint>
#include <cstdio>

inline uint64_t Microseconds(const FILETIME& Time)
{
    return ((uint64_t{Time.dwHighDateTime} << 32) | Time.dwLowDateTime) / 10;
}

// Prints the microseconds since the start of this process, in which everything that was drawn has reached the screen.
inline void PrintStartup()
{
    GdiFlush();
    FILETIME Started, Exit, Kernel, User, Now;
    GetSystemTimeAsFileTime(&Now);
    GetProcessTimes(GetCurrentProcess(), &Started, &Exit, &Kernel, &User);
    std::printf("%llu\n", static_cast<unsigned long long>(Microseconds(Now) - Microseconds(Started)));
    std::fflush(stdout);
}

// Shows a window, and handles messages until there are none: then it is painted.
inline void ShowAndPaint(HWND Window)
{
    ShowWindow(Window, SW_SHOW);
    UpdateWindow(Window);
    MSG Message;
    while (PeekMessageW(&Message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&Message);
}
