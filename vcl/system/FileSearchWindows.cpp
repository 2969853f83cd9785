#include "vcl/system/FileSearch.h"
#include "vcl/system/LiveCount.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

namespace {

int DosTime(const FILETIME& Time)
{
    FILETIME Local;
    WORD Date = 0;
    WORD TimeOfDay = 0;
    if (FileTimeToLocalFileTime(&Time, &Local))
        FileTimeToDosDateTime(&Local, &Date, &TimeOfDay);
    return static_cast<int>(static_cast<DWORD>(Date) << 16 | TimeOfDay);
}

class TSystemSearch : public TFileSearch {
public:
    explicit TSystemSearch(std::string_view Path)
    {
        DWORD OldMode = 0;
        SetThreadErrorMode(SEM_FAILCRITICALERRORS, &OldMode);
        FHandle = FindFirstFileExW(TWideText(Path).c_str(), FindExInfoBasic, &FData, FindExSearchNameMatch, nullptr, 0);
        FError = IsOpen() ? ERROR_SUCCESS : GetLastError();
        SetThreadErrorMode(OldMode, nullptr);
        CountLiveHandle(IsOpen() ? +1 : 0);
    }
    ~TSystemSearch() override
    {
        if (!IsOpen())
            return;
        ::FindClose(FHandle);
        CountLiveHandle(-1);
    }

    int Next(TSearchRec& F) override
    {
        // FindFirstFile has returned the first entry already.
        if (FIsRead && FError == ERROR_SUCCESS && !FindNextFileW(FHandle, &FData))
            FError = GetLastError();
        FIsRead = true;
        if (FError == ERROR_SUCCESS)
            Fill(F);
        return static_cast<int>(FError);
    }

private:
    bool IsOpen() const { return FHandle != INVALID_HANDLE_VALUE; }
    void Fill(TSearchRec& F) const
    {
        F.Time = DosTime(FData.ftLastWriteTime);
        F.Size = static_cast<int64_t>(static_cast<uint64_t>(FData.nFileSizeHigh) << 32 | FData.nFileSizeLow);
        F.Attr = static_cast<int>(FData.dwFileAttributes);
        F.Name = FromWide(FData.cFileName);
    }

    WIN32_FIND_DATAW FData;
    HANDLE FHandle;
    DWORD FError;
    bool FIsRead = false;
};

} // namespace

std::unique_ptr<TFileSearch> OpenFileSearch(std::string_view Path)
{
    return std::make_unique<TSystemSearch>(Path);
}
