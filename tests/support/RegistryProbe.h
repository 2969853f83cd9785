// What the registry really holds, by the system's own calls; for tests of what is kept there.
#pragma once

#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <optional>
#include <string>
#include <string_view>

// A key of HKEY_CURRENT_USER that is absent when the test begins and deleted when it ends, unless it is another test's.
class TRegistryProbe {
public:
    explicit TRegistryProbe(std::string Path, bool Owned = true) : FPath(std::move(Path)), FOwned(Owned)
    {
        if (FOwned)
            Delete();
    }
    ~TRegistryProbe()
    {
        if (!FOwned)
            return;
        Delete();
        // The system refuses that while another key is in there.
        RegDeleteKeyW(HKEY_CURRENT_USER, ToWide(FPath.substr(0, FPath.rfind('\\'))).c_str());
    }
    TRegistryProbe(const TRegistryProbe&) = delete;

    const std::string& Path() const { return FPath; }
    void Delete() const { RegDeleteTreeW(HKEY_CURRENT_USER, ToWide(FPath).c_str()); }

    bool HasKey(std::string_view Section = "") const
    {
        HKEY Key = nullptr;
        if (RegOpenKeyExW(HKEY_CURRENT_USER, KeyPath(Section).c_str(), 0, KEY_READ, &Key) != ERROR_SUCCESS)
            return false;
        RegCloseKey(Key);
        return true;
    }
    // REG_NONE when there is no such value.
    DWORD Type(std::string_view Section, std::string_view Name) const
    {
        DWORD Result = REG_NONE;
        const LSTATUS Status = RegGetValueW(HKEY_CURRENT_USER, KeyPath(Section).c_str(), ToWide(Name).c_str(),
                                            RRF_RT_ANY | RRF_NOEXPAND, &Result, nullptr, nullptr);
        return Status == ERROR_SUCCESS ? Result : REG_NONE;
    }
    // Of a REG_SZ only.
    std::optional<std::string> Text(std::string_view Section, std::string_view Name) const
    {
        DWORD Size = 0;
        std::wstring Value;
        auto Get = [&](wchar_t* Buffer) {
            return RegGetValueW(HKEY_CURRENT_USER, KeyPath(Section).c_str(), ToWide(Name).c_str(), RRF_RT_REG_SZ,
                                nullptr, Buffer, &Size);
        };
        if (Get(nullptr) != ERROR_SUCCESS)
            return std::nullopt;
        Value.resize(Size / sizeof(wchar_t));
        if (Get(Value.data()) != ERROR_SUCCESS)
            return std::nullopt;
        return FromWide(Value.c_str());
    }

    void Put(std::string_view Section, std::string_view Name, DWORD Type, const void* Data, size_t Size) const
    {
        RegSetKeyValueW(HKEY_CURRENT_USER, KeyPath(Section).c_str(), ToWide(Name).c_str(), Type, Data,
                        static_cast<DWORD>(Size));
    }
    void Put(std::string_view Section, std::string_view Name, std::string_view Text, DWORD Type = REG_SZ) const
    {
        const std::wstring Wide = ToWide(Text);
        Put(Section, Name, Type, Wide.c_str(), (Wide.size() + 1) * sizeof(wchar_t));
    }

private:
    std::wstring KeyPath(std::string_view Section) const
    {
        return ToWide(Section.empty() ? FPath : FPath + "\\" + std::string(Section));
    }

    std::string FPath;
    bool FOwned;
};
