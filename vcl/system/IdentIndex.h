// Finds things by their name, whose case does not matter, in constant time: an open-addressing table of plain pointers.
#pragma once

#include "vcl/system/Ident.h"

#include <bit>
#include <cstddef>
#include <vector>

// Item has a Name. The items stay where they are while the index is in use; of two with one name the first is found.
template <class Item>
class TIdentIndex {
public:
    // For at most Count items. What was in the index is forgotten.
    void Reset(size_t Count) { FSlots.assign(Count == 0 ? 0 : std::bit_ceil(Count * 2), nullptr); }

    void Add(const Item& Added)
    {
        size_t Slot = IdentHash(Added.Name) & Mask();
        while (FSlots[Slot])
            Slot = (Slot + 1) & Mask();
        FSlots[Slot] = &Added;
    }

    // nullptr when there is none of that name.
    const Item* Find(std::string_view Name) const
    {
        if (FSlots.empty())
            return nullptr;
        for (size_t Slot = IdentHash(Name) & Mask(); FSlots[Slot]; Slot = (Slot + 1) & Mask())
            if (SameIdent(FSlots[Slot]->Name, Name))
                return FSlots[Slot];
        return nullptr;
    }

private:
    size_t Mask() const { return FSlots.size() - 1; }

    std::vector<const Item*> FSlots; // size is zero or a power of two, at least half of it empty
};
