// TModalWindows: while it lives, the thread's other windows are disabled, as behind a modal form or a message box.
#pragma once

#include "vcl/system/WindowsApi.h"

#include <vector>

class TModalWindows {
public:
    // Every visible and enabled top-level window but Except, which may be nullptr.
    explicit TModalWindows(HWND Except);
    ~TModalWindows() { Enable(); }
    TModalWindows(const TModalWindows&) = delete;

    // Ends it early.
    void Enable();

private:
    std::vector<HWND> FDisabled;
};
