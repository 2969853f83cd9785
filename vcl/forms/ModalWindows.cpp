#include "vcl/forms/ModalWindows.h"

#include <utility>

namespace {

struct TSearch {
    HWND Except;
    std::vector<HWND> Found;
};

BOOL CALLBACK Collect(HWND Window, LPARAM Search)
{
    auto& S = *reinterpret_cast<TSearch*>(Search);
    if (Window != S.Except && IsWindowVisible(Window) && IsWindowEnabled(Window))
        S.Found.push_back(Window);
    return TRUE;
}

} // namespace

TModalWindows::TModalWindows(HWND Except)
{
    TSearch Search{Except, {}};
    EnumThreadWindows(GetCurrentThreadId(), &Collect, reinterpret_cast<LPARAM>(&Search));
    FDisabled = std::move(Search.Found);
    for (HWND Window : FDisabled)
        EnableWindow(Window, FALSE);
}

void TModalWindows::Enable()
{
    for (HWND Window : std::exchange(FDisabled, {}))
        if (IsWindow(Window))
            EnableWindow(Window, TRUE);
}
