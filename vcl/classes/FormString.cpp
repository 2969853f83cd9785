#include "vcl/classes/FormString.h"

#include "vcl/classes/FormError.h"

#include <algorithm>

namespace {

bool IsAscii(std::string_view Text)
{
    return std::none_of(Text.begin(), Text.end(), [](char C) { return static_cast<unsigned char>(C) >= 0x80; });
}

// Returns false and appends nothing when the text is not valid UTF-8.
bool AppendUnits(TWideString& Units, std::string_view Text)
{
    if (!IsValidUtf8(Text))
        return false;
    const std::size_t Size = Units.size();
    Units.resize(Size + Text.size());
    Units.resize(Size + Utf8ToWide(Text, Units.data() + Size));
    return true;
}

} // namespace

void TFormString::Clear(bool Utf8)
{
    FBytes.clear();
    FUnits.clear();
    FWide = false;
    FUtf8 = Utf8;
}

void TFormString::Append(std::string_view Token, int Line)
{
    for (std::size_t At = 0; At < Token.size();) {
        if (Token[At] == '\'') {
            // Two quotes in a row inside quoted text stand for one.
            const bool Doubled = At > 0 && Token[At - 1] == '\'';
            const std::size_t End = Token.find('\'', At + 1);
            AppendQuoted(Token.substr(At + (Doubled ? 0 : 1), End - At - (Doubled ? 0 : 1)), Line);
            At = End + 1;
            continue;
        }
        unsigned Code = 0;
        for (At++; At < Token.size() && Token[At] >= '0' && Token[At] <= '9'; At++)
            Code = std::min(Code * 10 + static_cast<unsigned>(Token[At] - '0'), 0x10000u);
        AppendCode(Code, Line);
    }
}

void TFormString::AppendQuoted(std::string_view Text, int Line)
{
    if (!FWide && FUtf8 && !IsAscii(Text))
        Widen(Line);
    if (!FWide)
        FBytes.append(Text);
    else if (!AppendUnits(FUnits, Text))
        throw EFormTextError(FUtf8 ? "The text is not valid UTF-8"
                                   : "Code-page text and character codes above 127 stand in one string",
                             Line);
}

void TFormString::AppendCode(unsigned Code, int Line)
{
    if (Code > 0xFFFF)
        throw EFormTextError("The character code is out of range", Line);
    if (Code > 127 && !FWide)
        Widen(Line);
    if (FWide)
        FUnits.push_back(static_cast<TWideChar>(Code));
    else
        FBytes.push_back(static_cast<char>(Code));
}

void TFormString::Widen(int Line)
{
    FWide = true;
    if (!AppendUnits(FUnits, FBytes))
        throw EFormTextError("Code-page text and character codes above 127 stand in one string", Line);
}
