#include "vcl/graphics/MaskedImage.h"

#include "tests/graphics/Samples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

// 20 x 10 sample pixels, olive on every third.
void FillMasked(TBitmap& Bitmap)
{
    FillSample(Bitmap, 20, 10);
    for (int Y = 0; Y < 10; ++Y)
        for (int X = Y % 3; X < 20; X += 3)
            static_cast<uint32_t*>(Bitmap.ScanLine[Y])[X] = 0x808000;
}

bool IsOlive(int X, int Y)
{
    return X % 3 == Y % 3;
}

} // namespace

TEST(MaskedImage, DrawsExactColorsAndLeavesTheOthersAlone)
{
    TBitmap Source, Target;
    FillMasked(Source);
    TMaskedImage Image(&Source, clOlive);
    EXPECT_EQ(Image.Width(), 20);
    EXPECT_EQ(Image.Height(), 10);
    FillSample(Target, 40, 40);
    Image.Draw(Target.Canvas->Handle, 3, 5);
    for (int Y = 0; Y < 40; ++Y)
        for (int X = 0; X < 40; ++X) {
            bool Drawn = Bounds(3, 5, 20, 10).Contains(Point(X, Y)) && !IsOlive(X - 3, Y - 5);
            EXPECT_EQ(Target.Canvas->Pixels[X][Y], Drawn ? SamplePixel(X - 3, Y - 5) : SamplePixel(X, Y));
        }
}

TEST(MaskedImage, EveryColorComesOutAsItIs)
{
    TBitmap Source;
    Source.PixelFormat = pf32bit;
    Source.SetSize(256, 3);
    for (int I = 0; I < 256; ++I)
        for (int Y = 0; Y < 3; ++Y)
            static_cast<uint32_t*>(Source.ScanLine[Y])[I] = static_cast<uint32_t>(I) << (8 * Y);
    static_cast<uint32_t*>(Source.ScanLine[0])[0] = 0x123456; // so that the image is not opaque
    TMaskedImage Image(&Source, TColor(0x563412));
    auto Target = NewBitmap(256, 3);
    Image.Draw(Target->Canvas->Handle, 0, 0);
    for (int I = 1; I < 256; ++I)
        for (int Y = 0; Y < 3; ++Y)
            EXPECT_EQ(PixelsOf(*Target)[Y * 256 + I], static_cast<uint32_t>(I) << (8 * Y));
    EXPECT_EQ(Target->Canvas->Pixels[0][0], clWhite);
}

TEST(MaskedImage, DrawsACell)
{
    TBitmap Source, Target;
    FillMasked(Source);
    TMaskedImage Image(&Source, clOlive);
    FillSample(Target, 20, 20);
    Image.Draw(Target.Canvas->Handle, 10, 10, Bounds(6, 3, 4, 4));
    for (int Y = 0; Y < 20; ++Y)
        for (int X = 0; X < 20; ++X) {
            bool Drawn = Bounds(10, 10, 4, 4).Contains(Point(X, Y)) && !IsOlive(X - 4, Y - 7);
            EXPECT_EQ(Target.Canvas->Pixels[X][Y], Drawn ? SamplePixel(X - 4, Y - 7) : SamplePixel(X, Y));
        }
}

TEST(MaskedImage, CutsWhatLiesOutside)
{
    TBitmap Source;
    FillMasked(Source);
    TMaskedImage Image(&Source, clNone);
    auto Target = NewBitmap(20, 20);
    Image.Draw(Target->Canvas->Handle, 0, 0, Bounds(20, 0, 5, 5));
    Image.Draw(Target->Canvas->Handle, 0, 0, Bounds(0, 10, 5, 5));
    EXPECT_THAT(PixelsOf(*Target), testing::Each(0xFFFFFFu));
    Image.Draw(Target->Canvas->Handle, 4, 4, Bounds(-2, -2, 5, 5));
    EXPECT_EQ(Target->Canvas->Pixels[5][6], clWhite);
    EXPECT_EQ(Target->Canvas->Pixels[6][6], Source.Canvas->Pixels[0][0]);
    EXPECT_EQ(Target->Canvas->Pixels[8][8], Source.Canvas->Pixels[2][2]);
    EXPECT_EQ(Target->Canvas->Pixels[9][8], clWhite);
}

TEST(MaskedImage, WithoutATransparentColorEverythingIsDrawn)
{
    TBitmap Source;
    FillMasked(Source);
    auto Target = NewBitmap(20, 10);
    TMaskedImage(&Source, clNone).Draw(Target->Canvas->Handle, 0, 0);
    EXPECT_EQ(PixelsOf(*Target), PixelsOf(Source));
}

TEST(MaskedImage, ThePaletteRelativeFlagDoesNotMatter)
{
    TBitmap Source;
    FillMasked(Source);
    auto Target = NewBitmap(20, 10);
    TMaskedImage(&Source, TColor(clOlive | PaletteRelative)).Draw(Target->Canvas->Handle, 0, 0);
    EXPECT_EQ(Target->Canvas->Pixels[0][0], clWhite);
    EXPECT_EQ(Target->Canvas->Pixels[1][0], SamplePixel(1, 0));
}

TEST(MaskedImage, WorksForEveryPixelFormat)
{
    for (TPixelFormat Format : {pf1bit, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit, pfDevice}) {
        auto Source = NewBitmap(4, 1);
        Source->Canvas->Pixels[1][0] = clBlack;
        Source->PixelFormat = Format;
        auto Target = NewBitmap(4, 1);
        Target->Canvas->Brush->Color = clRed;
        Target->Canvas->FillRect(Rect(0, 0, 4, 1));
        TMaskedImage(Source.get(), clWhite).Draw(Target->Canvas->Handle, 0, 0);
        EXPECT_EQ(PixelsOf(*Target), (std::vector<uint32_t>{0xFF0000, 0, 0xFF0000, 0xFF0000})) << int(Format);
    }
}

TEST(MaskedImage, OfNothingDrawsNothing)
{
    TBitmap Empty;
    auto Target = NewBitmap(4, 4);
    for (TBitmap* Source : {&Empty, static_cast<TBitmap*>(nullptr)}) {
        TMaskedImage Image(Source, clOlive);
        EXPECT_TRUE(Image.Empty());
        Image.Draw(Target->Canvas->Handle, 0, 0);
        Image.Stretch(Target->Canvas->Handle, Rect(0, 0, 4, 4), Rect(0, 0, 1, 1));
    }
    EXPECT_THAT(PixelsOf(*Target), testing::Each(0xFFFFFFu));
}

TEST(MaskedImage, CanBeMovedAndReplaced)
{
    TBitmap Source;
    FillMasked(Source);
    TMaskedImage Image;
    for (int I = 0; I < 3; ++I)
        Image = TMaskedImage(&Source, I == 1 ? clNone : clOlive);
    TMaskedImage Moved = std::move(Image);
    auto Target = NewBitmap(20, 10);
    Moved.Draw(Target->Canvas->Handle, 0, 0);
    EXPECT_EQ(Target->Canvas->Pixels[0][0], clWhite);
    EXPECT_EQ(Target->Canvas->Pixels[1][0], SamplePixel(1, 0));
}

TEST(MaskedImage, VariantsAreMadeThroughThePixels)
{
    TBitmap Source;
    FillMasked(Source);
    TMaskedImage Image(&Source, clNone);
    Image.Pixels()[0] = 0x80800000; // half transparent red
    Image.Pixels()[1] = 0;
    auto Target = NewBitmap(20, 10);
    Image.Draw(Target->Canvas->Handle, 0, 0);
    TColor Mixed = Target->Canvas->Pixels[0][0];
    EXPECT_NEAR(GetRValue(Mixed), 255, 1);
    EXPECT_NEAR(GetGValue(Mixed), 127, 1);
    EXPECT_EQ(Target->Canvas->Pixels[1][0], clWhite);
    EXPECT_EQ(Target->Canvas->Pixels[2][0], SamplePixel(2, 0));
}
