#include "vcl/classes/FormCursor.h"

#include <bit>
#include <limits>

void TFormCursor::FailAt(std::string_view Detail, std::size_t APosition) const
{
    throw EFormDataError(std::string(Detail), FBase + APosition);
}

void TFormCursor::FailTruncated() const
{
    FailAt("The data ends too early", FData.size());
}

std::string_view TFormCursor::ReadLongBytes()
{
    const std::size_t Start = FPosition;
    const auto Count = ReadInteger<std::uint32_t>();
    if (Count > Remaining())
        FailAt("The length goes beyond the end of the data", Start);
    return ReadBytes(Count);
}

std::string_view TFormCursor::ReadWideBytes()
{
    const std::size_t Start = FPosition;
    const auto Count = ReadInteger<std::uint32_t>();
    if (Count > Remaining() / 2)
        FailAt("The length goes beyond the end of the data", Start);
    return ReadBytes(std::size_t{Count} * 2);
}

TValueType TFormCursor::PeekType() const
{
    const std::uint8_t Type = PeekByte();
    if (Type > vaDouble)
        Fail("Unknown type of value");
    return static_cast<TValueType>(Type);
}

TValueType TFormCursor::ReadType()
{
    const TValueType Type = PeekType();
    FPosition++;
    return Type;
}

std::int64_t TFormCursor::ReadIntegerOf(TValueType Type)
{
    switch (Type) {
    case vaInt8: return ReadInteger<std::int8_t>();
    case vaInt16: return ReadInteger<std::int16_t>();
    case vaInt32: return ReadInteger<std::int32_t>();
    case vaInt64: return ReadInteger<std::int64_t>();
    default: FailAt("Integer expected", FPosition == 0 ? 0 : FPosition - 1);
    }
}

std::int32_t TFormCursor::ReadInt32Value()
{
    const std::size_t Start = FPosition;
    const TValueType Type = ReadType();
    if (!IsInteger(Type) || Type == vaInt64)
        FailAt("Integer expected", Start);
    return static_cast<std::int32_t>(ReadIntegerOf(Type));
}

float TFormCursor::ReadSingle()
{
    static_assert(sizeof(float) == 4 && std::numeric_limits<float>::is_iec559);
    return std::bit_cast<float>(ReadInteger<std::uint32_t>());
}

double TFormCursor::ReadDouble()
{
    static_assert(sizeof(double) == 8 && std::numeric_limits<double>::is_iec559);
    return std::bit_cast<double>(ReadInteger<std::uint64_t>());
}

void TFormCursor::ReadSignature()
{
    if (Remaining() < FormSignatureSize)
        FailTruncated();
    if (FData.substr(FPosition, FormSignatureSize) != FormSignature)
        Fail("The signature TPF0 is missing");
    FPosition += FormSignatureSize;
}

TFormPrefix TFormCursor::ReadPrefix()
{
    TFormPrefix Prefix;
    if ((PeekByte() & 0xF0) != FilerPrefix)
        return Prefix;
    Prefix.Flags = PeekByte() & 0x0F;
    if ((Prefix.Flags & ~(FilerFlagInherited | FilerFlagChildPos | FilerFlagInline)) != 0)
        Fail("Unknown flag before an object");
    FPosition++;
    if ((Prefix.Flags & FilerFlagChildPos) != 0)
        Prefix.ChildPos = ReadInt32Value();
    return Prefix;
}
