#include "vcl/classes/Extended.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace {

TExtended Parse(const std::string& Spelling)
{
    TExtended Value;
    EXPECT_TRUE(TExtended::Parse(Spelling, Value)) << Spelling;
    return Value;
}

std::string Spell(const TDecimal& Decimal)
{
    return std::string(Decimal.Negative ? "-" : "") + "0." + std::string(Decimal.View()) + "E" +
           std::to_string(Decimal.Point);
}

TEST(Extended, KnownNumbers)
{
    EXPECT_EQ(Parse("1"), (TExtended{0x8000000000000000, 0x3FFF}));
    EXPECT_EQ(Parse("-10"), (TExtended{0xA000000000000000, 0xC002}));
    EXPECT_EQ(Parse("0.1"), (TExtended{0xCCCCCCCCCCCCCCCD, 0x3FFB}));
    EXPECT_EQ(Parse("3.14159265358979323846"), (TExtended{0xC90FDAA22168C235, 0x4000}));
    EXPECT_EQ(Parse("18446744073709551615"), (TExtended{0xFFFFFFFFFFFFFFFF, 0x403E}));
    // The largest number, the smallest normal one, the smallest of all, and what is too small.
    EXPECT_EQ(Parse("1.18973149535723176502E4932"), (TExtended{0xFFFFFFFFFFFFFFFF, 0x7FFE}));
    EXPECT_EQ(Parse("3.36210314311209350626E-4932"), (TExtended{0x8000000000000000, 0x0001}));
    EXPECT_EQ(Parse("3.6E-4951"), (TExtended{1, 0}));
    EXPECT_EQ(Parse("-1E-4960"), (TExtended{0, 0x8000}));
    EXPECT_EQ(Parse("-1E-999999999999"), (TExtended{0, 0x8000}));
    EXPECT_EQ(Parse("0E999999999999"), (TExtended{0, 0}));
}

TEST(Extended, TiesGoToEven)
{
    // 2^64 + 1 and 2^64 + 3 lie between two numbers each.
    EXPECT_EQ(Parse("18446744073709551617"), (TExtended{0x8000000000000000, 0x403F}));
    EXPECT_EQ(Parse("18446744073709551619"), (TExtended{0x8000000000000002, 0x403F}));
    // A digit far behind decides.
    EXPECT_EQ(Parse("18446744073709551617." + std::string(200, '0') + "1"), (TExtended{0x8000000000000001, 0x403F}));
}

TEST(Extended, TooLarge)
{
    TExtended Value;
    EXPECT_FALSE(TExtended::Parse("1.1898E4932", Value));
    EXPECT_FALSE(TExtended::Parse("-1E5000", Value));
    EXPECT_FALSE(TExtended::Parse("1E999999999999", Value));
    EXPECT_FALSE(TExtended::Parse(std::string(5000, '9'), Value));
}

TEST(Extended, ShortestDigitsGiveTheNumberBack)
{
    std::mt19937_64 Random(1);
    for (int I = 0; I < 500; I++) {
        TExtended Value{Random() | 0x8000000000000000, static_cast<std::uint16_t>(Random() & 0xFFFF)};
        if (I % 5 == 0) // near one
            Value.SignExponent = static_cast<std::uint16_t>(0x3FFF - 40 + Random() % 80);
        if (I % 7 == 0)
            Value.Mantissa = 0x8000000000000000;
        if (I % 11 == 0)
            Value = {Random() >> (1 + Random() % 62), 0};
        // What is exactly a double is spelled as one.
        if (!Value.IsFinite() || TExtended::FromDouble(Value.ToDouble()) == Value)
            continue;
        const TDecimal Decimal = Value.Shortest();
        EXPECT_LE(Decimal.Count, 21);
        const TExtended Back = Parse(Spell(Decimal));
        // A number of exponent 0 with the integer bit is the same number with exponent 1.
        if ((Value.SignExponent & 0x7FFF) != 0)
            EXPECT_EQ(Back, Value) << Spell(Decimal);
        EXPECT_EQ(Back.Mantissa, Value.Mantissa);
    }
}

TEST(Extended, ShortestIsShort)
{
    for (const char* Spelling : {"0.1E1", "0.1E0", "0.123456789012345678E-300", "0.4E4000", "-0.15E2"})
        EXPECT_EQ(Spell(Parse(Spelling).Shortest()), Spelling);
    EXPECT_EQ(Spell(TExtended{}.Shortest()), "0.E0");
}

TEST(Extended, DoublesThereAndBack)
{
    std::mt19937_64 Random(2);
    for (int I = 0; I < 5000; I++) {
        const double Value = std::bit_cast<double>(Random());
        if (std::isfinite(Value))
            EXPECT_EQ(TExtended::FromDouble(Value).ToDouble(), Value);
    }
    for (const double Value : {0.0, 5e-324, 2.2250738585072014e-308, 1.7976931348623157e308})
        EXPECT_EQ(TExtended::FromDouble(-Value).ToDouble(), -Value);
    EXPECT_TRUE(std::signbit(TExtended::FromDouble(-0.0).ToDouble()));
}

TEST(Extended, RoundsToDouble)
{
    // Half a unit above one: to even. A bit more: up.
    EXPECT_EQ((TExtended{0x8000000000000400, 0x3FFF}.ToDouble()), 1.0);
    EXPECT_EQ((TExtended{0x8000000000000401, 0x3FFF}.ToDouble()), 1.0 + std::numeric_limits<double>::epsilon());
    EXPECT_EQ((TExtended{0x8000000000000C00, 0x3FFF}.ToDouble()), 1.0 + 2 * std::numeric_limits<double>::epsilon());
    // Subnormal doubles are rounded once: 2^-1075 is half of the smallest.
    EXPECT_EQ((TExtended{0x8000000000000000, 16383 - 1075}.ToDouble()), 0.0);
    EXPECT_EQ((TExtended{0x8000000000000001, 16383 - 1075}.ToDouble()), 5e-324);
    EXPECT_EQ((TExtended{0x8000000000000000, 16383 - 1076}.ToDouble()), 0.0);
    EXPECT_EQ((TExtended{0xFFFFFFFFFFFFFFFF, 16383 + 1023}.ToDouble()), HUGE_VAL);
    EXPECT_EQ((TExtended{1, 0}.ToDouble()), 0.0);
}

TEST(Extended, SpecialPatterns)
{
    EXPECT_EQ((TExtended{0x8000000000000000, 0xFFFF}.ToDouble()), -HUGE_VAL);
    EXPECT_TRUE(std::isnan(TExtended{0xC000000000000000, 0x7FFF}.ToDouble()));
    EXPECT_EQ(TExtended::FromDouble(-HUGE_VAL).ToDouble(), -HUGE_VAL);
    EXPECT_TRUE(std::isnan(TExtended::FromDouble(std::nan("")).ToDouble()));
    EXPECT_FALSE((TExtended{0x8000000000000000, 0x7FFF}.IsFinite()));
    EXPECT_FALSE((TExtended{0x4000000000000000, 0x3FFF}.IsFinite()));
    EXPECT_TRUE((TExtended{0x4000000000000000, 0}.IsFinite()));
}

TEST(Extended, ToInteger)
{
    const auto ToInt64 = [](const std::string& Spelling) {
        std::int64_t Value = 0;
        EXPECT_TRUE(Parse(Spelling).ToInt64(Value)) << Spelling;
        return Value;
    };
    EXPECT_EQ(ToInt64("0"), 0);
    EXPECT_EQ(ToInt64("0.5"), 0);
    EXPECT_EQ(ToInt64("1.5"), 2);
    EXPECT_EQ(ToInt64("-2.5"), -2);
    EXPECT_EQ(ToInt64("1E-4000"), 0);
    EXPECT_EQ(ToInt64("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(ToInt64("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    std::int64_t Value = 0;
    EXPECT_FALSE(Parse("9223372036854775808").ToInt64(Value));
    EXPECT_FALSE(Parse("-9223372036854775809").ToInt64(Value));
    EXPECT_FALSE(Parse("1E30").ToInt64(Value));
}

} // namespace
