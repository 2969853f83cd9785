// Events: an object and one of its methods, or a lambda. Two words, comparable, copied like a value.
//
//     Button->OnClick = {this, &TForm1::ButtonClick};
//     Button->OnClick = [](TObject* Sender) { ... };
//     Button->OnClick = nullptr;
#pragma once

#include "vcl/system/MethodPointer.h"
#include "vcl/system/Object.h"

#include <concepts>
#include <source_location>
#include <string_view>
#include <type_traits>
#include <utility>

// What events of every signature share. A method is held as its object and its code; a lambda as a shared holder in
// place of the object, and no code.
class TEventBase {
public:
    TEventBase() = default;
    TEventBase(const TEventBase& Other) noexcept : FData(Other.FData), FCode(Other.FCode) { AddRef(); }
    TEventBase(TEventBase&& Other) noexcept
        : FData(std::exchange(Other.FData, nullptr)),
          FCode(std::exchange(Other.FCode, 0))
    {}
    TEventBase& operator=(TEventBase Other) noexcept
    {
        std::swap(FData, Other.FData);
        std::swap(FCode, Other.FCode);
        return *this;
    }
    ~TEventBase() { Release(); }

    bool Assigned() const noexcept { return FData != nullptr; }
    explicit operator bool() const noexcept { return Assigned(); }

    // The object whose method is called; nullptr for a lambda and when unassigned.
    TObject* Data() const noexcept { return FCode ? FData : nullptr; }
    // Identifies the method; 0 for a lambda and when unassigned. Only good for comparing.
    uintptr_t Code() const noexcept { return FCode; }

    // Two lambdas are equal when one was copied from the other.
    friend bool operator==(const TEventBase& A, const TEventBase& B) noexcept
    {
        return A.FData == B.FData && A.FCode == B.FCode;
    }

protected:
    class THolder : public TObject {
    public:
        int References = 1;
    };

    TEventBase(TObject* Data, uintptr_t Code) noexcept : FData(Data), FCode(Code) {}

    bool IsHolder() const noexcept { return FData && !FCode; }
    void AddRef() const noexcept
    {
        if (IsHolder())
            ++static_cast<THolder*>(FData)->References;
    }
    void Release() noexcept
    {
        if (IsHolder() && --static_cast<THolder*>(FData)->References == 0)
            delete FData;
    }

    TObject* FData = nullptr;
    uintptr_t FCode = 0;
};

// The arguments and result of an event or a method, one object for each: tells whether a method that was found by name
// fits an event.
struct TSignature {
    AnsiString (*Text)(); // "void(TObject*, int)"
};

namespace Detail {
// The signature in what the compiler calls SignatureText<Signature>.
AnsiString CutSignature(std::string_view FunctionName);

template <class Signature>
AnsiString SignatureText()
{
    return CutSignature(std::source_location::current().function_name());
}
} // namespace Detail

template <class Signature>
inline constexpr TSignature SignatureOf{&Detail::SignatureText<Signature>};

template <class Signature>
class TEvent;

template <class Result, class... Args>
class TEvent<Result(Args...)> : public TEventBase {
public:
    using TMethod = Result (TObject::*)(Args...);

    TEvent() = default;
    TEvent(std::nullptr_t) {}

    template <class Object, class Class>
        requires std::derived_from<Object, Class> && std::derived_from<Class, TObject>
    TEvent(Object* Instance, Result (Class::*Method)(Args...))
        : TEventBase(static_cast<Class*>(Instance), MethodToCode(static_cast<TMethod>(Method)))
    {
        if (FCode == 0)
            *this = [Instance, Method](Args... Arguments) { return (Instance->*Method)(Arguments...); };
    }

    template <class Function>
        requires(!std::derived_from<std::remove_cvref_t<Function>, TEventBase>) &&
                std::is_invocable_r_v<Result, Function&, Args...>
    TEvent(Function Callable) : TEventBase(new TClosure<Function>(std::move(Callable)), 0)
    {}

    // An event from a method table's entry; the caller has compared the signatures.
    static TEvent FromCode(TObject* Data, uintptr_t Code)
    {
        TEvent Event;
        Event.FData = Data;
        Event.FCode = Code;
        return Event;
    }

    // Calls the method or lambda; an unassigned event does nothing. The handler may reassign the event.
    Result operator()(Args... Arguments) const
    {
        if (FCode)
            return (FData->*CodeToMethod<TMethod>(FCode))(std::forward<Args>(Arguments)...);
        if (!FData)
            return Result();
        TEvent KeepAlive = *this;
        return static_cast<TCallable*>(FData)->Call(std::forward<Args>(Arguments)...);
    }

private:
    class TCallable : public THolder {
    public:
        virtual Result Call(Args... Arguments) = 0;
    };
    template <class Function>
    class TClosure final : public TCallable {
    public:
        explicit TClosure(Function&& Callable) : FCallable(std::move(Callable)) {}
        Result Call(Args... Arguments) override { return FCallable(std::forward<Args>(Arguments)...); }

    private:
        Function FCallable;
    };
};

using TNotifyEvent = TEvent<void(TObject* Sender)>;
