#include "vcl/extctrls/Image.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"

#include <gmock/gmock.h>

namespace {

class ImageTest : public testing::Test {
protected:
    ImageTest() : Image(new TImage(&Window))
    {
        Image->Parent = &Window;
        Image->SetBounds(0, 0, 30, 20);
    }

    // 4 by 2 pixels: red above, lime below.
    void SetPicture()
    {
        TBitmap Bitmap;
        Bitmap.SetSize(4, 2);
        Bitmap.Canvas->Brush->Color = clRed;
        Bitmap.Canvas->FillRect(TRect(0, 0, 4, 1));
        Bitmap.Canvas->Brush->Color = clLime;
        Bitmap.Canvas->FillRect(TRect(0, 1, 4, 2));
        Image->Picture->Bitmap = &Bitmap;
    }

    static TPixelImage Stripes(const TRect& Upper, const TRect& Lower)
    {
        TPixelImage Expected(30, 20);
        Expected.Fill(Upper, clRed);
        Expected.Fill(Lower, clLime);
        return Expected;
    }

    THostWindow Window;
    TImage* Image;
};

} // namespace

TEST_F(ImageTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TImage::StaticClass(), "Align"),
                testing::ElementsAre("Align = alNone", "Anchors = [akLeft,akTop]", "AutoSize = False", "Center = False",
                                     "Constraints", "DragCursor = crDrag", "DragKind = dkDrag", "DragMode = dmManual",
                                     "Enabled = True", "IncrementalDisplay = False", "ParentShowHint = True", "Picture",
                                     "PopupMenu", "Proportional = False", "ShowHint", "Stretch = False",
                                     "Transparent = False", "Visible = True", "OnClick", "OnContextPopup", "OnDblClick",
                                     "OnDragDrop", "OnDragOver", "OnEndDrag", "OnMouseDown", "OnMouseMove", "OnMouseUp",
                                     "OnStartDrag"));
}

TEST_F(ImageTest, WithoutAPictureItPaintsNothing)
{
    EXPECT_TRUE(SamePixels(PaintToBitmap(Image), TPixelImage(30, 20)));
}

TEST_F(ImageTest, ThePictureStandsAtTheCornerOrInTheMiddle)
{
    SetPicture();
    EXPECT_TRUE(SamePixels(PaintToBitmap(Image), Stripes({0, 0, 4, 1}, {0, 1, 4, 2})));
    Image->Center = true;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Image), Stripes({13, 9, 17, 10}, {13, 10, 17, 11})));
}

TEST_F(ImageTest, StretchFillsAndProportionalKeepsTheForm)
{
    SetPicture();
    Image->Stretch = true;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Image), Stripes({0, 0, 30, 10}, {0, 10, 30, 20})));
    Image->Height = 16;
    Image->Width = 40;
    Image->Proportional = true;
    TPixelImage Painted = PaintToBitmap(Image); // 32 by 16
    EXPECT_EQ(Painted.At(31, 0), clRed);
    EXPECT_EQ(Painted.At(32, 0), Untouched);
    EXPECT_EQ(Painted.At(31, 15), clLime);
}

TEST_F(ImageTest, ProportionalAloneMakesALargePictureFit)
{
    SetPicture();
    Image->Proportional = true;
    EXPECT_EQ(PaintToBitmap(Image).CountOf(clRed), 4);
    Image->SetBounds(0, 0, 2, 20);
    TPixelImage Painted = PaintToBitmap(Image); // 2 by 1
    EXPECT_EQ(Painted.At(0, 1), Untouched);
    EXPECT_NE(Painted.At(1, 0), Untouched);
}

TEST_F(ImageTest, TransparentLeavesTheBackgroundOut)
{
    SetPicture();
    Image->Transparent = true;
    TPixelImage Expected(30, 20);
    Expected.Fill(TRect(0, 0, 4, 1), clRed);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Image), Expected));
}

TEST_F(ImageTest, AutoSizeFollowsThePicture)
{
    Image->AutoSize = true;
    SetPicture();
    EXPECT_EQ(Image->BoundsRect, TRect(0, 0, 4, 2));
}

TEST_F(ImageTest, AnAlignedImageFollowsThePictureInTheOtherDirection)
{
    Image->AutoSize = true;
    Image->Align = alLeft;
    SetPicture();
    EXPECT_EQ(Image->Width, 4);
    EXPECT_EQ(Image->Height, Window.ClientHeight);
    Image->Align = alTop;
    SetPicture();
    EXPECT_EQ(Image->Height, 2);
    EXPECT_EQ(Image->Width, Window.ClientWidth);
}

TEST_F(ImageTest, IsOpaqueWhenThePictureCoversIt)
{
    SetPicture();
    EXPECT_FALSE(Image->ControlStyle.Contains(csOpaque));
    Image->Stretch = true;
    EXPECT_TRUE(Image->ControlStyle.Contains(csOpaque));
    Image->Transparent = true;
    EXPECT_FALSE(Image->ControlStyle.Contains(csOpaque));
}

TEST_F(ImageTest, TheCanvasDrawsOnABitmapOfItsSize)
{
    Image->Canvas->Pixels[3][4] = clBlue;
    EXPECT_EQ(Image->Picture->Width, 30);
    EXPECT_EQ(Image->Picture->Height, 20);
    EXPECT_EQ(PaintToBitmap(Image).At(3, 4), clBlue);
}

TEST_F(ImageTest, ThereIsNoCanvasOnAnIcon)
{
    TIcon Icon;
    Image->Picture->Icon = &Icon;
    EXPECT_THROW(Image->GetCanvas(), EInvalidOperation);
}

TEST_F(ImageTest, ThePictureComesBackFromAFormFile)
{
    Image->Name = "I";
    SetPicture();
    THostWindow Other;
    ReadFormText(&Other, FormText(&Window));
    auto* Read = As<TImage>(Other.FindComponent("I"));
    ASSERT_TRUE(Read);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Read), PaintToBitmap(Image)));
}
