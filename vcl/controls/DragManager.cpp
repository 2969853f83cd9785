#include "vcl/controls/DragManager.h"

#include "vcl/classes/StillThere.h"
#include "vcl/controls/DragObject.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/Mouse.h"
#include "vcl/controls/WinControl.h"
#include "vcl/menus/UtilityWindow.h"
#include "vcl/system/ClassBuilder.h"

#include <cstdlib>

// ---- TDragObject

void TDragObject::Describe(TClassBuilder<TDragObject>&)
{}

TDragObject::~TDragObject()
{
    TDragManager::Forget(this);
}

TCursor TDragObject::GetDragCursor(bool Accepted, int, int)
{
    return Accepted ? crDrag : crNoDrop;
}

void TDragObject::Finished(TObject*, int, int, bool)
{}

// ---- TDrag

// One drag, from the press until the last event about its end. Source, target and object become nullptr when they are
// deleted, so they are read again after each event.
class TDragManager::TDrag {
public:
    explicit TDrag(TControl* Source) : FSource(Source), FNext(std::exchange(First, this)) {}
    ~TDrag();
    TDrag(const TDrag&) = delete;
    TDrag& operator=(const TDrag&) = delete;

    TControl* Source() const { return FSource; }
    bool IsWaiting() const { return FStage == TStage::Waiting; }
    bool IsDragging() const { return FStage == TStage::Dragging; }
    // The window that gets the mouse messages before dragging starts.
    TWinControl* PressedWindow() const;

    void TakePress();
    void Wait(int Threshold);
    bool IsFarEnough() const;
    void Start();
    void MoveTo(const TPoint& Screen);
    void Finish(bool Drop);
    // Releases the mouse capture.
    void ReleaseMouse();

    static void ForgetEverywhere(const TObject* Gone);

private:
    enum class TStage { Beginning, Waiting, Dragging };

    bool GoesOn() const { return Current.get() == this; }
    void HandleMouse(TMessage& Message);
    void Move(const TPoint& Screen);
    // What handlers get as the source: the drag object if there is one.
    TObject* Dragged() const { return FObject ? static_cast<TObject*>(FObject) : FSource; }
    bool Ask(TControl* Target, TDragState State, const TPoint& Screen);
    void Leave(const TPoint& Screen);
    void ShowCursor(const TPoint& Screen) const;
    void TellEnd(const TPoint& Local);

    TControl* FSource;
    TControl* FTarget = nullptr;
    TDragObject* FObject = nullptr;
    TStage FStage = TStage::Beginning;
    bool FAccepted = false;
    TPoint FStartedAt;
    TPoint FLastPos;
    int FThreshold = 0;
    // A hidden window that captures the mouse while dragging: the source's own may be destroyed.
    HWND FWindow = nullptr;
    HCURSOR FCursorBefore = nullptr;
    TDrag* FNext;

    static TDrag* First;
};

TDragManager::TDrag* TDragManager::TDrag::First = nullptr;
std::shared_ptr<TDragManager::TDrag> TDragManager::Current;

namespace {

TPoint CursorPos()
{
    POINT Pos{};
    GetCursorPos(&Pos);
    return Pos;
}

// Handlers may have taken it out of its window.
bool IsOnWindow(TControl* Control)
{
    auto* Window = As<TWinControl>(Control);
    if (!Window)
        Window = Control->GetParent();
    return Window && Window->HandleAllocated();
}

// Sends a button release outside of the control, which cancels what the press has begun.
void EndPress(TControl* Control)
{
    if (Control && Control->GetControlState().Contains(csLButtonDown))
        Control->Perform(WM_LBUTTONUP, 0, -1);
}

} // namespace

TDragManager::TDrag::~TDrag()
{
    ReleaseMouse();
    delete FObject;
    TDrag** Link = &First;
    while (*Link != this)
        Link = &(*Link)->FNext;
    *Link = FNext;
}

void TDragManager::TDrag::ForgetEverywhere(const TObject* Gone)
{
    for (TDrag* Drag = First; Drag; Drag = Drag->FNext) {
        if (Drag->FSource == Gone)
            Drag->FSource = nullptr;
        if (Drag->FTarget == Gone)
            Drag->FTarget = nullptr;
        if (Drag->FObject == Gone)
            Drag->FObject = nullptr;
    }
}

TWinControl* TDragManager::TDrag::PressedWindow() const
{
    auto* Window = As<TWinControl>(FSource);
    return Window ? Window : FSource->GetParent();
}

// The drag may have been started in the mouse events of another control, which will not get the release.
void TDragManager::TDrag::TakePress()
{
    TControl* Pressed = TMouse::CaptureControl();
    if (Pressed != FSource)
        EndPress(Pressed);
}

void TDragManager::TDrag::Wait(int Threshold)
{
    FStartedAt = CursorPos();
    FThreshold = Threshold >= 0 ? Threshold : GetSystemMetrics(SM_CXDRAG);
    TMouse::SetCaptureControl(FSource);
    FStage = TStage::Waiting;
}

bool TDragManager::TDrag::IsFarEnough() const
{
    const TPoint Now = CursorPos();
    return std::max(std::abs(Now.X - FStartedAt.X), std::abs(Now.Y - FStartedAt.Y)) >= FThreshold;
}

void TDragManager::TDrag::Start()
{
    FStage = TStage::Dragging;
    FCursorBefore = GetCursor();
    EndPress(FSource);
    if (!GoesOn())
        return;
    FWindow = AllocateHWnd([this](TMessage& Message) { HandleMouse(Message); });
    SetCapture(FWindow);
    FSource->DoStartDrag(FObject);
    if (GoesOn())
        Move(CursorPos());
}

void TDragManager::TDrag::HandleMouse(TMessage& Message)
{
    if (!GoesOn())
        return;
    switch (Message.Msg) {
    case WM_MOUSEMOVE:
        // The system also sends this message when the pointer has not moved.
        if (const TPoint Now = CursorPos(); Now != FLastPos)
            Move(Now);
        break;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP: End(true); break;
    case WM_RBUTTONDOWN:
    case WM_CANCELMODE:
    case WM_CAPTURECHANGED: End(false); break;
    default: DefaultWindowProc(FWindow, Message);
    }
}

// An exception ends the drag: the message box that reports it needs the mouse.
void TDragManager::TDrag::Move(const TPoint& Screen)
{
    const std::shared_ptr<TDrag> Kept = Current;
    FLastPos = Screen;
    try {
        MoveTo(Screen);
    } catch (...) {
        FTarget = nullptr;
        if (GoesOn())
            End(false);
        throw;
    }
}

bool TDragManager::TDrag::Ask(TControl* Target, TDragState State, const TPoint& Screen)
{
    if (!IsOnWindow(Target))
        return false;
    bool Accept = false;
    const TPoint Local = Target->ScreenToClient(Screen);
    Target->DragOver(Dragged(), Local.X, Local.Y, State, Accept);
    return Accept;
}

void TDragManager::TDrag::Leave(const TPoint& Screen)
{
    FAccepted = false;
    if (TControl* Left = std::exchange(FTarget, nullptr))
        Ask(Left, dsDragLeave, Screen);
}

void TDragManager::TDrag::MoveTo(const TPoint& Screen)
{
    if (FTarget != FindDragTarget(Screen, false)) {
        Leave(Screen);
        // The handler may have deleted the control that was found before.
        FTarget = GoesOn() ? FindDragTarget(Screen, false) : nullptr;
        if (FTarget)
            FAccepted = Ask(FTarget, dsDragEnter, Screen);
    }
    if (GoesOn() && FTarget)
        FAccepted = Ask(FTarget, dsDragMove, Screen);
    if (GoesOn())
        ShowCursor(Screen);
}

void TDragManager::TDrag::ShowCursor(const TPoint& Screen) const
{
    const bool Accepted = FTarget && FAccepted;
    TCursor Cursor = Accepted ? FSource->GetDragCursor() : TCursor(crNoDrop);
    if (FObject)
        Cursor = FObject->GetDragCursor(Accepted, Screen.X, Screen.Y);
    SetCursor(TFormHost::Get().CursorHandle(Cursor));
}

void TDragManager::TDrag::ReleaseMouse()
{
    if (HWND Window = std::exchange(FWindow, nullptr)) {
        if (GetCapture() == Window)
            ReleaseCapture();
        DeallocateHWnd(Window);
        SetCursor(FCursorBefore);
        return;
    }
    // A control with csCaptureMouse releases the capture itself when the button is released.
    if (FSource && IsWaiting() && !FSource->GetControlStyle().Contains(csCaptureMouse))
        TMouse::GiveBack(FSource);
}

void TDragManager::TDrag::Finish(bool Drop)
{
    ReleaseMouse();
    if (!IsDragging()) {
        if (FSource)
            FSource->DragCanceled();
        return;
    }
    const TPoint Screen = CursorPos();
    TPoint Local;
    try {
        if (Drop && FAccepted && FTarget && IsOnWindow(FTarget)) {
            Local = FTarget->ScreenToClient(Screen);
            FTarget->DragDrop(Dragged(), Local.X, Local.Y);
        } else {
            Leave(Screen);
            if (FSource)
                FSource->DragCanceled();
        }
    } catch (...) {
        TellEnd(Local);
        throw;
    }
    TellEnd(Local);
}

void TDragManager::TDrag::TellEnd(const TPoint& Local)
{
    if (FObject)
        FObject->Finished(FTarget, Local.X, Local.Y, FTarget != nullptr);
    if (FSource)
        FSource->DoEndDrag(FTarget, Local.X, Local.Y);
}

// ---- TDragManager

TControl* TDragManager::Source()
{
    return Current ? Current->Source() : nullptr;
}

void TDragManager::Begin(TControl* Control, bool Immediate, int Threshold)
{
    // A drag that still waits for movement but has lost the capture has missed the release of the button.
    if (Current && Current->IsWaiting() && !Current->Source()->GetMouseCapture())
        End(false);
    if (Current || !Control->ParentFormControl())
        return;
    const auto Drag = Current = std::make_shared<TDrag>(Control);
    Try(Drag, [&] {
        Drag->TakePress();
        if (Current != Drag)
            return;
        if (Immediate)
            Drag->Start();
        else
            Drag->Wait(Threshold);
    });
}

template <class TStep>
void TDragManager::Try(const std::shared_ptr<TDrag>& Drag, const TStep& Step)
{
    try {
        Step();
    } catch (...) {
        if (Current == Drag)
            Current.reset();
        throw;
    }
}

void TDragManager::End(bool Drop)
{
    if (const auto Drag = std::exchange(Current, nullptr))
        Drag->Finish(Drop);
}

bool TDragManager::HandleMessage(TWinControl& Window, const TMessage& Message)
{
    const auto Drag = Current;
    if (!Drag)
        return false;
    const TStillThere Still(&Window);
    // The system sends this to a window that is being disabled, and to the one with the capture.
    if (Message.Msg == WM_CANCELMODE && Window.ContainsControl(Drag->Source())) {
        End(false);
        return !Still;
    }
    if (Drag->IsDragging() && Message.Msg == WM_KEYDOWN && Message.WParam == VK_ESCAPE) {
        MSG Character;
        PeekMessageW(&Character, Window.GetHandle(), WM_CHAR, WM_CHAR, PM_REMOVE);
        End(false);
        return true;
    }
    if (!Drag->IsWaiting() || &Window != Drag->PressedWindow())
        return false;
    switch (Message.Msg) {
    case WM_MOUSEMOVE:
        if (!Drag->IsFarEnough())
            return false;
        Try(Drag, [&] { Drag->Start(); });
        return true;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP: End(false); return !Still;
    case WM_CAPTURECHANGED:
        if (reinterpret_cast<HWND>(Message.LParam) != Window.GetHandle())
            End(false);
        return !Still;
    default: return false;
    }
}

void TDragManager::Forget(const TObject* Gone)
{
    TDrag::ForgetEverywhere(Gone);
    if (Current && !Current->Source())
        std::exchange(Current, nullptr)->ReleaseMouse();
}
