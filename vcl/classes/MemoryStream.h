// TMemoryStream: bytes in memory of its own, which grows as it is written.
#pragma once

#include "vcl/classes/CustomMemoryStream.h"

#include <string>

class TMemoryStream : public TCustomMemoryStream {
    VCL_CLASS(TMemoryStream, TCustomMemoryStream)
public:
    TMemoryStream() = default;

    // Writing behind the end fills the gap with zeros.
    int Write(const void* Buffer, int Count) override;
    // New bytes are zero. The position stays, but is not behind the new end.
    void SetSize(int64_t Value) override;

    // Frees the memory.
    void Clear();
    // Replace the data by that of the whole stream or file; the position is then 0. When reading fails the data stays
    // as it was. Raise EFOpenError and EReadError.
    void LoadFromStream(TStream* Stream);
    void LoadFromFile(const AnsiString& FileName);

protected:
    // For descendants that start with data.
    void Take(std::string Bytes);

private:
    std::string FBytes;
};
