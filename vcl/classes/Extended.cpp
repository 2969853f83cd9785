#include "vcl/classes/Extended.h"

#include "vcl/classes/BigNumber.h"
#include "vcl/classes/LittleEndian.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int Bias = 16383;
constexpr int MaxExponent = 0x7FFF;
constexpr std::uint64_t IntegerBit = std::uint64_t{1} << 63;
constexpr int MinScale = 1 - Bias - 63; // the exponent of the last bit of the smallest numbers
constexpr int MaxKeptDigits = 80;

// The significant digits of a decimal and where its point is: 0.Digits × 10^Point.
struct TSpelledDecimal {
    char Digits[MaxKeptDigits + 1];
    int Count = 0;
    int Point = 0;
    bool Negative = false;
};

// The exponent behind the 'e', limited to what makes every number too small or too large.
int ReadExponent(std::string_view Spelling)
{
    constexpr int Limit = 100'000;
    const bool Plus = Spelling.starts_with('+');
    int Exponent = 0;
    const auto Result = std::from_chars(Spelling.data() + (Plus ? 1 : 0), Spelling.data() + Spelling.size(), Exponent);
    if (Result.ec == std::errc::result_out_of_range)
        return Spelling.starts_with('-') ? -Limit : Limit;
    return std::clamp(Exponent, -Limit, Limit);
}

TSpelledDecimal ReadDecimal(std::string_view Spelling)
{
    TSpelledDecimal Decimal;
    Decimal.Negative = Spelling.starts_with('-');
    bool BehindPoint = false;
    bool Lost = false;
    std::size_t I = Decimal.Negative ? 1 : 0;
    for (; I < Spelling.size() && Spelling[I] != 'e' && Spelling[I] != 'E'; I++) {
        const char Digit = Spelling[I];
        if (Digit == '.') {
            BehindPoint = true;
        } else if (Decimal.Count == 0 && Digit == '0') {
            Decimal.Point -= BehindPoint ? 1 : 0;
        } else {
            Decimal.Point += BehindPoint ? 0 : 1;
            if (Decimal.Count < MaxKeptDigits)
                Decimal.Digits[Decimal.Count++] = Digit;
            else
                Lost = Lost || Digit != '0';
        }
    }
    while (Decimal.Count > 0 && Decimal.Digits[Decimal.Count - 1] == '0')
        Decimal.Count--;
    if (Lost) // what was cut off still decides a tie
        Decimal.Digits[Decimal.Count++] = '1';
    if (I < Spelling.size())
        Decimal.Point += ReadExponent(Spelling.substr(I + 1));
    return Decimal;
}

// A number as Quotient × 2^Scale and what is left below that.
struct TQuotient {
    std::uint64_t Quotient = 0; // 64 bits, or fewer for the smallest numbers
    int Scale = 0;
    bool Half = false; // the rest is at least half a unit
    bool More = false; // and not exactly that
};

// For up to 18 digits, no more of them behind the point. Most numbers in forms are like that.
TQuotient DivideSmall(const TSpelledDecimal& Decimal)
{
    std::uint64_t Remainder = 0;
    for (int I = 0; I < Decimal.Count; I++)
        Remainder = Remainder * 10 + static_cast<std::uint64_t>(Decimal.Digits[I] - '0');
    std::uint64_t Divisor = 1;
    for (int I = Decimal.Point; I < Decimal.Count; I++)
        Divisor *= 10;

    TQuotient Result;
    Result.Quotient = Remainder / Divisor;
    Remainder %= Divisor;
    const auto NextBit = [&] {
        Remainder <<= 1; // Divisor has at most 60 bits
        const bool Bit = Remainder >= Divisor;
        Remainder -= Bit ? Divisor : 0;
        return Bit;
    };
    for (; Result.Quotient < IntegerBit; Result.Scale--)
        Result.Quotient = Result.Quotient << 1 | (NextBit() ? 1 : 0);
    Result.Half = NextBit();
    Result.More = Remainder != 0;
    return Result;
}

// The next binary digit of Numerator / Denominator, which is below one; Numerator becomes what is left.
bool NextBit(TBigNumber& Numerator, const TBigNumber& Denominator)
{
    Numerator.ShiftLeft(1);
    if (TBigNumber::Compare(Numerator, Denominator) < 0)
        return false;
    Numerator.Subtract(Denominator);
    return true;
}

TQuotient Divide(const TSpelledDecimal& Decimal)
{
    TBigNumber Numerator;
    for (int I = 0; I < Decimal.Count; I++)
        Numerator.Multiply(10, static_cast<std::uint32_t>(Decimal.Digits[I] - '0'));
    TBigNumber Denominator(1);
    const int Power = Decimal.Point - Decimal.Count;
    (Power >= 0 ? Numerator : Denominator).MultiplyPowerOf10(std::abs(Power));

    TQuotient Result;
    Result.Scale = std::max(Numerator.BitLength() - Denominator.BitLength() - 64, MinScale);
    (Result.Scale >= 0 ? Denominator : Numerator).ShiftLeft(std::abs(Result.Scale));
    Denominator.ShiftLeft(64);
    if (TBigNumber::Compare(Numerator, Denominator) >= 0) {
        Denominator.ShiftLeft(1);
        Result.Scale++;
    }
    for (int Bit = 0; Bit < 64; Bit++)
        Result.Quotient = Result.Quotient << 1 | (NextBit(Numerator, Denominator) ? 1 : 0);
    Result.Half = NextBit(Numerator, Denominator);
    Result.More = !Numerator.IsZero();
    return Result;
}

// The number nearest to a decimal; false when it is too large.
bool Nearest(const TSpelledDecimal& Decimal, TExtended& Value)
{
    const auto Sign = static_cast<std::uint16_t>(Decimal.Negative ? 0x8000 : 0);
    Value = {0, Sign};
    if (Decimal.Count == 0 || Decimal.Point < -4960)
        return true;
    if (Decimal.Point > 4940)
        return false;

    const int Decimals = Decimal.Count - Decimal.Point;
    const bool Small = Decimal.Count <= 18 && Decimals >= 0 && Decimals <= 18;
    TQuotient Parts = Small ? DivideSmall(Decimal) : Divide(Decimal);
    if (Parts.Half && (Parts.More || (Parts.Quotient & 1) != 0) && ++Parts.Quotient == 0) {
        Parts.Quotient = IntegerBit;
        Parts.Scale++;
    }
    const int Exponent = Parts.Quotient >= IntegerBit ? Parts.Scale + 63 + Bias : 0;
    if (Exponent >= MaxExponent)
        return false;
    Value = {Parts.Quotient, static_cast<std::uint16_t>(Sign | Exponent)};
    return true;
}

} // namespace

bool TExtended::IsFinite() const
{
    const int Exponent = SignExponent & MaxExponent;
    if (Exponent == MaxExponent)
        return false;
    return Exponent == 0 || (Mantissa >> 63) != 0;
}

TExtended TExtended::Load(const char* Bytes)
{
    return {LoadLittleEndian<std::uint64_t>(Bytes), LoadLittleEndian<std::uint16_t>(Bytes + 8)};
}

void TExtended::Store(char* Bytes) const
{
    StoreLittleEndian(Bytes, Mantissa);
    StoreLittleEndian(Bytes + 8, SignExponent);
}

TExtended TExtended::FromDouble(double Value)
{
    const auto Sign = static_cast<std::uint16_t>(std::signbit(Value) ? 0x8000 : 0);
    if (Value == 0)
        return {0, Sign};
    if (!std::isfinite(Value))
        return {std::isinf(Value) ? IntegerBit : IntegerBit | IntegerBit >> 1,
                static_cast<std::uint16_t>(Sign | MaxExponent)};
    int Exponent = 0;
    const double Fraction = std::frexp(std::fabs(Value), &Exponent); // 0.5 <= Fraction < 1
    const auto Mantissa = static_cast<std::uint64_t>(std::ldexp(Fraction, 53)) << 11;
    return {Mantissa, static_cast<std::uint16_t>(Sign | (Exponent - 1 + Bias))};
}

double TExtended::ToDouble() const
{
    const double Sign = IsNegative() ? -1.0 : 1.0;
    if (!IsFinite())
        return (Mantissa << 1) == 0 ? Sign * HUGE_VAL : std::nan("");
    if (Mantissa == 0)
        return Sign * 0.0;
    const int Exponent = std::max<int>(SignExponent & MaxExponent, 1) - Bias - 63; // of the last bit
    // A double below 2^-1022 has fewer digits: round once, here, and not a second time when scaling.
    const bool Subnormal = Exponent + 63 - std::countl_zero(Mantissa) < -1022;
    const int Drop = Subnormal ? -1074 - Exponent : 0;
    if (Drop <= 0)
        return Sign * std::ldexp(static_cast<double>(Mantissa), Exponent);
    if (Drop > 64)
        return Sign * 0.0;
    const std::uint64_t Kept = Drop == 64 ? 0 : Mantissa >> Drop;
    const std::uint64_t Rest = Mantissa << (64 - Drop);
    const bool Up = Rest > IntegerBit || (Rest == IntegerBit && (Kept & 1) != 0);
    return Sign * std::ldexp(static_cast<double>(Kept + (Up ? 1 : 0)), -1074);
}

bool TExtended::ToInt64(std::int64_t& Value) const
{
    if (!IsFinite())
        return false;
    const int Drop = 63 + Bias - (SignExponent & MaxExponent); // digits behind the point
    if (Drop < 0)
        return false;
    std::uint64_t Whole = Drop < 64 ? Mantissa >> Drop : 0;
    const std::uint64_t Rest = Drop == 0 ? 0 : Drop <= 64 ? Mantissa << (64 - Drop) : 0;
    Whole += Rest > IntegerBit || (Rest == IntegerBit && (Whole & 1) != 0) ? 1 : 0;
    if (Whole > IntegerBit - (IsNegative() ? 0 : 1))
        return false;
    Value = static_cast<std::int64_t>(IsNegative() ? 0 - Whole : Whole);
    return true;
}

bool TExtended::Parse(std::string_view Spelling, TExtended& Value)
{
    return Nearest(ReadDecimal(Spelling), Value);
}

TDecimal TExtended::Shortest() const
{
    const double Double = ToDouble();
    if (!std::isfinite(Double))
        return ExactShortest();
    const TDecimal Decimal = ShortestDecimal(Double);
    if (FromDouble(Double) == *this)
        return Decimal;
    // The digits of the nearest double often are this number's too: no other decimal of up to 18 digits can be.
    TSpelledDecimal Digits;
    Digits.Count = Decimal.Count;
    Digits.Point = Decimal.Point;
    Digits.Negative = Decimal.Negative;
    std::copy_n(Decimal.Digits, Decimal.Count, Digits.Digits);
    TExtended Same;
    if (Nearest(Digits, Same) && Same == *this)
        return Decimal;
    return ExactShortest();
}

// Steele and White's digit generation: Remainder / Scale is what is left of the number, Below and Above / Scale are how
// far a decimal may be away and still be nearest to this number.
TDecimal TExtended::ExactShortest() const
{
    const int Exponent = std::max<int>(SignExponent & MaxExponent, 1) - Bias - 63;
    const bool Even = (Mantissa & 1) == 0;
    const bool PowerOf2 = Mantissa << 1 == 0; // the next lower number is only half as far away
    TBigNumber Remainder(Mantissa);
    TBigNumber Scale(PowerOf2 ? 4 : 2);
    TBigNumber Below(1);
    TBigNumber Above(PowerOf2 ? 2 : 1);
    Remainder.ShiftLeft(std::max(Exponent, 0) + (PowerOf2 ? 2 : 1));
    Below.ShiftLeft(std::max(Exponent, 0));
    Above.ShiftLeft(std::max(Exponent, 0));
    Scale.ShiftLeft(std::max(-Exponent, 0));

    TDecimal Decimal;
    Decimal.Negative = IsNegative();
    const int Log2 = Exponent + 63 - std::countl_zero(Mantissa);
    Decimal.Point = static_cast<int>(std::ceil(Log2 * 0.30102999566398120 - 1e-9));
    for (TBigNumber* Number : {&Remainder, &Below, &Above})
        Number->MultiplyPowerOf10(-Decimal.Point);
    Scale.MultiplyPowerOf10(Decimal.Point);
    const auto ReachesNext = [&] {
        TBigNumber Sum = Remainder;
        Sum.Add(Above);
        const int Order = TBigNumber::Compare(Sum, Scale);
        return Order > 0 || (Order == 0 && Even);
    };
    if (ReachesNext()) {
        Decimal.Point++;
        Scale.Multiply(10);
    }
    for (bool Last = false; !Last;) {
        char Digit = '0';
        for (TBigNumber* Number : {&Remainder, &Below, &Above})
            Number->Multiply(10);
        for (; TBigNumber::Compare(Remainder, Scale) >= 0; Digit++)
            Remainder.Subtract(Scale);
        const int Order = TBigNumber::Compare(Remainder, Below);
        const bool Low = Order < 0 || (Order == 0 && Even);
        const bool High = ReachesNext();
        Last = Low || High;
        if (High) {
            Remainder.ShiftLeft(1);
            Digit += !Low || TBigNumber::Compare(Remainder, Scale) > 0 ? 1 : 0;
        }
        Decimal.Digits[Decimal.Count++] = Digit;
    }
    return Decimal;
}

TDecimal ShortestDecimal(double Value)
{
    TDecimal Decimal;
    Decimal.Negative = std::signbit(Value);
    if (Value == 0)
        return Decimal;
    char Spelling[40];
    const auto End =
        std::to_chars(Spelling, Spelling + sizeof Spelling, std::fabs(Value), std::chars_format::scientific).ptr;
    const char* At = Spelling;
    for (; At < End && *At != 'e'; At++)
        if (*At != '.')
            Decimal.Digits[Decimal.Count++] = *At;
    while (Decimal.Count > 1 && Decimal.Digits[Decimal.Count - 1] == '0')
        Decimal.Count--;
    At += At[1] == '+' ? 2 : 1;
    std::from_chars(At, End, Decimal.Point);
    Decimal.Point++;
    return Decimal;
}
