// A set of enumeration values: one bit each, value i in bit i.
#pragma once

#include <cstdint>
#include <initializer_list>

template <class E>
class Set {
public:
    using TElement = E;

    constexpr Set() = default;
    constexpr Set(std::initializer_list<E> Elements)
    {
        for (E Element : Elements)
            FBits |= Bit(Element);
    }

    static constexpr Set FromBits(uint32_t Bits)
    {
        Set Result;
        Result.FBits = Bits;
        return Result;
    }
    constexpr uint32_t Bits() const { return FBits; }

    constexpr bool Contains(E Element) const { return (FBits & Bit(Element)) != 0; }
    constexpr bool Empty() const { return FBits == 0; }

    // Adds or removes one element in place, as in `State << csLoading`.
    constexpr Set& operator<<(E Element)
    {
        FBits |= Bit(Element);
        return *this;
    }
    constexpr Set& operator>>(E Element)
    {
        FBits &= ~Bit(Element);
        return *this;
    }

    friend constexpr Set operator+(Set A, Set B) { return FromBits(A.FBits | B.FBits); }
    friend constexpr Set operator-(Set A, Set B) { return FromBits(A.FBits & ~B.FBits); }
    friend constexpr Set operator*(Set A, Set B) { return FromBits(A.FBits & B.FBits); }
    friend constexpr bool operator==(Set A, Set B) = default;

private:
    static constexpr uint32_t Bit(E Element) { return uint32_t{1} << static_cast<unsigned>(Element); }

    uint32_t FBits = 0;
};
