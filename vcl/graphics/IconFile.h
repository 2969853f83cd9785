// Icons as they stand in .ico files.
#pragma once

#include "vcl/system/WindowsApi.h"

#include <cstdint>
#include <span>
#include <vector>

// Raises EInvalidGraphic "Icon image is not valid".
void CheckIconFile(std::span<const uint8_t> File);
// The size of the file's picture that fits Wanted best (0: the system's size), the one with most colours. The file has
// been checked.
SIZE SizeInIconFile(std::span<const uint8_t> File, SIZE Wanted);
// That picture; the caller's. Raises EInvalidGraphic when the system does not take it.
HICON IconFromFile(std::span<const uint8_t> File, SIZE Wanted);
// A file with the one picture of Icon.
std::vector<uint8_t> IconToFile(HICON Icon);
SIZE SizeOfIcon(HICON Icon);
