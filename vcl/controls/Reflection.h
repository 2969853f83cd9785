// Reflection: a notification that a child window sends to its parent goes back to the child's control, under its number
// plus CN_BASE.
#pragma once

#include "vcl/system/Message.h"

// False when Message is no notification from a window of a control.
bool ReflectNotification(TMessage& Message);
