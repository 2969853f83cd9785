// How values and objects are marked in a binary form. Little-endian throughout.
//
//   form       "TPF0" object
//   object     [prefix] ClassName Name property* 0 object* 0
//   prefix     one byte $F0 | flags; with FilerFlagChildPos an integer value, the place among its parent's children
//   property   Name value
//   Name       one length byte, then the bytes; a class name of 240 bytes or more is always preceded by a prefix
//   value      one byte TValueType, then what the type's comment says
#pragma once

#include <cstdint>

enum TValueType : std::uint8_t {
    vaNull,       // nothing; also ends lists and collections
    vaList,       // values up to vaNull
    vaInt8,       // 1 byte, signed like all integers
    vaInt16,      // 2 bytes
    vaInt32,      // 4 bytes
    vaExtended,   // 10 bytes, see TExtended
    vaString,     // 1 byte length, then text in the author's code page
    vaIdent,      // 1 byte length, then an enumeration value, a constant, a component or a method by name
    vaFalse,      // nothing
    vaTrue,       // nothing
    vaBinary,     // 4 bytes length, then the bytes
    vaSet,        // element names (1 byte length each) up to an empty one
    vaLString,    // 4 bytes length, then text in the author's code page
    vaNil,        // nothing
    vaCollection, // items up to vaNull; an item is [integer value] vaList property* 0
    vaSingle,     // 4 bytes, IEEE single
    vaCurrency,   // 8 bytes, integer, in ten-thousandths
    vaDate,       // 8 bytes, IEEE double, days since 1899-12-30
    vaWString,    // 4 bytes length in UTF-16 units, then the units
    vaInt64,      // 8 bytes
    vaUTF8String, // 4 bytes length, then UTF-8
    vaDouble,     // 8 bytes, IEEE double
};

// The flags in an object's prefix byte.
inline constexpr std::uint8_t FilerFlagInherited = 1; // "inherited": the object comes from the ancestor's form
inline constexpr std::uint8_t FilerFlagChildPos = 2;  // "[n]": a child position follows
inline constexpr std::uint8_t FilerFlagInline = 4;    // "inline": a frame that stands in this form
inline constexpr std::uint8_t FilerPrefix = 0xF0;

inline constexpr char FormSignature[] = "TPF0";
inline constexpr int FormSignatureSize = 4;

// Objects, lists and collections may stand in each other this deep. Deeper forms are refused, so that a hostile one
// cannot exhaust the stack.
inline constexpr int MaxFormDepth = 1000;
