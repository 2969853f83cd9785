// How assistive technology sees the controls that draw themselves: the system's accessibility interface, answered with
// their AccessibleName, -Role and -State.
#pragma once

#include "vcl/system/WindowsApi.h"

class TWinControl;

// The result of WM_GETOBJECT for the client area of Control's window. 0: the system answers by itself. What the
// control does not say, such as its place and its neighbours, comes from the system's own object for the window. The
// object may live longer than the control; it says then that it is not connected any more.
LRESULT AccessibleObjectOf(TWinControl& Control, WPARAM WParam, LPARAM LParam);
