// How a menu button looks.
#include "tests/menus/MenuScript.h"
#include "tests/support/PaintToBitmap.h"

namespace {

class MenuButtonPaintTest : public testing::Test {
protected:
    // What is shared by all buttons is there before the tests.
    static void SetUpTestSuite() { MakeWhatMenusShare(); }
    void SetUp() override
    {
        Button = new TkelMenuButton(&Window);
        Button->SetBounds(0, 0, 50, 22);
        Button->Caption = "&File";
        Button->Parent = &Window;
    }

    // The ground and the frame, with the caption as the system draws it.
    TPixelImage Expected(TColor TopLeft, TColor BottomRight) const
    {
        TPixelImage Image(Button->Width, Button->Height);
        Image.Fill(Button->ClientRect, clBtnFace);
        Image.Frame(Button->ClientRect, TopLeft, BottomRight);
        return Image;
    }
    void DrawCaption(TPixelImage& Image, const TRect& R, TColor Color) const
    {
        DrawExpectedText(Image, "&File", R, Button->Font, Color, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    }

    void PutIntoVerticalBar(TAlign Align, const TRect& Bounds)
    {
        Window.DisableAlign();
        Button->Align = Align;
        Button->BoundsRect = Bounds;
    }
    // The lying picture, turned to the right.
    static TPixelImage Turned(const TPixelImage& Lying)
    {
        TPixelImage Image(Lying.Height(), Lying.Width());
        for (int X = 0; X < Lying.Width(); ++X)
            for (int Y = 0; Y < Lying.Height(); ++Y)
                Image.Set(Lying.Height() - 1 - Y, X, Lying.At(X, Y));
        return Image;
    }

    THostWindow Window;
    TkelMenuButton* Button = nullptr;
};

} // namespace

TEST_F(MenuButtonPaintTest, AnIdleButtonIsItsCaptionOnPlainGround)
{
    TPixelImage Image = Expected(clBtnFace, clBtnFace);
    DrawCaption(Image, {0, 0, 50, 22}, clWindowText);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Image));
}

TEST_F(MenuButtonPaintTest, AHighlightedButtonIsRaised)
{
    Button->Hot = true;
    TPixelImage Image = Expected(clBtnHighlight, clBtnShadow);
    DrawCaption(Image, {0, 0, 50, 22}, clWindowText);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Image));
}

TEST_F(MenuButtonPaintTest, AButtonWithAnOpenMenuIsSunken)
{
    Button->Hot = true;
    Button->Down = true;
    TPixelImage Image = Expected(clBtnShadow, clBtnHighlight);
    DrawCaption(Image, {0, 0, 50, 22}, clWindowText);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Image));
}

TEST_F(MenuButtonPaintTest, ADisabledButtonsCaptionIsEngraved)
{
    Button->Enabled = false;
    TPixelImage Image = Expected(clBtnFace, clBtnFace);
    DrawCaption(Image, {1, 1, 51, 23}, clBtnHighlight);
    DrawCaption(Image, {0, 0, 50, 22}, clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Image));
}

TEST_F(MenuButtonPaintTest, TheCaptionOfAButtonOnEndRunsDown)
{
    TPixelImage Lying = Expected(clBtnFace, clBtnFace);
    DrawCaption(Lying, {0, 0, 50, 22}, clWindowText);
    PutIntoVerticalBar(alTop, {0, 0, 22, 50});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Turned(Lying)));
}

TEST_F(MenuButtonPaintTest, TheFrameOfAButtonOnEndIsLitFromTheUpperLeft)
{
    TPixelImage Lying = Expected(clBtnFace, clBtnFace);
    DrawCaption(Lying, {0, 0, 50, 22}, clWindowText);
    PutIntoVerticalBar(alBottom, {0, 0, 22, 50});
    Button->Hot = true;
    TPixelImage Image = Turned(Lying);
    Image.Frame({0, 0, 22, 50}, clBtnHighlight, clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Image));
}

TEST_F(MenuButtonPaintTest, OnEndTooTheHighlightOfADisabledCaptionIsAtTheLowerRight)
{
    TPixelImage Lying = Expected(clBtnFace, clBtnFace);
    DrawCaption(Lying, {1, -1, 51, 21}, clBtnHighlight);
    DrawCaption(Lying, {0, 0, 50, 22}, clBtnShadow);
    PutIntoVerticalBar(alTop, {0, 0, 22, 50});
    Button->Enabled = false;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Turned(Lying)));
}

TEST_F(MenuButtonPaintTest, WhatWasDrawnBeforeDoesNotShow)
{
    PutIntoVerticalBar(alTop, {0, 0, 30, 60});
    PaintToBitmap(Button);
    Button->BoundsRect = {0, 0, 22, 50};
    Button->Caption = "&X";
    TPixelImage Lying(50, 22);
    Lying.Fill({0, 0, 50, 22}, clBtnFace);
    DrawExpectedText(Lying, "&X", {0, 0, 50, 22}, Button->Font, clWindowText, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Turned(Lying)));
}

TEST_F(MenuButtonPaintTest, AWideButtonInAVerticalBarKeepsItsCaptionLying)
{
    PutIntoVerticalBar(alTop, {0, 0, 50, 22});
    TPixelImage Image = Expected(clBtnFace, clBtnFace);
    DrawCaption(Image, {0, 0, 50, 22}, clWindowText);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Image));
}
