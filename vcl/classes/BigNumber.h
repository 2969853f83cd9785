// A natural number large enough to hold every 80-bit floating point number times a power of ten. Used for the exact
// conversion between binary and decimal; not fast, no heap.
#pragma once

#include <array>
#include <cstdint>

class TBigNumber {
public:
    explicit TBigNumber(std::uint64_t Value = 0);

    bool IsZero() const { return FCount == 0; }
    int BitLength() const;

    void Multiply(std::uint32_t Factor, std::uint32_t Carry = 0);
    void MultiplyPowerOf10(int Exponent);
    void ShiftLeft(int Bits);
    void Add(const TBigNumber& Other);
    // Other must not be larger.
    void Subtract(const TBigNumber& Other);

    // Negative, zero or positive, as A - B would be.
    static int Compare(const TBigNumber& A, const TBigNumber& B);

private:
    void Trim();

    // 16,445 bits for the smallest number's scale, its 64 digits, 80 decimal digits and room for the carries.
    static constexpr int Capacity = 540;

    std::array<std::uint32_t, Capacity> FLimbs; // only the first FCount are set, the last of them is not zero
    int FCount = 0;
};
