#include "vcl/graphics/BitmapImage.h"

#include "vcl/graphics/BitmapCanvas.h"
#include "vcl/graphics/BitmapFile.h"

#include <cstring>

namespace {

struct TBitmapInfo {
    BITMAPINFOHEADER Header;
    union {
        RGBQUAD Colors[256];
        DWORD Masks[3];
    };
};

TBitmapImage::TPalette DefaultPalette(int BitCount)
{
    constexpr RGBQUAD Basic[16] = {{0, 0, 0, 0},       {0, 0, 128, 0},   {0, 128, 0, 0},   {0, 128, 128, 0},
                                   {128, 0, 0, 0},     {128, 0, 128, 0}, {128, 128, 0, 0}, {192, 192, 192, 0},
                                   {128, 128, 128, 0}, {0, 0, 255, 0},   {0, 255, 0, 0},   {0, 255, 255, 0},
                                   {255, 0, 0, 0},     {255, 0, 255, 0}, {255, 255, 0, 0}, {255, 255, 255, 0}};
    if (BitCount == 1)
        return {Basic[0], Basic[15]};
    if (BitCount == 4)
        return {std::begin(Basic), std::end(Basic)};
    TBitmapImage::TPalette Palette(256);
    TPaletteHandle Halftone(CreateHalftonePalette(nullptr));
    PALETTEENTRY Entries[256] = {};
    GetPaletteEntries(Halftone.Get(), 0, 256, Entries);
    for (int I = 0; I < 256; ++I)
        Palette[I] = {Entries[I].peBlue, Entries[I].peGreen, Entries[I].peRed, 0};
    return Palette;
}

TPixelFormat FormatOf(const DIBSECTION& Section)
{
    switch (Section.dsBm.bmBitsPixel) {
    case 1: return pf1bit;
    case 4: return pf4bit;
    case 8: return pf8bit;
    case 16: return Section.dsBitfields[1] == 0x7E0 ? pf16bit : pf15bit;
    case 24: return pf24bit;
    default: return pf32bit;
    }
}

} // namespace

int BitsPerPixel(TPixelFormat Format)
{
    constexpr int Bits[] = {32, 1, 4, 8, 16, 16, 24, 32, 32};
    return Bits[Format];
}

BITMAPINFOHEADER DibHeader(int Width, int Height, int BitCount, DWORD Compression)
{
    BITMAPINFOHEADER Header{};
    Header.biSize = sizeof Header;
    Header.biWidth = Width;
    Header.biHeight = Height;
    Header.biPlanes = 1;
    Header.biBitCount = static_cast<WORD>(BitCount);
    Header.biCompression = Compression;
    return Header;
}

// --- Images with an open context, the last used first --------------------------------------------

struct TBitmapImage::TContexts {
    static constexpr int Limit = 64;

    static void Add(TBitmapImage& Image)
    {
        Image.FOlder = Newest;
        Image.FNewer = nullptr;
        (Newest ? Newest->FNewer : Oldest) = &Image;
        Newest = &Image;
        ++Count;
    }
    static void Remove(TBitmapImage& Image)
    {
        (Image.FNewer ? Image.FNewer->FOlder : Newest) = Image.FOlder;
        (Image.FOlder ? Image.FOlder->FNewer : Oldest) = Image.FNewer;
        --Count;
    }

    static inline TBitmapImage* Newest = nullptr;
    static inline TBitmapImage* Oldest = nullptr;
    static inline int Count = 0;
};

HDC TBitmapImage::Context()
{
    if (FContext) {
        if (TContexts::Newest != this) {
            TContexts::Remove(*this);
            TContexts::Add(*this);
        }
        return FContext.Get();
    }
    Need();
    FContext = TMemoryDC::Checked(CreateCompatibleDC(nullptr));
    FOldBitmap = SelectObject(FContext.Get(), FHandle.Get());
    TContexts::Add(*this);
    if (TContexts::Count > TContexts::Limit)
        TContexts::Oldest->FreeContext();
    return FContext.Get();
}

void TBitmapImage::FreeContext()
{
    Attach(nullptr);
    if (!FContext)
        return;
    SelectObject(FContext.Get(), FOldBitmap);
    FContext.Reset();
    TContexts::Remove(*this);
}

void TBitmapImage::Attach(TBitmapCanvas* Canvas)
{
    if (FAttached == Canvas)
        return;
    if (TBitmapCanvas* Attached = std::exchange(FAttached, nullptr))
        Attached->SetHandle(nullptr);
    FAttached = Canvas;
}

void TBitmapImage::Detach(TBitmapCanvas* Canvas)
{
    if (FAttached == Canvas)
        Attach(nullptr);
}

// --- Making images -------------------------------------------------------------------------------

TBitmapImage::TBitmapImage(int Width, int Height, TPixelFormat Format, TPalette Palette)
    : FWidth(Width),
      FHeight(Height),
      FBitCount(BitsPerPixel(Format)),
      FFormat(Format == pfDevice || Format == pfCustom ? pf32bit : Format),
      FPalette(std::move(Palette))
{
    if (FBitCount <= 8 && FPalette.empty())
        FPalette = DefaultPalette(FBitCount);
    CreateSection();
}

TBitmapImage::~TBitmapImage()
{
    FreeContext();
}

void TBitmapImage::CreateSection()
{
    TBitmapInfo Info{};
    Info.Header = DibHeader(FWidth, FHeight, FBitCount, FFormat == pf16bit ? BI_BITFIELDS : BI_RGB);
    if (FFormat == pf16bit) {
        constexpr DWORD Masks[3] = {0xF800, 0x07E0, 0x001F};
        std::memcpy(Info.Masks, Masks, sizeof Masks);
    } else {
        Info.Header.biClrUsed = static_cast<DWORD>(FPalette.size());
        std::copy(FPalette.begin(), FPalette.end(), Info.Colors);
    }
    void* Bits = nullptr;
    auto* Plain = reinterpret_cast<BITMAPINFO*>(&Info);
    FHandle = TBitmapHandle::Checked(CreateDIBSection(nullptr, Plain, DIB_RGB_COLORS, &Bits, nullptr, 0));
    FBits = static_cast<uint8_t*>(Bits);
    FStride = (static_cast<size_t>(FWidth) * FBitCount + 31) / 32 * 4;
}

std::shared_ptr<TBitmapImage> TBitmapImage::Filled(int Width, int Height, TPixelFormat Format, COLORREF Fill)
{
    auto Image = std::make_shared<TBitmapImage>(Width, Height, Format);
    Image->FillAll(Fill);
    return Image;
}

std::shared_ptr<TBitmapImage> TBitmapImage::Monochrome(int Width, int Height)
{
    std::shared_ptr<TBitmapImage> Image =
        Adopt(TBitmapHandle::Checked(CreateBitmap(Width, Height, 1, 1, nullptr)).Release());
    Image->FillAll(RGB(255, 255, 255));
    return Image;
}

void TBitmapImage::FillAll(COLORREF Color)
{
    TRect All(0, 0, FWidth, FHeight);
    TBrushHandle Brush(CreateSolidBrush(Color));
    ::FillRect(Context(), &All, Brush.Get());
    GdiFlush();
}

std::shared_ptr<TBitmapImage> TBitmapImage::Adopt(HBITMAP Handle)
{
    DIBSECTION Section{};
    int Size = ::GetObjectW(Handle, sizeof Section, &Section);
    if (Size < static_cast<int>(sizeof(BITMAP)))
        return nullptr;
    std::shared_ptr<TBitmapImage> Image(new TBitmapImage);
    Image->FHandle.Reset(Handle);
    Image->FWidth = Section.dsBm.bmWidth;
    Image->FHeight = Section.dsBm.bmHeight;
    Image->FDeviceDependent = Size < static_cast<int>(sizeof Section);
    Image->FFormat = FormatOf(Section);
    Image->FBitCount = BitsPerPixel(Image->FFormat);
    return Image;
}

// Brings a dormant image back.
void TBitmapImage::Need()
{
    if (FHandle)
        return;
    std::shared_ptr<TBitmapImage> Decoded = DecodeBitmap(File);
    if (FDeviceDependent)
        Decoded = FBitCount == 1 ? Decoded->MonochromeCopy(FWidth, FHeight, RGB(255, 255, 255))
                                 : Decoded->Copy(FWidth, FHeight, pf32bit, 0);
    Decoded->FreeContext();
    FHandle = std::move(Decoded->FHandle);
    FBits = Decoded->FBits;
    FStride = Decoded->FStride;
}

void TBitmapImage::Dormant()
{
    if (!FHandle)
        return;
    std::vector<uint8_t> Encoded = EncodeBitmap(*this);
    Changing();
    File = std::move(Encoded);
    FreeContext();
    FHandle.Reset();
    FBits = nullptr;
}

// --- Access --------------------------------------------------------------------------------------

HBITMAP TBitmapImage::Handle()
{
    Need();
    FreeContext();
    return FHandle.Get();
}

HBITMAP TBitmapImage::ReleaseHandle()
{
    Need();
    FreeContext();
    return FHandle.Release();
}

uint8_t* TBitmapImage::Row(int Y)
{
    Need();
    return FBits ? FBits + FStride * static_cast<size_t>(FHeight - 1 - Y) : nullptr;
}

const TBitmapImage::TPalette& TBitmapImage::Palette()
{
    if (FPalette.empty() && FBitCount <= 8) {
        if (!FDeviceDependent) {
            FPalette.resize(256);
            FPalette.resize(GetDIBColorTable(Context(), 0, 256, FPalette.data()));
        }
        if (FPalette.empty())
            FPalette = DefaultPalette(FBitCount);
    }
    return FPalette;
}

void TBitmapImage::SetPalette(TPalette Palette)
{
    if (FBitCount > 8 || FDeviceDependent || Palette.empty())
        return;
    Palette.resize(size_t{1} << FBitCount);
    SetDIBColorTable(Context(), 0, static_cast<UINT>(Palette.size()), Palette.data());
    FPalette = std::move(Palette);
}

void TBitmapImage::Changing()
{
    if (FMaskedColor != CLR_INVALID) {
        FMasked = TMaskedImage();
        FMaskedColor = CLR_INVALID;
    }
    Need(); // from the file, for the last time
    File.clear();
}

const TMaskedImage& TBitmapImage::Masked(TBitmap* Bitmap, COLORREF Color)
{
    if (FMasked.Empty() || FMaskedColor != Color) {
        FMasked = TMaskedImage(Bitmap, TColor(Color));
        FMaskedColor = Color;
    }
    return FMasked;
}

// --- Copies --------------------------------------------------------------------------------------

std::shared_ptr<TBitmapImage> TBitmapImage::Copy(int Width, int Height, TPixelFormat Format, COLORREF Fill)
{
    TPalette Colors = BitsPerPixel(Format) <= 8 && FBitCount <= BitsPerPixel(Format) ? Palette() : TPalette();
    auto Result = std::make_shared<TBitmapImage>(Width, Height, Format, std::move(Colors));
    Result->XPelsPerMeter = XPelsPerMeter;
    Result->YPelsPerMeter = YPelsPerMeter;
    if (uint8_t* From = Row(Height - 1); From && Width == FWidth && Height == FHeight && Result->FFormat == FFormat)
        std::memcpy(Result->FBits, From, FStride * static_cast<size_t>(FHeight));
    else
        Result->CopyPixels(*this, Fill);
    return Result;
}

std::shared_ptr<TBitmapImage> TBitmapImage::MonochromeCopy(int Width, int Height, COLORREF White)
{
    std::shared_ptr<TBitmapImage> Result = Monochrome(Width, Height);
    HDC From = Context();
    COLORREF OldColor = SetBkColor(From, White);
    Result->CopyPixels(*this, RGB(255, 255, 255));
    SetBkColor(From, OldColor);
    return Result;
}

void TBitmapImage::CopyPixels(TBitmapImage& Source, COLORREF Fill)
{
    if (FWidth > Source.FWidth || FHeight > Source.FHeight)
        FillAll(Fill);
    BitBlt(Context(), 0, 0, std::min(FWidth, Source.FWidth), std::min(FHeight, Source.FHeight), Source.Context(), 0, 0,
           SRCCOPY);
    GdiFlush();
}
