// Run-length encoded bitmaps.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// Where the decoded pixels go: rows from the bottom up, BitCount (4 or 8) bits a pixel, all zero before.
struct TRunLengthTarget {
    uint8_t* Bits;
    size_t Stride;
    int Width;
    int Height;
    int BitCount;
};

// False when the code is cut off or leaves the picture. Used gets the bytes that were read.
bool DecodeRunLength(std::span<const uint8_t> Code, const TRunLengthTarget& Target, size_t& Used);
