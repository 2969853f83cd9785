// Events of a mouse and a keyboard that go through the system's queue as a user's do, and the wait for what they bring
// about. For tests, and for programs that show themselves.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/graphics/Types.h"

#include <functional>

// Handles what is in the message queue, and returns.
void PumpMessages();
// From here on ProcessMessages does that: an application's own loop, which knows more than the system's. nullptr: the
// system's again.
void UseMessageLoop(void (*ProcessMessages)());
// Handles messages until Condition is true. False when that has not happened within the time.
bool PumpUntil(const std::function<bool()>& Condition, int Milliseconds = 5000);

// Moves the pointer to a pixel of the screen, as often as it takes until the system has it there and Noticed, which is
// asked after the messages that follow are handled, is true. False when that has not happened within the time.
bool MovePointerUntil(const TPoint& Screen, const std::function<bool()>& Noticed, int Milliseconds = 5000);
// The corner of the screen that windows are least likely to reach.
TPoint FarCorner();

// These handle no messages: what they lead to may have a message loop of its own, such as a menu's.
void SendMove(const TPoint& Screen);
void SendButton(TMouseButton Button, bool Down);
// The first of the extra buttons ("back").
void SendExtraButton(bool Down);
// WHEEL_DELTA is one notch, away from the user or (Horizontal) to the right.
void SendWheel(int Delta, bool Horizontal = false);
void SendKeyState(uint16_t Key, bool Down);
// A character that needs no key of the keyboard's layout.
void SendLetter(wchar_t Letter);
// A virtual key down and up, with the modifiers of Shift (ssShift, ssAlt, ssCtrl) held.
void SendKey(uint16_t Key, TShiftState Shift = {});
