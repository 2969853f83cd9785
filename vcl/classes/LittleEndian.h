// Numbers in form files and streams: little-endian, whatever the machine is. Compilers turn both into single moves.
#pragma once

#include <concepts>
#include <cstddef>
#include <type_traits>

template <std::integral T>
T LoadLittleEndian(const char* Bytes)
{
    std::make_unsigned_t<T> Value = 0;
    for (std::size_t I = 0; I < sizeof(T); I++)
        Value = static_cast<std::make_unsigned_t<T>>(
            Value | std::make_unsigned_t<T>{static_cast<unsigned char>(Bytes[I])} << (8 * I));
    return static_cast<T>(Value);
}

template <std::integral T>
void StoreLittleEndian(char* Bytes, T Value)
{
    for (std::size_t I = 0; I < sizeof(T); I++)
        Bytes[I] = static_cast<char>(static_cast<std::make_unsigned_t<T>>(Value) >> (8 * I));
}
