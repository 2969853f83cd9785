#include "vcl/classes/List.h"

#include "vcl/classes/MergeSort.h"

#include <algorithm>

namespace {
[[noreturn]] void Fail(const char* What, int Value)
{
    throw EListError(AnsiString("List ") + What + " out of bounds (" + std::to_string(Value) + ")");
}
} // namespace

void TList::CheckIndex(int Index) const
{
    if (Index < 0 || Index >= GetCount())
        Fail("index", Index);
}

void* TList::GetItems(int Index) const
{
    CheckIndex(Index);
    return FItems[static_cast<size_t>(Index)];
}

void TList::SetItems(int Index, void* Value)
{
    CheckIndex(Index);
    void* Old = FItems[static_cast<size_t>(Index)];
    if (Old == Value)
        return;
    FItems[static_cast<size_t>(Index)] = Value;
    if (Old)
        Notify(Old, lnDeleted);
    if (Value)
        Notify(Value, lnAdded);
}

void TList::SetCount(int Value)
{
    if (Value < 0)
        Fail("count", Value);
    while (GetCount() > Value)
        Delete(GetCount() - 1);
    FItems.resize(static_cast<size_t>(Value));
}

void TList::SetCapacity(int Value)
{
    if (Value < GetCount())
        Fail("capacity", Value);
    FItems.reserve(static_cast<size_t>(Value));
}

int TList::Add(void* Item)
{
    int Index = GetCount();
    Insert(Index, Item);
    return Index;
}

void TList::Insert(int Index, void* Item)
{
    if (Index < 0 || Index > GetCount())
        Fail("index", Index);
    FItems.insert(FItems.begin() + Index, Item);
    if (Item)
        Notify(Item, lnAdded);
}

void TList::Delete(int Index)
{
    CheckIndex(Index);
    void* Item = FItems[static_cast<size_t>(Index)];
    FItems.erase(FItems.begin() + Index);
    if (Item)
        Notify(Item, lnDeleted);
}

int TList::Remove(void* Item)
{
    int Index = IndexOf(Item);
    if (Index >= 0)
        Delete(Index);
    return Index;
}

void* TList::Extract(void* Item)
{
    int Index = IndexOf(Item);
    if (Index < 0)
        return nullptr;
    FItems.erase(FItems.begin() + Index);
    Notify(Item, lnExtracted);
    return Item;
}

void TList::Clear()
{
    SetCount(0);
    FItems.shrink_to_fit();
}

void TList::Exchange(int Index1, int Index2)
{
    CheckIndex(Index1);
    CheckIndex(Index2);
    std::swap(FItems[static_cast<size_t>(Index1)], FItems[static_cast<size_t>(Index2)]);
}

void TList::Move(int CurIndex, int NewIndex)
{
    CheckIndex(CurIndex);
    CheckIndex(NewIndex);
    auto From = FItems.begin() + CurIndex;
    auto To = FItems.begin() + NewIndex;
    if (From < To)
        std::rotate(From, From + 1, To + 1);
    else
        std::rotate(To, From, From + 1);
}

int TList::IndexOf(const void* Item) const
{
    auto Found = std::find(FItems.begin(), FItems.end(), Item);
    return Found == FItems.end() ? -1 : static_cast<int>(Found - FItems.begin());
}

void TList::Pack()
{
    std::erase(FItems, nullptr);
}

void TList::Sort(const std::function<int(void*, void*)>& Compare)
{
    MergeSort(FItems, [&](void* A, void* B) { return Compare(A, B) < 0; });
}

void TList::Assign(const TList* Source)
{
    if (Source == this)
        return;
    Clear();
    FItems.reserve(Source->FItems.size());
    for (void* Item : *Source)
        Add(Item);
}

void TList::Notify(void*, TListNotification)
{}
