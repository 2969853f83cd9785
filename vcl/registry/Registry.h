// TRegistry: the registry, one key at a time.
//
//     TRegistry Registry;
//     if (Registry.OpenKey("Software\\Example", true))
//         Registry.WriteInteger("Count", 3);
//
// Names and texts are UTF-8; the value "" is the key's default value. In names of keys backslashes separate the levels;
// those at the end do no harm. What fails says so by its result or raises ERegistryException with key and value.
#pragma once

#include "vcl/registry/RegistryKey.h"
#include "vcl/system/Object.h"

class TStrings;

VCL_EXCEPTION(ERegistryException, Exception);

enum TRegDataType : uint8_t { rdUnknown, rdString, rdExpandString, rdInteger, rdBinary };

class TRegistry : public TObject {
public:
    explicit TRegistry(unsigned AAccess = KEY_ALL_ACCESS) : Access(AAccess) {}

    // ---- the key

    // What names of keys with a backslash in front begin at, and all names while no key is open. Changing it closes the
    // current key.
    HKEY GetRootKey() const { return FRootKey; }
    void SetRootKey(HKEY Value);
    PROPERTY(HKEY, RootKey);
    // nullptr when no key is open. It belongs to this object.
    HKEY GetCurrentKey() const { return FKey.Get(); }
    PROPERTY_READ(HKEY, CurrentKey);
    // Below RootKey, without a backslash at either end.
    const AnsiString& GetCurrentPath() const { return FCurrentPath; }
    PROPERTY_READ(AnsiString, CurrentPath);
    // The KEY_ constants that keys are opened with.
    unsigned Access;

    // Makes Key the current one: below the current one, or below RootKey when it begins with a backslash. False when
    // that is impossible; the current key then stays open. With CanCreate an absent key is made.
    bool OpenKey(std::string_view Key, bool CanCreate);
    // Opens an existing key for reading only; Access becomes KEY_READ.
    bool OpenKeyReadOnly(std::string_view Key);
    // Makes a key without opening it. Raises ERegistryException when that is impossible.
    void CreateKey(std::string_view Key);
    void CloseKey();

    bool KeyExists(std::string_view Key) const;
    // Deletes a key and all below it. False when there is none, or when Key is empty.
    bool DeleteKey(std::string_view Key);
    bool HasSubKeys() const;
    // Replace what Strings holds by the names of all keys or values that are directly in the current key.
    void GetKeyNames(TStrings* Strings) const;
    void GetValueNames(TStrings* Strings) const;

    // ---- values of the current key

    bool ValueExists(std::string_view Name) const;
    // False when there is none.
    bool DeleteValue(std::string_view Name);
    // rdUnknown when there is none, or when it is of another kind.
    TRegDataType GetDataType(std::string_view Name) const;
    // In bytes, a text's terminating zero included; -1 when there is none.
    int GetDataSize(std::string_view Name) const;

    // Empty when there is none. These raise ERegistryException "Invalid data type for ..." for a value of another kind.
    AnsiString ReadString(std::string_view Name) const;
    // The others raise ERegistryException "Failed to get data for ..." when there is none.
    int ReadInteger(std::string_view Name) const;
    bool ReadBool(std::string_view Name) const { return ReadInteger(Name) != 0; }
    double ReadFloat(std::string_view Name) const;
    // Copies the value to Buffer and returns its size in bytes; 0 when there is none. Raises ERegistryException, with
    // Buffer untouched, when it is larger than BufSize.
    int ReadBinaryData(std::string_view Name, void* Buffer, int BufSize) const;

    // They raise ERegistryException "Failed to set data for ..." when that is impossible.
    void WriteString(std::string_view Name, std::string_view Value);
    void WriteExpandString(std::string_view Name, std::string_view Value);
    void WriteInteger(std::string_view Name, int Value);
    void WriteBool(std::string_view Name, bool Value) { WriteInteger(Name, Value); }
    void WriteFloat(std::string_view Name, double Value);
    void WriteBinaryData(std::string_view Name, const void* Buffer, int BufSize);

protected:
    // Makes Key the current one; its result is the system's.
    LSTATUS Enter(std::string_view Key, bool CanCreate, unsigned KeyAccess);
    // "What for 'Name' in 'PATH': Reason"; PATH is that of Key, seen from the current key.
    [[noreturn]] void Raise(const char* What, std::string_view Name, std::string_view Reason,
                            std::string_view Key = {}) const;
    // Raises when Status is not ERROR_SUCCESS.
    void CheckWritten(std::string_view Name, LSTATUS Status, std::string_view Key = {}) const;

private:
    // Where the name of a key begins.
    HKEY BaseOf(std::string_view Key) const;
    // The path of Key below the root.
    AnsiString PathOf(std::string_view Key) const;

    HKEY FRootKey = HKEY_CURRENT_USER;
    TRegistryKey FKey;
    AnsiString FCurrentPath;
};
