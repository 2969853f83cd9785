#include "toolbar/DockRows.h"

#include "toolbar/ToolBar.h"
#include "vcl/classes/StillThere.h"
#include "vcl/system/Scope.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

// Across the dock, where nobody can see any of it.
bool HasBarOutside(const TkelDock& Dock)
{
    const TDockAxis Axis = Dock.Axis();
    const std::vector<TkelToolBar*> Bars = Dock.ShownBars();
    return std::any_of(Bars.begin(), Bars.end(), [&](const TkelToolBar* Bar) {
        return Axis.Row(*Bar) >= Axis.Thickness(Dock) || Axis.NextRow(*Bar) <= 0;
    });
}

// Equal ones keep their order. The lists are short.
template <class T, class TBefore>
void SortKeepingOrder(std::vector<T>& Items, TBefore Before)
{
    for (auto Item = Items.begin(); Item != Items.end(); ++Item)
        std::rotate(std::upper_bound(Items.begin(), Item, *Item, Before), Item, Item + 1);
}

} // namespace

// ---- reading

TDockRows::TDockRows(const TkelDock& Dock) : FDockThickness(Dock.Axis().Thickness(Dock))
{
    const TDockAxis Axis = Dock.Axis();
    for (TkelToolBar* Bar : Dock.ShownBars())
        RowAt(Axis.Row(*Bar), Axis.Thickness(*Bar)).Bars.push_back({Bar, Axis.Start(*Bar), Axis.Length(*Bar)});
    Sort();
}

TDockRows TDockRows::Saved(const TkelDock& Dock)
{
    constexpr int AtTheEnd = std::numeric_limits<int>::max() / 2;
    const TDockAxis Axis = Dock.Axis();
    TDockRows Result;
    for (TkelToolBar* Bar : Dock.ShownBars()) {
        const auto Saved = Bar->SavedRow();
        const int Row = Saved ? Saved->Row : AtTheEnd + Axis.Row(*Bar);
        const int Start = Saved ? Saved->Start : Axis.Start(*Bar);
        Result.RowAt(Row, Axis.Thickness(*Bar)).Bars.push_back({Bar, Start, Axis.Length(*Bar)});
    }
    Result.Sort();
    for (TRow& Row : Result.FRows)
        PushForward(Row.Bars, 0);
    return Result;
}

TDockRows::TRow& TDockRows::RowAt(int Place, int Thickness)
{
    const auto IsRow = [&](const TRow& Row) { return Row.Place == Place && Row.Thickness == Thickness; };
    const auto Found = std::find_if(FRows.begin(), FRows.end(), IsRow);
    return Found != FRows.end() ? *Found : FRows.emplace_back(Place, Thickness);
}

void TDockRows::Sort()
{
    SortKeepingOrder(FRows, [](const TRow& A, const TRow& B) { return A.Place < B.Place; });
    for (TRow& Row : FRows)
        SortKeepingOrder(Row.Bars, [](const TPlace& A, const TPlace& B) { return A.Start < B.Start; });
}

bool TDockRows::AreBarsInOrder(const TkelDock& Dock)
{
    const TDockAxis Axis = Dock.Axis();
    const int Length = Axis.Length(Dock);
    const std::vector<TkelToolBar*> Bars = Dock.ShownBars();
    for (size_t I = 0; I < Bars.size(); ++I) {
        const bool SticksOut = Axis.Start(*Bars[I]) < 0 || Axis.End(*Bars[I]) > Length;
        if (SticksOut && Axis.Length(*Bars[I]) <= Length)
            return false;
        TRect Common;
        for (size_t J = 0; J < I; ++J)
            if (IntersectRect(Common, Bars[I]->BoundsRect, Bars[J]->BoundsRect))
                return false;
    }
    return AreRowsInOrder(Dock);
}

bool TDockRows::AreRowsInOrder(const TkelDock& Dock)
{
    // Row by row: each begins where one ends. Rows of several thicknesses may begin together.
    int Reached = 0;
    int Begin = 0;
    for (const TRow& Row : TDockRows(Dock).FRows) {
        if (Row.Place != Reached && Row.Place != Begin)
            return false;
        Begin = Row.Place;
        Reached = std::max(Reached, Row.Place + Row.Thickness);
    }
    return Reached == Dock.Axis().Thickness(Dock);
}

bool TDockRows::operator==(const TDockRows& Other) const
{
    const auto SamePlace = [](const TPlace& A, const TPlace& B) { return A.Bar == B.Bar && A.Start == B.Start; };
    const auto SameRow = [&](const TRow& A, const TRow& B) {
        return std::equal(A.Bars.begin(), A.Bars.end(), B.Bars.begin(), B.Bars.end(), SamePlace);
    };
    return std::equal(FRows.begin(), FRows.end(), Other.FRows.begin(), Other.FRows.end(), SameRow);
}

bool TDockRows::Has(const TkelToolBar* Bar) const
{
    int Row = 0;
    int Start = 0;
    return Find(*Bar, Row, Start);
}

bool TDockRows::Find(const TkelToolBar& Bar, int& Row, int& Start) const
{
    for (const TRow& Each : FRows)
        for (const TPlace& Place : Each.Bars)
            if (Place.Bar == &Bar) {
                Row = Each.Place;
                Start = Place.Start;
                return true;
            }
    return false;
}

void TDockRows::Update(const TkelDock& Dock, const TkelToolBar* Except)
{
    const TDockAxis Axis = Dock.Axis();
    const std::vector<TkelToolBar*> Shown = Dock.ShownBars();
    const auto IsGone = [&](const TPlace& Place) {
        return Place.Bar == Except || std::find(Shown.begin(), Shown.end(), Place.Bar) == Shown.end();
    };
    int End = 0;
    for (TRow& Row : FRows) {
        std::erase_if(Row.Bars, IsGone);
        for (TPlace& Place : Row.Bars)
            Place.Length = Axis.Length(*Place.Bar);
        End = std::max(End, Row.Place + Row.Thickness);
    }
    for (TkelToolBar* Bar : Shown)
        if (Bar != Except && !Has(Bar)) {
            FRows.push_back({End, Axis.Thickness(*Bar), {{Bar, Axis.Start(*Bar), Axis.Length(*Bar)}}});
            End += Axis.Thickness(*Bar);
        }
}

// ---- along a row

int TDockRows::LengthOf(const std::vector<TPlace>& Bars)
{
    return std::accumulate(Bars.begin(), Bars.end(), 0,
                           [](int Sum, const TPlace& Place) { return Sum + Place.Length; });
}

// None begins before From, or before the one in front of it ends.
void TDockRows::PushForward(std::vector<TPlace>& Bars, int From)
{
    for (TPlace& Place : Bars) {
        Place.Start = std::max(Place.Start, From);
        From = Place.Start + Place.Length;
    }
}

// None ends behind To, or behind the place where the next one begins.
void TDockRows::PushBack(std::vector<TPlace>& Bars, int To)
{
    for (auto Place = Bars.rbegin(); Place != Bars.rend(); ++Place) {
        Place->Start = std::min(Place->Start, To - Place->Length);
        To = Place->Start;
    }
}

// The row is long enough for all. What has its middle before that of the newcomer goes before it, as far as there is
// room, and the rest behind it.
void TDockRows::Insert(TRow& Row, TPlace New, int DockLength)
{
    const auto IsBefore = [&](const TPlace& Place) {
        return 2 * Place.Start + Place.Length < 2 * New.Start + New.Length;
    };
    const auto Middle = std::find_if_not(Row.Bars.begin(), Row.Bars.end(), IsBefore);
    std::vector<TPlace> Before(Row.Bars.begin(), Middle);
    std::vector<TPlace> Behind(Middle, Row.Bars.end());
    while (!Before.empty() && LengthOf(Before) > New.Start &&
           New.Start + New.Length + LengthOf(Behind) + Before.back().Length <= DockLength) {
        Behind.insert(Behind.begin(), Before.back());
        Before.pop_back();
    }
    while (!Behind.empty() && New.Start + New.Length + LengthOf(Behind) > DockLength &&
           LengthOf(Before) + Behind.front().Length <= New.Start) {
        Before.push_back(Behind.front());
        Behind.erase(Behind.begin());
    }
    New.Start = std::max(std::min(New.Start, DockLength - LengthOf(Behind) - New.Length), LengthOf(Before));
    PushBack(Before, New.Start);
    PushForward(Before, 0);
    PushForward(Behind, New.Start + New.Length);
    PushBack(Behind, DockLength);
    Row.Bars = Before;
    Row.Bars.push_back(New);
    Row.Bars.insert(Row.Bars.end(), Behind.begin(), Behind.end());
}

// ---- laying anew

void TDockRows::Add(TkelToolBar& Bar, int Middle, int Start, int DockLength)
{
    const TDockAxis Axis = Bar.Axis();
    const int Length = Axis.Length(Bar);
    const int Thickness = Axis.Thickness(Bar);
    const TPlace New{&Bar, std::max(std::min(Start, DockLength - Length), 0), Length};
    const auto Row = std::find_if(FRows.begin(), FRows.end(),
                                  [&](const TRow& Each) { return Middle < Each.Place + Each.Thickness; });
    if (Row == FRows.end()) {
        FRows.push_back({FDockThickness, Thickness, {New}});
        return;
    }
    if (Row->Bars.empty()) {
        Row->Thickness = Thickness;
        Row->Bars = {New};
    } else if (Row->Thickness == Thickness && LengthOf(Row->Bars) + Length <= DockLength) {
        Insert(*Row, New, DockLength);
    } else {
        const bool IsBehind = 2 * Middle >= 2 * Row->Place + Row->Thickness;
        FRows.insert(IsBehind ? Row + 1 : Row, {Row->Place, Thickness, {New}});
    }
}

void TDockRows::Fit(int DockLength)
{
    for (size_t I = 0; I < FRows.size(); ++I)
        FitRow(I, DockLength);
}

void TDockRows::BringIn(int DockLength)
{
    const auto IsOut = [=](const TPlace& Place) {
        return Place.Start >= DockLength || Place.Start + Place.Length <= 0;
    };
    for (size_t I = 0; I < FRows.size(); ++I)
        if (std::any_of(FRows[I].Bars.begin(), FRows[I].Bars.end(), IsOut))
            FitRow(I, DockLength);
}

void TDockRows::FitRow(size_t Index, int DockLength)
{
    TRow Rest{FRows[Index].Place, FRows[Index].Thickness, {}};
    std::vector<TPlace>& Bars = FRows[Index].Bars;
    while (Bars.size() > 1 && LengthOf(Bars) > DockLength) {
        Rest.Bars.insert(Rest.Bars.begin(), Bars.back());
        Bars.pop_back();
    }
    PushForward(Bars, 0);
    PushBack(Bars, DockLength);
    PushForward(Bars, 0); // one that is longer than the dock shows its beginning
    if (!Rest.Bars.empty())
        FRows.insert(FRows.begin() + static_cast<ptrdiff_t>(Index) + 1, Rest);
}

void TDockRows::LayIn(TkelDock& Dock)
{
    std::erase_if(FRows, [](const TRow& Row) { return Row.Bars.empty(); });
    FDockThickness = 0;
    for (TRow& Row : FRows) {
        Row.Place = FDockThickness;
        FDockThickness += Row.Thickness;
    }
    PutBackIn(Dock);
}

void TDockRows::PutBackIn(TkelDock& Dock) const
{
    const TDockAxis Axis = Dock.Axis();
    const int Grows = FDockThickness - Axis.Thickness(Dock);
    const TStillThere IsHere(&Dock);
    Dock.FLaying = true;
    const TScopeExit Done([&] {
        if (IsHere)
            Dock.FLaying = false;
    });
    // The form is laid out anew with it, and handlers of that may delete bars.
    if (Grows > 0)
        Axis.Grow(Dock, Grows);
    if (!IsHere)
        return;
    const std::vector<TkelToolBar*> Shown = Dock.ShownBars();
    for (const TRow& Row : FRows)
        for (const TPlace& Place : Row.Bars)
            if (std::find(Shown.begin(), Shown.end(), Place.Bar) != Shown.end())
                Axis.SetPlace(*Place.Bar, Place.Start, Row.Place);
    if (Grows < 0)
        Axis.Grow(Dock, Grows);
}

// ---- within the length of the dock

void TFittedRows::Fit(TkelDock& Dock)
{
    const TDockRows Now(Dock);
    if (Now != FFitted)
        FWished = Now;
    TDockRows Next = FWished;
    Next.Update(Dock);
    Next.BringIn(Dock.Axis().Length(Dock));
    if (Next != Now || HasBarOutside(Dock))
        Next.LayIn(Dock);
    FFitted = Next;
}

void TFittedRows::FindWished(const TkelToolBar& Bar, int& Row, int& Start) const
{
    if (TDockRows(*Bar.Dock) == FFitted)
        FWished.Find(Bar, Row, Start);
}
