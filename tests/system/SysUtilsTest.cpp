#include "vcl/system/SysUtils.h"

#include "vcl/system/Locale.h"
#include "vcl/system/Utf.h"

#include <gtest/gtest.h>
#include <limits>

namespace {
template <class Action>
std::string ErrorOf(Action Act)
{
    try {
        Act();
    } catch (const EConvertError& Error) {
        return Error.Message;
    }
    return "no error";
}
} // namespace

TEST(SysUtilsTest, IntegersAndTexts)
{
    EXPECT_EQ(IntToStr(-42), "-42");
    EXPECT_EQ(IntToHex(0x1F, 4), "001F");
    EXPECT_EQ(IntToHex(-1, 2), "FFFFFFFFFFFFFFFF");
    EXPECT_EQ(StrToInt(" 12 "), 12);
    EXPECT_EQ(StrToInt("-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(StrToInt("+7"), 7);
    EXPECT_EQ(StrToInt("$FFFFFFFF"), -1);
    EXPECT_EQ(StrToInt("0x10"), 16);
    EXPECT_EQ(StrToInt("-$10"), -16);
    EXPECT_EQ(StrToInt64("-9223372036854775808"), std::numeric_limits<int64_t>::min());
    for (const char* Bad : {"", "x", "1 2", "1.0", "--1", "+-1", "$", "$G", "2147483648", "-2147483649", "$100000000",
                            "99999999999999999999", "-"}) {
        EXPECT_EQ(ErrorOf([&] { StrToInt(Bad); }), AnsiString("'") + Bad + "' is not a valid integer value");
        EXPECT_EQ(StrToIntDef(Bad, -3), -3);
    }
    EXPECT_EQ(ErrorOf([&] { StrToInt64("9223372036854775808"); }),
              "'9223372036854775808' is not a valid integer value");
}

TEST(SysUtilsTest, FloatsAndTexts)
{
    EXPECT_EQ(FloatToStr(0.1), "0.1");
    EXPECT_EQ(FloatToStr(-1234.5), "-1234.5");
    EXPECT_EQ(FloatToStr(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(FloatToStr(1e20), "1E20");
    EXPECT_EQ(FloatToStr(1e-7), "1E-7");
    EXPECT_EQ(FloatToStr(3), "3");
    EXPECT_EQ(FloatToStr(0), "0");
    EXPECT_EQ(FloatToStr(0.00002), "0.00002");
    EXPECT_EQ(FloatToStr(100000), "100000");
    EXPECT_EQ(FloatToStr(123456789012345.0), "123456789012345");
    EXPECT_EQ(FloatToStr(1234567890123456.0), "1.23456789012346E15");
    EXPECT_EQ(StrToFloat(" 1.5e3 "), 1500);
    EXPECT_EQ(StrToFloat("+0.25"), 0.25);
    for (const char* Bad : {"", "x", "1,5", "1.5.", "inf", "nan", "+-1"})
        EXPECT_EQ(ErrorOf([&] { StrToFloat(Bad); }), AnsiString("'") + Bad + "' is not a valid floating point value");
    EXPECT_EQ(StrToFloatDef("x", 2.5), 2.5);
    EXPECT_EQ(BoolToStr(true), "-1");
    EXPECT_EQ(BoolToStr(false, true), "False");
}

TEST(SysUtilsTest, TrimmingAndCase)
{
    EXPECT_EQ(Trim("\t a b \r\n"), "a b");
    EXPECT_EQ(TrimLeft("  a "), "a ");
    EXPECT_EQ(TrimRight(" a\n"), " a");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(UpperCase("abcжé"), "ABCжé");
    EXPECT_EQ(LowerCase("ABCЖ"), "abcЖ");
    EXPECT_EQ(AnsiUpperCase("abcжé"), "ABCЖÉ");
    EXPECT_EQ(AnsiLowerCase("ÀЯ"), "àя");
    EXPECT_EQ(AnsiUpperCase(""), "");
    EXPECT_EQ(AnsiUpperCase("\U0001F600a"), "\U0001F600A");
}

TEST(SysUtilsTest, Comparing)
{
    EXPECT_LT(CompareStr("B", "a"), 0);
    EXPECT_GT(CompareText("B", "a"), 0);
    EXPECT_LT(CompareText("a", "ab"), 0);
    EXPECT_TRUE(SameText("Caption", "CAPTION"));
    EXPECT_FALSE(SameText("ж", "Ж"));
    EXPECT_TRUE(AnsiSameText("ж", "Ж"));
    EXPECT_FALSE(AnsiSameStr("ж", "Ж"));
    EXPECT_LT(AnsiCompareText("apple", "Banana"), 0);
    EXPECT_LT(AnsiCompareStr("a", "A"), 0);
    EXPECT_LT(AnsiCompareText("Отмена", "Пуск"), 0);
    EXPECT_EQ(AnsiCompareText("", ""), 0);
    EXPECT_LT(AnsiCompareText("", "a"), 0);
}

TEST(SysUtilsTest, FindingAndReplacing)
{
    EXPECT_EQ(Pos("b", "abcb"), 2);
    EXPECT_EQ(Pos("x", "abc"), 0);
    EXPECT_EQ(Pos("", "abc"), 0);
    EXPECT_EQ(StringReplace("aXbxc", "x", "--"), "aXb--c");
    EXPECT_EQ(StringReplace("aXbxc", "x", "--", rfIgnoreCase), "a--bxc");
    EXPECT_EQ(StringReplace("aXbxc", "x", "", rfReplaceAll | rfIgnoreCase), "abc");
    EXPECT_EQ(StringReplace("aaa", "aa", "a", rfReplaceAll), "aa");
    EXPECT_EQ(StringReplace("abc", "", "x", rfReplaceAll), "abc");
    EXPECT_EQ(StringReplace("ab", "abc", "x"), "ab");
    EXPECT_EQ(StringOfChar('-', 3), "---");
    EXPECT_EQ(StringOfChar('-', -1), "");
}

TEST(SysUtilsTest, Quoting)
{
    EXPECT_EQ(QuotedStr("It's"), "'It''s'");
    EXPECT_EQ(AnsiQuotedStr("", '"'), "\"\"");
    std::string_view Text = "\"a\"\"b\" rest";
    EXPECT_EQ(AnsiExtractQuotedStr(Text, '"'), "a\"b");
    EXPECT_EQ(Text, " rest");
    EXPECT_EQ(AnsiExtractQuotedStr(Text, '"'), "");
    EXPECT_EQ(Text, " rest");
    Text = "\"open";
    EXPECT_EQ(AnsiExtractQuotedStr(Text, '"'), "open");
    EXPECT_EQ(Text, "");
    EXPECT_EQ(AnsiDequotedStr("'x'", '\''), "x");
    EXPECT_EQ(AnsiDequotedStr("x", '\''), "x");
    EXPECT_EQ(AnsiDequotedStr("''", '\''), "");
}

TEST(FormatTest, EveryType)
{
    EXPECT_EQ(Format("%d of %s (%u%%)", -3, "many", 50u), "-3 of many (50%)");
    EXPECT_EQ(Format("[%5d|%-5d|%.4d|%x|%.8x]", 42, 42, -42, 255, 0xBEEF), "[   42|42   |-0042|FF|0000BEEF]");
    EXPECT_EQ(Format("[%5s|%-5s|%.2s]", "ab", std::string("ab"), "abcdef"), "[   ab|ab   |ab]");
    EXPECT_EQ(Format("%f %.1f %n %.0n %g", 1.005, 2.25, 1234567.891, -1234.0, 0.1), "1.00 2.2 1,234,567.89 -1,234 0.1");
    EXPECT_EQ(Format("%.3e", 12345.0), "1.23E+004");
    EXPECT_EQ(Format("%1:s %0:s %s", "a", "b"), "b a b");
    EXPECT_EQ(Format("%*d|%-*.*d", 4, 7, 5, 2, 3), "   7|03   ");
}

TEST(FormatTest, MistakesAreReported)
{
    EXPECT_EQ(ErrorOf([] { Format("%d", "x"); }), "Format '%d' invalid or incompatible with argument");
    EXPECT_EQ(ErrorOf([] { Format("%s", 1); }), "Format '%s' invalid or incompatible with argument");
    EXPECT_EQ(ErrorOf([] { Format("%f", 1); }), "Format '%f' invalid or incompatible with argument");
    EXPECT_EQ(ErrorOf([] { Format("%q", 1); }), "Format '%q' invalid or incompatible with argument");
    EXPECT_EQ(ErrorOf([] { Format("100%", 1); }), "Format '100%' invalid or incompatible with argument");
    EXPECT_EQ(ErrorOf([] { Format("%99999999d", 1); }), "Format '%99999999d' invalid or incompatible with argument");
    EXPECT_EQ(ErrorOf([] { Format("%d %d", 1); }), "No argument for format '%d %d'");
    EXPECT_EQ(ErrorOf([] { Format("%5:d", 1); }), "No argument for format '%5:d'");
}

TEST(FileNamesTest, PartsOfAName)
{
    const char* Name = "C:\\dir.x\\sub/file.tar.gz";
    EXPECT_EQ(ExtractFilePath(Name), "C:\\dir.x\\sub/");
    EXPECT_EQ(ExtractFileDir(Name), "C:\\dir.x\\sub");
    EXPECT_EQ(ExtractFileDrive(Name), "C:");
    EXPECT_EQ(ExtractFileName(Name), "file.tar.gz");
    EXPECT_EQ(ExtractFileExt(Name), ".gz");
    EXPECT_EQ(ChangeFileExt(Name, ".dfm"), "C:\\dir.x\\sub/file.tar.dfm");
    EXPECT_EQ(ExtractFileExt("C:\\dir.x\\file"), "");
    EXPECT_EQ(ChangeFileExt("C:\\dir.x\\file", ".y"), "C:\\dir.x\\file.y");
    EXPECT_EQ(ChangeFileExt("file.x", ""), "file");
    EXPECT_EQ(ExtractFilePath("file"), "");
    EXPECT_EQ(ExtractFileDir("C:\\file"), "C:\\");
    EXPECT_EQ(ExtractFileDir("C:file"), "C:");
    EXPECT_EQ(ExtractFileDrive("\\\\server\\share\\x"), "\\\\server\\share");
    EXPECT_EQ(ExtractFileDrive("\\x"), "");
    EXPECT_EQ(IncludeTrailingPathDelimiter("C:\\a"), "C:\\a\\");
    EXPECT_EQ(IncludeTrailingPathDelimiter("a/"), "a/");
    EXPECT_EQ(ExcludeTrailingPathDelimiter("a\\"), "a");
}

TEST(FileNamesTest, WhatIsNotThereIsNotFound)
{
    std::string Folder = testing::TempDir();
    EXPECT_TRUE(DirectoryExists(Folder));
    EXPECT_FALSE(FileExists(Folder));
    EXPECT_FALSE(FileExists(Folder + "tessary_нет.txt"));
    EXPECT_FALSE(DirectoryExists(Folder + "tessary_нет"));
    EXPECT_FALSE(DeleteFile(Folder + "tessary_нет.txt"));
    EXPECT_FALSE(RenameFile(Folder + "tessary_нет.txt", Folder + "tessary_x.txt"));
}

TEST(LocaleTest, DecodesCodePages)
{
    EXPECT_EQ(DecodeCodePage("\xCE\xF2\xEC\xE5\xED\xE0", 1251), "Отмена");
    EXPECT_EQ(DecodeCodePage("caf\xE9 \x80", 1252), "café €");
    EXPECT_EQ(DecodeCodePage("", 1252), "");
    EXPECT_EQ(DecodeCodePage("a\xE9z", 4711), "a\uFFFDz");
    EXPECT_NE(LegacyCodePage(), 65001u);
    EXPECT_GE(LegacyCodePage(), 874u);
}

TEST(UtfTest, BothWaysAndBrokenInput)
{
    for (std::string Text : {std::string("plain"), std::string("Отмена"), std::string("\U0001F600"),
                             std::string(1000, 'x'), std::string("a\0b", 3), std::string()}) {
        EXPECT_TRUE(IsValidUtf8(Text));
        EXPECT_EQ(FromWide(ToWide(Text)), Text);
        TWideText Short(Text);
        EXPECT_EQ(FromWide({Short.c_str(), Short.size()}), Text);
        EXPECT_EQ(Short.c_str()[Short.size()], 0);
    }
    for (std::string_view Bad : {"\xFF", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80", "a\x80z"})
        EXPECT_FALSE(IsValidUtf8(Bad)) << Bad;
    EXPECT_EQ(FromWide(ToWide("a\xFFz")), "a\uFFFDz");
    const TWideChar Lone[] = {0xD800, 'x'};
    EXPECT_EQ(FromWide({Lone, 2}), "\uFFFDx");
}
