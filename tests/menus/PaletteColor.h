// The colours that colour menus offer, from where they have them.
#pragma once

#include "vcl/graphics/Color.h"

// An entry of the system's default palette.
inline TColor PaletteColor(int Index)
{
    PALETTEENTRY Entry;
    GetPaletteEntries(static_cast<HPALETTE>(GetStockObject(DEFAULT_PALETTE)), static_cast<UINT>(Index), 1, &Entry);
    return TColor(RGB(Entry.peRed, Entry.peGreen, Entry.peBlue));
}
