#include "vcl/controls/ChildList.h"

#include "vcl/classes/ListIndex.h"
#include "vcl/controls/WinControl.h"

#include <algorithm>

namespace {

template <class T>
void Drop(std::vector<T*>& List, T* Item)
{
    // From the end: the last child is mostly removed first.
    const auto Found = std::find(List.rbegin(), List.rend(), Item);
    if (Found != List.rend())
        List.erase(std::next(Found).base());
}

template <class T>
void Put(std::vector<T*>& List, T* Item, int Place)
{
    Drop(List, Item);
    List.insert(List.begin() + std::clamp(Place, 0, static_cast<int>(List.size())), Item);
}

} // namespace

TControl* TChildList::At(int Index) const
{
    CheckListIndex(Index, Count());
    const auto Place = static_cast<size_t>(Index);
    if (Place < FGraphics.size())
        return FGraphics[Place];
    return FWindows[Place - FGraphics.size()];
}

void TChildList::Add(TControl* Control)
{
    if (auto* Window = As<TWinControl>(Control))
        FWindows.push_back(Window);
    else
        FGraphics.push_back(Control);
}

void TChildList::Remove(TControl* Control)
{
    if (auto* Window = As<TWinControl>(Control))
        Drop(FWindows, Window);
    else
        Drop(FGraphics, Control);
}

void TChildList::Move(TControl* Control, int Place)
{
    if (auto* Window = As<TWinControl>(Control))
        Put(FWindows, Window, Place - static_cast<int>(FGraphics.size()));
    else
        Put(FGraphics, Control, Place);
}

HWND TChildList::WindowAbove(const TWinControl* Control) const
{
    auto Next = std::ranges::find(FWindows, Control);
    while (Next != FWindows.end() && ++Next != FWindows.end())
        if ((*Next)->HandleAllocated())
            return (*Next)->Handle;
    return nullptr;
}
