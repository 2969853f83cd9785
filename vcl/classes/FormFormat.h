// What kind of form a piece of data is, and the resource header that binary forms may carry.
//
// A binary form saved by the designers is a resource of its own: a 16-bit resource header (FF 0A 00, the form's name,
// flags and size), then TPF0. Resource compilers make the 32-bit kind of header.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

enum TStreamOriginalFormat {
    sofUnknown,  // neither; reading it as text will say what is wrong
    sofBinary,   // TPF0, with or without a resource header
    sofText,     // begins with object, inherited or inline
    sofUTF8Text, // the same after the UTF-8 signature
};

// Looks at the beginning only.
TStreamOriginalFormat FormFormat(std::string_view Data);

// The size of the resource header at the start of Data; 0 when there is none. Throws EFormDataError for a header that
// is broken off, or whose size field says more than there is.
std::size_t ResourceHeaderSize(std::string_view Data);

// Puts a 16-bit resource header before a binary form. The resource gets the name of the form's class in capitals.
std::string AddResourceHeader(std::string_view Form);
