// The framework's own messages and typed views of the window messages that handlers take.
#pragma once

#include "vcl/graphics/Types.h"
#include "vcl/system/Message.h"
#include "vcl/system/Property.h"
#include "vcl/system/WindowsApi.h"

// Sent between controls. LParam and WParam are 0 unless said otherwise.
enum : uint32_t {
    CM_BASE = 0xB000,
    CM_ACTIVATE = CM_BASE + 0,
    CM_DEACTIVATE = CM_BASE + 1,
    CM_CANCELMODE = CM_BASE + 4, // LParam: the control that was pressed
    CM_DIALOGKEY = CM_BASE + 5,  // WParam: the virtual key; to the form, then to every control
    CM_DIALOGCHAR = CM_BASE + 6, // WParam: the character (UTF-16)
    CM_FOCUSCHANGED = CM_BASE + 7,
    CM_PARENTFONTCHANGED = CM_BASE + 8,
    CM_PARENTCOLORCHANGED = CM_BASE + 9,
    CM_HITTEST = CM_BASE + 10, // LParam: the point in the control; result not 0: hit
    CM_VISIBLECHANGED = CM_BASE + 11,
    CM_ENABLEDCHANGED = CM_BASE + 12,
    CM_COLORCHANGED = CM_BASE + 13,
    CM_FONTCHANGED = CM_BASE + 14,
    CM_CURSORCHANGED = CM_BASE + 15,
    CM_CTL3DCHANGED = CM_BASE + 16,
    CM_PARENTCTL3DCHANGED = CM_BASE + 17,
    CM_TEXTCHANGED = CM_BASE + 18,
    CM_MOUSEENTER = CM_BASE + 19, // LParam: 0, or the child control that the pointer entered
    CM_MOUSELEAVE = CM_BASE + 20,
    CM_MENUCHANGED = CM_BASE + 21,
    CM_APPKEYDOWN = CM_BASE + 22,
    CM_APPSYSCOMMAND = CM_BASE + 23,
    CM_BUTTONPRESSED = CM_BASE + 24, // WParam: the group; LParam: the button
    CM_SHOWINGCHANGED = CM_BASE + 25,
    CM_ENTER = CM_BASE + 26,
    CM_EXIT = CM_BASE + 27,
    CM_DESIGNHITTEST = CM_BASE + 28,
    CM_ICONCHANGED = CM_BASE + 29,
    CM_WANTSPECIALKEY = CM_BASE + 30, // WParam: the virtual key; result not 0: the control wants it
    CM_RELEASE = CM_BASE + 33,
    CM_SHOWHINTCHANGED = CM_BASE + 34,
    CM_PARENTSHOWHINTCHANGED = CM_BASE + 35,
    CM_SYSCOLORCHANGE = CM_BASE + 36,
    CM_WININICHANGE = CM_BASE + 37,
    CM_FONTCHANGE = CM_BASE + 38,
    CM_TABSTOPCHANGED = CM_BASE + 40,
    CM_CONTROLLISTCHANGE = CM_BASE + 44, // WParam: the control; LParam: 1 inserted, 0 removed
    CM_CHILDKEY = CM_BASE + 46,
    CM_DRAG = CM_BASE + 47,
    CM_HINTSHOW = CM_BASE + 48, // LParam: THintInfo*; result not 0: no hint
    CM_ISTOOLCONTROL = CM_BASE + 50,
    CM_RECREATEWND = CM_BASE + 51,
    CM_INVALIDATE = CM_BASE + 52,
    CM_CONTROLCHANGE = CM_BASE + 54, // as CM_CONTROLLISTCHANGE, but after inserting or before removing
    CM_CHANGED = CM_BASE + 55,
    CM_BORDERCHANGED = CM_BASE + 60,

    // A notification that a child window sent to its parent comes back to the child under its number plus CN_BASE.
    CN_BASE = 0xBC00,
    CN_CTLCOLORMSGBOX = CN_BASE + WM_CTLCOLORMSGBOX,
    CN_CTLCOLOREDIT = CN_BASE + WM_CTLCOLOREDIT,
    CN_CTLCOLORLISTBOX = CN_BASE + WM_CTLCOLORLISTBOX,
    CN_CTLCOLORBTN = CN_BASE + WM_CTLCOLORBTN,
    CN_CTLCOLORDLG = CN_BASE + WM_CTLCOLORDLG,
    CN_CTLCOLORSCROLLBAR = CN_BASE + WM_CTLCOLORSCROLLBAR,
    CN_CTLCOLORSTATIC = CN_BASE + WM_CTLCOLORSTATIC,
    CN_CHARTOITEM = CN_BASE + WM_CHARTOITEM,
    CN_COMMAND = CN_BASE + WM_COMMAND,
    CN_COMPAREITEM = CN_BASE + WM_COMPAREITEM,
    CN_DELETEITEM = CN_BASE + WM_DELETEITEM,
    CN_DRAWITEM = CN_BASE + WM_DRAWITEM,
    CN_HSCROLL = CN_BASE + WM_HSCROLL,
    CN_MEASUREITEM = CN_BASE + WM_MEASUREITEM,
    CN_PARENTNOTIFY = CN_BASE + WM_PARENTNOTIFY,
    CN_VKEYTOITEM = CN_BASE + WM_VKEYTOITEM,
    CN_VSCROLL = CN_BASE + WM_VSCROLL,
    CN_NOTIFY = CN_BASE + WM_NOTIFY,
    CN_KEYDOWN = CN_BASE + WM_KEYDOWN,
    CN_KEYUP = CN_BASE + WM_KEYUP,
    CN_CHAR = CN_BASE + WM_CHAR,
    CN_SYSKEYDOWN = CN_BASE + WM_SYSKEYDOWN,
    CN_SYSCHAR = CN_BASE + WM_SYSCHAR,
};

// Typed views add no state: a handler may take any of them in place of TMessage.

struct TWMMouse : TMessage {
    int GetXPos() const { return LParamLo(); }
    int GetYPos() const { return LParamHi(); }
    TPoint GetPos() const { return {LParamLo(), LParamHi()}; }
    PROPERTY_READ(int, XPos);
    PROPERTY_READ(int, YPos);
    PROPERTY_READ(TPoint, Pos);
    // MK_... flags.
    unsigned Keys() const { return static_cast<unsigned>(WParamLo()); }
};

struct TWMKey : TMessage {
    uint16_t GetCharCode() const { return static_cast<uint16_t>(WParam); }
    void SetCharCode(uint16_t Value) { WParam = Value; }
    PROPERTY(uint16_t, CharCode);
    intptr_t KeyData() const { return LParam; }
};
using TCMDialogChar = TWMKey;
using TCMDialogKey = TWMKey;

struct TWMSize : TMessage {
    int Width() const { return static_cast<uint16_t>(LParam); }
    int Height() const { return static_cast<uint16_t>(LParam >> 16); }
};

struct TWMWindowPosChanged : TMessage {
    WINDOWPOS& WindowPos() const { return *reinterpret_cast<WINDOWPOS*>(LParam); }
};

struct TWMCommand : TMessage {
    int ItemID() const { return WParamLo(); }
    int NotifyCode() const { return WParamHi(); }
    HWND Ctl() const { return reinterpret_cast<HWND>(LParam); }
};
