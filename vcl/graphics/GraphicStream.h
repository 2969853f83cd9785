// Bytes in and out of streams, for pictures.
#pragma once

#include "vcl/classes/Stream.h"

#include <cstdint>
#include <span>
#include <vector>

// Everything from where the stream stands to its end.
std::vector<uint8_t> ReadToEnd(TStream* Stream);
// Exactly Count bytes; raises EReadError, without reserving memory first, when the stream has fewer.
std::vector<uint8_t> ReadBytes(TStream* Stream, int64_t Count);
void WriteBytes(TStream* Stream, std::span<const uint8_t> Bytes);
