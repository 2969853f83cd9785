#include "vcl/classes/FormCompiler.h"

#include "vcl/classes/FormFloat.h"
#include "vcl/classes/FormLines.h"

#include <charconv>
#include <limits>
#include <system_error>

// Counts how deep objects and values stand in each other.
class TFormCompiler::TLevel {
public:
    explicit TLevel(TFormCompiler& ACompiler) : FCompiler(ACompiler)
    {
        if (FCompiler.FDepth == MaxFormDepth)
            FCompiler.FLexer.Fail("The form is nested too deeply");
        FCompiler.FDepth++;
    }
    ~TLevel() { FCompiler.FDepth--; }
    TLevel(const TLevel&) = delete;
    TLevel& operator=(const TLevel&) = delete;

private:
    TFormCompiler& FCompiler;
};

TFormCompiler::TFormCompiler(std::string_view Text, std::string& Output, TFormLinesBuilder* Lines)
    : FLexer(Text),
      FEncoder(Output),
      FOutput(Output),
      FLines(Lines),
      FStart(Output.size())
{}

void TFormCompiler::NoteLine()
{
    if (FLines)
        FLines->Add(FOutput.size() - FStart, FLexer.Line());
}

std::size_t TFormCompiler::Run()
{
    FLexer.Next();
    if (!AtObject())
        FLexer.FailExpected("'object', 'inherited' or 'inline'");
    FEncoder.Signature();
    Object();
    FLexer.SkipBlanks();
    return FLexer.Position();
}

// Stops at the word "end", not behind it: text that follows the form need not be readable.
void TFormCompiler::Object()
{
    const TLevel Level(*this);
    NoteLine();
    TFormPrefix Prefix = ObjectKeyword();
    FLexer.Next();
    std::string_view Name;
    std::string_view ClassName = TakeName("A name or class");
    if (FLexer.IsSymbol(':')) {
        FLexer.Next();
        Name = ClassName;
        ClassName = TakeName("A class");
    }
    if (FLexer.IsSymbol('[')) {
        Prefix.Flags |= FilerFlagChildPos;
        Prefix.ChildPos = TakeIndex();
    }
    FEncoder.ObjectStart(Prefix, ClassName, Name);
    Properties();
    while (AtObject()) {
        Object();
        FLexer.Next();
    }
    FEncoder.Terminator();
    if (!FLexer.IsWord("end"))
        FLexer.FailExpected("'end' or another object");
}

bool TFormCompiler::AtObject() const
{
    return FLexer.IsWord("object") || FLexer.IsWord("inherited") || FLexer.IsWord("inline");
}

TFormPrefix TFormCompiler::ObjectKeyword() const
{
    TFormPrefix Prefix;
    if (FLexer.IsWord("inherited"))
        Prefix.Flags = FilerFlagInherited;
    else if (FLexer.IsWord("inline"))
        Prefix.Flags = FilerFlagInline;
    return Prefix;
}

void TFormCompiler::Properties()
{
    while (FLexer.Kind() == TFormToken::Identifier && !FLexer.IsWord("end") && !AtObject())
        Property();
    FEncoder.Terminator();
}

void TFormCompiler::Property()
{
    NoteLine();
    FEncoder.Name(TakeName("A property"));
    TakeSymbol('=');
    Value();
}

void TFormCompiler::Value()
{
    NoteLine();
    switch (FLexer.Kind()) {
    case TFormToken::Identifier: IdentifierValue(); return;
    case TFormToken::Integer: IntegerValue(); return;
    case TFormToken::Float: FloatValue(); return;
    case TFormToken::Text: StringValue(); return;
    case TFormToken::Symbol: break;
    case TFormToken::End: FLexer.FailExpected("A value");
    }
    switch (FLexer.Spelling()[0]) {
    case '[': Set(); return;
    case '(': List(); return;
    case '<': Collection(); return;
    case '{': Binary(); return;
    default: FLexer.FailExpected("A value");
    }
}

void TFormCompiler::IdentifierValue()
{
    if (FLexer.IsWord("true"))
        FEncoder.Type(vaTrue);
    else if (FLexer.IsWord("false"))
        FEncoder.Type(vaFalse);
    else if (FLexer.IsWord("nil"))
        FEncoder.Type(vaNil);
    else if (FLexer.IsWord("null"))
        FEncoder.Type(vaNull);
    else if (FLexer.Spelling().size() > 255)
        FLexer.Fail("The identifier is longer than 255 bytes");
    else
        FEncoder.Ident(FLexer.Spelling());
    FLexer.Next();
}

void TFormCompiler::IntegerValue()
{
    FEncoder.Integer(ParseInteger());
    FLexer.Next();
}

std::int64_t TFormCompiler::ParseInteger() const
{
    const std::string_view Spelling = FLexer.Spelling();
    const char* const End = Spelling.data() + Spelling.size();
    std::int64_t Value = 0;
    std::from_chars_result Result{};
    if (Spelling[0] == '$') { // sixteen digits may also stand for a negative number
        std::uint64_t Bits = 0;
        Result = std::from_chars(Spelling.data() + 1, End, Bits, 16);
        Value = static_cast<std::int64_t>(Bits);
    } else {
        Result = std::from_chars(Spelling.data(), End, Value);
    }
    if (Result.ec != std::errc())
        FLexer.Fail("The number is out of range");
    return Value;
}

void TFormCompiler::FloatValue()
{
    const std::string_view Spelling = FLexer.Spelling();
    bool InRange = true;
    if (FLexer.Suffix() == 's') {
        float Value = 0;
        InRange = ParseSingle(Spelling, Value);
        FEncoder.Single(Value);
    } else if (FLexer.Suffix() == 'c') {
        std::int64_t Value = 0;
        InRange = ParseCurrency(Spelling, Value);
        FEncoder.Currency(Value);
    } else if (FLexer.Suffix() == 'd' || IsSpelledAsDouble(Spelling)) {
        double Value = 0;
        InRange = ParseDouble(Spelling, Value);
        if (FLexer.Suffix() == 'd')
            FEncoder.Date(Value);
        else
            FEncoder.Double(Value);
    } else {
        TExtended Value;
        InRange = TExtended::Parse(Spelling, Value);
        FEncoder.Extended(Value);
    }
    if (!InRange)
        FLexer.Fail("The number is out of range");
    FLexer.Next();
}

void TFormCompiler::StringValue()
{
    const std::string_view First = FLexer.Spelling();
    const int Line = FLexer.Line();
    const bool AsIs = FLexer.IsPlainText() && !(FLexer.HasHighBytes() && FLexer.HasUtf8Signature());
    FLexer.Next();
    if (AsIs && !FLexer.IsSymbol('+')) {
        FEncoder.Bytes(First.substr(1, First.size() - 2));
        return;
    }
    FString.Clear(FLexer.HasUtf8Signature());
    FString.Append(First, Line);
    while (FLexer.IsSymbol('+')) {
        FLexer.Next();
        if (FLexer.Kind() != TFormToken::Text)
            FLexer.FailExpected("A string");
        FString.Append(FLexer.Spelling(), FLexer.Line());
        FLexer.Next();
    }
    if (FString.IsWide())
        FEncoder.Wide(FString.Units());
    else
        FEncoder.Bytes(FString.Bytes());
}

void TFormCompiler::Set()
{
    FEncoder.Type(vaSet);
    FLexer.Next();
    while (!FLexer.IsSymbol(']')) {
        if (FLexer.Kind() == TFormToken::Integer)
            NumberedElement();
        else
            FEncoder.Name(TakeName("A set element"));
        if (FLexer.IsSymbol(']'))
            break;
        TakeSymbol(',');
        if (FLexer.IsSymbol(']'))
            FLexer.FailExpected("A set element");
    }
    FEncoder.Terminator();
    FLexer.Next();
}

// An element without a name is written as its number, in the one spelling that the text form has for it.
void TFormCompiler::NumberedElement()
{
    const std::int64_t Number = ParseInteger();
    if (Number < 0)
        FLexer.Fail("A set element cannot be negative");
    FEncoder.Name(std::to_string(Number));
    FLexer.Next();
}

void TFormCompiler::List()
{
    const TLevel Level(*this);
    FEncoder.Type(vaList);
    FLexer.Next();
    while (!FLexer.IsSymbol(')')) {
        if (FLexer.IsWord("null")) // would end the list
            FLexer.Fail("Null cannot stand in a list");
        if (FLexer.Kind() == TFormToken::End)
            FLexer.FailExpected("A value or ')'");
        Value();
    }
    FEncoder.Terminator();
    FLexer.Next();
}

void TFormCompiler::Collection()
{
    const TLevel Level(*this);
    FEncoder.Type(vaCollection);
    FLexer.Next();
    while (!FLexer.IsSymbol('>')) {
        if (!FLexer.IsWord("item"))
            FLexer.FailExpected("'item' or '>'");
        FLexer.Next();
        if (FLexer.IsSymbol('['))
            FEncoder.Integer(TakeIndex());
        FEncoder.Type(vaList);
        Properties();
        if (!FLexer.IsWord("end"))
            FLexer.FailExpected("'end' or a property");
        FLexer.Next();
    }
    FEncoder.Terminator();
    FLexer.Next();
}

void TFormCompiler::Binary()
{
    const std::size_t Start = FEncoder.BinaryStart();
    FLexer.ReadHex(FOutput);
    FEncoder.BinaryEnd(Start);
}

std::string_view TFormCompiler::TakeName(const char* What)
{
    if (FLexer.Kind() != TFormToken::Identifier)
        FLexer.FailExpected(What);
    const std::string_view Name = FLexer.Spelling();
    if (Name.size() > 255)
        FLexer.Fail("The name is longer than 255 bytes");
    FLexer.Next();
    return Name;
}

// "[n]".
std::int32_t TFormCompiler::TakeIndex()
{
    FLexer.Next();
    if (FLexer.Kind() != TFormToken::Integer)
        FLexer.FailExpected("An index");
    const std::int64_t Index = ParseInteger();
    if (Index != static_cast<std::int32_t>(Index))
        FLexer.Fail("The index is out of range");
    FLexer.Next();
    TakeSymbol(']');
    return static_cast<std::int32_t>(Index);
}

void TFormCompiler::TakeSymbol(char Symbol)
{
    if (!FLexer.IsSymbol(Symbol))
        FLexer.FailExpected(std::string("'") + Symbol + "'");
    FLexer.Next();
}
