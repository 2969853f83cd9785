#include "vcl/graphics/IconFile.h"

#include "vcl/graphics/BitmapImage.h"

#include <cstring>

namespace {

#pragma pack(push, 1)
struct TDirectory {
    uint16_t Reserved;
    uint16_t Type; // 1: icons
    uint16_t Count;
};
struct TEntry {
    uint8_t Width; // 0: 256
    uint8_t Height;
    uint8_t Colors;
    uint8_t Reserved;
    uint16_t Planes;
    uint16_t BitCount;
    uint32_t Size;
    uint32_t Offset;
};
#pragma pack(pop)

constexpr uint32_t PngSignature = 0x474E5089;
constexpr DWORD IconVersion = 0x00030000;

void Require(bool Condition)
{
    if (!Condition)
        RaiseInvalidGraphic("Icon image is not valid");
}

template <class T>
T Load(std::span<const uint8_t> File, size_t At)
{
    Require(At <= File.size() && File.size() - At >= sizeof(T));
    T Value;
    std::memcpy(&Value, File.data() + At, sizeof Value);
    return Value;
}

TEntry EntryAt(std::span<const uint8_t> File, int Index)
{
    return Load<TEntry>(File, sizeof(TDirectory) + static_cast<size_t>(Index) * sizeof(TEntry));
}

SIZE SizeOf(const TEntry& Entry)
{
    return {Entry.Width ? Entry.Width : 256, Entry.Height ? Entry.Height : 256};
}

// Files often leave the directory's number of bits at 0.
int BitCountOf(std::span<const uint8_t> File, const TEntry& Entry)
{
    if (Load<uint32_t>(File, Entry.Offset) == PngSignature)
        return 32;
    return Load<BITMAPINFOHEADER>(File, Entry.Offset).biBitCount;
}

TEntry BestEntry(std::span<const uint8_t> File, SIZE Wanted)
{
    if (!Wanted.cx)
        Wanted.cx = GetSystemMetrics(SM_CXICON);
    if (!Wanted.cy)
        Wanted.cy = GetSystemMetrics(SM_CYICON);
    TEntry Best{};
    int BestDistance = INT_MAX;
    int BestBits = 0;
    for (int I = 0; I < Load<TDirectory>(File, 0).Count; ++I) {
        TEntry Entry = EntryAt(File, I);
        SIZE Size = SizeOf(Entry);
        int Distance = std::abs(Size.cx - Wanted.cx) + std::abs(Size.cy - Wanted.cy);
        int Bits = BitCountOf(File, Entry);
        if (Distance < BestDistance || (Distance == BestDistance && Bits > BestBits)) {
            Best = Entry;
            BestDistance = Distance;
            BestBits = Bits;
        }
    }
    return Best;
}

// The bits of a bitmap as a DIB of one or 32 bits a pixel, the bottom row first.
std::vector<uint8_t> BitsOf(HBITMAP Bitmap, int Width, int Height, int BitCount)
{
    struct {
        BITMAPINFOHEADER Header;
        RGBQUAD Colors[2];
    } Info = {DibHeader(Width, Height, BitCount), {}};
    std::vector<uint8_t> Bits((static_cast<size_t>(Width) * BitCount + 31) / 32 * 4 * static_cast<size_t>(Height));
    TMemoryDC Context = TMemoryDC::Checked(CreateCompatibleDC(nullptr));
    GetDIBits(Context.Get(), Bitmap, 0, static_cast<UINT>(Height), Bits.data(), reinterpret_cast<BITMAPINFO*>(&Info),
              DIB_RGB_COLORS);
    return Bits;
}

// A black and white icon has both of its masks in one bitmap, the shape above the colours.
void SplitMonochrome(std::vector<uint8_t>& Shape, std::vector<uint8_t>& Colors, HBITMAP Both, int Width, int Height)
{
    Colors = BitsOf(Both, Width, Height * 2, 32);
    Colors.resize(Colors.size() / 2); // the lower half comes first
    Shape = BitsOf(Both, Width, Height * 2, 1);
    Shape.erase(Shape.begin(), Shape.begin() + static_cast<ptrdiff_t>(Shape.size() / 2));
}

} // namespace

void CheckIconFile(std::span<const uint8_t> File)
{
    auto Directory = Load<TDirectory>(File, 0);
    Require(Directory.Reserved == 0 && Directory.Type == 1 && Directory.Count > 0);
    for (int I = 0; I < Directory.Count; ++I) {
        TEntry Entry = EntryAt(File, I);
        Require(Entry.Size >= sizeof(BITMAPINFOHEADER) && Entry.Offset <= File.size() &&
                File.size() - Entry.Offset >= Entry.Size);
        if (Load<uint32_t>(File, Entry.Offset) == PngSignature)
            continue;
        auto Header = Load<BITMAPINFOHEADER>(File, Entry.Offset);
        Require(Header.biSize == sizeof Header && Header.biPlanes == 1 && Header.biWidth > 0 &&
                Header.biWidth <= 1024 && Header.biHeight > 0 && Header.biHeight <= 2048 &&
                Header.biCompression == BI_RGB);
        // Masks may be left out, colours not.
        size_t Colors = Header.biBitCount <= 8 ? size_t{1} << Header.biBitCount : 0;
        if (Header.biClrUsed && Header.biClrUsed < Colors)
            Colors = Header.biClrUsed;
        size_t Stride = (static_cast<size_t>(Header.biWidth) * Header.biBitCount + 31) / 32 * 4;
        Require(Entry.Size >=
                sizeof Header + Colors * sizeof(RGBQUAD) + Stride * static_cast<size_t>(Header.biHeight / 2));
    }
}

SIZE SizeInIconFile(std::span<const uint8_t> File, SIZE Wanted)
{
    return SizeOf(BestEntry(File, Wanted));
}

HICON IconFromFile(std::span<const uint8_t> File, SIZE Wanted)
{
    TEntry Entry = BestEntry(File, Wanted);
    SIZE Size = SizeOf(Entry);
    std::vector<uint8_t> Bits(File.begin() + Entry.Offset, File.begin() + Entry.Offset + Entry.Size);
    HICON Icon =
        CreateIconFromResourceEx(Bits.data(), Entry.Size, TRUE, IconVersion, Size.cx, Size.cy, LR_DEFAULTCOLOR);
    Require(Icon != nullptr);
    return Icon;
}

SIZE SizeOfIcon(HICON Icon)
{
    ICONINFO Info{};
    if (!GetIconInfo(Icon, &Info))
        return {};
    TBitmapHandle Mask(Info.hbmMask);
    TBitmapHandle Color(Info.hbmColor);
    BITMAP Bitmap{};
    ::GetObjectW(Info.hbmColor ? Info.hbmColor : Info.hbmMask, sizeof Bitmap, &Bitmap);
    return {Bitmap.bmWidth, Info.hbmColor ? Bitmap.bmHeight : Bitmap.bmHeight / 2};
}

std::vector<uint8_t> IconToFile(HICON Icon)
{
    ICONINFO Info{};
    if (!GetIconInfo(Icon, &Info))
        RaiseOutOfResources();
    TBitmapHandle Mask(Info.hbmMask);
    TBitmapHandle Color(Info.hbmColor);
    SIZE Size = SizeOfIcon(Icon);
    std::vector<uint8_t> Shape;
    std::vector<uint8_t> Colors;
    if (Color) {
        Colors = BitsOf(Color.Get(), Size.cx, Size.cy, 32);
        Shape = BitsOf(Mask.Get(), Size.cx, Size.cy, 1);
    } else {
        SplitMonochrome(Shape, Colors, Mask.Get(), Size.cx, Size.cy);
    }

    BITMAPINFOHEADER Header = DibHeader(Size.cx, Size.cy * 2, 32);
    Header.biSizeImage = static_cast<DWORD>(Colors.size() + Shape.size());
    TDirectory Directory = {0, 1, 1};
    TEntry Entry = {static_cast<uint8_t>(Size.cx),
                    static_cast<uint8_t>(Size.cy),
                    0,
                    0,
                    1,
                    32,
                    static_cast<uint32_t>(sizeof Header + Header.biSizeImage),
                    sizeof Directory + sizeof Entry};
    std::vector<uint8_t> File;
    auto Put = [&](const void* Bytes, size_t Count) {
        auto* First = static_cast<const uint8_t*>(Bytes);
        File.insert(File.end(), First, First + Count);
    };
    Put(&Directory, sizeof Directory);
    Put(&Entry, sizeof Entry);
    Put(&Header, sizeof Header);
    Put(Colors.data(), Colors.size());
    Put(Shape.data(), Shape.size());
    return File;
}
