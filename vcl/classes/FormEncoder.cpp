#include "vcl/classes/FormEncoder.h"

#include <bit>
#include <limits>

namespace {

bool HasLoneSurrogate(TWideView Text)
{
    for (std::size_t I = 0; I < Text.size(); I++) {
        if ((Text[I] & 0xF800) != 0xD800)
            continue;
        const bool Pair = (Text[I] & 0x0400) == 0 && I + 1 < Text.size() && (Text[I + 1] & 0xFC00) == 0xDC00;
        if (!Pair)
            return true;
        I++;
    }
    return false;
}

} // namespace

void TFormEncoder::ObjectStart(const TFormPrefix& Prefix, std::string_view ClassName, std::string_view AName)
{
    // Without a prefix a class name this long would be taken for one.
    if (Prefix.Flags != 0 || ClassName.size() >= FilerPrefix)
        FOutput.push_back(static_cast<char>(FilerPrefix | Prefix.Flags));
    if ((Prefix.Flags & FilerFlagChildPos) != 0)
        Integer(Prefix.ChildPos);
    Name(ClassName);
    Name(AName);
}

void TFormEncoder::Integer(std::int64_t Value)
{
    if (static_cast<std::int8_t>(Value) == Value)
        Append(vaInt8, static_cast<std::int8_t>(Value));
    else if (static_cast<std::int16_t>(Value) == Value)
        Append(vaInt16, static_cast<std::int16_t>(Value));
    else if (static_cast<std::int32_t>(Value) == Value)
        Append(vaInt32, static_cast<std::int32_t>(Value));
    else
        Append(vaInt64, Value);
}

void TFormEncoder::Extended(const TExtended& Value)
{
    char Bytes[1 + TExtended::Size];
    Bytes[0] = vaExtended;
    Value.Store(Bytes + 1);
    FOutput.append(Bytes, sizeof Bytes);
}

void TFormEncoder::Single(float Value)
{
    Append(vaSingle, std::bit_cast<std::uint32_t>(Value));
}

void TFormEncoder::Double(double Value)
{
    Append(vaDouble, std::bit_cast<std::uint64_t>(Value));
}

void TFormEncoder::Date(double Value)
{
    Append(vaDate, std::bit_cast<std::uint64_t>(Value));
}

void TFormEncoder::Currency(std::int64_t TenThousandths)
{
    Append(vaCurrency, TenThousandths);
}

void TFormEncoder::Bytes(std::string_view Value)
{
    if (Value.size() > 255) {
        AppendLong(vaLString, Value);
        return;
    }
    Type(vaString);
    Name(Value);
}

void TFormEncoder::Wide(TWideView Value)
{
    const std::string Utf8 = FromWide(Value);
    if (Utf8.size() < Value.size() * 2 && !HasLoneSurrogate(Value)) {
        AppendLong(vaUTF8String, Utf8);
        return;
    }
    if (Value.size() > std::numeric_limits<std::uint32_t>::max())
        throw EWriteError("A string is too long");
    Append(vaWString, static_cast<std::uint32_t>(Value.size()));
    for (const TWideChar Unit : Value) {
        FOutput.push_back(static_cast<char>(Unit));
        FOutput.push_back(static_cast<char>(Unit >> 8));
    }
}

std::size_t TFormEncoder::BinaryStart()
{
    Append(vaBinary, std::uint32_t{0});
    return FOutput.size();
}

void TFormEncoder::BinaryEnd(std::size_t Start)
{
    const std::size_t Size = FOutput.size() - Start;
    if (Size > std::numeric_limits<std::uint32_t>::max())
        throw EWriteError("Binary data is too long");
    StoreLittleEndian(FOutput.data() + Start - 4, static_cast<std::uint32_t>(Size));
}

void TFormEncoder::AppendLong(TValueType AType, std::string_view Value)
{
    if (Value.size() > std::numeric_limits<std::uint32_t>::max())
        throw EWriteError("A string is too long");
    Append(AType, static_cast<std::uint32_t>(Value.size()));
    FOutput.append(Value);
}
