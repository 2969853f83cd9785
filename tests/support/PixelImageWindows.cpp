#include "tests/support/PixelImage.h"

#include "vcl/graphics/Font.h"
#include "vcl/system/Utf.h"

#include <cassert>
#include <iomanip>
#include <sstream>

// Holds its handles itself: it must not hide leaks of the library.
class TPixelImage::TSurface {
public:
    TSurface(int AWidth, int AHeight) : Width(AWidth), Height(AHeight), Context(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO Info = {};
        Info.bmiHeader.biSize = sizeof(Info.bmiHeader);
        Info.bmiHeader.biWidth = std::max(Width, 1);
        Info.bmiHeader.biHeight = -std::max(Height, 1);
        Info.bmiHeader.biPlanes = 1;
        Info.bmiHeader.biBitCount = 32;
        void* Bits = nullptr;
        Bitmap = CreateDIBSection(nullptr, &Info, DIB_RGB_COLORS, &Bits, nullptr, 0);
        Pixels = static_cast<uint32_t*>(Bits);
        Old = SelectObject(Context, Bitmap);
    }
    ~TSurface()
    {
        SelectObject(Context, Old);
        DeleteObject(Bitmap);
        DeleteDC(Context);
    }

    uint32_t& Pixel(int X, int Y)
    {
        assert(X >= 0 && X < Width && Y >= 0 && Y < Height);
        GdiFlush();
        return Pixels[Y * Width + X];
    }

    const int Width;
    const int Height;
    HDC Context;
    HBITMAP Bitmap;
    HGDIOBJ Old;
    uint32_t* Pixels;
};

TPixelImage::TPixelImage(int Width, int Height, TColor Background) : FSurface(std::make_unique<TSurface>(Width, Height))
{
    Fill(TRect(0, 0, Width, Height), Background);
}

TPixelImage::TPixelImage(TPixelImage&&) noexcept = default;
TPixelImage& TPixelImage::operator=(TPixelImage&&) noexcept = default;
TPixelImage::~TPixelImage() = default;

HDC TPixelImage::DC() const
{
    return FSurface->Context;
}

int TPixelImage::Width() const
{
    return FSurface->Width;
}

int TPixelImage::Height() const
{
    return FSurface->Height;
}

TColor TPixelImage::At(int X, int Y) const
{
    const uint32_t Pixel = FSurface->Pixel(X, Y);
    return TColor((Pixel & 0xFF) << 16 | (Pixel & 0xFF00) | (Pixel >> 16 & 0xFF));
}

void TPixelImage::Set(int X, int Y, TColor Color)
{
    const COLORREF Rgb = ColorToRGB(Color);
    FSurface->Pixel(X, Y) = GetRValue(Rgb) << 16 | GetGValue(Rgb) << 8 | GetBValue(Rgb);
}

void TPixelImage::Fill(const TRect& R, TColor Color)
{
    for (int Y = std::max<int>(R.top, 0); Y < std::min<int>(R.bottom, Height()); ++Y)
        for (int X = std::max<int>(R.left, 0); X < std::min<int>(R.right, Width()); ++X)
            Set(X, Y, Color);
}

void TPixelImage::Frame(const TRect& R, TColor TopLeft, TColor BottomRight)
{
    Fill({R.left, R.top, R.right, R.top + 1}, TopLeft);
    Fill({R.left, R.top, R.left + 1, R.bottom}, TopLeft);
    Fill({R.right - 1, R.top, R.right, R.bottom}, BottomRight);
    Fill({R.left, R.bottom - 1, R.right, R.bottom}, BottomRight);
}

void TPixelImage::Copy(int X, int Y, const TPixelImage& Other)
{
    const TRect All(0, 0, Width(), Height());
    for (int Row = 0; Row < Other.Height(); ++Row)
        for (int Column = 0; Column < Other.Width(); ++Column)
            if (All.Contains(TPoint(X + Column, Y + Row)))
                Set(X + Column, Y + Row, Other.At(Column, Row));
}

TPixelImage TPixelImage::Part(const TRect& R) const
{
    TPixelImage Result(R.Width(), R.Height());
    for (int Y = 0; Y < R.Height(); ++Y)
        for (int X = 0; X < R.Width(); ++X)
            Result.Set(X, Y, At(R.left + X, R.top + Y));
    return Result;
}

int TPixelImage::CountOf(TColor Color) const
{
    const TColor Resolved = TColor(ColorToRGB(Color));
    int Count = 0;
    for (int Y = 0; Y < Height(); ++Y)
        for (int X = 0; X < Width(); ++X)
            Count += At(X, Y) == Resolved;
    return Count;
}

testing::AssertionResult SamePixels(const TPixelImage& Actual, const TPixelImage& Expected)
{
    if (Actual.Width() != Expected.Width() || Actual.Height() != Expected.Height())
        return testing::AssertionFailure() << "the picture is " << Actual.Width() << 'x' << Actual.Height()
                                           << " instead of " << Expected.Width() << 'x' << Expected.Height();
    std::ostringstream Differences;
    int Count = 0;
    for (int Y = 0; Y < Expected.Height(); ++Y)
        for (int X = 0; X < Expected.Width(); ++X) {
            if (Actual.At(X, Y) == Expected.At(X, Y) || ++Count > 8)
                continue;
            Differences << std::hex << std::setfill('0') << "\n  at " << std::dec << X << ',' << Y << std::hex << ": $"
                        << std::setw(6) << Actual.At(X, Y) << " instead of $" << std::setw(6) << Expected.At(X, Y);
        }
    if (Count == 0)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << Count << " pixels differ" << Differences.str();
}

void DrawExpectedText(TPixelImage& Image, std::string_view Text, TRect R, const TFont* Font, TColor Color,
                      unsigned Flags)
{
    HDC Context = Image.DC();
    HGDIOBJ OldFont = SelectObject(Context, Font->GetHandle());
    SetBkMode(Context, TRANSPARENT);
    SetTextColor(Context, ColorToRGB(Color));
    const TWideText Wide(Text);
    DrawTextW(Context, Wide.c_str(), static_cast<int>(Wide.size()), &R, Flags);
    SelectObject(Context, OldFont);
}
