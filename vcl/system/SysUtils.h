// The everyday functions on texts, numbers and file names. Texts are UTF-8; positions and lengths count bytes.
#pragma once

#include "vcl/system/FileNames.h"
#include "vcl/system/FileSearch.h"
#include "vcl/system/Format.h"
#include "vcl/system/Object.h"

#include <cstdint>
#include <string_view>

// ---- Numbers

AnsiString IntToStr(int64_t Value);
// Upper-case hexadecimal, at least Digits wide.
AnsiString IntToHex(int64_t Value, int Digits);
// Blanks around, a sign, and hexadecimal as "$1F" or "0x1F" are allowed. Raises EConvertError
// "'%s' is not a valid integer value" for anything else, and for numbers beyond 32 bits.
int StrToInt(std::string_view Text);
int64_t StrToInt64(std::string_view Text);
// Default when Text is no number.
int StrToIntDef(std::string_view Text, int Default);
int64_t StrToInt64Def(std::string_view Text, int64_t Default);
bool TryStrToInt(std::string_view Text, int& Value);
bool TryStrToInt64(std::string_view Text, int64_t& Value);

// At most 15 significant digits, without trailing zeros; the decimal separator is a point in every locale.
AnsiString FloatToStr(double Value);
// Raises EConvertError "'%s' is not a valid floating point value".
double StrToFloat(std::string_view Text);
double StrToFloatDef(std::string_view Text, double Default);
bool TryStrToFloat(std::string_view Text, double& Value);

// "-1" and "0", or with UseBoolStrs "True" and "False".
AnsiString BoolToStr(bool Value, bool UseBoolStrs = false);

// ---- Texts

// Without the blanks and control characters at the ends.
AnsiString Trim(std::string_view Text);
AnsiString TrimLeft(std::string_view Text);
AnsiString TrimRight(std::string_view Text);

// Change the letters A to Z only.
AnsiString UpperCase(std::string_view Text);
AnsiString LowerCase(std::string_view Text);
// Change the letters of every alphabet.
AnsiString AnsiUpperCase(std::string_view Text);
AnsiString AnsiLowerCase(std::string_view Text);

// Negative, zero or positive. By bytes:
int CompareStr(std::string_view A, std::string_view B);
// by bytes, ignoring the case of A to Z:
int CompareText(std::string_view A, std::string_view B);
bool SameText(std::string_view A, std::string_view B);
// in the user's alphabetical order:
int AnsiCompareStr(std::string_view A, std::string_view B);
bool AnsiSameStr(std::string_view A, std::string_view B);
// in the user's alphabetical order, ignoring case:
int AnsiCompareText(std::string_view A, std::string_view B);
bool AnsiSameText(std::string_view A, std::string_view B);

// 1-based position of the first Part in Text in bytes; 0 when there is none or Part is empty.
int Pos(std::string_view Part, std::string_view Text);

enum TReplaceFlags : uint8_t { rfFirst = 0, rfReplaceAll = 1, rfIgnoreCase = 2 };
constexpr TReplaceFlags operator|(TReplaceFlags A, TReplaceFlags B)
{
    return static_cast<TReplaceFlags>(static_cast<uint8_t>(A) | static_cast<uint8_t>(B));
}
// The first occurrence of Old becomes New; with rfReplaceAll every one. rfIgnoreCase ignores the case of A to Z.
AnsiString StringReplace(std::string_view Text, std::string_view Old, std::string_view New,
                         TReplaceFlags Flags = rfFirst);
AnsiString StringOfChar(char Char, int Count);

// In apostrophes (or another quotation mark); those inside are doubled.
AnsiString QuotedStr(std::string_view Text);
AnsiString AnsiQuotedStr(std::string_view Text, char Quote);
// Reads a quoted text from the start of Text and removes it from there. Empty, with Text unchanged, when it does not
// start with Quote; what lies before the end of Text when the closing quote is missing.
AnsiString AnsiExtractQuotedStr(std::string_view& Text, char Quote);
// Text without its quotes when it is quoted, else unchanged.
AnsiString AnsiDequotedStr(std::string_view Text, char Quote);
