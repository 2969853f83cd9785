// What all lists say of an index that they do not have.
#pragma once

#include "vcl/system/Exceptions.h"

#include <string>

// Raises TError "List index out of bounds (%d)" unless Index is from 0 to Count - 1.
template <class TError = EListError>
void CheckListIndex(int Index, int Count)
{
    if (Index < 0 || Index >= Count)
        throw TError("List index out of bounds (" + std::to_string(Index) + ")");
}
