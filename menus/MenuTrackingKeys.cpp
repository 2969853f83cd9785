// The keyboard in menu bars.
#include "menus/MenuBar.h"
#include "menus/MenuButton.h"
#include "menus/MenuForms.h"
#include "menus/MenuTracking.h"
#include "menus/OfficePopupMenu.h"
#include "vcl/controls/WinControl.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/Screen.h"

#include <algorithm>
#include <ranges>

namespace {

// Flags in the key data of a keyboard hook.
constexpr intptr_t Released = intptr_t{1} << 31;
constexpr intptr_t WasDown = intptr_t{1} << 30;
constexpr intptr_t AltHeld = intptr_t{1} << 29;

// The character of a key on the user's keyboard layout, without the modifiers; 0 when it has none.
uint16_t CharOf(uint16_t VirtualKey)
{
    constexpr UINT KeepState = 4; // of a dead key that waits for its letter; ignored before Windows 10 1607
    const HKL Layout = GetKeyboardLayout(0);
    const BYTE NoneHeld[256] = {};
    wchar_t Char[8] = {};
    const UINT ScanCode = MapVirtualKeyExW(VirtualKey, MAPVK_VK_TO_VSC, Layout);
    return ToUnicodeEx(VirtualKey, ScanCode, NoneHeld, Char, 8, KeepState, Layout) == 1 ? Char[0] : 0;
}

bool IsHeld(int VirtualKey)
{
    return (GetKeyState(VirtualKey) & 0x8000) != 0;
}

TMenuItem* FindShortCut(TkelOfficePopupMenu* Menu, TShortCut ShortCut)
{
    TMenuItem* Item = Menu ? Menu->FindItem(ShortCut, fkShortCut) : nullptr;
    return Item && Item->CanBeChosen() ? Item : nullptr;
}

// While a menu is open only its own shortcuts count.
TMenuItem* FindShortCut(TShortCut ShortCut)
{
    if (TkelCustomPopupMenu* Open = TkelCustomPopupMenu::Current())
        return FindShortCut(As<TkelOfficePopupMenu>(Open), ShortCut);
    for (const TCustomForm* Form : FormsWithMenusOf(ActiveMenuForm()))
        for (int I = 0; I < Form->ComponentCount; ++I)
            if (TMenuItem* Item = FindShortCut(As<TkelOfficePopupMenu>(Form->Components[I]), ShortCut))
                return Item;
    return nullptr;
}

} // namespace

// A button of the bar where the keyboard begins: in a menu bar of the active form, or of the child that is active in
// it, or elsewhere when there is none. The reference button is taken if it is there, else the youngest that is.
TkelMenuButton* TMenuTracking::Start() const
{
    TCustomForm* Form = ActiveMenuForm();
    const auto Rank = [Form](const TkelMenuButton* Button) {
        if (!Button || !Button->IsOnScreen() || !IsAmongMenusOf(Form, *Button))
            return 0;
        const auto* Bar = As<TkelMenuBar>(Button->Parent);
        return !Bar ? 1 : Bar->Owner == Form ? 3 : 2;
    };
    TkelMenuButton* Best = FReference;
    for (TkelMenuButton* Button : FButtons | std::views::reverse)
        if (Rank(Button) > Rank(Best))
            Best = Button;
    return Rank(Best) > 0 ? Best : nullptr;
}

TkelMenuButton* TMenuTracking::FindByLetter(const TkelMenuButton* Bar, uint16_t Char) const
{
    for (TkelMenuButton* Button : Neighbours(Bar))
        if (Char && IsAccel(Char, Button->Caption))
            return Button;
    return nullptr;
}

bool TMenuTracking::Key(uint16_t VirtualKey, intptr_t KeyData)
{
    TCustomForm* Form = ActiveMenuForm();
    // Another form has become active.
    if (FCurrent && !FTracking && !IsAmongMenusOf(Form, *FCurrent))
        Leave();
    if (std::ranges::none_of(FButtons, [Form](const auto* Button) { return IsAmongMenusOf(Form, *Button); }))
        return false;
    if (VirtualKey != VK_MENU) {
        FAltAlone = false;
        return !(KeyData & Released) && PressKey(VirtualKey, KeyData);
    }
    if (KeyData & Released)
        return ReleaseAlt();
    if (!(KeyData & WasDown)) {
        // For AltGr the system reports Ctrl as well.
        FAltAlone = !IsHeld(VK_CONTROL) && !IsHeld(VK_SHIFT);
        FAltUsed = false;
    }
    return FCurrent != nullptr;
}

// A release that is not used up opens the window's own menu.
bool TMenuTracking::ReleaseAlt()
{
    const bool Alone = std::exchange(FAltAlone, false);
    return std::exchange(FAltUsed, false) || (Alone && ToggleKeyboardMode());
}

bool TMenuTracking::ToggleKeyboardMode()
{
    if (FCurrent) {
        Leave();
        return true;
    }
    const std::vector<TkelMenuButton*> Buttons = Neighbours(Start());
    if (Buttons.empty())
        return false;
    SetCurrent(Buttons.front());
    return true;
}

bool TMenuTracking::PressKey(uint16_t VirtualKey, intptr_t KeyData)
{
    if (!FTracking && ChooseShortcut(VirtualKey, KeyData))
        return true;
    switch (VirtualKey) {
    case VK_SHIFT:
    case VK_CONTROL: return false;
    case VK_F10: return !IsHeld(VK_SHIFT) && !IsHeld(VK_CONTROL) && ToggleKeyboardMode();
    case VK_ESCAPE:
        if (!FCurrent)
            return false;
        Leave();
        return true;
    case VK_LEFT: return Step(-1);
    case VK_RIGHT: return Step(1);
    case VK_DOWN:
    case VK_RETURN:
        if (!FCurrent || FTracking)
            return false;
        OpenLater();
        return true;
    default: break;
    }
    if (IsHeld(VK_CONTROL))
        return false;
    // The character is asked for only when it matters: older systems forget a dead key that waits for its letter.
    if (FCurrent)
        return Accelerator(CharOf(VirtualKey));
    return (KeyData & AltHeld) && LetterElsewhere(CharOf(VirtualKey), KeyData);
}

// Where an arrow goes into a submenu or out of it, it is left to the open menu.
bool TMenuTracking::Step(int Direction)
{
    if (!FCurrent)
        return false;
    if (FTracking) {
        const bool InSubMenu = FSelectedMenu && FCurrent->Menu && FSelectedMenu != FCurrent->Menu->Handle;
        if (Direction > 0 ? FOnSubMenu : InSubMenu)
            return false;
    }
    const std::vector<TkelMenuButton*> Buttons = Neighbours(FCurrent);
    const auto Place = std::ranges::find(Buttons, FCurrent);
    if (Place == Buttons.end())
        return false;
    const auto Count = static_cast<ptrdiff_t>(Buttons.size());
    TkelMenuButton* Next = Buttons[static_cast<size_t>((Place - Buttons.begin() + Direction + Count) % Count)];
    GoOnTo(Next);
    return true;
}

// In an open menu the letter of an item, in keyboard mode that of a button. Other keys end the keyboard mode.
bool TMenuTracking::Accelerator(uint16_t Char)
{
    if (FTracking) {
        const auto* Menu = As<TkelOfficePopupMenu>(FCurrent->Menu);
        TMenuItem* Item = Menu && Char ? Menu->ProcessAccel(Char) : nullptr;
        if (!Item)
            return false;
        const uint16_t Command = Item->Command;
        Leave();
        PostMessageW(PopupList->Window, WM_COMMAND, Command, 0);
        return true;
    }
    if (TkelMenuButton* Button = FindByLetter(FCurrent, Char)) {
        SetCurrent(Button);
        OpenLater();
        return true;
    }
    Leave();
    return false;
}

bool TMenuTracking::ChooseShortcut(uint16_t VirtualKey, intptr_t KeyData)
{
    const TShortCut Wanted = KeyMessageToShortCut({WM_KEYDOWN, VirtualKey, KeyData});
    const TMenuItem* Item = Wanted == scNone ? nullptr : FindShortCut(Wanted);
    if (!Item)
        return false;
    Leave();
    EndMenu();
    PostMessageW(PopupList->Window, WM_COMMAND, Item->Command, 0);
    return true;
}

// Alt and the letter of a button. Buttons on the active form itself get the letter as its other controls do.
bool TMenuTracking::LetterElsewhere(uint16_t Char, intptr_t KeyData)
{
    const TkelMenuButton* Button = FindByLetter(Start(), Char);
    if (!Button || GetParentForm(Button) == Screen->ActiveCustomForm)
        return false;
    FAltUsed = true;
    PostMessageW(PopupList->Window, OpenLetter, Char, KeyData);
    return true;
}

// The controls of the active form come first.
void TMenuTracking::OpenByLetter(uint16_t Char, intptr_t KeyData)
{
    TCustomForm* Active = Screen->ActiveCustomForm;
    if (Active && Active->Perform(CM_DIALOGCHAR, Char, KeyData) != 0)
        return;
    if (TkelMenuButton* Button = FindByLetter(Start(), Char))
        Button->Click();
}
