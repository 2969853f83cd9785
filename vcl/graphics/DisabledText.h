// Text of what is disabled.
#pragma once

#include "vcl/graphics/Types.h"

#include <string_view>

// DrawText in the font of Context, engraved: in the button's shadow colour over its highlight, which lies at Highlight
// from it, to the right and below.
void DrawDisabledText(HDC Context, std::string_view Text, TRect R, unsigned Flags, const TPoint& Highlight = {1, 1});
