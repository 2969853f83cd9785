// Measuring text where there is no window to do it on.
#pragma once

#include "vcl/graphics/Types.h"

#include <string_view>

class TFont;

// A context for measuring only. It is there as long as the program runs; who selects objects into it takes them out
// again.
HDC MeasureContext();

// Makes Rect as large as Text; Flags are the system's DT_ numbers, DT_CALCRECT among them.
void MeasureText(const TFont* Font, std::string_view Text, TRect& Rect, unsigned Flags);

// A line's height in pixels.
int LineHeight(const TFont* Font);
