// Parts that buttons of different kinds draw alike.
#pragma once

#include "vcl/buttons/ButtonTypes.h"
#include "vcl/graphics/Types.h"

class TCanvas;

// Draws the face of a push button in Client and returns what is inside of its border. IsDown: pressed; IsFocused: with
// the black frame of a default button. The other styles are drawn like bsNew; BevelWidth and IsRounded were theirs.
TRect DrawButtonFace(TCanvas* Canvas, const TRect& Client, int BevelWidth, TButtonStyle Style, bool IsRounded,
                     bool IsDown, bool IsFocused);
