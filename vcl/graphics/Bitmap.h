// TBitmap: a picture made of pixels.
//
// Assigning shares the pixels until one of the two changes. Every bitmap but a monochrome one lives in memory that both
// the system and the program can write to, so that ScanLine and drawing are equally fast.
#pragma once

#include "vcl/graphics/Color.h"
#include "vcl/graphics/Graphic.h"
#include "vcl/graphics/Handle.h"

#include <memory>
#include <vector>

class TBitmapCanvas;
class TBitmapImage;
class TMaskedImage;

VCL_ENUM(TPixelFormat, pfDevice, pf1bit, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit, pfCustom);
VCL_ENUM(TBitmapHandleType, bmDIB, bmDDB);
VCL_ENUM(TTransparentMode, tmAuto, tmFixed);

class TBitmap : public TGraphic {
    VCL_CLASS(TBitmap, TGraphic)
public:
    TBitmap();
    ~TBitmap() override;

    // A TBitmap: shares its pixels. Any other graphic: draws it. nullptr: empties the bitmap.
    void Assign(TPersistent* Source) override;

    bool GetEmpty() const override;
    int GetHeight() const override;
    void SetHeight(int Value) override { SetSize(GetWidth(), Value); }
    int GetWidth() const override;
    void SetWidth(int Value) override { SetSize(Value, GetHeight()); }
    // Keeps what fits, from the upper left corner on; new pixels get the canvas's brush colour. Negative sizes raise
    // EInvalidGraphicOperation.
    void SetSize(int AWidth, int AHeight);

    // What to draw on. Its Handle is good until another sixty or so bitmaps have been drawn, and only until the
    // bitmap's own Handle is asked for.
    TCanvas* GetCanvas();
    PROPERTY_READ(TCanvas*, Canvas);

    // Stays the bitmap's, and is in no device context. Setting one gives it to the bitmap.
    HBITMAP GetHandle();
    void SetHandle(HBITMAP Value);
    PROPERTY(HBITMAP, Handle);
    bool HandleAllocated() const;
    // The handle becomes the caller's, who deletes it; the bitmap is empty then. nullptr when it is empty already.
    HBITMAP ReleaseHandle();
    // bmDDB: of the screen's format (pfDevice) or monochrome. ScanLine works with both.
    TBitmapHandleType GetHandleType() const;
    void SetHandleType(TBitmapHandleType Value);
    PROPERTY(TBitmapHandleType, HandleType);

    // pfDevice: 32 bits. pfCustom cannot be set ("Invalid pixel format").
    TPixelFormat GetPixelFormat() const { return FMonochrome ? pf1bit : FPixelFormat; }
    void SetPixelFormat(TPixelFormat Value);
    PROPERTY(TPixelFormat, PixelFormat);
    // One bit a pixel, black and white. Drawing a colour picture on it makes the pixels of its background colour white.
    bool GetMonochrome() const;
    void SetMonochrome(bool Value);
    PROPERTY(bool, Monochrome);
    // A row's first pixel, row 0 on top; good until the bitmap is changed by other means. Raises
    // EInvalidGraphicOperation "Scan line index out of range".
    void* GetScanLine(int Row);
    PROPERTY_INDEXED_READ(void*, ScanLine);

    // The colour that is left out when Transparent is set: with tmAuto that of the pixel at the lower left corner, with
    // tmFixed the one that was set. Always with the palette-relative flag $02000000. An empty bitmap has white.
    // Setting a colour sets tmFixed; clDefault sets tmAuto.
    TColor GetTransparentColor();
    void SetTransparentColor(TColor Value);
    PROPERTY(TColor, TransparentColor);
    TTransparentMode GetTransparentMode() const { return FTransparentMode; }
    void SetTransparentMode(TTransparentMode Value);
    PROPERTY(TTransparentMode, TransparentMode);
    // Makes the bitmap monochrome: white where it had this colour, black elsewhere.
    void Mask(TColor Color);
    // The pixels without those of Color, ready to draw; kept until the bitmap changes.
    const TMaskedImage& Masked(TColor Color);

    // The entries of a bitmap with up to 8 bits a pixel; nullptr for others. Stays the bitmap's.
    HPALETTE GetPalette() override;
    // Gives the entries to a bitmap with up to 8 bits a pixel, and the palette to the bitmap.
    void SetPalette(HPALETTE Value) override;
    bool IgnorePalette = false;

    void LoadFromStream(TStream* Stream) override;
    // A bitmap that was read and not changed since is written as it was read; one of the device's format with 24 bits,
    // as its upper bytes mean nothing.
    void SaveToStream(TStream* Stream) override;
    // From the program's or library's resources. Raises EResNotFound "Resource %s not found".
    void LoadFromResourceName(HINSTANCE Instance, const AnsiString& ResName);
    void LoadFromResourceID(HINSTANCE Instance, int ResID);
    // A 32-bit size and the file's bytes.
    void ReadData(TStream* Stream) override;
    void WriteData(TStream* Stream) override;

    // Gives the system's resources back until the picture is needed again.
    void Dormant();
    // Forgets the file that the picture was read from, if it is still held to be written unchanged.
    void FreeImage();

protected:
    void Draw(TCanvas* ACanvas, const TRect& R) override;

private:
    friend class TBitmapCanvas;
    friend class TMaskedImage;

    // The image for reading; the bitmap is not empty.
    TBitmapImage& Image() const;
    // The image for writing: shared with nobody, nothing derived from it.
    TBitmapImage& OwnImage();
    void SetImage(std::shared_ptr<TBitmapImage> Image, TPixelFormat Format);
    std::shared_ptr<TBitmapImage> NewImage(int AWidth, int AHeight, TPixelFormat Format, bool Monochrome);
    std::vector<uint8_t> FileBytes();
    void LoadResource(HINSTANCE Instance, const wchar_t* ResName, const AnsiString& Shown);

    std::shared_ptr<TBitmapImage> FImage; // nullptr: empty
    std::unique_ptr<TBitmapCanvas> FCanvas;
    TPaletteHandle FPalette;
    TColor FTransparentColor = clDefault;
    int FWidth = 0; // one of the two may be 0; then there is no image
    int FHeight = 0;
    TPixelFormat FPixelFormat = pfDevice;
    TTransparentMode FTransparentMode = tmAuto;
    bool FMonochrome = false; // of the device-dependent kind; FPixelFormat is pfDevice
};
