#include "robot/SystemInput.h"

namespace {

void (*MessageLoop)() = nullptr;

void SendMouse(DWORD Flags, const TPoint& Place = {}, int Data = 0)
{
    INPUT Input = {};
    Input.type = INPUT_MOUSE;
    Input.mi.dwFlags = Flags;
    Input.mi.dx = Place.x;
    Input.mi.dy = Place.y;
    Input.mi.mouseData = static_cast<DWORD>(Data);
    SendInput(1, &Input, sizeof(Input));
}

// A pixel in the units of absolute movements: the middle of what the system rounds to it.
LONG Normalized(int Pixel, int SizeMetric)
{
    return static_cast<LONG>((int64_t{Pixel} * 65536 + 32768) / GetSystemMetrics(SizeMetric));
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

void UseMessageLoop(void (*ProcessMessages)())
{
    MessageLoop = ProcessMessages;
}

bool PumpUntil(const std::function<bool()>& Condition, int Milliseconds)
{
    const ULONGLONG Deadline = GetTickCount64() + Milliseconds;
    for (;;) {
        PumpMessages();
        if (Condition())
            return true;
        const ULONGLONG Now = GetTickCount64();
        if (Now >= Deadline)
            return false;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(std::min<ULONGLONG>(Deadline - Now, 20)),
                                  QS_ALLINPUT);
    }
}

bool MovePointerUntil(const TPoint& Screen, const std::function<bool()>& Noticed, int Milliseconds)
{
    const auto Move = [&] {
        SendMove(Screen);
        SettleDesktop();
        PumpMessages();
        TPoint Now;
        return GetCursorPos(&Now) && Now == Screen && Noticed();
    };
    return PumpUntil(Move, Milliseconds);
}

TPoint FarCorner()
{
    return {GetSystemMetrics(SM_CXSCREEN) - 2, GetSystemMetrics(SM_CYSCREEN) - 2};
}

void SendMove(const TPoint& Screen)
{
    SendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE,
              {Normalized(Screen.x, SM_CXSCREEN), Normalized(Screen.y, SM_CYSCREEN)});
}

void SendButton(TMouseButton Button, bool Down)
{
    constexpr DWORD DownFlags[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_MIDDLEDOWN};
    constexpr DWORD UpFlags[] = {MOUSEEVENTF_LEFTUP, MOUSEEVENTF_RIGHTUP, MOUSEEVENTF_MIDDLEUP};
    SendMouse((Down ? DownFlags : UpFlags)[Button]);
}

void SendExtraButton(bool Down)
{
    SendMouse(Down ? MOUSEEVENTF_XDOWN : MOUSEEVENTF_XUP, {}, XBUTTON1);
}

void SendWheel(int Delta, bool Horizontal)
{
    SendMouse(Horizontal ? MOUSEEVENTF_HWHEEL : MOUSEEVENTF_WHEEL, {}, Delta);
}

void SendKeyState(uint16_t Key, bool Down)
{
    INPUT Input = {};
    Input.type = INPUT_KEYBOARD;
    Input.ki.wVk = Key;
    Input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(Key, MAPVK_VK_TO_VSC));
    Input.ki.dwFlags = Down ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &Input, sizeof(Input));
}

void SendLetter(wchar_t Letter)
{
    INPUT Inputs[2] = {};
    for (INPUT& Input : Inputs) {
        Input.type = INPUT_KEYBOARD;
        Input.ki.wScan = Letter;
        Input.ki.dwFlags = KEYEVENTF_UNICODE;
    }
    Inputs[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    SendInput(2, Inputs, sizeof(INPUT));
}

void SendKey(uint16_t Key, TShiftState Shift)
{
    constexpr std::pair<TShiftStateFlag, uint16_t> Modifiers[] = {
        {ssShift, VK_SHIFT}, {ssCtrl, VK_CONTROL}, {ssAlt, VK_MENU}};
    for (const auto& [Flag, Modifier] : Modifiers)
        if (Shift.Contains(Flag))
            SendKeyState(Modifier, true);
    SendKeyState(Key, true);
    SendKeyState(Key, false);
    for (const auto& [Flag, Modifier] : Modifiers)
        if (Shift.Contains(Flag))
            SendKeyState(Modifier, false);
}
