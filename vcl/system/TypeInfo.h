// Types of published properties: enumerations, sets and ranges with their names.
#pragma once

#include "vcl/system/Event.h"
#include "vcl/system/Set.h"

#include <concepts>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

enum TTypeKind : uint8_t {
    tkInteger,     // any width up to 64 bits
    tkChar,        // one character
    tkEnumeration, // bool included
    tkSet,
    tkFloat,
    tkString,
    tkClass, // a nested persistent object, or a reference to a component
    tkMethod // an event
};

// Names for some values of an integer type: clBtnFace, crHandPoint, ANSI_CHARSET.
struct TIdentMap {
    // False when there is no such name or value; then the other argument is unchanged.
    bool (*IdentToInt)(std::string_view Ident, int64_t& Value);
    bool (*IntToIdent)(int64_t Value, AnsiString& Ident);
};

struct TTypeInfo {
    TTypeKind Kind;
    const char* Name;
    // Ordinal kinds: the allowed range. Sets: the range of their elements.
    int64_t MinValue = 0;
    int64_t MaxValue = 0;
    // Enumerations and sets: the names of the values from 0 up.
    std::vector<std::string_view> Names = {};
    // Integers: named values, or nullptr.
    const TIdentMap* Idents = nullptr;
    // tkClass: the declared class.
    TClass Class = nullptr;
    // tkMethod: tells signatures apart.
    const TSignature* Signature = nullptr;

    // The value of an enumeration's or set element's name (case does not matter); -1 when it has none of that name.
    int64_t ValueOf(std::string_view Ident) const;
};

namespace Detail {
std::vector<std::string_view> SplitEnumNames(const char* List);

template <class E>
concept TDescribedEnum = requires { EnumTypeInfo(static_cast<E*>(nullptr)); };
template <class T>
concept TIdentInteger = requires { IdentMapOf(static_cast<T*>(nullptr)); };
template <class T>
inline constexpr bool IsSet = false;
template <class E>
inline constexpr bool IsSet<Set<E>> = true;
template <class T>
inline constexpr bool IsEvent = false;
template <class S>
inline constexpr bool IsEvent<TEvent<S>> = true;
template <class S>
const TSignature* SignatureOfEvent(const TEvent<S>*)
{
    return &SignatureOf<S>;
}

TTypeInfo BoolTypeInfo();

template <class T>
TTypeInfo MakeTypeInfo()
{
    if constexpr (std::same_as<T, bool>) {
        return BoolTypeInfo();
    } else if constexpr (IsSet<T>) {
        TTypeInfo Info = EnumTypeInfo(static_cast<typename T::TElement*>(nullptr));
        Info.Kind = tkSet;
        return Info;
    } else if constexpr (TDescribedEnum<T>) {
        return EnumTypeInfo(static_cast<T*>(nullptr));
    } else if constexpr (TIdentInteger<T>) {
        return {.Kind = tkInteger,
                .Name = "Integer",
                .MinValue = std::numeric_limits<int32_t>::min(),
                .MaxValue = std::numeric_limits<int32_t>::max(),
                .Idents = IdentMapOf(static_cast<T*>(nullptr))};
    } else if constexpr (std::same_as<T, char>) {
        return {.Kind = tkChar, .Name = "Char", .MaxValue = 255};
    } else if constexpr (std::integral<T>) {
        constexpr auto Max = static_cast<uint64_t>(std::numeric_limits<T>::max());
        constexpr auto Limit = static_cast<uint64_t>(std::numeric_limits<int64_t>::max());
        return {.Kind = tkInteger,
                .Name = "Integer",
                .MinValue = static_cast<int64_t>(std::numeric_limits<T>::min()),
                .MaxValue = static_cast<int64_t>(Max < Limit ? Max : Limit)};
    } else if constexpr (std::floating_point<T>) {
        return {.Kind = tkFloat, .Name = "Double"};
    } else if constexpr (std::same_as<T, AnsiString>) {
        return {.Kind = tkString, .Name = "AnsiString"};
    } else if constexpr (IsEvent<T>) {
        return {.Kind = tkMethod, .Name = "Event", .Signature = SignatureOfEvent(static_cast<const T*>(nullptr))};
    } else {
        static_assert(std::is_pointer_v<T> && std::derived_from<std::remove_pointer_t<T>, TObject>,
                      "a published property is an ordinal, a set, a float, a string, an event or an object; an "
                      "enumeration is declared with VCL_ENUM");
        using Class = std::remove_pointer_t<T>;
        return {.Kind = tkClass, .Name = Class::StaticClass()->ClassName(), .Class = Class::StaticClass()};
    }
}
} // namespace Detail

// The one description of type T.
template <class T>
const TTypeInfo& TypeInfoOf()
{
    static const TTypeInfo Info = Detail::MakeTypeInfo<T>();
    return Info;
}

// Declares an enumeration of one byte whose values are named in form files: VCL_ENUM(TSide, sdLeft, sdTop).
#define VCL_ENUM(Type, ...)                                                                                            \
    enum Type : uint8_t { __VA_ARGS__ };                                                                               \
    inline TTypeInfo EnumTypeInfo(Type*)                                                                               \
    {                                                                                                                  \
        TTypeInfo Info{.Kind = tkEnumeration, .Name = #Type, .Names = Detail::SplitEnumNames(#__VA_ARGS__)};           \
        Info.MaxValue = static_cast<int64_t>(Info.Names.size()) - 1;                                                   \
        return Info;                                                                                                   \
    }

// Gives the values of an integer type names: INTEGER_IDENTS(TColor, ColorIdents) with a TIdentMap ColorIdents.
#define INTEGER_IDENTS(Type, Map)                                                                                      \
    inline const TIdentMap* IdentMapOf(Type*)                                                                          \
    {                                                                                                                  \
        return &(Map);                                                                                                 \
    }
