// TReader's single values, and how they are skipped.
#include "vcl/classes/Collection.h"
#include "vcl/classes/Reader.h"
#include "vcl/system/Locale.h"
#include "vcl/system/Scope.h"
#include "vcl/system/Utf.h"

#include <cstring>
#include <limits>

namespace {

AnsiString TextFromUnits(std::string_view Bytes)
{
    TWideString Units(Bytes.size() / 2, 0);
    for (size_t I = 0; I < Units.size(); ++I)
        Units[I] = static_cast<TWideChar>(LoadLittleEndian<uint16_t>(Bytes.data() + 2 * I));
    return FromWide(Units);
}

// As a form's text has it; of a long one the beginning.
AnsiString Quoted(const AnsiString& Text)
{
    constexpr size_t Enough = 40;
    if (Text.size() <= Enough)
        return "'" + Text + "'";
    size_t End = Enough;
    while (End > 0 && (static_cast<unsigned char>(Text[End]) & 0xC0) == 0x80) // inside of a character
        --End;
    return "'" + Text.substr(0, End) + "...'";
}

} // namespace

AnsiString TReader::ValueAt(size_t Position) const
{
    TFormCursor Cursor(FData, FBase);
    Cursor.ReadBytes(Position);
    try {
        switch (const TValueType Type = Cursor.ReadType()) {
        case vaNull: return "Null";
        case vaFalse: return "False";
        case vaTrue: return "True";
        case vaNil: return "nil";
        case vaInt8:
        case vaInt16:
        case vaInt32:
        case vaInt64: return std::to_string(Cursor.ReadIntegerOf(Type));
        case vaIdent: return AnsiString(Cursor.ReadName());
        case vaString: return Quoted(TextFromBytes(Cursor.ReadName()));
        case vaLString: return Quoted(TextFromBytes(Cursor.ReadLongBytes()));
        case vaUTF8String: return Quoted(AnsiString(Cursor.ReadLongBytes()));
        case vaWString: return Quoted(TextFromUnits(Cursor.ReadWideBytes()));
        case vaBinary: return "Binary data";
        case vaList: return "A list";
        case vaSet: return "A set";
        case vaCollection: return "A collection";
        default: return "A floating-point number";
        }
    } catch (const EFormDataError&) {
        return "What the form has"; // broken as well
    }
}

void TReader::FailValueAt(std::string_view Expected, size_t Position) const
{
    FCursor.FailAt(ValueAt(Position) + " is no " + AnsiString(Expected), Position);
}

void TReader::FailValue(std::string_view Expected) const
{
    FailValueAt(Expected, FCursor.Position() - 1);
}

void TReader::CheckValue(TValueType Value)
{
    if (ReadValue() == Value)
        return;
    switch (Value) {
    case vaList: FailValue("list");
    case vaSet: FailValue("set");
    case vaCollection: FailValue("collection");
    case vaBinary: FailValue("binary data");
    default: FailValue("value of the expected type");
    }
}

bool TReader::ReadBoolean()
{
    TValueType Type = ReadValue();
    if (Type != vaTrue && Type != vaFalse)
        FailValue("Boolean");
    return Type == vaTrue;
}

char TReader::ReadChar()
{
    size_t Start = FCursor.Position();
    TWideString Text = ToWide(ReadString());
    // A character beyond Latin-1 does not fit.
    if (Text.size() != 1 || Text[0] > 0xFF)
        FailValueAt("single character of one byte", Start);
    return static_cast<char>(Text[0]);
}

int32_t TReader::ReadInteger()
{
    size_t Start = FCursor.Position();
    int64_t Value = ReadInt64();
    if (Value < std::numeric_limits<int32_t>::min() || Value > std::numeric_limits<uint32_t>::max())
        FailValueAt("number of 32 bits", Start);
    return static_cast<int32_t>(Value);
}

int64_t TReader::ReadInt64()
{
    TValueType Type = ReadValue();
    if (!TFormCursor::IsInteger(Type))
        FailValue("integer");
    return FCursor.ReadIntegerOf(Type);
}

// AnyKind: currencies and dates are taken as well.
double TReader::ReadNumber(bool AnyKind)
{
    TValueType Type = ReadValue();
    switch (Type) {
    case vaInt8:
    case vaInt16:
    case vaInt32:
    case vaInt64: return static_cast<double>(FCursor.ReadIntegerOf(Type));
    case vaExtended: return FCursor.ReadExtended().ToDouble();
    case vaSingle: return FCursor.ReadSingle();
    case vaDouble: return FCursor.ReadDouble();
    case vaCurrency:
        if (AnyKind)
            return static_cast<double>(FCursor.ReadInteger<int64_t>()) / 10000;
        FailValue("number");
    case vaDate:
        if (AnyKind)
            return FCursor.ReadDouble();
        FailValue("number");
    default: FailValue("number");
    }
}

double TReader::ReadFloat()
{
    return ReadNumber(true);
}

float TReader::ReadSingle()
{
    return static_cast<float>(ReadNumber(false));
}

double TReader::ReadCurrency()
{
    return ReadNumber(true);
}

double TReader::ReadDate()
{
    return ReadNumber(true);
}

AnsiString TReader::ReadIdent()
{
    switch (ReadValue()) {
    case vaIdent: return AnsiString(FCursor.ReadName());
    case vaFalse: return "False";
    case vaTrue: return "True";
    case vaNil: return "nil";
    case vaNull: return "Null";
    default: FailValue("identifier");
    }
}

AnsiString TReader::ReadStr()
{
    return AnsiString(FCursor.ReadName());
}

AnsiString TReader::ReadString()
{
    switch (ReadValue()) {
    case vaString: return TextFromBytes(FCursor.ReadName());
    case vaLString: return TextFromBytes(FCursor.ReadLongBytes());
    case vaUTF8String: {
        std::string_view Bytes = FCursor.ReadLongBytes();
        // Bytes that are not valid UTF-8 become U+FFFD, so that strings are always UTF-8.
        return IsValidUtf8(Bytes) ? AnsiString(Bytes) : FromWide(ToWide(Bytes));
    }
    case vaWString: return TextFromUnits(FCursor.ReadWideBytes());
    default: FailValue("text");
    }
}

AnsiString TReader::TextFromBytes(std::string_view Bytes) const
{
    return IsValidUtf8(Bytes) ? AnsiString(Bytes) : DecodeCodePage(Bytes, CodePage);
}

void TReader::ReadSignature()
{
    if (FCursor.Remaining() < FormSignatureSize || FData.substr(FCursor.Position(), FormSignatureSize) != FormSignature)
        FCursor.Fail("Invalid stream format");
    FCursor.ReadSignature();
}

void TReader::Read(void* Buffer, int Count)
{
    if (Count > 0)
        std::memcpy(Buffer, FCursor.ReadBytes(static_cast<size_t>(Count)).data(), static_cast<size_t>(Count));
}

void TReader::ReadCollection(TCollection* Collection)
{
    Collection->BeginUpdate();
    const TScopeExit Update([&] { Collection->EndUpdate(); });
    Descend(FCursor.Position());
    Collection->Clear();
    while (!EndOfList()) {
        // The item's index; the order of the items says the same.
        if (TFormCursor::IsInteger(NextValue()))
            ReadInt64();
        ReadListBegin();
        ReadProperties(Collection->Add());
    }
    ReadListEnd();
    --FDepth;
}

// ---- Skipping

void TReader::MoveTo(size_t Position)
{
    FCursor = TFormCursor(FData, FBase);
    FCursor.ReadBytes(Position);
}

void TReader::SkipValue()
{
    TValueType Type = ReadValue();
    switch (Type) {
    case vaNull:
    case vaFalse:
    case vaTrue:
    case vaNil: return;
    case vaList: SkipList(); return;
    case vaInt8:
    case vaInt16:
    case vaInt32:
    case vaInt64: FCursor.ReadIntegerOf(Type); return;
    case vaExtended: FCursor.ReadBytes(TExtended::Size); return;
    case vaSingle: FCursor.ReadBytes(4); return;
    case vaCurrency:
    case vaDate:
    case vaDouble: FCursor.ReadBytes(8); return;
    case vaString:
    case vaIdent: FCursor.ReadName(); return;
    case vaBinary:
    case vaLString:
    case vaUTF8String: FCursor.ReadLongBytes(); return;
    case vaWString: FCursor.ReadWideBytes(); return;
    case vaSet:
        while (!FCursor.ReadName().empty()) {
        }
        return;
    case vaCollection:
        Descend(FCursor.Position());
        while (!EndOfList()) {
            if (TFormCursor::IsInteger(NextValue()))
                ReadInt64();
            ReadListBegin();
            SkipProperties();
        }
        ReadListEnd();
        --FDepth;
        return;
    }
}

void TReader::SkipList()
{
    Descend(FCursor.Position());
    while (!EndOfList())
        SkipValue();
    ReadListEnd();
    --FDepth;
}

void TReader::SkipProperties()
{
    while (FCursor.PeekByte() != 0) {
        FCursor.ReadName();
        SkipValue();
    }
    FCursor.ReadByte();
}

// What follows an object's class and name.
void TReader::SkipObject()
{
    SkipProperties();
    Descend(FCursor.Position());
    while (!EndOfList()) {
        ReadPrefix();
        FCursor.ReadName();
        FCursor.ReadName();
        SkipObject();
    }
    ReadListEnd();
    --FDepth;
}
