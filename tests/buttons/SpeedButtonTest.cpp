#include "vcl/buttons/SpeedButton.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "tests/support/SystemObjects.h"
#include "vcl/buttons/ButtonFace.h"

#include <gmock/gmock.h>

namespace {

class SpeedButtonTest : public testing::Test {
protected:
    TSpeedButton* Add(int Group = 0)
    {
        auto* Button = new TSpeedButton(&Window);
        Button->Parent = &Window;
        Button->GroupIndex = Group;
        return Button;
    }

    // Count pictures of 4 by 4 pixels, each on fuchsia with a 2 by 2 block in its own colour at 1, 1.
    static void MakeGlyph(TBitmap& Glyph, std::initializer_list<TColor> Colors)
    {
        Glyph.SetSize(4 * static_cast<int>(Colors.size()), 4);
        Glyph.Canvas->Brush->Color = clFuchsia;
        Glyph.Canvas->FillRect(TRect(0, 0, Glyph.Width, 4));
        int X = 0;
        for (TColor Color : Colors) {
            Glyph.Canvas->Brush->Color = Color;
            Glyph.Canvas->FillRect(TRect(X + 1, 1, X + 3, 3));
            X += 4;
        }
    }

    static TPixelImage Face(int Width, int Height, bool Pushed)
    {
        TPixelImage Image(Width, Height);
        RECT R{0, 0, Width, Height};
        DrawFrameControl(Image.DC(), &R, DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_ADJUSTRECT | (Pushed ? DFCS_PUSHED : 0));
        return Image;
    }

    static void Press(TSpeedButton* Button, int X = 5, int Y = 5)
    {
        Button->Perform(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(X, Y));
    }
    static void Release(TSpeedButton* Button, int X = 5, int Y = 5)
    {
        Button->Perform(WM_LBUTTONUP, 0, MAKELPARAM(X, Y));
    }
    static void Click(TSpeedButton* Button)
    {
        Press(Button);
        Release(Button);
    }

    THostWindow Window;
};

} // namespace

TEST_F(SpeedButtonTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TSpeedButton::StaticClass(), "AllowAllUp"),
                testing::ElementsAre("AllowAllUp = False", "Anchors = [akLeft,akTop]", "BiDiMode = bdLeftToRight",
                                     "Constraints", "GroupIndex = 0", "Down = False", "Caption", "Enabled = True",
                                     "Flat = False", "Font", "Glyph", "Layout = blGlyphLeft", "Margin = -1",
                                     "NumGlyphs = 1", "ParentFont = True", "ParentShowHint = True",
                                     "ParentBiDiMode = True", "PopupMenu", "ShowHint", "Spacing = 4",
                                     "Transparent = True", "Visible = True", "OnClick", "OnDblClick", "OnMouseDown",
                                     "OnMouseMove", "OnMouseUp"));
}

TEST_F(SpeedButtonTest, PaintsAPushButtonThatGoesDownUnderTheMouse)
{
    TSpeedButton* Button = Add();
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Face(23, 22, false)));
    Press(Button);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Face(23, 22, true)));
    Button->Perform(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(50, 5));
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Face(23, 22, false)));
    Button->Perform(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Face(23, 22, true)));
    Release(Button);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Face(23, 22, false)));
}

TEST_F(SpeedButtonTest, AFlatButtonShowsNoFrame)
{
    TSpeedButton* Button = Add();
    Button->Flat = true;
    EXPECT_FALSE(Button->ControlStyle.Contains(csOpaque));
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), TPixelImage(23, 22)));

    Button->Transparent = false;
    EXPECT_TRUE(Button->ControlStyle.Contains(csOpaque));
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), TPixelImage(23, 22, clBtnFace)));
}

TEST_F(SpeedButtonTest, AFlatButtonHasAFrameUnderThePointerAndWhenItIsDown)
{
    TSpeedButton* Button = Add();
    Button->Flat = true;
    Button->Perform(CM_MOUSEENTER);
    TPixelImage Raised(23, 22);
    Raised.Frame(TRect(0, 0, 23, 22), clBtnHighlight, clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Raised));
    Press(Button);
    TPixelImage Sunken(23, 22);
    Sunken.Frame(TRect(0, 0, 23, 22), clBtnShadow, clBtnHighlight);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Sunken));
    Release(Button, 100, 100);
    Button->Perform(CM_MOUSELEAVE);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), TPixelImage(23, 22)));
}

TEST_F(SpeedButtonTest, AButtonThatStaysDownHasAPattern)
{
    TSpeedButton* Button = Add(1);
    Button->Flat = true;
    Button->Down = true;
    TPixelImage Painted = PaintToBitmap(Button);
    // Every second pixel is the highlight, in rows and columns.
    for (int Y = 2; Y < 20; ++Y)
        for (int X = 2; X < 21; ++X) {
            TColor Other = Painted.At(X, Y) == TColor(ColorToRGB(clBtnFace)) ? clBtnHighlight : clBtnFace;
            ASSERT_EQ(Painted.At(X + (X < 20 ? 1 : -1), Y), TColor(ColorToRGB(Other))) << X << ',' << Y;
        }
    Button->Perform(CM_MOUSEENTER);
    EXPECT_EQ(PaintToBitmap(Button).CountOf(Untouched), 21 * 20);
}

TEST_F(SpeedButtonTest, TheGlyphIsCentredWithoutItsBackground)
{
    TSpeedButton* Button = Add();
    Button->Flat = true;
    TBitmap Glyph;
    MakeGlyph(Glyph, {clBlue});
    Button->Glyph = &Glyph;
    TPixelImage Expected(23, 22);
    // The content is one pixel smaller on each side: (21 - 4 + 1) / 2 and (20 - 4 + 1) / 2 from there.
    Expected.Fill(Bounds(1 + 9 + 1, 1 + 8 + 1, 2, 2), clBlue);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonTest, FindsOutHowManyPicturesAGlyphHas)
{
    TSpeedButton* Button = Add();
    TBitmap Glyph;
    for (int Count = 1; Count <= 4; ++Count) {
        Glyph.SetSize(4 * Count, 4);
        Button->Glyph = &Glyph;
        EXPECT_EQ(Button->NumGlyphs, Count);
    }
    Glyph.SetSize(20, 4);
    Button->Glyph = &Glyph;
    EXPECT_EQ(Button->NumGlyphs, 1);
    Button->NumGlyphs = 9;
    EXPECT_EQ(Button->NumGlyphs, 4);
    Button->NumGlyphs = 0;
    EXPECT_EQ(Button->NumGlyphs, 1);
}

TEST_F(SpeedButtonTest, EachStateHasItsPicture)
{
    TSpeedButton* Button = Add(1);
    Button->Flat = true;
    TBitmap Glyph;
    MakeGlyph(Glyph, {clBlue, clRed, clLime, clYellow});
    Button->Glyph = &Glyph;
    EXPECT_EQ(PaintToBitmap(Button).CountOf(clBlue), 4);
    Press(Button);
    EXPECT_EQ(PaintToBitmap(Button).CountOf(clLime), 4);
    Release(Button);
    EXPECT_EQ(PaintToBitmap(Button).CountOf(clYellow), 4);
    Button->Enabled = false;
    EXPECT_EQ(PaintToBitmap(Button).CountOf(clRed), 4);
}

TEST_F(SpeedButtonTest, MissingPicturesAreReplacedByTheFirst)
{
    TSpeedButton* Button = Add(1);
    Button->Flat = true;
    TBitmap Glyph;
    MakeGlyph(Glyph, {clBlue, clRed});
    Button->Glyph = &Glyph;
    Press(Button);
    EXPECT_EQ(PaintToBitmap(Button).CountOf(clBlue), 4);
    Release(Button);
    ASSERT_TRUE(Button->Down);
    EXPECT_EQ(PaintToBitmap(Button).CountOf(clBlue), 4);
}

TEST_F(SpeedButtonTest, ASinglePictureIsEngravedWhenDisabled)
{
    TSpeedButton* Button = Add();
    Button->Flat = true;
    Button->Enabled = false;
    TBitmap Glyph;
    MakeGlyph(Glyph, {clBlue});
    Button->Glyph = &Glyph;
    TPixelImage Expected(23, 22);
    Expected.Fill(Bounds(12, 11, 2, 2), clBtnHighlight);
    Expected.Fill(Bounds(11, 10, 2, 2), clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
    TPixelImage Again = PaintToBitmap(Button);
    EXPECT_TRUE(SamePixels(Again, Expected));
}

TEST_F(SpeedButtonTest, AGlyphThatIsDrawnOnShowsTheChange)
{
    TSpeedButton* Button = Add();
    Button->Flat = true;
    TBitmap Glyph;
    MakeGlyph(Glyph, {clBlue});
    Button->Glyph = &Glyph;
    PaintToBitmap(Button);
    Button->Glyph->Canvas->Pixels[1][1] = clRed;
    EXPECT_EQ(PaintToBitmap(Button).CountOf(clRed), 1);
}

TEST_F(SpeedButtonTest, LayoutMarginAndSpacingPlaceGlyphAndCaption)
{
    TSpeedButton* Button = Add();
    Button->Flat = true;
    Button->SetBounds(0, 0, 102, 62); // 100 by 60 inside
    Button->Caption = "Text";
    Button->Font->Color = clRed;
    TBitmap Glyph;
    MakeGlyph(Glyph, {clBlue});
    Button->Glyph = &Glyph;
    TSize Text;
    {
        TPixelImage Image(1, 1);
        HGDIOBJ Old = SelectObject(Image.DC(), Button->Font->Handle);
        TRect R;
        DrawText(Image.DC(), "Text", R, DT_CALCRECT);
        Text = TSize(R.Width(), R.Height());
        SelectObject(Image.DC(), Old);
    }

    auto Check = [&](TPoint GlyphAt, TPoint TextAt, const char* What) {
        TPixelImage Expected(102, 62);
        Expected.Fill(Bounds(GlyphAt.X + 2, GlyphAt.Y + 2, 2, 2), clBlue);
        DrawExpectedText(Expected, "Text", Bounds(TextAt.X + 1, TextAt.Y + 1, Text.cx, Text.cy), Button->Font, clRed,
                         DT_CENTER | DT_VCENTER);
        EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected)) << What;
    };
    int MiddleY = (60 - 4 + 1) / 2;
    int TextY = (60 - Text.cy + 1) / 2;
    int MiddleX = (100 - 4 + 1) / 2;
    int TextX = (100 - Text.cx + 1) / 2;
    int Margin = (100 - 4 - 4 - Text.cx + 1) / 2;
    Check({Margin, MiddleY}, {Margin + 8, TextY}, "left");
    Button->Layout = blGlyphRight;
    Check({100 - Margin - 4, MiddleY}, {100 - Margin - 8 - Text.cx, TextY}, "right");
    Button->Layout = blGlyphTop;
    int MarginY = (60 - 4 - 4 - Text.cy + 1) / 2;
    Check({MiddleX, MarginY}, {TextX, MarginY + 8}, "top");
    Button->Layout = blGlyphBottom;
    Check({MiddleX, 60 - MarginY - 4}, {TextX, 60 - MarginY - 8 - Text.cy}, "bottom");

    Button->Layout = blGlyphLeft;
    Button->Margin = 10;
    Button->Spacing = 7;
    Check({10, MiddleY}, {10 + 4 + 7, TextY}, "margin");
    Button->Spacing = -1;
    Check({10, MiddleY}, {14 + (100 - 14 - Text.cx) / 2, TextY}, "margin, caption centred in the rest");
    Button->Margin = -1;
    int Third = (100 - 4 - Text.cx) / 3;
    Check({Third, MiddleY}, {2 * Third + 4, TextY}, "everything spread");
}

TEST_F(SpeedButtonTest, OnlyAGroupedButtonGoesDown)
{
    TSpeedButton* Button = Add();
    Button->Down = true;
    EXPECT_FALSE(Button->Down);
    Button->GroupIndex = 1;
    Button->Down = true;
    EXPECT_TRUE(Button->Down);
}

TEST_F(SpeedButtonTest, OneButtonOfAGroupIsDown)
{
    TSpeedButton* A = Add(1);
    TSpeedButton* B = Add(1);
    TSpeedButton* Other = Add(2);
    Other->Down = true;
    Click(A);
    EXPECT_TRUE(A->Down);
    Click(B);
    EXPECT_FALSE(A->Down);
    EXPECT_TRUE(B->Down);
    EXPECT_TRUE(Other->Down);
    Click(B);
    EXPECT_TRUE(B->Down);
}

TEST_F(SpeedButtonTest, TheGroupSharesAllowAllUp)
{
    TSpeedButton* A = Add(1);
    TSpeedButton* B = Add(1);
    B->AllowAllUp = true;
    EXPECT_TRUE(A->AllowAllUp);
    Click(A);
    EXPECT_TRUE(A->Down);
    Click(A);
    EXPECT_FALSE(A->Down);
}

TEST_F(SpeedButtonTest, ClicksOnlyWhenReleasedInside)
{
    TSpeedButton* Button = Add();
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Click(Button);
    EXPECT_EQ(Clicks, 1);
    for (TPoint Outside : {TPoint(23, 5), TPoint(5, 22), TPoint(-1, 5), TPoint(5, -1)}) {
        Press(Button);
        Release(Button, Outside.X, Outside.Y);
    }
    EXPECT_EQ(Clicks, 1);
    Press(Button);
    Release(Button, 22, 21);
    EXPECT_EQ(Clicks, 2);
}

TEST_F(SpeedButtonTest, DisabledItTakesNoClick)
{
    TSpeedButton* Button = Add();
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Button->Enabled = false;
    Click(Button);
    EXPECT_EQ(Clicks, 0);
    EXPECT_FALSE(Button->AccessibleDefaultAction());
}

TEST_F(SpeedButtonTest, ADoubleClickIsRaisedOnlyByAButtonThatIsDown)
{
    TSpeedButton* Button = Add();
    int DoubleClicks = 0;
    Button->OnDblClick = [&](TObject*) { ++DoubleClicks; };
    Button->Perform(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    Release(Button);
    EXPECT_EQ(DoubleClicks, 0);
    Button->GroupIndex = 1;
    Button->Down = true;
    Button->Perform(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    Release(Button);
    EXPECT_EQ(DoubleClicks, 1);
}

TEST_F(SpeedButtonTest, TheGlyphComesBackFromAFormFile)
{
    TSpeedButton* Button = Add(3);
    Button->Name = "B";
    TBitmap Glyph;
    MakeGlyph(Glyph, {clBlue, clRed});
    Button->Glyph = &Glyph;
    Button->Down = true;
    Button->Flat = true;
    THostWindow Other;
    ReadFormText(&Other, FormText(&Window));
    auto* Read = As<TSpeedButton>(Other.FindComponent("B"));
    ASSERT_TRUE(Read);
    EXPECT_TRUE(Read->Down);
    EXPECT_EQ(Read->NumGlyphs, 2);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Read), PaintToBitmap(Button)));
}

TEST_F(SpeedButtonTest, RepaintingMakesNoSystemObjects)
{
    TSpeedButton* Button = Add(1);
    Button->Caption = "Text";
    TBitmap Glyph;
    MakeGlyph(Glyph, {clBlue});
    Button->Glyph = &Glyph;
    TPixelImage Target(23, 22);
    auto Paint = [&] { Button->Perform(WM_PAINT, reinterpret_cast<uintptr_t>(Target.DC())); };
    auto States = [&] {
        for (bool Enabled : {true, false})
            for (bool Flat : {true, false}) {
                Button->Enabled = Enabled;
                Button->Flat = Flat;
                Paint();
            }
    };
    ExpectNoNewSystemObjects(States, 20);
}

TEST(ButtonFaceTest, DrawsAPushButtonAndTellsWhatIsInside)
{
    TPixelImage Image(30, 20);
    TPixelImage Expected(30, 20);
    TCanvas Canvas;
    Canvas.Handle = Image.DC();
    TRect Inside = DrawButtonFace(&Canvas, TRect(0, 0, 30, 20), 1, bsNew, false, true, true);
    Canvas.Handle = nullptr;
    Expected.Frame(TRect(0, 0, 30, 20), clWindowFrame, clWindowFrame);
    RECT R{1, 1, 29, 19};
    DrawFrameControl(Expected.DC(), &R, DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_ADJUSTRECT | DFCS_PUSHED);
    EXPECT_TRUE(SamePixels(Image, Expected));
    EXPECT_EQ(Inside, TRect(R));
}

TEST_F(SpeedButtonTest, ALatchedButtonLooksTheSameWhileItIsPressed)
{
    TSpeedButton* Button = Add(1);
    Button->Down = true;
    const TPixelImage Latched = PaintToBitmap(Button);
    Press(Button);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Latched));
    Button->Perform(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(6, 6));
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Latched));
    Release(Button, -5, -5);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Latched));
}

TEST_F(SpeedButtonTest, AButtonOfAGroupThatIsReleasedOutsideComesUp)
{
    TSpeedButton* Button = Add(1);
    const TPixelImage Up = PaintToBitmap(Button);
    Press(Button);
    EXPECT_FALSE(SamePixels(PaintToBitmap(Button), Up));
    Release(Button, -5, -5);
    EXPECT_FALSE(Button->Down);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Up));
}

TEST_F(SpeedButtonTest, ADownButtonThatJoinsAGroupReleasesTheOther)
{
    TSpeedButton* A = Add(1);
    TSpeedButton* B = Add(2);
    A->Down = true;
    B->Down = true;
    B->GroupIndex = 1;
    EXPECT_TRUE(B->Down);
    EXPECT_FALSE(A->Down);
}
