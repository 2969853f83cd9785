// What a button with a menu does when it is clicked.
#pragma once

#include "vcl/classes/ComponentRef.h"

class TControl;
class TkelSpeedButton;
class TPopupMenu;

// Raises a button at the end of a block, unless it is gone by then or cannot be raised.
class TRaiseAtEnd {
public:
    explicit TRaiseAtEnd(TkelSpeedButton* Button);
    ~TRaiseAtEnd();
    TRaiseAtEnd(const TRaiseAtEnd&) = delete;

private:
    TComponentRef<TkelSpeedButton> FButton;
};

// Whether Control is in a window, so that it has a place on the screen where a menu could open.
bool HasPlaceOnScreen(const TControl* Control);

// Opens Menu at the lower left corner of Control and returns when it is closed; opens nothing when Control has no place
// on the screen. Until then Latch stays down; it needs a GroupIndex and AllowAllUp for that. A press on Latch closes
// the menu and does nothing else. All three may be gone when this returns.
void DropDown(TPopupMenu* Menu, TControl* Control, TkelSpeedButton* Latch);

// Takes a press on Control that waits in the queue out of it: the one that has closed a menu, and would open it again.
void DropPressOn(TControl* Control);
