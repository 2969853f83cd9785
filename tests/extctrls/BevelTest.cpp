#include "vcl/extctrls/Bevel.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"

#include <gmock/gmock.h>

namespace {

class BevelTest : public testing::Test {
protected:
    BevelTest() : Bevel(new TBevel(&Window))
    {
        Bevel->Parent = &Window;
        Bevel->SetBounds(0, 0, 20, 16);
    }

    THostWindow Window;
    TBevel* Bevel;
};

} // namespace

TEST_F(BevelTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TBevel::StaticClass(), "Align"),
                testing::ElementsAre("Align = alNone", "Anchors = [akLeft,akTop]", "Constraints",
                                     "ParentShowHint = True", "Shape = bsBox", "ShowHint", "Style = bsLowered",
                                     "Visible = True"));
}

TEST_F(BevelTest, PaintsEachShapeLoweredAndRaised)
{
    for (TBevelStyle Style : {bsLowered, bsRaised}) {
        Bevel->Style = Style;
        TColor Dark = Style == bsLowered ? clBtnShadow : clBtnHighlight;
        TColor Light = Style == bsLowered ? clBtnHighlight : clBtnShadow;
        TPixelImage Box(20, 16), Frame(20, 16), Top(20, 16), Bottom(20, 16), Left(20, 16), Right(20, 16);
        Box.Frame(TRect(0, 0, 20, 16), Dark, Light);
        Frame.Frame(TRect(1, 1, 20, 16), Light, Light);
        Frame.Frame(TRect(0, 0, 19, 15), Dark, Dark);
        Top.Fill(TRect(0, 0, 20, 1), Dark);
        Top.Fill(TRect(0, 1, 20, 2), Light);
        Bottom.Fill(TRect(0, 14, 20, 15), Dark);
        Bottom.Fill(TRect(0, 15, 20, 16), Light);
        Left.Fill(TRect(0, 0, 1, 16), Dark);
        Left.Fill(TRect(1, 0, 2, 16), Light);
        Right.Fill(TRect(18, 0, 19, 16), Dark);
        Right.Fill(TRect(19, 0, 20, 16), Light);
        const std::pair<TBevelShape, TPixelImage*> Cases[] = {{bsBox, &Box},       {bsFrame, &Frame},
                                                              {bsTopLine, &Top},   {bsBottomLine, &Bottom},
                                                              {bsLeftLine, &Left}, {bsRightLine, &Right}};
        for (auto [Shape, Expected] : Cases) {
            Bevel->Shape = Shape;
            EXPECT_TRUE(SamePixels(PaintToBitmap(Bevel), *Expected)) << "shape " << int{Shape};
        }
    }
}

TEST_F(BevelTest, ASpacerShowsNothing)
{
    Bevel->Shape = bsSpacer;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Bevel), TPixelImage(20, 16)));
}
