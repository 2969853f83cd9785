// TRegistryKey: one open key of the registry, by the system's calls and with texts in UTF-8. Nothing raises here:
// results are the system's, ERROR_SUCCESS or what went wrong. Keys and values are not cached.
#pragma once

#include "vcl/graphics/Handle.h"
#include "vcl/system/Utf.h"

#include <string_view>

class TStrings;

// The path of a key as the system takes it: backslashes at the ends are dropped, and several in a row count once.
class TKeyPath {
public:
    explicit TKeyPath(std::string_view Path);

    const wchar_t* c_str() const { return FText.c_str(); }
    bool empty() const { return *FText.c_str() == 0; }

private:
    TWideText FText;
};

inline void CloseRegistryKey(HKEY Key)
{
    RegCloseKey(Key);
}

class TRegistryKey {
public:
    // Path is below Parent; empty, it is Parent itself. Access is a combination of KEY_ constants. What was open before
    // is closed; after a failure no key is open.
    LSTATUS Open(HKEY Parent, std::string_view Path, REGSAM Access);
    // As Open, but makes the key and all above it when they are absent.
    LSTATUS Create(HKEY Parent, std::string_view Path, REGSAM Access);
    void Close() { FHandle.Reset(); }

    HKEY Get() const { return FHandle.Get(); }
    explicit operator bool() const { return static_cast<bool>(FHandle); }

private:
    TOwnedHandle<HKEY, CloseRegistryKey> FHandle;
};

// A value of an open key; the one without a name is "".
LSTATUS WriteRegistryValue(HKEY Key, std::string_view Name, DWORD Type, const void* Data, size_t Size);
// The same for a text; Type is REG_SZ or REG_EXPAND_SZ.
LSTATUS WriteRegistryText(HKEY Key, std::string_view Name, std::string_view Text, DWORD Type = REG_SZ);

// Adds the names of what is directly in Key.
void AddKeyNames(HKEY Key, TStrings* Names);
void AddValueNames(HKEY Key, TStrings* Names);

// What a result means, in the system's words and language.
std::string RegistryErrorText(LSTATUS Status);
