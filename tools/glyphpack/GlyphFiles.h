// The files that a sheet of glyphs becomes. Every function returns the complete contents of one file.
#pragma once

#include "tools/glyphpack/GlyphSheet.h"

// One bitmap of 8 bits a pixel with all glyphs in the order of the sheet, left to right. FileName is the source's and
// serves the messages. Throws EGlyphError when the glyphs differ in size; and, in a sheet with a transparent character,
// when a corner on the left of a glyph is not transparent: whoever draws the bitmap takes the colour that lets the
// ground through from the bottom-left pixel, or from the top-left one.
std::string MakeStrip(const TGlyphSheet& Sheet, const std::string& FileName);

// An icon with one image for every glyph.
std::string MakeIcon(const TGlyphSheet& Sheet);

// A cursor with one image for every glyph, each with its own hot spot. It is monochrome when the sheet draws in black
// and white only.
std::string MakeCursor(const TGlyphSheet& Sheet);

// A C++ header with the sheet's enumeration: one name for every glyph, prefixed, counted from 0; and the count.
// Throws EGlyphError when the sheet names no enumeration.
std::string MakeHeader(const TGlyphSheet& Sheet, const std::string& FileName);
