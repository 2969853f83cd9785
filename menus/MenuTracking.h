// TMenuTracking: how the user goes through the menus of the menu buttons, with the mouse and with the keyboard. There
// is one for the whole program.
//
// It is idle, in keyboard mode (a button is highlighted and no menu is open), or a menu is open. When the user goes
// from an open menu to a button that has nothing to show, that button is highlighted as in keyboard mode, and the next
// one that the pointer or an arrow key comes to opens its menu. While there are menu buttons, hooks see the mouse and
// the keyboard of the user-interface thread; what they decide is done by a message, when the hook has returned.
#pragma once

#include "vcl/graphics/Types.h"
#include "vcl/menus/PopupList.h"
#include "vcl/system/Object.h"

#include <vector>

class TkelMenuButton;

class TMenuTracking : public TObject {
public:
    static TMenuTracking& Get();

    // The first button installs the hooks, the last one removes them. Buttons in the designer are not added.
    void Add(TkelMenuButton* Button);
    void Remove(TkelMenuButton* Button);

    // Opens the button's menu, and those of others that the user goes on to; returns when all are closed. The button
    // whose menu is open closes it.
    void Click(TkelMenuButton* Button);
    // A menu is open.
    bool IsTracking() const { return FTracking; }
    // Highlighted, or with its menu open; nullptr when idle.
    TkelMenuButton* Current() const { return FCurrent; }

    // For the hooks. The pointer has moved to a place on the screen, or a button of the mouse is pressed.
    void PointerMoved(const TPoint& Screen);
    void ButtonPressed();
    // Another window of the program is about to be the active one.
    void OtherWindowActivated();
    // The arguments are those of a keyboard hook procedure. True: the key is used up.
    bool Key(uint16_t VirtualKey, intptr_t KeyData);

private:
    // Messages to the window that popup menus share.
    static constexpr unsigned OpenCurrent = WM_APP + 0x3E1;
    static constexpr unsigned OpenLetter = WM_APP + 0x3E2; // with the parameters of WM_SYSCHAR

    bool WindowMessage(TMessage& Message);
    void SubMenuCloses(uintptr_t Handle);
    void OpenLater();

    bool ShowMenu();
    void CloseMenu();
    void GoOnTo(TkelMenuButton* Button);
    void SetCurrent(TkelMenuButton* Button);
    void Leave();

    TkelMenuButton* Start() const;
    std::vector<TkelMenuButton*> Neighbours(const TkelMenuButton* Button) const;
    TkelMenuButton* FindByLetter(const TkelMenuButton* Bar, uint16_t Char) const;
    bool PressKey(uint16_t VirtualKey, intptr_t KeyData);
    bool ReleaseAlt();
    bool ToggleKeyboardMode();
    bool Step(int Direction);
    bool Accelerator(uint16_t Char);
    bool ChooseShortcut(uint16_t VirtualKey, intptr_t KeyData);
    bool LetterElsewhere(uint16_t Char, intptr_t KeyData);
    void OpenByLetter(uint16_t Char, intptr_t KeyData);

    std::vector<TkelMenuButton*> FButtons; // in the order of their creation
    TkelMenuButton* FReference = nullptr;  // created or current last
    TkelMenuButton* FCurrent = nullptr;
    TkelMenuButton* FNext = nullptr;   // opens its menu when the open one has closed
    TkelMenuButton* FToOpen = nullptr; // by the posted OpenCurrent; only compared
    TPoint FPointer;                   // where it was last, on the screen
    HMENU FSelectedMenu = nullptr;     // the open menu or submenu with the selected item
    bool FOnSubMenu = false;           // the selected item has a submenu
    bool FTracking = false;
    bool FOpensNext = false; // no menu is open, but was: the next button opens its menu
    bool FAltAlone = false;  // Alt is down, and nothing else has happened since
    bool FAltUsed = false;   // Alt is down, and has opened a menu together with a letter
};
