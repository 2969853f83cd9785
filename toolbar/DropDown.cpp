#include "toolbar/DropDown.h"

#include "toolbar/SpeedButton.h"
#include "vcl/classes/StillThere.h"
#include "vcl/controls/WinControl.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/menus/PopupMenu.h"
#include "vcl/system/Guard.h"

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

TRaiseAtEnd::TRaiseAtEnd(TkelSpeedButton* Button) : FButton(Button)
{}

// Painting may fail, and a destructor must not.
TRaiseAtEnd::~TRaiseAtEnd()
{
    if (FButton)
        Guarded(FButton, [this] { FButton->Down = false; });
}

bool HasPlaceOnScreen(const TControl* Control)
{
    const TWinControl* Window = Control->Parent;
    return Window && (Window->HandleAllocated() || GetParentForm(Window));
}

void DropDown(TPopupMenu* Menu, TControl* Control, TkelSpeedButton* Latch)
{
    if (!HasPlaceOnScreen(Control))
        return;
    const TPoint Place = Control->ClientToScreen(TPoint(0, Control->Height));
    Menu->PopupComponent = Control;
    const TRaiseAtEnd ComesUp(Latch);
    const TStillThere IsLatch(Latch);
    Latch->Down = true;
    Menu->Popup(Place.x, Place.y);
    if (IsLatch)
        DropPressOn(Latch);
}
