// Conditions and actions of a script (TScript) for the menus of menu buttons.
#pragma once

#include "menus/MenuButton.h"
#include "menus/MenuTracking.h"
#include "menus/OfficePopupMenu.h"
#include "robot/SystemInput.h"
#include "robot/WhileMenuOpen.h"

inline auto IsOpen(const TkelMenuButton* Button)
{
    return [Button] {
        return TkelCustomPopupMenu::Current() == Button->Menu && TMenuTracking::Get().Current() == Button &&
               TWhileMenuOpen::IsOpen();
    };
}

inline auto PointTo(const TControl* Control)
{
    return [Control] { SendMove(Control->ClientToScreen({Control->Width / 2, Control->Height / 2})); };
}

// The system's desktop may report a place that the pointer has left already, so the pointer is moved again and again.
inline auto PointingOpens(const TkelMenuButton* Button)
{
    return [Button] {
        if (IsOpen(Button)())
            return true;
        PointTo(Button)();
        return false;
    };
}
