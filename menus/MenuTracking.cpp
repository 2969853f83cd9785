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
constexpr UINT OpenLetter = WM_APP + 0x3E2;
constexpr intptr_t Released = intptr_t{1} << 31;
constexpr intptr_t WasDown = intptr_t{1} << 30;
constexpr intptr_t AltHeld = intptr_t{1} << 29;

// The character of a key on the user's keyboard layout, without the modifiers; 0 when it has none.
uint16_t CharOf(uint16_t VirtualKey)
{
    constexpr UINT KeepState = 4; // of the dead key that may be waiting for its letter
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

// A bar may lie in a dock that is hidden.
bool IsOnScreen(const TkelMenuButton& Button)
{
    const TWinControl* Bar = Button.Parent;
    return Button.Visible && Bar && Bar->HandleAllocated() && IsWindowVisible(Button.Parent->Handle);
}

// The form that a component belongs to, be it by way of a frame; nullptr when there is none.
TCustomForm* FormOf(TComponent* Component)
{
    while (Component && !As<TCustomForm>(Component))
        Component = Component->Owner;
    return As<TCustomForm>(Component);
}

// The form that has the menus while Form is active: the menus of an MDI child are with its parent's, and a frame in
// which a bar floats is part of the form that the bar has left.
TCustomForm* MenuFormOf(TCustomForm* Form)
{
    if (const auto* Frame = As<TFPForm97>(Form); Frame && Frame->ToolBar)
        Form = FormOf(Frame->ToolBar->Owner);
    return Form && Form->FormStyle == fsMDIChild ? Application->MainForm : Form;
}

TCustomForm* ActiveMenuForm()
{
    return MenuFormOf(Screen->ActiveCustomForm);
}

// The forms whose menus are those of MenuForm: itself, and its active MDI child, which comes first.
std::vector<TCustomForm*> FormsWithMenusOf(TCustomForm* MenuForm)
{
    std::vector<TCustomForm*> Forms;
    if (MenuForm && MenuForm->FormStyle == fsMDIForm && MenuForm->ActiveMDIChild)
        Forms.push_back(MenuForm->ActiveMDIChild);
    if (MenuForm)
        Forms.push_back(MenuForm);
    return Forms;
}

bool IsAmongMenusOf(TCustomForm* MenuForm, const TkelMenuButton& Button)
{
    const std::vector<TCustomForm*> Forms = FormsWithMenusOf(MenuForm);
    return std::ranges::find(Forms, FormOf(Button.Owner)) != Forms.end();
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

TkelMenuButton* TMenuTracking::FindByLetter(const TkelMenuButton* Bar, uint16_t Char) const
{
    for (TkelMenuButton* Button : Neighbours(Bar))
        if (Char && IsAccel(Char, Button->Caption))
            return Button;
    return nullptr;
}

// Where the keyboard begins in the active form: the reference button if it is there, else the youngest that is.
TkelMenuButton* TMenuTracking::Start() const
{
    TCustomForm* Form = ActiveMenuForm();
    const auto CanStart = [Form](const TkelMenuButton* Button) {
        return Button && IsOnScreen(*Button) && IsAmongMenusOf(Form, *Button);
    };
    if (CanStart(FReference))
        return FReference;
    const auto Found = std::find_if(FButtons.rbegin(), FButtons.rend(), CanStart);
    return Found == FButtons.rend() ? nullptr : *Found;
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

// The button, its menu or its form may be gone after OnClick, and when the menu closes.
void TMenuTracking::ShowMenu()
{
    FCurrent->TkelSpeedButton::Click();
    TPopupMenu* Menu = FCurrent ? FCurrent->Menu : nullptr;
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
    if (Message.Msg == OpenLetter) {
        OpenByLetter(static_cast<uint16_t>(Message.WParam), Message.LParam);
        return true;
    }
    if (Message.Msg == WM_ACTIVATEAPP && !Message.WParam)
        Leave();
    if (Message.Msg == WM_MENUSELECT && Message.LParam) {
        FSelectedMenu = reinterpret_cast<HMENU>(Message.LParam);
        FOnSubMenu = (Message.WParamHi() & MF_POPUP) != 0;
    }
    if (Message.Msg == WM_UNINITMENUPOPUP)
        SubMenuCloses(Message.WParam);
    return false;
}

// Not every system tells that the selection is back on the item that the submenu belongs to.
void TMenuTracking::SubMenuCloses(uintptr_t Handle)
{
    TPopupMenu* Menu = FCurrent ? FCurrent->Menu : nullptr;
    TMenuItem* Item =
        Menu && FSelectedMenu == reinterpret_cast<HMENU>(Handle) ? Menu->FindItem(Handle, fkHandle) : nullptr;
    if (!Item || !Item->Parent)
        return;
    FSelectedMenu = Item->Parent->Handle;
    FOnSubMenu = true;
}

// ---- the mouse

// When a menu opens or closes the system tells of a move that was none: a menu opened by a key would go at once.
void TMenuTracking::PointerMoved(const TPoint& Screen)
{
    if (!FTracking || !FCurrent || FNext || Screen == FPointer)
        return;
    FPointer = Screen;
    TCustomForm* Owner = FormOf(FCurrent->Owner);
    TCustomForm* Form = Owner ? MenuFormOf(Owner) : ActiveMenuForm();
    for (TkelMenuButton* Button : FButtons) {
        if (Button == FCurrent || !Button->Menu || !Button->Enabled || !IsAmongMenusOf(Form, *Button))
            continue;
        if (IsOnScreen(*Button) && PointInRect(Button->ScreenToClient(Screen), Button->ClientRect)) {
            GoOnTo(Button);
            return;
        }
    }
}

// A press anywhere ends the keyboard mode, as it does in the system's menu bars. An open menu sees to itself.
void TMenuTracking::ButtonPressed()
{
    if (FCurrent && !FTracking)
        Leave();
}

// ---- the keyboard

bool TMenuTracking::Key(uint16_t VirtualKey, intptr_t KeyData)
{
    TCustomForm* Form = ActiveMenuForm();
    if (std::ranges::none_of(FButtons, [Form](const auto* Button) { return IsAmongMenusOf(Form, *Button); }))
        return false;
    if (VirtualKey != VK_MENU) {
        FAltAlone = false;
        return !(KeyData & Released) && PressKey(VirtualKey, KeyData);
    }
    if (KeyData & Released)
        return ReleaseAlt();
    // With AltGr the system presses Ctrl, too.
    if (!(KeyData & WasDown))
        FAltAlone = !IsHeld(VK_CONTROL) && !IsHeld(VK_SHIFT);
    return FCurrent != nullptr;
}

// A release that is not used up takes the system to its own menu.
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
    if (TkelMenuButton* Button = FindByLetter(FCurrent, Char)) {
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
    if (Wanted == scNone)
        return false;
    for (TCustomForm* Form : FormsWithMenusOf(ActiveMenuForm()))
        if (TMenuItem* Item = FindShortCut(Form, Wanted)) {
            PostMessageW(PopupList->Window, WM_COMMAND, Item->Command, 0);
            return true;
        }
    return (KeyData & AltHeld) && !IsHeld(VK_CONTROL) && LetterElsewhere(CharOf(VirtualKey), KeyData);
}

// Alt and the letter of a button. Those that lie in the active form itself hear of it as other controls do.
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
