// The accelerator of a caption, and that it is the letter that the system underlines.
#include "vcl/graphics/Accelerator.h"
#include "tests/support/PixelImage.h"

#include <gtest/gtest.h>

namespace {

// The column where the line begins that the system draws under Caption's accelerator, or -1. Shown is the text without
// marks.
int UnderlineAt(const wchar_t* Caption, const wchar_t* Shown)
{
    const TPixelImage With(100, 30, clWhite);
    const TPixelImage Without(100, 30, clWhite);
    RECT R{0, 0, 100, 30};
    DrawTextW(With.DC(), Caption, -1, &R, DT_SINGLELINE);
    DrawTextW(Without.DC(), Shown, -1, &R, DT_SINGLELINE | DT_NOPREFIX);
    GdiFlush();
    for (int X = 0; X < 100; ++X)
        for (int Y = 0; Y < 30; ++Y)
            if (With.At(X, Y) != Without.At(X, Y))
                return X;
    return -1;
}

} // namespace

TEST(AcceleratorTest, TheSystemUnderlinesTheLastOne)
{
    const int Last = UnderlineAt(L"Al&b", L"Alb");
    ASSERT_GT(Last, 0);
    EXPECT_EQ(UnderlineAt(L"&Al&b", L"Alb"), Last);
    EXPECT_EQ(UnderlineAt(L"Alb", L"Alb"), -1);
    EXPECT_EQ(UnderlineAt(L"R&&D", L"R&D"), -1);
}

TEST(AcceleratorTest, IsTheLetterBehindTheLastSingleAmpersand)
{
    EXPECT_EQ(GetHotkey("&Open"), "O");
    EXPECT_EQ(GetHotkey("Save &as"), "A");
    EXPECT_EQ(GetHotkey("&Al&b"), "B");
    EXPECT_EQ(GetHotkey("&Al&&b"), "A");
    EXPECT_EQ(GetHotkey("R&&D"), "");
    EXPECT_EQ(GetHotkey("R&&&D"), "D");
    EXPECT_EQ(GetHotkey("End&"), "");
    EXPECT_EQ(GetHotkey(""), "");
    EXPECT_EQ(GetHotkey("&отмена"), "О");
}

TEST(AcceleratorTest, IsFoundWhateverTheCase)
{
    EXPECT_TRUE(IsAccel('o', "&Open"));
    EXPECT_TRUE(IsAccel('O', "&open"));
    EXPECT_TRUE(IsAccel(u'О', "&отмена"));
    EXPECT_TRUE(IsAccel('b', "&Al&b"));
    EXPECT_FALSE(IsAccel('a', "&Al&b"));
    EXPECT_FALSE(IsAccel('d', "R&&D"));
    EXPECT_TRUE(IsAccel('d', "R&&&D"));
    EXPECT_FALSE(IsAccel('&', "&&"));
    EXPECT_FALSE(IsAccel(0, "Open"));
    EXPECT_FALSE(IsAccel('o', ""));
}

TEST(AcceleratorTest, IsTakenOut)
{
    EXPECT_EQ(StripHotkey("&Open"), "Open");
    EXPECT_EQ(StripHotkey("R&&D"), "R&&D");
    EXPECT_EQ(StripHotkey("&R&&D"), "R&&D");
    EXPECT_EQ(StripHotkey("End&"), "End");
}

TEST(AcceleratorTest, TheTextAsItShowsHasOneAmpersandForTwo)
{
    EXPECT_EQ(ShownText("&Open"), "Open");
    EXPECT_EQ(ShownText("R&&D"), "R&D");
    EXPECT_EQ(ShownText("R&&&D"), "R&D");
    EXPECT_EQ(ShownText("&&&&"), "&&");
    EXPECT_EQ(ShownText("End&"), "End");
    EXPECT_EQ(ShownText(""), "");
}
