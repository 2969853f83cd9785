// TWriter: writes components as a binary form.
//
// Only what differs from the defaults is written, and with an ancestor only what differs from that. The values are in
// the kinds that the text form converts to and from without loss.
#pragma once

#include "vcl/classes/Component.h"
#include "vcl/classes/Filer.h"
#include "vcl/classes/FormEncoder.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class TCollection;
struct TPropertyInfo;
struct TTypeInfo;

// Component is a frame in a form; the handler may supply the frame to compare it with, and its root. Otherwise that is
// a new one of its class.
using TFindAncestorEvent = TEvent<void(TWriter* Writer, TComponent* Component, const AnsiString& Name,
                                       TComponent*& Ancestor, TComponent*& RootAncestor)>;
// MethodName is the handler's name in the root's method table, or empty: then the event is not written.
using TFindMethodNameEvent = TEvent<void(TWriter* Writer, const TEventBase& Method, AnsiString& MethodName)>;

class TWriter : public TFiler {
public:
    // Writes to the place where Stream stands, which must outlive the writer.
    explicit TWriter(TStream* Stream, int BufSize = 4096);
    // Flushes, unless an exception is on its way; call FlushBuffer to hear of failure.
    ~TWriter() override;

    // A form: signature and object. When it fails the stream has nothing of it.
    void WriteRootComponent(TComponent* Root) { WriteDescendent(Root, nullptr); }
    // As WriteRootComponent, but leaves out what AAncestor has as well; objects that it has too are "inherited".
    void WriteDescendent(TComponent* Root, TComponent* AAncestor);
    // One object, without a signature.
    void WriteComponent(TComponent* Component);
    // Properties and children; called from TComponent::WriteState.
    void WriteData(TComponent* Instance);
    // The published and defined properties of Instance, without an end.
    void WriteProperties(TPersistent* Instance);

    void DefineProperty(const char* Name, const TReaderProc& ReadProc, const TWriterProc& WriteProc,
                        bool HasData) override;
    void DefineBinaryProperty(const char* Name, const TStreamProc& ReadProc, const TStreamProc& WriteProc,
                              bool HasData) override;

    void WriteBoolean(bool Value);
    void WriteChar(char Value);
    void WriteInteger(int64_t Value);
    void WriteFloat(double Value);
    void WriteSingle(float Value);
    void WriteCurrency(double Value);
    void WriteDate(double Value);
    // "True", "False", "nil" and "Null" become those values.
    void WriteIdent(std::string_view Ident);
    // UTF-8. ASCII is written as bytes, every other text as Unicode; bytes that are no UTF-8 are written as they are.
    void WriteString(std::string_view Value);
    // A name: one length byte, then the bytes. Raises EWriteError when it is longer than 255 bytes.
    void WriteStr(std::string_view Value);
    void WriteBinary(const TStreamProc& WriteData);
    void WriteCollection(TCollection* Collection);
    void WriteListBegin() { WriteValue(vaList); }
    void WriteListEnd() { WriteValue(vaNull); }
    void WriteValue(TValueType Value) { FEncoder.Type(Value); }
    void WriteSignature() { FEncoder.Signature(); }
    // Raw bytes.
    void Write(const void* Buffer, int Count);
    void FlushBuffer();

    // Bytes from the start of the stream.
    int64_t GetPosition() const;
    PROPERTY_READ(int64_t, Position);

    // The root of the ancestor form; nullptr without one.
    TComponent* GetRootAncestor() const { return FRootAncestor; }
    void SetRootAncestor(TComponent* Value) { FRootAncestor = Value; }
    PROPERTY(TComponent*, RootAncestor);

    TFindAncestorEvent OnFindAncestor;
    TFindMethodNameEvent OnFindMethodName;

private:
    class TScope;

    TFormPrefix FindAncestor(TComponent* Component);
    void WriteChildren(TComponent* Component);
    void WriteProperty(TPersistent* Instance, const TPropertyInfo& Property);
    const TPropertyInfo* InheritedProperty(const TPropertyInfo& Property) const;
    void WriteOrdinal(const TPropertyInfo& Property, int64_t Value);
    void WriteOrdinalProperty(TPersistent* Instance, const TPropertyInfo& Property);
    void WriteFloatProperty(TPersistent* Instance, const TPropertyInfo& Property);
    void WriteStringProperty(TPersistent* Instance, const TPropertyInfo& Property);
    void WriteSet(const TTypeInfo& Type, int64_t Bits);
    void WriteObjectProperty(TPersistent* Instance, const TPropertyInfo& Property);
    void WriteReference(const TPropertyInfo& Property, TComponent* Value);
    void WriteNested(TPersistent* Value, TPersistent* Inherited, const char* Name);
    void WriteMethod(TPersistent* Instance, const TPropertyInfo& Property);
    void WritePropName(std::string_view Name);
    AnsiString ReferenceTo(TComponent* Component) const;
    bool SameReference(const TComponent* Value, const TComponent* Inherited) const;
    bool SameCollection(TCollection* Value, TCollection* Inherited) const;
    AnsiString FindMethodName(const TEventBase& Method);
    void CollectAncestorChild(TComponent* Child) { FAncestorChildren.push_back(Child); }

    TStream* FStream;
    std::string FBuffer;
    TFormEncoder FEncoder;
    AnsiString FPropPath; // "Font." inside of a nested object
    TComponent* FRootAncestor = nullptr;
    TComponent* FLookupRoot = nullptr;          // what is written as a whole; Root may be a frame in it
    std::vector<TComponent*> FAncestorChildren; // in the ancestor of the object whose children are written
    size_t FAncestorPos = 0;
    int FChildPos = 0;
    std::vector<std::unique_ptr<TComponent>> FFrames; // to compare frames with
    int FDepth = 0;
    int FUncaught; // exceptions that were on their way when the writer was made
};

// Writes Component with everything in it as a binary form.
void WriteComponent(TStream& Stream, TComponent* Component);
