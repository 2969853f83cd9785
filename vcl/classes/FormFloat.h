// Floating point numbers in text forms: how each kind is spelled, and what a spelling says about the kind.
//
// A text form does not name the kind of an unsuffixed number, but the designers' writers betray it: those that store
// vaDouble write eighteen decimals (0.500000000000000000), those that store vaExtended write at most fifteen digits
// and no more of them than needed (0.5). A number without an exponent and with eighteen or more decimals is therefore a
// vaDouble, every other one a vaExtended; both come back as they were.
// Where sixteen digits or eighteen decimals do not identify the number, more are written: converting never changes a
// value.
#pragma once

#include "vcl/classes/Extended.h"

#include <cstdint>
#include <string>
#include <string_view>

// Appends the spelling, which TExtended::Parse and the other functions here read back. The number must be finite.
void SpellExtended(std::string& Output, const TExtended& Value); // vaExtended
void SpellDouble(std::string& Output, double Value);             // vaDouble
void SpellSingle(std::string& Output, float Value);              // vaSingle, without the suffix s
void SpellDate(std::string& Output, double Value);               // vaDate, without the suffix d

// True when a spelling stands for a vaDouble rather than a vaExtended.
bool IsSpelledAsDouble(std::string_view Spelling);

// These return false when the number is too large. ParseCurrency takes ten-thousandths and rounds to whole ones.
bool ParseDouble(std::string_view Spelling, double& Value);
bool ParseSingle(std::string_view Spelling, float& Value);
bool ParseCurrency(std::string_view Spelling, std::int64_t& Value);
