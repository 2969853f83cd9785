#include "vcl/classes/Reader.h"

#include "vcl/classes/CustomMemoryStream.h"
#include "vcl/classes/LoadingBatch.h"
#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassDescription.h"
#include "vcl/system/Ident.h"
#include "vcl/system/Locale.h"
#include "vcl/system/Scope.h"

#include <algorithm>
#include <optional>

// Lasts from the first object to the last reference. Without Finish, what was made is deleted at its end.
class TReader::TSession {
public:
    explicit TSession(TReader& Reader) : FReader(Reader), FOwns(!Reader.FActive)
    {
        if (FOwns)
            Reader.BeginReferences();
    }
    ~TSession()
    {
        if (FOwns)
            FReader.EndReferences();
    }
    TSession(const TSession&) = delete;

    void Finish()
    {
        if (!FOwns)
            return;
        FReader.LeaveStream();
        FReader.FixupReferences();
    }

private:
    TReader& FReader;
    bool FOwns;
};

// While the contents of Component are read: whose they are, and where names are looked up.
class TReader::TReadingScope {
public:
    TReadingScope(TReader& Reader, TComponent* Component)
        : FReader(Reader),
          FOwner(Reader.FOwner),
          FParent(Reader.FParent),
          FLookupRoot(Reader.FLookupRoot)
    {
        Reader.FParent = Component->GetChildParent();
        TComponent* ChildOwner = Component->GetChildOwner();
        Reader.FOwner = ChildOwner ? ChildOwner : Reader.Root;
        if (Component->FState.Contains(csInline))
            Reader.FLookupRoot = Component;
    }
    ~TReadingScope()
    {
        FReader.FOwner = FOwner;
        FReader.FParent = FParent;
        FReader.FLookupRoot = FLookupRoot;
    }
    TReadingScope(const TReadingScope&) = delete;

private:
    TReader& FReader;
    TComponent* FOwner;
    TComponent* FParent;
    TComponent* FLookupRoot;
};

TReader::TReader(TStream* Stream, int) : CodePage(LegacyCodePage()), FStream(Stream)
{
    Attach();
}

TReader::~TReader()
{
    if (FActive)
        EndReferences();
    try {
        LeaveStream();
    } catch (const Exception&) {
        // The stream does not move: nobody can rely on its position then, and destructors do not throw.
    }
}

void TReader::Attach()
{
    int64_t Start = FStream->GetPosition();
    FBase = static_cast<size_t>(Start);
    if (auto* Memory = dynamic_cast<TCustomMemoryStream*>(FStream)) {
        FData = Memory->View();
        FData.remove_prefix(std::min(FBase, FData.size()));
    } else {
        int64_t Size = std::max<int64_t>(FStream->GetSize() - Start, 0);
        FCopy.resize(static_cast<size_t>(Size));
        FStream->ReadBuffer(FCopy.data(), Size);
        FData = FCopy;
    }
    FCursor = TFormCursor(FData, FBase);
}

void TReader::LeaveStream()
{
    FStream->SetPosition(static_cast<int64_t>(FCursor.Offset()));
}

TComponent* TReader::ReadRootComponent(TComponent* ARoot)
{
    ReadSignature();
    TSession Session(*this);
    try {
        ARoot = ReadRoot(ARoot);
    } catch (EFormDataError& Error) {
        Error.Locate(Lines.PlaceOf(Error.Offset));
        throw;
    }
    Session.Finish();
    return ARoot;
}

TComponent* TReader::ReadRoot(TComponent* ARoot)
{
    size_t Start = FCursor.Position();
    ReadPrefix();
    std::string_view ClassName = FCursor.ReadName();
    std::string_view Name = FCursor.ReadName();
    Descend(Start);
    if (!ARoot) {
        TClass Class = FindComponentClass(ClassName);
        if (!Class)
            Class = UnknownClass(ClassName, Name, Start);
        if (!Class)
            FCursor.FailAt("Invalid stream format", Start);
        ARoot = CreateComponent(Class, {});
    }
    Root = ARoot;
    FLookupRoot = ARoot;
    FOwner = ARoot;
    FLoading.Add(ARoot); // a control that is loading does not take its name for its caption
    if (!Name.empty())
        NameRoot(ARoot, Name, Start);
    ReadContents(ARoot);
    --FDepth;
    return ARoot;
}

TComponent* TReader::ReadComponent(TComponent* Component)
{
    TSession Session(*this);
    TComponent* Result = ReadObject(Component);
    Session.Finish();
    return Result;
}

void TReader::ReadComponents(TComponent* AOwner, TComponent* AParent, const TReadComponentsProc& Proc)
{
    Root = AOwner;
    FOwner = AOwner;
    FParent = AParent;
    FLookupRoot = AOwner;
    TSession Session(*this);
    while (!EndOfList()) {
        if (FCursor.Remaining() >= FormSignatureSize &&
            FData.substr(FCursor.Position(), FormSignatureSize) == FormSignature)
            ReadSignature();
        if (TComponent* Component = ReadObject(nullptr))
            Proc(Component);
    }
    ReadListEnd();
    Session.Finish();
}

TComponent* TReader::ReadObject(TComponent* Component)
{
    size_t Start = FCursor.Position();
    TFormPrefix Prefix = ReadPrefix();
    std::string_view ClassName = FCursor.ReadName();
    std::string_view Name = FCursor.ReadName();
    Descend(Start);
    if (!Component && (Prefix.Flags & FilerFlagInherited))
        Component = FindInherited(Name, ClassName, Start);
    bool IsNew = !Component;
    if (IsNew) {
        TClass Class = FindComponentClass(ClassName);
        if (!Class)
            Class = UnknownClass(ClassName, Name, Start);
        if (!Class) {
            SkipObject();
            --FDepth;
            return nullptr;
        }
        Component = CreateComponent(Class, Prefix);
        if (FParent)
            Component->SetParentComponent(FParent);
        NameComponent(Component, Name, Start);
        CheckField(Component, ClassName, Start);
    } else if (FParent && Component->HasParent() && Component->GetParentComponent() != FParent) {
        Component->SetParentComponent(FParent);
    }
    FLoading.Add(Component);
    ReadContents(Component);
    if ((Prefix.Flags & FilerFlagChildPos) && FParent)
        FParent->SetChildOrder(Component, Prefix.ChildPos);
    --FDepth;
    return Component;
}

TComponent* TReader::FindInherited(std::string_view Name, std::string_view ClassName, size_t Start)
{
    TComponent* Found = FLookupRoot ? FLookupRoot->FindComponent(Name) : nullptr;
    if (!Found && OnAncestorNotFound)
        OnAncestorNotFound(this, AnsiString(Name), GetClass(ClassName), Found);
    if (!Found)
        throw EFormDataError("Ancestor for '" + AnsiString(Name) + "' not found", FBase + Start);
    // An object would become its own parent.
    if (Found->FState.Contains(csReading))
        throw EFormDataError("The object '" + AnsiString(Name) + "' stands in itself", FBase + Start);
    return Found;
}

TComponent* TReader::CreateComponent(TClass Class, const TFormPrefix& Prefix)
{
    TComponent* Component = nullptr;
    if (OnCreateComponent)
        OnCreateComponent(this, Class, Component);
    bool Inline = (Prefix.Flags & FilerFlagInline) != 0;
    // A frame reads its own form in its constructor. Its Loaded waits until this form's values are set, too.
    std::optional<TLoadingBatch> Batch;
    if (Inline)
        Batch.emplace(Class);
    if (!Component)
        Component = Class->Create(FOwner);
    if (Inline) {
        FLoading.Take(Batch->FLoading);
        Component->FState << csInline;
    }
    FLoading.AddMade(Component);
    return Component;
}

void TReader::NameComponent(TComponent* Component, std::string_view Name, size_t Start)
{
    AnsiString NewName(Name);
    if (OnSetName)
        OnSetName(this, Component, NewName);
    try {
        Component->SetName(NewName);
    } catch (const EComponentError& Error) {
        throw EFormDataError(Error.Message, FBase + Start);
    }
}

// Without this the field would stay nullptr. A stand-in for a foreign class, which a hook has made, fits no field.
void TReader::CheckField(const TComponent* Component, std::string_view ClassName, size_t Start)
{
    const TComponent* Owner = Component->FOwner;
    if (!Owner || !SameIdent(Component->ClassName(), ClassName))
        return;
    const TFieldInfo* Field = Owner->ClassType()->Description().FindField(Component->FName);
    if (Field && !Component->InheritsFrom(Field->Class))
        FCursor.FailAt(Component->FName + " is a " + Component->ClassName() + ", but the field of that name in " +
                           Owner->ClassName() + " is a " + Field->Class->ClassName(),
                       Start);
}

// Two forms of one class may be open at once; the second is Form1_1.
void TReader::NameRoot(TComponent* ARoot, std::string_view Name, size_t Start)
{
    if (ARoot->IsDesigning()) {
        NameComponent(ARoot, Name, Start);
        return;
    }
    auto IsTaken = [ARoot](const AnsiString& Unique) {
        TComponent* Global = FindGlobalComponent(Unique);
        TComponent* Sibling = ARoot->FOwner ? ARoot->FOwner->FindComponent(Unique) : nullptr;
        return (Global && Global != ARoot) || (Sibling && Sibling != ARoot);
    };
    AnsiString Unique(Name);
    for (int I = 1; !Name.empty() && IsTaken(Unique); ++I)
        Unique = AnsiString(Name) + "_" + std::to_string(I);
    NameComponent(ARoot, Unique, Start);
}

TClass TReader::FindComponentClass(std::string_view ClassName)
{
    if (FLastClass && SameIdent(FLastClass->ClassName(), ClassName) && !OnFindComponentClass)
        return FLastClass;
    TClass Class = GetClass(ClassName);
    if (OnFindComponentClass)
        OnFindComponentClass(this, AnsiString(ClassName), Class);
    if (!Class || !Class->InheritsFrom(TComponent::StaticClass()))
        return nullptr;
    return FLastClass = Class;
}

// Returns nullptr when the object is to be left out.
TClass TReader::UnknownClass(std::string_view ClassName, std::string_view Name, size_t Start)
{
    bool Skip = false;
    if (OnUnknownClass)
        OnUnknownClass(this, AnsiString(ClassName), AnsiString(Name), Skip);
    if (Skip)
        return nullptr;
    AnsiString Place = Lines.PlaceOf(FBase + Start);
    if (Place.empty())
        Place = " at offset " + std::to_string(FBase + Start);
    throw EClassNotFound(
        "Class " + AnsiString(ClassName) + " not found" + Place +
        (GetClass(ClassName) ? ": it is no component" : ": it is not registered; is its header included?"));
}

void TReader::ReadContents(TComponent* Component)
{
    const bool WasReading = Component->FState.Contains(csReading);
    const TStillThere StillThere(Component);
    const TScopeExit Done([&] {
        if (StillThere)
            Component->SetState(csReading, WasReading);
    });
    Component->SetState(csReading, true);
    Component->ReadState(*this);
}

void TReader::ReadData(TComponent* Component)
{
    ReadProperties(Component);
    TReadingScope Scope(*this, Component);
    while (!EndOfList()) {
        if (IgnoreChildren) {
            ReadPrefix();
            FCursor.ReadName();
            FCursor.ReadName();
            SkipObject();
        } else {
            ReadObject(nullptr);
        }
    }
    ReadListEnd();
}

void TReader::Descend(size_t Start)
{
    if (++FDepth > MaxFormDepth)
        FCursor.FailAt("The objects are nested too deeply", Start);
}

void ReadRootComponent(TStream& Stream, TComponent* Root)
{
    TReader(&Stream).ReadRootComponent(Root);
}

TComponent* ReadRootComponent(TStream& Stream)
{
    return TReader(&Stream).ReadRootComponent(nullptr);
}
