// Real mouse and keyboard input: events that go through the system's queue, with the message loop running.
#pragma once

#include "vcl/controls/ControlTypes.h"

#include <functional>

// Handles what is in the message queue, and returns.
void PumpMessages();
// From here on ProcessMessages does that: an application's own loop, which knows more than the system's. nullptr: the
// system's again.
void UseMessageLoop(void (*ProcessMessages)());
// Handles messages until Condition is true. False when that has not happened within the time.
bool PumpUntil(const std::function<bool()>& Condition, int Milliseconds = 5000);

// Moves the pointer to a point of the screen, or of a control; returns when the system has it there and the messages
// that follow are handled.
void MovePointer(const TPoint& Screen);
void MovePointerTo(TControl* Control, int X, int Y);
// To a corner of the screen, away from all windows of the tests.
void MovePointerAway();

void PressButton(TMouseButton Button = mbLeft);
void ReleaseButton(TMouseButton Button = mbLeft);
// Press and release.
void ClickButton(TMouseButton Button = mbLeft);

// A virtual key down and up, with the modifiers of Shift (ssShift, ssAlt, ssCtrl) held.
void TypeKey(uint16_t Key, TShiftState Shift = {});
