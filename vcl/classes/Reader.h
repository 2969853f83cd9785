// TReader: makes components from a binary form.
//
// One pass forward. References between components are set at the end, when all of them exist. When reading fails, every
// component that this reader has made is deleted again and the exception says what is wrong and where: "Error reading
// Form1.BorderStyle: bsFoo is no TFormBorderStyle on line 12 of Main.dfm", or "at offset 301" for a form that was not
// compiled by the build. It is an EFormDataError (an EReadError) unless a class is unknown.
#pragma once

#include "vcl/classes/Component.h"
#include "vcl/classes/Filer.h"
#include "vcl/classes/FixupList.h"
#include "vcl/classes/FormCursor.h"
#include "vcl/classes/FormLines.h"
#include "vcl/classes/LoadingList.h"

#include <string>
#include <string_view>
#include <vector>

class TCollection;
class TLoadingBatch;
struct TMethodInfo;
struct TPropertyInfo;
struct TTypeInfo;

// Handled: reading goes on behind the value, which stays unset.
using TReaderError = TEvent<void(TReader* Reader, const AnsiString& Message, bool& Handled)>;
// Method is the root's handler of that name, Error whether there is none that fits; a handler may set both.
using TFindMethodEvent =
    TEvent<void(TReader* Reader, const AnsiString& MethodName, const TMethodInfo*& Method, bool& Error)>;
// A name is about to be given to Component, or looked up; both may be changed.
using TSetNameEvent = TEvent<void(TReader* Reader, TComponent* Component, AnsiString& Name)>;
using TReferenceNameEvent = TEvent<void(TReader* Reader, AnsiString& Name)>;
// An inherited object is not there; the handler may supply it.
using TAncestorNotFoundEvent =
    TEvent<void(TReader* Reader, const AnsiString& ComponentName, TClass ComponentClass, TComponent*& Component)>;
// The handler may make the component itself, owned by Reader->Owner.
using TCreateComponentEvent = TEvent<void(TReader* Reader, TClass ComponentClass, TComponent*& Component)>;
// ComponentClass is what was found, or nullptr; the handler may replace it.
using TFindComponentClassEvent = TEvent<void(TReader* Reader, const AnsiString& ClassName, TClass& ComponentClass)>;
// An object's class is unknown. Skip: the object is left out with everything in it, instead of an EClassNotFound.
using TUnknownClassEvent =
    TEvent<void(TReader* Reader, const AnsiString& ClassName, const AnsiString& Name, bool& Skip)>;
// Instance has no property PropName (as in the file, "Font.Size"). Skip: its value is left out, instead of an error.
using TUnknownPropertyEvent =
    TEvent<void(TReader* Reader, TPersistent* Instance, const AnsiString& PropName, bool& Skip)>;

using TReadComponentsProc = TEvent<void(TComponent* Component)>;

class TReader : public TFiler {
public:
    // Reads from the place where Stream stands, which must outlive the reader. A stream that is not in memory is read
    // to its end at once; when the reader is done with an object the stream stands behind that.
    explicit TReader(TStream* Stream, int BufSize = 4096);
    ~TReader() override;

    // Reads a form: a signature and an object. With Root its properties are set and its children made, whatever its
    // name and class in the file are; without Root a component of the file's class is made, which is the caller's.
    TComponent* ReadRootComponent(TComponent* Root);
    // Reads one object, without a signature, and what it contains. Component is the one to read into, or nullptr.
    // Returns nullptr when the object was left out by OnUnknownClass.
    TComponent* ReadComponent(TComponent* Component);
    // Reads objects up to the end of their list; each belongs to AOwner and has AParent, and Proc hears of it.
    void ReadComponents(TComponent* AOwner, TComponent* AParent, const TReadComponentsProc& Proc);
    // Properties and children; called from TComponent::ReadState.
    void ReadData(TComponent* Component);

    // For whoever calls ReadComponent several times: the references among what is read between BeginReferences and
    // FixupReferences are set then, and each component's Loaded is called. EndReferences deletes what was made when
    // FixupReferences was not reached.
    void BeginReferences();
    void FixupReferences();
    void EndReferences();

    void DefineProperty(const char* Name, const TReaderProc& ReadProc, const TWriterProc& WriteProc,
                        bool HasData) override;
    void DefineBinaryProperty(const char* Name, const TStreamProc& ReadProc, const TStreamProc& WriteProc,
                              bool HasData) override;

    // Single values. Each raises an EReadError, "'x' is no integer", when another kind of value follows.
    TValueType NextValue() const { return FCursor.PeekType(); }
    // Takes the type byte only.
    TValueType ReadValue() { return FCursor.ReadType(); }
    void CheckValue(TValueType Value);
    bool ReadBoolean();
    char ReadChar();
    int32_t ReadInteger();
    int64_t ReadInt64();
    // Integers are taken too, in ReadCurrency and ReadDate every kind of number.
    double ReadFloat();
    float ReadSingle();
    double ReadCurrency();
    double ReadDate();
    // An enumeration value, constant, component or method; also "True", "False", "nil" and "Null" for those values.
    AnsiString ReadIdent();
    // Any kind of text, as UTF-8. Bytes in a code page are taken for UTF-8 where they are that, else for CodePage.
    AnsiString ReadString();
    // A name: one length byte, then the bytes, without a type.
    AnsiString ReadStr();
    void ReadListBegin() { CheckValue(vaList); }
    void ReadListEnd() { CheckValue(vaNull); }
    bool EndOfList() const { return FCursor.PeekByte() == vaNull; }
    // The items replace what Collection holds. The type vaCollection has been read already.
    void ReadCollection(TCollection* Collection);
    void ReadSignature();
    TFormPrefix ReadPrefix() { return FCursor.ReadPrefix(); }
    // Raw bytes.
    void Read(void* Buffer, int Count);
    void SkipValue();

    // Bytes from the start of the stream.
    size_t GetPosition() const { return FCursor.Offset(); }
    PROPERTY_READ(size_t, Position);
    // The property that is being read, "Font.Size"; empty between properties.
    const AnsiString& GetPropName() const { return FPropName; }
    PROPERTY_READ(AnsiString, PropName);

    // For the components that are read next.
    TComponent* GetOwner() const { return FOwner; }
    void SetOwner(TComponent* Value) { FOwner = Value; }
    PROPERTY(TComponent*, Owner);
    TComponent* GetParent() const { return FParent; }
    void SetParent(TComponent* Value) { FParent = Value; }
    PROPERTY(TComponent*, Parent);

    // Where the form's text has what is read, for the messages of errors.
    TFormLines Lines;

    // What texts that are not UTF-8 are in; at first the user's legacy code page.
    unsigned CodePage;

    TReaderError OnError;
    TFindMethodEvent OnFindMethod;
    TSetNameEvent OnSetName;
    TReferenceNameEvent OnReferenceName;
    TAncestorNotFoundEvent OnAncestorNotFound;
    TCreateComponentEvent OnCreateComponent;
    TFindComponentClassEvent OnFindComponentClass;
    TUnknownClassEvent OnUnknownClass;
    TUnknownPropertyEvent OnUnknownProperty;

private:
    class TSession;
    class TReadingScope;

    void Attach();
    void LeaveStream();

    // Start is where the object or value begins, for messages.
    TComponent* ReadRoot(TComponent* ARoot);
    TComponent* ReadObject(TComponent* Component);
    TComponent* FindInherited(std::string_view Name, std::string_view ClassName, size_t Start);
    TComponent* CreateComponent(TClass Class, const TFormPrefix& Prefix);
    void NameComponent(TComponent* Component, std::string_view Name, size_t Start);
    void CheckField(const TComponent* Component, std::string_view ClassName, size_t Start);
    void NameRoot(TComponent* ARoot, std::string_view Name, size_t Start);
    TClass FindComponentClass(std::string_view ClassName);
    TClass UnknownClass(std::string_view ClassName, std::string_view Name, size_t Start);
    void ReadContents(TComponent* Component);

    void ReadProperties(TPersistent* Instance);
    void ReadProperty(TPersistent* Instance);
    void PropertyFailed(TPersistent* Instance, size_t Start, size_t Offset, const AnsiString& Message);
    bool ReadPropertyPath(TPersistent* Instance);
    void ReadPropertyValue(TPersistent* Instance, const TPropertyInfo& Property);
    int64_t ReadOrdinal(const TPropertyInfo& Property);
    int64_t ReadIntegerProperty(const TPropertyInfo& Property);
    int64_t ReadEnumeration(const TTypeInfo& Type);
    int64_t ReadSet(const TTypeInfo& Type);
    void ReadObjectProperty(TPersistent* Instance, const TPropertyInfo& Property);
    void ReadMethod(TPersistent* Instance, const TPropertyInfo& Property);
    bool ReadDefined(TPersistent* Instance, std::string_view Name);
    void UnknownProperty(TPersistent* Instance, std::string_view Name);

    double ReadNumber(bool AnyKind);
    AnsiString TextFromBytes(std::string_view Bytes) const;
    void SkipObject();
    void SkipProperties();
    void SkipList();
    void MoveTo(size_t Position);
    void Descend(size_t Start);
    void SetReferences();
    void SetReference(const TFixup& Fixup, TComponent* Value);
    // For messages: the value that begins at a position, "'x'" or "a list".
    AnsiString ValueAt(size_t Position) const;
    // "'x' is no integer", for the value whose type has just been read or which begins at a position.
    [[noreturn]] void FailValue(std::string_view Expected) const;
    [[noreturn]] void FailValueAt(std::string_view Expected, size_t Position) const;

    TStream* FStream;
    std::string FCopy; // what a stream that is not in memory held
    std::string_view FData;
    size_t FBase = 0; // FData's place in the stream
    TFormCursor FCursor{{}};

    TComponent* FOwner = nullptr;
    TComponent* FParent = nullptr;
    TComponent* FLookupRoot = nullptr; // the form or frame whose names count
    AnsiString FPropName;
    std::string_view FDefinedName;        // what DefineProperties is asked for; empty when it has been read
    std::vector<size_t>* FLate = nullptr; // where properties of the object begin that wait for its others
    TClass FLastClass = nullptr;
    TLoadingList FLoading;
    TFixupList FFixups;
    int FDepth = 0;
    bool FActive = false; // between BeginReferences and EndReferences
};

// Reads the binary form in Stream into Root: its properties, children and fields. Raises as TReader does; what Root had
// before is still there.
void ReadRootComponent(TStream& Stream, TComponent* Root);
// Reads a component of the class that Stream names. The result belongs to the caller.
TComponent* ReadRootComponent(TStream& Stream);
