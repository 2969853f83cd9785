#include "vcl/classes/FileStream.h"

#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

namespace {

HANDLE AsHandle(intptr_t Handle)
{
    return reinterpret_cast<HANDLE>(Handle);
}

AnsiString LastErrorMessage()
{
    wchar_t Text[512];
    const DWORD Flags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    DWORD Size = FormatMessageW(Flags, nullptr, GetLastError(), 0, Text, 512, nullptr);
    while (Size > 0 && Text[Size - 1] <= L' ')
        Size--;
    return FromWide({Text, Size});
}

DWORD ShareMode(uint16_t Mode)
{
    switch (Mode & 0xF0) {
    case fmShareDenyWrite: return FILE_SHARE_READ;
    case fmShareDenyRead: return FILE_SHARE_WRITE;
    case fmShareDenyNone: return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default: return 0;
    }
}

} // namespace

bool TFileStream::Open(uint16_t Mode, AnsiString& Reason)
{
    constexpr DWORD Access[] = {GENERIC_READ, GENERIC_WRITE, GENERIC_READ | GENERIC_WRITE,
                                GENERIC_READ | GENERIC_WRITE};
    const bool Create = (Mode & fmCreate) == fmCreate;
    const HANDLE Handle = CreateFileW(TWideText(FFileName).c_str(), Access[Create ? 2 : Mode & 3], ShareMode(Mode),
                                      nullptr, Create ? CREATE_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (Handle == INVALID_HANDLE_VALUE)
        Reason = LastErrorMessage();
    FHandle = reinterpret_cast<intptr_t>(Handle);
    return Handle != INVALID_HANDLE_VALUE;
}

TFileStream::~TFileStream()
{
    if (FHandle == -1)
        return;
    CloseHandle(AsHandle(FHandle));
    CountLiveHandle(-1);
}

int TFileStream::Read(void* Buffer, int Count)
{
    DWORD Done = 0;
    if (Count <= 0 || !ReadFile(AsHandle(FHandle), Buffer, static_cast<DWORD>(Count), &Done, nullptr))
        return 0;
    return static_cast<int>(Done);
}

int TFileStream::Write(const void* Buffer, int Count)
{
    DWORD Done = 0;
    if (Count <= 0 || !WriteFile(AsHandle(FHandle), Buffer, static_cast<DWORD>(Count), &Done, nullptr))
        return 0;
    return static_cast<int>(Done);
}

int64_t TFileStream::Seek(int64_t Offset, TSeekOrigin Origin)
{
    constexpr DWORD From[] = {FILE_BEGIN, FILE_CURRENT, FILE_END};
    LARGE_INTEGER Position = {};
    LARGE_INTEGER Distance = {};
    Distance.QuadPart = Offset;
    if (!SetFilePointerEx(AsHandle(FHandle), Distance, &Position, From[Origin])) {
        Distance.QuadPart = 0;
        SetFilePointerEx(AsHandle(FHandle), Distance, &Position, FILE_CURRENT);
    }
    return Position.QuadPart;
}

bool TFileStream::Truncate(int64_t Size)
{
    LARGE_INTEGER End = {};
    End.QuadPart = Size;
    return SetFilePointerEx(AsHandle(FHandle), End, nullptr, FILE_BEGIN) && SetEndOfFile(AsHandle(FHandle));
}
