// Which of an object's values TWriter writes, and how.
#include "vcl/classes/Collection.h"
#include "vcl/classes/MemoryStream.h"
#include "vcl/classes/Writer.h"
#include "vcl/system/ClassDescription.h"
#include "vcl/system/Ident.h"

void TWriter::WriteProperties(TPersistent* Instance)
{
    for (const TPropertyInfo* Property : Instance->ClassType()->Description().Properties())
        if (Property->Stored(Instance))
            WriteProperty(Instance, *Property);
    Instance->DefineProperties(*this);
}

void TWriter::WriteProperty(TPersistent* Instance, const TPropertyInfo& Property)
{
    if (Property.Type->Kind == tkClass) {
        WriteObjectProperty(Instance, Property);
        return;
    }
    if (Property.ReadOnly())
        return;
    switch (Property.Type->Kind) {
    case tkFloat: WriteFloatProperty(Instance, Property); return;
    case tkString: WriteStringProperty(Instance, Property); return;
    case tkMethod: WriteMethod(Instance, Property); return;
    default: WriteOrdinalProperty(Instance, Property); return;
    }
}

// The same property of the ancestor, whose class may be another one; nullptr when there is none.
const TPropertyInfo* TWriter::InheritedProperty(const TPropertyInfo& Property) const
{
    if (!Ancestor)
        return nullptr;
    const TPropertyInfo* Found = Ancestor->ClassType()->Description().FindProperty(Property.Name);
    return Found && Found->Type->Kind == Property.Type->Kind ? Found : nullptr;
}

void TWriter::WritePropName(std::string_view Name)
{
    WriteStr(FPropPath + AnsiString(Name));
}

// ---- Plain values

void TWriter::WriteOrdinalProperty(TPersistent* Instance, const TPropertyInfo& Property)
{
    int64_t Value = Property.GetOrdinal(Instance);
    if (const TPropertyInfo* Inherited = InheritedProperty(Property)) {
        if (Value == Inherited->GetOrdinal(Ancestor))
            return;
    } else if (Property.HasDefault && Value == Property.Default) {
        return;
    }
    WritePropName(Property.Name);
    WriteOrdinal(Property, Value);
}

void TWriter::WriteOrdinal(const TPropertyInfo& Property, int64_t Value)
{
    const TTypeInfo& Type = *Property.Type;
    AnsiString Ident;
    switch (Type.Kind) {
    case tkInteger:
        if (Property.Idents && Property.Idents->IntToIdent(Value, Ident))
            WriteIdent(Ident);
        else
            WriteInteger(Value);
        return;
    case tkChar: WriteChar(static_cast<char>(Value)); return;
    case tkEnumeration:
        if (Value < 0 || Value >= static_cast<int64_t>(Type.Names.size()))
            throw EWriteError(AnsiString("Property ") + Property.Name + " has a value without a name");
        WriteIdent(Type.Names[static_cast<size_t>(Value)]);
        return;
    default: WriteSet(Type, Value); return;
    }
}

void TWriter::WriteSet(const TTypeInfo& Type, int64_t Bits)
{
    WriteValue(vaSet);
    for (size_t I = 0; I < Type.Names.size() && I < 32; ++I)
        if (Bits >> I & 1)
            WriteStr(Type.Names[I]);
    FEncoder.Terminator();
}

void TWriter::WriteFloatProperty(TPersistent* Instance, const TPropertyInfo& Property)
{
    double Value = Property.GetFloat(Instance);
    const TPropertyInfo* Inherited = InheritedProperty(Property);
    if (Value == (Inherited ? Inherited->GetFloat(Ancestor) : 0))
        return;
    WritePropName(Property.Name);
    WriteFloat(Value);
}

void TWriter::WriteStringProperty(TPersistent* Instance, const TPropertyInfo& Property)
{
    AnsiString Value = Property.GetString(Instance);
    const TPropertyInfo* Inherited = InheritedProperty(Property);
    if (Value == (Inherited ? Inherited->GetString(Ancestor) : AnsiString()))
        return;
    WritePropName(Property.Name);
    WriteString(Value);
}

// ---- Events

void TWriter::WriteMethod(TPersistent* Instance, const TPropertyInfo& Property)
{
    const TEventBase Method = Property.GetEvent(Instance);
    // A handler of the frame's own: the frame's form sets it, and this form has no name for it.
    if (Root != FLookupRoot && Method.Data() && Method.Data() == Root)
        return;
    AnsiString Name = FindMethodName(Method);
    AnsiString InheritedName;
    if (const TPropertyInfo* Inherited = InheritedProperty(Property)) {
        TEventBase Event = Inherited->GetEvent(Ancestor);
        if (Event.Code() && Event.Data())
            if (const char* Known = Event.Data()->ClassType()->Description().MethodName(Event.Code()))
                InheritedName = Known;
    }
    if (SameIdent(Name, InheritedName))
        return;
    WritePropName(Property.Name);
    WriteIdent(Name.empty() ? "nil" : Name);
}

AnsiString TWriter::FindMethodName(const TEventBase& Method)
{
    AnsiString Name;
    const char* Known = nullptr;
    // Another object's method, or a lambda, has no name that the root could find it by.
    if (Method.Code() && Method.Data() == FLookupRoot && FLookupRoot)
        Known = FLookupRoot->ClassType()->Description().MethodName(Method.Code());
    if (Known)
        Name = Known;
    if (Method && OnFindMethodName)
        OnFindMethodName(this, Method, Name);
    return Name;
}

// ---- Objects

void TWriter::WriteObjectProperty(TPersistent* Instance, const TPropertyInfo& Property)
{
    TObject* Value = Property.GetObject(Instance);
    auto* Component = As<TComponent>(Value);
    bool IsPart = Component && Component->FStyle.Contains(csSubComponent);
    if (Property.ReadOnly() && !IsPart)
        return;
    if (!Value || (Component && !IsPart)) {
        WriteReference(Property, Component);
        return;
    }
    auto* Object = As<TPersistent>(Value);
    if (!Object)
        return;
    const TPropertyInfo* InheritedInfo = InheritedProperty(Property);
    auto* Inherited = InheritedInfo ? As<TPersistent>(InheritedInfo->GetObject(Ancestor)) : nullptr;
    WriteNested(Object, Inherited, Property.Name);
    auto* Collection = As<TCollection>(Object);
    if (!Collection || SameCollection(Collection, As<TCollection>(Inherited)))
        return;
    WritePropName(Property.Name);
    WriteCollection(Collection);
}

void TWriter::WriteNested(TPersistent* Value, TPersistent* Inherited, const char* Name)
{
    TPersistent* OldAncestor = Ancestor;
    size_t PathSize = FPropPath.size();
    FPropPath.append(Name).append(".");
    Ancestor = Inherited;
    WriteProperties(Value);
    Ancestor = OldAncestor;
    FPropPath.resize(PathSize);
}

void TWriter::WriteReference(const TPropertyInfo& Property, TComponent* Value)
{
    TComponent* Inherited = nullptr;
    if (const TPropertyInfo* Info = InheritedProperty(Property))
        Inherited = As<TComponent>(Info->GetObject(Ancestor));
    if (SameReference(Value, Inherited))
        return;
    AnsiString Name = Value ? ReferenceTo(Value) : "nil";
    if (Name.empty())
        return;
    WritePropName(Property.Name);
    WriteIdent(Name);
}

// A form and its ancestor's form each have components of their own; the same name means the same thing.
bool TWriter::SameReference(const TComponent* Value, const TComponent* Inherited) const
{
    if (Value == Inherited)
        return true;
    if (!Value || !Inherited)
        return false;
    if (Value == FLookupRoot && Inherited == FRootAncestor)
        return true;
    return Value->GetOwner() == Root && Inherited->GetOwner() == FRootAncestor && FRootAncestor &&
           SameIdent(Value->GetName(), Inherited->GetName());
}

// How the reader finds Component from the root; empty when it cannot.
AnsiString TWriter::ReferenceTo(TComponent* Component) const
{
    const AnsiString& Name = Component->GetName();
    TComponent* Owner = Component->GetOwner();
    if (Component == FLookupRoot)
        return "Owner";
    if (Name.empty())
        return {};
    if (Owner == FLookupRoot)
        return Name;
    if (!Owner || Owner->GetName().empty())
        return Name + ".Owner";
    AnsiString OwnerName = Owner->FState.Contains(csInline) ? ReferenceTo(Owner) : Owner->GetName();
    return OwnerName.empty() ? AnsiString() : OwnerName + "." + Name;
}

void TWriter::WriteCollection(TCollection* Collection)
{
    TPersistent* OldAncestor = Ancestor;
    AnsiString OldPath;
    OldPath.swap(FPropPath);
    Ancestor = nullptr;
    WriteValue(vaCollection);
    for (int I = 0; I < Collection->Count; ++I) {
        WriteListBegin();
        WriteProperties(Collection->Items[I]);
        WriteListEnd();
    }
    WriteListEnd();
    Ancestor = OldAncestor;
    FPropPath.swap(OldPath);
}

// Without an ancestor even an empty collection is written: it replaces what a constructor may have added.
bool TWriter::SameCollection(TCollection* Value, TCollection* Inherited) const
{
    if (!Inherited || Value->Count != Inherited->Count)
        return false;
    auto BytesOf = [](TCollection* Collection, TComponent* CollectionRoot) {
        TMemoryStream Stream;
        TWriter Writer(&Stream);
        Writer.Root = CollectionRoot;
        Writer.FLookupRoot = CollectionRoot;
        Writer.WriteCollection(Collection);
        return std::move(Writer.FBuffer);
    };
    return BytesOf(Value, Root) == BytesOf(Inherited, FRootAncestor);
}

void TWriter::DefineProperty(const char* Name, const TReaderProc&, const TWriterProc& WriteProc, bool HasData)
{
    if (!HasData || !WriteProc)
        return;
    WritePropName(Name);
    WriteProc(this);
}

void TWriter::DefineBinaryProperty(const char* Name, const TStreamProc&, const TStreamProc& WriteProc, bool HasData)
{
    if (!HasData || !WriteProc)
        return;
    WritePropName(Name);
    WriteBinary(WriteProc);
}
