// Measuring text where there is no window to do it on.
#pragma once

#include "vcl/system/WindowsApi.h"

class TFont;

// A context for measuring only. It is there as long as the program runs; who selects objects into it takes them out
// again.
HDC MeasureContext();

// A line's height in pixels.
int LineHeight(const TFont* Font);
