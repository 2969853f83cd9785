#include "vcl/graphics/Accelerator.h"

#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

namespace {

size_t CharacterSize(char First)
{
    const auto Byte = static_cast<uint8_t>(First);
    return Byte < 0x80 ? 1 : Byte < 0xE0 ? 2 : Byte < 0xF0 ? 3 : 4;
}

bool IsPair(std::string_view Caption, size_t Place)
{
    return Caption.substr(Place, 2) == "&&";
}

std::string_view FindLetter(std::string_view Caption)
{
    std::string_view Letter;
    for (size_t I = Caption.find('&'); I < Caption.size(); I = Caption.find('&', I)) {
        if (IsPair(Caption, I)) {
            I += 2;
            continue;
        }
        if (++I < Caption.size())
            Letter = Caption.substr(I, CharacterSize(Caption[I]));
    }
    return Letter;
}

// Pair is what stands for two ampersands.
AnsiString WithoutMarks(std::string_view Caption, std::string_view Pair)
{
    AnsiString Text;
    for (size_t I = 0; I < Caption.size(); ++I) {
        if (Caption[I] != '&') {
            Text += Caption[I];
        } else if (IsPair(Caption, I)) {
            Text += Pair;
            ++I;
        }
    }
    return Text;
}

} // namespace

AnsiString GetHotkey(std::string_view Caption)
{
    TWideString Letter = ToWide(FindLetter(Caption));
    CharUpperBuffW(Letter.data(), static_cast<DWORD>(Letter.size()));
    return FromWide(Letter);
}

bool IsAccel(uint16_t Char, std::string_view Caption)
{
    if (Char == 0 || Caption.find('&') == std::string_view::npos)
        return false;
    auto Upper = static_cast<wchar_t>(Char);
    CharUpperBuffW(&Upper, 1);
    return GetHotkey(Caption) == FromWide({&Upper, 1});
}

AnsiString StripHotkey(std::string_view Caption)
{
    return WithoutMarks(Caption, "&&");
}

AnsiString ShownText(std::string_view Caption)
{
    return WithoutMarks(Caption, "&");
}
