// A test of points against rectangles that counts all four edges in.
#pragma once

#include "vcl/graphics/Types.h"

// True when P is inside R or on one of its edges, the right and the lower one included, unlike the system's PtInRect. A
// rectangle whose sides are in the wrong order holds no point.
bool PointInRect(const POINT& P, const TRect& R);
