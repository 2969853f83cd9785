#include "toolbar/TBHandle.h"

#include "toolbar/HandCursor.h"
#include "toolbar/ToolBar.h"

TTBHandle::TTBHandle(TComponent* AOwner, int Size) : TGraphicControl(AOwner)
{
    SetStyleFlag(csOpaque, true);
    SetBounds(0, 0, Size, Size);
    Cursor = crDragHand;
}

namespace {

// Hands an event at a point of Control to the tool bar that Control lies on, if it does.
template <class TGive>
void PassOn(const TControl& Control, int X, int Y, TGive Give)
{
    if (auto* Bar = As<TkelToolBar>(Control.Parent))
        Give(*Bar, Bar->ScreenToClient(Control.ClientToScreen(TPoint(X, Y))));
}

} // namespace

void TTBHandle::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseDown(Button, Shift, X, Y);
    PassOn(*this, X, Y, [=](TkelToolBar& Bar, TPoint At) { Bar.PublicMouseDown(Button, Shift, At.x, At.y); });
}

void TTBHandle::MouseMove(TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseMove(Shift, X, Y);
    PassOn(*this, X, Y, [=](TkelToolBar& Bar, TPoint At) { Bar.PublicMouseMove(Shift, At.x, At.y); });
}

void TTBHandle::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TGraphicControl::MouseUp(Button, Shift, X, Y);
    PassOn(*this, X, Y, [=](TkelToolBar& Bar, TPoint At) { Bar.PublicMouseUp(Button, Shift, At.x, At.y); });
}
