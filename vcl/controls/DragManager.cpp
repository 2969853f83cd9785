#include "vcl/controls/DragManager.h"

#include "vcl/controls/DragObject.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/Mouse.h"
#include "vcl/controls/WinControl.h"
#include "vcl/system/ClassBuilder.h"

#include <cstdlib>
#include <memory>

void TDragObject::Describe(TClassBuilder<TDragObject>&)
{}

namespace {

struct TDrag {
    TControl* Source = nullptr;
    TControl* Target = nullptr;
    std::unique_ptr<TDragObject> Object;
    TPoint StartedAt;
    int Threshold = 0;
    bool Active = false; // past the threshold
    bool Accepted = false;
};
TDrag Drag;

// What handlers get as the source: the drag object if there is one.
TObject* Dragged()
{
    return Drag.Object ? static_cast<TObject*>(Drag.Object.get()) : Drag.Source;
}

TPoint CursorPos()
{
    POINT Pos{};
    GetCursorPos(&Pos);
    return Pos;
}

} // namespace

TControl* TDragManager::Source()
{
    return Drag.Source;
}

void TDragManager::Begin(TControl* Control, bool Immediate, int Threshold)
{
    if (Drag.Source || !Control->ParentFormControl())
        return;
    Drag.Source = Control;
    Drag.StartedAt = CursorPos();
    Drag.Threshold = Threshold >= 0 ? Threshold : GetSystemMetrics(SM_CXDRAG);
    TMouse::SetCaptureControl(Control);
    if (Immediate)
        Start();
}

void TDragManager::Start()
{
    Drag.Active = true;
    TDragObject* Object = nullptr;
    Drag.Source->DoStartDrag(Object);
    Drag.Object.reset(Object);
    MoveTo(CursorPos());
}

bool TDragManager::Ask(TControl* Target, TDragState State, const TPoint& Screen)
{
    bool Accept = false;
    TPoint Local = Target->ScreenToClient(Screen);
    Target->DragOver(Dragged(), Local.X, Local.Y, State, Accept);
    return Accept;
}

void TDragManager::SetTarget(TControl* Target, const TPoint& Screen)
{
    if (Drag.Target == Target)
        return;
    if (TControl* Left = std::exchange(Drag.Target, nullptr))
        Ask(Left, dsDragLeave, Screen);
    Drag.Target = Target;
    Drag.Accepted = Target && Ask(Target, dsDragEnter, Screen);
}

void TDragManager::MoveTo(const TPoint& Screen)
{
    SetTarget(FindDragTarget(Screen, false), Screen);
    if (Drag.Target)
        Drag.Accepted = Ask(Drag.Target, dsDragMove, Screen);
    TCursor Accept = Drag.Object ? Drag.Object->AcceptCursor : Drag.Source->GetDragCursor();
    TCursor Reject = Drag.Object ? Drag.Object->RejectCursor : TCursor(crNoDrop);
    SetCursor(TFormHost::Get().CursorHandle(Drag.Accepted ? Accept : Reject));
}

void TDragManager::End(bool Drop)
{
    if (!Drag.Source)
        return;
    TDrag Ended = std::move(Drag);
    Drag = TDrag();
    TMouse::SetCaptureControl(nullptr);
    if (!Ended.Active)
        return;
    TPoint Screen = CursorPos();
    TControl* Target = Drop && Ended.Accepted ? Ended.Target : nullptr;
    TPoint Local = Target ? Target->ScreenToClient(Screen) : TPoint();
    TObject* What = Ended.Object ? static_cast<TObject*>(Ended.Object.get()) : Ended.Source;
    if (Target)
        Target->DragDrop(What, Local.X, Local.Y);
    else if (Ended.Target) {
        bool Ignored = false;
        TPoint Leave = Ended.Target->ScreenToClient(Screen);
        Ended.Target->DragOver(What, Leave.X, Leave.Y, dsDragLeave, Ignored);
    }
    if (Ended.Object)
        Ended.Object->OnFinished(Ended.Object.get(), Target, Local.X, Local.Y);
    Ended.Source->DoEndDrag(Target, Local.X, Local.Y);
}

bool TDragManager::HandleMessage(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_MOUSEMOVE: {
        TPoint Now = CursorPos();
        if (!Drag.Active &&
            std::max(std::abs(Now.X - Drag.StartedAt.X), std::abs(Now.Y - Drag.StartedAt.Y)) > Drag.Threshold)
            Start();
        else if (Drag.Active)
            MoveTo(Now);
        return true;
    }
    case WM_LBUTTONUP: End(true); return true;
    case WM_CANCELMODE:
    case WM_CAPTURECHANGED:
    case WM_RBUTTONDOWN: End(false); return true;
    case WM_KEYDOWN:
    case CN_KEYDOWN:
        if (Message.WParam == VK_ESCAPE)
            End(false);
        return true;
    default: return Message.Msg >= WM_MOUSEFIRST && Message.Msg <= WM_MOUSELAST;
    }
}

void TDragManager::Forget(TControl* Control)
{
    if (Drag.Target == Control) {
        Drag.Target = nullptr;
        Drag.Accepted = false;
    }
    if (Drag.Source == Control) {
        Drag = TDrag();
        TMouse::SetCaptureControl(nullptr);
    }
}
