// Bitmaps as they stand in .bmp files, resources and form files.
#pragma once

#include "vcl/graphics/BitmapImage.h"

// The image in a file's bytes: any of the system's headers, 1 to 32 bits, also run-length encoded and top-down. Used,
// when given, gets the number of bytes that belong to it. Raises EInvalidGraphic "Bitmap image is not valid".
std::shared_ptr<TBitmapImage> DecodeBitmap(std::span<const uint8_t> File, size_t* Used = nullptr);
// The same without the file header, as resources have it.
std::shared_ptr<TBitmapImage> DecodeDib(std::span<const uint8_t> Dib);
// The bytes of a file. An image that was read and not changed since gives those that it was read from.
std::vector<uint8_t> EncodeBitmap(TBitmapImage& Image);
