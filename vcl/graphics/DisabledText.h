// Text of what is disabled.
#pragma once

#include "vcl/graphics/Types.h"

#include <string_view>

// DrawText in the font of Context, engraved: in the button's shadow colour over its highlight one pixel to the right
// and below.
void DrawDisabledText(HDC Context, std::string_view Text, TRect R, unsigned Flags);
