// Pictures and streams for the tests of graphics.
#pragma once

#include "vcl/classes/MemoryStream.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"

#include <vector>

using TBytes = std::vector<uint8_t>;

// A 32-bit bitmap whose pixels all differ and depend only on their place: $00YYXX40 and the like.
void FillSample(TBitmap& Bitmap, int Width, int Height);
// The colour that FillSample gives the pixel, as TCanvas::Pixels tells it.
TColor SamplePixel(int X, int Y);

// All pixels, row by row, as colours without their upper byte.
std::vector<uint32_t> PixelsOf(TBitmap& Bitmap);
// A white bitmap of the device's format.
std::unique_ptr<TBitmap> NewBitmap(int Width, int Height);

TBytes SaveToBytes(TGraphic& Graphic);
void LoadFromBytes(TGraphic& Graphic, const TBytes& Bytes);
TBytes DataOf(TGraphic& Graphic);

// Appends numbers and bytes to a file's image.
class TBytesBuilder {
public:
    TBytesBuilder& U8(int Value) { return Number(static_cast<uint32_t>(Value), 1); }
    TBytesBuilder& U16(int Value) { return Number(static_cast<uint32_t>(Value), 2); }
    TBytesBuilder& U32(uint32_t Value) { return Number(Value, 4); }
    TBytesBuilder& Raw(const TBytes& More);
    TBytesBuilder& Zeros(size_t Count);

    TBytes Bytes;

private:
    TBytesBuilder& Number(uint32_t Value, int Size);
};

// A .bmp file; what is 0 is computed or left at its usual value.
struct TBmpFile {
    int Width = 2;
    int Height = 2;
    int BitCount = 24;
    uint32_t Compression = 0;
    uint32_t ColorsUsed = 0;
    uint32_t HeaderSize = 40; // 12: the old kind
    TBytes Colors = {};       // masks or palette
    TBytes Pixels = {};
    int Planes = 1;
    int OffsetShift = 0; // added to the place of the pixels
    uint32_t SizeImage = 0;
    uint32_t FileSize = 0;

    TBytes Build() const;
};
