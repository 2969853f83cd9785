// TMouseRouter: passes the mouse messages of a window on to its windowless children, and finds out which control the
// pointer is over. Handlers may delete the window; both functions answer true then.
#pragma once

#include "vcl/controls/Messages.h"

class TControl;
class TWinControl;

class TMouseRouter {
public:
    // A message with a place in the client area. True when a windowless child got it; Result is the child's answer.
    static bool Route(TWinControl& Window, TWMMouse& Message);
    // WM_CONTEXTMENU. True when a windowless child below the pointer has answered it.
    static bool RouteContextMenu(TWinControl& Window, TMessage& Message);

private:
    static void TrackPointer(TWinControl& Window, const TPoint& Pos, bool Captured);
    static TControl* TargetOf(TWinControl& Window, const TPoint& Pos, bool Captured);
};
