// Dragging a bar, and floating.
#include "toolbar/Flpfrm97.h"
#include "toolbar/TBDragBox.h"
#include "toolbar/ToolBar.h"
#include "vcl/system/Scope.h"

#include <algorithm>

namespace {

// How near the pointer must come to a dock, in pixels.
constexpr int DockingDistance = 5;

TRect Square(const TPoint& Center, int Distance)
{
    return {Center.X - Distance, Center.Y - Distance, Center.X + Distance, Center.Y + Distance};
}

// What of the dock is nearest to a point, on the screen.
TPoint NearestPoint(const TkelDock& Dock, const TPoint& Point)
{
    const TPoint Origin = Dock.ClientOrigin;
    return {std::clamp<int>(Point.X, Origin.X, Origin.X + std::max(Dock.Width - 1, 0)),
            std::clamp<int>(Point.Y, Origin.Y, Origin.Y + std::max(Dock.Height - 1, 0))};
}

// Where a dock takes bars, on the screen: an empty one in a narrow band along its edge.
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
    inherited::MouseDown(Button, Shift, X, Y);
    if (Button != mbLeft)
        return;
    FAnchor = {X, Y};
    FReach = {};
}

// Moving windows can bring another move along before this one is done; it is dropped.
void TkelToolBar::MouseMove(TShiftState Shift, int X, int Y)
{
    if (Dragged)
        return;
    const TScopedValue<TkelToolBar*> Step(Dragged, this, nullptr);
    inherited::MouseMove(Shift, X, Y);
    if (!Shift.Contains(ssLeft) || IsDesigning())
        return;
    const TPoint P(X, Y);
    const TPoint Pointer = ClientToScreen(P);
    TkelDock* Target = FindDock(P);
    if (!Target)
        DragFree(Pointer, P);
    else if (Target == Parent)
        DragAlong(*Target, P);
    else
        DragInto(*Target, Pointer);
}

void TkelToolBar::DragAlong(TkelDock& InDock, const TPoint& P)
{
    TkelToolBar* Other = FindToolBar(P);
    const TDockAxis Axis = InDock.Axis();
    // Stopping in front of a bar of the same row would be undone by sliding on at once.
    const bool OnlyStops = Other && Axis.Row(*Other) == Axis.Row(*this) && Axis.Start(*this) < Axis.Start(*Other);
    if (!OnlyStops)
        SwapToolBar(Other);
    // Messages have been handled, which may have taken the bar elsewhere, or away altogether.
    if (Dragged == this && Parent == &InDock)
        Slide(InDock, P);
}

// The bar keeps below the pointer, inside the dock. One that is longer than its dock shows its end in a horizontal
// dock, its beginning in a vertical one.
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
    PlaceFrame(Pointer - FAnchor, true);
    CaptureDrag();
}

// Leaves the dock. The pointer keeps its place along the bar; a bar that a quick hand has left behind comes along as it
// was taken, or by its caption.
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

// So that the drag goes on when the window that had the mouse is gone, hidden or elsewhere.
void TkelToolBar::CaptureDrag()
{
    if (!IsLayoutSuspended() && Dragged == this)
        MouseCapture = true;
}

// ---- what is below the pointer

TkelDock* TkelToolBar::FindDock(const TPoint& Point) const
{
    if (!Owner)
        return nullptr;
    const TPoint Pointer = ClientToScreen(Point);
    for (int I = 0; I < Owner->ComponentCount; ++I) {
        auto* Candidate = As<TkelDock>(Owner->Components[I]);
        if (Candidate && Candidate->TakesBars() && Candidate->Showing && IsNear(*Candidate, Pointer))
            return Candidate;
    }
    return nullptr;
}

// A floating bar comes to an upper or lower dock with any part of it, to one at the side only with the pointer. One
// that has come with the pointer still outside leaves when that goes on as far as it would have to from the dock
// itself.
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
    const TDockAxis Axis = InDock->Axis();
    const int Pointer = Axis.Row(*this) + Axis.Across(Point);
    for (TkelToolBar* Bar : InDock->ShownBars()) {
        if (Bar == this)
            continue;
        const int Begin = Axis.Row(*Bar) + 1;
        const int Middle = (Begin + Axis.NextRow(*Bar) - 1) / 2;
        const bool PassedDown = Axis.Row(*this) < Begin && Middle < Pointer;
        const bool PassedUp = Axis.Row(*this) > Begin && Middle > Pointer;
        if (PassedDown || PassedUp)
            return Bar;
    }
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

// Exactly: the bar itself comes to lie at Place, whatever the frame around it measures.
void TkelToolBar::PlaceFrame(TPoint Place, bool Exactly)
{
    const bool Begins = !FFloating;
    if (Begins)
        MakeFrame();
    if (Exactly)
        Place = Place - FFrame->BarOffset();
    FFrame->SetBounds(Place.X, Place.Y - CapSize, FFrame->Width, FFrame->Height);
    if (Begins)
        EnterFrame();
}

void TkelToolBar::MakeFrame()
{
    if (!IsLayoutSuspended())
        DoFloat();
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
    FFloating = false;
    return std::exchange(FFrame, nullptr);
}

// Its own handlers may be what brought this about.
void TkelToolBar::CloseFrame(TFPForm97* Emptied)
{
    if (!Emptied)
        return;
    Emptied->Hide();
    Emptied->Release();
}
