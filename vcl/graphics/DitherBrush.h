// The checkerboard pattern: of what is switched on, and of lines that are dragged.
#pragma once

#include "vcl/graphics/Types.h"

// A checkerboard of one bit a pixel: in the text colour of the context that it is used in where x and y are both even
// or both odd, in the context's background colour elsewhere. Made on first use, kept until the program ends. Not to be
// deleted.
HBRUSH DitherBrush();

// Fills R with the checkerboard of clBtnHighlight and clBtnFace of buttons that stay down and of checked menu items. It
// starts at the context's logical point (0, 0) wherever that lies on the device: what is drawn in a buffer and what is
// drawn on the window fit together.
void FillDithered(HDC Context, const TRect& R);
