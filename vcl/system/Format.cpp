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

    // Larger widths are mistakes and would only exhaust the memory.
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

AnsiString Printed(double Value, std::chars_format Style, int Precision)
{
    char Buffer[512];
    char* End = std::to_chars(Buffer, Buffer + sizeof Buffer, Value, Style, Precision).ptr;
    return AnsiString(Buffer, End);
}

// "1.5E+004": at least three digits of exponent.
AnsiString Scientific(double Value, int Decimals)
{
    AnsiString Text = Printed(Value, std::chars_format::scientific, Decimals);
    size_t E = Text.find('e');
    Text[E] = 'E';
    while (Text.size() < E + 5)
        Text.insert(E + 2, 1, '0');
    return Text;
}

// As short as possible: fixed from 0.00001 on as long as the digits suffice, else "1.5E20".
AnsiString General(double Value, int Digits)
{
    AnsiString Text = Printed(Value, std::chars_format::scientific, Digits - 1);
    size_t E = Text.find('e');
    int Exponent = 0;
    std::from_chars(Text.data() + E + (Text[E + 1] == '+' ? 2 : 1), Text.data() + Text.size(), Exponent);
    bool Fixed = Exponent >= -5 && Exponent < Digits;
    Text = Fixed ? Printed(Value, std::chars_format::fixed, Digits - 1 - Exponent) : Text.substr(0, E);
    if (Text.find('.') != Text.npos) {
        Text.erase(Text.find_last_not_of('0') + 1);
        if (Text.back() == '.')
            Text.pop_back();
    }
    return Fixed ? Text : Text + "E" + std::to_string(Exponent);
}

AnsiString TFormatter::ConvertFloat(const TSpecifier& Specifier, double Value) const
{
    if (std::isnan(Value))
        return "NAN";
    if (std::isinf(Value))
        return Value < 0 ? "-INF" : "INF";
    int Precision = std::min(Specifier.Precision, 99);
    // These two count the digits, not the decimals.
    if (Specifier.Type == 'e')
        return Scientific(Value, Precision < 0 ? 14 : std::max(Precision - 1, 0));
    if (Specifier.Type == 'g')
        return General(Value, Precision < 0 ? 15 : std::clamp(Precision, 1, 17));
    AnsiString Text = Printed(Value, std::chars_format::fixed, Precision < 0 ? 2 : Precision);
    if (Specifier.Type != 'n')
        return Text;
    size_t First = Text[0] == '-' ? 1 : 0;
    for (size_t I = std::min(Text.find('.'), Text.size()); I > First + 3; I -= 3)
        Text.insert(I - 3, 1, ',');
    return Text;
}

} // namespace

AnsiString FormatArguments(std::string_view Pattern, std::initializer_list<TFormatArgument> Arguments)
{
    return TFormatter(Pattern, Arguments).Run();
}
