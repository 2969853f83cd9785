// How TReader gets from a property's name in the file to its setter.
#include "vcl/classes/Collection.h"
#include "vcl/classes/CustomMemoryStream.h"
#include "vcl/classes/Reader.h"
#include "vcl/system/ClassDescription.h"
#include "vcl/system/Ident.h"
#include "vcl/system/Scope.h"

#include <limits>

namespace {

// Binary data of the form, not copied.
class TBinaryView : public TCustomMemoryStream {
public:
    explicit TBinaryView(std::string_view Bytes)
    {
        SetPointer(const_cast<char*>(Bytes.data()), static_cast<int64_t>(Bytes.size()));
    }
};

constexpr std::string_view ErrorPrefix = "Error reading ";

} // namespace

void TReader::ReadProperties(TPersistent* Instance)
{
    std::vector<size_t> Late;
    {
        const TScopedValue Others(FLate, &Late);
        while (FCursor.PeekByte() != 0)
            ReadProperty(Instance);
    }
    FCursor.ReadByte();
    if (Late.empty())
        return;
    const TScopedValue Now(FLate, nullptr);
    const size_t End = FCursor.Position();
    for (const size_t Place : Late) {
        MoveTo(Place);
        ReadProperty(Instance);
    }
    MoveTo(End);
}

void TReader::ReadProperty(TPersistent* Instance)
{
    const size_t Place = FCursor.Position();
    const TScopedValue Name(FPropName, AnsiString(FCursor.ReadName()));
    const size_t Start = FCursor.Position();
    const int Depth = FDepth;
    try {
        if (!ReadPropertyPath(Instance)) {
            FLate->push_back(Place);
            SkipValue();
        }
    } catch (const EAbort&) {
        throw;
    } catch (const EFormDataError& Error) {
        FDepth = Depth;
        if (Error.IsLocated()) // in another form, which the setter has read
            PropertyFailed(Instance, Start, FBase + Start, Error.Message);
        else
            PropertyFailed(Instance, Start, Error.Offset, Error.Detail);
    } catch (const Exception& Error) {
        FDepth = Depth;
        PropertyFailed(Instance, Start, FBase + Start, Error.Message);
    }
}

void TReader::PropertyFailed(TPersistent* Instance, size_t Start, size_t Offset, const AnsiString& Message)
{
    bool Handled = false;
    if (OnError)
        OnError(this, Message, Handled);
    if (Handled) {
        MoveTo(Start);
        SkipValue();
        return;
    }
    // The error of an item in a collection names the item already.
    if (Message.starts_with(ErrorPrefix))
        throw EFormDataError(Message, Offset);
    AnsiString Name = Instance->GetNamePath();
    if (Name.empty())
        Name = Instance->ClassName();
    throw EFormDataError(AnsiString(ErrorPrefix) + Name + "." + FPropName + ": " + Message, Offset);
}

// False when the property must wait for the others of its object (ReadLast).
bool TReader::ReadPropertyPath(TPersistent* Instance)
{
    std::string_view Name = FPropName;
    for (size_t Dot; (Dot = Name.find('.')) != Name.npos; Name.remove_prefix(Dot + 1)) {
        const TPropertyInfo* Property = Instance->ClassType()->Description().FindProperty(Name.substr(0, Dot));
        if (!Property) {
            UnknownProperty(Instance, Name.substr(0, Dot));
            return true;
        }
        TObject* Nested = Property->Type->Kind == tkClass ? Property->GetObject(Instance) : nullptr;
        Instance = As<TPersistent>(Nested);
        if (!Instance)
            FCursor.Fail("Invalid property path");
    }
    const TPropertyInfo* Property = Instance->ClassType()->Description().FindProperty(Name);
    if (Property && Property->ReadsLast && FLate)
        return false;
    if (Property)
        ReadPropertyValue(Instance, *Property);
    else if (!ReadDefined(Instance, Name))
        UnknownProperty(Instance, Name);
    return true;
}

void TReader::UnknownProperty(TPersistent* Instance, std::string_view Name)
{
    bool Skip = false;
    if (OnUnknownProperty)
        OnUnknownProperty(this, Instance, FPropName, Skip);
    if (!Skip)
        throw EReadError("Property " + AnsiString(Name) + " does not exist");
    SkipValue();
}

void TReader::ReadPropertyValue(TPersistent* Instance, const TPropertyInfo& Property)
{
    if (Property.Type->Kind == tkClass) {
        ReadObjectProperty(Instance, Property);
        return;
    }
    if (Property.ReadOnly())
        FCursor.Fail("Property is read-only");
    switch (Property.Type->Kind) {
    case tkString: Property.SetString(Instance, ReadString()); return;
    case tkFloat: Property.SetFloat(Instance, ReadFloat()); return;
    case tkMethod: ReadMethod(Instance, Property); return;
    default: Property.SetOrdinal(Instance, ReadOrdinal(Property)); return;
    }
}

int64_t TReader::ReadOrdinal(const TPropertyInfo& Property)
{
    switch (Property.Type->Kind) {
    case tkInteger: return ReadIntegerProperty(Property);
    case tkChar: return static_cast<unsigned char>(ReadChar());
    case tkEnumeration: return ReadEnumeration(*Property.Type);
    default: return ReadSet(*Property.Type);
    }
}

int64_t TReader::ReadIntegerProperty(const TPropertyInfo& Property)
{
    size_t Start = FCursor.Position();
    TValueType Type = ReadValue();
    int64_t Value = 0;
    if (Type == vaIdent) {
        if (!Property.Idents || !Property.Idents->IdentToInt(FCursor.ReadName(), Value))
            FailValueAt(Property.Idents ? "known constant" : "integer", Start);
        return Value;
    }
    if (!TFormCursor::IsInteger(Type))
        FailValue("integer");
    Value = FCursor.ReadIntegerOf(Type);
    // Numbers are taken as signed or as unsigned: colours are written either way.
    const TTypeInfo& Info = *Property.Type;
    if (Info.MaxValue > std::numeric_limits<int64_t>::max() / 2)
        return Value;
    int64_t Min = Info.MinValue < 0 ? Info.MinValue : -(Info.MaxValue / 2) - 1;
    int64_t Max = Info.MinValue < 0 ? Info.MaxValue * 2 + 1 : Info.MaxValue;
    if (Value < Min || Value > Max)
        FCursor.FailAt(std::to_string(Value) + " is not in the range " + std::to_string(Info.MinValue) + " to " +
                           std::to_string(Info.MaxValue),
                       Start);
    return Value;
}

int64_t TReader::ReadEnumeration(const TTypeInfo& Type)
{
    size_t Start = FCursor.Position();
    int64_t Value = -1;
    switch (ReadValue()) {
    case vaIdent: Value = Type.ValueOf(FCursor.ReadName()); break;
    case vaFalse: Value = Type.ValueOf("False"); break;
    case vaTrue: Value = Type.ValueOf("True"); break;
    default: break;
    }
    if (Value < 0)
        FailValueAt(Type.Name, Start);
    return Value;
}

int64_t TReader::ReadSet(const TTypeInfo& Type)
{
    CheckValue(vaSet);
    uint32_t Bits = 0;
    for (size_t Start = FCursor.Position();; Start = FCursor.Position()) {
        std::string_view Name = FCursor.ReadName();
        if (Name.empty())
            return Bits;
        int64_t Value = Type.ValueOf(Name);
        if (Value < 0 || Value > 31)
            FCursor.FailAt(AnsiString(Name) + " is no " + Type.Name, Start);
        Bits |= uint32_t{1} << Value;
    }
}

void TReader::ReadObjectProperty(TPersistent* Instance, const TPropertyInfo& Property)
{
    size_t Start = FCursor.Position();
    TValueType Type = ReadValue();
    if (Type == vaCollection) {
        auto* Collection = As<TCollection>(Property.GetObject(Instance));
        if (!Collection)
            FailValueAt(Property.Type->Name, Start);
        ReadCollection(Collection);
        return;
    }
    if (Type != vaNil && Type != vaIdent)
        FailValueAt(Property.Type->Name, Start);
    if (Property.ReadOnly())
        FCursor.FailAt("Property is read-only", Start);
    if (Type == vaNil) {
        Property.SetObject(Instance, nullptr);
        return;
    }
    AnsiString Name(FCursor.ReadName());
    if (!Property.Type->Class->InheritsFrom(TComponent::StaticClass()))
        FailValueAt(Property.Type->Name, Start);
    FFixups.Add({Instance, &Property, Root, std::move(Name), FBase + Start});
}

void TReader::ReadMethod(TPersistent* Instance, const TPropertyInfo& Property)
{
    size_t Start = FCursor.Position();
    TValueType Type = ReadValue();
    if (Type == vaNil || Type == vaNull) {
        Property.SetEvent(Instance, nullptr, 0);
        return;
    }
    if (Type != vaIdent)
        FailValueAt("method", Start);
    std::string_view Name = FCursor.ReadName();
    const TMethodInfo* Method = Root ? Root->ClassType()->Description().FindMethod(Name) : nullptr;
    const TSignature* Signature = Property.Type->Signature;
    bool Error = !Method || Method->Signature != Signature;
    if (OnFindMethod)
        OnFindMethod(this, AnsiString(Name), Method, Error);
    if (Method && Method->Signature != Signature)
        FCursor.FailAt("The signature of the method " + AnsiString(Name) + " is " + Method->Signature->Text() +
                           ", not " + Signature->Text(),
                       Start);
    if (Error)
        FCursor.FailAt(AnsiString(Root ? Root->ClassName() : "The form") + " describes no method " + AnsiString(Name),
                       Start);
    if (Method)
        Property.SetEvent(Instance, Root, Method->Code);
}

// ---- Values that no published property holds

bool TReader::ReadDefined(TPersistent* Instance, std::string_view Name)
{
    const AnsiString PropName = FPropName; // which changes when what is read has properties of its own
    const std::string_view View = PropName;
    const TScopedValue Defined(FDefinedName, View.substr(View.size() - Name.size()), {});
    Instance->DefineProperties(*this);
    return FDefinedName.empty();
}

void TReader::DefineProperty(const char* Name, const TReaderProc& ReadProc, const TWriterProc&, bool)
{
    if (FDefinedName.empty() || !ReadProc || !SameIdent(Name, FDefinedName))
        return;
    FDefinedName = {};
    ReadProc(this);
}

void TReader::DefineBinaryProperty(const char* Name, const TStreamProc& ReadProc, const TStreamProc&, bool)
{
    if (FDefinedName.empty() || !ReadProc || !SameIdent(Name, FDefinedName))
        return;
    FDefinedName = {};
    CheckValue(vaBinary);
    TBinaryView Data(FCursor.ReadLongBytes());
    ReadProc(&Data);
}
