#include "tests/classes/FormFixtures.h"

#include "vcl/classes/MemoryStream.h"

#include <cctype>

std::vector<std::string> FormFixtureNames()
{
    return {"CodePage1251", "CodePage936", "Nested", "Texts", "Utf8Names", "Values"};
}

std::string FormFixture(const std::string& Name)
{
    TMemoryStream Stream;
    Stream.LoadFromFile(std::string(TESSARY_TEST_FOLDER) + "/forms/" + Name + ".dfm");
    return std::string(Stream.View());
}

std::string WithCrLf(std::string_view Text)
{
    std::string Result;
    for (const char C : Text)
        Result += C == '\n' ? "\r\n" : std::string(1, C);
    return Result;
}

std::string Bytes(std::string_view Hex)
{
    std::string Result;
    std::string Digits;
    for (std::size_t I = 0; I < Hex.size(); I++) {
        if (Hex[I] == '\'') {
            const std::size_t End = Hex.find('\'', I + 1);
            Result += Hex.substr(I + 1, End - I - 1);
            I = End;
        } else if (std::isxdigit(static_cast<unsigned char>(Hex[I])) != 0) {
            Digits += Hex[I];
        }
        if (Digits.size() == 2) {
            Result += static_cast<char>(std::stoi(Digits, nullptr, 16));
            Digits.clear();
        }
    }
    return Result;
}

std::string Hex(std::string_view Bytes)
{
    constexpr char Digits[] = "0123456789ABCDEF";
    std::string Result;
    for (const char Byte : Bytes) {
        Result += Digits[static_cast<unsigned char>(Byte) >> 4];
        Result += Digits[static_cast<unsigned char>(Byte) & 15];
        Result += ' ';
    }
    return Result;
}
