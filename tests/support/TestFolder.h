// TTestFolder: a folder for files that a test or a figure makes.
#pragma once

#include "vcl/system/SysUtils.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <filesystem>

// New and empty, in the temporary folder; it goes with all that is in it.
class TTestFolder {
public:
    TTestFolder()
    {
        wchar_t Temp[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, Temp);
        FPath = FromWide(Temp) + "tessary" + IntToStr(GetCurrentProcessId()) + "\\";
        Remove();
        CreateDirectoryW(TWideText(FPath).c_str(), nullptr);
    }
    ~TTestFolder() { Remove(); }
    TTestFolder(const TTestFolder&) = delete;

    // These end with a backslash.
    const AnsiString& Path() const { return FPath; }
    AnsiString AddFolder(const AnsiString& Name) const
    {
        CreateDirectoryW(TWideText(FPath + Name).c_str(), nullptr);
        return FPath + Name + "\\";
    }
    // An empty file; its path.
    AnsiString AddFile(const AnsiString& Name) const
    {
        const AnsiString Path = FPath + Name;
        CloseHandle(CreateFileW(TWideText(Path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        return Path;
    }
    void Remove(const AnsiString& Name = "") const
    {
        std::error_code Error;
        std::filesystem::remove_all(ToWide(ExcludeTrailingPathDelimiter(FPath + Name)), Error);
    }

private:
    AnsiString FPath;
};
