// TCustomImageList in form files: the system's own stream of an image list.
#include "vcl/classes/Filer.h"
#include "vcl/graphics/GraphicStream.h"
#include "vcl/graphics/ImageList.h"

#include <objidl.h>

#include <cstring>

// Declared by the system's header only where it knows of streams.
extern "C" {
WINCOMMCTRLAPI HIMAGELIST WINAPI ImageList_Read(IStream* Stream);
WINCOMMCTRLAPI WINBOOL WINAPI ImageList_Write(HIMAGELIST List, IStream* Stream);
}

namespace {

// What the system's stream begins with.
struct TListHeader {
    uint16_t Magic;
    uint16_t Version;
    uint16_t Count;
    uint16_t Room;
    uint16_t Grow;
    uint16_t Width;
    uint16_t Height;
    uint16_t BackLow;
    uint16_t BackHigh;
    uint16_t Flags;
    int16_t Overlays[4];
};
static_assert(sizeof(TListHeader) == 28);

constexpr uint16_t ListMagic = 0x4C49;
constexpr uint16_t ListVersion = 0x0101;

class TComStream {
public:
    explicit TComStream(std::span<const uint8_t> Bytes)
    {
        HGLOBAL Memory = GlobalAlloc(GMEM_MOVEABLE, Bytes.size());
        if (!Memory)
            RaiseOutOfResources();
        if (!Bytes.empty()) {
            std::memcpy(GlobalLock(Memory), Bytes.data(), Bytes.size());
            GlobalUnlock(Memory);
        }
        if (FAILED(CreateStreamOnHGlobal(Memory, TRUE, &FStream)))
            RaiseOutOfResources();
    }
    TComStream(const TComStream&) = delete;
    ~TComStream() { FStream->Release(); }

    IStream* Get() { return FStream; }

    std::vector<uint8_t> Bytes()
    {
        STATSTG Stat{};
        FStream->Stat(&Stat, STATFLAG_NONAME);
        std::vector<uint8_t> Bytes(static_cast<size_t>(Stat.cbSize.QuadPart));
        FStream->Seek({}, STREAM_SEEK_SET, nullptr);
        ULONG Count = 0;
        FStream->Read(Bytes.data(), static_cast<ULONG>(Bytes.size()), &Count);
        return Bytes;
    }

private:
    IStream* FStream = nullptr;
};

[[noreturn]] void RaiseUnreadable()
{
    throw EReadError("Failed to read ImageList data from stream");
}

// Whether a bitmap file lies at the beginning of Bytes, which is then cut off.
bool SkipBitmap(std::span<const uint8_t>& Bytes)
{
    BITMAPFILEHEADER File;
    BITMAPINFOHEADER Info;
    if (Bytes.size() < sizeof File + sizeof Info)
        return false;
    std::memcpy(&File, Bytes.data(), sizeof File);
    std::memcpy(&Info, Bytes.data() + sizeof File, sizeof Info);
    if (File.bfType != 0x4D42 || Info.biSize != sizeof Info || Info.biWidth <= 0 || Info.biHeight <= 0 ||
        Info.biWidth > 0x7FFF || Info.biCompression != BI_RGB || Info.biBitCount > 32 || Info.biBitCount == 0)
        return false;
    size_t Colors = Info.biBitCount <= 8 ? size_t{1} << Info.biBitCount : 0;
    size_t Stride = (static_cast<size_t>(Info.biWidth) * Info.biBitCount + 31) / 32 * 4;
    size_t Size = sizeof File + sizeof Info + Colors * sizeof(RGBQUAD) + Stride * static_cast<size_t>(Info.biHeight);
    if (Bytes.size() < Size)
        return false;
    Bytes = Bytes.subspan(Size);
    return true;
}

// The system believes what such a stream says about itself, so it is looked through first.
TListHeader CheckListStream(std::span<const uint8_t> Bytes)
{
    TListHeader Header;
    if (Bytes.size() < sizeof Header)
        RaiseUnreadable();
    std::memcpy(&Header, Bytes.data(), sizeof Header);
    Bytes = Bytes.subspan(sizeof Header);
    bool Good = Header.Magic == ListMagic && Header.Version == ListVersion && Header.Width > 0 && Header.Height > 0 &&
                Header.Width <= 4096 && Header.Height <= 4096 && Header.Count <= Header.Room && SkipBitmap(Bytes);
    if (Good && Header.Flags & ILC_MASK)
        Good = SkipBitmap(Bytes);
    if (!Good)
        RaiseUnreadable();
    return Header;
}

} // namespace

bool TCustomImageList::HasData(TFiler& Filer)
{
    auto* Ancestor = As<TCustomImageList>(Filer.GetAncestor());
    if (!Ancestor)
        return GetCount() > 0;
    return !SameImages(*Ancestor);
}

void TCustomImageList::DefineProperties(TFiler& Filer)
{
    inherited::DefineProperties(Filer);
    Filer.DefineBinaryProperty("Bitmap", {this, &TCustomImageList::ReadData}, {this, &TCustomImageList::WriteData},
                               HasData(Filer));
}

void TCustomImageList::ReadData(TStream* Stream)
{
    std::vector<uint8_t> Bytes = ReadToEnd(Stream);
    TListHeader Header = CheckListStream(Bytes);
    TComStream Source(Bytes);
    HIMAGELIST Handle = ImageList_Read(Source.Get());
    if (!Handle)
        RaiseUnreadable();
    FMasked = Header.Flags & ILC_MASK;
    SetHandle(Handle);
    ImageList_SetBkColor(FHandle, FBkColor == clNone ? CLR_NONE : ColorToRGB(FBkColor));
    FFile = std::move(Bytes);
}

void TCustomImageList::WriteData(TStream* Stream)
{
    if (!FFile.empty()) {
        WriteBytes(Stream, FFile);
        return;
    }
    TComStream Target({});
    if (!ImageList_Write(GetHandle(), Target.Get()))
        throw EWriteError("Failed to write ImageList data to stream");
    WriteBytes(Stream, Target.Bytes());
}
