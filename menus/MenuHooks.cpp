#include "menus/MenuHooks.h"

#include "menus/MenuTracking.h"
#include "vcl/graphics/Handle.h"
#include "vcl/system/Scope.h"

namespace {

using THook = TOwnedHandle<HHOOK, UnhookWindowsHookEx>;
THook MouseHook;
THook KeyboardHook;

// The loop of a menu looks at a key before it takes it, and the hook is called for both. What was decided first holds.
struct TDecision {
    WPARAM Key = 0;
    LPARAM Data = 0;
    bool Used = false;
    bool Pending = false;
};
TDecision Decision;

bool IsPress(WPARAM Message)
{
    switch (Message) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN: return true;
    default: return false;
    }
}

LRESULT CALLBACK MouseProc(int Code, WPARAM WParam, LPARAM LParam)
{
    const LRESULT Result = CallNextHookEx(MouseHook.Get(), Code, WParam, LParam);
    if (Code >= 0)
        MenuButtonsSeeMouse(WParam, LParam);
    return Result;
}

LRESULT CALLBACK KeyboardProc(int Code, WPARAM WParam, LPARAM LParam)
{
    const LRESULT Result = CallNextHookEx(KeyboardHook.Get(), Code, WParam, LParam);
    if (Code < 0)
        return Result;
    const bool Again = Decision.Pending && Decision.Key == WParam && Decision.Data == LParam;
    if (!Again)
        Decision = {WParam, LParam, TMenuTracking::Get().Key(static_cast<uint16_t>(WParam), LParam), true};
    Decision.Pending = Code == HC_NOREMOVE;
    return Decision.Used ? 1 : Result;
}

} // namespace

void MenuButtonsSeeMouse(WPARAM Message, LPARAM Data)
{
    static bool IsLooking = false; // what follows may bring the next one
    if (IsLooking)
        return;
    const TScopedValue Looking(IsLooking, true, false);
    if (Message == WM_MOUSEMOVE)
        TMenuTracking::Get().PointerMoved(reinterpret_cast<const MOUSEHOOKSTRUCT*>(Data)->pt);
    else if (IsPress(Message))
        TMenuTracking::Get().ButtonPressed();
}

void InstallMenuHooks()
{
    // All threads' hooks would bring the program's file into other programs.
    const DWORD Thread = GetCurrentThreadId();
    MouseHook.Reset(SetWindowsHookExW(WH_MOUSE, &MouseProc, nullptr, Thread));
    KeyboardHook.Reset(SetWindowsHookExW(WH_KEYBOARD, &KeyboardProc, nullptr, Thread));
}

void RemoveMenuHooks()
{
    MouseHook.Reset();
    KeyboardHook.Reset();
    Decision = {};
}
