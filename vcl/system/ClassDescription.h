// What a class publishes: its properties in declared order, message handlers, and (forms) fields and methods. One
// description serves form streaming, dispatch by number, the object inspector and creation by name.
#pragma once

#include "vcl/system/IdentIndex.h"
#include "vcl/system/TypeInfo.h"

#include <deque>
#include <span>

// One property as its class, or the nearest ancestor that re-published it, declares it.
struct TPropertyInfo {
    using TGetOrdinal = int64_t (*)(const TObject*);
    using TSetOrdinal = void (*)(TObject*, int64_t);
    using TGetFloat = double (*)(const TObject*);
    using TSetFloat = void (*)(TObject*, double);
    using TGetString = AnsiString (*)(const TObject*);
    using TSetString = void (*)(TObject*, const AnsiString&);
    using TGetObject = TObject* (*)(const TObject*);
    using TSetObject = void (*)(TObject*, TObject*);
    using TGetEvent = TEventBase (*)(const TObject*);
    // Code is a method of Data with the event's signature.
    using TSetEvent = void (*)(TObject*, TObject* Data, uintptr_t Code);
    using TIsStored = bool (*)(const TObject*);

    TPropertyInfo(const char* AName, const TTypeInfo& AType, bool APublished)
        : Name(AName),
          Type(&AType),
          Idents(AType.Idents),
          Published(APublished)
    {}

    const char* Name;
    const TTypeInfo* Type;
    // Named values of an integer property; the type's own unless the property says otherwise.
    const TIdentMap* Idents;

    // The pair that fits Type->Kind: ordinal for tkInteger, tkChar, tkEnumeration and tkSet (as bits). A read-only
    // property has no setter.
    union {
        TGetOrdinal GetOrdinal = nullptr;
        TGetFloat GetFloat;
        TGetString GetString;
        TGetObject GetObject;
        TGetEvent GetEvent;
    };
    union {
        TSetOrdinal SetOrdinal = nullptr;
        TSetFloat SetFloat;
        TSetString SetString;
        TSetObject SetObject;
        TSetEvent SetEvent;
    };

    // Ordinal kinds: a value equal to the default is not written to form files. Without a default it always is.
    bool HasDefault = false;
    int64_t Default = 0;
    // nullptr: stored.
    TIsStored IsStored = nullptr;
    // Its setter looks at other properties of the object: form files set it when they have set those, wherever it
    // stands.
    bool ReadsLast = false;
    // Declared only, for descendants to publish; form files cannot name it.
    bool Published;

    bool ReadOnly() const { return SetOrdinal == nullptr; }
    bool Stored(const TObject* Instance) const { return !IsStored || IsStored(Instance); }
};

// A form's published field: holds the component of that name while it exists.
struct TFieldInfo {
    const char* Name;
    TClass Class;
    void (*Set)(TObject* Form, TObject* Component);
};

// A form's published method: the handlers that a form file names.
struct TMethodInfo {
    const char* Name;
    uintptr_t Code;
    const TSignature* Signature;
};

struct TMessageInfo {
    uint32_t Msg;
    void (*Handler)(TObject*, TMessage&);
};

// Everything a class has, its ancestors' part included. Look-ups allocate nothing.
class TClassDescription {
public:
    explicit TClassDescription(const TClassDescription* Parent);

    // Published properties in order: the ancestors' first, each in the place where it was first published.
    std::span<const TPropertyInfo* const> Properties() const { return FPublished; }
    // A published property by name (case does not matter), or nullptr.
    const TPropertyInfo* FindProperty(std::string_view Name) const;
    const TFieldInfo* FindField(std::string_view Name) const;
    const TMethodInfo* FindMethod(std::string_view Name) const;
    // The name of a method found by its code; nullptr when the class does not list it.
    const char* MethodName(uintptr_t Code) const;
    // The handler of a message, or nullptr.
    const TMessageInfo* FindMessage(uint32_t Msg) const;

private:
    template <class T>
    friend class TClassBuilder;
    friend class TMetaClass;

    TPropertyInfo& AddProperty(const TPropertyInfo& Property);
    TPropertyInfo& Republish(const char* Name);
    void AddMessage(const TMessageInfo& Message);
    void Seal();

    const TPropertyInfo* FindDeclared(std::string_view Name) const;

    const TClassDescription* FParent;
    std::deque<TPropertyInfo> FOwn;
    std::vector<const TPropertyInfo*> FPublished;
    std::vector<TMessageInfo> FMessages; // by number, the ancestors' included
    std::vector<TFieldInfo> FFields;     // the class's own
    std::vector<TMethodInfo> FMethods;   // the class's own
    TIdentIndex<TPropertyInfo> FPropertyIndex;
    TIdentIndex<TFieldInfo> FFieldIndex;
    TIdentIndex<TMethodInfo> FMethodIndex;
};
