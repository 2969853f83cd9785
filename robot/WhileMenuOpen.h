// TWhileMenuOpen: what a test does while a popup menu is open: its tracking loop returns only when the menu is closed.
#pragma once

#include "vcl/menus/UtilityWindow.h"
#include "vcl/system/Message.h"
#include "vcl/system/WindowsApi.h"

#include <functional>

// Once a menu is on the screen, does what it was made for, and closes the menu after three seconds whatever happens.
class TWhileMenuOpen {
public:
    explicit TWhileMenuOpen(std::function<void()> Action)
        : FAction(std::move(Action)),
          FWindow(AllocateHWnd([this](TMessage& Message) { Tick(Message); }))
    {
        SetTimer(FWindow, 1, 30, nullptr);
        SetTimer(FWindow, 2, 3000, nullptr);
    }
    ~TWhileMenuOpen() { DeallocateHWnd(FWindow); }
    TWhileMenuOpen(const TWhileMenuOpen&) = delete;

    // Nobody else closed the menu, or there was none.
    bool TimedOut = false;

    static bool IsOpen() { return FindWindowW(L"#32768", nullptr) != nullptr; }

private:
    void Tick(TMessage& Message)
    {
        if (Message.Msg == WM_TIMER && Message.WParam == 2) {
            TimedOut = true;
            EndMenu();
        } else if (Message.Msg == WM_TIMER && IsOpen()) {
            KillTimer(FWindow, 1);
            FAction();
        } else if (Message.Msg != WM_TIMER) {
            DefaultWindowProc(FWindow, Message);
        }
    }

    std::function<void()> FAction;
    HWND FWindow;
};
