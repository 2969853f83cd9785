#include "vcl/controls/MouseRouter.h"

#include "vcl/classes/StillThere.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/Mouse.h"
#include "vcl/controls/WinControl.h"

bool TMouseRouter::RouteContextMenu(TWinControl& Window, TMessage& Message)
{
    constexpr intptr_t ByKeyboard = -1;
    if (Message.LParam == ByKeyboard)
        return false;
    const TPoint Pos = Window.ScreenToClient({Message.LParamLo(), Message.LParamHi()});
    TControl* Child = Window.ControlAtPos(Pos, false);
    if (!Child)
        return false;
    const TStillThere Still(&Window);
    Message.Result = Child->Perform(Message.Msg, Message.WParam, Message.LParam);
    return Message.Result != 0 || !Still;
}

bool TMouseRouter::Route(TWinControl& Window, TWMMouse& Message)
{
    const TPoint Pos = Message.Pos;
    bool Captured = GetCapture() == Window.Handle;
    if (Message.Msg == WM_MOUSEMOVE) {
        const TStillThere Still(&Window);
        const TControl* Before = TMouse::HotControl();
        TrackPointer(Window, Pos, Captured);
        if (!Still)
            return true;
        if (TMouse::HotControl() != Before)
            Captured = GetCapture() == Window.Handle; // handlers have run
    } else if (Message.Msg != WM_LBUTTONUP && Message.Msg != WM_RBUTTONUP && Message.Msg != WM_MBUTTONUP) {
        TFormHost::Get().CancelHint();
    }
    TControl* Target = TargetOf(Window, Pos, Captured);
    if (!Target)
        return false;
    const intptr_t Local = MAKELPARAM(Pos.X - Target->Left, Pos.Y - Target->Top);
    Message.Result = Target->Perform(Message.Msg, Message.WParam, Local);
    return true;
}

TControl* TMouseRouter::TargetOf(TWinControl& Window, const TPoint& Pos, bool Captured)
{
    if (!Captured)
        return Window.ControlAtPos(Pos, false);
    TControl* Owner = TMouse::CaptureControl();
    return Owner && Owner->Parent == &Window ? Owner : nullptr;
}

void TMouseRouter::TrackPointer(TWinControl& Window, const TPoint& Pos, bool Captured)
{
    if (Captured) {
        TControl* Owner = TMouse::CaptureControl();
        bool Own = Owner == &Window;
        bool Inside = Owner && (Own ? Window.ClientRect : Owner->BoundsRect).Contains(Pos);
        TMouse::SetHotControl(Inside ? Owner : nullptr, Owner);
        return;
    }
    TControl* Child = Window.ControlAtPos(Pos, true, true);
    TControl* Before = TMouse::HotControl();
    TControl* Now = Child ? Child : &Window;
    if (Before == Now)
        return;
    // The request ends when it is answered, so it is made again whenever the pointer comes from another window.
    if (!Before || (Before != &Window && Before->Parent != &Window))
        TMouse::RequestLeave(Window.Handle);
    // The message would not have come here if another window had captured the mouse.
    TMouse::SetHotControl(Now, nullptr);
}
