// Displays come and go between runs of a program: what was saved may lie where none is now.
#pragma once

#include "vcl/forms/Form.h"

// Moves the form to the nearest display when none shows any of its caption, taken as CaptionHeight pixels high. The
// upper left corner of the form is then on that display. Forms that lie on another one stay where they are.
void BringCaptionInSight(TForm& Form, int CaptionHeight);
