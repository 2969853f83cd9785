#include "menus/MenuHooks.h"

#include "menus/MenuTracking.h"
#include "vcl/graphics/Handle.h"
#include "vcl/system/Guard.h"
#include "vcl/system/Scope.h"

namespace {

using THook = TOwnedHandle<HHOOK, UnhookWindowsHookEx>;
THook MouseHook;
THook KeyboardHook;
THook ActivationHook;

// A menu loop peeks at a key message before it removes it from the queue, and the hook is called both times. What the
// first call decided holds for the second.
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
        Guarded(&TMenuTracking::Get(), [&] { MenuButtonsSeeMouse(WParam, LParam); });
    return Result;
}

LRESULT CALLBACK KeyboardProc(int Code, WPARAM WParam, LPARAM LParam)
{
    const LRESULT Result = CallNextHookEx(KeyboardHook.Get(), Code, WParam, LParam);
    if (Code < 0)
        return Result;
    const bool Again = Decision.Pending && Decision.Key == WParam && Decision.Data == LParam;
    if (!Again) {
        Decision = {WParam, LParam};
        TMenuTracking& Tracking = TMenuTracking::Get();
        // A key whose handling failed is used up.
        if (!Guarded(&Tracking, [&] { Decision.Used = Tracking.Key(static_cast<uint16_t>(WParam), LParam); }))
            Decision.Used = true;
    }
    Decision.Pending = Code == HC_NOREMOVE;
    return Decision.Used ? 1 : Result;
}

LRESULT CALLBACK ActivationProc(int Code, WPARAM WParam, LPARAM LParam)
{
    if (Code == HCBT_ACTIVATE)
        Guarded(&TMenuTracking::Get(), [] { TMenuTracking::Get().OtherWindowActivated(); });
    return CallNextHookEx(ActivationHook.Get(), Code, WParam, LParam);
}

} // namespace

void MenuButtonsSeeMouse(WPARAM Message, LPARAM Data)
{
    static bool IsLooking = false; // to close a menu may bring another mouse message
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
    // A hook for all threads would load the program's file into other programs.
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

void WatchActivation(bool Watch)
{
    ActivationHook.Reset(Watch ? SetWindowsHookExW(WH_CBT, &ActivationProc, nullptr, GetCurrentThreadId()) : nullptr);
}
