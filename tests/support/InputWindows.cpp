#include "tests/support/Input.h"

#include "vcl/controls/Control.h"

#include <gtest/gtest.h>

void MovePointer(const TPoint& Screen)
{
    EXPECT_TRUE(MovePointerUntil(Screen, [] { return true; })) << "the pointer does not move to " << Screen;
    PumpMessages();
}

void MovePointerTo(TControl* Control, int X, int Y)
{
    MovePointer(Control->ClientToScreen(TPoint(X, Y)));
}

void MovePointerAway()
{
    MovePointer(FarCorner());
}

void PressButton(TMouseButton Button)
{
    SendButton(Button, true);
    PumpMessages();
}

void ReleaseButton(TMouseButton Button)
{
    SendButton(Button, false);
    PumpMessages();
}

void ClickButton(TMouseButton Button)
{
    PressButton(Button);
    ReleaseButton(Button);
}

void ClickExtraButton()
{
    SendExtraButton(true);
    PumpMessages();
    SendExtraButton(false);
    PumpMessages();
}

void TurnWheel(int Delta, bool Horizontal)
{
    SendWheel(Delta, Horizontal);
    PumpMessages();
}

void TypeKey(uint16_t Key, TShiftState Shift)
{
    SendKey(Key, Shift);
    PumpMessages();
}
