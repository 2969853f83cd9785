#include "vcl/graphics/BitmapFile.h"

#include "vcl/graphics/RunLength.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace {

[[noreturn]] void RaiseInvalid()
{
    RaiseInvalidGraphic("Bitmap image is not valid");
}

void Require(bool Condition)
{
    if (!Condition)
        RaiseInvalid();
}

template <class T>
T Load(std::span<const uint8_t> Bytes, size_t At)
{
    Require(At <= Bytes.size() && Bytes.size() - At >= sizeof(T));
    T Value;
    std::memcpy(&Value, Bytes.data() + At, sizeof Value);
    return Value;
}

// What a header of either kind says.
struct TDibInfo {
    int Width = 0;
    int Height = 0; // without the sign
    bool TopDown = false;
    int BitCount = 0;
    DWORD Compression = BI_RGB;
    LONG XPelsPerMeter = 0;
    LONG YPelsPerMeter = 0;
    uint32_t Masks[3] = {};
    TBitmapImage::TPalette Palette;
    size_t End = 0; // of header, masks and colours

    size_t Stride() const { return (static_cast<size_t>(Width) * BitCount + 31) / 32 * 4; }
};

constexpr size_t CoreHeaderSize = sizeof(BITMAPCOREHEADER);
constexpr size_t InfoHeaderSize = sizeof(BITMAPINFOHEADER);
constexpr int MaxSide = 1 << 20;
// A few bytes of run-length code can stand for any number of pixels.
constexpr int64_t MaxRunLengthPixels = 1 << 26;

void ReadPalette(std::span<const uint8_t> Dib, size_t Count, size_t EntrySize, TDibInfo& Info)
{
    Require(Count <= size_t{1} << Info.BitCount && Info.End <= Dib.size() &&
            Dib.size() - Info.End >= Count * EntrySize);
    for (size_t I = 0; I < Count; ++I) {
        const uint8_t* Entry = Dib.data() + Info.End + I * EntrySize;
        Info.Palette.push_back({Entry[0], Entry[1], Entry[2], 0});
    }
    Info.End += Count * EntrySize;
}

TDibInfo ReadCoreHeader(std::span<const uint8_t> Dib)
{
    auto Header = Load<BITMAPCOREHEADER>(Dib, 0);
    TDibInfo Info;
    Info.Width = Header.bcWidth;
    Info.Height = Header.bcHeight;
    Info.BitCount = Header.bcBitCount;
    Info.End = CoreHeaderSize;
    Require(Header.bcPlanes == 1);
    if (Info.BitCount <= 8) {
        // Some writers leave unused colours out; the pixels then follow at once.
        size_t Room = (Dib.size() - Info.End) / sizeof(RGBTRIPLE);
        ReadPalette(Dib, std::min(size_t{1} << Info.BitCount, Room), sizeof(RGBTRIPLE), Info);
    }
    return Info;
}

void ReadMasks(std::span<const uint8_t> Dib, const BITMAPINFOHEADER& Header, TDibInfo& Info)
{
    constexpr uint32_t Masks555[3] = {0x7C00, 0x03E0, 0x001F};
    constexpr uint32_t Masks888[3] = {0xFF0000, 0x00FF00, 0x0000FF};
    if (Info.Compression != BI_BITFIELDS) {
        std::memcpy(Info.Masks, Info.BitCount == 16 ? Masks555 : Masks888, sizeof Info.Masks);
        return;
    }
    Require(Info.BitCount == 16 || Info.BitCount == 32);
    for (size_t I = 0; I < 3; ++I)
        Info.Masks[I] = Load<uint32_t>(Dib, InfoHeaderSize + I * sizeof(uint32_t));
    // The later, longer headers contain the masks.
    if (Header.biSize == InfoHeaderSize)
        Info.End += sizeof Info.Masks;
}

TDibInfo ReadInfoHeader(std::span<const uint8_t> Dib)
{
    auto Header = Load<BITMAPINFOHEADER>(Dib, 0);
    Require(Header.biSize >= InfoHeaderSize && Header.biSize <= Dib.size() && Header.biHeight != INT_MIN);
    TDibInfo Info;
    Info.Width = Header.biWidth;
    Info.Height = std::abs(Header.biHeight);
    Info.TopDown = Header.biHeight < 0;
    Info.BitCount = Header.biBitCount;
    Info.Compression = Header.biCompression;
    Info.XPelsPerMeter = Header.biXPelsPerMeter;
    Info.YPelsPerMeter = Header.biYPelsPerMeter;
    Info.End = Header.biSize;
    Require(Header.biPlanes == 1);
    ReadMasks(Dib, Header, Info);
    if (Info.BitCount <= 8)
        ReadPalette(Dib, Header.biClrUsed ? Header.biClrUsed : size_t{1} << Info.BitCount, sizeof(RGBQUAD), Info);
    else if (Header.biClrUsed <= 256)
        Info.End += Header.biClrUsed * sizeof(RGBQUAD);
    return Info;
}

void CheckInfo(const TDibInfo& Info)
{
    constexpr int BitCounts[] = {1, 4, 8, 16, 24, 32};
    Require(Info.Width > 0 && Info.Width <= MaxSide && Info.Height > 0 && Info.Height <= MaxSide);
    Require(std::find(std::begin(BitCounts), std::end(BitCounts), Info.BitCount) != std::end(BitCounts));
    switch (Info.Compression) {
    case BI_RGB:
    case BI_BITFIELDS: return;
    case BI_RLE8:
    case BI_RLE4:
        Require(Info.BitCount == (Info.Compression == BI_RLE8 ? 8 : 4) && !Info.TopDown);
        Require(int64_t{Info.Width} * Info.Height <= MaxRunLengthPixels);
        return;
    default: RaiseInvalid();
    }
}

TDibInfo ReadHeader(std::span<const uint8_t> Dib)
{
    auto Size = Load<uint32_t>(Dib, 0);
    // The number of bits is checked before it is used to count colours.
    auto BitCount = Load<uint16_t>(Dib, Size == CoreHeaderSize ? 10 : 14);
    Require(BitCount >= 1 && BitCount <= 32);
    TDibInfo Info = Size == CoreHeaderSize ? ReadCoreHeader(Dib) : ReadInfoHeader(Dib);
    CheckInfo(Info);
    return Info;
}

bool HasMasks(const TDibInfo& Info, uint32_t Red, uint32_t Green, uint32_t Blue)
{
    return Info.Masks[0] == Red && Info.Masks[1] == Green && Info.Masks[2] == Blue;
}

// pfCustom: the pixels have to be taken apart.
TPixelFormat FormatOf(const TDibInfo& Info)
{
    switch (Info.BitCount) {
    case 1: return pf1bit;
    case 4: return pf4bit;
    case 8: return pf8bit;
    case 16:
        return HasMasks(Info, 0x7C00, 0x3E0, 0x1F) ? pf15bit : HasMasks(Info, 0xF800, 0x7E0, 0x1F) ? pf16bit : pfCustom;
    case 24: return pf24bit;
    default: return HasMasks(Info, 0xFF0000, 0xFF00, 0xFF) ? pf32bit : pfCustom;
    }
}

// The bits of Mask in Pixel as 0 to 255.
uint32_t Channel(uint32_t Pixel, uint32_t Mask)
{
    if (Mask == 0)
        return 0;
    int Shift = std::countr_zero(Mask);
    uint64_t Most = Mask >> Shift;
    return static_cast<uint32_t>((uint64_t{(Pixel & Mask) >> Shift} * 255 + Most / 2) / Most);
}

void ConvertRow(const uint8_t* From, const TDibInfo& Info, uint32_t* To)
{
    auto Bytes = static_cast<size_t>(Info.BitCount / 8);
    for (int X = 0; X < Info.Width; ++X) {
        uint32_t Pixel = 0;
        std::memcpy(&Pixel, From + static_cast<size_t>(X) * Bytes, Bytes);
        To[X] =
            Channel(Pixel, Info.Masks[0]) << 16 | Channel(Pixel, Info.Masks[1]) << 8 | Channel(Pixel, Info.Masks[2]);
    }
}

void ReadRows(std::span<const uint8_t> Bits, const TDibInfo& Info, bool Convert, TBitmapImage& Image)
{
    for (int Y = 0; Y < Info.Height; ++Y) {
        const uint8_t* From = Bits.data() + Info.Stride() * static_cast<size_t>(Info.TopDown ? Y : Info.Height - 1 - Y);
        if (Convert)
            ConvertRow(From, Info, reinterpret_cast<uint32_t*>(Image.Row(Y)));
        else
            std::memcpy(Image.Row(Y), From, Info.Stride());
    }
}

// Pixels: where they begin; Used: gets where they end.
std::shared_ptr<TBitmapImage> Decode(std::span<const uint8_t> Dib, const TDibInfo& Info, size_t Pixels, size_t& Used)
{
    Require(Pixels <= Dib.size());
    std::span<const uint8_t> Bits = Dib.subspan(Pixels);
    bool RunLength = Info.Compression == BI_RLE8 || Info.Compression == BI_RLE4;
    size_t Size = Info.Stride() * static_cast<size_t>(Info.Height);
    Require(RunLength || Bits.size() >= Size);

    TPixelFormat Format = FormatOf(Info);
    TBitmapImage::TPalette Palette = Info.Palette;
    // Indexes past the colours that are given show as black.
    if (Info.BitCount <= 8 && Palette.empty())
        Palette.resize(size_t{1} << Info.BitCount);
    auto Image = std::make_shared<TBitmapImage>(Info.Width, Info.Height, Format == pfCustom ? pf32bit : Format,
                                                std::move(Palette));
    Image->XPelsPerMeter = Info.XPelsPerMeter;
    Image->YPelsPerMeter = Info.YPelsPerMeter;
    if (RunLength)
        Require(DecodeRunLength(
            Bits, {Image->Row(Info.Height - 1), Image->Stride(), Info.Width, Info.Height, Info.BitCount}, Size));
    else
        ReadRows(Bits, Info, Format == pfCustom, *Image);
    Used = Pixels + Size;
    return Image;
}

} // namespace

std::shared_ptr<TBitmapImage> DecodeBitmap(std::span<const uint8_t> File, size_t* Used)
{
    constexpr size_t FileHeaderSize = sizeof(BITMAPFILEHEADER);
    auto Header = Load<BITMAPFILEHEADER>(File, 0);
    Require(Header.bfType == 0x4D42);
    std::span<const uint8_t> Dib = File.subspan(FileHeaderSize);
    TDibInfo Info = ReadHeader(Dib);
    size_t Pixels = Info.End;
    if (Header.bfOffBits >= FileHeaderSize + Pixels || (Info.BitCount <= 8 && Header.bfOffBits > FileHeaderSize))
        Pixels = Header.bfOffBits - FileHeaderSize;
    size_t End = 0;
    std::shared_ptr<TBitmapImage> Image = Decode(Dib, Info, Pixels, End);
    End += FileHeaderSize;
    if (Header.bfSize > End && Header.bfSize <= File.size())
        End = Header.bfSize;
    if (Used)
        *Used = End;
    else
        End = File.size();
    if (!std::ranges::equal(EncodeBitmap(*Image), File.first(End)))
        Image->File.assign(File.begin(), File.begin() + static_cast<ptrdiff_t>(End));
    return Image;
}

std::shared_ptr<TBitmapImage> DecodeDib(std::span<const uint8_t> Dib)
{
    TDibInfo Info = ReadHeader(Dib);
    size_t End = 0;
    return Decode(Dib, Info, Info.End, End);
}

std::vector<uint8_t> EncodeBitmap(TBitmapImage& Image)
{
    if (!Image.File.empty())
        return Image.File;
    if (!Image.Row(0))
        return EncodeBitmap(*Image.Copy());

    bool Masks = Image.Format() == pf16bit;
    size_t Colors = Image.BitCount() <= 8 ? Image.Palette().size() : 0;
    size_t ColorBytes = Masks ? 3 * sizeof(DWORD) : Colors * sizeof(RGBQUAD);
    size_t Size = Image.Stride() * static_cast<size_t>(Image.Height());
    size_t Offset = sizeof(BITMAPFILEHEADER) + InfoHeaderSize + ColorBytes;
    BITMAPFILEHEADER FileHeader = {0x4D42, static_cast<DWORD>(Offset + Size), 0, 0, static_cast<DWORD>(Offset)};
    BITMAPINFOHEADER Header = DibHeader(Image.Width(), Image.Height(), Image.BitCount(), Masks ? BI_BITFIELDS : BI_RGB);
    Header.biSizeImage = static_cast<DWORD>(Size);
    Header.biXPelsPerMeter = Image.XPelsPerMeter;
    Header.biYPelsPerMeter = Image.YPelsPerMeter;
    Header.biClrUsed = Colors == size_t{1} << Image.BitCount() ? 0 : static_cast<DWORD>(Colors);
    constexpr DWORD Masks565[3] = {0xF800, 0x07E0, 0x001F};

    std::vector<uint8_t> File(Offset + Size);
    uint8_t* Out = File.data();
    auto Put = [&](const void* Bytes, size_t Count) {
        std::memcpy(Out, Bytes, Count);
        Out += Count;
    };
    Put(&FileHeader, sizeof FileHeader);
    Put(&Header, sizeof Header);
    if (Masks)
        Put(Masks565, sizeof Masks565);
    else if (Colors)
        Put(Image.Palette().data(), ColorBytes);
    Put(Image.Row(Image.Height() - 1), Size);
    return File;
}
