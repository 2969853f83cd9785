// TCustomMemoryStream: reads bytes that lie in memory. Descendants say where, and may let them be written.
#pragma once

#include "vcl/classes/Stream.h"

#include <string_view>

class TCustomMemoryStream : public TStream {
    VCL_CLASS(TCustomMemoryStream, TStream)
public:
    int Read(void* Buffer, int Count) override;
    // Nothing can be written.
    int Write(const void*, int) override { return 0; }
    // A position before the beginning is ignored.
    int64_t Seek(int64_t Offset, TSeekOrigin Origin) override;
    int64_t GetSize() override { return FSize; }

    // The whole data, wherever the position is.
    void SaveToStream(TStream* Stream) const;
    // Replaces the file. Raises EFCreateError and EWriteError.
    void SaveToFile(const AnsiString& FileName) const;

    // The bytes; valid until the stream changes. nullptr when there are none.
    void* GetMemory() const { return FMemory; }
    PROPERTY_READ(void*, Memory);
    std::string_view View() const { return {static_cast<const char*>(FMemory), static_cast<size_t>(FSize)}; }

protected:
    TCustomMemoryStream() = default;
    // The memory still belongs to the descendant.
    void SetPointer(void* Memory, int64_t Size);

    int64_t FPosition = 0;

private:
    void* FMemory = nullptr;
    int64_t FSize = 0;
};
