// The vocabulary of a class's Describe function.
#pragma once

#include "vcl/system/ClassDescription.h"

namespace Detail {

// What a getter gives or a setter takes, without const and reference.
template <class>
struct TMemberValue;
template <class R, class C>
struct TMemberValue<R (C::*)() const> {
    using Type = std::remove_cvref_t<R>;
};
template <class R, class C>
struct TMemberValue<R (C::*)()> {
    using Type = std::remove_cvref_t<R>;
};
template <class R, class C>
    requires std::is_object_v<R>
struct TMemberValue<R C::*> {
    using Type = R;
};

template <class>
struct TMethodTraits;
template <class R, class C, class... Args>
struct TMethodTraits<R (C::*)(Args...)> {
    using TSignature = R(Args...);
    using TFirst = std::remove_cvref_t<std::tuple_element_t<0, std::tuple<Args..., void>>>;
};

template <auto Member, class T>
decltype(auto) Read(const T* Instance)
{
    if constexpr (std::is_member_object_pointer_v<decltype(Member)>)
        return (Instance->*Member);
    else
        return (const_cast<T*>(Instance)->*Member)();
}

template <auto Member, class T, class V>
void Write(T* Instance, V&& Value)
{
    if constexpr (std::is_member_object_pointer_v<decltype(Member)>)
        Instance->*Member = std::forward<V>(Value);
    else
        (Instance->*Member)(std::forward<V>(Value));
}

template <class Value>
int64_t ToOrdinal(Value V)
{
    if constexpr (IsSet<Value>)
        return V.Bits();
    else
        return static_cast<int64_t>(V);
}

template <class Value>
Value FromOrdinal(int64_t V)
{
    if constexpr (IsSet<Value>)
        return Value::FromBits(static_cast<uint32_t>(V));
    else
        return static_cast<Value>(V);
}

} // namespace Detail

// What may follow a property: its default and when it is stored.
template <class T>
class TPropertyBuilder {
public:
    explicit TPropertyBuilder(TPropertyInfo& Info) : FInfo(&Info) {}

    template <class Value>
    TPropertyBuilder& Default(Value V)
    {
        FInfo->HasDefault = true;
        FInfo->Default = Detail::ToOrdinal(V);
        return *this;
    }
    TPropertyBuilder& NoDefault()
    {
        FInfo->HasDefault = false;
        return *this;
    }
    // Written to form files only when the method or field says so.
    template <auto Member>
    TPropertyBuilder& Stored()
    {
        FInfo->IsStored = [](const TObject* Instance) -> bool {
            return Detail::Read<Member>(static_cast<const T*>(Instance));
        };
        return *this;
    }
    TPropertyBuilder& NotStored()
    {
        FInfo->IsStored = [](const TObject*) { return false; };
        return *this;
    }
    TPropertyBuilder& AlwaysStored()
    {
        FInfo->IsStored = nullptr;
        return *this;
    }
    // What its setter accepts depends on other properties of the object, as a ranged position does on its limits: when
    // a form is read it is set behind them, in whatever order the file has them.
    TPropertyBuilder& ReadLast()
    {
        FInfo->ReadsLast = true;
        return *this;
    }
    TPropertyBuilder& Identifiers(const TIdentMap& Map)
    {
        FInfo->Idents = &Map;
        return *this;
    }

private:
    TPropertyInfo* FInfo;
};

template <class T>
class TClassBuilder {
public:
    explicit TClassBuilder(TClassDescription& Description) : FDescription(Description) {}

    // A published property: getter and setter, each a method or a data member. Without a setter it is read-only.
    template <auto Getter, auto Setter = nullptr>
    TPropertyBuilder<T> Property(const char* Name)
    {
        return TPropertyBuilder<T>(FDescription.AddProperty(MakeProperty<Getter, Setter>(Name, true)));
    }
    // A property that only descendants publish.
    template <auto Getter, auto Setter = nullptr>
    TPropertyBuilder<T> Declare(const char* Name)
    {
        return TPropertyBuilder<T>(FDescription.AddProperty(MakeProperty<Getter, Setter>(Name, false)));
    }
    // A published data member: read and written directly.
    template <auto Member>
    TPropertyBuilder<T> Value(const char* Name)
    {
        return Property<Member, Member>(Name);
    }

    // Publishes what an ancestor declared or published, perhaps with another default. It keeps its place when it was
    // published before.
    TPropertyBuilder<T> Publish(const char* Name) { return TPropertyBuilder<T>(FDescription.Republish(Name)); }
    // Several at once, in this order.
    template <class... Names>
    void PublishAll(Names... Name)
    {
        (FDescription.Republish(Name), ...);
    }

    template <auto Member>
    void Event(const char* Name)
    {
        FDescription.AddProperty(MakeProperty<Member, Member>(Name, true));
    }
    template <auto Member>
    void DeclareEvent(const char* Name)
    {
        FDescription.AddProperty(MakeProperty<Member, Member>(Name, false));
    }

    // A handler `void Handler(TMessage&)`, or one that takes a type derived from TMessage.
    template <auto Handler>
    void Message(uint32_t Msg)
    {
        using Parameter = typename Detail::TMethodTraits<decltype(Handler)>::TFirst;
        static_assert(std::derived_from<Parameter, TMessage> && sizeof(Parameter) == sizeof(TMessage));
        FDescription.AddMessage({Msg, [](TObject* Instance, TMessage& Message) {
                                     (static_cast<T*>(Instance)->*Handler)(static_cast<Parameter&>(Message));
                                 }});
    }

    // A form's component field.
    template <auto Member>
    void Field(const char* Name)
    {
        using Component = std::remove_pointer_t<typename Detail::TMemberValue<decltype(Member)>::Type>;
        FDescription.FFields.push_back({Name, Component::StaticClass(), [](TObject* Form, TObject* Value) {
                                            static_cast<T*>(Form)->*Member = static_cast<Component*>(Value);
                                        }});
    }

    // A form's event handler.
    template <auto Handler>
    void Method(const char* Name)
    {
        using Traits = Detail::TMethodTraits<decltype(Handler)>;
        using Event = TEvent<typename Traits::TSignature>;
        FDescription.FMethods.push_back({Name, MethodToCode(static_cast<typename Event::TMethod>(Handler)),
                                         &SignatureOf<typename Traits::TSignature>});
    }

private:
    template <auto Getter, auto Setter>
    static TPropertyInfo MakeProperty(const char* Name, bool Published)
    {
        using V = typename Detail::TMemberValue<decltype(Getter)>::Type;
        TPropertyInfo Info(Name, TypeInfoOf<V>(), Published);
        constexpr bool Writable = !std::same_as<decltype(Setter), std::nullptr_t>;
        if constexpr (std::same_as<V, AnsiString>) {
            Info.GetString = [](const TObject* O) -> AnsiString { return Detail::Read<Getter>(Cast(O)); };
            if constexpr (Writable)
                Info.SetString = [](TObject* O, const AnsiString& Text) { Detail::Write<Setter>(Cast(O), Text); };
        } else if constexpr (std::floating_point<V>) {
            Info.GetFloat = [](const TObject* O) -> double { return Detail::Read<Getter>(Cast(O)); };
            if constexpr (Writable)
                Info.SetFloat = [](TObject* O, double Number) {
                    Detail::Write<Setter>(Cast(O), static_cast<V>(Number));
                };
        } else if constexpr (Detail::IsEvent<V>) {
            Info.GetEvent = [](const TObject* O) -> TEventBase { return Detail::Read<Getter>(Cast(O)); };
            if constexpr (Writable)
                Info.SetEvent = [](TObject* O, TObject* Data, uintptr_t Code) {
                    Detail::Write<Setter>(Cast(O), Code ? V::FromCode(Data, Code) : V());
                };
        } else if constexpr (std::is_pointer_v<V>) {
            Info.GetObject = [](const TObject* O) -> TObject* {
                return const_cast<std::remove_const_t<std::remove_pointer_t<V>>*>(Detail::Read<Getter>(Cast(O)));
            };
            if constexpr (Writable)
                Info.SetObject = [](TObject* O, TObject* Object) {
                    Detail::Write<Setter>(Cast(O), static_cast<V>(Object));
                };
        } else {
            Info.GetOrdinal = [](const TObject* O) { return Detail::ToOrdinal<V>(Detail::Read<Getter>(Cast(O))); };
            if constexpr (Writable)
                Info.SetOrdinal = [](TObject* O, int64_t Ordinal) {
                    Detail::Write<Setter>(Cast(O), Detail::FromOrdinal<V>(Ordinal));
                };
        }
        return Info;
    }

    static const T* Cast(const TObject* Instance) { return static_cast<const T*>(Instance); }
    static T* Cast(TObject* Instance) { return static_cast<T*>(Instance); }

    TClassDescription& FDescription;
};

namespace Detail {

template <class T>
void DescribeClass(TClassDescription& Description)
{
    TClassBuilder<T> Builder(Description);
    T::Describe(Builder);
}

[[noreturn]] void RaiseNotCreatable(TClass Class);

template <class T>
TComponent* CreateInstance([[maybe_unused]] TComponent* Owner)
{
    if constexpr (!std::is_abstract_v<T> && std::is_constructible_v<T, TComponent*> &&
                  std::is_convertible_v<T*, TComponent*>)
        return new T(Owner);
    else
        RaiseNotCreatable(T::StaticClass());
}

} // namespace Detail
