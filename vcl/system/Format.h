// Format: texts with values in them, as in Format("%d of %s", Count, Name).
#pragma once

#include "vcl/system/Object.h"

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string_view>

// One argument of Format.
class TFormatArgument {
public:
    enum TKind : uint8_t { fkInteger, fkFloat, fkText, fkPointer };

    template <std::integral T>
    TFormatArgument(T Value) : Kind(fkInteger),
                               Integer(static_cast<int64_t>(Value))
    {}
    TFormatArgument(double Value) : Kind(fkFloat), Float(Value) {}
    TFormatArgument(char Value) : Kind(fkText), Char(Value), Text(&Char, 1) {}
    TFormatArgument(const char* Value) : Kind(fkText), Text(Value ? Value : "") {}
    TFormatArgument(std::string_view Value) : Kind(fkText), Text(Value) {}
    TFormatArgument(const AnsiString& Value) : Kind(fkText), Text(Value) {}
    TFormatArgument(const void* Value) : Kind(fkPointer), Pointer(Value) {}
    TFormatArgument(const TFormatArgument&) = delete;

    TKind Kind;
    char Char = 0;
    union {
        int64_t Integer = 0;
        double Float;
        const void* Pointer;
    };
    std::string_view Text;
};

AnsiString FormatArguments(std::string_view Pattern, std::initializer_list<TFormatArgument> Arguments);

// Replaces "%[index:][-][width][.precision]type" in Pattern by the arguments; width and precision may be '*'. Types:
// d (decimal), u (unsigned), x (hexadecimal), e f g n (numbers; n with thousands separators), s (text), p (pointer);
// "%%" is a percent sign. Raises EConvertError "Format '%s' invalid or incompatible with argument" or
// "No argument for format '%s'".
template <class... Arguments>
AnsiString Format(std::string_view Pattern, const Arguments&... Values)
{
    return FormatArguments(Pattern, {TFormatArgument(Values)...});
}
