// Finds an owner's components by name in constant time: an open-addressing table of plain pointers.
#pragma once

#include "vcl/system/Ident.h"

#include <cstddef>
#include <vector>

class TComponent;

class TNameTable {
public:
    // Component has a name that the table does not hold yet.
    void Insert(TComponent* Component);
    // Component's name is still the one it was inserted with. Does nothing when it is not in the table.
    void Remove(TComponent* Component);
    // nullptr when there is none of that name (case does not matter).
    TComponent* Find(std::string_view Name) const;

private:
    size_t Mask() const { return FSlots.size() - 1; }
    void Place(TComponent* Component);
    void Grow();

    std::vector<TComponent*> FSlots; // size is zero or a power of two, at least a third of it empty
    size_t FCount = 0;
};
