#include "vcl/registry/RegistryKey.h"

#include "vcl/classes/Strings.h"

TKeyPath::TKeyPath(std::string_view Path) : FText(Path)
{
    wchar_t* Out = FText.data();
    for (const wchar_t* In = Out; *In;) {
        while (*In == L'\\')
            ++In;
        if (*In && Out != FText.data())
            *Out++ = L'\\';
        while (*In && *In != L'\\')
            *Out++ = *In++;
    }
    *Out = 0;
}

LSTATUS TRegistryKey::Open(HKEY Parent, std::string_view Path, REGSAM Access)
{
    HKEY Key = nullptr;
    const LSTATUS Status = RegOpenKeyExW(Parent, TKeyPath(Path).c_str(), 0, Access, &Key);
    FHandle.Reset(Status == ERROR_SUCCESS ? Key : nullptr);
    return Status;
}

LSTATUS TRegistryKey::Create(HKEY Parent, std::string_view Path, REGSAM Access)
{
    HKEY Key = nullptr;
    const LSTATUS Status =
        RegCreateKeyExW(Parent, TKeyPath(Path).c_str(), 0, nullptr, 0, Access, nullptr, &Key, nullptr);
    FHandle.Reset(Status == ERROR_SUCCESS ? Key : nullptr);
    return Status;
}

LSTATUS WriteRegistryValue(HKEY Key, std::string_view Name, DWORD Type, const void* Data, size_t Size)
{
    return RegSetValueExW(Key, TWideText(Name).c_str(), 0, Type, static_cast<const BYTE*>(Data),
                          static_cast<DWORD>(Size));
}

LSTATUS WriteRegistryText(HKEY Key, std::string_view Name, std::string_view Text, DWORD Type)
{
    const TWideText Wide(Text);
    return WriteRegistryValue(Key, Name, Type, Wide.c_str(), (Wide.size() + 1) * sizeof(wchar_t));
}

namespace {

// Enumerate(Index, Name, Length) is the system's call for one name.
template <class TEnumerate>
void AddNames(TStrings* Names, TEnumerate Enumerate)
{
    constexpr size_t LongestName = 32768; // of a value, and more than that of a key
    std::vector<wchar_t> Name(256);
    const TStringsUpdate Update(Names);
    for (DWORD Index = 0;;) {
        auto Length = static_cast<DWORD>(Name.size());
        const LSTATUS Status = Enumerate(Index, Name.data(), &Length);
        if (Status == ERROR_MORE_DATA && Name.size() < LongestName) {
            Name.resize(Name.size() * 2);
            continue;
        }
        if (Status != ERROR_SUCCESS)
            return;
        Names->Add(FromWide({Name.data(), Length}));
        ++Index;
    }
}

} // namespace

void AddKeyNames(HKEY Key, TStrings* Names)
{
    AddNames(Names, [Key](DWORD Index, wchar_t* Name, DWORD* Length) {
        return RegEnumKeyExW(Key, Index, Name, Length, nullptr, nullptr, nullptr, nullptr);
    });
}

void AddValueNames(HKEY Key, TStrings* Names)
{
    AddNames(Names, [Key](DWORD Index, wchar_t* Name, DWORD* Length) {
        return RegEnumValueW(Key, Index, Name, Length, nullptr, nullptr, nullptr, nullptr);
    });
}

std::string RegistryErrorText(LSTATUS Status)
{
    wchar_t Text[512];
    DWORD Size = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                static_cast<DWORD>(Status), 0, Text, static_cast<DWORD>(std::size(Text)), nullptr);
    while (Size > 0 && Text[Size - 1] <= L' ')
        --Size;
    return FromWide({Text, Size});
}
