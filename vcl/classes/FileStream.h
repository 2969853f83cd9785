// TFileStream: a file as a stream. The system's part is in FileStreamWindows.cpp and FileStreamPortable.cpp.
#pragma once

#include "vcl/classes/Stream.h"

#include <cstdint>

// How to open: one of the first four, combined with one of the others. Without one of those nobody else may open the
// file. Systems other than Windows do not keep others out.
inline constexpr uint16_t fmCreate = 0xFF00; // makes an empty file, also in place of an existing one
inline constexpr uint16_t fmOpenRead = 0;
inline constexpr uint16_t fmOpenWrite = 1;
inline constexpr uint16_t fmOpenReadWrite = 2;
inline constexpr uint16_t fmShareExclusive = 0x10;
inline constexpr uint16_t fmShareDenyWrite = 0x20;
inline constexpr uint16_t fmShareDenyRead = 0x30;
inline constexpr uint16_t fmShareDenyNone = 0x40;

class TFileStream : public TStream {
    VCL_CLASS(TFileStream, TStream)
public:
    // FileName is UTF-8. Raises EFCreateError "Cannot create file "%s". %s" and EFOpenError "Cannot open file "%s". %s"
    // with the system's reason.
    TFileStream(const AnsiString& FileName, uint16_t Mode);
    ~TFileStream() override;

    int Read(void* Buffer, int Count) override;
    int Write(const void* Buffer, int Count) override;
    int64_t Seek(int64_t Offset, TSeekOrigin Origin) override;
    // Raises EWriteError when the system refuses. The position stays, but is not behind the new end.
    void SetSize(int64_t Value) override;

    const AnsiString& GetFileName() const { return FFileName; }
    PROPERTY_READ(AnsiString, FileName);

private:
    // False when the system refuses; Reason then has its message.
    bool Open(uint16_t Mode, AnsiString& Reason);
    bool Truncate(int64_t Size);

    AnsiString FFileName;
    intptr_t FHandle = -1; // the system's
};
