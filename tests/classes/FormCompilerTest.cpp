#include "tests/classes/FormFixtures.h"
#include "vcl/classes/FormConvert.h"

#include <gtest/gtest.h>

namespace {

std::string Compile(std::string_view Text)
{
    std::string Binary;
    FormTextToBinary(Text, Binary);
    return Binary;
}

// The bytes of one value, type included.
std::string CompileValue(const std::string& Value)
{
    const std::string Binary = Compile("object A: TA\nB = " + Value + "\nend\n");
    const std::string Before = Bytes("'TPF0' 02'TA' 01'A' 01'B'");
    EXPECT_EQ(Binary.substr(0, Before.size()), Before);
    EXPECT_EQ(Binary.substr(Binary.size() - 2), Bytes("00 00"));
    return Binary.substr(Before.size(), Binary.size() - Before.size() - 2);
}

TEST(FormCompiler, SmallFormByteForByte)
{
    EXPECT_EQ(Hex(Compile("object Form1: TForm1\r\n"
                          "  Left = 192\r\n"
                          "  Caption = 'Hi'\r\n"
                          "  Font.Style = [fsBold]\r\n"
                          "  object OkButton: TButton\r\n"
                          "    Default = True\r\n"
                          "  end\r\n"
                          "end\r\n")),
              Hex(Bytes("'TPF0' 06'TForm1' 05'Form1'"
                        "04'Left' 03 C000"
                        "07'Caption' 06 02'Hi'"
                        "0A'Font.Style' 0B 06'fsBold' 00"
                        "00"
                        "07'TButton' 08'OkButton'"
                        "07'Default' 09"
                        "00 00"
                        "00")));
}

TEST(FormCompiler, ObjectsWithPrefixes)
{
    EXPECT_EQ(Hex(Compile("inherited F: TF\n inherited A: TA [3] end inline B: TB end inline C: TC [-1] end\n"
                          " object D: TD [200] end object TE end end")),
              Hex(Bytes("'TPF0' F1 02'TF' 01'F' 00"
                        "F3 02 03 02'TA' 01'A' 00 00"
                        "F4 02'TB' 01'B' 00 00"
                        "F6 02 FF 02'TC' 01'C' 00 00"
                        "F2 03 C800 02'TD' 01'D' 00 00"
                        "02'TE' 00 00 00"
                        "00")));
}

TEST(FormCompiler, LongClassNameIsNotTakenForAPrefix)
{
    const std::string Name(240, 'T');
    const std::string Binary = Compile("object A: " + Name + " end");
    EXPECT_EQ(Hex(Binary), Hex(Bytes("'TPF0' F0 F0") + Name + Bytes("01'A' 00 00")));
    std::string Text;
    FormBinaryToText(Binary, Text);
    EXPECT_EQ(Text, "object A: " + Name + "\r\nend\r\n");
}

struct TValueCase {
    const char* Name;
    const char* Text;
    const char* Binary;
};

class FormCompilerValue : public testing::TestWithParam<TValueCase> {};

TEST_P(FormCompilerValue, ByteForByte)
{
    EXPECT_EQ(Hex(CompileValue(GetParam().Text)), Hex(Bytes(GetParam().Binary)));
}

constexpr TValueCase ValueCases[] = {
    {"Null", "Null", "00"},
    {"Nil", "nil", "0D"},
    {"TrueInAnyCase", "TRUE", "09"},
    {"False", "false", "08"},
    {"Int8", "-128", "02 80"},
    {"Int16", "128", "03 8000"},
    {"Int32", "-32769", "04 FF7FFFFF"},
    {"Int64", "2147483648", "13 00000080 00000000"},
    {"Hexadecimal", "$7F", "02 7F"},
    {"HexadecimalBeyond32Bits", "$FFFFFFFF", "13 FFFFFFFF 00000000"},
    {"HexadecimalNegative", "$FFFFFFFFFFFFFFFE", "02 FE"},
    {"LeadingZeros", "0007", "02 07"},
    {"Extended", "1.5", "05 000000000000 00C0 FF3F"},
    {"ExtendedTenth", "0.1", "05 CDCCCCCC CCCCCCCC FB3F"},
    {"ExtendedExponent", "-1e+2", "05 000000000000 00C8 05C0"},
    {"ExtendedZero", "0.0", "05 0000000000000000 0000"},
    {"Double", "1.500000000000000000", "15 000000000000F83F"},
    {"DoubleManyDecimals", "0.000000000000000000001", "15 4F9B0E0AB4E3923B"},
    {"Single", "1.5s", "0F 0000C03F"},
    {"SingleWhole", "2S", "0F 00000040"},
    {"Currency", "15000c", "10 983A0000 00000000"},
    {"CurrencyDecimals", "-15000.000000000000000000C", "10 68C5FFFF FFFFFFFF"},
    {"Date", "1.5d", "11 000000000000F83F"},
    {"Ident", "clBtnFace", "07 09'clBtnFace'"},
    {"DottedIdent", "Form2.Table1", "07 0C'Form2.Table1'"},
    {"EmptyString", "''", "06 00"},
    {"String", "'ab'", "06 02'ab'"},
    {"DoubledQuote", "'a''b'", "06 03'a'27'b'"},
    {"OnlyDoubledQuotes", "''''''", "06 02 27 27"},
    {"Codes", "#65#0#10'x'", "06 04 41 00 0A 78"},
    {"Continued", "'a' +\r\n  'b' + #13", "06 03'ab'0D"},
    {"CodePageBytes", "'\xCE\xF2'", "06 02 CEF2"},
    {"Utf8BytesWithoutSignature", "'\xD0\x9E'", "06 02 D09E"},
    {"Utf8IsShorter", "'caf'#233", "14 05000000'caf'C3A9"},
    {"Utf16IsShorter", "#26085#26412", "12 02000000 E565 2C67"},
    {"CodesTurnTheWholeStringWide", "'a' + #1054 + 'b'", "14 04000000 'a' D09E 'b'"},
    {"Utf8BytesWithCodes", "'\xD0\x9E'#1054'a'", "14 05000000 D09E D09E 'a'"},
    {"SurrogatePair", "#55357#56832", "12 02000000 3DD8 00DE"},
    {"LoneSurrogateInAscii", "'abc'#55357'abc'", "12 07000000 6100 6200 6300 3DD8 6100 6200 6300"},
    {"EmptySet", "[]", "0B 00"},
    {"Set", "[a,b , c]", "0B 01'a' 01'b' 01'c' 00"},
    {"SetOfNumbers", "[1, 31]", "0B 01'1' 02'31' 00"},
    {"SetOfNumbersSpeltOtherwise", "[$1F, 007]", "0B 02'31' 01'7' 00"},
    {"EmptyList", "()", "01 00"},
    {"List", "(1 'a' 'b' (2))", "01 02 01 06 01'a' 06 01'b' 01 02 02 00 00"},
    {"EmptyCollection", "<>", "0E 00"},
    {"Collection", "< item end ITEM [7] A = 1 END>", "0E 01 00 02 07 01 01'A' 02 01 00 00"},
    {"EmptyBinary", "{}", "0A 00000000"},
    {"Binary", "{ 00fF\r\n 1A 2b }", "0A 04000000 00FF1A2B"},
};

INSTANTIATE_TEST_SUITE_P(Values, FormCompilerValue, testing::ValuesIn(ValueCases),
                         [](const auto& Info) { return Info.param.Name; });

TEST(FormCompiler, StringsOver255BytesAreLong)
{
    EXPECT_EQ(CompileValue("'" + std::string(255, 'x') + "'"), Bytes("06 FF") + std::string(255, 'x'));
    EXPECT_EQ(CompileValue("'" + std::string(256, 'x') + "'"), Bytes("0C 00010000") + std::string(256, 'x'));
}

TEST(FormCompiler, QuotedTextIsUtf8BehindTheSignature)
{
    EXPECT_EQ(Hex(Compile("\xEF\xBB\xBFobject A: TA B = '\xD0\x9E\xD0\x9Ez' C = 'ascii' end")),
              Hex(Bytes("'TPF0' 02'TA' 01'A' 01'B' 14 05000000 D09ED09E'z' 01'C' 06 05'ascii' 00 00")));
}

TEST(FormCompiler, StopsBehindTheForm)
{
    const std::string_view Text = "object A: TA\nend\n\n  object B: TB\nend ?";
    std::string Binary;
    const std::size_t Used = FormTextToBinary(Text, Binary);
    EXPECT_EQ(Text.substr(Used), "object B: TB\nend ?");
    EXPECT_EQ(Text.substr(Used + FormTextToBinary(Text.substr(Used), Binary)), "?");
    EXPECT_EQ(Hex(Binary), Hex(Bytes("'TPF0' 02'TA' 01'A' 00 00 'TPF0' 02'TB' 01'B' 00 00")));
}

TEST(FormCompiler, BlanksAndLineEndsDoNotMatter)
{
    EXPECT_EQ(Compile("object A:TA Left=1 Top=-2 Font.Style=[a]Items=('a''b' 'c')Columns=<item X=1 end>end"),
              Compile("\t object\rA : TA\n\nLeft\n=\n1 Top = -2\nFont.Style = [ a ]\nItems = ( 'a''b'\n'c' )\n"
                      "Columns = < item X = 1 end >\nend\x1A"));
}

TEST(FormCompiler, NestsUpToTheLimit)
{
    std::string Text;
    for (int I = 0; I < MaxFormDepth; I++)
        Text += "object TA\n";
    for (int I = 0; I < MaxFormDepth; I++)
        Text += "end\n";
    std::string Binary;
    FormTextToBinary(Text, Binary);
    std::string Printed;
    FormBinaryToText(Binary, Printed);
    std::string Again;
    FormTextToBinary(Printed, Again);
    EXPECT_EQ(Again, Binary);
}

} // namespace
