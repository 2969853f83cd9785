// What a button with a menu does when it is clicked.
#pragma once

class TControl;
class TkelSpeedButton;
class TPopupMenu;

// Opens Menu at the lower left corner of Control and returns when it is closed. Until then Latch stays down; it needs a
// GroupIndex and AllowAllUp for that. A press on Latch closes the menu and does nothing else. All three may be gone
// when this returns.
void DropDown(TPopupMenu* Menu, TControl* Control, TkelSpeedButton* Latch);

// Takes a press on Control that waits in the queue out of it: the one that has closed a menu, and would open it again.
void DropPressOn(TControl* Control);
