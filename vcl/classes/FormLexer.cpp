#include "vcl/classes/FormLexer.h"

#include "vcl/system/Utf.h"

#include <array>

namespace {

enum : std::uint8_t {
    clBad,
    clBlank,
    clLetter, // letters, underscore, and every byte beyond ASCII
    clDigit,
    clMinus,
    clDollar,
    clText, // quote and hash
    clSymbol,
};

constexpr std::array<std::uint8_t, 256> MakeClasses()
{
    std::array<std::uint8_t, 256> Classes{};
    for (std::size_t C = 1; C <= ' '; C++)
        Classes[C] = clBlank;
    for (std::size_t C = 'a'; C <= 'z'; C++)
        Classes[C] = Classes[C - 'a' + 'A'] = clLetter;
    for (std::size_t C = 0x80; C <= 0xFF; C++)
        Classes[C] = clLetter;
    Classes['_'] = clLetter;
    for (std::size_t C = '0'; C <= '9'; C++)
        Classes[C] = clDigit;
    Classes['-'] = clMinus;
    Classes['$'] = clDollar;
    Classes['\''] = Classes['#'] = clText;
    for (const char C : {'=', ':', '[', ']', '(', ')', '<', '>', '{', '}', ',', '+', '.'})
        Classes[static_cast<std::size_t>(C)] = clSymbol;
    return Classes;
}

constexpr std::array<std::uint8_t, 256> Classes = MakeClasses();

constexpr std::array<std::int8_t, 256> MakeHexDigits()
{
    std::array<std::int8_t, 256> Digits{};
    Digits.fill(-1);
    for (int I = 0; I < 16; I++) {
        Digits[static_cast<std::size_t>("0123456789ABCDEF"[I])] = static_cast<std::int8_t>(I);
        Digits[static_cast<std::size_t>("0123456789abcdef"[I])] = static_cast<std::int8_t>(I);
    }
    return Digits;
}

constexpr std::array<std::int8_t, 256> HexDigits = MakeHexDigits();

std::uint8_t ClassOf(char C)
{
    return Classes[static_cast<unsigned char>(C)];
}

int HexDigit(char C)
{
    return HexDigits[static_cast<unsigned char>(C)];
}

bool IsDigit(char C)
{
    return C >= '0' && C <= '9';
}

std::string CharacterName(char C)
{
    if (C > ' ' && C < 0x7F)
        return std::string("'") + C + "'";
    return "with the code " + std::to_string(static_cast<unsigned char>(C));
}

} // namespace

bool IsFormIdentifier(std::string_view Name)
{
    bool AtStart = true;
    for (const char C : Name) {
        const std::uint8_t Class = ClassOf(C);
        if (Class != clLetter && (AtStart || (Class != clDigit && C != '.')))
            return false;
        AtStart = C == '.';
    }
    return !AtStart;
}

bool IsFormWord(std::string_view Word, std::string_view LowerWord)
{
    if (Word.size() != LowerWord.size())
        return false;
    for (std::size_t I = 0; I < LowerWord.size(); I++)
        if ((Word[I] | 0x20) != LowerWord[I])
            return false;
    return true;
}

TFormLexer::TFormLexer(std::string_view AText)
    : FStart(AText.data()),
      FAt(AText.data()),
      FEnd(AText.data() + AText.size())
{
    if (AText.starts_with("\xFF\xFE") || AText.starts_with("\xFE\xFF"))
        Fail("The text is UTF-16; save it as UTF-8");
    if (AText.starts_with("\xEF\xBB\xBF")) {
        FUtf8Signature = true;
        FAt += 3;
    }
}

void TFormLexer::SkipBlanks()
{
    for (; FAt < FEnd && ClassOf(*FAt) == clBlank; FAt++)
        if (*FAt == '\n')
            FLine++;
}

void TFormLexer::Next()
{
    SkipBlanks();
    if (FAt == FEnd) {
        Finish(TFormToken::End, FAt);
        return;
    }
    switch (ClassOf(*FAt)) {
    case clLetter: ScanIdentifier(); break;
    case clDigit:
    case clMinus: ScanNumber(); break;
    case clDollar: ScanHexNumber(); break;
    case clText: ScanText(); break;
    case clSymbol:
        FAt++;
        Finish(TFormToken::Symbol, FAt - 1);
        break;
    default: Fail("Unexpected character " + CharacterName(*FAt));
    }
}

void TFormLexer::FailExpected(const std::string& What) const
{
    constexpr std::size_t MaxShown = 40;
    if (FKind == TFormToken::End)
        Fail(What + " expected but the text ends");
    if (FKind == TFormToken::Text)
        Fail(What + " expected but a string found");
    const bool Shown = FSpelling.size() <= MaxShown && IsValidUtf8(FSpelling);
    Fail(What + " expected but " + (Shown ? "'" + std::string(FSpelling) + "'" : "something else") + " found");
}

void TFormLexer::Finish(TFormToken Kind, const char* TokenStart)
{
    FKind = Kind;
    FSpelling = {TokenStart, static_cast<std::size_t>(FAt - TokenStart)};
}

void TFormLexer::ScanIdentifier()
{
    const char* const Start = FAt++;
    for (;;) {
        while (FAt < FEnd && (ClassOf(*FAt) == clLetter || ClassOf(*FAt) == clDigit))
            FAt++;
        if (FAt == FEnd || *FAt != '.')
            break;
        FAt++;
        if (FAt == FEnd || ClassOf(*FAt) != clLetter)
            Fail("An identifier must follow the point");
    }
    Finish(TFormToken::Identifier, Start);
    if (FUtf8Signature && !IsValidUtf8(FSpelling))
        Fail("The text is not valid UTF-8");
}

void TFormLexer::ScanNumber()
{
    const char* const Start = FAt++;
    if (*Start == '-' && (FAt == FEnd || !IsDigit(*FAt)))
        Fail("A number must follow the minus sign");
    while (FAt < FEnd && IsDigit(*FAt))
        FAt++;
    TFormToken Kind = TFormToken::Integer;
    if (FAt < FEnd && *FAt == '.') {
        Kind = TFormToken::Float;
        FAt++;
        if (FAt == FEnd || !IsDigit(*FAt))
            Fail("A digit must follow the decimal point");
        while (FAt < FEnd && IsDigit(*FAt))
            FAt++;
    }
    if (FAt < FEnd && (*FAt == 'e' || *FAt == 'E')) {
        Kind = TFormToken::Float;
        ScanExponent();
    }
    FSuffix = 0;
    Finish(Kind, Start);
    if (FAt == FEnd || ClassOf(*FAt) != clLetter)
        return;
    const char Suffix = static_cast<char>(*FAt | 0x20);
    if (Suffix != 's' && Suffix != 'c' && Suffix != 'd')
        Fail("Unexpected character " + CharacterName(*FAt) + " in a number");
    FSuffix = Suffix;
    FKind = TFormToken::Float;
    FAt++;
    if (FAt < FEnd && (ClassOf(*FAt) == clLetter || IsDigit(*FAt)))
        Fail("Unexpected character " + CharacterName(*FAt) + " in a number");
}

void TFormLexer::ScanExponent()
{
    FAt++;
    if (FAt < FEnd && (*FAt == '+' || *FAt == '-'))
        FAt++;
    if (FAt == FEnd || !IsDigit(*FAt))
        Fail("A digit must follow the exponent sign");
    while (FAt < FEnd && IsDigit(*FAt))
        FAt++;
}

void TFormLexer::ScanHexNumber()
{
    const char* const Start = FAt++;
    if (FAt == FEnd || HexDigit(*FAt) < 0)
        Fail("A hexadecimal digit must follow '$'");
    while (FAt < FEnd && HexDigit(*FAt) >= 0)
        FAt++;
    if (FAt < FEnd && ClassOf(*FAt) == clLetter)
        Fail("Unexpected character " + CharacterName(*FAt) + " in a number");
    Finish(TFormToken::Integer, Start);
}

void TFormLexer::ScanText()
{
    const char* const Start = FAt;
    FPlainText = *FAt == '\'';
    FHighBytes = false;
    do {
        if (*FAt == '\'') {
            ScanQuoted();
        } else {
            FPlainText = false;
            FAt++;
            if (FAt == FEnd || !IsDigit(*FAt))
                Fail("A character code must follow '#'");
            while (FAt < FEnd && IsDigit(*FAt))
                FAt++;
        }
        if (FAt == FEnd || ClassOf(*FAt) != clText)
            break;
        FPlainText = false;
    } while (true);
    Finish(TFormToken::Text, Start);
}

void TFormLexer::ScanQuoted()
{
    unsigned char All = 0;
    const char* At = FAt + 1;
    for (; At < FEnd && *At != '\'' && *At != '\n' && *At != '\r'; At++)
        All |= static_cast<unsigned char>(*At);
    if (At == FEnd || *At != '\'')
        Fail("The string is not closed");
    FAt = At + 1;
    FHighBytes = FHighBytes || All >= 0x80;
}

void TFormLexer::ReadHex(std::string& Output)
{
    const int StartLine = FLine;
    for (SkipBlanks(); FAt < FEnd && *FAt != '}'; SkipBlanks()) {
        // A line's worth of digits at a time.
        const char* const Start = FAt;
        while (FAt < FEnd && HexDigit(*FAt) >= 0)
            FAt++;
        const auto Count = static_cast<std::size_t>(FAt - Start);
        if (Count == 0)
            Fail("Unexpected character " + CharacterName(*FAt) + " in binary data");
        if (Count % 2 != 0)
            Fail("Binary data with half a byte");
        const std::size_t Written = Output.size();
        Output.resize(Written + Count / 2);
        for (std::size_t I = 0; I < Count / 2; I++)
            Output[Written + I] = static_cast<char>(HexDigit(Start[2 * I]) << 4 | HexDigit(Start[2 * I + 1]));
    }
    if (FAt == FEnd)
        throw EFormTextError("The binary data is not closed", StartLine);
    FAt++;
    Next();
}
