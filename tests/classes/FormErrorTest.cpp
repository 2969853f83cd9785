// Broken forms: what the error says, and where.
#include "tests/classes/FormFixtures.h"
#include "vcl/classes/FormConvert.h"

#include <gtest/gtest.h>

namespace {

struct TTextCase {
    const char* Name;
    std::string Text;
    int Line;
    const char* Detail;
};

std::string InForm(const std::string& Properties)
{
    return "object Form1: TForm1\n  Left = 0\n" + Properties;
}

std::string Repeat(const std::string& Text, int Count)
{
    std::string Result;
    for (int I = 0; I < Count; I++)
        Result += Text;
    return Result;
}

const TTextCase TextCases[] = {
    {"Empty", "", 1, "'object', 'inherited' or 'inline' expected but the text ends"},
    {"Blank", "\n \n", 3, "'object', 'inherited' or 'inline' expected but the text ends"},
    {"NoForm", "unit Unit1;", 1, "'object', 'inherited' or 'inline' expected but 'unit' found"},
    {"Utf16", "\xFF\xFEo", 1, "The text is UTF-16; save it as UTF-8"},
    {"NoName", "object", 1, "A name or class expected but the text ends"},
    {"NumberForName", "object 5: TForm1\nend", 1, "A name or class expected but '5' found"},
    {"NoClass", "object Form1:\n\nLeft = 0\nend", 3, "'end' or another object expected but '=' found"},
    {"StringForClass", "object Form1: 'TForm1'\nend", 1, "A class expected but a string found"},
    {"IndexNotClosed", "object Form1: TForm1 [1\nend", 2, "']' expected but 'end' found"},
    {"IndexEmpty", "object Form1: TForm1 []\nend", 1, "An index expected but ']' found"},
    {"IndexTooLarge", "object Form1: TForm1 [2147483648]\nend", 1, "The index is out of range"},
    {"LongClass", "object A: " + std::string(256, 'T') + "\nend", 1, "The name is longer than 255 bytes"},
    {"LongIdentifier", InForm("Color = " + std::string(256, 'c')), 3, "The identifier is longer than 255 bytes"},
    {"NoEnd", InForm(""), 3, "'end' or another object expected but the text ends"},
    {"ChildWithoutEnd", InForm("object A: TA\nend\n"), 5, "'end' or another object expected but the text ends"},
    {"NoEquals", InForm("Top 5\nend"), 3, "'=' expected but '5' found"},
    {"NoValue", InForm("Top =\nend\n"), 5, "'end' or another object expected but the text ends"},
    {"SymbolForValue", InForm("Top = ]"), 3, "A value expected but ']' found"},
    {"TextEndsForValue", InForm("Top ="), 3, "A value expected but the text ends"},
    {"PropertyBehindChild", InForm("object A: TA\nend\nTop = 0\nend"), 5,
     "'end' or another object expected but 'Top' found"},
    {"TwoValues", InForm("Top = 1 2\nend"), 3, "'end' or another object expected but '2' found"},
    {"PointAtEndOfName", InForm("Font. = 1\nend"), 3, "An identifier must follow the point"},
    {"PointInFront", InForm(".Name = 1\nend"), 3, "'end' or another object expected but '.' found"},
    {"BadCharacter", InForm("Top = 5;\nend"), 3, "Unexpected character ';'"},
    {"ControlCharacter", InForm(std::string("Top = \0", 7)), 3, "Unexpected character with the code 0"},
    {"Integer64TooLarge", InForm("Tag = 9223372036854775808\nend"), 3, "The number is out of range"},
    {"Integer64TooSmall", InForm("Tag = -9223372036854775809\nend"), 3, "The number is out of range"},
    {"HexTooLarge", InForm("Tag = $10000000000000000\nend"), 3, "The number is out of range"},
    {"HexWithoutDigits", InForm("Tag = $\nend"), 3, "A hexadecimal digit must follow '$'"},
    {"HexWithOtherLetters", InForm("Tag = $1G\nend"), 3, "Unexpected character 'G' in a number"},
    {"MinusAlone", InForm("Tag = -\nend"), 3, "A number must follow the minus sign"},
    {"LetterInNumber", InForm("Tag = 12x\nend"), 3, "Unexpected character 'x' in a number"},
    {"SuffixAndMore", InForm("Tag = 1.5cd\nend"), 3, "Unexpected character 'd' in a number"},
    {"NoDecimals", InForm("Tag = 1.\nend"), 3, "A digit must follow the decimal point"},
    {"TwoPoints", InForm("Tag = 1.5.2\nend"), 3, "'end' or another object expected but '.' found"},
    {"NoExponent", InForm("Tag = 1E\nend"), 3, "A digit must follow the exponent sign"},
    {"ExtendedTooLarge", InForm("Tag = 1E5000\nend"), 3, "The number is out of range"},
    {"DoubleTooLarge", InForm("Tag = 1" + std::string(400, '0') + ".000000000000000000\nend"), 3,
     "The number is out of range"},
    {"SingleTooLarge", InForm("Tag = 1E39s\nend"), 3, "The number is out of range"},
    {"CurrencyTooLarge", InForm("Tag = 1E19c\nend"), 3, "The number is out of range"},
    {"DateTooLarge", InForm("Tag = 1E309d\nend"), 3, "The number is out of range"},
    {"StringNotClosed", InForm("Caption = 'abc\n'\nend"), 3, "The string is not closed"},
    {"StringNotClosedAtEnd", InForm("Caption = 'abc"), 3, "The string is not closed"},
    {"QuoteDoubledAtEnd", InForm("Caption = 'abc''\nend"), 3, "The string is not closed"},
    {"CodeWithoutDigits", InForm("Caption = 'a'#\nend"), 3, "A character code must follow '#'"},
    {"CodeTooLarge", InForm("Caption = #65536\nend"), 3, "The character code is out of range"},
    {"CodeMuchTooLarge", InForm("Caption = #99999999999999999999\nend"), 3, "The character code is out of range"},
    {"NothingBehindPlus", InForm("Caption = 'a' +\nend"), 4, "A string expected but 'end' found"},
    {"NumberBehindPlus", InForm("Caption = 'a' +\n 5"), 4, "A string expected but '5' found"},
    {"CodePageAndCodes", InForm("Caption = '\xCE' + #1054\nend"), 3,
     "Code-page text and character codes above 127 stand in one string"},
    {"CodesAndCodePage", InForm("Caption = #1054 +\n'\xCE'\nend"), 4,
     "Code-page text and character codes above 127 stand in one string"},
    {"StringNotUtf8", "\xEF\xBB\xBF" + InForm("Caption = '\xCE'\nend"), 3, "The text is not valid UTF-8"},
    {"NameNotUtf8", "\xEF\xBB\xBF" + InForm("\xCE = 1\nend"), 3, "The text is not valid UTF-8"},
    {"SetNotClosed", InForm("Style = [a, b\nend"), 4, "',' expected but 'end' found"},
    {"SetWithoutComma", InForm("Style = [a b]\nend"), 3, "',' expected but 'b' found"},
    {"SetWithCommaAtEnd", InForm("Style = [a,]\nend"), 3, "A set element expected but ']' found"},
    {"SetOfStrings", InForm("Style = ['a']\nend"), 3, "A set element expected but a string found"},
    {"SetOfNegativeNumbers", InForm("Style = [-1]\nend"), 3, "A set element cannot be negative"},
    {"SetEnds", InForm("Style = ["), 3, "A set element expected but the text ends"},
    {"ListNotClosed", InForm("Items = (\n'a'\n"), 5, "A value or ')' expected but the text ends"},
    {"ListClosedOtherwise", InForm("Items = (\n'a']"), 4, "A value expected but ']' found"},
    {"NullInList", InForm("Items = (1\nNull)"), 4, "Null cannot stand in a list"},
    {"CollectionWithoutItem", InForm("Items = <\nA = 1>"), 4, "'item' or '>' expected but 'A' found"},
    {"CollectionNotClosed", InForm("Items = <\nitem\nend"), 5, "'item' or '>' expected but the text ends"},
    {"ItemNotClosed", InForm("Items = <\nitem\nA = 1\n>"), 6, "'end' or a property expected but '>' found"},
    {"ItemWithChild", InForm("Items = <item\nobject A: TA"), 4, "'end' or a property expected but 'object' found"},
    {"BinaryHalfByte", InForm("Data = {\n123}"), 4, "Binary data with half a byte"},
    {"BinaryBadDigit", InForm("Data = {\n12 XY}"), 4, "Unexpected character 'X' in binary data"},
    {"BinaryNotClosed", InForm("Data = {\n12\n\n"), 3, "The binary data is not closed"},
    {"DeepObjects", Repeat("object TA\n", 1001), 1001, "The form is nested too deeply"},
    {"DeepLists", InForm("A = " + Repeat("(\n", 5000)), 1002, "The form is nested too deeply"},
    {"DeepCollections", InForm("A = " + Repeat("<item A =\n", 5000)), 1002, "The form is nested too deeply"},
};

class FormTextError : public testing::TestWithParam<TTextCase> {};

TEST_P(FormTextError, SaysWhatAndWhere)
{
    const TTextCase& Case = GetParam();
    std::string Binary = "before";
    try {
        FormTextToBinary(Case.Text, Binary);
        FAIL() << "accepted";
    } catch (const EFormTextError& Error) {
        EXPECT_EQ(Error.Detail, Case.Detail);
        EXPECT_EQ(Error.Line, Case.Line);
        EXPECT_EQ(Error.Message, Case.Detail + (" on line " + std::to_string(Case.Line)));
        EXPECT_STREQ(Error.ClassName(), "EFormTextError");
    }
    EXPECT_EQ(Binary, "before");
}

INSTANTIATE_TEST_SUITE_P(Cases, FormTextError, testing::ValuesIn(TextCases),
                         [](const auto& Info) { return Info.param.Name; });

struct TDataCase {
    const char* Name;
    std::string Data;
    std::size_t Offset;
    const char* Detail;
};

// A form with one property, B, whose value is at offset 11.
std::string WithValue(const char* Value)
{
    return Bytes("'TPF0' 02'TA' 01'A' 01'B'") + Bytes(Value);
}

const TDataCase DataCases[] = {
    {"Empty", "", 0, "The data ends too early"},
    {"HalfSignature", "TPF", 3, "The data ends too early"},
    {"OtherSignature", "TPF1 and more", 0, "The signature TPF0 is missing"},
    {"NothingBehindSignature", "TPF0", 4, "The data ends too early"},
    {"ClassBrokenOff", Bytes("'TPF0' 05'TFor'"), 9, "The data ends too early"},
    {"NoClass", Bytes("'TPF0' 00 00 00 00"), 4, "A name is missing"},
    {"ClassWithBlank", Bytes("'TPF0' 03'T A' 00 00 00"), 4, "The name cannot be spelled in text"},
    {"ClassStartsWithDigit", Bytes("'TPF0' 02'1T' 00 00 00"), 4, "The name cannot be spelled in text"},
    {"NameWithQuote", Bytes("'TPF0' 02'TA' 01 27 00 00"), 7, "The name cannot be spelled in text"},
    {"NameEndsWithPoint", Bytes("'TPF0' 02'TA' 02'A.' 00 00"), 7, "The name cannot be spelled in text"},
    {"UnknownFlag", Bytes("'TPF0' F8 02'TA' 00 00 00"), 4, "Unknown flag before an object"},
    {"ChildPosIsString", Bytes("'TPF0' F2 06 01'a' 02'TA' 00 00 00"), 5, "Integer expected"},
    {"ChildPosTooWide", Bytes("'TPF0' F2 13 0000000000000000 02'TA' 00 00 00"), 5, "Integer expected"},
    {"ChildPosBrokenOff", Bytes("'TPF0' F2 04 00"), 7, "The data ends too early"},
    {"NoProperties", Bytes("'TPF0' 02'TA' 01'A'"), 9, "The data ends too early"},
    {"NoChildren", Bytes("'TPF0' 02'TA' 01'A' 00"), 10, "The data ends too early"},
    {"PropertyNamedEnd", Bytes("'TPF0' 02'TA' 01'A' 03'eND' 00 00 00"), 9,
     "A property has a name that is a word of the language"},
    {"PropertyNamedObject", Bytes("'TPF0' 02'TA' 01'A' 06'Object' 00 00 00"), 9,
     "A property has a name that is a word of the language"},
    {"NoValue", WithValue(""), 11, "The data ends too early"},
    {"UnknownType", WithValue("16"), 11, "Unknown type of value"},
    {"UnknownTypeInList", WithValue("01 09 FF"), 13, "Unknown type of value"},
    {"Int8BrokenOff", WithValue("02"), 12, "The data ends too early"},
    {"Int16BrokenOff", WithValue("03 00"), 13, "The data ends too early"},
    {"Int64BrokenOff", WithValue("13 00000000 000000"), 19, "The data ends too early"},
    {"ExtendedBrokenOff", WithValue("05 0000000000000000 00"), 21, "The data ends too early"},
    {"ExtendedInfinite", WithValue("05 0000000000000080 FF7F"), 11, "The number is infinite or not a number"},
    {"ExtendedUnnormal", WithValue("05 0000000000000040 FF3F"), 11, "The number is infinite or not a number"},
    {"DoubleNotANumber", WithValue("15 000000000000F87F"), 11, "The number is infinite or not a number"},
    {"SingleInfinite", WithValue("0F 0000807F"), 11, "The number is infinite or not a number"},
    {"DateInfinite", WithValue("11 000000000000F0FF"), 11, "The number is infinite or not a number"},
    {"StringBrokenOff", WithValue("06 05'abc'"), 16, "The data ends too early"},
    {"LongStringHostile", WithValue("0C FFFFFFFF'abc'"), 12, "The length goes beyond the end of the data"},
    {"LongStringOneShort", WithValue("0C 04000000'abc'"), 12, "The length goes beyond the end of the data"},
    {"LongStringLengthBrokenOff", WithValue("0C 040000"), 15, "The data ends too early"},
    {"WideStringHostile", WithValue("12 00000080 6100"), 12, "The length goes beyond the end of the data"},
    {"WideStringHalfUnit", WithValue("12 02000000 610062"), 12, "The length goes beyond the end of the data"},
    {"Utf8StringHostile", WithValue("14 FFFFFF7F"), 12, "The length goes beyond the end of the data"},
    {"Utf8StringInvalid", WithValue("14 02000000 C328 00 00"), 11, "The string is not valid UTF-8"},
    {"Utf8StringOverlong", WithValue("14 02000000 C080 00 00"), 11, "The string is not valid UTF-8"},
    {"Utf8StringSurrogate", WithValue("14 03000000 EDA080 00 00"), 11, "The string is not valid UTF-8"},
    {"BinaryHostile", WithValue("0A FFFFFFFF 0000"), 12, "The length goes beyond the end of the data"},
    {"IdentEmpty", WithValue("07 00 00 00"), 12, "A name is missing"},
    {"IdentWithBlank", WithValue("07 03'a b' 00 00"), 12, "The name cannot be spelled in text"},
    {"IdentTrue", WithValue("07 04'True' 00 00"), 11, "An identifier has a name that is a word of the language"},
    {"SetNotClosed", WithValue("0B 01'a'"), 14, "The data ends too early"},
    {"SetElementWithLeadingZero", WithValue("0B 02'01' 00 00 00"), 12,
     "A set element has a name that text cannot spell"},
    {"SetElementWithComma", WithValue("0B 03'a,b' 00 00 00"), 12, "A set element has a name that text cannot spell"},
    {"ListNotClosed", WithValue("01 02 05"), 14, "The data ends too early"},
    {"CollectionWithoutList", WithValue("0E 09 00 00"), 12, "An item of a collection expected"},
    {"CollectionIndexTooWide", WithValue("0E 13 0100000000000000 01 00 00"), 12, "Integer expected"},
    {"CollectionNotClosed", WithValue("0E 01 00"), 14, "The data ends too early"},
    {"DeepLists", WithValue("") + std::string(5000, '\1'), 1010, "The form is nested too deeply"},
    {"DeepObjects", "TPF0" + Repeat(Bytes("02'TA' 00 00"), 2000), 5004, "The form is nested too deeply"},
    {"HeaderBrokenOff", Bytes("FF0A00 'TFORM1'"), 9, "The data ends too early"},
    {"HeaderWithoutSize", Bytes("FF0A00 'TFORM1'00 3010 0000"), 14, "The data ends too early"},
    {"HeaderSizeHostile", Bytes("FF0A00 'T'00 3010 FFFFFFFF 'TPF0'"), 11,
     "The resource is shorter than its header says"},
    {"HeaderWithoutForm", Bytes("FF0A00 'T'00 3010 00000000"), 11, "The data ends too early"},
    {"OffsetsCountTheHeader", Bytes("FF0A00 'T'00 3010 09000000 'TPF0' 02'TA' 00 63"), 20, "The data ends too early"},
    {"Header32TooSmall", Bytes("00000000 04000000 FFFF0A00"), 4, "The resource header is broken"},
    {"Header32Hostile", Bytes("00000000 FFFFFFFF FFFF0A00"), 12, "The data ends too early"},
};

class FormDataError : public testing::TestWithParam<TDataCase> {};

TEST_P(FormDataError, SaysWhatAndWhere)
{
    const TDataCase& Case = GetParam();
    std::string Text = "before";
    try {
        FormBinaryToText(Case.Data, Text);
        FAIL() << "accepted as " << Text;
    } catch (const EFormDataError& Error) {
        EXPECT_EQ(Error.Detail, Case.Detail);
        EXPECT_EQ(Error.Offset, Case.Offset);
        EXPECT_EQ(Error.Message, Case.Detail + (" at offset " + std::to_string(Case.Offset)));
        EXPECT_STREQ(Error.ClassName(), "EFormDataError");
    }
    EXPECT_EQ(Text, "before");
}

INSTANTIATE_TEST_SUITE_P(Cases, FormDataError, testing::ValuesIn(DataCases),
                         [](const auto& Info) { return Info.param.Name; });

} // namespace
