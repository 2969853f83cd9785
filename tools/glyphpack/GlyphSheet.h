// A sheet of pixel art as it is written by hand: a text file with a palette and drawings, one character a pixel.
#pragma once

#include <cstdint>
#include <istream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

// A colour as 0xRRGGBB.
using TRgb = std::uint32_t;

// One drawing: its pixels from the top-left, row by row, with its hot spot (used by cursors only).
struct TGlyph {
    std::string Name;
    int Line = 0;     // where the drawing starts in the source
    int LastLine = 0; // where its last row is
    int Width = 0;
    int Height = 0;
    int HotX = 0;
    int HotY = 0;
    std::vector<TRgb> Pixels;
    std::vector<bool> Clear; // true where the pixel is the transparent character
};

// A whole source file. Lines of a source, in any order that names things before they are used:
//   ; a comment (also between the rows of a drawing)
//   transparent C RRGGBB     the one character that lets the ground through, and its stand-in colour; not every sheet
//                            needs one
//   color C RRGGBB           a character and its colour
//   size W H                 of the drawings that follow, 1 to 256
//   columns N                drawings per row of a strip; by default all are in one row
//   hotspot X Y              of the drawings that follow, from the top-left
//   enum TYPE PREFIX         the enumeration that the header gets
//   glyph NAME               followed by H rows of W characters
struct TGlyphSheet {
    std::string EnumName;
    std::string EnumPrefix;
    int Columns = 0; // 0: all in one row
    bool HasTransparent = false;
    TRgb Transparent = 0xFF00FF; // also fills what the drawings leave of a strip
    std::vector<TGlyph> Glyphs;  // never empty once read
};

// What is wrong with a source; the text reads "FILE:LINE: message".
class EGlyphError : public std::runtime_error {
public:
    EGlyphError(const std::string& File, int Line, const std::string& Message)
        : std::runtime_error(File + ":" + std::to_string(Line) + ": " + Message)
    {}
};

// Reads a sheet; FileName only serves the messages. Throws EGlyphError.
TGlyphSheet ReadGlyphSheet(std::istream& Source, const std::string& FileName);
