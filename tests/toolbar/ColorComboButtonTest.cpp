#include "toolbar/ColorComboButton.h"

#include "tests/support/FormText.h"
#include "tests/toolbar/SpeedButtonFixture.h"
#include "vcl/system/LiveCount.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class ColorComboButtonTest : public SpeedButtonFixture {
protected:
    void SetUp() override
    {
        SpeedButtonFixture::SetUp();
        Combo = new TkelColorComboButton(Window.get());
        Combo->Left = 100;
        Combo->Parent = Window.get();
        Combo->Glyphs = Glyphs;
        Combo->OnChange = [this](TObject* Sender) { Changes += Sender == Combo; };
    }
    TPixelImage MainHalf() { return PaintToBitmap(Combo).Part({0, 0, 22, 22}); }
    // The glyph moves up to make room for the band.
    TPixelImage FaceWithGlyph()
    {
        TPixelImage Image(22, 22, clBtnFace);
        DrawExpectedCell(Image, 3, 1, {0, 0, 16, 16});
        return Image;
    }

    TkelColorComboButton* Combo = nullptr;
    int Changes = 0;
    static constexpr TRect Band{3, 17, 19, 20};
};

} // namespace

TEST_F(ColorComboButtonTest, PublishesTheColourAndItsChange)
{
    EXPECT_THAT(PublishedFrom(TkelColorComboButton::StaticClass(), "OnListDown"),
                ElementsAre("OnListDown", "CurrentColor", "OnChange"));
    EXPECT_EQ(Combo->CurrentColor, clBlack);
    Combo->Name = "Combo1";
    Combo->CurrentColor = clTeal;
    EXPECT_THAT(FormText(Combo), HasSubstr("  CurrentColor = clTeal\n"));
}

TEST_F(ColorComboButtonTest, OnChangeIsRaisedWhenTheColourChanges)
{
    Combo->CurrentColor = clBlack;
    EXPECT_EQ(Changes, 0);
    Combo->CurrentColor = clRed;
    EXPECT_EQ(Changes, 1);
    Combo->CurrentColor = clRed;
    EXPECT_EQ(Changes, 1);
    Combo->CurrentColor = clNone;
    EXPECT_EQ(Changes, 2);
}

TEST_F(ColorComboButtonTest, ReadingAFormRaisesNoOnChange)
{
    TkelColorComboButton Read(nullptr);
    int Raised = 0;
    Read.OnChange = [&](TObject*) { ++Raised; };
    ReadFormText(&Read, "object Combo2: TkelColorComboButton\n  CurrentColor = clLime\nend\n");
    EXPECT_EQ(Read.CurrentColor, clLime);
    EXPECT_EQ(Raised, 0);
}

TEST_F(ColorComboButtonTest, TheColourIsABandBelowTheGlyph)
{
    Combo->CurrentColor = clRed;
    TPixelImage Expected = FaceWithGlyph();
    Expected.Fill(Band, clRed);
    EXPECT_TRUE(SamePixels(MainHalf(), Expected));
    Combo->CurrentColor = clHighlight;
    Expected.Fill(Band, clHighlight);
    EXPECT_TRUE(SamePixels(MainHalf(), Expected));
}

TEST_F(ColorComboButtonTest, NoColourIsAnEmptyFrame)
{
    Combo->CurrentColor = clNone;
    TPixelImage Expected = FaceWithGlyph();
    Expected.Frame(Band, clBtnShadow, clBtnShadow);
    EXPECT_TRUE(SamePixels(MainHalf(), Expected));
}

TEST_F(ColorComboButtonTest, DisabledTheBandIsEmbossed)
{
    Combo->CurrentColor = clRed;
    Combo->Enabled = false;
    TPixelImage Expected(22, 22, clBtnFace);
    Expected.Fill({4, 18, 20, 21}, clBtnHighlight);
    Expected.Fill(Band, clBtnShadow);
    DrawExpectedEmbossed(Expected, 3, 1, {0, 0, 16, 16});
    EXPECT_TRUE(SamePixels(MainHalf(), Expected));
}

TEST_F(ColorComboButtonTest, TheBandIsAsWideAsTheButtonAndStaysAtItsFoot)
{
    Combo->Glyphs = nullptr;
    Combo->CurrentColor = clBlue;
    Combo->SetBounds(100, 0, 60, 30);
    TPixelImage Expected(45, 30, clBtnFace);
    Expected.Fill({3, 25, 42, 28}, clBlue);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Combo).Part({0, 0, 45, 30}), Expected));
    Combo->SetBounds(100, 0, 6, 22); // no room for it
    EXPECT_EQ(PaintToBitmap(Combo).CountOf(clBlue), 0);
}

TEST_F(ColorComboButtonTest, AChangeRepaintsTheMainHalfAtOnceAndMakesNoSystemObjects)
{
    Window->ShowNow();
    Combo->CurrentColor = clRed;
    EXPECT_EQ(ScreenPixels(Combo).At(5, 18), clRed);
    const int64_t Handles = LiveHandleCount(), Objects = LiveObjectCount();
    const size_t Pens = TSharedPen::KeptCount(), Brushes = TSharedBrush::KeptCount();
    for (TColor Color : {clLime, clNone, clTeal}) {
        Combo->CurrentColor = Color;
        Combo->Repaint();
    }
    EXPECT_EQ(ScreenPixels(Combo).At(5, 18), clTeal);
    EXPECT_EQ(LiveHandleCount(), Handles);
    EXPECT_EQ(LiveObjectCount(), Objects);
    EXPECT_EQ(TSharedPen::KeptCount(), Pens);
    EXPECT_EQ(TSharedBrush::KeptCount(), Brushes);
}

TEST_F(ColorComboButtonTest, TheArrowRaisesOnListDown)
{
    int Lists = 0;
    Combo->OnListDown = [&](TObject*) { ++Lists; };
    Combo->ArrowButton()->Click();
    EXPECT_EQ(Lists, 1);
}
