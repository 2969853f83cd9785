// TPixelImage: a picture for comparing pixel by pixel: what was painted, or what should have been.
#pragma once

#include "vcl/graphics/Color.h"
#include "vcl/graphics/Types.h"

#include <gtest/gtest.h>
#include <memory>

// What nothing has been drawn on yet. No control is painted in this colour.
constexpr TColor Untouched = TColor(0xC800FE);

class TPixelImage {
public:
    TPixelImage(int Width, int Height, TColor Background = Untouched);
    TPixelImage(TPixelImage&&) noexcept;
    TPixelImage& operator=(TPixelImage&&) noexcept;
    ~TPixelImage();

    // To draw on with the system's calls.
    HDC DC() const;
    int Width() const;
    int Height() const;

    // System colours are resolved. Points outside of the picture raise an assertion.
    TColor At(int X, int Y) const;
    void Set(int X, int Y, TColor Color);
    // One pixel at a time, without the system's help; what lies outside of the picture is left out.
    void Fill(const TRect& R, TColor Color);
    // One-pixel lines along the sides of R; right and bottom come last and have the corners.
    void Frame(const TRect& R, TColor TopLeft, TColor BottomRight);
    // Puts another picture's pixels at X, Y; what does not fit is left out.
    void Copy(int X, int Y, const TPixelImage& Other);
    // The part of the picture at R.
    TPixelImage Part(const TRect& R) const;
    int CountOf(TColor Color) const;

private:
    class TSurface;
    std::unique_ptr<TSurface> FSurface;
};

// EXPECT_TRUE(SamePixels(Painted, Expected)) tells where two pictures differ, and how.
testing::AssertionResult SamePixels(const TPixelImage& Actual, const TPixelImage& Expected);

// The system's text drawing: font, colour, no background, DT_ flags.
class TFont;
void DrawExpectedText(TPixelImage& Image, std::string_view Text, TRect R, const TFont* Font, TColor Color,
                      unsigned Flags);
