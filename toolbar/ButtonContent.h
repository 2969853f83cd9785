// A button's glyph and caption: where they stand, and how the caption is drawn.
#pragma once

#include "vcl/buttons/ButtonTypes.h"
#include "vcl/graphics/Types.h"

#include <string_view>

class TCanvas;
class TFont;

struct TButtonContent {
    TPoint Glyph;
    TPoint Caption; // upper left corners
};

// Puts glyph and caption, 4 pixels apart, side by side or one above the other, and the pair into the middle of R. What
// is larger than R sticks out on both sides.
TButtonContent PlaceContent(const TRect& R, const TSize& Glyph, const TSize& Caption, TButtonLayout Layout);

// The size of a caption in one line, without the & of its accelerator. The canvas takes on the font; with an empty text
// it stays as it is and the size is 0.
TSize MeasureCaption(TCanvas* Canvas, TFont* Font, std::string_view Text);
// Draws a caption in the middle of R, in one line, over what is there already. Disabled: embossed in the system's
// colours, with the highlight at Highlight from the shadow. The canvas takes on the font and a clear brush.
void DrawButtonCaption(TCanvas* Canvas, TFont* Font, std::string_view Text, TRect R, bool Disabled,
                       const TPoint& Highlight = {1, 1});
