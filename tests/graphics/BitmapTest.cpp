#include "vcl/graphics/Bitmap.h"

#include "tests/graphics/Samples.h"
#include "vcl/graphics/Icon.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

TEST(Bitmap, StartsEmpty)
{
    TBitmap Bitmap;
    EXPECT_TRUE(Bitmap.Empty);
    EXPECT_EQ(Bitmap.Width, 0);
    EXPECT_EQ(Bitmap.Height, 0);
    EXPECT_EQ(Bitmap.Handle, nullptr);
    EXPECT_EQ(Bitmap.PixelFormat, pfDevice);
    EXPECT_FALSE(Bitmap.Monochrome);
    EXPECT_EQ(Bitmap.ReleaseHandle(), nullptr);
}

TEST(Bitmap, GrowsWhiteAndKeepsWhatItHas)
{
    TBitmap Bitmap;
    Bitmap.Width = 3;
    EXPECT_TRUE(Bitmap.Empty);
    EXPECT_EQ(Bitmap.Width, 3);
    Bitmap.Height = 2;
    EXPECT_FALSE(Bitmap.Empty);
    EXPECT_THAT(PixelsOf(Bitmap), testing::Each(0xFFFFFFu));
    Bitmap.Canvas->Pixels[2][1] = clRed;
    Bitmap.Canvas->Brush->Color = clLime;
    Bitmap.SetSize(4, 3);
    EXPECT_EQ(Bitmap.Canvas->Pixels[2][1], clRed);
    EXPECT_EQ(Bitmap.Canvas->Pixels[3][0], clLime);
    EXPECT_EQ(Bitmap.Canvas->Pixels[0][2], clLime);
    Bitmap.SetSize(3, 2);
    EXPECT_EQ(Bitmap.Canvas->Pixels[2][1], clRed);
    Bitmap.SetSize(0, 2);
    EXPECT_TRUE(Bitmap.Empty);
    EXPECT_THROW(Bitmap.SetSize(-1, 5), EInvalidGraphicOperation);
}

TEST(Bitmap, AssigningSharesThePixelsUntilOneChanges)
{
    TBitmap A, B;
    FillSample(A, 5, 5);
    B.Assign(&A);
    EXPECT_EQ(A.Handle, B.Handle);
    B.Canvas->Pixels[1][1] = clWhite;
    EXPECT_NE(A.Handle, B.Handle);
    EXPECT_EQ(A.Canvas->Pixels[1][1], SamplePixel(1, 1));
    EXPECT_EQ(B.Canvas->Pixels[1][1], clWhite);
    EXPECT_EQ(B.Canvas->Pixels[4][4], SamplePixel(4, 4));
}

TEST(Bitmap, TheSourceMayBeTheOneThatChanges)
{
    TBitmap A, B;
    FillSample(A, 5, 5);
    A.Canvas->MoveTo(0, 0);
    B.Assign(&A);
    A.Canvas->LineTo(5, 0);
    EXPECT_EQ(A.Canvas->Pixels[2][0], clBlack);
    EXPECT_EQ(B.Canvas->Pixels[2][0], SamplePixel(2, 0));
    static_cast<uint32_t*>(B.ScanLine[4])[0] = 0xFF;
    EXPECT_EQ(A.Canvas->Pixels[0][4], SamplePixel(0, 4));
}

TEST(Bitmap, ABitmapOutlivesTheOneItCameFrom)
{
    TBitmap B;
    {
        TBitmap A;
        FillSample(A, 5, 5);
        static_cast<void>(A.Canvas->Handle);
        B.Assign(&A);
        B.Canvas->Draw(0, 0, &A);
    }
    EXPECT_EQ(B.Canvas->Pixels[3][2], SamplePixel(3, 2));
}

TEST(Bitmap, TwoSharersMayBeReadThroughTheirCanvases)
{
    TBitmap A, B;
    FillSample(A, 5, 5);
    B.Assign(&A);
    auto Target = NewBitmap(10, 5);
    Target->Canvas->CopyRect(Rect(0, 0, 5, 5), A.Canvas, Rect(0, 0, 5, 5));
    Target->Canvas->CopyRect(Rect(5, 0, 10, 5), B.Canvas, Rect(0, 0, 5, 5));
    EXPECT_EQ(A.Canvas->Pixels[1][2], SamplePixel(1, 2));
    EXPECT_EQ(Target->Canvas->Pixels[6][2], SamplePixel(1, 2));
    A.Canvas->CopyRect(Rect(0, 0, 5, 5), B.Canvas, Rect(1, 1, 6, 6));
    EXPECT_EQ(A.Canvas->Pixels[0][0], SamplePixel(1, 1));
    EXPECT_EQ(B.Canvas->Pixels[0][0], SamplePixel(0, 0));
}

TEST(Bitmap, HundredsOfBitmapsCanBeDrawnOn)
{
    std::vector<std::unique_ptr<TBitmap>> Bitmaps;
    for (int I = 0; I < 300; ++I) {
        Bitmaps.push_back(NewBitmap(2, 1));
        Bitmaps.back()->Canvas->Pixels[0][0] = TColor(I);
    }
    for (int I = 0; I < 300; ++I) {
        Bitmaps[I]->Canvas->Brush->Color = TColor(I * 2);
        Bitmaps[I]->Canvas->FillRect(Rect(1, 0, 2, 1));
    }
    for (int I = 0; I < 300; ++I) {
        EXPECT_EQ(Bitmaps[I]->Canvas->Pixels[0][0], TColor(I));
        EXPECT_EQ(Bitmaps[I]->Canvas->Pixels[1][0], TColor(I * 2));
    }
    int Contexts = 0;
    for (auto& Bitmap : Bitmaps)
        Contexts += Bitmap->Canvas->HandleAllocated();
    EXPECT_LE(Contexts, 64);
    EXPECT_GT(Contexts, 32);
}

TEST(Bitmap, AskingForTheHandleTakesItOutOfTheCanvas)
{
    auto Bitmap = NewBitmap(4, 4);
    Bitmap->Canvas->Pixels[0][0] = clRed;
    HBITMAP Handle = Bitmap->Handle;
    HDC Context = CreateCompatibleDC(nullptr);
    HGDIOBJ Old = SelectObject(Context, Handle);
    EXPECT_NE(Old, nullptr) << "it is in no other context";
    EXPECT_EQ(GetPixel(Context, 0, 0), RGB(255, 0, 0));
    SelectObject(Context, Old);
    DeleteDC(Context);
    Bitmap->Canvas->Pixels[1][1] = clBlue;
    EXPECT_EQ(Bitmap->Canvas->Pixels[1][1], clBlue);
}

TEST(Bitmap, ReleasedHandlesAreTheCallers)
{
    auto Bitmap = NewBitmap(4, 4);
    Bitmap->Canvas->Pixels[2][2] = clRed;
    HBITMAP Handle = Bitmap->ReleaseHandle();
    EXPECT_TRUE(Bitmap->Empty);
    BITMAP Info{};
    EXPECT_NE(::GetObjectW(Handle, sizeof Info, &Info), 0);
    EXPECT_EQ(Info.bmWidth, 4);
    TBitmap Other;
    Other.Handle = Handle;
    EXPECT_EQ(Other.Handle, Handle);
    EXPECT_EQ(Other.Canvas->Pixels[2][2], clRed);
    EXPECT_EQ(Other.PixelFormat, pf32bit);
}

TEST(Bitmap, ReleasingASharedImageLeavesTheOther)
{
    TBitmap A, B;
    FillSample(A, 3, 3);
    B.Assign(&A);
    HBITMAP Handle = B.ReleaseHandle();
    EXPECT_NE(Handle, A.Handle);
    EXPECT_EQ(A.Canvas->Pixels[2][2], SamplePixel(2, 2));
    DeleteObject(Handle);
}

TEST(Bitmap, TakesDeviceDependentHandles)
{
    HDC Screen = GetDC(nullptr);
    HBITMAP Handle = CreateCompatibleBitmap(Screen, 6, 5);
    ReleaseDC(nullptr, Screen);
    TBitmap Bitmap;
    Bitmap.Handle = Handle;
    EXPECT_EQ(Bitmap.Width, 6);
    EXPECT_EQ(Bitmap.HandleType, bmDDB);
    Bitmap.Canvas->Pixels[5][4] = clRed;
    EXPECT_EQ(Bitmap.Handle, Handle);
    EXPECT_EQ(static_cast<uint32_t*>(Bitmap.ScanLine[4])[5] & 0xFFFFFF, 0xFF0000u);
    EXPECT_THROW(Bitmap.Handle = reinterpret_cast<HBITMAP>(GetStockObject(WHITE_BRUSH)), EInvalidGraphic);
    EXPECT_EQ(Bitmap.Width, 6);
    Bitmap.Handle = nullptr;
    EXPECT_TRUE(Bitmap.Empty);
}

TEST(Bitmap, ScanLinesAreThePixels)
{
    TBitmap Bitmap;
    Bitmap.PixelFormat = pf24bit;
    Bitmap.SetSize(3, 2);
    auto* Row = static_cast<uint8_t*>(Bitmap.ScanLine[1]);
    Row[3] = 0x11;
    Row[4] = 0x22;
    Row[5] = 0x33;
    EXPECT_EQ(Bitmap.Canvas->Pixels[1][1], TColor(0x112233));
    for (int Wrong : {-1, 2, 100}) {
        try {
            static_cast<void>(Bitmap.ScanLine[Wrong]);
            ADD_FAILURE() << Wrong;
        } catch (const EInvalidGraphicOperation& Error) {
            EXPECT_EQ(Error.Message, "Scan line index out of range");
        }
    }
}

TEST(Bitmap, ChangesOfFormatKeepThePicture)
{
    auto Bitmap = NewBitmap(4, 2);
    Bitmap->Canvas->Pixels[0][0] = clRed;
    Bitmap->Canvas->Pixels[1][0] = clNavy;
    Bitmap->Canvas->Pixels[2][1] = clBlack;
    std::vector<uint32_t> Expected = PixelsOf(*Bitmap);
    for (TPixelFormat Format : {pf32bit, pf24bit, pf8bit, pf32bit, pf4bit, pf8bit, pfDevice}) {
        Bitmap->PixelFormat = Format;
        EXPECT_EQ(Bitmap->PixelFormat, Format);
        EXPECT_EQ(PixelsOf(*Bitmap), Expected) << int(Format);
    }
    Bitmap->PixelFormat = pf15bit;
    EXPECT_EQ(Bitmap->Canvas->Pixels[0][0], clRed);
    EXPECT_EQ(*static_cast<uint16_t*>(Bitmap->ScanLine[0]), 0x7C00);
    Bitmap->PixelFormat = pf16bit;
    EXPECT_EQ(*static_cast<uint16_t*>(Bitmap->ScanLine[0]), 0xF800);
    EXPECT_THROW(Bitmap->PixelFormat = pfCustom, EInvalidGraphicOperation);
}

TEST(Bitmap, MonochromeMakesTheBackgroundColorWhite)
{
    auto Source = NewBitmap(4, 1);
    Source->Canvas->Pixels[1][0] = clFuchsia;
    Source->Canvas->Pixels[2][0] = clLime;
    TBitmap Mask;
    Mask.Monochrome = true;
    Mask.SetSize(4, 1);
    EXPECT_TRUE(Mask.Monochrome);
    EXPECT_EQ(Mask.PixelFormat, pf1bit);
    Source->Canvas->Brush->Color = clFuchsia;
    Mask.Canvas->CopyRect(Rect(0, 0, 4, 1), Source->Canvas, Rect(0, 0, 4, 1));
    EXPECT_EQ(PixelsOf(Mask), (std::vector<uint32_t>{0, 0xFFFFFF, 0, 0}));
    Mask.Monochrome = false;
    EXPECT_EQ(Mask.PixelFormat, pfDevice);
    EXPECT_EQ(PixelsOf(Mask), (std::vector<uint32_t>{0, 0xFFFFFF, 0, 0}));
}

TEST(Bitmap, MonochromePicturesAreDrawnInFontAndBrushColor)
{
    TBitmap Mono;
    Mono.Monochrome = true;
    Mono.SetSize(2, 1);
    Mono.Canvas->Pixels[0][0] = clBlack;
    auto Target = NewBitmap(2, 1);
    Target->Canvas->Font->Color = clRed;
    Target->Canvas->Brush->Color = clBlue;
    Target->Canvas->Draw(0, 0, &Mono);
    EXPECT_EQ(PixelsOf(*Target), (std::vector<uint32_t>{0xFF0000, 0x0000FF}));
}

TEST(Bitmap, MasksAColor)
{
    TBitmap Bitmap;
    FillSample(Bitmap, 4, 1);
    Bitmap.Canvas->Pixels[2][0] = clFuchsia;
    Bitmap.Mask(clFuchsia);
    EXPECT_TRUE(Bitmap.Monochrome);
    EXPECT_EQ(PixelsOf(Bitmap), (std::vector<uint32_t>{0, 0, 0xFFFFFF, 0}));
}

TEST(Bitmap, MonochromeBitmapsAreCopiedOnWriteToo)
{
    TBitmap A, B;
    A.Monochrome = true;
    A.SetSize(3, 3);
    B.Assign(&A);
    B.Canvas->Pixels[1][1] = clBlack;
    EXPECT_THAT(PixelsOf(A), testing::Each(0xFFFFFFu));
    EXPECT_TRUE(B.Monochrome);
    EXPECT_EQ(B.Canvas->Pixels[1][1], clBlack);
    static_cast<uint8_t*>(B.ScanLine[0])[0] = 0;
    EXPECT_EQ(B.Canvas->Pixels[0][0], clBlack);
    EXPECT_EQ(B.PixelFormat, pf1bit);
}

// --- Transparency --------------------------------------------------------------------------------

TEST(Bitmap, TheTransparentColorIsThatOfTheLowerLeftPixel)
{
    TBitmap Bitmap;
    FillSample(Bitmap, 4, 4);
    Bitmap.Canvas->Pixels[0][3] = clFuchsia;
    EXPECT_EQ(Bitmap.TransparentColor, TColor(clFuchsia | PaletteRelative));
    EXPECT_EQ(Bitmap.TransparentMode, tmAuto);
    Bitmap.Canvas->Pixels[0][3] = clRed;
    EXPECT_EQ(Bitmap.TransparentColor, TColor(clRed | PaletteRelative));
    TBitmap Empty;
    EXPECT_EQ(Empty.TransparentColor, TColor(clWhite | PaletteRelative));
}

TEST(Bitmap, AFixedTransparentColorStays)
{
    TBitmap Bitmap;
    FillSample(Bitmap, 4, 4);
    Bitmap.TransparentColor = clLime;
    EXPECT_EQ(Bitmap.TransparentMode, tmFixed);
    EXPECT_EQ(Bitmap.TransparentColor, TColor(clLime | PaletteRelative));
    Bitmap.TransparentColor = clDefault;
    EXPECT_EQ(Bitmap.TransparentMode, tmAuto);
    EXPECT_EQ(Bitmap.TransparentColor, TColor(SamplePixel(0, 3) | PaletteRelative));
    Bitmap.TransparentMode = tmFixed;
    Bitmap.Canvas->Pixels[0][3] = clRed;
    EXPECT_EQ(Bitmap.TransparentColor, TColor(SamplePixel(0, 3) | PaletteRelative));
    Bitmap.TransparentMode = tmAuto;
    EXPECT_EQ(Bitmap.TransparentColor, TColor(clRed | PaletteRelative));
}

TEST(Bitmap, TransparentOnesLeaveTheGroundAlone)
{
    TBitmap Bitmap, Target;
    FillSample(Bitmap, 4, 4);
    for (int I = 0; I < 4; ++I)
        Bitmap.Canvas->Pixels[I][3 - I] = clFuchsia;
    Bitmap.Transparent = true;
    for (int Round = 0; Round < 2; ++Round) {
        FillSample(Target, 12, 12);
        Target.Canvas->Draw(5, 5, &Bitmap);
        for (int Y = 0; Y < 12; ++Y)
            for (int X = 0; X < 12; ++X) {
                bool Drawn = Bounds(5, 5, 4, 4).Contains(Point(X, Y)) && X - 5 != 3 - (Y - 5);
                EXPECT_EQ(Target.Canvas->Pixels[X][Y], Drawn ? Bitmap.Canvas->Pixels[X - 5][Y - 5] : SamplePixel(X, Y));
            }
        // What was prepared for drawing follows the bitmap.
        Bitmap.Canvas->Pixels[0][0] = clLime;
    }
    EXPECT_EQ(Target.Canvas->Pixels[5][5], clLime);
}

TEST(Bitmap, TransparentOnesStretch)
{
    auto Bitmap = NewBitmap(2, 1);
    Bitmap->Canvas->Pixels[1][0] = clRed;
    Bitmap->Transparent = true;
    auto Target = NewBitmap(4, 1);
    Target->Canvas->Brush->Color = clBlue;
    Target->Canvas->FillRect(Rect(0, 0, 4, 1));
    Target->Canvas->StretchDraw(Rect(0, 0, 4, 1), Bitmap.get());
    EXPECT_EQ(PixelsOf(*Target), (std::vector<uint32_t>{0xFF, 0xFF, 0xFF0000, 0xFF0000}));
}

TEST(Bitmap, AssignCopiesTransparency)
{
    TBitmap A, B;
    FillSample(A, 2, 2);
    A.Transparent = true;
    A.TransparentColor = clLime;
    B.Assign(&A);
    EXPECT_TRUE(B.Transparent);
    EXPECT_EQ(B.TransparentMode, tmFixed);
    EXPECT_EQ(B.TransparentColor, TColor(clLime | PaletteRelative));
}

// --- The rest ------------------------------------------------------------------------------------

TEST(Bitmap, TellsOfChanges)
{
    TBitmap Bitmap;
    int Changes = 0;
    Bitmap.OnChange = [&](TObject* Sender) {
        EXPECT_EQ(Sender, &Bitmap);
        ++Changes;
    };
    Bitmap.SetSize(4, 4);
    EXPECT_EQ(Changes, 1);
    Bitmap.SetSize(4, 4);
    EXPECT_EQ(Changes, 1);
    Bitmap.Canvas->Pixels[0][0] = clRed;
    EXPECT_EQ(Changes, 2);
    Bitmap.Transparent = true;
    EXPECT_EQ(Changes, 3);
    Bitmap.Modified = false;
    EXPECT_EQ(Changes, 3);
    Bitmap.Modified = true;
    EXPECT_EQ(Changes, 4);
    EXPECT_TRUE(Bitmap.Modified);
    Bitmap.Assign(nullptr);
    EXPECT_EQ(Changes, 5);
    EXPECT_TRUE(Bitmap.Empty);
}

TEST(Bitmap, TakesThePictureOfAnyGraphic)
{
    TIcon Icon;
    Icon.Handle = CopyIcon(LoadIconW(nullptr, IDI_ERROR));
    TBitmap Bitmap;
    Bitmap.Assign(&Icon);
    EXPECT_EQ(Bitmap.Width, Icon.Width);
    EXPECT_THAT(PixelsOf(Bitmap), testing::Contains(testing::Ne(0xFFFFFFu)));
    TPersistent Other;
    EXPECT_THROW(Bitmap.Assign(&Other), EConvertError);
}

TEST(Bitmap, PalettesAreThoseOfThePixels)
{
    TBitmap Bitmap;
    EXPECT_EQ(Bitmap.Palette, nullptr);
    Bitmap.PixelFormat = pf8bit;
    Bitmap.SetSize(4, 4);
    EXPECT_EQ(GetPaletteEntries(Bitmap.Palette, 0, 256, nullptr), 256u);
    Bitmap.PixelFormat = pf4bit;
    LOGPALETTE* Logical = static_cast<LOGPALETTE*>(calloc(1, sizeof(LOGPALETTE) + 15 * sizeof(PALETTEENTRY)));
    Logical->palVersion = 0x300;
    Logical->palNumEntries = 16;
    for (int I = 0; I < 16; ++I)
        Logical->palPalEntry[I] = {static_cast<BYTE>(I), 2, 3, 0};
    Bitmap.Palette = CreatePalette(Logical);
    free(Logical);
    *static_cast<uint8_t*>(Bitmap.ScanLine[0]) = 0x57;
    EXPECT_EQ(Bitmap.Canvas->Pixels[0][0], TColor(RGB(5, 2, 3)));
    EXPECT_EQ(Bitmap.Canvas->Pixels[1][0], TColor(RGB(7, 2, 3)));
}

TEST(Bitmap, SleepsWithoutHandles)
{
    TBitmap Bitmap;
    FillSample(Bitmap, 6, 6);
    TBitmap Mono;
    Mono.Monochrome = true;
    Mono.SetSize(3, 3);
    Mono.Canvas->Pixels[1][2] = clBlack;
    std::vector<uint32_t> Expected = PixelsOf(Bitmap);
    std::vector<uint32_t> ExpectedMono = PixelsOf(Mono);
    Bitmap.Dormant();
    Mono.Dormant();
    EXPECT_FALSE(Bitmap.HandleAllocated());
    EXPECT_FALSE(Bitmap.Empty);
    EXPECT_EQ(Bitmap.Width, 6);
    EXPECT_EQ(PixelsOf(Bitmap), Expected);
    EXPECT_EQ(PixelsOf(Mono), ExpectedMono);
    Bitmap.Dormant();
    Bitmap.Canvas->Pixels[0][0] = clLime;
    EXPECT_EQ(Bitmap.Canvas->Pixels[0][0], clLime);
    EXPECT_EQ(Bitmap.Canvas->Pixels[5][5], SamplePixel(5, 5));
    Bitmap.Dormant();
    Bitmap.FreeImage();
    EXPECT_EQ(Bitmap.Canvas->Pixels[0][0], clLime);
}
