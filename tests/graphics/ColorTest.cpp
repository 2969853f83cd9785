#include "vcl/graphics/Color.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

TEST(Color, SystemColorsAreTheirNumberWithTheFlag)
{
    EXPECT_EQ(static_cast<uint32_t>(clBtnFace), 0xFF00000Fu);
    EXPECT_EQ(static_cast<uint32_t>(clWindowText), 0xFF000008u);
    EXPECT_EQ(static_cast<uint32_t>(clMenuBar), 0xFF00001Eu);
}

TEST(Color, ResolvesEverySystemColorToTheSystemsValue)
{
    for (int Number = 0; Number <= COLOR_MENUBAR; ++Number)
        EXPECT_EQ(ColorToRGB(TColor(clSystemColor | Number)), GetSysColor(Number)) << Number;
}

TEST(Color, ResolvesTheOlderSpellingOfSystemColors)
{
    EXPECT_EQ(ColorToRGB(TColor(0x8000000F)), GetSysColor(COLOR_BTNFACE));
}

TEST(Color, LeavesPlainColorsAsTheyAre)
{
    EXPECT_EQ(ColorToRGB(clBlack), 0u);
    EXPECT_EQ(ColorToRGB(TColor(0x123456)), 0x123456u);
    EXPECT_EQ(ColorToRGB(TColor(0x02123456)), 0x02123456u);
    EXPECT_EQ(ColorToRGB(clNone), 0x1FFFFFFFu);
}

TEST(Color, AThemeMayResolveColorsItsOwnWay)
{
    static TColorResolver Previous;
    Previous = SetColorResolver([](TColor Color) { return Color == clBtnFace ? RGB(1, 2, 3) : Previous(Color); });
    EXPECT_EQ(ColorToRGB(clBtnFace), RGB(1, 2, 3));
    EXPECT_EQ(ColorToRGB(clWindow), GetSysColor(COLOR_WINDOW));
    SetColorResolver(Previous);
    EXPECT_EQ(ColorToRGB(clBtnFace), GetSysColor(COLOR_BTNFACE));
}

TEST(Color, HasNamesInBothDirections)
{
    EXPECT_EQ(ColorToString(clBtnFace), "clBtnFace");
    EXPECT_EQ(ColorToString(clRed), "clRed");
    EXPECT_EQ(ColorToString(clNone), "clNone");
    EXPECT_EQ(StringToColor("clbtnface"), clBtnFace);
    EXPECT_EQ(StringToColor("clLtGray"), clSilver);
}

TEST(Color, EqualValuesAreNamedAfterTheFirst)
{
    EXPECT_EQ(ColorToString(clDkGray), "clGray");
    EXPECT_EQ(ColorToString(clLtGray), "clSilver");
}

TEST(Color, ColorsWithoutANameAreHexadecimal)
{
    EXPECT_EQ(ColorToString(TColor(0xC8F5F5)), "$00C8F5F5");
    EXPECT_EQ(ColorToString(TColor(0x02008080)), "$02008080");
    EXPECT_EQ(StringToColor("$00C8F5F5"), TColor(0xC8F5F5));
    EXPECT_EQ(StringToColor("0xFF"), TColor(0xFF));
    EXPECT_EQ(StringToColor("13160660"), TColor(13160660));
    EXPECT_EQ(StringToColor("-16777201"), clBtnFace);
    EXPECT_EQ(StringToColor("$FF00000F"), clBtnFace);
}

TEST(Color, WrongTextRaises)
{
    for (const char* Text : {"", "clNothing", "$", "$XYZ", "12 ", "$123456789", "--1"})
        EXPECT_THROW(
            {
                try {
                    StringToColor(Text);
                } catch (const EConvertError& Error) {
                    EXPECT_EQ(Error.Message, "'" + AnsiString(Text) + "' is not a valid integer value");
                    throw;
                }
            },
            EConvertError)
            << Text;
}

TEST(Color, ListsEveryNamedColorOnce)
{
    std::set<AnsiString> Names;
    GetColorValues([&](const AnsiString& Name) {
        EXPECT_TRUE(Names.insert(Name).second) << Name;
        EXPECT_EQ(ColorToString(StringToColor(Name)), Name);
    });
    EXPECT_EQ(Names.size(), 52u);
}

TEST(Color, IsAnIntegerWithNamesToFormFiles)
{
    const TTypeInfo& Type = TypeInfoOf<TColor>();
    EXPECT_EQ(Type.Kind, tkInteger);
    AnsiString Name;
    EXPECT_TRUE(Type.Idents->IntToIdent(clWindowText, Name));
    EXPECT_EQ(Name, "clWindowText");
}

TEST(ScalePixels, IsOneToOne)
{
    EXPECT_EQ(ScalePixels(22), 22);
}
