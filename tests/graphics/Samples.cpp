#include "tests/graphics/Samples.h"

void FillSample(TBitmap& Bitmap, int Width, int Height)
{
    Bitmap.SetPixelFormat(pf32bit);
    Bitmap.SetSize(Width, Height);
    for (int Y = 0; Y < Height; ++Y) {
        auto* Row = static_cast<uint32_t*>(Bitmap.ScanLine[Y]);
        for (int X = 0; X < Width; ++X)
            Row[X] = static_cast<uint32_t>((X * 7 & 255) << 16 | (Y * 11 & 255) << 8 | ((X ^ Y) & 255));
    }
}

TColor SamplePixel(int X, int Y)
{
    return TColor(RGB(X * 7, Y * 11, X ^ Y));
}

std::vector<uint32_t> PixelsOf(TBitmap& Bitmap)
{
    TBitmap Copy;
    Copy.Assign(&Bitmap);
    Copy.SetPixelFormat(pf32bit);
    std::vector<uint32_t> Pixels;
    for (int Y = 0; Y < Copy.GetHeight(); ++Y) {
        auto* Row = static_cast<uint32_t*>(Copy.ScanLine[Y]);
        for (int X = 0; X < Copy.GetWidth(); ++X)
            Pixels.push_back(Row[X] & 0xFFFFFF);
    }
    return Pixels;
}

std::unique_ptr<TBitmap> NewBitmap(int Width, int Height)
{
    auto Bitmap = std::make_unique<TBitmap>();
    Bitmap->SetSize(Width, Height);
    return Bitmap;
}

TBytes SaveToBytes(TGraphic& Graphic)
{
    TMemoryStream Stream;
    Graphic.SaveToStream(&Stream);
    std::string_view View = Stream.View();
    return {View.begin(), View.end()};
}

void LoadFromBytes(TGraphic& Graphic, const TBytes& Bytes)
{
    TMemoryStream Stream;
    Stream.WriteBuffer(Bytes.data(), static_cast<int64_t>(Bytes.size()));
    Stream.Position = 0;
    Graphic.LoadFromStream(&Stream);
}

TBytes DataOf(TGraphic& Graphic)
{
    TMemoryStream Stream;
    Graphic.WriteData(&Stream);
    std::string_view View = Stream.View();
    return {View.begin(), View.end()};
}

TBytesBuilder& TBytesBuilder::Raw(const TBytes& More)
{
    Bytes.insert(Bytes.end(), More.begin(), More.end());
    return *this;
}

TBytesBuilder& TBytesBuilder::Zeros(size_t Count)
{
    Bytes.resize(Bytes.size() + Count);
    return *this;
}

TBytesBuilder& TBytesBuilder::Number(uint32_t Value, int Size)
{
    for (int I = 0; I < Size; ++I)
        Bytes.push_back(static_cast<uint8_t>(Value >> (8 * I)));
    return *this;
}

TBytes TBmpFile::Build() const
{
    size_t Offset = 14 + HeaderSize + Colors.size();
    TBytesBuilder File;
    File.U16(0x4D42).U32(FileSize ? FileSize : static_cast<uint32_t>(Offset + Pixels.size())).U32(0);
    File.U32(static_cast<uint32_t>(static_cast<int>(Offset) + OffsetShift)).U32(HeaderSize);
    if (HeaderSize == 12) {
        File.U16(Width).U16(Height).U16(Planes).U16(BitCount);
    } else {
        File.U32(static_cast<uint32_t>(Width)).U32(static_cast<uint32_t>(Height)).U16(Planes).U16(BitCount);
        File.U32(Compression).U32(SizeImage).U32(0).U32(0).U32(ColorsUsed).U32(0);
        if (HeaderSize > 40)
            File.Zeros(HeaderSize - 40);
    }
    return File.Raw(Colors).Raw(Pixels).Bytes;
}
