#include "tools/glyphpack/GlyphFiles.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace {

constexpr int InfoHeaderSize = 40;

void Put16(std::string& Out, int Value)
{
    Out += static_cast<char>(Value & 0xFF);
    Out += static_cast<char>(Value >> 8 & 0xFF);
}

void Put32(std::string& Out, size_t Value)
{
    Put16(Out, static_cast<int>(Value & 0xFFFF));
    Put16(Out, static_cast<int>(Value >> 16 & 0xFFFF));
}

// Rows of a device-independent bitmap start at multiples of four bytes.
size_t RowSize(int Width, int Bits)
{
    return (static_cast<size_t>(Width) * Bits + 31) / 32 * 4;
}

// A picture whose pixels are places in a table of colours.
struct TIndexed {
    int Width;
    int Height;
    std::vector<TRgb> Table; // sorted, so that black comes first and a monochrome image has white at 1
    std::vector<TRgb> Pixels;

    TIndexed(int AWidth, int AHeight, std::vector<TRgb> APixels)
        : Width(AWidth),
          Height(AHeight),
          Table(APixels),
          Pixels(std::move(APixels))
    {
        std::sort(Table.begin(), Table.end());
        Table.erase(std::unique(Table.begin(), Table.end()), Table.end());
    }

    bool IsMonochrome() const
    {
        return std::all_of(Table.begin(), Table.end(), [](TRgb Color) { return Color == 0 || Color == 0xFFFFFF; });
    }

    size_t IndexOf(int X, int Y) const
    {
        const TRgb Color = Pixels[static_cast<size_t>(Y) * Width + X];
        return std::lower_bound(Table.begin(), Table.end(), Color) - Table.begin();
    }
};

// Appends one row of 1-bit pixels, padded; IsSet says for each X whether its bit is on.
template <typename TIsSet>
void PutBits(std::string& Out, int Width, TIsSet IsSet)
{
    std::string Row(RowSize(Width, 1), '\0');
    for (int X = 0; X < Width; ++X)
        if (IsSet(X))
            Row[X / 8] = static_cast<char>(Row[X / 8] | 0x80 >> X % 8);
    Out += Row;
}

void PutInfoHeader(std::string& Out, int Width, int Height, int Bits, size_t ImageSize, size_t Colors)
{
    Put32(Out, InfoHeaderSize);
    Put32(Out, Width);
    Put32(Out, Height);
    Put16(Out, 1);
    Put16(Out, Bits);
    Put32(Out, 0);
    Put32(Out, ImageSize);
    Put32(Out, 0);
    Put32(Out, 0);
    Put32(Out, Colors);
    Put32(Out, 0);
}

void PutTable(std::string& Out, const std::vector<TRgb>& Table)
{
    for (const TRgb Color : Table)
        Put32(Out, Color);
}

void PutBytes(std::string& Out, const TIndexed& Picture)
{
    for (int Y = Picture.Height - 1; Y >= 0; --Y) {
        for (int X = 0; X < Picture.Width; ++X)
            Out += static_cast<char>(Picture.IndexOf(X, Y));
        Out.append(RowSize(Picture.Width, 8) - Picture.Width, '\0');
    }
}

// An image as icons and cursors hold it: the picture, black where it is transparent, and below it the mask, so that the
// header counts twice the height.
std::string MakeMaskedImage(const TGlyph& Glyph, bool MayBeMonochrome)
{
    std::vector<TRgb> Pixels = Glyph.Pixels;
    for (size_t Index = 0; Index < Pixels.size(); ++Index)
        if (Glyph.Clear[Index])
            Pixels[Index] = 0;
    TIndexed Picture(Glyph.Width, Glyph.Height, std::move(Pixels));
    const bool Monochrome = MayBeMonochrome && Picture.IsMonochrome();
    if (Monochrome)
        Picture.Table = {0x000000, 0xFFFFFF};
    const int Bits = Monochrome ? 1 : 8;
    const size_t Size = (RowSize(Glyph.Width, Bits) + RowSize(Glyph.Width, 1)) * Glyph.Height;
    std::string Out;
    PutInfoHeader(Out, Glyph.Width, Glyph.Height * 2, Bits, Size, Picture.Table.size());
    PutTable(Out, Picture.Table);
    if (!Monochrome)
        PutBytes(Out, Picture);
    for (int Y = Glyph.Height - 1; Monochrome && Y >= 0; --Y)
        PutBits(Out, Glyph.Width, [&](int X) { return Picture.IndexOf(X, Y) != 0; });
    for (int Y = Glyph.Height - 1; Y >= 0; --Y)
        PutBits(Out, Glyph.Width, [&](int X) { return Glyph.Clear[static_cast<size_t>(Y) * Glyph.Width + X]; });
    return Out;
}

// The common form of icons and cursors: a directory of 16 bytes an image, then the images.
std::string MakeImageDirectory(const TGlyphSheet& Sheet, bool Cursor)
{
    std::string Out, Images;
    Put16(Out, 0);
    Put16(Out, Cursor ? 2 : 1);
    Put16(Out, static_cast<int>(Sheet.Glyphs.size()));
    const size_t DirectorySize = 6 + 16 * Sheet.Glyphs.size();
    for (const TGlyph& Glyph : Sheet.Glyphs) {
        const std::string Image = MakeMaskedImage(Glyph, Cursor);
        Out += static_cast<char>(Glyph.Width & 0xFF); // 256 is written as 0
        Out += static_cast<char>(Glyph.Height & 0xFF);
        Put16(Out, 0);
        Put16(Out, Cursor ? Glyph.HotX : 1);
        Put16(Out, Cursor ? Glyph.HotY : 8);
        Put32(Out, Image.size());
        Put32(Out, DirectorySize + Images.size());
        Images += Image;
    }
    return Out + Images;
}

// Names every glyph that could not stand in a strip.
void CheckStrip(const TGlyphSheet& Sheet, const std::string& FileName)
{
    const TGlyph& First = Sheet.Glyphs.front();
    for (const TGlyph& Glyph : Sheet.Glyphs) {
        if (Glyph.Width != First.Width || Glyph.Height != First.Height)
            throw EGlyphError(FileName, Glyph.Line,
                              "glyph '" + Glyph.Name + "' has not the size of '" + First.Name + "'");
        if (!Sheet.HasTransparent)
            continue;
        if (!Glyph.Clear[0])
            throw EGlyphError(FileName, Glyph.Line,
                              "the top-left pixel of glyph '" + Glyph.Name + "' is not transparent");
        if (!Glyph.Clear[static_cast<size_t>(Glyph.Height - 1) * Glyph.Width])
            throw EGlyphError(FileName, Glyph.LastLine,
                              "the bottom-left pixel of glyph '" + Glyph.Name + "' is not transparent");
    }
}

} // namespace

std::string MakeStrip(const TGlyphSheet& Sheet, const std::string& FileName)
{
    CheckStrip(Sheet, FileName);
    const int Count = static_cast<int>(Sheet.Glyphs.size());
    const int Columns = Sheet.Columns == 0 ? Count : Sheet.Columns;
    const int CellWidth = Sheet.Glyphs.front().Width;
    const int CellHeight = Sheet.Glyphs.front().Height;
    const int Width = Columns * CellWidth;
    const int Height = (Count + Columns - 1) / Columns * CellHeight;
    std::vector<TRgb> Pixels(static_cast<size_t>(Width) * Height, Sheet.Transparent);
    for (int Index = 0; Index < Count; ++Index) {
        const std::vector<TRgb>& Glyph = Sheet.Glyphs[Index].Pixels;
        for (int Y = 0; Y < CellHeight; ++Y) {
            const size_t Row = static_cast<size_t>(Index / Columns * CellHeight + Y) * Width;
            std::copy_n(Glyph.begin() + Y * CellWidth, CellWidth, Pixels.begin() + Row + Index % Columns * CellWidth);
        }
    }
    const TIndexed Picture(Width, Height, std::move(Pixels));
    const size_t Offset = 14 + InfoHeaderSize + 4 * Picture.Table.size();
    const size_t ImageSize = RowSize(Width, 8) * Height;
    std::string Out = "BM";
    Put32(Out, Offset + ImageSize);
    Put32(Out, 0);
    Put32(Out, Offset);
    PutInfoHeader(Out, Width, Height, 8, ImageSize, Picture.Table.size());
    PutTable(Out, Picture.Table);
    PutBytes(Out, Picture);
    return Out;
}

std::string MakeIcon(const TGlyphSheet& Sheet)
{
    return MakeImageDirectory(Sheet, false);
}

std::string MakeCursor(const TGlyphSheet& Sheet)
{
    return MakeImageDirectory(Sheet, true);
}

std::string MakeHeader(const TGlyphSheet& Sheet, const std::string& FileName)
{
    if (Sheet.EnumName.empty())
        throw EGlyphError(FileName, 1, "a header was asked for, but there is no 'enum' line");
    std::string Out = "// Made by glyphpack from " + std::filesystem::path(FileName).filename().string() +
                      "; the next build overwrites it.\n#pragma once\n\nenum " + Sheet.EnumName + " {\n";
    for (const TGlyph& Glyph : Sheet.Glyphs)
        Out += "    " + Sheet.EnumPrefix + Glyph.Name + ",\n";
    Out += "};\n\nconstexpr int " + Sheet.EnumName + "Count = " + std::to_string(Sheet.Glyphs.size()) + ";\n";
    return Out;
}
