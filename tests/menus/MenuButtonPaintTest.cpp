// How a menu button looks.
#include "menus/MenuButton.h"
#include "menus/MenuTracking.h"
#include "tests/support/PaintToBitmap.h"

namespace {

class MenuButtonPaintTest : public testing::Test {
protected:
    static void SetUpTestSuite() { TMenuTracking::Get(); }
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
        TPixelImage Image(50, 22);
        Image.Fill({0, 0, 50, 22}, clBtnFace);
        Image.Frame({0, 0, 50, 22}, TopLeft, BottomRight);
        return Image;
    }
    void DrawCaption(TPixelImage& Image, const TRect& R, TColor Color) const
    {
        DrawExpectedText(Image, "&File", R, Button->Font, Color, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
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
