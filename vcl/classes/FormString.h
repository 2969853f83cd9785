// TFormString puts the parts of a text form's string together: quoted text, character codes, continuation lines.
//
// Quoted bytes beyond ASCII are text in the code page of whoever saved the form, which the file does not name; they are
// kept as they are. A character code above 127 is a UTF-16 unit and makes the whole string Unicode. Both in one string
// are only possible when the bytes are UTF-8. In a file with the UTF-8 signature all quoted text is UTF-8.
#pragma once

#include "vcl/system/Utf.h"

#include <string>
#include <string_view>

class TFormString {
public:
    // Starts a new string. Utf8: the file has the UTF-8 signature.
    void Clear(bool Utf8);

    // Adds a Text token. Throws EFormTextError for codes above 65535, for bytes that are not UTF-8 where they have to
    // be, and for code-page text together with codes above 127.
    void Append(std::string_view Token, int Line);

    // False: Bytes has the value. True: Units has it.
    bool IsWide() const { return FWide; }
    std::string_view Bytes() const { return FBytes; }
    TWideView Units() const { return FUnits; }

private:
    void AppendQuoted(std::string_view Text, int Line);
    void AppendCode(unsigned Code, int Line);
    void Widen(int Line);

    std::string FBytes;
    TWideString FUnits;
    bool FWide = false;
    bool FUtf8 = false;
};
