#include "tests/classes/FormFixtures.h"
#include "vcl/classes/FormConvert.h"

#include <gtest/gtest.h>

namespace {

std::string Print(std::string_view Binary)
{
    std::string Text;
    EXPECT_EQ(FormBinaryToText(Binary, Text), Binary.size());
    return Text;
}

// How a value of the property B stands in the text, from behind "B = " to the end of its last line.
std::string PrintValue(std::string_view Binary)
{
    const std::string Text = Print(Bytes("'TPF0' 02'TA' 01'A' 01'B'") + std::string(Binary) + Bytes("00 00"));
    const std::string Before = "object A: TA\r\n  B = ";
    const std::string After = "\r\nend\r\n";
    EXPECT_EQ(Text.substr(0, Before.size()), Before);
    EXPECT_EQ(Text.substr(Text.size() - After.size()), After);
    return Text.substr(Before.size(), Text.size() - Before.size() - After.size());
}

struct TValueCase {
    const char* Name;
    const char* Binary;
    const char* Text;
};

class FormPrinterValue : public testing::TestWithParam<TValueCase> {};

TEST_P(FormPrinterValue, Text)
{
    EXPECT_EQ(PrintValue(Bytes(GetParam().Binary)), GetParam().Text);
}

constexpr TValueCase ValueCases[] = {
    {"Null", "00", "Null"},
    {"WideInteger", "04 05000000", "5"},
    {"NegativeInt64", "13 0000000000000080", "-9223372036854775808"},
    {"ExtendedWhole", "05 000000000000 00A0 0140", "5"},
    {"ExtendedStoredByWayOfADouble", "05 00D0CCCC CCCCCCCC FB3F", "0.1"},
    {"ExtendedWithAllDigits", "05 CECCCCCC CCCCCCCC FB3F", "1.0000000000000000001E-1"},
    {"ExtendedLarge", "05 000000 000020BC BE 3440", "1.34217728E16"},
    {"ExtendedNegativeZero", "05 0000000000000000 0080", "-0.0"},
    {"Double", "15 000000000000E0BF", "-0.500000000000000000"},
    {"DoubleZero", "15 0000000000000000", "0.000000000000000000"},
    {"DoubleOfSeventeenDigits", "15 343333333333D33F", "0.300000000000000040"},
    {"DoubleTooSmallForEighteenDecimals", "15 4F9B0E0AB4E3923B", "0.000000000000000000001"},
    {"DoubleLarge", "15 9C75008 83CE4377E", "1E300"},
    {"Single", "0F CDCCCC3D", "0.100000001490116s"},
    {"SingleTiny", "0F 01000000", "1.40129846432482E-45s"},
    {"CurrencyLargest", "10 FFFFFFFFFFFFFF7F", "9223372036854775807c"},
    {"Date", "11 000000000000F83F", "1.5d"},
    {"LongStringType", "0C 02000000'ab'", "'ab'"},
    {"WideStringType", "12 02000000 6100 6200", "'ab'"},
    {"Utf8StringType", "14 05000000'caf'C3A9", "'caf'#233"},
    {"Utf8OfFourBytes", "14 04000000 F09F9880", "#55357#56832"},
    {"WideEmpty", "12 00000000", "''"},
    {"CodePageBytesStayRaw", "06 03 CEF27F", "'\xCE\xF2\x7F'"},
    {"ControlCodes", "06 04 00 1F 20 27", "#0#31' '#39"},
    {"Set", "0B 01'a' 02'31' 00", "[a, 31]"},
    {"ListOfLists", "01 01 00 01 02 01 00 00", "(\r\n    ()\r\n    (\r\n      1))"},
    {"Collection", "0E 02 05 01 00 01 01'X' 09 00 00",
     "<\r\n    item [5]\r\n    end\r\n    item\r\n      X = True\r\n    end>"},
    {"BinaryShort", "0A 02000000 0AFF", "{0AFF}"},
};

INSTANTIATE_TEST_SUITE_P(Values, FormPrinterValue, testing::ValuesIn(ValueCases),
                         [](const auto& Info) { return Info.param.Name; });

TEST(FormPrinter, BinaryStandsBelowFrom32Bytes)
{
    EXPECT_EQ(PrintValue(Bytes("0A 1F000000") + std::string(31, '\x11')), "{" + std::string(62, '1') + "}");
    EXPECT_EQ(PrintValue(Bytes("0A 20000000") + std::string(32, '\x11')), "{\r\n    " + std::string(64, '1') + "}");
    EXPECT_EQ(PrintValue(Bytes("0A 21000000") + std::string(33, '\x11')),
              "{\r\n    " + std::string(64, '1') + "\r\n    11}");
}

TEST(FormPrinter, StringsBreakBehind64Characters)
{
    const std::string Line(64, 'x');
    EXPECT_EQ(PrintValue(Bytes("06 40") + Line), "'" + Line + "'");
    EXPECT_EQ(PrintValue(Bytes("06 41") + Line + "y"), "\r\n    '" + Line + "' +\r\n    'y'");
    EXPECT_EQ(PrintValue(Bytes("06 81") + Line + Line + "y"),
              "\r\n    '" + Line + "' +\r\n    '" + Line + "' +\r\n    'y'");
}

TEST(FormPrinter, BreaksInListsStandDeeper)
{
    const std::string Line(64, 'x');
    EXPECT_EQ(PrintValue(Bytes("01 06 41") + Line + "y" + Bytes("00")),
              "(\r\n    \r\n      '" + Line + "' +\r\n      'y')");
}

TEST(FormPrinter, BreaksDoNotSplitTwoByteCharacters)
{
    std::string Pairs;
    for (int I = 0; I < 33; I++)
        Pairs += "\xD5\xE2";
    EXPECT_EQ(PrintValue(Bytes("06 43") + "a" + Pairs),
              "\r\n    'a" + Pairs.substr(0, 62) + "' +\r\n    '" + Pairs.substr(62) + "'");
    EXPECT_EQ(PrintValue(Bytes("06 42") + Pairs),
              "\r\n    '" + Pairs.substr(0, 64) + "' +\r\n    '" + Pairs.substr(64) + "'");
}

TEST(FormPrinter, BytesThatDoNotPairUpAreSingleCharacters)
{
    // "a", an odd number of high bytes and a blank: no double-byte code page has that.
    const std::string Text = "a" + std::string(63, '\xE2') + " " + std::string(3, '\xE2');
    EXPECT_EQ(PrintValue(Bytes("06 44") + Text),
              "\r\n    '" + Text.substr(0, 64) + "' +\r\n    '" + Text.substr(64) + "'");
}

TEST(FormPrinter, BreaksDoNotSplitUtf8Characters)
{
    std::string Text = "ab";
    for (int I = 0; I < 21; I++)
        Text += "\xE6\x97\xA5";
    EXPECT_EQ(PrintValue(Bytes("06 41") + Text),
              "\r\n    '" + Text.substr(0, 62) + "' +\r\n    '" + Text.substr(62) + "'");
}

TEST(FormPrinter, Prefixes)
{
    EXPECT_EQ(Print(Bytes("'TPF0' F1 02'TF' 01'F' 00"
                          "F3 02 03 02'TA' 01'A' 00 00"
                          "F4 02'TB' 01'B' 00 00"
                          "F6 04 FFFFFFFF 02'TC' 00 00 00"
                          "F5 02'TD' 01'D' 00 00"
                          "F0 02'TE' 01'E' 00 00"
                          "00")),
              WithCrLf("inherited F: TF\n"
                       "  inherited A: TA [3]\n  end\n"
                       "  inline B: TB\n  end\n"
                       "  inline TC [-1]\n  end\n"
                       "  inherited D: TD\n  end\n"
                       "  object E: TE\n  end\n"
                       "end\n"));
}

TEST(FormPrinter, SignatureOnlyForNamesInUtf8)
{
    EXPECT_EQ(Print(Bytes("'TPF0' 03'T'C396 00 00 00")), "\xEF\xBB\xBFobject T\xC3\x96\r\nend\r\n");
    // Not UTF-8: the author's code page, like the strings.
    EXPECT_EQ(Print(Bytes("'TPF0' 02'T'D6 00 00 00")), "object T\xD6\r\nend\r\n");
    // With the signature the string's bytes would be taken for UTF-8.
    EXPECT_EQ(Print(Bytes("'TPF0' 03'T'C396 00 01'A' 06 02 C396 00 00")),
              "object T\xC3\x96\r\n  A = '\xC3\x96'\r\nend\r\n");
    EXPECT_EQ(Print(Bytes("'TPF0' 01'T' 00 01'A' 14 02000000 C396 00 00")), "object T\r\n  A = #214\r\nend\r\n");
}

TEST(FormPrinter, StopsBehindTheForm)
{
    const std::string Binary = Bytes("'TPF0' 01'T' 00 00 00 'rest'");
    std::string Text;
    EXPECT_EQ(FormBinaryToText(Binary, Text), Binary.size() - 4);
    EXPECT_EQ(Text, "object T\r\nend\r\n");
}

} // namespace
