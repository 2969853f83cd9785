#include "vcl/extctrls/PaintBox.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"

#include <gmock/gmock.h>

TEST(PaintBoxTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TPaintBox::StaticClass(), "OnMouseUp"),
                testing::ElementsAre("OnMouseUp", "OnPaint", "OnStartDrag"));
}

TEST(PaintBoxTest, TheApplicationPaintsWithItsFontAndColor)
{
    THostWindow Window;
    auto* Box = new TPaintBox(&Window);
    Box->Parent = &Window;
    Box->SetBounds(0, 0, 20, 10);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Box), TPixelImage(20, 10)));
    Box->Color = clAqua;
    Box->Font->Size = 20;
    int Size = 0;
    Box->OnPaint = [&](TObject*) {
        Size = Box->Canvas->Font->Size;
        Box->Canvas->FillRect(TRect(5, 5, 20, 10));
    };
    TPixelImage Expected(20, 10);
    Expected.Fill(TRect(5, 5, 20, 10), clAqua);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Box), Expected));
    EXPECT_EQ(Size, 20);
}
