// TRegistryValue: one value as the registry holds it, read once; on the stack when it is short.
#pragma once

#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <memory>
#include <string_view>

class TRegistryValue {
public:
    // A closed key (nullptr) has no values.
    TRegistryValue(HKEY Key, std::string_view Name);
    TRegistryValue(const TRegistryValue&) = delete;

    // ERROR_SUCCESS, or why there is none.
    LSTATUS Status() const { return FStatus; }
    bool Exists() const { return FStatus == ERROR_SUCCESS; }

    // One of the REG_ constants; REG_NONE when there is no value.
    DWORD Type() const { return FType; }
    const void* Data() const { return FLong ? FLong.get() : FShort; }
    // In bytes.
    size_t Size() const { return FSize; }

    bool IsText() const { return Exists() && (FType == REG_SZ || FType == REG_EXPAND_SZ); }
    // What stands before the first zero, or all of it: other programs write texts without one. Empty when it is no
    // text.
    TWideView Text() const;

private:
    LSTATUS FStatus;
    DWORD FType = REG_NONE;
    DWORD FSize = sizeof(FShort);
    std::unique_ptr<BYTE[]> FLong;
    alignas(8) BYTE FShort[512];
};
