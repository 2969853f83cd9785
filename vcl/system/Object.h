// TObject, the root of every framework class, and TMetaClass, what is known about a class at run time.
#pragma once

#include "vcl/system/Exceptions.h"
#include "vcl/system/LiveCount.h"
#include "vcl/system/Message.h"
#include "vcl/system/Property.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

using AnsiString = std::string; // UTF-8

class TClassDescription;
class TComponent;
class TMetaClass;
using TClass = const TMetaClass*;

// A class at run time: its name, its parent, how to create it, and (built on first use) its description.
class TMetaClass {
public:
    using TDescribe = void (*)(TClassDescription&);
    using TCreate = TComponent* (*)(TComponent*);

    constexpr TMetaClass(const char* Name, TClass Parent, TDescribe Describe, TCreate Create)
        : FName(Name),
          FParent(Parent),
          FDescribe(Describe),
          FCreate(Create)
    {}
    TMetaClass(const TMetaClass&) = delete;

    const char* ClassName() const { return FName; }
    // nullptr for TObject.
    TClass ClassParent() const { return FParent; }
    // True for the class itself and for its ancestors.
    bool InheritsFrom(TClass Ancestor) const;

    // A new component that belongs to Owner. Raises EInvalidOperation when the class is abstract or no component.
    TComponent* Create(TComponent* Owner) const;

    // Properties, messages, fields and methods, the ancestors' included.
    const TClassDescription& Description() const { return FDescription ? *FDescription : BuildDescription(); }

private:
    friend class TClassRegistry;

    const TClassDescription& BuildDescription() const;

    const char* FName;
    TClass FParent;
    TDescribe FDescribe;
    TCreate FCreate;
    mutable const TClassDescription* FDescription = nullptr;
    TMetaClass* FNextRegistered = nullptr;
};

template <class T>
class TClassBuilder;

// Every program that includes a class's header can create the class by name: the class enters the registry at start-up.
struct TClassRegistration {
    explicit TClassRegistration(TMetaClass& Class);
};

// The class registered under Name (case does not matter), or nullptr.
TClass GetClass(std::string_view Name);
// As GetClass, but raises EClassNotFound "Class %s not found".
TClass FindClass(std::string_view Name);
// Every class of the program, in the order of their names.
std::vector<TClass> RegisteredClasses();
// Makes Class known under another name as well; form files of renamed classes load so.
void RegisterClassAlias(TClass Class, std::string_view Alias);

namespace Detail {
template <class T>
void DescribeClass(TClassDescription& Description);
template <class T>
TComponent* CreateInstance(TComponent* Owner);
} // namespace Detail

// Stands first in every framework class. The class defines Describe, where it lists its published properties, events
// and message handlers.
#define VCL_CLASS(Class, Parent)                                                                                       \
public:                                                                                                                \
    using Self = Class;                                                                                                \
    using inherited = Parent;                                                                                          \
    static constexpr TClass StaticClass()                                                                              \
    {                                                                                                                  \
        return &MetaClass;                                                                                             \
    }                                                                                                                  \
    TClass ClassType() const override                                                                                  \
    {                                                                                                                  \
        return &MetaClass;                                                                                             \
    }                                                                                                                  \
    static void Describe(TClassBuilder<Class>& Class_);                                                                \
                                                                                                                       \
protected:                                                                                                             \
    /* Passes Message on to the parent class's handler. */                                                             \
    void Inherited(TMessage& Message)                                                                                  \
    {                                                                                                                  \
        DispatchAs(Parent::StaticClass(), Message);                                                                    \
    }                                                                                                                  \
                                                                                                                       \
private:                                                                                                               \
    static inline constinit TMetaClass MetaClass{#Class, Parent::StaticClass(), &Detail::DescribeClass<Class>,         \
                                                 &Detail::CreateInstance<Class>};                                      \
    static inline const TClassRegistration Registration{MetaClass};                                                    \
                                                                                                                       \
private:

class TObject {
public:
    TObject() noexcept { CountLiveObject(+1); }
    virtual ~TObject() { CountLiveObject(-1); }
    TObject(const TObject&) = delete;
    TObject& operator=(const TObject&) = delete;

    static constexpr TClass StaticClass() { return &MetaClass; }
    virtual TClass ClassType() const { return &MetaClass; }
    const char* ClassName() const { return ClassType()->ClassName(); }
    bool InheritsFrom(TClass Ancestor) const { return ClassType()->InheritsFrom(Ancestor); }

    void Free() { delete this; }

    // Calls the handler that the object's class, or the nearest ancestor, declares for Message.Msg; DefaultHandler when
    // there is none.
    void Dispatch(TMessage& Message) { DispatchAs(ClassType(), Message); }
    // What happens to a message that no handler took. Here: nothing.
    virtual void DefaultHandler(TMessage&) {}

protected:
    void DispatchAs(TClass Class, TMessage& Message);

private:
    static TMetaClass MetaClass;
};

// `__classid(TButton)`: the class object of a class, as VCL-style programs spell it.
#define __classid(Class) (Class::StaticClass())

// The object as a T, or nullptr when it is none. Cheaper than dynamic_cast and safe on nullptr.
template <class T>
T* As(TObject* Object)
{
    return Object && Object->InheritsFrom(T::StaticClass()) ? static_cast<T*>(Object) : nullptr;
}
template <class T>
const T* As(const TObject* Object)
{
    return Object && Object->InheritsFrom(T::StaticClass()) ? static_cast<const T*>(Object) : nullptr;
}
