#include "tests/support/SystemCounts.h"

#include "vcl/system/WindowsApi.h"

#include <string_view>

namespace {

BOOL CALLBACK CountWindow(HWND, LPARAM Count)
{
    ++*reinterpret_cast<int64_t*>(Count);
    return TRUE;
}

// The system makes these for a thread when it likes.
bool IsInputMethod(HWND Window)
{
    wchar_t Name[32] = L"";
    GetClassNameW(Window, Name, 32);
    return std::wstring_view(Name) == L"IME" || std::wstring_view(Name) == L"MSCTFIME UI";
}

BOOL CALLBACK CountTopWindow(HWND Window, LPARAM Count)
{
    if (IsInputMethod(Window))
        return TRUE;
    EnumChildWindows(Window, &CountWindow, Count);
    return CountWindow(Window, Count);
}

} // namespace

TSystemCounts TSystemCounts::Now()
{
    TSystemCounts Counts;
    Counts.UserObjects = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    Counts.GdiObjects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    EnumThreadWindows(GetCurrentThreadId(), &CountTopWindow, reinterpret_cast<LPARAM>(&Counts.Windows));
    return Counts;
}
