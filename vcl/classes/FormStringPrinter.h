// How strings are laid out in a text form: quoted text, character codes for what cannot stand in quotes, and parts of
// at most 64 characters on lines of their own, joined by "+", when the string is longer than that.
//
// Code-page text stands in the quotes byte by byte, so a part must not end inside a two-byte character. The code page
// is not known; but a long string whose bytes all pair up like those of the double-byte code pages (or form UTF-8
// characters) practically never comes from a single-byte one.
#pragma once

#include "vcl/system/Utf.h"

#include <cstddef>
#include <string>
#include <string_view>

// Where a new line of the text starts.
struct TFormLineStart {
    std::string_view LineEnd; // "\r\n" or "\n"
    std::size_t Indent;       // in blanks
};

// Appends vaString and vaLString text. The line start is that of the continuation lines.
void PrintFormBytes(std::string& Output, std::string_view Value, const TFormLineStart& Line);

// Appends vaWString and vaUTF8String text; everything beyond ASCII becomes codes.
void PrintFormUnits(std::string& Output, TWideView Value, const TFormLineStart& Line);
