#include "vcl/menus/PopupList.h"

#include "vcl/menus/PopupMenu.h"
#include "vcl/menus/UtilityWindow.h"

#include <algorithm>

TPopupList& TPopupList::Get()
{
    // Never destroyed: menus that are static variables may be destroyed after it.
    static TPopupList& List = *new TPopupList;
    return List;
}

HWND TPopupList::GetWindow()
{
    if (!FWindow)
        FWindow = AllocateHWnd({this, &TPopupList::WndProc});
    return FWindow;
}

void TPopupList::Add(TPopupMenu* Popup)
{
    FMenus.push_back(Popup);
}

void TPopupList::Remove(TPopupMenu* Popup)
{
    std::erase(FMenus, Popup);
    if (!FMenus.empty())
        return;
    DeallocateHWnd(FWindow);
    FWindow = nullptr;
}

void TPopupList::AddListener(const TWindowHook& Listener)
{
    FListeners.push_back(Listener);
}

void TPopupList::RemoveListener(const TWindowHook& Listener)
{
    const auto Found = std::find(FListeners.rbegin(), FListeners.rend(), Listener);
    if (Found != FListeners.rend())
        FListeners.erase(std::next(Found).base());
}

bool TPopupList::CallListeners(TMessage& Message)
{
    for (size_t I = FListeners.size(); I-- > 0;) {
        if (I >= FListeners.size())
            continue; // Listeners were removed while others were called.
        const TWindowHook Listener = FListeners[I];
        if (Listener(Message))
            return true;
    }
    return false;
}

void TPopupList::WndProc(TMessage& Message)
{
    HWND Window = FWindow;
    if (!CallListeners(Message) && !MenuMessage(Message))
        DefaultWindowProc(Window, Message);
}

bool TPopupList::MenuMessage(TMessage& Message)
{
    switch (Message.Msg) {
    // A handler may delete menus, so nothing is used after one was called.
    case WM_COMMAND:
        if (TPopupMenu* Menu = MenuWith(static_cast<uintptr_t>(Message.WParamLo()), fkCommand))
            return Menu->DispatchCommand(static_cast<uint16_t>(Message.WParamLo()));
        return false;
    case WM_INITMENUPOPUP:
        if (TPopupMenu* Menu = MenuWith(Message.WParam, fkHandle))
            return Menu->DispatchPopup(reinterpret_cast<HMENU>(Message.WParam));
        return false;
    case WM_MENUSELECT: {
        AnsiString Hint;
        for (TPopupMenu* Menu : FMenus)
            if (Hint.empty())
                Hint = Menu->HintOf(Message);
        OnHint(Hint);
        return false;
    }
    default:
        // A handler may delete menus, so nothing is used after one was called.
        for (size_t I = 0; I < FMenus.size(); ++I)
            if (FMenus[I]->DispatchDrawing(Message))
                return true;
        return false;
    }
}

TPopupMenu* TPopupList::MenuWith(uintptr_t Value, TFindItemKind Kind) const
{
    const auto Found = std::ranges::find_if(FMenus, [=](TPopupMenu* Menu) { return Menu->FindItem(Value, Kind); });
    return Found == FMenus.end() ? nullptr : *Found;
}
