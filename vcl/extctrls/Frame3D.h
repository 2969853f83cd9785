// Frame3D: the lines that make a control look raised or lowered.
#pragma once

#include "vcl/graphics/Color.h"
#include "vcl/graphics/Types.h"

class TCanvas;

// Draws Width frames, one pixel each and each inside the one before: left and top in TopColor, right and bottom in
// BottomColor, which also has the corners on the lower left and upper right. R becomes what is inside of them.
void Frame3D(TCanvas* Canvas, TRect& R, TColor TopColor, TColor BottomColor, int Width);
