// What bitmap buttons, speed buttons and the library's own buttons have in common.
#pragma once

#include "vcl/system/TypeInfo.h"

// Where the glyph stands beside the caption.
VCL_ENUM(TButtonLayout, blGlyphLeft, blGlyphRight, blGlyphTop, blGlyphBottom);
// What a button looks like. bsExclusive: it stays down.
VCL_ENUM(TButtonState, bsUp, bsDisabled, bsDown, bsExclusive);
VCL_ENUM(TButtonStyle, bsAutoDetect, bsWin31, bsNew);

// How many pictures a glyph holds side by side, one for each state from bsUp on: 1 to 4.
using TNumGlyphs = int;
