#include "vcl/classes/FormStringPrinter.h"

#include <algorithm>
#include <charconv>
#include <type_traits>

namespace {

constexpr std::size_t MaxPart = 64;

constexpr bool IsDoubleByteLead(unsigned char Byte)
{
    return Byte >= 0x81 && Byte <= 0xFE;
}

constexpr bool IsDoubleByteTrail(unsigned char Byte)
{
    return Byte >= 0x40 && Byte <= 0xFE && Byte != 0x7F;
}

enum class TCharacters { Single, Double, Utf8 };

TCharacters Recognize(std::string_view Value)
{
    bool HighBytes = false;
    bool Pairs = true;
    for (std::size_t I = 0; I < Value.size() && Pairs; I++) {
        if (static_cast<unsigned char>(Value[I]) < 0x80)
            continue;
        HighBytes = true;
        const auto Lead = static_cast<unsigned char>(Value[I++]);
        Pairs = IsDoubleByteLead(Lead) && I < Value.size() && IsDoubleByteTrail(static_cast<unsigned char>(Value[I]));
    }
    if (!HighBytes)
        return TCharacters::Single;
    if (IsValidUtf8(Value))
        return TCharacters::Utf8;
    return Pairs ? TCharacters::Double : TCharacters::Single;
}

// The end of the part that starts at Start, which is not inside a character.
std::size_t PartEnd(std::string_view Value, std::size_t Start, TCharacters Characters)
{
    if (Value.size() - Start <= MaxPart)
        return Value.size();
    std::size_t End = Start + MaxPart;
    if (Characters == TCharacters::Utf8)
        while ((static_cast<unsigned char>(Value[End]) & 0xC0) == 0x80)
            End--;
    if (Characters == TCharacters::Double) {
        std::size_t At = Start;
        while (At < End)
            At += static_cast<unsigned char>(Value[At]) < 0x80 ? 1 : 2;
        End = At > End ? End - 1 : End;
    }
    return End;
}

std::size_t PartEnd(TWideView Value, std::size_t Start, TCharacters)
{
    return std::min(Value.size(), Start + MaxPart);
}

bool StandsInQuotes(char C)
{
    return static_cast<unsigned char>(C) >= ' ' && C != '\'';
}

bool StandsInQuotes(TWideChar C)
{
    return C >= ' ' && C < 0x80 && C != '\'';
}

template <class Char>
void PrintPart(std::string& Output, std::basic_string_view<Char> Part)
{
    for (std::size_t I = 0; I < Part.size();) {
        std::size_t End = I;
        while (End < Part.size() && StandsInQuotes(Part[End]))
            End++;
        if (End > I) {
            Output.push_back('\'');
            Output.append(Part.begin() + static_cast<std::ptrdiff_t>(I),
                          Part.begin() + static_cast<std::ptrdiff_t>(End));
            Output.push_back('\'');
            I = End;
            continue;
        }
        char Code[8] = {'#'};
        const auto Unit = static_cast<std::make_unsigned_t<Char>>(Part[I++]);
        Output.append(Code, std::to_chars(Code + 1, Code + sizeof Code, static_cast<unsigned>(Unit)).ptr);
    }
}

template <class Char>
void Print(std::string& Output, std::basic_string_view<Char> Value, const TFormLineStart& Line, TCharacters Characters)
{
    if (Value.empty()) {
        Output.append("''");
        return;
    }
    const bool Long = Value.size() > MaxPart;
    for (std::size_t Start = 0; Start < Value.size();) {
        if (Long)
            Output.append(Start == 0 ? "" : " +").append(Line.LineEnd).append(Line.Indent, ' ');
        const std::size_t End = PartEnd(Value, Start, Characters);
        PrintPart(Output, Value.substr(Start, End - Start));
        Start = End;
    }
}

} // namespace

void PrintFormBytes(std::string& Output, std::string_view Value, const TFormLineStart& Line)
{
    Print(Output, Value, Line, Value.size() > MaxPart ? Recognize(Value) : TCharacters::Single);
}

void PrintFormUnits(std::string& Output, TWideView Value, const TFormLineStart& Line)
{
    Print(Output, Value, Line, TCharacters::Single);
}
