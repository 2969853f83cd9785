// Dragging a bar, and floating.
#include "toolbar/BarDrag.h"
#include "toolbar/Flpfrm97.h"
#include "toolbar/TBDragBox.h"
#include "toolbar/ToolBar.h"
#include "vcl/classes/StillThere.h"
#include "vcl/system/Scope.h"

#include <algorithm>

namespace {

// How near the pointer must come to a dock, in pixels.
constexpr int DockingDistance = 5;

TRect Square(const TPoint& Center, int Distance)
{
    return {Center.X - Distance, Center.Y - Distance, Center.X + Distance, Center.Y + Distance};
}

// The point of the dock that is nearest to Point, in screen coordinates.
TPoint NearestPoint(const TkelDock& Dock, const TPoint& Point)
{
    const TPoint Origin = Dock.ClientOrigin;
    return {std::clamp<int>(Point.X, Origin.X, Origin.X + std::max(Dock.Width - 1, 0)),
            std::clamp<int>(Point.Y, Origin.Y, Origin.Y + std::max(Dock.Height - 1, 0))};
}

// The rectangle in which a dock accepts bars, in screen coordinates. That of an empty dock is 2 pixels thick.
TRect CatchArea(const TkelDock& Dock)
{
    TRect R(0, 0, Dock.Width, Dock.Height);
    const TPoint Origin = Dock.ClientOrigin;
    OffsetRect(R, Origin.X, Origin.Y);
    if (Dock.Width == 0)
        InflateRect(R, 1, -1);
    else if (Dock.Height == 0)
        InflateRect(R, -1, 1);
    return R;
}

} // namespace

void TkelToolBar::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    const TStillThere IsHere(this);
    inherited::MouseDown(Button, Shift, X, Y);
    if (!IsHere || Button != mbLeft)
        return;
    FAnchor = {X, Y};
    FReach = {};
    FCancelled = false;
    if (!IsDesigning())
        FDrag = std::make_shared<TBarDrag>(*this, [this] { CancelDrag(); });
}

// Moving windows can deliver another mouse move before this step is done. That move is dropped.
void TkelToolBar::MouseMove(TShiftState Shift, int X, int Y)
{
    if (Dragged)
        return;
    const TScopedValue<TkelToolBar*> Step(Dragged, this, nullptr);
    inherited::MouseMove(Shift, X, Y);
    if (Dragged != this || !Shift.Contains(ssLeft) || IsDesigning() || FCancelled)
        return;
    Drag({X, Y}, ClientToScreen(TPoint(X, Y)));
    const auto Current = Dragged == this ? FDrag : nullptr;
    if (Current)
        Current->ArrangeRows();
}

void TkelToolBar::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    const TStillThere IsHere(this);
    inherited::MouseUp(Button, Shift, X, Y);
    if (!IsHere || Button != mbLeft)
        return;
    if (const auto Done = std::exchange(FDrag, nullptr))
        Done->Finish();
}

void TkelToolBar::CancelDrag()
{
    const auto Cancelled = std::exchange(FDrag, nullptr);
    if (!Cancelled)
        return;
    FCancelled = true;
    const TStillThere IsHere(this);
    Cancelled->Undo();
    // Until the button is released no other bar is to be moved by it.
    if (IsHere && GetKeyState(VK_LBUTTON) < 0)
        MouseCapture = true;
}

// ---- one step

void TkelToolBar::Drag(const TPoint& P, const TPoint& Pointer)
{
    TkelDock* Target = KeepsToDock(Pointer) ? Dock : FindDock(P);
    if (!Target)
        DragFree(Pointer, P);
    else if (Target == Parent)
        DragAlong(*Target, P);
    else
        DragInto(*Target, Pointer);
}

void TkelToolBar::DragAlong(TkelDock& InDock, const TPoint& P)
{
    TkelToolBar* Other = InDock.ArrangeRows ? FindInOtherRows(P) : nullptr;
    if (!Other)
        Other = FindToolBar(P);
    const TDockAxis Axis = InDock.Axis();
    // The bar would only be moved in front of the next one in its row, and slid back by the statement at the end.
    const bool OnlyStops = Other && Axis.Row(*Other) == Axis.Row(*this) && Axis.Start(*this) < Axis.Start(*Other);
    if (!OnlyStops)
        SwapToolBar(Other);
    // SwapToolBar has processed messages: the bar may have another parent now, or be deleted.
    if (Dragged == this && Parent == &InDock)
        Slide(InDock, P);
}

// Moves the bar along its row with the pointer, inside the dock. A bar longer than the dock shows its end in a
// horizontal dock and its beginning in a vertical one.
void TkelToolBar::Slide(const TkelDock& InDock, const TPoint& P)
{
    if (InDock.Axis().IsVertical())
        Top = std::max<int>(std::min<int>(Top + P.Y - FAnchor.Y, InDock.Height - Height), 0);
    else
        Left = std::min<int>(std::max<int>(Left + P.X - FAnchor.X, 0), InDock.Width - Width);
}

void TkelToolBar::DragInto(TkelDock& Target, const TPoint& Pointer)
{
    if (!FFloating)
        DeleteFromDock();
    TFPForm97* Emptied = LeaveFrame();
    Parent = &Target;
    InsertToDock();
    FReach = NearestPoint(Target, Pointer) - Pointer;
    Slide(Target, ScreenToClient(Pointer));
    CloseFrame(Emptied);
}

void TkelToolBar::DragFree(const TPoint& Pointer, const TPoint& P)
{
    if (!FFloating)
        TearOff(P);
    const TStillThere IsHere(this);
    PlaceFrame(Pointer - FAnchor, true);
    if (IsHere)
        CaptureDrag();
}

// Takes the bar out of its dock. The pointer keeps its place along the bar. When the pointer has moved so far in one
// step that it is beside the bar, it comes to be where the bar was taken, or on the frame's caption.
void TkelToolBar::TearOff(const TPoint& P)
{
    const bool WasVertical = Axis().IsVertical();
    const TPoint Began = FAnchor;
    FReach = {};
    const auto Along = [](int Now, int Before, int Length) { return Now >= 0 && Now < Length ? Now : Before; };
    const int AlongX = Along(P.X, Began.X, Width);
    const int AlongY = Along(P.Y, Began.Y, Height);
    DeleteFromDock();
    if (WasVertical)
        FAnchor = {AlongY, CapSize};
    else
        FAnchor = {AlongX, P.Y < 0 ? std::max(Height + P.Y, -CapSize / 2) : CapSize};
}

// Keeps the drag going when the window that had the mouse was destroyed, hidden or moved to another parent.
void TkelToolBar::CaptureDrag()
{
    if (!IsLayoutSuspended() && Dragged == this)
        MouseCapture = true;
}

// ---- what is below the pointer

std::vector<TkelDock*> TkelToolBar::OwnersDocks() const
{
    std::vector<TkelDock*> Docks;
    for (int I = 0; Owner && I < Owner->ComponentCount; ++I)
        if (auto* Candidate = As<TkelDock>(Owner->Components[I]); Candidate && Candidate->TakesBars())
            Docks.push_back(Candidate);
    return Docks;
}

TkelDock* TkelToolBar::FindDock(const TPoint& Point) const
{
    const TPoint Pointer = ClientToScreen(Point);
    for (TkelDock* Candidate : OwnersDocks())
        if (Candidate->Showing && IsNear(*Candidate, Pointer))
            return Candidate;
    return nullptr;
}

// Where docks meet, the bar stays in its own, whichever comes first among the components.
bool TkelToolBar::KeepsToDock(const TPoint& Pointer) const
{
    const TkelDock* InDock = Dock;
    return InDock && InDock->ArrangeRows && InDock->TakesBars() && InDock->Showing && IsNear(*InDock, Pointer);
}

// A floating bar is near to a horizontal dock when any part of it is, and to a vertical dock when the pointer is. The
// bar may thus be docked while the pointer is still outside: FReach is then added to the pointer, so that the bar
// leaves the dock only after the pointer has moved away by the docking distance.
bool TkelToolBar::IsNear(const TkelDock& Candidate, const TPoint& Pointer) const
{
    const bool WithBar = FFloating && !Candidate.Axis().IsVertical();
    const TPoint Reach = Parent == &Candidate ? FReach : TPoint();
    const TRect Area = WithBar ? FloatingRect() : Square(Pointer + Reach, DockingDistance);
    TRect Common;
    return IntersectRect(Common, Area, CatchArea(Candidate));
}

// The bar inside its frame, on the screen.
TRect TkelToolBar::FloatingRect() const
{
    TRect R;
    IntersectRect(R, BoundsRect, FFrame->ClientRect);
    InflateRect(R, -1, -1);
    const TPoint Origin = FFrame->ClientOrigin;
    OffsetRect(R, Origin.X, Origin.Y);
    return R;
}

TkelToolBar* TkelToolBar::FindToolBar(const TPoint& Point) const
{
    const TkelDock* InDock = Dock;
    if (!InDock || !InDock->TakesBars())
        return nullptr;
    for (TkelToolBar* Bar : InDock->ShownBars())
        if (Bar != this && HasPassed(*Bar, Point))
            return Bar;
    return nullptr;
}

// The pointer is beyond the middle of the other bar, seen from this bar's row.
bool TkelToolBar::HasPassed(const TkelToolBar& Other, const TPoint& P) const
{
    const TDockAxis Axis = Dock->Axis();
    const int Pointer = Axis.Row(*this) + Axis.Across(P);
    const int Begin = Axis.Row(Other) + 1;
    const int Middle = (Begin + Axis.NextRow(Other) - 1) / 2;
    return Axis.Row(*this) < Begin ? Middle < Pointer : Axis.Row(*this) > Begin && Middle > Pointer;
}

// As FindToolBar, but only among bars of other rows: when bars of the same row come first, this bar cannot leave it.
TkelToolBar* TkelToolBar::FindInOtherRows(const TPoint& P) const
{
    const TDockAxis Axis = Dock->Axis();
    for (TkelToolBar* Bar : Dock->ShownBars())
        if (Axis.Row(*Bar) != Axis.Row(*this) && HasPassed(*Bar, P))
            return Bar;
    return nullptr;
}

// ---- the frame

void TkelToolBar::FloatToPos(int X, int Y)
{
    if (!FFloating) {
        if (Visible && FHasRow)
            GiveUpRow();
        if (FDragBox->Visible)
            LieFree();
    }
    PlaceFrame({X, Y}, false);
}

// Exactly: Place is that of the bar itself, computed with the real measures of the frame.
void TkelToolBar::PlaceFrame(TPoint Place, bool Exactly)
{
    const bool Begins = !FFloating;
    const TStillThere IsHere(this);
    if (Begins)
        MakeFrame();
    if (!IsHere)
        return;
    if (Exactly)
        Place = Place - FFrame->BarOffset();
    FFrame->SetBounds(Place.X, Place.Y - CapSize, FFrame->Width, FFrame->Height);
    if (Begins)
        EnterFrame();
}

void TkelToolBar::MakeFrame()
{
    const TStillThere IsHere(this);
    if (!IsLayoutSuspended())
        DoFloat();
    if (!IsHere)
        return;
    FFrame = new TFPForm97(nullptr);
    FFloating = true;
    FFrame->CarryBar(*this, AllowResize, FCloseBox);
}

void TkelToolBar::EnterFrame()
{
    const bool WasVisible = Visible;
    if (WasVisible) {
        FFrame->ShowWithForm();
        Hide();
    }
    SetBounds(0, 0, Width, Height);
    Parent = FFrame;
    if (WasVisible)
        Show();
}

bool TkelToolBar::isFloat(int& X, int& Y) const
{
    X = FFloating ? FFrame->Left + 1 : Left;
    Y = FFloating ? FFrame->Top + CapSize + 1 : Top;
    return FFloating;
}

// Returns the frame, which is the caller's to release, or nullptr.
TFPForm97* TkelToolBar::LeaveFrame()
{
    if (FFrame)
        FFrame->ForgetBar();
    if (FFrame && FRowThickness > 0 && !IsDestroying())
        SetBounds(Left, Top, Width, FRowThickness);
    FFloating = false;
    return std::exchange(FFrame, nullptr);
}

// Releases the frame instead of deleting it: this may be called by one of its own handlers.
void TkelToolBar::CloseFrame(TFPForm97* Emptied)
{
    if (!Emptied)
        return;
    Emptied->Hide();
    Emptied->Release();
}
