#include "vcl/graphics/GraphicStream.h"

std::vector<uint8_t> ReadToEnd(TStream* Stream)
{
    return ReadBytes(Stream, std::max<int64_t>(Stream->GetSize() - Stream->GetPosition(), 0));
}

std::vector<uint8_t> ReadBytes(TStream* Stream, int64_t Count)
{
    if (Count < 0 || Count > Stream->GetSize() - Stream->GetPosition())
        throw EReadError("Stream read error");
    std::vector<uint8_t> Bytes(static_cast<size_t>(Count));
    Stream->ReadBuffer(Bytes.data(), Count);
    return Bytes;
}

void WriteBytes(TStream* Stream, std::span<const uint8_t> Bytes)
{
    Stream->WriteBuffer(Bytes.data(), static_cast<int64_t>(Bytes.size()));
}
