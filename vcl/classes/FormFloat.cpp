#include "vcl/classes/FormFloat.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace {

constexpr int Decimals = 18;         // of a vaDouble
constexpr int DoublePrecision = 16;  // digits of a vaDouble
constexpr int GeneralPrecision = 15; // digits of the others

// Exactly Digits digits of a finite number, zeros at their end removed.
TDecimal RoundedDecimal(double Value, int Digits)
{
    TDecimal Decimal;
    Decimal.Negative = std::signbit(Value);
    if (Value == 0)
        return Decimal;
    char Spelling[40];
    const char* const End =
        std::to_chars(Spelling, Spelling + sizeof Spelling, std::fabs(Value), std::chars_format::scientific, Digits - 1)
            .ptr;
    const char* At = Spelling;
    for (; *At != 'e'; At++)
        if (*At != '.')
            Decimal.Digits[Decimal.Count++] = *At;
    while (Decimal.Count > 0 && Decimal.Digits[Decimal.Count - 1] == '0')
        Decimal.Count--;
    std::from_chars(At + (At[1] == '+' ? 2 : 1), End, Decimal.Point);
    Decimal.Point++;
    return Decimal;
}

// Without an exponent, zeros added to reach MinDecimals.
void AppendFixed(std::string& Output, const TDecimal& Decimal, int MinDecimals)
{
    if (Decimal.Negative)
        Output.push_back('-');
    for (int I = 0; I < Decimal.Point || I == 0; I++)
        Output.push_back(I < Decimal.Count && I < Decimal.Point ? Decimal.Digits[I] : '0');
    const int Count = std::max(Decimal.Count - Decimal.Point, MinDecimals);
    if (Decimal.Count == 0 ? MinDecimals == 0 : Count <= 0)
        return;
    Output.push_back('.');
    for (int I = 0; I < (Decimal.Count == 0 ? MinDecimals : Count); I++) {
        const int At = Decimal.Point + I;
        Output.push_back(At >= 0 && At < Decimal.Count ? Decimal.Digits[At] : '0');
    }
}

void AppendScientific(std::string& Output, const TDecimal& Decimal)
{
    if (Decimal.Negative)
        Output.push_back('-');
    Output.push_back(Decimal.Digits[0]);
    if (Decimal.Count > 1) {
        Output.push_back('.');
        Output.append(Decimal.View().substr(1));
    }
    Output.push_back('E');
    Output.append(std::to_string(Decimal.Point - 1));
}

// The shorter-looking of the two: fixed from 0.0001 up to the precision.
void AppendGeneral(std::string& Output, const TDecimal& Decimal)
{
    if (Decimal.Count == 0) {
        Output.append(Decimal.Negative ? "-0.0" : "0"); // "-0" would be the integer zero
        return;
    }
    const bool Fixed = Decimal.Point <= GeneralPrecision && Decimal.Point >= -3;
    if (Fixed && Decimal.Count - Decimal.Point < Decimals)
        AppendFixed(Output, Decimal, 0);
    else
        AppendScientific(Output, Decimal);
}

bool ReadsBackAs(std::string_view Spelling, double Value)
{
    double Read = 0;
    return ParseDouble(Spelling, Read) && Read == Value;
}

} // namespace

void SpellExtended(std::string& Output, const TExtended& Value)
{
    AppendGeneral(Output, Value.Shortest());
}

void SpellDouble(std::string& Output, double Value)
{
    const std::size_t Start = Output.size();
    TDecimal Rounded = RoundedDecimal(Value, DoublePrecision);
    const int Digits = Decimals + Rounded.Point;
    if (Digits > 0) {
        if (Digits < DoublePrecision)
            Rounded = RoundedDecimal(Value, Digits);
        if (Rounded.Point > DoublePrecision)
            AppendScientific(Output, Rounded);
        else
            AppendFixed(Output, Rounded, Decimals);
        if (ReadsBackAs(std::string_view(Output).substr(Start), Value))
            return;
        Output.resize(Start);
    }
    AppendFixed(Output, ShortestDecimal(Value), Decimals);
}

void SpellSingle(std::string& Output, float Value)
{
    AppendGeneral(Output, RoundedDecimal(Value, GeneralPrecision));
}

void SpellDate(std::string& Output, double Value)
{
    AppendGeneral(Output, ShortestDecimal(Value));
}

bool IsSpelledAsDouble(std::string_view Spelling)
{
    const std::size_t Point = Spelling.find('.');
    return Point != std::string_view::npos && Spelling.size() - Point - 1 >= Decimals &&
           Spelling.find_first_of("eE") == std::string_view::npos;
}

bool ParseDouble(std::string_view Spelling, double& Value)
{
    const auto Result = std::from_chars(Spelling.data(), Spelling.data() + Spelling.size(), Value);
    if (Result.ec == std::errc())
        return true;
    TExtended Extended; // too small or too large
    if (!TExtended::Parse(Spelling, Extended))
        return false;
    Value = Extended.ToDouble();
    return std::isfinite(Value);
}

bool ParseSingle(std::string_view Spelling, float& Value)
{
    double Double = 0;
    if (!ParseDouble(Spelling, Double) || std::fabs(Double) > std::numeric_limits<float>::max())
        return false;
    Value = static_cast<float>(Double);
    return true;
}

bool ParseCurrency(std::string_view Spelling, std::int64_t& Value)
{
    const auto Result = std::from_chars(Spelling.data(), Spelling.data() + Spelling.size(), Value);
    if (Result.ec == std::errc() && Result.ptr == Spelling.data() + Spelling.size())
        return true;
    TExtended Extended;
    return TExtended::Parse(Spelling, Extended) && Extended.ToInt64(Value);
}
