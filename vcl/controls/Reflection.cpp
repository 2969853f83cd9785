#include "vcl/controls/Reflection.h"

#include "vcl/controls/WinControl.h"

bool ReflectNotification(TMessage& Message)
{
    HWND Child = nullptr;
    switch (Message.Msg) {
    case WM_NOTIFY: Child = reinterpret_cast<NMHDR*>(Message.LParam)->hwndFrom; break;
    case WM_DRAWITEM: Child = reinterpret_cast<DRAWITEMSTRUCT*>(Message.LParam)->hwndItem; break;
    case WM_COMPAREITEM: Child = reinterpret_cast<COMPAREITEMSTRUCT*>(Message.LParam)->hwndItem; break;
    case WM_DELETEITEM: Child = reinterpret_cast<DELETEITEMSTRUCT*>(Message.LParam)->hwndItem; break;
    case WM_MEASUREITEM: {
        // This message has no window handle: controls that measure items use their handle as their identifier.
        auto* Item = reinterpret_cast<MEASUREITEMSTRUCT*>(Message.LParam);
        if (Item->CtlType == ODT_MENU)
            return false;
        Child = reinterpret_cast<HWND>(static_cast<intptr_t>(static_cast<int32_t>(Item->CtlID)));
        break;
    }
    case WM_PARENTNOTIFY:
        if (Message.WParamLo() != WM_CREATE && Message.WParamLo() != WM_DESTROY)
            return false;
        [[fallthrough]];
    default: Child = reinterpret_cast<HWND>(Message.LParam);
    }
    TWinControl* Control = FindControl(Child);
    if (!Control)
        return false;
    Message.Result = Control->Perform(CN_BASE + Message.Msg, Message.WParam, Message.LParam);
    return true;
}
