#include "vcl/classes/FileStream.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool TFileStream::Open(uint16_t Mode, AnsiString& Reason)
{
    constexpr int Access[] = {O_RDONLY, O_WRONLY, O_RDWR, O_RDWR};
    const int Flags = (Mode & fmCreate) == fmCreate ? O_RDWR | O_CREAT | O_TRUNC : Access[Mode & 3];
    int Handle = open(FFileName.c_str(), Flags | O_CLOEXEC, 0666);
    struct stat Status = {};
    // A directory can be opened, but not read.
    if (Handle >= 0 && fstat(Handle, &Status) == 0 && S_ISDIR(Status.st_mode)) {
        close(Handle);
        Handle = -1;
        errno = EISDIR;
    }
    if (Handle < 0)
        Reason = std::strerror(errno);
    FHandle = Handle;
    return Handle >= 0;
}

TFileStream::~TFileStream()
{
    if (FHandle < 0)
        return;
    close(static_cast<int>(FHandle));
    CountLiveHandle(-1);
}

int TFileStream::Read(void* Buffer, int Count)
{
    const ssize_t Done = Count > 0 ? read(static_cast<int>(FHandle), Buffer, static_cast<size_t>(Count)) : 0;
    return Done > 0 ? static_cast<int>(Done) : 0;
}

int TFileStream::Write(const void* Buffer, int Count)
{
    const ssize_t Done = Count > 0 ? write(static_cast<int>(FHandle), Buffer, static_cast<size_t>(Count)) : 0;
    return Done > 0 ? static_cast<int>(Done) : 0;
}

int64_t TFileStream::Seek(int64_t Offset, TSeekOrigin Origin)
{
    constexpr int From[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    const int64_t Position = lseek(static_cast<int>(FHandle), Offset, From[Origin]);
    return Position >= 0 ? Position : lseek(static_cast<int>(FHandle), 0, SEEK_CUR);
}

bool TFileStream::Truncate(int64_t Size)
{
    return ftruncate(static_cast<int>(FHandle), Size) == 0;
}
