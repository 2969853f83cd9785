#include "vcl/registry/Registry.h"

#include "vcl/classes/Strings.h"
#include "vcl/registry/RegistryValue.h"
#include "vcl/system/Format.h"

#include <cstring>

namespace {

const char* RootName(HKEY Root)
{
    static const std::pair<HKEY, const char*> Names[] = {
        {HKEY_CLASSES_ROOT, "HKEY_CLASSES_ROOT"},     {HKEY_CURRENT_USER, "HKEY_CURRENT_USER"},
        {HKEY_LOCAL_MACHINE, "HKEY_LOCAL_MACHINE"},   {HKEY_USERS, "HKEY_USERS"},
        {HKEY_CURRENT_CONFIG, "HKEY_CURRENT_CONFIG"},
    };
    for (const auto& [Key, Name] : Names)
        if (Key == Root)
            return Name;
    return "";
}

bool IsAbsolute(std::string_view Key)
{
    return Key.starts_with('\\');
}

} // namespace

// ---- the key

void TRegistry::SetRootKey(HKEY Value)
{
    if (FRootKey == Value)
        return;
    CloseKey();
    FRootKey = Value;
}

HKEY TRegistry::BaseOf(std::string_view Key) const
{
    return FKey && !IsAbsolute(Key) ? FKey.Get() : FRootKey;
}

AnsiString TRegistry::PathOf(std::string_view Key) const
{
    AnsiString Path;
    bool Separated = true;
    auto Append = [&](std::string_view Part) {
        for (const char C : Part) {
            const bool First = std::exchange(Separated, C == '\\') && C != '\\';
            if (First && !Path.empty())
                Path += '\\';
            if (C != '\\')
                Path += C;
        }
        Separated = true;
    };
    if (FKey && !IsAbsolute(Key))
        Append(FCurrentPath);
    Append(Key);
    return Path;
}

LSTATUS TRegistry::Enter(std::string_view Key, bool CanCreate, unsigned KeyAccess)
{
    TRegistryKey Opened;
    const LSTATUS Status =
        CanCreate ? Opened.Create(BaseOf(Key), Key, KeyAccess) : Opened.Open(BaseOf(Key), Key, KeyAccess);
    if (Status != ERROR_SUCCESS)
        return Status;
    FCurrentPath = PathOf(Key);
    FKey = std::move(Opened);
    return Status;
}

bool TRegistry::OpenKey(std::string_view Key, bool CanCreate)
{
    return Enter(Key, CanCreate, Access) == ERROR_SUCCESS;
}

bool TRegistry::OpenKeyReadOnly(std::string_view Key)
{
    if (Enter(Key, false, KEY_READ) != ERROR_SUCCESS)
        return false;
    Access = KEY_READ;
    return true;
}

void TRegistry::CreateKey(std::string_view Key)
{
    TRegistryKey Created;
    const LSTATUS Status = Created.Create(BaseOf(Key), Key, Access);
    if (Status != ERROR_SUCCESS)
        throw ERegistryException("Failed to create key '" + AnsiString(RootName(FRootKey)) + "\\" + PathOf(Key) +
                                 "': " + RegistryErrorText(Status));
}

void TRegistry::CloseKey()
{
    FKey.Close();
    FCurrentPath.clear();
}

bool TRegistry::KeyExists(std::string_view Key) const
{
    return TRegistryKey().Open(BaseOf(Key), Key, KEY_READ) == ERROR_SUCCESS;
}

bool TRegistry::DeleteKey(std::string_view Key)
{
    const TKeyPath Path(Key);
    return !Path.empty() && RegDeleteTreeW(BaseOf(Key), Path.c_str()) == ERROR_SUCCESS;
}

bool TRegistry::HasSubKeys() const
{
    DWORD Count = 0;
    RegQueryInfoKeyW(FKey.Get(), nullptr, nullptr, nullptr, &Count, nullptr, nullptr, nullptr, nullptr, nullptr,
                     nullptr, nullptr);
    return Count > 0;
}

void TRegistry::GetKeyNames(TStrings* Strings) const
{
    const TStringsUpdate Update(Strings);
    Strings->Clear();
    AddKeyNames(FKey.Get(), Strings);
}

void TRegistry::GetValueNames(TStrings* Strings) const
{
    const TStringsUpdate Update(Strings);
    Strings->Clear();
    AddValueNames(FKey.Get(), Strings);
}

// ---- values

void TRegistry::Raise(const char* What, std::string_view Name, std::string_view Reason, std::string_view Key) const
{
    throw ERegistryException(
        Format("%s for '%s' in '%s\\%s': %s", What, Name, RootName(FRootKey), PathOf(Key), Reason));
}

void TRegistry::CheckWritten(std::string_view Name, LSTATUS Status, std::string_view Key) const
{
    if (Status != ERROR_SUCCESS)
        Raise("Failed to set data", Name, RegistryErrorText(Status), Key);
}

bool TRegistry::ValueExists(std::string_view Name) const
{
    return GetDataSize(Name) >= 0;
}

bool TRegistry::DeleteValue(std::string_view Name)
{
    return RegDeleteValueW(FKey.Get(), TWideText(Name).c_str()) == ERROR_SUCCESS;
}

TRegDataType TRegistry::GetDataType(std::string_view Name) const
{
    switch (TRegistryValue(FKey.Get(), Name).Type()) {
    case REG_SZ: return rdString;
    case REG_EXPAND_SZ: return rdExpandString;
    case REG_DWORD: return rdInteger;
    case REG_BINARY: return rdBinary;
    default: return rdUnknown;
    }
}

int TRegistry::GetDataSize(std::string_view Name) const
{
    const TRegistryValue Value(FKey.Get(), Name);
    return Value.Exists() ? static_cast<int>(Value.Size()) : -1;
}

AnsiString TRegistry::ReadString(std::string_view Name) const
{
    const TRegistryValue Value(FKey.Get(), Name);
    if (Value.Exists() && !Value.IsText())
        Raise("Invalid data type", Name, "it is no text");
    return FromWide(Value.Text());
}

namespace {

// What does not fit leaves Number alone and tells why.
template <class T>
const char* ReadNumber(const TRegistryValue& Value, DWORD Type, T& Number)
{
    if (Value.Type() != Type)
        return "it is of another kind";
    if (Value.Size() != sizeof(T))
        return "it is of another size";
    std::memcpy(&Number, Value.Data(), sizeof(T));
    return nullptr;
}

} // namespace

int TRegistry::ReadInteger(std::string_view Name) const
{
    const TRegistryValue Value(FKey.Get(), Name);
    int Number = 0;
    if (!Value.Exists())
        Raise("Failed to get data", Name, RegistryErrorText(Value.Status()));
    if (const char* Reason = ReadNumber(Value, REG_DWORD, Number))
        Raise("Invalid data type", Name, Reason);
    return Number;
}

double TRegistry::ReadFloat(std::string_view Name) const
{
    const TRegistryValue Value(FKey.Get(), Name);
    double Number = 0;
    if (!Value.Exists())
        Raise("Failed to get data", Name, RegistryErrorText(Value.Status()));
    if (const char* Reason = ReadNumber(Value, REG_BINARY, Number))
        Raise("Invalid data type", Name, Reason);
    return Number;
}

int TRegistry::ReadBinaryData(std::string_view Name, void* Buffer, int BufSize) const
{
    const TRegistryValue Value(FKey.Get(), Name);
    if (!Value.Exists())
        return 0;
    if (Value.Type() != REG_BINARY)
        Raise("Invalid data type", Name, "it is no binary data");
    if (BufSize < 0 || Value.Size() > static_cast<size_t>(BufSize))
        Raise("Failed to get data", Name, Format("%d bytes do not fit in %d", Value.Size(), BufSize));
    if (Value.Size() > 0)
        std::memcpy(Buffer, Value.Data(), Value.Size());
    return static_cast<int>(Value.Size());
}

void TRegistry::WriteString(std::string_view Name, std::string_view Value)
{
    CheckWritten(Name, WriteRegistryText(FKey.Get(), Name, Value));
}

void TRegistry::WriteExpandString(std::string_view Name, std::string_view Value)
{
    CheckWritten(Name, WriteRegistryText(FKey.Get(), Name, Value, REG_EXPAND_SZ));
}

void TRegistry::WriteInteger(std::string_view Name, int Value)
{
    CheckWritten(Name, WriteRegistryValue(FKey.Get(), Name, REG_DWORD, &Value, sizeof(Value)));
}

void TRegistry::WriteFloat(std::string_view Name, double Value)
{
    CheckWritten(Name, WriteRegistryValue(FKey.Get(), Name, REG_BINARY, &Value, sizeof(Value)));
}

void TRegistry::WriteBinaryData(std::string_view Name, const void* Buffer, int BufSize)
{
    if (BufSize < 0)
        Raise("Failed to set data", Name, Format("%d bytes are no size", BufSize));
    CheckWritten(Name, WriteRegistryValue(FKey.Get(), Name, REG_BINARY, Buffer, static_cast<size_t>(BufSize)));
}
