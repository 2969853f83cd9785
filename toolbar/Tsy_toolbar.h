// The unit Tsy_toolbar: glyph strips, tool buttons and what they are drawn with.
#pragma once

#include "toolbar/DitherBrush.h"
#include "toolbar/DrawBitmapTransparent.h"
#include "toolbar/Glyphs.h"
#include "toolbar/SpeedButton.h"
