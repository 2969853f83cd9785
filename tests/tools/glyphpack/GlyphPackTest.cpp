#include "tools/glyphpack/GlyphFiles.h"
#include "tools/glyphpack/GlyphSheet.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

constexpr const char* Colors = "transparent . FF00FF\n"
                               "color K 000000\n"
                               "color W FFFFFF\n"
                               "color R E01008\n";

TGlyphSheet Read(const std::string& Text)
{
    std::istringstream Source(Text);
    return ReadGlyphSheet(Source, "art.glyphs");
}

// The message that a source is refused with; empty when it is not.
std::string ErrorOf(const std::string& Text)
{
    try {
        Read(Text);
    } catch (const EGlyphError& Error) {
        return Error.what();
    }
    return "";
}

// The message that a strip is refused with; empty when it is not.
std::string StripErrorOf(const std::string& Text)
{
    try {
        MakeStrip(Read(Text), "art.glyphs");
    } catch (const EGlyphError& Error) {
        return Error.what();
    }
    return "";
}

int Byte(const std::string& File, size_t Offset)
{
    return static_cast<unsigned char>(File.at(Offset));
}

int Word(const std::string& File, size_t Offset)
{
    return Byte(File, Offset) | Byte(File, Offset + 1) << 8;
}

int Long(const std::string& File, size_t Offset)
{
    return Word(File, Offset) | Word(File, Offset + 2) << 16;
}

// The colour of a pixel of a bitmap file of 8 bits a pixel, counted from the top-left.
int PixelOf(const std::string& File, int X, int Y)
{
    const int Stride = (Long(File, 18) + 3) / 4 * 4;
    const int Index = Byte(File, Long(File, 10) + (Long(File, 22) - 1 - Y) * Stride + X);
    return Long(File, 54 + 4 * Index);
}

const std::string TwoGlyphs = std::string(Colors) + "enum TArt ar\n"
                                                    "size 3 2\n"
                                                    "glyph One\n"
                                                    ".WR\n"
                                                    ".RK\n"
                                                    "glyph Two\n"
                                                    ".RR\n"
                                                    "..W\n";

TEST(GlyphSheet, KeepsGlyphsInOrderWithTheirPixels)
{
    const TGlyphSheet Sheet = Read(TwoGlyphs);

    ASSERT_EQ(Sheet.Glyphs.size(), 2u);
    EXPECT_EQ(Sheet.Glyphs[0].Name, "One");
    EXPECT_EQ(Sheet.Glyphs[1].Name, "Two");
    EXPECT_EQ(Sheet.Glyphs[0].Pixels, (std::vector<TRgb>{0xFF00FF, 0xFFFFFF, 0xE01008, 0xFF00FF, 0xE01008, 0}));
    EXPECT_EQ(Sheet.Glyphs[0].Clear, (std::vector<bool>{true, false, false, true, false, false}));
}

TEST(GlyphSheet, SkipsCommentsBetweenRowsAndBlanksAtLineEnds)
{
    const TGlyphSheet Sheet = Read(std::string(Colors) + "size 2 2\r\n\nglyph One\nKK  \r\n; the second row\n.K\r\n");

    EXPECT_EQ(Sheet.Glyphs[0].Pixels, (std::vector<TRgb>{0, 0, 0xFF00FF, 0}));
}

TEST(GlyphSheet, ErrorsNameFileLineAndCause)
{
    const std::string Start = std::string(Colors) + "size 2 2\n";

    EXPECT_EQ(ErrorOf("size 2 2\n"), "art.glyphs:1: no glyph in the file");
    EXPECT_EQ(ErrorOf("sizes 2 2\n"), "art.glyphs:1: unknown word 'sizes'");
    EXPECT_EQ(ErrorOf("size 2\n"), "art.glyphs:1: 'size' takes 2 values");
    EXPECT_EQ(ErrorOf("size 0 2\n"), "art.glyphs:1: '0' is no number from 1 to 256");
    EXPECT_EQ(ErrorOf("size 2 -1\n"), "art.glyphs:1: '-1' is no number from 1 to 256");
    EXPECT_EQ(ErrorOf("size 2 99999999999\n"), "art.glyphs:1: '99999999999' is no number from 1 to 256");
    EXPECT_EQ(ErrorOf("color K 00000\n"), "art.glyphs:1: '00000' is no colour: six hexadecimal digits RRGGBB are");
    EXPECT_EQ(ErrorOf("color KK 000000\n"),
              "art.glyphs:1: 'KK' cannot stand for a colour: one visible ASCII character other than ';' can");
    EXPECT_EQ(ErrorOf(Start + "color K 808080\n"), "art.glyphs:6: 'K' has a colour already");
    EXPECT_EQ(ErrorOf(Start + "transparent , 808000\n"), "art.glyphs:6: there is a transparent character already: '.'");
    EXPECT_EQ(ErrorOf(Start + "glyph 1st\n"), "art.glyphs:6: '1st' is no identifier");
    EXPECT_EQ(ErrorOf("glyph One\n"), "art.glyphs:1: 'size' must come before the first glyph");
    EXPECT_EQ(ErrorOf(Start + "glyph One\nKKK\n"), "art.glyphs:7: a row of glyph 'One' has 3 characters instead of 2");
    EXPECT_EQ(ErrorOf(Start + "glyph One\nKK\n"), "art.glyphs:7: the file ends inside glyph 'One'");
    EXPECT_EQ(ErrorOf(Start + "glyph One\nKK\nKx\n"), "art.glyphs:8: 'x' in glyph 'One' has no colour");
    EXPECT_EQ(ErrorOf(Start + "glyph One\nKK\n.K\nglyph One\n"), "art.glyphs:9: glyph 'One' is in line 6 already");
    EXPECT_EQ(ErrorOf(Start + "hotspot 2 0\nglyph One\n"), "art.glyphs:7: the hot spot is outside of glyph 'One'");
}

TEST(GlyphSheet, RefusesToDrawInTheTransparentColour)
{
    EXPECT_EQ(ErrorOf(std::string(Colors) + "color M FF00FF\nsize 1 1\nglyph One\nM\n"),
              "art.glyphs:8: 'M' has the transparent colour");
}

TEST(GlyphStrip, HoldsTheGlyphsSideBySide)
{
    const std::string File = MakeStrip(Read(TwoGlyphs), "art.glyphs");

    EXPECT_EQ(File.substr(0, 2), "BM");
    EXPECT_EQ(static_cast<size_t>(Long(File, 2)), File.size());
    EXPECT_EQ(Long(File, 18), 6);
    EXPECT_EQ(Long(File, 22), 2);
    EXPECT_EQ(Word(File, 28), 8);
    EXPECT_EQ(PixelOf(File, 0, 0), 0xFF00FF);
    EXPECT_EQ(PixelOf(File, 1, 0), 0xFFFFFF);
    EXPECT_EQ(PixelOf(File, 2, 0), 0xE01008);
    EXPECT_EQ(PixelOf(File, 2, 1), 0x000000);
    EXPECT_EQ(PixelOf(File, 4, 0), 0xE01008);
    EXPECT_EQ(PixelOf(File, 0, 1), 0xFF00FF);
    EXPECT_EQ(PixelOf(File, 5, 1), 0xFFFFFF);
}

TEST(GlyphStrip, FillsTheLastRowWithTheTransparentColour)
{
    const std::string Three = TwoGlyphs + "glyph Three\n.WW\n.KK\n";
    const std::string File = MakeStrip(Read("columns 2\n" + Three), "art.glyphs");

    EXPECT_EQ(Long(File, 18), 6);
    EXPECT_EQ(Long(File, 22), 4);
    EXPECT_EQ(PixelOf(File, 1, 2), 0xFFFFFF);
    EXPECT_EQ(PixelOf(File, 2, 3), 0x000000);
    for (int X = 3; X < 6; ++X)
        EXPECT_EQ(PixelOf(File, X, 2), 0xFF00FF);
}

TEST(GlyphStrip, RefusesGlyphsWhoseLeftCornersAreNotTransparent)
{
    const std::string Start = std::string(Colors) + "size 1 2\nglyph One\n";

    EXPECT_EQ(StripErrorOf(Start + ".\n; foot\nK\n"),
              "art.glyphs:9: the bottom-left pixel of glyph 'One' is not transparent");
    EXPECT_EQ(StripErrorOf(Start + "K\n.\n"), "art.glyphs:6: the top-left pixel of glyph 'One' is not transparent");
    EXPECT_EQ(StripErrorOf(Start + ".\n.\n"), "");
}

TEST(GlyphStrip, MayCoverEverythingWhenNothingIsTransparent)
{
    const std::string File = MakeStrip(Read("color K 000000\ncolor W FFFFFF\nsize 2 1\nglyph One\nWK\n"), "art.glyphs");

    EXPECT_EQ(PixelOf(File, 0, 0), 0xFFFFFF);
    EXPECT_EQ(PixelOf(File, 1, 0), 0x000000);
}

TEST(GlyphStrip, RefusesGlyphsOfDifferentSizes)
{
    EXPECT_EQ(StripErrorOf(std::string(Colors) + "size 1 1\nglyph One\n.\nsize 2 1\nglyph Two\n.K\n"),
              "art.glyphs:9: glyph 'Two' has not the size of 'One'");
}

TEST(GlyphIcon, HoldsOneImageForEverySize)
{
    const std::string File =
        MakeIcon(Read(std::string(Colors) + "size 1 1\nglyph One\nR\nsize 2 2\nglyph Two\nR.\n.W\n"));

    EXPECT_EQ(Word(File, 2), 1);
    EXPECT_EQ(Word(File, 4), 2);
    EXPECT_EQ(Byte(File, 22), 2); // width of the second
    const int Offset = Long(File, 34);
    EXPECT_EQ(static_cast<size_t>(Offset + Long(File, 30)), File.size());
    EXPECT_EQ(Long(File, Offset + 8), 4); // picture and mask
    const int Table = Offset + 40;
    const int Pixels = Table + 4 * Long(File, Offset + 32);
    EXPECT_EQ(Long(File, Table + 4 * Byte(File, Pixels)), 0) << "transparent pixels are black";
    EXPECT_EQ(Long(File, Table + 4 * Byte(File, Pixels + 1)), 0xFFFFFF);
    EXPECT_EQ(Long(File, Table + 4 * Byte(File, Pixels + 4)), 0xE01008);
    EXPECT_EQ(Byte(File, Pixels + 8), 0x80) << "mask of the bottom row";
    EXPECT_EQ(Byte(File, Pixels + 12), 0x40) << "mask of the top row";
}

TEST(GlyphCursor, IsMonochromeWithItsHotSpotWhenDrawnInBlackAndWhite)
{
    const std::string File = MakeCursor(Read(std::string(Colors) + "size 3 2\nhotspot 2 1\nglyph One\nKW.\n.KW\n"));

    EXPECT_EQ(Word(File, 2), 2);
    EXPECT_EQ(Word(File, 10), 2);
    EXPECT_EQ(Word(File, 12), 1);
    const int Offset = Long(File, 18);
    EXPECT_EQ(Word(File, Offset + 14), 1);
    EXPECT_EQ(Long(File, Offset + 40), 0x000000);
    EXPECT_EQ(Long(File, Offset + 44), 0xFFFFFF);
    EXPECT_EQ(Byte(File, Offset + 48), 0x20);
    EXPECT_EQ(Byte(File, Offset + 52), 0x40);
    EXPECT_EQ(Byte(File, Offset + 56), 0x80);
    EXPECT_EQ(Byte(File, Offset + 60), 0x20);
    EXPECT_EQ(File.size(), static_cast<size_t>(Offset) + 64);
}

TEST(GlyphCursor, KeepsItsColours)
{
    const std::string File = MakeCursor(Read(std::string(Colors) + "size 1 1\nglyph One\nR\n"));

    EXPECT_EQ(Word(File, Long(File, 18) + 14), 8);
}

TEST(GlyphHeader, CountsTheGlyphsFromZero)
{
    EXPECT_EQ(MakeHeader(Read(TwoGlyphs), "some/where/art.glyphs"),
              "// Made by glyphpack from art.glyphs; the next build overwrites it.\n"
              "#pragma once\n"
              "\n"
              "enum TArt {\n"
              "    arOne,\n"
              "    arTwo,\n"
              "};\n"
              "\n"
              "constexpr int TArtCount = 2;\n");
}

TEST(GlyphHeader, NeedsAnEnumeration)
{
    EXPECT_THROW(MakeHeader(Read(std::string(Colors) + "size 1 1\nglyph One\n.\n"), "art.glyphs"), EGlyphError);
}

} // namespace
