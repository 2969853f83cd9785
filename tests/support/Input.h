// Real mouse and keyboard input for tests, with the messages that follow handled.
#pragma once

#include "robot/SystemInput.h"

// Moves the pointer to a point of the screen, or of a control; returns when the system has it there and the messages
// that follow are handled. It is a failure of the test when the pointer does not get there.
void MovePointer(const TPoint& Screen);
void MovePointerTo(TControl* Control, int X, int Y);
// To a corner of the screen, away from all windows of the tests.
void MovePointerAway();

void PressButton(TMouseButton Button = mbLeft);
void ReleaseButton(TMouseButton Button = mbLeft);
// Press and release.
void ClickButton(TMouseButton Button = mbLeft);

void ClickExtraButton();
// By WHEEL_DELTA for each notch, away from the user or (Horizontal) to the right.
void TurnWheel(int Delta, bool Horizontal = false);

// A virtual key down and up, with the modifiers of Shift (ssShift, ssAlt, ssCtrl) held.
void TypeKey(uint16_t Key, TShiftState Shift = {});
