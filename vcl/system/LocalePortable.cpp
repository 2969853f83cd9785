// Without the user's language: case by the C library's Unicode table, order by code point, letters before their other
// case.
#include "vcl/system/Locale.h"

#include "vcl/system/Utf.h"

#include <clocale>
#include <cwctype>
#include <iconv.h>

namespace {

// The C library's table of letters; the program's own locale stays as it is.
locale_t UnicodeLocale()
{
    static const locale_t Locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return Locale;
}

char16_t Upper(char16_t Unit)
{
    bool Surrogate = Unit >= 0xD800 && Unit < 0xE000;
    return Surrogate ? Unit : static_cast<char16_t>(towupper_l(Unit, UnicodeLocale()));
}

char16_t Lower(char16_t Unit)
{
    bool Surrogate = Unit >= 0xD800 && Unit < 0xE000;
    return Surrogate ? Unit : static_cast<char16_t>(towlower_l(Unit, UnicodeLocale()));
}

AnsiString MapCase(std::string_view Text, char16_t (*Map)(char16_t))
{
    TWideString Wide = ToWide(Text);
    for (char16_t& Unit : Wide)
        Unit = Map(Unit);
    return FromWide(Wide);
}

} // namespace

AnsiString LocaleUpperCase(std::string_view Text)
{
    return MapCase(Text, Upper);
}

AnsiString LocaleLowerCase(std::string_view Text)
{
    return MapCase(Text, Lower);
}

int LocaleCompare(std::string_view A, std::string_view B, bool IgnoreCase)
{
    int Result = LocaleLowerCase(A).compare(LocaleLowerCase(B));
    // Within a word the lower case comes first, as in a dictionary.
    if (Result == 0 && !IgnoreCase)
        Result = B.compare(A);
    return Result < 0 ? -1 : Result > 0 ? 1 : 0;
}

unsigned LegacyCodePage()
{
    return 1252;
}

AnsiString DecodeCodePage(std::string_view Bytes, unsigned CodePage)
{
    AnsiString Result;
    iconv_t Converter = iconv_open("UTF-8", ("CP" + std::to_string(CodePage)).c_str());
    auto Known = Converter != reinterpret_cast<iconv_t>(-1);
    char Buffer[256];
    auto* Source = const_cast<char*>(Bytes.data());
    size_t Left = Bytes.size();
    while (Left > 0) {
        char* Target = Buffer;
        size_t Room = sizeof Buffer;
        if (Known)
            iconv(Converter, &Source, &Left, &Target, &Room);
        Result.append(Buffer, static_cast<size_t>(Target - Buffer));
        if (Target != Buffer || Left == 0)
            continue;
        // A byte that cannot be converted.
        if (static_cast<unsigned char>(*Source) < 0x80)
            Result += *Source;
        else
            Result += "\xEF\xBF\xBD";
        ++Source;
        --Left;
    }
    if (Known)
        iconv_close(Converter);
    return Result;
}
