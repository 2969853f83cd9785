#include "vcl/system/Format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

// One "%..." of a pattern.
struct TSpecifier {
    bool LeftAlign = false;
    int Width = 0;
    int Precision = -1; // none
    char Type = 0;
};

class TFormatter {
public:
    TFormatter(std::string_view Pattern, std::initializer_list<TFormatArgument> Arguments)
        : FPattern(Pattern),
          FArguments(Arguments)
    {}

    AnsiString Run();

private:
    TSpecifier ReadSpecifier();
    // Digits or '*'; -1 when neither stands there.
    int ReadNumber();
    char Peek() const { return FPosition < FPattern.size() ? FPattern[FPosition] : '\0'; }
    const TFormatArgument& NextArgument();
    AnsiString Convert(const TSpecifier& Specifier);
    AnsiString ConvertInteger(const TSpecifier& Specifier, int64_t Value) const;
    AnsiString ConvertFloat(const TSpecifier& Specifier, double Value) const;
    [[noreturn]] void Fail() const;

    // Wider fields than any text needs are mistakes; they would only exhaust the memory.
    static constexpr int MaxNumber = 65535;

    std::string_view FPattern;
    std::initializer_list<TFormatArgument> FArguments;
    size_t FPosition = 0;
    size_t FNextArgument = 0;
};

void TFormatter::Fail() const
{
    throw EConvertError("Format '" + AnsiString(FPattern) + "' invalid or incompatible with argument");
}

const TFormatArgument& TFormatter::NextArgument()
{
    if (FNextArgument >= FArguments.size())
        throw EConvertError("No argument for format '" + AnsiString(FPattern) + "'");
    return FArguments.begin()[FNextArgument++];
}

AnsiString TFormatter::Run()
{
    AnsiString Result;
    while (FPosition < FPattern.size()) {
        char C = FPattern[FPosition++];
        if (C != '%') {
            Result += C;
            continue;
        }
        if (Peek() == '%') {
            Result += FPattern[FPosition++];
            continue;
        }
        TSpecifier Specifier = ReadSpecifier();
        AnsiString Text = Convert(Specifier);
        size_t Width = static_cast<size_t>(Specifier.Width);
        if (Text.size() < Width)
            Text.insert(Specifier.LeftAlign ? Text.size() : 0, Width - Text.size(), ' ');
        Result += Text;
    }
    return Result;
}

TSpecifier TFormatter::ReadSpecifier()
{
    TSpecifier Specifier;
    int Number = Peek() == '-' ? -1 : ReadNumber();
    if (Number >= 0 && Peek() == ':') {
        ++FPosition;
        FNextArgument = static_cast<size_t>(Number);
        Number = -1;
    }
    if (Number < 0) {
        Specifier.LeftAlign = Peek() == '-';
        FPosition += Specifier.LeftAlign;
        Number = ReadNumber();
    }
    Specifier.Width = std::max(Number, 0);
    if (Peek() == '.') {
        ++FPosition;
        Specifier.Precision = ReadNumber();
    }
    Specifier.Type = Peek() >= 'A' && Peek() <= 'Z' ? static_cast<char>(Peek() - 'A' + 'a') : Peek();
    ++FPosition;
    return Specifier;
}

int TFormatter::ReadNumber()
{
    if (Peek() == '*') {
        ++FPosition;
        const TFormatArgument& Argument = NextArgument();
        if (Argument.Kind != TFormatArgument::fkInteger || std::abs(Argument.Integer) > MaxNumber)
            Fail();
        return static_cast<int>(Argument.Integer);
    }
    if (Peek() < '0' || Peek() > '9')
        return -1;
    int Number = 0;
    while (Peek() >= '0' && Peek() <= '9') {
        Number = Number * 10 + (FPattern[FPosition++] - '0');
        if (Number > MaxNumber)
            Fail();
    }
    return Number;
}

AnsiString TFormatter::Convert(const TSpecifier& Specifier)
{
    const std::string_view Known = "duxefgnsp";
    if (Specifier.Type == 0 || Known.find(Specifier.Type) == Known.npos)
        Fail();
    const TFormatArgument& Argument = NextArgument();
    switch (Argument.Kind) {
    case TFormatArgument::fkInteger:
        if (Specifier.Type != 'd' && Specifier.Type != 'u' && Specifier.Type != 'x')
            Fail();
        return ConvertInteger(Specifier, Argument.Integer);
    case TFormatArgument::fkFloat:
        if (Specifier.Type < 'e' || Specifier.Type > 'n')
            Fail();
        return ConvertFloat(Specifier, Argument.Float);
    case TFormatArgument::fkText:
        if (Specifier.Type != 's')
            Fail();
        return AnsiString(Argument.Text.substr(0, Specifier.Precision < 0 ? Argument.Text.npos
                                                                          : static_cast<size_t>(Specifier.Precision)));
    case TFormatArgument::fkPointer: break;
    }
    if (Specifier.Type != 'p')
        Fail();
    return ConvertInteger({.Precision = 2 * sizeof(void*), .Type = 'x'},
                          static_cast<int64_t>(reinterpret_cast<uintptr_t>(Argument.Pointer)));
}

AnsiString TFormatter::ConvertInteger(const TSpecifier& Specifier, int64_t Value) const
{
    char Buffer[24];
    bool Negative = Specifier.Type == 'd' && Value < 0;
    auto Number = Negative ? 0 - static_cast<uint64_t>(Value) : static_cast<uint64_t>(Value);
    char* End = std::to_chars(Buffer, Buffer + sizeof Buffer, Number, Specifier.Type == 'x' ? 16 : 10).ptr;
    AnsiString Text(Buffer, End);
    for (char& C : Text)
        if (C >= 'a')
            C = static_cast<char>(C - 'a' + 'A');
    if (static_cast<int>(Text.size()) < Specifier.Precision)
        Text.insert(0, static_cast<size_t>(Specifier.Precision) - Text.size(), '0');
    return Negative ? "-" + Text : Text;
}

AnsiString TFormatter::ConvertFloat(const TSpecifier& Specifier, double Value) const
{
    if (std::isnan(Value))
        return "NAN";
    if (std::isinf(Value))
        return Value < 0 ? "-INF" : "INF";
    char Type = Specifier.Type;
    int Precision = Specifier.Precision;
    if (Precision < 0)
        Precision = Type == 'e' ? 14 : Type == 'g' ? 15 : 2;
    else if (Type == 'e')
        Precision = std::max(Precision - 1, 0); // counts the digits, not the decimals
    else if (Type == 'g')
        Precision = std::clamp(Precision, 1, 17);
    Precision = std::min(Precision, 99);
    char Buffer[512];
    auto Style = Type == 'e'   ? std::chars_format::scientific
                 : Type == 'g' ? std::chars_format::general
                               : std::chars_format::fixed;
    char* End = std::to_chars(Buffer, Buffer + sizeof Buffer, Value, Style, Precision).ptr;
    AnsiString Text(Buffer, End);
    std::replace(Text.begin(), Text.end(), 'e', 'E');
    if (Type == 'n') {
        size_t Point = std::min(Text.find('.'), Text.size());
        size_t First = Text[0] == '-' ? 1 : 0;
        for (size_t I = Point; I > First + 3; I -= 3)
            Text.insert(I - 3, 1, ',');
    }
    return Text;
}

} // namespace

AnsiString FormatArguments(std::string_view Pattern, std::initializer_list<TFormatArgument> Arguments)
{
    return TFormatter(Pattern, Arguments).Run();
}
