// What the items of the library's combo boxes have in common.
#pragma once

#include "vcl/graphics/Canvas.h"

// A line of Font and one pixel, in pixels.
int ComboItemHeight(const TFont* Font);

// One line in the middle of the item, Left pixels from its left edge. An & is drawn as it stands.
void DrawComboText(TCanvas* Canvas, std::string_view Text, TRect Item, int Left);
