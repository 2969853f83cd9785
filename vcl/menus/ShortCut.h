// Shortcuts: a key and the shift keys that go with it, in one number.
#pragma once

#include "vcl/classes/InputTypes.h"
#include "vcl/graphics/Accelerator.h"

#include <string_view>

// The virtual key in the low byte, scShift, scCtrl and scAlt above it; scNone is none.
using TShortCut = uint16_t;
enum : TShortCut { scNone = 0, scShift = 0x2000, scCtrl = 0x4000, scAlt = 0x8000 };

// scNone when Key is no virtual key. Of Shift only ssShift, ssCtrl and ssAlt count.
TShortCut ShortCut(uint16_t Key, TShiftState Shift);
void ShortCutToKey(TShortCut ShortCut, uint16_t& Key, TShiftState& Shift);

// "Shift+Ctrl+S", as menus show it; empty for scNone and for keys without a name.
AnsiString ShortCutToText(TShortCut ShortCut);
// The reverse; case does not matter. scNone for what is no such text.
TShortCut TextToShortCut(std::string_view Text);

// The shortcut that a WM_KEYDOWN, WM_SYSKEYDOWN or CN_ form of these means now.
TShortCut KeyMessageToShortCut(const TMessage& Message);
