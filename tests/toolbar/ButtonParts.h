// What tests of popup and combo buttons need: a look inside of buttons, and a menu that does not really open.
#pragma once

#include "toolbar/SpeedButton.h"
#include "vcl/menus/PopupMenu.h"

#include <functional>

// Lets tests read what a speed button keeps to itself.
class TButtonLook : public TkelSpeedButton {
public:
    static TButtonState StateOf(const TkelSpeedButton* Button) { return Button->*(&TButtonLook::FState); }
    static bool IsHot(const TkelSpeedButton* Button) { return Button->*(&TButtonLook::FMouseInControl); }
};

// Counts the paintings of a control until it goes.
class TPaintCount {
public:
    explicit TPaintCount(TControl* Control) : FControl(Control), FBefore(Control->WindowProc)
    {
        Control->WindowProc = [this](TMessage& Message) {
            FCount += Message.Msg == WM_PAINT;
            FBefore(Message);
        };
    }
    ~TPaintCount() { FControl->WindowProc = FBefore; }
    TPaintCount(const TPaintCount&) = delete;

    int Get() const { return FCount; }

private:
    TControl* FControl;
    TWndMethod FBefore;
    int FCount = 0;
};

// A menu that only notes where it should open, and runs WhileOpen instead.
class TNotedMenu : public TPopupMenu {
public:
    using TPopupMenu::TPopupMenu;

    void Popup(int X, int Y) override
    {
        ++Popups;
        Place = TPoint(X, Y);
        if (WhileOpen)
            WhileOpen();
    }

    int Popups = 0;
    TPoint Place;
    std::function<void()> WhileOpen;
};
