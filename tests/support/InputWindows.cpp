#include "tests/support/Input.h"

#include "vcl/controls/Control.h"

#include <gtest/gtest.h>

namespace {

void (*MessageLoop)() = nullptr;

void HandleMessages()
{
    if (MessageLoop) {
        MessageLoop();
        return;
    }
    MSG Message;
    while (PeekMessageW(&Message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&Message);
        DispatchMessageW(&Message);
    }
}

void SendMouse(DWORD Flags, LONG X = 0, LONG Y = 0)
{
    INPUT Input = {};
    Input.type = INPUT_MOUSE;
    Input.mi.dwFlags = Flags;
    Input.mi.dx = X;
    Input.mi.dy = Y;
    SendInput(1, &Input, sizeof(Input));
}

void SendKey(uint16_t Key, bool Up)
{
    INPUT Input = {};
    Input.type = INPUT_KEYBOARD;
    Input.ki.wVk = Key;
    Input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(Key, MAPVK_VK_TO_VSC));
    Input.ki.dwFlags = Up ? KEYEVENTF_KEYUP : 0;
    SendInput(1, &Input, sizeof(Input));
}

// A pixel in the units of absolute movements, in the middle of what the system rounds to it.
LONG Normalized(int Pixel, int Size)
{
    return static_cast<LONG>((int64_t{Pixel} * 65536 + 32768) / Size);
}

// The desktop may be another program's. Where it hears of the pointer later than we do, it reports a place that the
// pointer has left already; so it gets the time to handle what it has.
void SettleDesktop()
{
    for (int I = 0; I < 2; ++I) {
        DWORD_PTR Result;
        SendMessageTimeoutW(GetDesktopWindow(), WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 1000, &Result);
    }
}

} // namespace

void PumpMessages()
{
    HandleMessages();
}

void UseMessageLoop(void (*ProcessMessages)())
{
    MessageLoop = ProcessMessages;
}

bool PumpUntil(const std::function<bool()>& Condition, int Milliseconds)
{
    const ULONGLONG Deadline = GetTickCount64() + Milliseconds;
    for (;;) {
        HandleMessages();
        if (Condition())
            return true;
        const ULONGLONG Now = GetTickCount64();
        if (Now >= Deadline)
            return false;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(std::min<ULONGLONG>(Deadline - Now, 20)),
                                  QS_ALLINPUT);
    }
}

void MovePointer(const TPoint& Screen)
{
    const auto IsThere = [&] {
        TPoint Now;
        return GetCursorPos(&Now) && Now == Screen;
    };
    EXPECT_TRUE(PumpUntil([&] {
        SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, Normalized(Screen.x, GetSystemMetrics(SM_CXSCREEN)),
                  Normalized(Screen.y, GetSystemMetrics(SM_CYSCREEN)));
        SettleDesktop();
        return IsThere();
    })) << "the pointer does not move to "
        << Screen;
    PumpMessages();
}

void MovePointerTo(TControl* Control, int X, int Y)
{
    MovePointer(Control->ClientToScreen(TPoint(X, Y)));
}

void MovePointerAway()
{
    MovePointer({GetSystemMetrics(SM_CXSCREEN) - 2, GetSystemMetrics(SM_CYSCREEN) - 2});
}

void PressButton(TMouseButton Button)
{
    constexpr DWORD Down[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_MIDDLEDOWN};
    SendMouse(Down[Button]);
    HandleMessages();
}

void ReleaseButton(TMouseButton Button)
{
    constexpr DWORD Up[] = {MOUSEEVENTF_LEFTUP, MOUSEEVENTF_RIGHTUP, MOUSEEVENTF_MIDDLEUP};
    SendMouse(Up[Button]);
    HandleMessages();
}

void ClickButton(TMouseButton Button)
{
    PressButton(Button);
    ReleaseButton(Button);
}

void TypeKey(uint16_t Key, TShiftState Shift)
{
    constexpr std::pair<TShiftStateFlag, uint16_t> Modifiers[] = {
        {ssShift, VK_SHIFT}, {ssCtrl, VK_CONTROL}, {ssAlt, VK_MENU}};
    for (const auto& [Flag, Modifier] : Modifiers)
        if (Shift.Contains(Flag))
            SendKey(Modifier, false);
    SendKey(Key, false);
    SendKey(Key, true);
    for (const auto& [Flag, Modifier] : Modifiers)
        if (Shift.Contains(Flag))
            SendKey(Modifier, true);
    HandleMessages();
}
