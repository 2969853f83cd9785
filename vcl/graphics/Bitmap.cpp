#include "vcl/graphics/Bitmap.h"

#include "vcl/classes/Stream.h"
#include "vcl/graphics/BitmapCanvas.h"
#include "vcl/graphics/BitmapFile.h"
#include "vcl/graphics/GraphicStream.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Utf.h"

void TBitmap::Describe(TClassBuilder<TBitmap>&)
{}

TBitmap::TBitmap() = default;

TBitmap::~TBitmap()
{
    FCanvas.reset();
}

// --- The image -----------------------------------------------------------------------------------

TBitmapImage& TBitmap::Image() const
{
    return *FImage;
}

TBitmapImage& TBitmap::OwnImage()
{
    if (FImage.use_count() > 1) {
        if (FCanvas)
            FImage->Detach(FCanvas.get());
        FImage = FMonochrome ? FImage->MonochromeCopy(FWidth, FHeight, RGB(255, 255, 255)) : FImage->Copy();
    }
    FImage->Changing();
    return *FImage;
}

void TBitmap::SetImage(std::shared_ptr<TBitmapImage> Image, TPixelFormat Format)
{
    if (FCanvas)
        FCanvas->Detach();
    FImage = std::move(Image);
    FWidth = FImage ? FImage->Width() : 0;
    FHeight = FImage ? FImage->Height() : 0;
    FPixelFormat = Format;
    FMonochrome = FImage && FImage->IsDeviceDependent() && FImage->BitCount() == 1;
    FPalette.Reset();
    Changed(this);
}

void TBitmap::Assign(TPersistent* Source)
{
    if (Source == this)
        return;
    if (!Source) {
        SetImage(nullptr, pfDevice);
        return;
    }
    if (auto* Bitmap = As<TBitmap>(Source)) {
        FTransparentColor = Bitmap->FTransparentColor;
        FTransparentMode = Bitmap->FTransparentMode;
        TGraphic::SetTransparent(Bitmap->GetTransparent());
        SetImage(Bitmap->FImage, Bitmap->FPixelFormat);
        FWidth = Bitmap->FWidth;
        FHeight = Bitmap->FHeight;
        FMonochrome = Bitmap->FMonochrome;
        return;
    }
    auto* Graphic = As<TGraphic>(Source);
    if (!Graphic) {
        TGraphic::Assign(Source);
        return;
    }
    TBitmap Drawn;
    Drawn.SetSize(Graphic->GetWidth(), Graphic->GetHeight());
    Drawn.GetCanvas()->Draw(0, 0, Graphic);
    SetImage(Drawn.FImage, pfDevice);
}

bool TBitmap::GetEmpty() const
{
    return !FImage;
}

int TBitmap::GetHeight() const
{
    return FHeight;
}

int TBitmap::GetWidth() const
{
    return FWidth;
}

void TBitmap::SetSize(int AWidth, int AHeight)
{
    if (AWidth < 0 || AHeight < 0)
        RaiseInvalidOperation("Bitmap size is not valid");
    if (FWidth == AWidth && FHeight == AHeight)
        return;
    TPixelFormat Format = FPixelFormat;
    bool Monochrome = FMonochrome;
    std::shared_ptr<TBitmapImage> Image;
    if (AWidth > 0 && AHeight > 0)
        Image = NewImage(AWidth, AHeight, Format, Monochrome);
    SetImage(std::move(Image), Format);
    FWidth = AWidth;
    FHeight = AHeight;
    FMonochrome = Monochrome;
}

// What the bitmap has, in another size or format.
std::shared_ptr<TBitmapImage> TBitmap::NewImage(int AWidth, int AHeight, TPixelFormat Format, bool Monochrome)
{
    constexpr COLORREF White = RGB(255, 255, 255);
    if (Monochrome)
        return FImage ? FImage->MonochromeCopy(AWidth, AHeight, White) : TBitmapImage::Monochrome(AWidth, AHeight);
    COLORREF Fill = FCanvas ? ColorToRGB(FCanvas->GetBrush()->GetColor()) : White;
    return FImage ? FImage->Copy(AWidth, AHeight, Format, Fill) : TBitmapImage::Filled(AWidth, AHeight, Format, Fill);
}

TCanvas* TBitmap::GetCanvas()
{
    if (!FCanvas)
        FCanvas = std::make_unique<TBitmapCanvas>(*this);
    return FCanvas.get();
}

// --- Handle and format ---------------------------------------------------------------------------

HBITMAP TBitmap::GetHandle()
{
    return FImage ? FImage->Handle() : nullptr;
}

void TBitmap::SetHandle(HBITMAP Value)
{
    if (!Value) {
        SetImage(nullptr, pfDevice);
        return;
    }
    if (FImage && FImage->HandleAllocated() && FImage->Handle() == Value)
        return;
    std::shared_ptr<TBitmapImage> Image = TBitmapImage::Adopt(Value);
    if (!Image)
        RaiseInvalidGraphic("Bitmap image is not valid");
    TPixelFormat Format = Image->IsDeviceDependent() ? pfDevice : Image->Format();
    SetImage(std::move(Image), Format);
}

bool TBitmap::HandleAllocated() const
{
    return FImage && FImage->HandleAllocated();
}

HBITMAP TBitmap::ReleaseHandle()
{
    if (!FImage)
        return nullptr;
    HBITMAP Handle = OwnImage().ReleaseHandle();
    SetImage(nullptr, pfDevice);
    return Handle;
}

TBitmapHandleType TBitmap::GetHandleType() const
{
    return FPixelFormat == pfDevice ? bmDDB : bmDIB;
}

void TBitmap::SetHandleType(TBitmapHandleType Value)
{
    if (GetHandleType() != Value)
        SetPixelFormat(Value == bmDDB ? pfDevice : FMonochrome ? pf1bit : pf32bit);
}

void TBitmap::SetPixelFormat(TPixelFormat Value)
{
    if (Value >= pfCustom)
        RaiseInvalidOperation("Invalid pixel format");
    if (FPixelFormat == Value && !FMonochrome)
        return;
    int Width = FWidth;
    int Height = FHeight;
    SetImage(FImage ? NewImage(FWidth, FHeight, Value, false) : nullptr, Value);
    FWidth = Width;
    FHeight = Height;
}

bool TBitmap::GetMonochrome() const
{
    return FMonochrome || (FImage && FImage->BitCount() == 1);
}

void TBitmap::SetMonochrome(bool Value)
{
    if (GetMonochrome() == Value)
        return;
    int Width = FWidth;
    int Height = FHeight;
    SetImage(FImage ? NewImage(FWidth, FHeight, pfDevice, Value) : nullptr, pfDevice);
    FWidth = Width;
    FHeight = Height;
    FMonochrome = Value;
}

void* TBitmap::GetScanLine(int Row)
{
    if (Row < 0 || Row >= FHeight || !FImage)
        RaiseInvalidOperation("Scan line index out of range");
    if (!FImage->Row(0)) {
        // The pixels are the system's; take them over.
        if (FCanvas)
            FCanvas->Detach();
        FImage = FImage->Copy();
        FMonochrome = false;
        FPixelFormat = FPixelFormat == pfDevice && FImage->BitCount() == 1 ? pf1bit : FPixelFormat;
    }
    void* Line = OwnImage().Row(Row);
    GdiFlush();
    return Line;
}

// --- Transparency --------------------------------------------------------------------------------

TColor TBitmap::GetTransparentColor()
{
    COLORREF Color = RGB(255, 255, 255);
    if (FTransparentMode == tmFixed && FTransparentColor != clDefault)
        Color = ColorToRGB(FTransparentColor);
    else if (FImage && !FMonochrome)
        Color = GetPixel(FImage->Context(), 0, FHeight - 1);
    return TColor(Color | PaletteRelative);
}

void TBitmap::SetTransparentColor(TColor Value)
{
    TTransparentMode Mode = Value == clDefault ? tmAuto : tmFixed;
    if (FTransparentColor == Value && FTransparentMode == Mode)
        return;
    FTransparentColor = Value;
    FTransparentMode = Mode;
    Changed(this);
}

void TBitmap::SetTransparentMode(TTransparentMode Value)
{
    if (FTransparentMode == Value)
        return;
    // A fixed colour that was never set is the automatic one at this moment.
    SetTransparentColor(Value == tmAuto ? clDefault : GetTransparentColor());
}

void TBitmap::Mask(TColor Color)
{
    if (!FImage)
        return;
    COLORREF White = ColorToRGB(Color < 0 ? Color : TColor(Color & ~PaletteRelative));
    SetImage(FImage->MonochromeCopy(FWidth, FHeight, White), pfDevice);
}

const TMaskedImage& TBitmap::Masked(TColor Color)
{
    static const TMaskedImage& Nothing = *new TMaskedImage;
    return FImage ? FImage->Masked(this, ColorToRGB(Color)) : Nothing;
}

void TBitmap::Draw(TCanvas* ACanvas, const TRect& R)
{
    HDC Target = Context(ACanvas);
    if (GetTransparent()) {
        Masked(GetTransparentColor()).Stretch(Target, R, TRect(0, 0, FWidth, FHeight));
        return;
    }
    COLORREF OldColor = SetBkColor(Target, ColorToRGB(ACanvas->GetBrush()->GetColor()));
    auto Operation = static_cast<DWORD>(ACanvas->CopyMode);
    HDC Source = FImage->Context();
    if (R.Width() == FWidth && R.Height() == FHeight) {
        BitBlt(Target, R.left, R.top, FWidth, FHeight, Source, 0, 0, Operation);
    } else {
        int OldMode = SetStretchBltMode(Target, COLORONCOLOR);
        StretchBlt(Target, R.left, R.top, R.Width(), R.Height(), Source, 0, 0, FWidth, FHeight, Operation);
        SetStretchBltMode(Target, OldMode);
    }
    SetBkColor(Target, OldColor);
}

// --- Palette -------------------------------------------------------------------------------------

HPALETTE TBitmap::GetPalette()
{
    if (FPalette || !FImage || FImage->BitCount() > 8 || FImage->IsDeviceDependent())
        return FPalette.Get();
    struct {
        LOGPALETTE Header;
        PALETTEENTRY More[255];
    } Logical{};
    const TBitmapImage::TPalette& Colors = FImage->Palette();
    Logical.Header.palVersion = 0x300;
    Logical.Header.palNumEntries = static_cast<WORD>(Colors.size());
    for (size_t I = 0; I < Colors.size(); ++I)
        Logical.Header.palPalEntry[I] = {Colors[I].rgbRed, Colors[I].rgbGreen, Colors[I].rgbBlue, 0};
    FPalette = TPaletteHandle::Checked(CreatePalette(&Logical.Header));
    return FPalette.Get();
}

void TBitmap::SetPalette(HPALETTE Value)
{
    if (Value && Value == FPalette.Get())
        return;
    if (FImage && FImage->BitCount() <= 8 && Value) {
        PALETTEENTRY Entries[256] = {};
        UINT Count = GetPaletteEntries(Value, 0, 256, Entries);
        TBitmapImage::TPalette Colors(Count);
        for (UINT I = 0; I < Count; ++I)
            Colors[I] = {Entries[I].peBlue, Entries[I].peGreen, Entries[I].peRed, 0};
        OwnImage().SetPalette(std::move(Colors));
    }
    FPalette.Reset(Value);
    Changed(this);
}

void TBitmap::Dormant()
{
    if (FImage && FImage.use_count() == 1)
        FImage->Dormant();
}

void TBitmap::FreeImage()
{
    if (FImage && FImage->HandleAllocated())
        FImage->File = {};
}
