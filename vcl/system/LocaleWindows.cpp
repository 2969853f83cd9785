#include "vcl/system/Locale.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

AnsiString LocaleUpperCase(std::string_view Text)
{
    TWideString Wide = ToWide(Text);
    CharUpperBuffW(Wide.data(), static_cast<DWORD>(Wide.size()));
    return FromWide(Wide);
}

AnsiString LocaleLowerCase(std::string_view Text)
{
    TWideString Wide = ToWide(Text);
    CharLowerBuffW(Wide.data(), static_cast<DWORD>(Wide.size()));
    return FromWide(Wide);
}

int LocaleCompare(std::string_view A, std::string_view B, bool IgnoreCase)
{
    TWideText WideA(A);
    TWideText WideB(B);
    int Result = CompareStringEx(LOCALE_NAME_USER_DEFAULT, IgnoreCase ? NORM_IGNORECASE : 0, WideA.c_str(),
                                 static_cast<int>(WideA.size()), WideB.c_str(), static_cast<int>(WideB.size()), nullptr,
                                 nullptr, 0);
    return Result - CSTR_EQUAL;
}

unsigned LegacyCodePage()
{
    static const unsigned Page = [] {
        // Not GetACP, which is UTF-8 for programs whose manifest says so.
        DWORD CodePage = 0;
        GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                        reinterpret_cast<wchar_t*>(&CodePage), sizeof CodePage / sizeof(wchar_t));
        // For languages without a legacy code page the answer is 0 or UTF-8.
        return CodePage == 0 || CodePage == CP_UTF8 ? 1252 : CodePage;
    }();
    return Page;
}

AnsiString DecodeCodePage(std::string_view Bytes, unsigned CodePage)
{
    if (Bytes.empty())
        return {};
    auto Size = static_cast<int>(Bytes.size());
    TWideString Wide(Bytes.size(), 0);
    int Units = MultiByteToWideChar(CodePage, 0, Bytes.data(), Size, Wide.data(), Size);
    if (Units == 0)
        for (; Units < Size; ++Units)
            Wide[Units] = static_cast<unsigned char>(Bytes[Units]) < 0x80 ? static_cast<wchar_t>(Bytes[Units]) : 0xFFFD;
    Wide.resize(Units);
    return FromWide(Wide);
}
