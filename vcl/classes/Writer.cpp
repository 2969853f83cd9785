#include "vcl/classes/Writer.h"

#include "vcl/classes/MemoryStream.h"
#include "vcl/system/ClassDescription.h"
#include "vcl/system/Ident.h"
#include "vcl/system/Utf.h"

#include <algorithm>
#include <cmath>
#include <exception>

// Puts what a descent into an object changes back.
class TWriter::TScope {
public:
    explicit TScope(TWriter& Writer)
        : FWriter(Writer),
          FRoot(Writer.Root),
          FAncestor(Writer.Ancestor),
          FRootAncestor(Writer.FRootAncestor),
          FAncestorChildren(std::move(Writer.FAncestorChildren)),
          FAncestorPos(Writer.FAncestorPos),
          FChildPos(Writer.FChildPos)
    {
        Writer.FAncestorChildren.clear();
        Writer.FAncestorPos = 0;
        Writer.FChildPos = 0;
    }
    ~TScope()
    {
        FWriter.Root = FRoot;
        FWriter.Ancestor = FAncestor;
        FWriter.FRootAncestor = FRootAncestor;
        FWriter.FAncestorChildren = std::move(FAncestorChildren);
        FWriter.FAncestorPos = FAncestorPos;
        FWriter.FChildPos = FChildPos;
    }
    TScope(const TScope&) = delete;

private:
    TWriter& FWriter;
    TComponent* FRoot;
    TPersistent* FAncestor;
    TComponent* FRootAncestor;
    std::vector<TComponent*> FAncestorChildren;
    size_t FAncestorPos;
    int FChildPos;
};

TWriter::TWriter(TStream* Stream, int) : FStream(Stream), FEncoder(FBuffer), FUncaught(std::uncaught_exceptions())
{}

TWriter::~TWriter()
{
    if (std::uncaught_exceptions() > FUncaught)
        return;
    try {
        FlushBuffer();
    } catch (const Exception&) {
        // Destructors do not throw; FlushBuffer is there for those who want to know.
    }
}

void TWriter::FlushBuffer()
{
    std::string Bytes;
    Bytes.swap(FBuffer);
    FStream->WriteBuffer(Bytes.data(), static_cast<int64_t>(Bytes.size()));
}

int64_t TWriter::GetPosition() const
{
    return FStream->GetPosition() + static_cast<int64_t>(FBuffer.size());
}

void TWriter::WriteDescendent(TComponent* ARoot, TComponent* AAncestor)
{
    size_t Start = FBuffer.size();
    try {
        TScope Scope(*this);
        Root = ARoot;
        Ancestor = AAncestor;
        FRootAncestor = AAncestor;
        FLookupRoot = ARoot;
        WriteSignature();
        WriteComponent(ARoot);
    } catch (...) {
        FBuffer.resize(Start);
        FPropPath.clear();
        FDepth = 0;
        throw;
    }
    FlushBuffer();
}

void TWriter::WriteComponent(TComponent* Component)
{
    struct TWritingState {
        TComponent* Component;
        ~TWritingState() { Component->SetState(csWriting, false); }
    };
    if (Component->FStyle.Contains(csTransient))
        return;
    if (!FLookupRoot)
        FLookupRoot = Root ? Root : Component;
    if (!Root)
        Root = FLookupRoot;
    if (++FDepth > MaxFormDepth)
        throw EWriteError("The objects are nested too deeply");
    Component->SetState(csWriting, true);
    TWritingState State{Component};
    Component->WriteState(*this);
    --FDepth;
}

void TWriter::WriteData(TComponent* Instance)
{
    TPersistent* OldAncestor = Ancestor;
    TComponent* OldRootAncestor = FRootAncestor;
    TFormPrefix Prefix = FindAncestor(Instance);
    std::string_view Name = Instance->GetName();
    if (Name.size() > 255)
        throw EWriteError("The name '" + AnsiString(Name) + "' is too long");
    FEncoder.ObjectStart(Prefix, Instance->ClassName(), Name);
    WriteProperties(Instance);
    FEncoder.Terminator();
    WriteChildren(Instance);
    FEncoder.Terminator();
    Ancestor = OldAncestor;
    FRootAncestor = OldRootAncestor;
}

// Sets Ancestor for Component and says how Component is marked: inherited, inline, moved.
TFormPrefix TWriter::FindAncestor(TComponent* Component)
{
    TFormPrefix Prefix;
    TComponent* Found = nullptr;
    bool IsRoot = Component == FLookupRoot;
    bool IsInline = Component->FState.Contains(csInline) && !IsRoot;
    if (IsRoot)
        Found = As<TComponent>(GetAncestor());
    else if (FRootAncestor && !Component->GetName().empty())
        Found = FRootAncestor->FindComponent(Component->GetName());
    if (Found && !IsRoot && Found->ClassType() != Component->ClassType())
        Found = nullptr;
    if (Found)
        Prefix.Flags |= FilerFlagInherited;
    else if (IsInline)
        Prefix.Flags |= FilerFlagInline;

    if (Found && FAncestorPos < FAncestorChildren.size() && FAncestorChildren[FAncestorPos] == Found)
        ++FAncestorPos;
    else if (FAncestorPos < FAncestorChildren.size())
        Prefix.Flags |= FilerFlagChildPos;
    Prefix.ChildPos = FChildPos++;

    if (!Found && IsInline) {
        if (OnFindAncestor)
            OnFindAncestor(this, Component, Component->GetName(), Found, FRootAncestor);
        // As the reader will create it.
        if (!Found)
            Found = FFrames.emplace_back(Component->ClassType()->Create(nullptr)).get();
    }
    Ancestor = Found;
    return Prefix;
}

void TWriter::WriteChildren(TComponent* Component)
{
    if (IgnoreChildren)
        return;
    TComponent* Inherited = As<TComponent>(GetAncestor());
    TScope Scope(*this);
    if (Component->FState.Contains(csInline) && Component != FLookupRoot) {
        Root = Component;
        FRootAncestor = Inherited;
    }
    if (Inherited)
        Inherited->GetChildren({this, &TWriter::CollectAncestorChild}, FRootAncestor);
    Component->GetChildren({this, &TWriter::WriteComponent}, Root);
}

// ---- Values

void TWriter::WriteBoolean(bool Value)
{
    WriteValue(Value ? vaTrue : vaFalse);
}

void TWriter::WriteChar(char Value)
{
    char16_t Unit = static_cast<unsigned char>(Value);
    TWideChar Wide = static_cast<TWideChar>(Unit);
    WriteString(FromWide({&Wide, 1}));
}

void TWriter::WriteInteger(int64_t Value)
{
    FEncoder.Integer(Value);
}

void TWriter::WriteFloat(double Value)
{
    // The extended format is what text forms spell shortest.
    if (std::isfinite(Value))
        FEncoder.Extended(TExtended::FromDouble(Value));
    else
        FEncoder.Double(Value);
}

void TWriter::WriteSingle(float Value)
{
    FEncoder.Single(Value);
}

void TWriter::WriteCurrency(double Value)
{
    double Units = std::round(Value * 10000);
    if (!(std::abs(Units) < 9.2e18))
        throw EWriteError("The amount is too large");
    FEncoder.Currency(static_cast<int64_t>(Units));
}

void TWriter::WriteDate(double Value)
{
    FEncoder.Date(Value);
}

void TWriter::WriteIdent(std::string_view Ident)
{
    struct TWord {
        std::string_view Name;
        TValueType Value;
    };
    static constexpr TWord Words[] = {{"False", vaFalse}, {"True", vaTrue}, {"nil", vaNil}, {"Null", vaNull}};
    for (const TWord& Word : Words)
        if (SameIdent(Word.Name, Ident)) {
            WriteValue(Word.Value);
            return;
        }
    WriteValue(vaIdent);
    WriteStr(Ident);
}

void TWriter::WriteString(std::string_view Value)
{
    bool Ascii = std::all_of(Value.begin(), Value.end(), [](char C) { return static_cast<unsigned char>(C) < 0x80; });
    if (Ascii || !IsValidUtf8(Value))
        FEncoder.Bytes(Value);
    else
        FEncoder.Wide(ToWide(Value));
}

void TWriter::WriteStr(std::string_view Value)
{
    if (Value.size() > 255)
        throw EWriteError("The name '" + AnsiString(Value) + "' is too long");
    FEncoder.Name(Value);
}

void TWriter::WriteBinary(const TStreamProc& WriteProc)
{
    TMemoryStream Data;
    WriteProc(&Data);
    size_t Start = FEncoder.BinaryStart();
    FBuffer.append(Data.View());
    FEncoder.BinaryEnd(Start);
}

void TWriter::Write(const void* Buffer, int Count)
{
    FBuffer.append(static_cast<const char*>(Buffer), static_cast<size_t>(std::max(Count, 0)));
}

void WriteComponent(TStream& Stream, TComponent* Component)
{
    TWriter(&Stream).WriteRootComponent(Component);
}
