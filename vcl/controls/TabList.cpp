#include "vcl/controls/TabList.h"

#include "vcl/controls/WinControl.h"

#include <algorithm>

void TTabList::Remove(TWinControl* Control)
{
    // From the end: the last child is mostly removed first.
    const auto Found = std::find(FControls.rbegin(), FControls.rend(), Control);
    if (Found != FControls.rend())
        FControls.erase(std::next(Found).base());
}

TTabOrder TTabList::PlaceOf(const TWinControl* Control) const
{
    return static_cast<TTabOrder>(std::ranges::find(FControls, Control) - FControls.begin());
}

void TTabList::Move(TWinControl* Control, TTabOrder Place)
{
    std::erase(FControls, Control);
    FControls.insert(FControls.begin() + std::min<size_t>(static_cast<size_t>(Place), FControls.size()), Control);
}

void TTabList::TakeReadPlaces()
{
    std::vector<TWinControl*> Placed(FControls.size());
    std::vector<TWinControl*> Others;
    for (TWinControl* Control : FControls) {
        const TTabOrder Place = std::exchange(Control->FReadTabOrder, -1);
        if (Place >= 0 && static_cast<size_t>(Place) < Placed.size() && !Placed[Place])
            Placed[Place] = Control;
        else
            Others.push_back(Control);
    }
    size_t Next = 0;
    for (TWinControl*& Slot : Placed)
        if (!Slot)
            Slot = Others[Next++];
    FControls = std::move(Placed);
}

void TTabList::AppendAll(std::vector<TWinControl*>& List) const
{
    for (TWinControl* Control : FControls) {
        List.push_back(Control);
        Control->FTabList.AppendAll(List);
    }
}
