// Where a button's glyph and caption stand.
#pragma once

#include "vcl/buttons/ButtonTypes.h"
#include "vcl/graphics/Types.h"

struct TButtonContent {
    TPoint Glyph;
    TPoint Caption; // upper left corners
};

// Puts glyph and caption, 4 pixels apart, side by side or one above the other, and the pair into the middle of R. What
// is larger than R sticks out on both sides.
TButtonContent PlaceContent(const TRect& R, const TSize& Glyph, const TSize& Caption, TButtonLayout Layout);
