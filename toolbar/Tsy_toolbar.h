// The unit Tsy_toolbar: glyph strips, tool buttons and what they are drawn with, and the items of tool bars.
#pragma once

#include "toolbar/ComboButton.h"
#include "toolbar/ComboPopupButton.h"
#include "toolbar/Dock.h"
#include "toolbar/DrawBitmapTransparent.h"
#include "toolbar/Glyphs.h"
#include "toolbar/HandCursor.h"
#include "toolbar/PopupButton.h"
#include "toolbar/SpeedButton.h"
#include "toolbar/TBButtons.h"
#include "toolbar/TBDragBox.h"
#include "toolbar/TBSeparator.h"
#include "toolbar/ToolBar.h"
#include "toolbar/ToolBarPosition.h"
#include "vcl/graphics/DitherBrush.h"
