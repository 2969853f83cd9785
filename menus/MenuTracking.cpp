#include "menus/MenuTracking.h"

#include "common/PointInRect.h"
#include "menus/MenuButton.h"
#include "menus/MenuHooks.h"
#include "menus/OfficePopupMenu.h"
#include "toolbar/DropDown.h"
#include "toolbar/Flpfrm97.h"
#include "toolbar/ToolBar.h"
#include "vcl/controls/WinControl.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Screen.h"

#include <algorithm>

namespace {

constexpr UINT OpenCurrent = WM_APP + 0x3E1;
constexpr intptr_t Released = intptr_t{1} << 31;
constexpr intptr_t WasDown = intptr_t{1} << 30;

// The character of a key on the user's keyboard layout, without the modifiers; 0 when it has none.
uint16_t CharOf(uint16_t VirtualKey)
{
    const HKL Layout = GetKeyboardLayout(0);
    return static_cast<uint16_t>(MapVirtualKeyExW(VirtualKey, MAPVK_VK_TO_CHAR, Layout) & 0x7FFF);
}

bool IsHeld(int VirtualKey)
{
    return (GetKeyState(VirtualKey) & 0x8000) != 0;
}

// Can be pointed at, and opens a menu.
bool IsShown(const TkelMenuButton& Button)
{
    return Button.Menu && Button.Visible && Button.Enabled && Button.Parent && Button.Parent->Showing;
}

TMenuItem* FindShortCut(TComponent* Form, TShortCut ShortCut)
{
    for (int I = 0; I < Form->ComponentCount; ++I)
        if (auto* Menu = As<TkelOfficePopupMenu>(Form->Components[I]))
            if (TMenuItem* Item = Menu->FindItem(ShortCut, fkShortCut); Item && Item->CanBeChosen())
                return Item;
    return nullptr;
}

} // namespace

TMenuTracking& TMenuTracking::Get()
{
    // Never destroyed: buttons of static life leave it at any time.
    static TMenuTracking& Tracking = *new TMenuTracking;
    return Tracking;
}

// ---- buttons

void TMenuTracking::Add(TkelMenuButton* Button)
{
    if (FButtons.empty()) {
        InstallMenuHooks();
        PopupList->AddListener({this, &TMenuTracking::WindowMessage});
    }
    FButtons.push_back(Button);
    FReference = Button;
}

void TMenuTracking::Remove(TkelMenuButton* Button)
{
    if (std::erase(FButtons, Button) == 0)
        return;
    if (FNext == Button)
        FNext = nullptr;
    if (FCurrent == Button) {
        FCurrent = nullptr;
        CloseMenu();
    }
    if (FReference == Button)
        FReference = FButtons.empty() ? nullptr : FButtons.back();
    if (!FButtons.empty())
        return;
    FToOpen = nullptr;
    PopupList->RemoveListener({this, &TMenuTracking::WindowMessage});
    RemoveMenuHooks();
}

// The buttons of the same bar that can open a menu, in the order in which they lie there.
std::vector<TkelMenuButton*> TMenuTracking::Neighbours(const TkelMenuButton* Button) const
{
    std::vector<TkelMenuButton*> Found;
    const TWinControl* Bar = Button ? Button->Parent : nullptr;
    for (int I = 0; Bar && I < Bar->ControlCount; ++I)
        if (auto* Each = As<TkelMenuButton>(Bar->Controls[I]); Each && Each->Visible && Each->Enabled)
            Found.push_back(Each);
    std::ranges::sort(Found, [](const TkelMenuButton* A, const TkelMenuButton* B) {
        return A->Top != B->Top ? A->Top < B->Top : A->Left < B->Left;
    });
    return Found;
}

bool TMenuTracking::IsInActiveForm(const TkelMenuButton* Button) const
{
    const TCustomForm* Active = Screen->ActiveCustomForm;
    if (!Button || !Active)
        return false;
    if (Button->Owner == Active)
        return true;
    // The menus of the main form are those of its MDI children, too.
    if (Active->FormStyle == fsMDIChild)
        return Button->Owner == Application->MainForm;
    // A bar that floats is a form of its own, and part of the one that it has left.
    const auto* Frame = As<TFPForm97>(Active);
    return Frame && Frame->ToolBar && Frame->ToolBar->Owner == Button->Owner;
}

void TMenuTracking::SetCurrent(TkelMenuButton* Button)
{
    TkelMenuButton* Before = std::exchange(FCurrent, Button);
    if (Before == Button)
        return;
    if (Before)
        Before->Hot = false;
    if (FCurrent) {
        FReference = FCurrent;
        FCurrent->Hot = true;
    }
}

void TMenuTracking::Leave()
{
    FNext = nullptr;
    CloseMenu();
    if (!FTracking)
        SetCurrent(nullptr);
}

// ---- menus

void TMenuTracking::Click(TkelMenuButton* Button)
{
    if (FTracking) {
        if (Button == FCurrent)
            Leave();
        else
            GoOnTo(Button);
        return;
    }
    FTracking = true;
    FNext = Button;
    try {
        while (FNext) {
            SetCurrent(std::exchange(FNext, nullptr));
            ShowMenu();
        }
    } catch (...) {
        FTracking = false;
        Leave();
        throw;
    }
    FTracking = false;
    Leave();
}

// The button, its menu or its form may be gone when the menu closes.
void TMenuTracking::ShowMenu()
{
    TPopupMenu* Menu = FCurrent->Menu;
    if (!Menu)
        return;
    FSelectedMenu = nullptr;
    FOnSubMenu = false;
    GetCursorPos(&FPointer);
    FCurrent->Down = true;
    Menu->PopupComponent = FCurrent;
    const TPoint Place = FCurrent->DropPoint();
    Menu->Popup(Place.X, Place.Y);
    if (!FCurrent)
        return;
    if (!FNext)
        DropPressOn(FCurrent);
    FCurrent->Down = false;
}

void TMenuTracking::CloseMenu()
{
    if (FTracking)
        EndMenu();
}

// When the menu that is open has closed, the next one opens.
void TMenuTracking::GoOnTo(TkelMenuButton* Button)
{
    FNext = Button;
    CloseMenu();
}

// By a message, as a hook must return before a menu can be shown.
void TMenuTracking::OpenLater()
{
    FToOpen = FCurrent;
    PostMessageW(PopupList->Window, OpenCurrent, 0, 0);
}

bool TMenuTracking::WindowMessage(TMessage& Message)
{
    if (Message.Msg == OpenCurrent) {
        TkelMenuButton* Button = std::exchange(FToOpen, nullptr);
        if (Button && Button == FCurrent)
            Button->Click();
        return true;
    }
    if (Message.Msg == WM_MENUSELECT && Message.LParam) {
        FSelectedMenu = reinterpret_cast<HMENU>(Message.LParam);
        FOnSubMenu = (Message.WParamHi() & MF_POPUP) != 0;
    }
    return false;
}

// ---- the mouse

// When a menu opens or closes the system tells of a move that was none: a menu opened by a key would go at once.
void TMenuTracking::PointerMoved(const TPoint& Screen)
{
    if (!FTracking || FNext || Screen == FPointer)
        return;
    FPointer = Screen;
    for (TkelMenuButton* Button : FButtons) {
        if (!FCurrent || Button == FCurrent || Button->Owner != FCurrent->Owner || !IsShown(*Button))
            continue;
        if (PointInRect(Button->ScreenToClient(Screen), Button->ClientRect)) {
            GoOnTo(Button);
            return;
        }
    }
}

// ---- the keyboard

bool TMenuTracking::Key(uint16_t VirtualKey, intptr_t KeyData)
{
    if (!IsInActiveForm(FReference))
        return false;
    if (VirtualKey != VK_MENU) {
        FAltAlone = false;
        return !(KeyData & Released) && PressKey(VirtualKey, KeyData);
    }
    // With AltGr the system presses Ctrl, too.
    if (!(KeyData & Released)) {
        if (!(KeyData & WasDown))
            FAltAlone = !IsHeld(VK_CONTROL) && !IsHeld(VK_SHIFT);
        return FCurrent != nullptr;
    }
    // Not used up, the system would go to its own menu.
    return std::exchange(FAltAlone, false) && ToggleKeyboardMode();
}

bool TMenuTracking::ToggleKeyboardMode()
{
    if (FCurrent) {
        Leave();
        return true;
    }
    const std::vector<TkelMenuButton*> Buttons = Neighbours(FReference);
    if (Buttons.empty())
        return false;
    SetCurrent(Buttons.front());
    return true;
}

bool TMenuTracking::PressKey(uint16_t VirtualKey, intptr_t KeyData)
{
    switch (VirtualKey) {
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
    if (FCurrent)
        return Accelerator(CharOf(VirtualKey));
    return Shortcut(VirtualKey, KeyData);
}

// Into a submenu and out of it the arrows belong to the menu.
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
    if (FTracking)
        GoOnTo(Next);
    else
        SetCurrent(Next);
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
    for (TkelMenuButton* Button : Neighbours(FCurrent)) {
        if (!Char || !IsAccel(Char, Button->Caption))
            continue;
        SetCurrent(Button);
        OpenLater();
        return true;
    }
    Leave();
    return false;
}

bool TMenuTracking::Shortcut(uint16_t VirtualKey, intptr_t KeyData)
{
    const TShortCut Wanted = KeyMessageToShortCut({WM_KEYDOWN, VirtualKey, KeyData});
    TMenuItem* Item = Wanted == scNone || !FReference->Owner ? nullptr : FindShortCut(FReference->Owner, Wanted);
    if (!Item)
        return false;
    PostMessageW(PopupList->Window, WM_COMMAND, Item->Command, 0);
    return true;
}
