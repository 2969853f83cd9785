// What the owner-drawing menus of both kinds, main and popup, have in common.
#pragma once

#include "vcl/graphics/Canvas.h"
#include "vcl/menus/Menu.h"
#include "vcl/system/Message.h"

// msStandard: the system draws the items. msOwnerDraw: the menu's events do.
VCL_ENUM(TMenuStyle, msStandard, msOwnerDraw);

// Width and Height come as 0 and are in pixels; the system adds to the width what it needs for itself.
using TMeasureMenuItem = TEvent<void(TMenuItem* MenuItem, int& Width, int& Height, TCanvas* Canvas)>;
// ItemState has the system's ODS_ bits: 1 selected, 2 grayed, 8 checked. The canvas comes with a solid brush and no
// pen; what is drawn outside of ItemRect may be covered again.
using TDrawMenuItem = TEvent<void(TMenuItem* MenuItem, TCanvas* Canvas, int ItemState, const TRect& ItemRect)>;

struct TWMDrawItem : TMessage {
    DRAWITEMSTRUCT* Request() const { return reinterpret_cast<DRAWITEMSTRUCT*>(LParam); }
};
struct TWMMeasureItem : TMessage {
    MEASUREITEMSTRUCT* Request() const { return reinterpret_cast<MEASUREITEMSTRUCT*>(LParam); }
};
struct TWMMenuChar : TMessage {
    // A UTF-16 code unit.
    uint16_t Char() const { return static_cast<uint16_t>(WParam); }
    HMENU Menu() const { return reinterpret_cast<HMENU>(LParam); }
};
