// TFormCursor, a place in a binary form in memory, and the only way to read one: nothing is read past the end, and no
// length is believed before the bytes are known to be there. What it returns points into the data.
#pragma once

#include "vcl/classes/Extended.h"
#include "vcl/classes/FormError.h"
#include "vcl/classes/LittleEndian.h"
#include "vcl/classes/ValueType.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

// What stands before an object's class name.
struct TFormPrefix {
    std::uint8_t Flags = 0; // FilerFlagInherited and so on
    std::int32_t ChildPos = 0;
};

class TFormCursor {
public:
    // Base is the offset of Data in what the user knows as the file; it is added to the offsets in errors.
    explicit TFormCursor(std::string_view AData, std::size_t ABase = 0) : FData(AData), FBase(ABase) {}

    std::size_t Position() const { return FPosition; } // in Data
    std::size_t Offset() const { return FBase + FPosition; }
    std::size_t Remaining() const { return FData.size() - FPosition; }

    // Throws EFormDataError for the byte at Position.
    [[noreturn]] void Fail(std::string_view Detail) const { FailAt(Detail, FPosition); }
    [[noreturn]] void FailAt(std::string_view Detail, std::size_t APosition) const;

    std::uint8_t PeekByte() const
    {
        if (FPosition == FData.size())
            FailTruncated();
        return static_cast<std::uint8_t>(FData[FPosition]);
    }

    std::uint8_t ReadByte()
    {
        const std::uint8_t Byte = PeekByte();
        FPosition++;
        return Byte;
    }

    template <std::integral T>
    T ReadInteger()
    {
        return LoadLittleEndian<T>(ReadBytes(sizeof(T)).data());
    }

    std::string_view ReadBytes(std::size_t Count)
    {
        if (Count > Remaining())
            FailTruncated();
        const std::string_view Bytes = FData.substr(FPosition, Count);
        FPosition += Count;
        return Bytes;
    }

    // One length byte, then the bytes: names, identifiers, vaString.
    std::string_view ReadName() { return ReadBytes(ReadByte()); }

    // Four length bytes, then the bytes: vaLString, vaUTF8String, vaBinary.
    std::string_view ReadLongBytes();
    // The units of a vaWString, two bytes each.
    std::string_view ReadWideBytes();

    // A known type, or an error.
    TValueType ReadType();
    TValueType PeekType() const;

    // The integer after one of the types vaInt8, vaInt16, vaInt32 and vaInt64.
    std::int64_t ReadIntegerOf(TValueType Type);
    // An integer of at most 32 bits with its type before it.
    std::int32_t ReadInt32Value();
    static bool IsInteger(TValueType Type)
    {
        return Type == vaInt8 || Type == vaInt16 || Type == vaInt32 || Type == vaInt64;
    }

    TExtended ReadExtended() { return TExtended::Load(ReadBytes(TExtended::Size).data()); }
    float ReadSingle();
    double ReadDouble();

    void ReadSignature();
    TFormPrefix ReadPrefix();

private:
    [[noreturn]] void FailTruncated() const;

    std::string_view FData;
    std::size_t FBase;
    std::size_t FPosition = 0;
};
