#include "toolbar/Glyphs.h"
#include "tests/support/FormText.h"
#include "tests/support/Strips.h"
#include "vcl/graphics/Icon.h"
#include "vcl/system/LiveCount.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

// A strip of ten 16 x 16 cells in one row.
class GlyphsTest : public testing::Test {
protected:
    void SetUp() override
    {
        FillStrip(Bitmap.get(), 160, 16);
        Glyphs->Picture->Bitmap = Bitmap.get();
        Glyphs->Cols = 10;
        Canvas.Handle = Target.DC();
    }

    std::unique_ptr<TkelGlyphs> Glyphs = std::make_unique<TkelGlyphs>(nullptr);
    std::unique_ptr<TBitmap> Bitmap = std::make_unique<TBitmap>();
    TPixelImage Target{200, 60};
    TPixelImage Expected{200, 60};
    TCanvas Canvas;
};

} // namespace

TEST_F(GlyphsTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(
        PublishedFrom(TkelGlyphs::StaticClass(), "Cols"),
        ElementsAre("Cols = 1", "Height", "Masked = True", "Rows = 1", "Picture", "MaskColor", "Width", "OnChange"));
}

TEST_F(GlyphsTest, StartsWithOneEmptyOliveMaskedCell)
{
    TkelGlyphs Fresh(nullptr);
    EXPECT_EQ(Fresh.Cols, 1);
    EXPECT_EQ(Fresh.Rows, 1);
    EXPECT_EQ(Fresh.Width, 0);
    EXPECT_EQ(Fresh.Height, 0);
    EXPECT_TRUE(Fresh.Masked);
    EXPECT_EQ(Fresh.MaskColor, TColor(0x008080));
    EXPECT_EQ(Fresh.Picture->Graphic, nullptr);
}

TEST_F(GlyphsTest, CellThreeOfTenComesFromColumns48To63)
{
    EXPECT_EQ(Glyphs->Width, 16);
    EXPECT_EQ(Glyphs->Height, 16);
    EXPECT_TRUE(SamePixels(PixelsOf(Glyphs->GetCell(3)), PixelsOf(Bitmap.get()).Part({48, 0, 64, 16})));
}

TEST_F(GlyphsTest, CellsAreNumberedRowByRow)
{
    FillStrip(Bitmap.get(), 64, 48);
    Glyphs->Picture->Bitmap = Bitmap.get();
    Glyphs->Cols = 4;
    Glyphs->Rows = 3;
    EXPECT_TRUE(SamePixels(PixelsOf(Glyphs->GetCell(6)), PixelsOf(Bitmap.get()).Part({32, 16, 48, 32})));
    EXPECT_TRUE(SamePixels(PixelsOf(Glyphs->GetCell(11)), PixelsOf(Bitmap.get()).Part({48, 32, 64, 48})));
}

TEST_F(GlyphsTest, TheRemainderOfADivisionIsPartOfNoCell)
{
    FillStrip(Bitmap.get(), 100, 16);
    Glyphs->Picture->Bitmap = Bitmap.get();
    Glyphs->Cols = 3;
    EXPECT_EQ(Glyphs->Width, 33);
    EXPECT_TRUE(SamePixels(PixelsOf(Glyphs->GetCell(2)), PixelsOf(Bitmap.get()).Part({66, 0, 99, 16})));
}

TEST_F(GlyphsTest, TheCellIsOneScratchBitmap)
{
    TBitmap* Cell = Glyphs->GetCell(1);
    EXPECT_EQ(Glyphs->GetCell(2), Cell);
    EXPECT_TRUE(SamePixels(PixelsOf(Cell), PixelsOf(Bitmap.get()).Part({32, 0, 48, 16})));
}

TEST_F(GlyphsTest, ANegativeCellIsTheFirst)
{
    EXPECT_TRUE(SamePixels(PixelsOf(Glyphs->GetCell(-7)), PixelsOf(Bitmap.get()).Part({0, 0, 16, 16})));
}

TEST_F(GlyphsTest, ACellBehindTheLastIsEmptyBackground)
{
    Glyphs->GetCell(0);
    EXPECT_TRUE(SamePixels(PixelsOf(Glyphs->GetCell(10)), TPixelImage(16, 16, StripMask)));
    Glyphs->MaskColor = clNone;
    EXPECT_TRUE(SamePixels(PixelsOf(Glyphs->GetCell(2147483647)), TPixelImage(16, 16, clWhite)));
}

TEST_F(GlyphsTest, CountsBelowOneCountAsOne)
{
    Glyphs->Cols = 0;
    Glyphs->Rows = -4;
    EXPECT_EQ(Glyphs->Cols, 1);
    EXPECT_EQ(Glyphs->Rows, 1);
    EXPECT_EQ(Glyphs->GetCell(0)->Width, 160);
}

TEST_F(GlyphsTest, SettingTheCellSizeDividesThePicture)
{
    Glyphs->Width = 40;
    Glyphs->Height = 5;
    EXPECT_EQ(Glyphs->Cols, 4);
    EXPECT_EQ(Glyphs->Rows, 3);
    EXPECT_EQ(Glyphs->Height, 5);
}

TEST_F(GlyphsTest, CellSizesThatMakeNoCellAreIgnored)
{
    for (int Size : {200, 0, -5}) {
        Glyphs->Width = Size;
        Glyphs->Height = Size;
    }
    EXPECT_EQ(Glyphs->Cols, 10);
    EXPECT_EQ(Glyphs->Rows, 1);
}

TEST_F(GlyphsTest, SettingThePictureCopiesIt)
{
    TPicture Picture;
    Picture.Bitmap = Bitmap.get();
    Glyphs->Picture = &Picture;
    Picture.Graphic = nullptr;
    EXPECT_EQ(Glyphs->Picture->Width, 160);
}

// ---- the mask colour

TEST_F(GlyphsTest, ABitmapBringsItsTransparentColour)
{
    EXPECT_EQ(Glyphs->MaskColor, StripMask);
    EXPECT_EQ(Glyphs->GetDefaultMaskColor(), StripMask);
    EXPECT_THAT(FormText(Glyphs.get()), Not(HasSubstr("MaskColor")));
}

TEST_F(GlyphsTest, AMaskColourSetByHandIsWritten)
{
    Glyphs->MaskColor = clNavy;
    EXPECT_THAT(FormText(Glyphs.get()), HasSubstr("MaskColor = clNavy"));
}

TEST_F(GlyphsTest, ANewPictureOverwritesTheMaskColourSetByHand)
{
    Glyphs->MaskColor = clNavy;
    Glyphs->Picture->Bitmap = Bitmap.get();
    EXPECT_EQ(Glyphs->MaskColor, StripMask);
    Glyphs->MaskColor = clNavy;
    Glyphs->Picture->Bitmap->Canvas->Pixels[0][15] = clRed;
    EXPECT_EQ(Glyphs->MaskColor, clRed);
}

TEST_F(GlyphsTest, WithoutABitmapTheMaskColourIsOlive)
{
    Glyphs->Picture->Graphic = nullptr;
    EXPECT_EQ(Glyphs->MaskColor, clOlive);
    TIcon Icon;
    Icon.Handle = CopyIcon(LoadIconW(nullptr, IDI_APPLICATION));
    Glyphs->MaskColor = clRed;
    Glyphs->Picture->Icon = &Icon;
    EXPECT_EQ(Glyphs->MaskColor, clOlive);
}

// ---- changes

TEST_F(GlyphsTest, OnlyAChangeOfThePictureRaisesOnChange)
{
    int Changes = 0;
    TObject* Sender = nullptr;
    Glyphs->OnChange = [&](TObject* From) { ++Changes, Sender = From; };
    Glyphs->Cols = 5;
    Glyphs->Rows = 2;
    Glyphs->Width = 20;
    Glyphs->Height = 8;
    Glyphs->Masked = false;
    Glyphs->MaskColor = clRed;
    EXPECT_EQ(Changes, 0);
    Glyphs->Picture->Bitmap = Bitmap.get();
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(Sender, Glyphs.get());
    Glyphs->Picture->Bitmap->Canvas->Pixels[3][3] = clRed;
    EXPECT_EQ(Changes, 2);
}

TEST_F(GlyphsTest, ReadingAFormRaisesNoChangeAndKeepsTheMaskColourOfTheForm)
{
    Glyphs->MaskColor = clAqua;
    const std::string Text = FormText(Glyphs.get());
    TkelGlyphs Read(nullptr);
    int Changes = 0;
    Read.OnChange = [&](TObject*) { ++Changes; };
    ReadFormText(&Read, Text);
    EXPECT_EQ(Changes, 0);
    EXPECT_EQ(Read.MaskColor, clAqua);
    EXPECT_EQ(Read.Cols, 10);
    EXPECT_EQ(Read.Width, 16);
    EXPECT_TRUE(SamePixels(PixelsOf(Read.Picture->Bitmap), PixelsOf(Bitmap.get())));
    EXPECT_EQ(FormText(&Read), Text);
}

TEST_F(GlyphsTest, CellSizesAreNeverWritten)
{
    const std::string Text = FormText(Glyphs.get());
    EXPECT_THAT(Text, HasSubstr("Cols = 10\n  Picture.Data = {"));
    EXPECT_THAT(Text, Not(HasSubstr("Width")));
    EXPECT_THAT(Text, Not(HasSubstr("Height")));
    EXPECT_THAT(Text, Not(HasSubstr("Masked")));
}

TEST_F(GlyphsTest, AResourceThatDoesNotExistLeavesThePicture)
{
    EXPECT_THROW(Glyphs->LoadBitmapRes(GetModuleHandleW(nullptr), "NOSUCHBITMAP"), EResNotFound);
    EXPECT_EQ(Glyphs->Picture->Width, 160);
    EXPECT_EQ(Glyphs->MaskColor, StripMask);
}

// ---- drawing

TEST_F(GlyphsTest, AMaskedCellLeavesTheCanvasShowingWhereItHasTheMaskColour)
{
    Glyphs->Draw(&Canvas, 20, 10, 7);
    DrawExpectedCell(Expected, 20, 10, {112, 0, 128, 16});
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, EveryPixelFormatIsDrawnInItsExactColours)
{
    for (TPixelFormat Format : {pf1bit, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit, pfDevice}) {
        SCOPED_TRACE(int{Format});
        TBitmap Source;
        FillStrip(&Source, 48, 16, Format);
        Glyphs->Picture->Bitmap = &Source;
        Glyphs->Cols = 3;
        TPixelImage Painted(16, 16), Wanted(16, 16);
        TCanvas Here;
        Here.Handle = Painted.DC();
        Glyphs->Draw(&Here, 0, 0, 1);
        Here.Handle = nullptr;
        const TPixelImage Pixels = PixelsOf(&Source);
        for (int Y = 0; Y < 16; ++Y)
            for (int X = 0; X < 16; ++X)
                if (Pixels.At(16 + X, Y) != Glyphs->MaskColor)
                    Wanted.Set(X, Y, Pixels.At(16 + X, Y));
        EXPECT_TRUE(SamePixels(Painted, Wanted));
    }
}

// The blits that masked drawing is defined by: the destination AND the mask, OR the image without its background.
TEST_F(GlyphsTest, MaskedDrawingGivesTheSameAsTheMaskedBlits)
{
    for (int Y = 0; Y < 60; ++Y)
        for (int X = 0; X < 200; ++X)
            Target.Set(X, Y, TColor(X * 77 + Y * 4099)), Expected.Set(X, Y, TColor(X * 77 + Y * 4099));
    HDC Mask = CreateCompatibleDC(nullptr), Image = CreateCompatibleDC(nullptr);
    HBITMAP MaskBits = CreateBitmap(160, 16, 1, 1, nullptr);
    TPixelImage Blackened(160, 16);
    HGDIOBJ OldMask = SelectObject(Mask, MaskBits);
    SetBkColor(Bitmap->Canvas->Handle, StripMask);
    BitBlt(Mask, 0, 0, 160, 16, Bitmap->Canvas->Handle, 0, 0, SRCCOPY);
    BitBlt(Blackened.DC(), 0, 0, 160, 16, Bitmap->Canvas->Handle, 0, 0, SRCCOPY);
    SetTextColor(Blackened.DC(), RGB(255, 255, 255)), SetBkColor(Blackened.DC(), RGB(0, 0, 0));
    BitBlt(Blackened.DC(), 0, 0, 160, 16, Mask, 0, 0, SRCAND);
    SetTextColor(Expected.DC(), RGB(0, 0, 0)), SetBkColor(Expected.DC(), RGB(255, 255, 255));
    BitBlt(Expected.DC(), 5, 7, 160, 16, Mask, 0, 0, SRCAND);
    BitBlt(Expected.DC(), 5, 7, 160, 16, Blackened.DC(), 0, 0, SRCPAINT);
    SelectObject(Mask, OldMask);
    DeleteObject(MaskBits), DeleteDC(Mask), DeleteDC(Image);

    DrawBitmapTransparent(&Canvas, 5, 7, Bitmap.get(), StripMask);
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, ANegativeIndexDrawsTheWholeStrip)
{
    Glyphs->Draw(&Canvas, 3, 4, -1);
    DrawExpectedCell(Expected, 3, 4, {0, 0, 160, 16});
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, WithoutMaskTheCellIsDrawnOpaque)
{
    Glyphs->Masked = false;
    Glyphs->Draw(&Canvas, 0, 0, 2);
    Glyphs->Draw(&Canvas, 0, 20, -1);
    DrawExpectedCell(Expected, 0, 0, {32, 0, 48, 16}, clNone);
    DrawExpectedCell(Expected, 0, 20, {0, 0, 160, 16}, clNone);
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, WithMaskColourNoneTheCellIsDrawnOpaque)
{
    Glyphs->MaskColor = clNone;
    Glyphs->Draw(&Canvas, 0, 0, 2);
    Glyphs->Draw(&Canvas, 0, 20, -1);
    DrawExpectedCell(Expected, 0, 0, {32, 0, 48, 16}, clNone);
    DrawExpectedCell(Expected, 0, 20, {0, 0, 160, 16}, clNone);
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, AnotherMaskColourShowsAtTheNextDrawing)
{
    Glyphs->Draw(&Canvas, 0, 0, 0);
    Glyphs->MaskColor = clBlack;
    Glyphs->Draw(&Canvas, 20, 0, 0);
    DrawExpectedCell(Expected, 0, 0, {0, 0, 16, 16});
    DrawExpectedCell(Expected, 20, 0, {0, 0, 16, 16}, clBlack);
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, AChangedPictureShowsAtTheNextDrawing)
{
    Glyphs->Draw(&Canvas, 0, 0, 1);
    Glyphs->Picture->Bitmap->Canvas->Pixels[17][1] = clLime;
    Glyphs->Draw(&Canvas, 20, 0, 1);
    DrawExpectedCell(Expected, 0, 0, {16, 0, 32, 16});
    DrawExpectedCell(Expected, 20, 0, {16, 0, 32, 16});
    Expected.Set(21, 1, clLime);
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, AnIndexBehindTheLastDrawsNothingMaskedAndAnEmptyCellOpaque)
{
    Glyphs->Draw(&Canvas, 0, 0, 10);
    EXPECT_TRUE(SamePixels(Target, Expected));
    Glyphs->Masked = false;
    Glyphs->Draw(&Canvas, 0, 0, 2000000000);
    Expected.Fill({0, 0, 16, 16}, StripMask);
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, AnEmptyPictureDrawsNothing)
{
    Glyphs->Picture->Graphic = nullptr;
    Glyphs->Draw(&Canvas, 0, 0, -1);
    Glyphs->Draw(&Canvas, 0, 0, 0);
    Glyphs->DrawEmbossed(&Canvas, 0, 0, 0);
    Glyphs->DrawCenter(&Canvas, {0, 0, 50, 50}, 0);
    DrawBitmapTransparent(&Canvas, 0, 0, nullptr, clRed);
    EXPECT_TRUE(SamePixels(Target, Expected));
    EXPECT_EQ(Glyphs->GetCell(0)->Width, 0);
}

TEST_F(GlyphsTest, DrawCenterPutsTheCellInTheMiddle)
{
    Glyphs->DrawCenter(&Canvas, {10, 5, 47, 36}, 4);
    DrawExpectedCell(Expected, 20, 12, {64, 0, 80, 16}); // (10 + 47 - 16) / 2, (5 + 36 - 16) / 2
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, DrawCenterRoundsTowardsZero)
{
    Glyphs->DrawCenter(&Canvas, {0, 0, 11, 9}, 4); // -5 / 2, -7 / 2
    DrawExpectedCell(Expected, 0, 0, {66, 3, 80, 16});
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, IconsKeepTheirOwnTransparency)
{
    TIcon Icon;
    Icon.Handle = CopyIcon(LoadIconW(nullptr, IDI_ERROR));
    Glyphs->Picture->Icon = &Icon;
    Glyphs->Cols = 2;
    Glyphs->Draw(&Canvas, 0, 0, -1);
    Glyphs->Draw(&Canvas, 40, 0, 1);
    Canvas.Draw(100, 0, &Icon);
    const int Half = Icon.Width / 2;
    EXPECT_TRUE(
        SamePixels(Target.Part({0, 0, Icon.Width, Icon.Height}), Target.Part({100, 0, 100 + Icon.Width, Icon.Height})));
    EXPECT_TRUE(SamePixels(Target.Part({40, 0, 40 + Half, Icon.Height}),
                           Target.Part({100 + Half, 0, 100 + 2 * Half, Icon.Height})));
    EXPECT_EQ(Target.At(39, 10), Untouched);
    EXPECT_EQ(Target.At(40 + Half, 10), Untouched);
    EXPECT_EQ(Target.At(40 + Half - 1, 0), Untouched);
}

TEST_F(GlyphsTest, AnEmbossedCellShowsItsBlackPixelsOnly)
{
    Glyphs->DrawEmbossed(&Canvas, 30, 20, 3);
    DrawExpectedEmbossed(Expected, 30, 20, {48, 0, 64, 16});
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, TheHighlightOfAnEmbossedCellReachesBeyondIt)
{
    Glyphs->DrawEmbossed(&Canvas, 30, 20, 0);
    EXPECT_EQ(Target.At(45, 35), TColor(ColorToRGB(clBtnShadow)));
    EXPECT_EQ(Target.At(46, 36), TColor(ColorToRGB(clBtnHighlight)));
}

TEST_F(GlyphsTest, EmbossedCellsFollowPictureAndGrid)
{
    Glyphs->DrawEmbossed(&Canvas, 0, 0, 0);
    Glyphs->Picture->Bitmap->Canvas->Brush->Color = clWhite;
    Glyphs->Picture->Bitmap->Canvas->FillRect({0, 0, 160, 8});
    Glyphs->Cols = 20;
    Glyphs->DrawEmbossed(&Canvas, 50, 0, 1);
    DrawExpectedEmbossed(Expected, 0, 0, {0, 0, 16, 16});
    DrawExpectedEmbossed(Expected, 50, 8, {8, 8, 16, 16});
    EXPECT_TRUE(SamePixels(Target, Expected));
}

TEST_F(GlyphsTest, EmbossedCellsFollowTheSystemColours)
{
    Glyphs->DrawEmbossed(&Canvas, 0, 0, 0);
    static TColorResolver Before;
    Before = SetColorResolver([](TColor Color) { return Color == clBtnShadow ? RGB(1, 2, 3) : Before(Color); });
    Glyphs->DrawEmbossed(&Canvas, 40, 0, 0);
    SetColorResolver(Before);
    EXPECT_EQ(Target.At(1, 0), TColor(ColorToRGB(clBtnShadow)));
    EXPECT_EQ(Target.At(41, 0), TColor(RGB(1, 2, 3)));
}

TEST_F(GlyphsTest, DrawingAgainMakesNoSystemObjects)
{
    const auto DrawAll = [&] {
        for (int I = 0; I < 10; ++I) {
            Glyphs->Draw(&Canvas, 0, 0, I);
            Glyphs->DrawEmbossed(&Canvas, 0, 0, I);
        }
    };
    DrawAll();
    const int64_t Handles = LiveHandleCount(), Objects = LiveObjectCount();
    DrawAll();
    EXPECT_EQ(LiveHandleCount(), Handles);
    EXPECT_EQ(LiveObjectCount(), Objects);
    EXPECT_EQ(Canvas.Handle, Target.DC());
}
