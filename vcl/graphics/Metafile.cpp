#include "vcl/graphics/Metafile.h"

#include "vcl/graphics/GraphicStream.h"
#include "vcl/system/ClassBuilder.h"

#include <cstring>

namespace {

#pragma pack(push, 1)
struct TPlaceableHeader {
    uint32_t Key;
    uint16_t Handle;
    int16_t Left, Top, Right, Bottom; // in 1 / Inch
    uint16_t Inch;
    uint32_t Reserved;
    uint16_t Checksum;
};
#pragma pack(pop)

constexpr uint32_t PlaceableKey = 0x9AC6CDD7;
constexpr int HundredthsPerInch = 2540;

void Require(bool Condition)
{
    if (!Condition)
        RaiseInvalidGraphic("Metafile is not valid");
}

// The records are played by the system as they are: they must at least lie in a row up to the last one.
void CheckRecords(std::span<const uint8_t> File)
{
    for (size_t At = 0;;) {
        struct {
            uint32_t Type;
            uint32_t Size;
        } Record;
        Require(File.size() - At >= sizeof Record);
        std::memcpy(&Record, File.data() + At, sizeof Record);
        Require(Record.Size >= sizeof Record && Record.Size % 4 == 0 && Record.Size <= File.size() - At);
        if (Record.Type == EMR_EOF)
            return;
        At += Record.Size;
    }
}

HENHMETAFILE ReadEnhanced(std::span<const uint8_t> File, size_t& Used)
{
    ENHMETAHEADER Header;
    Require(File.size() >= sizeof Header);
    std::memcpy(&Header, File.data(), sizeof Header);
    Require(Header.iType == EMR_HEADER && Header.dSignature == ENHMETA_SIGNATURE && Header.nBytes >= sizeof Header &&
            Header.nBytes <= File.size());
    CheckRecords(File.first(Header.nBytes));
    Used = Header.nBytes;
    return SetEnhMetaFileBits(Header.nBytes, File.data());
}

HENHMETAFILE ReadPlaceable(std::span<const uint8_t> File, size_t& Used)
{
    TPlaceableHeader Header;
    METAHEADER Meta;
    Require(File.size() >= sizeof Header + sizeof Meta);
    std::memcpy(&Header, File.data(), sizeof Header);
    std::memcpy(&Meta, File.data() + sizeof Header, sizeof Meta);
    uint64_t Size = uint64_t{Meta.mtSize} * 2;
    Require(Header.Inch > 0 && Size >= sizeof Meta && Size <= File.size() - sizeof Header);
    METAFILEPICT Picture = {MM_ANISOTROPIC, MulDiv(Header.Right - Header.Left, HundredthsPerInch, Header.Inch),
                            MulDiv(Header.Bottom - Header.Top, HundredthsPerInch, Header.Inch), nullptr};
    Used = sizeof Header + static_cast<size_t>(Size);
    return SetWinMetaFileBits(static_cast<UINT>(Size), File.data() + sizeof Header, nullptr, &Picture);
}

ENHMETAHEADER HeaderOf(HENHMETAFILE Handle)
{
    ENHMETAHEADER Header{};
    GetEnhMetaFileHeader(Handle, sizeof Header, &Header);
    return Header;
}

// Hundredths of a millimetre on the device that the picture was made for.
int ToPixels(int Hundredths, int Pixels, int Millimetres)
{
    return Millimetres > 0 ? MulDiv(Hundredths, Pixels, Millimetres * 100) : 0;
}

} // namespace

void TMetafile::Describe(TClassBuilder<TMetafile>&)
{}

TMetafile::TMetafile() = default;
TMetafile::~TMetafile() = default;

void TMetafile::Assign(TPersistent* Source)
{
    auto* Metafile = As<TMetafile>(Source);
    if (Source && !Metafile) {
        TGraphic::Assign(Source);
        return;
    }
    if (Source == this)
        return;
    FImage = Metafile ? Metafile->FImage : nullptr;
    FWidth = Metafile ? Metafile->FWidth : 0;
    FHeight = Metafile ? Metafile->FHeight : 0;
    Changed(this);
}

void TMetafile::SetHeight(int Value)
{
    if (FHeight == Value)
        return;
    FHeight = Value;
    Changed(this);
}

void TMetafile::SetWidth(int Value)
{
    if (FWidth == Value)
        return;
    FWidth = Value;
    Changed(this);
}

int TMetafile::GetMMWidth() const
{
    ENHMETAHEADER Header = HeaderOf(GetHandle());
    return Header.rclFrame.right - Header.rclFrame.left;
}

int TMetafile::GetMMHeight() const
{
    ENHMETAHEADER Header = HeaderOf(GetHandle());
    return Header.rclFrame.bottom - Header.rclFrame.top;
}

HENHMETAFILE TMetafile::GetHandle() const
{
    return FImage ? FImage->Get() : nullptr;
}

void TMetafile::SetHandle(HENHMETAFILE Value)
{
    if (Value && Value == GetHandle())
        return;
    FImage = Value ? std::make_shared<TMetafileHandle>(Value) : nullptr;
    ENHMETAHEADER Header = HeaderOf(Value);
    FWidth = ToPixels(GetMMWidth(), Header.szlDevice.cx, Header.szlMillimeters.cx);
    FHeight = ToPixels(GetMMHeight(), Header.szlDevice.cy, Header.szlMillimeters.cy);
    Changed(this);
}

void TMetafile::LoadFromStream(TStream* Stream)
{
    int64_t Start = Stream->GetPosition();
    std::vector<uint8_t> File = ReadToEnd(Stream);
    if (File.empty()) {
        SetHandle(nullptr);
        return;
    }
    uint32_t Key = 0;
    std::memcpy(&Key, File.data(), std::min(File.size(), sizeof Key));
    size_t Used = 0;
    HENHMETAFILE Handle = Key == PlaceableKey ? ReadPlaceable(File, Used) : ReadEnhanced(File, Used);
    Require(Handle != nullptr);
    Stream->SetPosition(Start + static_cast<int64_t>(Used));
    SetHandle(Handle);
}

void TMetafile::SaveToStream(TStream* Stream)
{
    if (!FImage)
        return;
    std::vector<uint8_t> File(GetEnhMetaFileBits(GetHandle(), 0, nullptr));
    GetEnhMetaFileBits(GetHandle(), static_cast<UINT>(File.size()), File.data());
    WriteBytes(Stream, File);
}

void TMetafile::Draw(TCanvas* Canvas, const TRect& R)
{
    // The system's rectangle includes its right and bottom edges.
    RECT Inclusive = {R.left, R.top, R.right - 1, R.bottom - 1};
    PlayEnhMetaFile(Context(Canvas), GetHandle(), &Inclusive);
}

void TMetafileCanvas::Describe(TClassBuilder<TMetafileCanvas>&)
{}

TMetafileCanvas::TMetafileCanvas(TMetafile* Metafile, HDC ReferenceDevice) : FMetafile(Metafile)
{
    HDC Device = ReferenceDevice ? ReferenceDevice : GetDC(nullptr);
    RECT Frame = {0, 0,
                  MulDiv(Metafile->GetWidth(), GetDeviceCaps(Device, HORZSIZE) * 100, GetDeviceCaps(Device, HORZRES)),
                  MulDiv(Metafile->GetHeight(), GetDeviceCaps(Device, VERTSIZE) * 100, GetDeviceCaps(Device, VERTRES))};
    // Without a size the picture is as large as what is drawn.
    HDC Recorder = CreateEnhMetaFileW(Device, nullptr, IsRectEmpty(TRect(Frame)) ? nullptr : &Frame, nullptr);
    if (!ReferenceDevice)
        ReleaseDC(nullptr, Device);
    if (!Recorder)
        RaiseOutOfResources();
    SetHandle(Recorder);
}

TMetafileCanvas::~TMetafileCanvas()
{
    HDC Recorder = GetHandle();
    SetHandle(nullptr);
    int Width = FMetafile->GetWidth();
    int Height = FMetafile->GetHeight();
    FMetafile->SetHandle(CloseEnhMetaFile(Recorder));
    if (Width > 0 && Height > 0) {
        FMetafile->SetWidth(Width);
        FMetafile->SetHeight(Height);
    }
}
