// How an item that its owner draws is to look.
#pragma once

#include "vcl/system/TypeInfo.h"

// By the system's ODS_ numbers.
VCL_ENUM(TOwnerDrawStateFlag, odSelected, odGrayed, odDisabled, odChecked, odFocused, odDefault, odHotLight, odInactive,
         odNoAccel, odNoFocusRect, odReserved1, odReserved2, odComboBoxEdit);
using TOwnerDrawState = Set<TOwnerDrawStateFlag>;

// Of a DRAWITEMSTRUCT's itemState.
inline TOwnerDrawState OwnerDrawState(unsigned ItemState)
{
    constexpr unsigned KnownBits = 0x1FFF;
    return TOwnerDrawState::FromBits(ItemState & KnownBits);
}
