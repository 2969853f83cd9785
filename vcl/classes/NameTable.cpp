#include "vcl/classes/NameTable.h"

#include "vcl/classes/Component.h"

void TNameTable::Insert(TComponent* Component)
{
    if ((FCount + 1) * 3 > FSlots.size() * 2)
        Grow();
    Place(Component);
    ++FCount;
}

void TNameTable::Place(TComponent* Component)
{
    size_t Slot = IdentHash(Component->GetName()) & Mask();
    while (FSlots[Slot])
        Slot = (Slot + 1) & Mask();
    FSlots[Slot] = Component;
}

void TNameTable::Grow()
{
    std::vector<TComponent*> Old(FSlots.empty() ? 8 : FSlots.size() * 2);
    Old.swap(FSlots);
    for (TComponent* Component : Old)
        if (Component)
            Place(Component);
}

void TNameTable::Remove(TComponent* Component)
{
    if (FSlots.empty())
        return;
    size_t Hole = IdentHash(Component->GetName()) & Mask();
    while (FSlots[Hole] != Component) {
        if (!FSlots[Hole])
            return;
        Hole = (Hole + 1) & Mask();
    }
    FSlots[Hole] = nullptr;
    --FCount;
    // Entries behind the free slot that are not in their own slot move up.
    for (size_t Next = (Hole + 1) & Mask(); FSlots[Next]; Next = (Next + 1) & Mask()) {
        size_t Home = IdentHash(FSlots[Next]->GetName()) & Mask();
        if (((Next - Home) & Mask()) < ((Next - Hole) & Mask()))
            continue;
        FSlots[Hole] = FSlots[Next];
        FSlots[Next] = nullptr;
        Hole = Next;
    }
}

TComponent* TNameTable::Find(std::string_view Name) const
{
    if (FSlots.empty())
        return nullptr;
    for (size_t Slot = IdentHash(Name) & Mask(); FSlots[Slot]; Slot = (Slot + 1) & Mask())
        if (SameIdent(FSlots[Slot]->GetName(), Name))
            return FSlots[Slot];
    return nullptr;
}
