#include "menus/MenuTracking.h"

#include "common/PointInRect.h"
#include "menus/MenuButton.h"
#include "menus/MenuForms.h"
#include "menus/MenuHooks.h"
#include "toolbar/DropDown.h"
#include "vcl/controls/WinControl.h"
#include "vcl/system/Guard.h"
#include "vcl/system/Scope.h"

#include <algorithm>

TMenuTracking& TMenuTracking::Get()
{
    // Never destroyed: buttons that are static variables may be destroyed after it.
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
        FOpensNext = false;
        WatchActivation(false);
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
        if (auto* Each = As<TkelMenuButton>(Bar->Controls[I]); Each && Each->IsOnScreen() && Each->Enabled)
            Found.push_back(Each);
    std::ranges::sort(Found, [](const TkelMenuButton* A, const TkelMenuButton* B) {
        return A->Top != B->Top ? A->Top < B->Top : A->Left < B->Left;
    });
    return Found;
}

void TMenuTracking::SetCurrent(TkelMenuButton* Button)
{
    TkelMenuButton* Before = std::exchange(FCurrent, Button);
    if (Before == Button)
        return;
    if (!Before || !Button)
        WatchActivation(Button != nullptr);
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
    FOpensNext = false;
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
    bool HasShown = std::exchange(FOpensNext, false); // a menu, before this one
    bool Stays = false;
    const TScopeExit AtEnd([&] {
        FTracking = false;
        FOpensNext = Stays;
        if (!Stays)
            Guarded(this, [this] { Leave(); }); // painting may fail
    });
    FTracking = true;
    FNext = Button;
    while (FNext) {
        Stays = false;
        SetCurrent(std::exchange(FNext, nullptr));
        const bool Shown = ShowMenu();
        Stays = HasShown && !Shown && FCurrent;
        HasShown |= Shown;
    }
}

// False when the button has nothing to show. OnClick of a button without a menu is a command, and not raised here. The
// button, its menu or its form may be gone after OnClick, and when the menu closes.
bool TMenuTracking::ShowMenu()
{
    if (!FCurrent->Menu)
        return false;
    FCurrent->TkelSpeedButton::Click();
    TPopupMenu* Menu = FCurrent ? FCurrent->Menu : nullptr;
    if (!Menu || !HasPlaceOnScreen(FCurrent))
        return false;
    FSelectedMenu = nullptr;
    FOnSubMenu = false;
    GetCursorPos(&FPointer);
    const TRaiseAtEnd ComesUp(FCurrent);
    FCurrent->Down = true;
    Menu->PopupComponent = FCurrent;
    const TPoint Place = FCurrent->DropPoint();
    Menu->Popup(Place.X, Place.Y);
    if (!FCurrent)
        return true;
    if (!FNext)
        DropPressOn(FCurrent);
    return !FCurrent->Menu || GetMenuItemCount(FCurrent->Menu->Handle) > 0;
}

void TMenuTracking::CloseMenu()
{
    if (FTracking)
        EndMenu();
}

// When the menu that is open has closed, the next one opens.
void TMenuTracking::GoOnTo(TkelMenuButton* Button)
{
    if (FTracking) {
        FNext = Button;
        CloseMenu();
        return;
    }
    SetCurrent(Button);
    if (FOpensNext && Button->Menu)
        OpenLater();
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
        if (!Button || Button != FCurrent)
            return true;
        if (!Button->Menu)
            Leave();
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

// When a submenu closes, the item that it belongs to is selected again. Not every system sends a message about that.
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

// When a menu opens or closes the system reports a move to where the pointer already is. That must not count: a menu
// that was opened by a key would close again when the pointer happens to be on another button.
void TMenuTracking::PointerMoved(const TPoint& Screen)
{
    const bool Follows = FTracking || FOpensNext;
    if (!Follows || !FCurrent || FNext || Screen == FPointer)
        return;
    FPointer = Screen;
    TCustomForm* Form = MenuFormOf(*FCurrent);
    for (TkelMenuButton* Button : FButtons) {
        if (Button == FCurrent || !Button->Enabled || !IsAmongMenusOf(Form, *Button))
            continue;
        if (Button->IsOnScreen() && PointInRect(Button->ScreenToClient(Screen), Button->ClientRect)) {
            GoOnTo(Button);
            return;
        }
    }
}

// A press anywhere ends the keyboard mode, as it does in the system's menu bars. An open menu
// handles presses itself.
void TMenuTracking::ButtonPressed()
{
    if (FCurrent && !FTracking)
        Leave();
}

// While a menu is open, its own loop decides when it ends.
void TMenuTracking::OtherWindowActivated()
{
    if (FCurrent && !FTracking)
        Leave();
}
