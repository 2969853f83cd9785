#include "vcl/classes/BigNumber.h"

#include <algorithm>
#include <bit>

TBigNumber::TBigNumber(std::uint64_t Value)
{
    FLimbs[0] = static_cast<std::uint32_t>(Value);
    FLimbs[1] = static_cast<std::uint32_t>(Value >> 32);
    FCount = 2;
    Trim();
}

int TBigNumber::BitLength() const
{
    return FCount == 0 ? 0 : FCount * 32 - std::countl_zero(FLimbs[static_cast<std::size_t>(FCount - 1)]);
}

void TBigNumber::Multiply(std::uint32_t Factor, std::uint32_t Carry)
{
    std::uint64_t Sum = Carry;
    for (int I = 0; I < FCount; I++) {
        auto& Limb = FLimbs.at(static_cast<std::size_t>(I));
        Sum += std::uint64_t{Limb} * Factor;
        Limb = static_cast<std::uint32_t>(Sum);
        Sum >>= 32;
    }
    if (Sum != 0)
        FLimbs.at(static_cast<std::size_t>(FCount++)) = static_cast<std::uint32_t>(Sum);
    Trim();
}

void TBigNumber::MultiplyPowerOf10(int Exponent)
{
    for (; Exponent >= 9; Exponent -= 9)
        Multiply(1'000'000'000);
    for (; Exponent > 0; Exponent--)
        Multiply(10);
}

void TBigNumber::ShiftLeft(int Bits)
{
    if (FCount == 0)
        return;
    Multiply(std::uint32_t{1} << (Bits % 32));
    const int Limbs = Bits / 32;
    if (Limbs == 0)
        return;
    static_cast<void>(FLimbs.at(static_cast<std::size_t>(FCount + Limbs - 1)));
    std::copy_backward(FLimbs.begin(), FLimbs.begin() + FCount, FLimbs.begin() + FCount + Limbs);
    std::fill_n(FLimbs.begin(), Limbs, 0);
    FCount += Limbs;
}

void TBigNumber::Add(const TBigNumber& Other)
{
    for (; FCount < Other.FCount; FCount++)
        FLimbs.at(static_cast<std::size_t>(FCount)) = 0;
    std::uint64_t Sum = 0;
    for (int I = 0; I < FCount; I++) {
        const auto At = static_cast<std::size_t>(I);
        Sum += std::uint64_t{FLimbs[At]} + (I < Other.FCount ? Other.FLimbs[At] : 0);
        FLimbs[At] = static_cast<std::uint32_t>(Sum);
        Sum >>= 32;
    }
    if (Sum != 0)
        FLimbs.at(static_cast<std::size_t>(FCount++)) = static_cast<std::uint32_t>(Sum);
}

void TBigNumber::Subtract(const TBigNumber& Other)
{
    std::int64_t Borrow = 0;
    for (int I = 0; I < FCount; I++) {
        const auto At = static_cast<std::size_t>(I);
        Borrow += std::int64_t{FLimbs[At]} - (I < Other.FCount ? Other.FLimbs[At] : 0);
        FLimbs[At] = static_cast<std::uint32_t>(Borrow & 0xFFFFFFFF);
        Borrow >>= 32;
    }
    Trim();
}

int TBigNumber::Compare(const TBigNumber& A, const TBigNumber& B)
{
    if (A.FCount != B.FCount)
        return A.FCount < B.FCount ? -1 : 1;
    for (int I = A.FCount - 1; I >= 0; I--) {
        const auto At = static_cast<std::size_t>(I);
        if (A.FLimbs[At] != B.FLimbs[At])
            return A.FLimbs[At] < B.FLimbs[At] ? -1 : 1;
    }
    return 0;
}

void TBigNumber::Trim()
{
    while (FCount > 0 && FLimbs[static_cast<std::size_t>(FCount - 1)] == 0)
        FCount--;
}
