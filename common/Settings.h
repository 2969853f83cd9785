// The settings store: what the program and its components remember from one run to the next, in the registry below
// HKEY_CURRENT_USER\Software\Halvent\<the application's title>.
//
// A section is a sub-key (with backslashes in its name a deeper one; "" is the store's key itself) and an ident a value
// in it. Values are texts: an integer in decimal, a boolean as 1 or 0. Nothing is kept between calls, so that a change
// by another program is seen at once.
//
// The first call decides on the title for the rest of the program, makes the store's key and gives the application the
// library's colour for hints.
#pragma once

#include "vcl/system/Object.h"

#include <string_view>

// Default when there is no such value or when it is not of that kind. They make no sections and never raise.
bool ReadBool(std::string_view Section, std::string_view Ident, bool Default);
int ReadInteger(std::string_view Section, std::string_view Ident, int Default);
AnsiString ReadString(std::string_view Section, std::string_view Ident, std::string_view Default);

// They make the section when it is absent, and raise ERegistryException when that or writing is impossible.
void WriteBool(std::string_view Section, std::string_view Ident, bool Value);
void WriteInteger(std::string_view Section, std::string_view Ident, int Value);
void WriteString(std::string_view Section, std::string_view Ident, std::string_view Value);
