// What depends on the system: case mapping, the user's alphabetical order, code pages. LocaleWindows.cpp asks Windows;
// LocalePortable.cpp is for other systems.
#pragma once

#include "vcl/system/Object.h"

#include <string_view>

// All letters of every alphabet in upper or lower case.
AnsiString LocaleUpperCase(std::string_view Text);
AnsiString LocaleLowerCase(std::string_view Text);

// Negative, zero or positive, in the user's alphabetical order.
int LocaleCompare(std::string_view A, std::string_view B, bool IgnoreCase);

// The legacy 8-bit code page of the user's language, 1252 in western Europe; never UTF-8.
unsigned LegacyCodePage();
// UTF-8 from the bytes of a code page. What the page does not define, and every byte beyond ASCII of an unknown page,
// becomes U+FFFD.
AnsiString DecodeCodePage(std::string_view Bytes, unsigned CodePage);
