// Messages and mouse events of TControl.
#include "vcl/classes/StillThere.h"
#include "vcl/controls/ControlExtras.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/Mouse.h"
#include "vcl/controls/WinControl.h"
#include "vcl/menus/PopupMenu.h"

intptr_t TControl::Perform(uint32_t Msg, uintptr_t WParam, intptr_t LParam)
{
    TMessage Message{Msg, WParam, LParam, 0};
    if (FWindowProc)
        FWindowProc(Message);
    else
        WndProc(Message);
    return Message.Result;
}

TWndMethod TControl::GetWindowProc()
{
    return FWindowProc ? FWindowProc : TWndMethod(this, &TControl::WndProc);
}

void TControl::WndProc(TMessage& Message)
{
    if (IsDesigning()) {
        TFormLink* Form = ParentFormLink();
        if (Form && Form->IsDesignMessage(this, Message))
            return;
    }
    switch (Message.Msg) {
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
        if (!FControlStyle.Contains(csDoubleClicks))
            Message.Msg -= WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;
        break;
    default: break;
    }
    if (Message.Msg == WM_LBUTTONDOWN || Message.Msg == WM_LBUTTONDBLCLK) {
        SetControlFlag(csLButtonDown, true);
        if (GetDragMode() == dmAutomatic && !IsDesigning()) {
            BeginDrag(false);
            return;
        }
    } else if (Message.Msg == WM_LBUTTONUP) {
        SetControlFlag(csLButtonDown, false);
    }
    Dispatch(Message);
}

bool TControl::GetMouseCapture() const
{
    return TMouse::CaptureControl() == this;
}

void TControl::SetMouseCapture(bool Value)
{
    if (GetMouseCapture() != Value)
        TMouse::SetCaptureControl(Value ? this : nullptr);
}

void TControl::ButtonDown(TWMMouse& Message, TMouseButton Button, bool Double)
{
    const TStillThere Still(this);
    Inherited(Message);
    if (!Still)
        return;
    TShiftState Shift = KeysToShiftState(Message.Keys());
    if (Button == mbLeft) {
        if (FControlStyle.Contains(csCaptureMouse))
            SetMouseCapture(true);
        if (Still && FControlStyle.Contains(csClickEvents)) {
            if (Double)
                DblClick();
            else
                SetControlFlag(csClicked, true);
        }
        if (!Still)
            return;
    }
    if (Double)
        Shift << ssDouble;
    if (!FControlStyle.Contains(csNoStdEvents))
        MouseDown(Button, Shift, Message.XPos, Message.YPos);
}

void TControl::ButtonUp(TWMMouse& Message, TMouseButton Button)
{
    // A native control gives the mouse back by itself, which ends the press.
    const bool Clicked = Button == mbLeft && FControlState.Contains(csClicked) && GetClientRect().Contains(Message.Pos);
    const TStillThere Still(this);
    Inherited(Message);
    if (!Still)
        return;
    if (Button == mbLeft) {
        SetControlFlag(csClicked, false);
        if (FControlStyle.Contains(csCaptureMouse))
            TMouse::GiveBack(this);
        if (Still && Clicked)
            Click();
        if (!Still)
            return;
    }
    if (!FControlStyle.Contains(csNoStdEvents))
        MouseUp(Button, KeysToShiftState(Message.Keys()), Message.XPos, Message.YPos);
}

void TControl::WMLButtonDown(TWMMouse& Message)
{
    const TStillThere Still(this);
    if (TWinControl* Form = ParentFormControl())
        Form->Perform(CM_CANCELMODE, 0, reinterpret_cast<intptr_t>(this));
    if (Still)
        ButtonDown(Message, mbLeft, false);
}

void TControl::WMRButtonDown(TWMMouse& Message)
{
    ButtonDown(Message, mbRight, false);
}

void TControl::WMMButtonDown(TWMMouse& Message)
{
    ButtonDown(Message, mbMiddle, false);
}

void TControl::WMLButtonDblClk(TWMMouse& Message)
{
    ButtonDown(Message, mbLeft, true);
}

void TControl::WMRButtonDblClk(TWMMouse& Message)
{
    ButtonDown(Message, mbRight, true);
}

void TControl::WMMButtonDblClk(TWMMouse& Message)
{
    ButtonDown(Message, mbMiddle, true);
}

void TControl::WMLButtonUp(TWMMouse& Message)
{
    ButtonUp(Message, mbLeft);
}

void TControl::WMRButtonUp(TWMMouse& Message)
{
    ButtonUp(Message, mbRight);
}

void TControl::WMMButtonUp(TWMMouse& Message)
{
    ButtonUp(Message, mbMiddle);
}

void TControl::WMMouseMove(TWMMouse& Message)
{
    const TStillThere Still(this);
    Inherited(Message);
    if (Still && !FControlStyle.Contains(csNoStdEvents))
        MouseMove(KeysToShiftState(Message.Keys()), Message.XPos, Message.YPos);
}

void TControl::WMMouseWheel(TMessage& Message)
{
    TShiftState Shift = KeysToShiftState(static_cast<unsigned>(Message.WParamLo()));
    int Delta = static_cast<int16_t>(Message.WParamHi());
    const TStillThere Still(this);
    const bool Handled = DoMouseWheel(Shift, Delta, {Message.LParamLo(), Message.LParamHi()});
    if (Handled || !Still)
        Message.Result = 1;
    else if (FParent && !As<TWinControl>(this))
        Message.Result = FParent->Perform(WM_MOUSEWHEEL, Message.WParam, Message.LParam);
    else
        Inherited(Message); // a native control scrolls; otherwise the system sends the message to the parent window
}

void TControl::WMCancelMode(TMessage& Message)
{
    const TStillThere Still(this);
    Inherited(Message);
    // A button release outside of the control cancels what the press has begun.
    if (Still && GetMouseCapture() && FControlState.Contains(csLButtonDown))
        Perform(WM_LBUTTONUP, 0, -1);
    if (Still && GetMouseCapture())
        SetMouseCapture(false);
}

// The capture is lost, so the press has ended: a later release is no click.
void TControl::WMCaptureChanged(TMessage& Message)
{
    SetControlFlag(csLButtonDown, false);
    SetControlFlag(csClicked, false);
    Inherited(Message);
}

void TControl::WMContextMenu(TMessage& Message)
{
    if (Message.Result != 0 || IsDesigning())
        return;
    TPoint Screen(Message.LParamLo(), Message.LParamHi());
    bool FromKeyboard = Message.LParam == -1;
    TPoint Local = FromKeyboard ? Screen : ScreenToClient(Screen);
    if (!FromKeyboard && !GetClientRect().Contains(Local)) {
        Inherited(Message);
        return;
    }
    bool Handled = false;
    const TStillThere Still(this);
    DoContextPopup(Local, Handled);
    if (!Still) {
        Message.Result = 1;
        return;
    }
    TPopupMenu* Menu = Handled ? nullptr : GetPopupMenu();
    if (Menu && Menu->AutoPopup) {
        Menu->PopupComponent = this;
        TPoint Place = FromKeyboard ? ClientToScreen({0, 0}) : Screen;
        Menu->Popup(Place.X, Place.Y);
        Handled = true;
    }
    Message.Result = Handled;
    if (!Handled)
        Inherited(Message);
}

void TControl::CMParentFontChanged(TMessage&)
{
    if (!FParentFont || !FParent)
        return;
    FFont.Assign(FParent->GetFont());
    FParentFont = true;
}

void TControl::CMParentColorChanged(TMessage&)
{
    if (!FParentColor || !FParent)
        return;
    SetColor(FParent->FColor);
    FParentColor = true;
}

void TControl::CMParentShowHintChanged(TMessage&)
{
    if (!FParentShowHint || !FParent)
        return;
    SetShowHint(FParent->FShowHint);
    FParentShowHint = true;
}

void TControl::CMVisibleChanged(TMessage&)
{
    RequestAlign();
    InvalidateControl(true, FVisible && FControlStyle.Contains(csOpaque));
}

void TControl::CMRepaint(TMessage&)
{
    Invalidate();
}

void TControl::CMHitTest(TMessage& Message)
{
    Message.Result = 1;
}

void TControl::CMMouseEnter(TMessage&)
{
    if (FParent)
        FParent->Perform(CM_MOUSEENTER, 0, reinterpret_cast<intptr_t>(this));
}

void TControl::CMMouseLeave(TMessage&)
{
    if (FParent)
        FParent->Perform(CM_MOUSELEAVE, 0, reinterpret_cast<intptr_t>(this));
}

bool TControl::HitTest(const TPoint& Point)
{
    return Perform(CM_HITTEST, 0, MAKELPARAM(Point.X, Point.Y)) != 0;
}

// ---- events

void TControl::Click()
{
    OnClick(this);
}

void TControl::DblClick()
{
    OnDblClick(this);
}

void TControl::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    OnMouseDown(this, Button, Shift, X, Y);
}

void TControl::MouseMove(TShiftState Shift, int X, int Y)
{
    OnMouseMove(this, Shift, X, Y);
}

void TControl::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    OnMouseUp(this, Button, Shift, X, Y);
}

void TControl::Resize()
{
    OnResize(this);
}

bool TControl::DoMouseWheel(TShiftState Shift, int WheelDelta, const TPoint& MousePos)
{
    bool Handled = false;
    if (FExtras)
        FExtras->OnMouseWheel(this, Shift, WheelDelta, MousePos, Handled);
    return Handled;
}

void TControl::DoContextPopup(const TPoint& MousePos, bool& Handled)
{
    if (FExtras)
        FExtras->OnContextPopup(this, MousePos, Handled);
}

void TControl::SetControlFlag(TControlStateFlag Flag, bool On)
{
    if (On)
        FControlState << Flag;
    else
        FControlState >> Flag;
}

void TControl::SetStyleFlag(TControlStyleFlag Flag, bool On)
{
    if (On)
        FControlStyle << Flag;
    else
        FControlStyle >> Flag;
}
