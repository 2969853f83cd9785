#include "vcl/controls/Control.h"
#include "vcl/system/Utf.h"

bool IsAccel(uint16_t Char, const AnsiString& Caption)
{
    // Two ampersands are one that shows.
    size_t Place = 0;
    while ((Place = Caption.find('&', Place)) != AnsiString::npos && Place + 1 < Caption.size()) {
        if (Caption[Place + 1] == '&') {
            Place += 2;
            continue;
        }
        TWideText Rest(std::string_view(Caption).substr(Place + 1, 4));
        auto Upper = [](wchar_t C) {
            return static_cast<wchar_t>(reinterpret_cast<uintptr_t>(
                CharUpperW(reinterpret_cast<LPWSTR>(static_cast<uintptr_t>(static_cast<uint16_t>(C))))));
        };
        return Rest.size() > 0 && Upper(Rest.c_str()[0]) == Upper(static_cast<wchar_t>(Char));
    }
    return false;
}
