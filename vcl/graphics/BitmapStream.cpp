// TBitmap in streams and resources.
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/BitmapFile.h"
#include "vcl/graphics/GraphicStream.h"
#include "vcl/system/Utf.h"

namespace {

std::span<const uint8_t> FindBitmapResource(HINSTANCE Instance, const wchar_t* ResName)
{
    HRSRC Resource = FindResourceW(Instance, ResName, MAKEINTRESOURCEW(2)); // RT_BITMAP
    HGLOBAL Loaded = Resource ? LoadResource(Instance, Resource) : nullptr;
    const void* Bytes = Loaded ? LockResource(Loaded) : nullptr;
    return {static_cast<const uint8_t*>(Bytes), Bytes ? SizeofResource(Instance, Resource) : 0};
}

} // namespace

void TBitmap::LoadFromStream(TStream* Stream)
{
    int64_t Start = Stream->GetPosition();
    std::vector<uint8_t> File = ReadToEnd(Stream);
    if (File.empty()) {
        SetImage(nullptr, pfDevice);
        return;
    }
    size_t Used = 0;
    std::shared_ptr<TBitmapImage> Image = DecodeBitmap(File, &Used);
    Stream->SetPosition(Start + static_cast<int64_t>(Used));
    TPixelFormat Format = Image->Format();
    SetImage(std::move(Image), Format);
}

std::vector<uint8_t> TBitmap::FileBytes()
{
    if (!FImage)
        return {};
    // Other programs would take what drawing leaves there for alpha.
    if (FPixelFormat == pfDevice && FImage->BitCount() == 32)
        return EncodeBitmap(*FImage->Copy(FWidth, FHeight, pf24bit, 0));
    return EncodeBitmap(*FImage);
}

void TBitmap::SaveToStream(TStream* Stream)
{
    WriteBytes(Stream, FileBytes());
}

void TBitmap::ReadData(TStream* Stream)
{
    int32_t Size = 0;
    Stream->ReadBuffer(&Size, sizeof Size);
    if (Size == 0) {
        SetImage(nullptr, pfDevice);
        return;
    }
    std::shared_ptr<TBitmapImage> Image = DecodeBitmap(ReadBytes(Stream, Size));
    TPixelFormat Format = Image->Format();
    SetImage(std::move(Image), Format);
}

void TBitmap::WriteData(TStream* Stream)
{
    std::vector<uint8_t> File = FileBytes();
    auto Size = static_cast<int32_t>(File.size());
    Stream->WriteBuffer(&Size, sizeof Size);
    WriteBytes(Stream, File);
}

void TBitmap::LoadResource(HINSTANCE Instance, const wchar_t* ResName, const AnsiString& Shown)
{
    std::span<const uint8_t> Dib = FindBitmapResource(Instance, ResName);
    if (Dib.empty())
        throw EResNotFound("Resource " + Shown + " not found");
    std::shared_ptr<TBitmapImage> Image = DecodeDib(Dib);
    TPixelFormat Format = Image->Format();
    SetImage(std::move(Image), Format);
}

void TBitmap::LoadFromResourceName(HINSTANCE Instance, const AnsiString& ResName)
{
    LoadResource(Instance, TWideText(ResName).c_str(), ResName);
}

void TBitmap::LoadFromResourceID(HINSTANCE Instance, int ResID)
{
    LoadResource(Instance, MAKEINTRESOURCEW(ResID), std::to_string(ResID));
}
