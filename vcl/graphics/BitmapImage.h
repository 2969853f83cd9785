// TBitmapImage: the pixels of a bitmap, shared by all bitmaps that were assigned from one another.
#pragma once

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/MaskedImage.h"

#include <span>
#include <vector>

class TBitmapImage {
public:
    using TPalette = std::vector<RGBQUAD>;

    // Black pixels. pfDevice is the same as pf32bit. Palette: for up to 8 bits; without one a default palette is taken.
    // Raises EOutOfResources.
    TBitmapImage(int Width, int Height, TPixelFormat Format, TPalette Palette = {});
    static std::shared_ptr<TBitmapImage> Filled(int Width, int Height, TPixelFormat Format, COLORREF Fill);
    // A white monochrome bitmap of the system's device-dependent kind: only onto these the system draws colour pictures
    // by their background colour.
    static std::shared_ptr<TBitmapImage> Monochrome(int Width, int Height);
    // Owns a handle made elsewhere, of either kind; nullptr when it is no bitmap.
    static std::shared_ptr<TBitmapImage> Adopt(HBITMAP Handle);
    TBitmapImage(const TBitmapImage&) = delete;
    ~TBitmapImage();

    int Width() const { return FWidth; }
    int Height() const { return FHeight; }
    int BitCount() const { return FBitCount; }
    // Of the pixels: never pfDevice.
    TPixelFormat Format() const { return FFormat; }
    bool IsDeviceDependent() const { return FDeviceDependent; }
    // The entries of an image with up to 8 bits a pixel.
    const TPalette& Palette();
    void SetPalette(TPalette Palette);

    // In no device context.
    HBITMAP Handle();
    HBITMAP ReleaseHandle();
    bool HandleAllocated() const { return static_cast<bool>(FHandle); }
    // Row 0 is on top; nullptr when the pixels are the system's (Monochrome and adopted ones).
    uint8_t* Row(int Y);
    // Bytes from a row to the next.
    size_t Stride() const { return FStride; }

    // A context with the image in it. Only the last sixty-four or so stay open.
    HDC Context();
    void FreeContext();
    // The one canvas that draws through the context, and is told when that ends; nullptr for none.
    void Attach(TBitmapCanvas* Canvas);
    void Detach(TBitmapCanvas* Canvas);

    // A new image of the same pixels. New ones on the right and at the bottom get the colour.
    std::shared_ptr<TBitmapImage> Copy(int Width, int Height, TPixelFormat Format, COLORREF Fill);
    std::shared_ptr<TBitmapImage> Copy() { return Copy(FWidth, FHeight, FFormat, 0); }
    std::shared_ptr<TBitmapImage> MonochromeCopy(int Width, int Height, COLORREF White);

    // The pixels are about to change: forgets what was derived from them.
    void Changing();
    const TMaskedImage& Masked(TBitmap* Bitmap, COLORREF Color);

    // Keeps the picture as a file only, until it is needed.
    void Dormant();
    // The file that the image was read from, when EncodeBitmap would give another one.
    std::vector<uint8_t> File;
    // The picture's resolution, 0 when unknown.
    LONG XPelsPerMeter = 0;
    LONG YPelsPerMeter = 0;

private:
    TBitmapImage() = default;
    void CreateSection();
    void Need();
    void FillAll(COLORREF Color);
    void CopyPixels(TBitmapImage& Source, COLORREF Fill);

    TBitmapHandle FHandle;
    TMemoryDC FContext;
    HGDIOBJ FOldBitmap = nullptr;
    TBitmapCanvas* FAttached = nullptr;
    TBitmapImage* FNewer = nullptr; // of those with a context
    TBitmapImage* FOlder = nullptr;
    uint8_t* FBits = nullptr;
    size_t FStride = 0;
    int FWidth = 0;
    int FHeight = 0;
    int FBitCount = 0;
    TPixelFormat FFormat = pf32bit;
    bool FDeviceDependent = false;
    TPalette FPalette;
    TMaskedImage FMasked;
    COLORREF FMaskedColor = CLR_INVALID;

    struct TContexts;
};

int BitsPerPixel(TPixelFormat Format);
// Height is negative for an image whose top row comes first.
BITMAPINFOHEADER DibHeader(int Width, int Height, int BitCount, DWORD Compression = BI_RGB);
