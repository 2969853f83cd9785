// TFormPrinter writes a binary form as text, laid out as the designers do it, in one pass over the data.
//
// A name that the language cannot spell, a number that is not finite, or text that is not what its type says ends the
// conversion: the text would not lead back to the same form. Binary data shorter than 32 bytes stays on its property's
// line; longer data stands below it, 32 bytes on a line.
#pragma once

#include "vcl/classes/FormCursor.h"
#include "vcl/system/Utf.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

struct TFormTextOptions {
    // The designers end lines so; "\n" is for those who keep their forms that way.
    std::string_view LineEnd = "\r\n";
};

class TFormPrinter {
public:
    // All three must outlive the printer.
    TFormPrinter(TFormCursor& Input, std::string& Output, const TFormTextOptions& Options);

    // Reads the form at the cursor, leaves the cursor behind it, and appends the text. The text starts with the UTF-8
    // signature when names in it are not ASCII and nothing else is in another encoding. Throws EFormDataError; the
    // output may then have got a part of the text.
    void Run();

private:
    class TLevel;

    void Object();
    void Properties();
    void Value();
    void Float(TValueType Type, std::size_t Start);
    void Bytes(std::string_view Text);
    void Units(TValueType Type, std::size_t Start);
    void Set();
    void List();
    void Collection();
    void Binary();

    std::string_view ReadIdentifier();
    void Integer(std::int64_t Value);
    void Index(std::int32_t Value);
    void CheckFinite(bool Finite, std::size_t Start) const;
    void NewLine();

    TFormCursor& FInput;
    std::string& FOutput;
    std::string_view FLineEnd;
    TWideString FUnits;
    std::size_t FIndent = 0;
    int FDepth = 0;
    bool FHighNames = false; // seen beyond ASCII
    bool FHighBytes = false; // seen in quotes, or in names that are not UTF-8
};
