#include "vcl/system/Utf.h"

#include <cstdint>

namespace {

constexpr char32_t Replacement = 0xFFFD;

// Decodes the character at Text[I] and moves I behind it; an ill-formed byte is one Invalid character.
char32_t Decode(std::string_view Text, size_t& I, char32_t Invalid)
{
    auto Lead = static_cast<uint8_t>(Text[I++]);
    if (Lead < 0x80)
        return Lead;
    int Trail = Lead >= 0xF0 && Lead < 0xF5 ? 3 : Lead >= 0xE0 && Lead < 0xF0 ? 2 : Lead >= 0xC2 && Lead < 0xE0 ? 1 : 0;
    if (Trail == 0 || Text.size() - I < static_cast<size_t>(Trail))
        return Invalid;
    char32_t Char = Lead & (0x3F >> Trail);
    for (int K = 0; K < Trail; ++K) {
        auto Byte = static_cast<uint8_t>(Text[I + K]);
        if ((Byte & 0xC0) != 0x80)
            return Invalid;
        Char = Char << 6 | (Byte & 0x3F);
    }
    constexpr char32_t Shortest[] = {0, 0x80, 0x800, 0x10000};
    if (Char < Shortest[Trail] || Char > 0x10FFFF || (Char >= 0xD800 && Char < 0xE000))
        return Invalid;
    I += Trail;
    return Char;
}

char* Encode(char32_t Char, char* Out)
{
    if (Char < 0x80) {
        *Out++ = static_cast<char>(Char);
        return Out;
    }
    if (Char < 0x800) {
        *Out++ = static_cast<char>(0xC0 | Char >> 6);
    } else {
        if (Char < 0x10000) {
            *Out++ = static_cast<char>(0xE0 | Char >> 12);
        } else {
            *Out++ = static_cast<char>(0xF0 | Char >> 18);
            *Out++ = static_cast<char>(0x80 | (Char >> 12 & 0x3F));
        }
        *Out++ = static_cast<char>(0x80 | (Char >> 6 & 0x3F));
    }
    *Out++ = static_cast<char>(0x80 | (Char & 0x3F));
    return Out;
}

} // namespace

bool IsValidUtf8(std::string_view Text)
{
    constexpr char32_t Invalid = 0xFFFFFFFF;
    for (size_t I = 0; I < Text.size();)
        if (Decode(Text, I, Invalid) == Invalid)
            return false;
    return true;
}

size_t Utf8ToWide(std::string_view Text, TWideChar* Out)
{
    TWideChar* Start = Out;
    for (size_t I = 0; I < Text.size();) {
        char32_t Char = Decode(Text, I, Replacement);
        if (Char >= 0x10000) {
            *Out++ = static_cast<TWideChar>(0xD800 + ((Char - 0x10000) >> 10));
            *Out++ = static_cast<TWideChar>(0xDC00 + (Char & 0x3FF));
        } else {
            *Out++ = static_cast<TWideChar>(Char);
        }
    }
    return static_cast<size_t>(Out - Start);
}

size_t WideToUtf8(TWideView Text, char* Out)
{
    char* Start = Out;
    for (size_t I = 0; I < Text.size(); ++I) {
        char32_t Char = static_cast<char16_t>(Text[I]);
        if (Char >= 0xD800 && Char < 0xE000) {
            char32_t Next = I + 1 < Text.size() ? static_cast<char16_t>(Text[I + 1]) : 0;
            bool Pair = Char < 0xDC00 && Next >= 0xDC00 && Next < 0xE000;
            Char = Pair ? 0x10000 + ((Char - 0xD800) << 10) + (Next - 0xDC00) : Replacement;
            I += Pair;
        }
        Out = Encode(Char, Out);
    }
    return static_cast<size_t>(Out - Start);
}

TWideString ToWide(std::string_view Text)
{
    TWideString Wide(Text.size(), 0);
    Wide.resize(Utf8ToWide(Text, Wide.data()));
    return Wide;
}

std::string FromWide(TWideView Text)
{
    std::string Narrow(Text.size() * 3, 0);
    Narrow.resize(WideToUtf8(Text, Narrow.data()));
    return Narrow;
}

TWideText::TWideText(std::string_view Text) : FText(FShort)
{
    if (Text.size() > ShortSize) {
        FLong = std::make_unique<TWideChar[]>(Text.size() + 1);
        FText = FLong.get();
    }
    FSize = Utf8ToWide(Text, FText);
    FText[FSize] = 0;
}
