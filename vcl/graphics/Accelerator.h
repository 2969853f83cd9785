// Accelerators: the letter of a caption that is pressed with Alt, or alone in an open menu.
//
// It stands behind a single &; two of them show as one. Of several single ones the last counts: that is the letter that
// the system underlines.
#pragma once

#include "vcl/system/SysUtils.h"

#include <cstdint>
#include <string_view>

// The letter in upper case, or empty.
AnsiString GetHotkey(std::string_view Caption);
// True when Char (UTF-16) is the accelerator of Caption; case does not matter.
bool IsAccel(uint16_t Char, std::string_view Caption);
// Caption without its marks; "&&" stays, so that it is a caption still.
AnsiString StripHotkey(std::string_view Caption);
// The text as it shows: "R&&D" is "R&D".
AnsiString ShownText(std::string_view Caption);
