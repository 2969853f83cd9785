// TPopupList: all popup menus of the program and the hidden window that they share, which gets their commands.
#pragma once

#include "vcl/menus/PopupMenu.h"

#include <vector>

// True: the message is used up.
using TWindowHook = TEvent<bool(TMessage& Message)>;

class TPopupList : public TObject {
public:
    static TPopupList& Get();

    // Made when first asked for, and destroyed with the last popup menu.
    HWND GetWindow();
    PROPERTY_READ(HWND, Window);

    // Listener sees the window's messages before the menus do, the last added first. Adding twice calls twice; removing
    // takes out one, in any order, also while it is being called.
    void AddListener(const TWindowHook& Listener);
    void RemoveListener(const TWindowHook& Listener);

    // The text for the item that the user is on, empty when there is none.
    TEvent<void(const AnsiString& Hint)> OnHint;

private:
    friend class TPopupMenu;

    TPopupList() = default;

    void Add(TPopupMenu* Popup);
    void Remove(TPopupMenu* Popup);
    void WndProc(TMessage& Message);
    bool CallListeners(TMessage& Message);
    bool MenuMessage(TMessage& Message);
    TPopupMenu* MenuWith(uintptr_t Value, TFindItemKind Kind) const;

    HWND FWindow = nullptr;
    std::vector<TPopupMenu*> FMenus;
    std::vector<TWindowHook> FListeners;
};

// The only instance.
inline TPopupList* const PopupList = &TPopupList::Get();
