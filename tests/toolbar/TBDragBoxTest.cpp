#include "toolbar/TBDragBox.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "tests/toolbar/HandleTests.h"

using testing::ElementsAre;

namespace {

class TBDragBoxTest : public testing::Test {
protected:
    static TPixelImage Painted(TAlign Align, int Width, int Height)
    {
        TkelTBDragBox Box(nullptr);
        Box.SetBounds(0, 0, Width, Height);
        Box.Align = Align;
        return PaintToBitmap(&Box);
    }
    // Pixel by pixel from each point to the next; the last one is not painted.
    static void Polyline(TPixelImage& Image, TColor Color, std::vector<TPoint> Points)
    {
        for (size_t I = 1; I < Points.size(); ++I) {
            const auto Step = [](int From, int To) { return To > From ? 1 : To < From ? -1 : 0; };
            const TPoint End = Points[I];
            TPoint At = Points[I - 1];
            for (; At != End; At = {At.x + Step(At.x, End.x), At.y + Step(At.y, End.y)})
                Image.Fill({At.x, At.y, At.x + 1, At.y + 1}, Color);
        }
    }

    std::unique_ptr<THostWindow> Window = std::make_unique<THostWindow>();
};

} // namespace

TEST_F(TBDragBoxTest, ANewDragBoxIs12By12WithTheHand)
{
    TkelTBDragBox Box(nullptr);
    EXPECT_EQ(Box.BoundsRect, TRect(0, 0, 12, 12));
    EXPECT_EQ(Box.Cursor, 10);
    EXPECT_EQ(Box.Align, alNone);
    EXPECT_STREQ(TkelTBDragBox::StaticClass()->ClassParent()->ClassName(), "TGraphicControl");
    EXPECT_THAT(PublishedFrom(TkelTBDragBox::StaticClass(), "Align"), ElementsAre("Align = alNone"));
}

TEST_F(TBDragBoxTest, AlignedToASideItHasTwoVerticalRidges)
{
    for (TAlign Align : {alLeft, alRight})
        for (int Height : {26, 12, 2}) {
            TPixelImage Expected(12, Height, clBtnFace);
            for (int X : {2, 5}) {
                Polyline(Expected, clBtnHighlight, {{X + 1, 0}, {X, 0}, {X, Height}});
                Polyline(Expected, clBtnShadow, {{X + 1, Height - 1}, {X + 2, Height - 1}, {X + 2, -1}});
            }
            EXPECT_TRUE(SamePixels(Painted(Align, 12, Height), Expected));
        }
}

TEST_F(TBDragBoxTest, AlignedToTopOrBottomItHasTwoHorizontalRidges)
{
    for (TAlign Align : {alTop, alBottom})
        for (int Width : {26, 12, 2}) {
            TPixelImage Expected(Width, 12, clBtnFace);
            for (int Y : {2, 5}) {
                Polyline(Expected, clBtnHighlight, {{0, Y + 1}, {0, Y}, {Width, Y}});
                Polyline(Expected, clBtnShadow, {{Width - 1, Y + 1}, {Width - 1, Y + 2}, {-1, Y + 2}});
            }
            EXPECT_TRUE(SamePixels(Painted(Align, Width, 12), Expected));
        }
}

TEST_F(TBDragBoxTest, OtherwiseItIsPlain)
{
    for (TAlign Align : {alNone, alClient})
        EXPECT_TRUE(SamePixels(Painted(Align, 12, 12), TPixelImage(12, 12, clBtnFace)));
}

TEST_F(TBDragBoxTest, PassesTheMouseOnToItsBar)
{
    ExpectPassedOn(new TkelTBDragBox(Window.get()), Window.get());
}

TEST_F(TBDragBoxTest, OnAnOrdinaryPanelItIgnoresTheMouse)
{
    ExpectIgnored(new TkelTBDragBox(Window.get()), Window.get());
}

TEST_F(TBDragBoxTest, RepaintingMakesNoSystemObjects)
{
    auto* Box = new TkelTBDragBox(Window.get());
    Box->Parent = Window.get();
    Box->Align = alTop;
    Window->ShowNow();
    Box->Repaint();
    const int64_t Handles = LiveHandleCount(), Objects = LiveObjectCount();
    const size_t Pens = TSharedPen::KeptCount(), Brushes = TSharedBrush::KeptCount();
    Box->Repaint();
    Box->Repaint();
    EXPECT_EQ(LiveHandleCount(), Handles);
    EXPECT_EQ(LiveObjectCount(), Objects);
    EXPECT_EQ(TSharedPen::KeptCount(), Pens);
    EXPECT_EQ(TSharedBrush::KeptCount(), Brushes);
    EXPECT_TRUE(SamePixels(ScreenPixels(Box), PaintToBitmap(Box)));
}
