// The checkerboard of button face and highlight that fills what is switched on: buttons that stay down, checked menu
// items.
#pragma once

#include "vcl/graphics/Types.h"

// The pattern, 8 by 8 pixels: clBtnHighlight where x and y have the same parity, clBtnFace elsewhere. Made on first
// use, kept until the program ends, and made anew when these colours change. Not to be deleted.
HBRUSH DitherBrush();

// Fills R with the pattern, which starts at the context's logical point (0, 0) wherever that lies on the device: what
// is drawn in a buffer and what is drawn on the window fit together.
void FillDithered(HDC Context, const TRect& R);
