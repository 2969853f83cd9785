// TTypeAhead: what was typed quickly into a list, to find the item that begins so.
#pragma once

#include "vcl/system/Utf.h"

#include <cstdint>

class TTypeAhead {
public:
    // Takes a character as it is typed and returns what the wanted item begins with. Characters belong together that
    // come within half a second of each other.
    const TWideString& Type(char16_t Character);
    // Forgets the last character, which did not lead to an item.
    void Drop() { FTyped.pop_back(); }

private:
    TWideString FTyped;
    uint64_t FLast = 0;
};
