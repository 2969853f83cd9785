// How bars lie in a dock, and items in a bar.
#include "toolbar/TBDragBox.h"
#include "toolbar/ToolBar.h"
#include "vcl/classes/StillThere.h"
#include "vcl/forms/Application.h"

#include <algorithm>
#include <limits>

namespace {

// Exchanges x and y: a control keeps its place and length along a bar that turns.
void Transpose(TControl& Control)
{
    Control.SetBounds(Control.Top, Control.Left, Control.Height, Control.Width);
}

bool IsAlignedVertically(const TControl& Control)
{
    return Control.Align == alTop || Control.Align == alBottom;
}

// Whether two neighbours in the list are in the wrong order. In a vertical bar only items aligned alTop or alBottom are
// compared; others keep their place in the list, and items are not moved past them.
bool AreSwapped(const TControl& First, const TControl& Second, bool Vertical)
{
    if (!Vertical)
        return First.Left > Second.Left;
    return IsAlignedVertically(First) && IsAlignedVertically(Second) && First.Top > Second.Top;
}

void Turn(TControl& Item, bool Vertical)
{
    const TAlign NearEnd = Vertical ? alTop : alLeft;
    const TAlign FarEnd = Vertical ? alBottom : alRight;
    const TAlign FarEndBefore = Vertical ? alRight : alBottom;
    if (Item.Align == NearEnd || Item.Align == FarEnd)
        return;
    Item.Align = Item.Align == FarEndBefore ? FarEnd : NearEnd;
    Transpose(Item);
}

} // namespace

// ---- items

void TkelToolBar::SortControls()
{
    FItems.clear();
    for (int I = 0; I < ControlCount; ++I)
        FItems.push_back(Controls[I]);
    const bool Vertical = Axis().IsVertical();
    for (bool Swapped = true; std::exchange(Swapped, false);)
        for (size_t I = 1; I < FItems.size(); ++I)
            if (AreSwapped(*FItems[I - 1], *FItems[I], Vertical)) {
                std::swap(FItems[I - 1], FItems[I]);
                Swapped = true;
            }
}

void TkelToolBar::CorrectAlign()
{
    if (Dock && Dock->TakesBars())
        TurnItems(Dock->Axis().IsVertical());
    else if (FFloating)
        TurnItems(false);
}

// Without laying out the items in between: turned and unturned items would be placed in a wrong order.
void TkelToolBar::TurnItems(bool Vertical)
{
    const bool HasTurned = std::exchange(FUpright, Vertical) != Vertical;
    DisableAlign();
    for (TControl* Item : FItems)
        if (Item->Align != alClient && (Item->Align != alNone || HasTurned))
            Turn(*Item, Vertical);
    EnableAlign();
}

// Turns the whole bar.
void TkelToolBar::TurnTo(bool Vertical)
{
    FAnchor = {FAnchor.Y, FAnchor.X};
    DisableAlign();
    SetBounds(Left, Top, Height, Width);
    TurnItems(Vertical);
    EnableAlign();
}

void TkelToolBar::PlaceDragBox()
{
    const bool Horizontal = Dock && Dock->TakesBars() && !Axis().IsVertical();
    Turn(*FDragBox, !Horizontal);
    FDragBox->SetBounds(0, 0, FDragBox->Width, FDragBox->Height);
}

// ---- in and out of a dock

// How the bar looks in a dock: raised and with its grip.
void TkelToolBar::SetDockedLook(bool Docked)
{
    DisableAlign();
    BevelInner = Docked ? bvRaised : bvNone;
    FDragBox->Visible = Docked;
    EnableAlign();
}

void TkelToolBar::InsertToDock()
{
    TkelDock* InDock = Dock;
    if (!InDock || !InDock->TakesBars())
        return;
    const TStillThere IsHere(this);
    if (!IsLayoutSuspended())
        DoStatic();
    if (!IsHere || Dock != InDock)
        return;
    FHasRow = true;
    const TDockAxis Axis = InDock->Axis();
    DisableAlign();
    SetDockedLook(true);
    if (Axis.IsVertical() ? Width > Height : Height > Width)
        TurnTo(Axis.IsVertical());
    FUpright = Axis.IsVertical();
    PlaceDragBox();
    EnableAlign();
    const int Place = Axis.Thickness(*InDock);
    Axis.SetRow(*this, Place);
    if (Axis.IsVertical() || LeadsRow())
        Axis.Grow(*InDock, Axis.Thickness(*this));
    Show();
    if (HandleAllocated() && IsWindowVisible(Handle) && Axis.Start(*this) >= Axis.Length(*InDock))
        Aligning();
    CaptureDrag();
}

// No shown bar of the same row begins further left.
bool TkelToolBar::LeadsRow() const
{
    const auto IsBefore = [this](const TkelToolBar* Bar) {
        return Bar != this && Bar->Top == Top && Bar->Height == Height && Bar->Left < Left;
    };
    const std::vector<TkelToolBar*> Bars = Dock->ShownBars();
    return std::none_of(Bars.begin(), Bars.end(), IsBefore);
}

void TkelToolBar::DeleteFromDock()
{
    TkelDock* InDock = Dock;
    if (!InDock || !InDock->TakesBars())
        return;
    GiveUpRow();
    LieFree();
    if (!IsLayoutSuspended())
        Show();
}

// The row goes when no other bar is in it, and those behind it move up.
void TkelToolBar::GiveUpRow()
{
    TkelDock* InDock = Dock;
    if (!InDock || !InDock->TakesBars())
        return;
    FHasRow = false;
    const TDockAxis Axis = InDock->Axis();
    FRowThickness = Axis.Thickness(*this);
    if (!InDock->FindInRow(Axis.Row(*this), Axis.Thickness(*this), this)) {
        const int Thick = Axis.Thickness(*this);
        const int Behind = Axis.NextRow(*this);
        for (int I = 0; I < InDock->ControlCount; ++I) {
            TControl* Control = InDock->Controls[I];
            if (Axis.Row(*Control) >= Behind)
                Axis.SetRow(*Control, Axis.Row(*Control) - Thick);
        }
        Axis.Grow(*InDock, -Thick);
    }
}

// Makes the bar horizontal and hides its grip, as for a frame.
void TkelToolBar::LieFree()
{
    SetDockedLook(false);
    if (Dock && Dock->TakesBars() && Axis().IsVertical() && Height > Width) {
        for (TControl* Item : FItems)
            if (Item->Align == alRight) // in a vertical bar alBottom is the far end
                Item->Align = alLeft;
        TurnTo(false);
    }
}

int TkelToolBar::isInsert(const TkelToolBar* ToolBar) const
{
    const TkelDock* InDock = Dock;
    if (!ToolBar || !InDock || !InDock->TakesBars())
        return -1;
    const TDockAxis Axis = InDock->Axis();
    if (Axis.Thickness(*this) != Axis.Thickness(*ToolBar))
        return -1;
    const int DockLength = Axis.Length(*InDock);
    int First = DockLength;
    int Last = std::numeric_limits<int>::min();
    for (const TkelToolBar* Bar : InDock->ShownBars()) {
        if (Axis.Row(*Bar) != Axis.Row(*this))
            continue;
        First = std::min(First, Axis.Start(*Bar));
        Last = std::max(Last, Axis.End(*Bar));
    }
    if (Last == std::numeric_limits<int>::min())
        return -1;
    if (Axis.Length(*ToolBar) <= First)
        return 0;
    return DockLength - Last < Axis.Length(*ToolBar) ? -1 : Last;
}

// ---- trading places

void TkelToolBar::SwapToolBar(TkelToolBar* ToolBar)
{
    if (!ToolBar || ToolBar == this || !Dock || ToolBar->Dock != Dock || !Dock->TakesBars())
        return;
    const TDockAxis Axis = Dock->Axis();
    const bool IsUpper = Axis.Row(*this) < Axis.Row(*ToolBar);
    TkelToolBar& Upper = IsUpper ? *this : *ToolBar;
    TkelToolBar& Lower = IsUpper ? *ToolBar : *this;
    if (Axis.Row(Upper) == Axis.Row(Lower)) {
        PassInRow(*ToolBar);
    } else if (const int Place = ToolBar->isInsert(this); Place >= 0) {
        JoinRow(*ToolBar, Place, Axis.Row(Lower));
        return;
    } else {
        TradeRows(Upper, Lower, *ToolBar);
    }
    Application->ProcessMessages();
}

// Moves all bars of the dock whose row begins behind Row by so many pixels across the dock.
void TkelToolBar::MoveRowsBehind(int Row, int By)
{
    const TDockAxis Axis = Dock->Axis();
    for (TkelToolBar* Bar : Dock->AllBars())
        if (Axis.Row(*Bar) > Row)
            Axis.SetRow(*Bar, Axis.Row(*Bar) + By);
}

// Moves the bar into the row of Other, at Place. The rows behind LowerRow move up by one row. That is only right when
// the bar leaves an empty row at or below LowerRow; the rule applies in every case, and ArrangeRows corrects the rest.
void TkelToolBar::JoinRow(TkelToolBar& Other, int Place, int LowerRow)
{
    TkelDock* InDock = Dock;
    const TDockAxis Axis = InDock->Axis();
    const int Thick = Axis.Thickness(Other);
    Axis.SetStart(*this, Place);
    Axis.SetRow(*this, Axis.Row(Other));
    MoveRowsBehind(LowerRow, -Thick);
    Axis.Grow(*InDock, -Thick);
}

// The two rows change places; the rows between and behind them move by the difference in thickness. Bars that shared a
// row with this one share its new row, too.
void TkelToolBar::TradeRows(TkelToolBar& Upper, TkelToolBar& Lower, TkelToolBar& Other)
{
    const TDockAxis Axis = Dock->Axis();
    const int Difference = Axis.Thickness(Lower) - Axis.Thickness(Upper);
    MoveRowsBehind(Axis.Row(Lower), -Difference);
    const int UpperRow = Axis.Row(Upper);
    Axis.SetRow(Upper, Axis.Row(Lower));
    MoveRowsBehind(UpperRow, Difference);
    Axis.SetRow(Lower, UpperRow);
    for (TkelToolBar* Bar : Dock->AllBars())
        if (Bar != &Other && Axis.Row(*Bar) == Axis.Row(Other))
            Axis.SetRow(*Bar, Axis.Row(*this));
}

// This bar stops in front of the one it runs into, and what it still covers moves on behind it.
void TkelToolBar::PassInRow(TkelToolBar& Other)
{
    const TDockAxis Axis = Dock->Axis();
    const int OtherStart = Axis.Start(Other);
    if (Axis.Start(*this) < OtherStart && OtherStart < Axis.End(*this))
        Axis.SetStart(*this, OtherStart - Axis.Length(*this));
    if (Axis.End(*this) > OtherStart && Axis.End(Other) > Axis.Start(*this))
        Axis.SetStart(Other, Axis.End(Other));
    if (Axis.Start(Other) >= Axis.Length(*Dock))
        Other.Aligning();
}
