#include "vcl/system/SysUtils.h"

#include "vcl/system/Ident.h"
#include "vcl/system/Locale.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace {

bool IsBlank(char C)
{
    return static_cast<unsigned char>(C) <= ' ';
}

std::string_view TrimmedRight(std::string_view Text)
{
    while (!Text.empty() && IsBlank(Text.back()))
        Text.remove_suffix(1);
    return Text;
}

std::string_view TrimmedLeft(std::string_view Text)
{
    while (!Text.empty() && IsBlank(Text.front()))
        Text.remove_prefix(1);
    return Text;
}

std::string_view Trimmed(std::string_view Text)
{
    return TrimmedLeft(TrimmedRight(Text));
}

int ThreeWay(int Difference)
{
    return Difference < 0 ? -1 : Difference > 0 ? 1 : 0;
}

bool StartsWith(std::string_view Text, std::string_view Start, bool IgnoreCase)
{
    std::string_view Head = Text.substr(0, Start.size());
    return IgnoreCase ? SameIdent(Head, Start) : Head == Start;
}

[[noreturn]] void RaiseNotInteger(std::string_view Text)
{
    throw EConvertError("'" + AnsiString(Text) + "' is not a valid integer value");
}

} // namespace

AnsiString IntToStr(int64_t Value)
{
    return std::to_string(Value);
}

AnsiString IntToHex(int64_t Value, int Digits)
{
    char Buffer[16];
    auto End = std::to_chars(Buffer, Buffer + sizeof Buffer, static_cast<uint64_t>(Value), 16).ptr;
    AnsiString Result = UpperCase({Buffer, static_cast<size_t>(End - Buffer)});
    if (Result.size() < static_cast<size_t>(std::max(Digits, 0)))
        Result.insert(0, static_cast<size_t>(Digits) - Result.size(), '0');
    return Result;
}

bool TryStrToInt64(std::string_view Text, int64_t& Value)
{
    Text = Trimmed(Text);
    bool Negative = !Text.empty() && Text[0] == '-';
    if (!Text.empty() && (Text[0] == '-' || Text[0] == '+'))
        Text.remove_prefix(1);
    int Base = 10;
    for (std::string_view Prefix : {"$", "0x", "0X", "x", "X"})
        if (Base == 10 && Text.starts_with(Prefix)) {
            Base = 16;
            Text.remove_prefix(Prefix.size());
        }
    uint64_t Number = 0;
    auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Number, Base);
    if (Error != std::errc() || End != Text.data() + Text.size())
        return false;
    // Hexadecimal numbers are bit patterns: $FFFFFFFFFFFFFFFF is -1.
    constexpr auto Max = static_cast<uint64_t>(std::numeric_limits<int64_t>::max());
    if (Base == 10 && Number > Max + (Negative ? 1 : 0))
        return false;
    Value = static_cast<int64_t>(Negative ? 0 - Number : Number);
    return true;
}

bool TryStrToInt(std::string_view Text, int& Value)
{
    int64_t Long;
    if (!TryStrToInt64(Text, Long))
        return false;
    bool Hexadecimal = Text.find_first_of("$xX") != std::string_view::npos;
    int64_t Max = Hexadecimal ? int64_t{std::numeric_limits<uint32_t>::max()} : std::numeric_limits<int>::max();
    if (Long < std::numeric_limits<int>::min() || Long > Max)
        return false;
    Value = static_cast<int>(static_cast<uint32_t>(Long));
    return true;
}

int StrToInt(std::string_view Text)
{
    int Value;
    if (!TryStrToInt(Text, Value))
        RaiseNotInteger(Text);
    return Value;
}

int64_t StrToInt64(std::string_view Text)
{
    int64_t Value;
    if (!TryStrToInt64(Text, Value))
        RaiseNotInteger(Text);
    return Value;
}

int StrToIntDef(std::string_view Text, int Default)
{
    int Value;
    return TryStrToInt(Text, Value) ? Value : Default;
}

int64_t StrToInt64Def(std::string_view Text, int64_t Default)
{
    int64_t Value;
    return TryStrToInt64(Text, Value) ? Value : Default;
}

AnsiString FloatToStr(double Value)
{
    return Format("%g", Value);
}

bool TryStrToFloat(std::string_view Text, double& Value)
{
    Text = Trimmed(Text);
    if (Text.starts_with('+') && !Text.starts_with("+-"))
        Text.remove_prefix(1);
    double Number = 0;
    auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Number);
    // from_chars takes "inf" and "nan" too.
    if (Error != std::errc() || End != Text.data() + Text.size() || Text.find_first_of("nN") != Text.npos)
        return false;
    Value = Number;
    return true;
}

double StrToFloat(std::string_view Text)
{
    double Value;
    if (!TryStrToFloat(Text, Value))
        throw EConvertError("'" + AnsiString(Text) + "' is not a valid floating point value");
    return Value;
}

double StrToFloatDef(std::string_view Text, double Default)
{
    double Value;
    return TryStrToFloat(Text, Value) ? Value : Default;
}

AnsiString BoolToStr(bool Value, bool UseBoolStrs)
{
    if (UseBoolStrs)
        return Value ? "True" : "False";
    return Value ? "-1" : "0";
}

AnsiString Trim(std::string_view Text)
{
    return AnsiString(Trimmed(Text));
}

AnsiString TrimLeft(std::string_view Text)
{
    return AnsiString(TrimmedLeft(Text));
}

AnsiString TrimRight(std::string_view Text)
{
    return AnsiString(TrimmedRight(Text));
}

AnsiString UpperCase(std::string_view Text)
{
    AnsiString Result(Text);
    for (char& C : Result)
        if (C >= 'a' && C <= 'z')
            C = static_cast<char>(C - 'a' + 'A');
    return Result;
}

AnsiString LowerCase(std::string_view Text)
{
    AnsiString Result(Text);
    for (char& C : Result)
        C = LowerIdentChar(C);
    return Result;
}

AnsiString AnsiUpperCase(std::string_view Text)
{
    return LocaleUpperCase(Text);
}

AnsiString AnsiLowerCase(std::string_view Text)
{
    return LocaleLowerCase(Text);
}

int CompareStr(std::string_view A, std::string_view B)
{
    return ThreeWay(A.compare(B));
}

int CompareText(std::string_view A, std::string_view B)
{
    size_t Common = std::min(A.size(), B.size());
    for (size_t I = 0; I < Common; ++I) {
        auto X = static_cast<unsigned char>(LowerIdentChar(A[I]));
        auto Y = static_cast<unsigned char>(LowerIdentChar(B[I]));
        if (X != Y)
            return X < Y ? -1 : 1;
    }
    return A.size() < B.size() ? -1 : A.size() > B.size() ? 1 : 0;
}

bool SameText(std::string_view A, std::string_view B)
{
    return SameIdent(A, B);
}

int AnsiCompareStr(std::string_view A, std::string_view B)
{
    return LocaleCompare(A, B, false);
}

bool AnsiSameStr(std::string_view A, std::string_view B)
{
    return A == B || LocaleCompare(A, B, false) == 0;
}

int AnsiCompareText(std::string_view A, std::string_view B)
{
    return LocaleCompare(A, B, true);
}

bool AnsiSameText(std::string_view A, std::string_view B)
{
    return A == B || LocaleCompare(A, B, true) == 0;
}

int Pos(std::string_view Part, std::string_view Text)
{
    size_t Found = Part.empty() ? Text.npos : Text.find(Part);
    return Found == Text.npos ? 0 : static_cast<int>(Found) + 1;
}

AnsiString StringReplace(std::string_view Text, std::string_view Old, std::string_view New, TReplaceFlags Flags)
{
    AnsiString Result;
    bool IgnoreCase = (Flags & rfIgnoreCase) != 0;
    size_t I = 0;
    while (I < Text.size() && !Old.empty()) {
        if (!StartsWith(Text.substr(I), Old, IgnoreCase)) {
            Result += Text[I++];
            continue;
        }
        Result += New;
        I += Old.size();
        if (!(Flags & rfReplaceAll))
            break;
    }
    return Result.append(Text.substr(I));
}

AnsiString StringOfChar(char Char, int Count)
{
    return AnsiString(static_cast<size_t>(std::max(Count, 0)), Char);
}

AnsiString QuotedStr(std::string_view Text)
{
    return AnsiQuotedStr(Text, '\'');
}

AnsiString AnsiQuotedStr(std::string_view Text, char Quote)
{
    AnsiString Result(1, Quote);
    for (char C : Text) {
        if (C == Quote)
            Result += Quote;
        Result += C;
    }
    return Result += Quote;
}

AnsiString AnsiExtractQuotedStr(std::string_view& Text, char Quote)
{
    AnsiString Result;
    if (Text.empty() || Text[0] != Quote)
        return Result;
    size_t I = 1;
    while (I < Text.size()) {
        if (Text[I] == Quote) {
            ++I; // the closing quote, or the first of a doubled one
            if (I == Text.size() || Text[I] != Quote)
                break;
        }
        Result += Text[I++];
    }
    Text.remove_prefix(I);
    return Result;
}

AnsiString AnsiDequotedStr(std::string_view Text, char Quote)
{
    std::string_view Rest = Text;
    AnsiString Result = AnsiExtractQuotedStr(Rest, Quote);
    return Rest.size() == Text.size() ? AnsiString(Text) : Result;
}
