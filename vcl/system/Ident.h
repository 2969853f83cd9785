// Identifiers: class, property and component names. Their case never matters and they are plain ASCII.
#pragma once

#include <cstdint>
#include <string_view>

constexpr char LowerIdentChar(char C)
{
    return C >= 'A' && C <= 'Z' ? static_cast<char>(C + ('a' - 'A')) : C;
}

constexpr bool SameIdent(std::string_view A, std::string_view B)
{
    if (A.size() != B.size())
        return false;
    for (size_t I = 0; I < A.size(); ++I)
        if (LowerIdentChar(A[I]) != LowerIdentChar(B[I]))
            return false;
    return true;
}

// FNV-1a over the lower-case name.
constexpr uint32_t IdentHash(std::string_view Name)
{
    uint32_t Hash = 2166136261u;
    for (char C : Name)
        Hash = (Hash ^ static_cast<uint8_t>(LowerIdentChar(C))) * 16777619u;
    return Hash;
}

// A letter or underscore, then letters, digits and underscores.
constexpr bool IsValidIdent(std::string_view Name)
{
    if (Name.empty() || (Name[0] >= '0' && Name[0] <= '9'))
        return false;
    for (char C : Name)
        if (C != '_' && !(C >= '0' && C <= '9') && !(LowerIdentChar(C) >= 'a' && LowerIdentChar(C) <= 'z'))
            return false;
    return true;
}
