#include "toolbar/DropDown.h"

#include "toolbar/SpeedButton.h"
#include "vcl/classes/StillThere.h"
#include "vcl/controls/WinControl.h"
#include "vcl/menus/PopupMenu.h"

void DropPressOn(TControl* Control)
{
    TWinControl* Parent = Control->Parent;
    if (!Parent || !Parent->HandleAllocated())
        return;
    const TRect Area = Control->BoundsRect;
    MSG Press;
    for (UINT Kind : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK})
        if (PeekMessageW(&Press, Parent->Handle, Kind, Kind, PM_NOREMOVE) &&
            Area.Contains(TPoint(GET_X_LPARAM(Press.lParam), GET_Y_LPARAM(Press.lParam))))
            PeekMessageW(&Press, Parent->Handle, Kind, Kind, PM_REMOVE);
}

void DropDown(TPopupMenu* Menu, TControl* Control, TkelSpeedButton* Latch)
{
    const TPoint Place = Control->ClientToScreen(TPoint(0, Control->Height));
    Menu->PopupComponent = Control;
    const TStillThere IsLatch(Latch);
    Latch->Down = true;
    try {
        Menu->Popup(Place.x, Place.y);
    } catch (...) {
        if (IsLatch)
            Latch->Down = false;
        throw;
    }
    if (!IsLatch)
        return;
    DropPressOn(Latch);
    Latch->Down = false;
}
