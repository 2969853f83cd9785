#include "vcl/classes/FormPrinter.h"

#include "vcl/classes/FormFloat.h"
#include "vcl/classes/FormLexer.h"
#include "vcl/classes/FormStringPrinter.h"

#include <charconv>
#include <cmath>

namespace {

constexpr std::size_t IndentStep = 2;
constexpr std::size_t BytesPerLine = 32;

constexpr char HexDigits[] = "0123456789ABCDEF";

bool IsAscii(std::string_view Text)
{
    unsigned char All = 0;
    for (const char C : Text)
        All |= static_cast<unsigned char>(C);
    return All < 0x80;
}

bool IsKeyword(std::string_view Name)
{
    return IsFormWord(Name, "end") || IsFormWord(Name, "object") || IsFormWord(Name, "inline") ||
           IsFormWord(Name, "inherited");
}

bool IsConstant(std::string_view Name)
{
    return IsFormWord(Name, "true") || IsFormWord(Name, "false") || IsFormWord(Name, "nil") || IsFormWord(Name, "null");
}

bool IsNumber(std::string_view Name)
{
    std::int64_t Number = -1;
    std::from_chars(Name.data(), Name.data() + Name.size(), Number);
    return Number >= 0 && std::to_string(Number) == Name;
}

} // namespace

// One step of nesting, in depth and in indentation.
class TFormPrinter::TLevel {
public:
    // Start is the place of the object or value.
    TLevel(TFormPrinter& APrinter, std::size_t Start) : FPrinter(APrinter)
    {
        if (FPrinter.FDepth == MaxFormDepth)
            FPrinter.FInput.FailAt("The form is nested too deeply", Start);
        FPrinter.FDepth++;
        FPrinter.FIndent += IndentStep;
    }
    ~TLevel()
    {
        FPrinter.FDepth--;
        FPrinter.FIndent -= IndentStep;
    }
    TLevel(const TLevel&) = delete;
    TLevel& operator=(const TLevel&) = delete;

private:
    TFormPrinter& FPrinter;
};

TFormPrinter::TFormPrinter(TFormCursor& Input, std::string& Output, const TFormTextOptions& Options)
    : FInput(Input),
      FOutput(Output),
      FLineEnd(Options.LineEnd)
{}

void TFormPrinter::Run()
{
    const std::size_t Start = FOutput.size();
    FInput.ReadSignature();
    Object();
    FOutput.append(FLineEnd);
    if (FHighNames && !FHighBytes)
        FOutput.insert(Start, "\xEF\xBB\xBF");
}

void TFormPrinter::Object()
{
    const std::size_t Start = FInput.Position();
    const TFormPrefix Prefix = FInput.ReadPrefix();
    const std::string_view ClassName = ReadIdentifier();
    const bool Named = FInput.PeekByte() != 0;
    const std::string_view Name = Named ? ReadIdentifier() : FInput.ReadName();
    if ((Prefix.Flags & FilerFlagInherited) != 0)
        FOutput.append("inherited ");
    else if ((Prefix.Flags & FilerFlagInline) != 0)
        FOutput.append("inline ");
    else
        FOutput.append("object ");
    if (Named)
        FOutput.append(Name).append(": ");
    FOutput.append(ClassName);
    if ((Prefix.Flags & FilerFlagChildPos) != 0)
        Index(Prefix.ChildPos);
    {
        const TLevel Level(*this, Start);
        Properties();
        for (; FInput.PeekByte() != 0;) {
            NewLine();
            Object();
        }
        FInput.ReadByte();
    }
    NewLine();
    FOutput.append("end");
}

// Up to the empty name that ends the list, which is read.
void TFormPrinter::Properties()
{
    for (; FInput.PeekByte() != 0; Value()) {
        const std::size_t Start = FInput.Position();
        const std::string_view Name = ReadIdentifier();
        if (IsKeyword(Name))
            FInput.FailAt("A property has a name that is a word of the language", Start);
        NewLine();
        FOutput.append(Name).append(" = ");
    }
    FInput.ReadByte();
}

void TFormPrinter::Value()
{
    const std::size_t Start = FInput.Position();
    const TValueType Type = FInput.ReadType();
    switch (Type) {
    case vaNull: FOutput.append("Null"); return;
    case vaList: List(); return;
    case vaInt8:
    case vaInt16:
    case vaInt32:
    case vaInt64: Integer(FInput.ReadIntegerOf(Type)); return;
    case vaExtended:
    case vaSingle:
    case vaCurrency:
    case vaDate:
    case vaDouble: Float(Type, Start); return;
    case vaString: Bytes(FInput.ReadName()); return;
    case vaLString: Bytes(FInput.ReadLongBytes()); return;
    case vaWString:
    case vaUTF8String: Units(Type, Start); return;
    case vaIdent: {
        const std::string_view Name = ReadIdentifier();
        if (IsConstant(Name))
            FInput.FailAt("An identifier has a name that is a word of the language", Start);
        FOutput.append(Name);
        return;
    }
    case vaFalse: FOutput.append("False"); return;
    case vaTrue: FOutput.append("True"); return;
    case vaNil: FOutput.append("nil"); return;
    case vaBinary: Binary(); return;
    case vaSet: Set(); return;
    case vaCollection: Collection(); return;
    }
}

void TFormPrinter::Float(TValueType Type, std::size_t Start)
{
    if (Type == vaCurrency) {
        Integer(FInput.ReadInteger<std::int64_t>());
        FOutput.push_back('c');
    } else if (Type == vaExtended) {
        const TExtended Value = FInput.ReadExtended();
        CheckFinite(Value.IsFinite(), Start);
        SpellExtended(FOutput, Value);
    } else if (Type == vaSingle) {
        const float Value = FInput.ReadSingle();
        CheckFinite(std::isfinite(Value), Start);
        SpellSingle(FOutput, Value);
        FOutput.push_back('s');
    } else {
        const double Value = FInput.ReadDouble();
        CheckFinite(std::isfinite(Value), Start);
        if (Type == vaDouble) {
            SpellDouble(FOutput, Value);
            return;
        }
        SpellDate(FOutput, Value);
        FOutput.push_back('d');
    }
}

void TFormPrinter::CheckFinite(bool Finite, std::size_t Start) const
{
    if (!Finite)
        FInput.FailAt("The number is infinite or not a number", Start);
}

void TFormPrinter::Integer(std::int64_t Value)
{
    char Digits[24];
    FOutput.append(Digits, std::to_chars(Digits, Digits + sizeof Digits, Value).ptr);
}

void TFormPrinter::Index(std::int32_t Value)
{
    FOutput.append(" [");
    Integer(Value);
    FOutput.push_back(']');
}

void TFormPrinter::Bytes(std::string_view Text)
{
    FHighBytes = FHighBytes || !IsAscii(Text);
    PrintFormBytes(FOutput, Text, {FLineEnd, FIndent + IndentStep});
}

void TFormPrinter::Units(TValueType Type, std::size_t Start)
{
    if (Type == vaUTF8String) {
        const std::string_view Utf8 = FInput.ReadLongBytes();
        if (!IsValidUtf8(Utf8))
            FInput.FailAt("The string is not valid UTF-8", Start);
        FUnits.resize(Utf8.size());
        FUnits.resize(Utf8ToWide(Utf8, FUnits.data()));
    } else {
        const std::string_view Wide = FInput.ReadWideBytes();
        FUnits.resize(Wide.size() / 2);
        for (std::size_t I = 0; I < FUnits.size(); I++)
            FUnits[I] = static_cast<TWideChar>(LoadLittleEndian<std::uint16_t>(Wide.data() + 2 * I));
    }
    PrintFormUnits(FOutput, FUnits, {FLineEnd, FIndent + IndentStep});
}

void TFormPrinter::Set()
{
    FOutput.push_back('[');
    for (bool First = true;; First = false) {
        const std::size_t Start = FInput.Position();
        const std::string_view Element = FInput.ReadName();
        if (Element.empty())
            break;
        if (!IsFormIdentifier(Element) && !IsNumber(Element))
            FInput.FailAt("A set element has a name that text cannot spell", Start);
        FHighNames = FHighNames || !IsAscii(Element);
        FHighBytes = FHighBytes || !IsValidUtf8(Element);
        FOutput.append(First ? "" : ", ").append(Element);
    }
    FOutput.push_back(']');
}

void TFormPrinter::List()
{
    FOutput.push_back('(');
    {
        const TLevel Level(*this, FInput.Position() - 1);
        while (FInput.PeekType() != vaNull) {
            NewLine();
            Value();
        }
        FInput.ReadByte();
    }
    FOutput.push_back(')');
}

void TFormPrinter::Collection()
{
    FOutput.push_back('<');
    {
        const TLevel Level(*this, FInput.Position() - 1);
        while (FInput.PeekType() != vaNull) {
            NewLine();
            FOutput.append("item");
            if (TFormCursor::IsInteger(FInput.PeekType()))
                Index(FInput.ReadInt32Value());
            if (FInput.PeekType() != vaList)
                FInput.Fail("An item of a collection expected");
            FInput.ReadByte();
            FIndent += IndentStep;
            Properties();
            FIndent -= IndentStep;
            NewLine();
            FOutput.append("end");
        }
        FInput.ReadByte();
    }
    FOutput.push_back('>');
}

void TFormPrinter::Binary()
{
    const std::string_view Data = FInput.ReadLongBytes();
    const bool Below = Data.size() >= BytesPerLine;
    FOutput.push_back('{');
    FIndent += IndentStep;
    for (std::size_t Start = 0; Start < Data.size(); Start += BytesPerLine) {
        if (Below)
            NewLine();
        char Line[2 * BytesPerLine];
        std::size_t Count = 0;
        for (const char Byte : Data.substr(Start, BytesPerLine)) {
            Line[Count++] = HexDigits[static_cast<unsigned char>(Byte) >> 4];
            Line[Count++] = HexDigits[static_cast<unsigned char>(Byte) & 0x0F];
        }
        FOutput.append(Line, Count);
    }
    FIndent -= IndentStep;
    FOutput.push_back('}');
}

std::string_view TFormPrinter::ReadIdentifier()
{
    const std::size_t Start = FInput.Position();
    const std::string_view Name = FInput.ReadName();
    if (!IsFormIdentifier(Name))
        FInput.FailAt(Name.empty() ? "A name is missing" : "The name cannot be spelled in text", Start);
    if (!IsAscii(Name)) {
        FHighNames = true;
        FHighBytes = FHighBytes || !IsValidUtf8(Name);
    }
    return Name;
}

void TFormPrinter::NewLine()
{
    FOutput.append(FLineEnd).append(FIndent, ' ');
}
