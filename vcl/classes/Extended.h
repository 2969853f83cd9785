// TExtended, the 80-bit floating point number of form files, on machines whose compilers have no such type.
#pragma once

#include <cstdint>
#include <string_view>

// The shortest decimal digits that give a number back: 0.Digits × 10^Point.
struct TDecimal {
    char Digits[24];
    int Count = 0; // no trailing zeros; zero has none
    int Point = 0;
    bool Negative = false;

    std::string_view View() const { return {Digits, static_cast<std::size_t>(Count)}; }
};

struct TExtended {
    static constexpr int Size = 10; // bytes in a file

    std::uint64_t Mantissa = 0;     // the top bit is the integer bit
    std::uint16_t SignExponent = 0; // the top bit is the sign; the exponent is biased by 16383

    bool IsNegative() const { return (SignExponent & 0x8000) != 0; }
    bool IsZero() const { return Mantissa == 0 && IsFinite(); }
    // False for infinities, for what is not a number, and for bit patterns that are no number of this format.
    bool IsFinite() const;

    static TExtended Load(const char* Bytes);
    void Store(char* Bytes) const;

    // Exact. An infinity or not-a-number stays one.
    static TExtended FromDouble(double Value);
    // The nearest double, ties to even; infinite when the number is too large, zero when it is too small.
    // An infinity or not-a-number stays one.
    double ToDouble() const;

    // The nearest integer, ties to even. Returns false when there is none in the range.
    bool ToInt64(std::int64_t& Value) const;

    // The number nearest to a decimal: optional minus, digits, optional fraction, optional exponent.
    // The spelling must be well-formed. Returns false when the number is too large.
    static bool Parse(std::string_view Spelling, TExtended& Value);
    // The number must be finite. One that is exactly a double gets the digits that identify the double, so that a
    // tenth which was stored by way of a double reads 0.1.
    TDecimal Shortest() const;

    bool operator==(const TExtended&) const = default;

private:
    TDecimal ExactShortest() const;
};

// The shortest digits that give a finite double back.
TDecimal ShortestDecimal(double Value);
