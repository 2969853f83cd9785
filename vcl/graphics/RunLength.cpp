#include "vcl/graphics/RunLength.h"

namespace {

class TDecoder {
public:
    TDecoder(std::span<const uint8_t> Code, const TRunLengthTarget& Target) : FCode(Code), FTarget(Target) {}

    // A file may end without the mark of its end.
    bool Run()
    {
        while (!FEnded && FAt < FCode.size())
            if (FCode.size() - FAt < 2 || !Step())
                return false;
        return true;
    }
    size_t Used() const { return FAt; }

private:
    enum : uint8_t { EndOfLine, EndOfBitmap, Delta };

    bool Step()
    {
        uint8_t Count = FCode[FAt];
        uint8_t Value = FCode[FAt + 1];
        FAt += 2;
        if (Count > 0)
            return Repeat(Count, Value);
        switch (Value) {
        case EndOfLine:
            FX = 0;
            ++FY;
            return true;
        case EndOfBitmap: FEnded = true; return true;
        case Delta: return Move();
        default: return Literal(Value);
        }
    }

    bool Repeat(int Count, uint8_t Value)
    {
        if (!Fits(Count))
            return false;
        for (int I = 0; I < Count; ++I)
            Put(FTarget.BitCount == 8 ? Value : I % 2 ? Value & 15 : Value >> 4);
        return true;
    }

    // Pixels one by one, filled up to whole words.
    bool Literal(int Count)
    {
        size_t Bytes = FTarget.BitCount == 8 ? Count : (Count + 1) / 2;
        size_t Padded = (Bytes + 1) & ~size_t{1};
        // The last filling byte may be missing at the end of the file.
        if (!Fits(Count) || FCode.size() - FAt < Bytes)
            return false;
        for (int I = 0; I < Count; ++I) {
            uint8_t Byte = FCode[FAt + (FTarget.BitCount == 8 ? I : I / 2)];
            Put(FTarget.BitCount == 8 ? Byte : I % 2 ? Byte & 15 : Byte >> 4);
        }
        FAt += FCode.size() - FAt < Padded ? Bytes : Padded;
        return true;
    }

    bool Move()
    {
        if (FCode.size() - FAt < 2)
            return false;
        FX += FCode[FAt];
        FY += FCode[FAt + 1];
        FAt += 2;
        return FX <= FTarget.Width && FY < FTarget.Height;
    }

    bool Fits(int Count) const { return FY < FTarget.Height && Count <= FTarget.Width - FX; }

    void Put(int Pixel)
    {
        uint8_t* Row = FTarget.Bits + FTarget.Stride * static_cast<size_t>(FY);
        if (FTarget.BitCount == 8)
            Row[FX] = static_cast<uint8_t>(Pixel);
        else
            Row[FX / 2] = static_cast<uint8_t>(Row[FX / 2] | (FX % 2 ? Pixel : Pixel << 4));
        ++FX;
    }

    std::span<const uint8_t> FCode;
    TRunLengthTarget FTarget;
    size_t FAt = 0;
    int FX = 0;
    int FY = 0;
    bool FEnded = false;
};

} // namespace

bool DecodeRunLength(std::span<const uint8_t> Code, const TRunLengthTarget& Target, size_t& Used)
{
    TDecoder Decoder(Code, Target);
    bool Good = Decoder.Run();
    Used = Decoder.Used();
    return Good;
}
