#include "vcl/extctrls/Shape.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"

#include <gmock/gmock.h>

namespace {

class ShapeTest : public testing::Test {
protected:
    ShapeTest() : Shape(new TShape(&Window))
    {
        Shape->Parent = &Window;
        Shape->SetBounds(0, 0, 40, 30);
    }

    // What the system draws with a pen of that width and a brush, both plain.
    TPixelImage Expected(int PenWidth, const std::function<void(HDC)>& Draw)
    {
        TPixelImage Image(40, 30);
        HPEN Pen = CreatePen(PS_SOLID, PenWidth, RGB(255, 0, 0));
        HBRUSH Brush = CreateSolidBrush(RGB(0, 0, 255));
        HGDIOBJ OldPen = SelectObject(Image.DC(), Pen);
        HGDIOBJ OldBrush = SelectObject(Image.DC(), Brush);
        Draw(Image.DC());
        SelectObject(Image.DC(), OldPen);
        SelectObject(Image.DC(), OldBrush);
        DeleteObject(Pen);
        DeleteObject(Brush);
        return Image;
    }

    THostWindow Window;
    TShape* Shape;
};

} // namespace

TEST_F(ShapeTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TShape::StaticClass(), "Align"),
                testing::ElementsAre("Align = alNone", "Anchors = [akLeft,akTop]", "Brush", "Constraints",
                                     "DragCursor = crDrag", "DragKind = dkDrag", "DragMode = dmManual",
                                     "Enabled = True", "ParentShowHint = True", "Pen", "Shape = stRectangle",
                                     "ShowHint", "Visible = True", "OnContextPopup", "OnDragDrop", "OnDragOver",
                                     "OnEndDrag", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag"));
}

TEST_F(ShapeTest, EveryShapeIsWhatTheSystemDraws)
{
    Shape->Pen->Color = clRed;
    Shape->Brush->Color = clBlue;
    const std::pair<TShapeType, std::function<void(HDC)>> Cases[] = {
        {stRectangle, [](HDC DC) { Rectangle(DC, 0, 0, 40, 30); }},
        {stSquare, [](HDC DC) { Rectangle(DC, 5, 0, 35, 30); }},
        {stRoundRect, [](HDC DC) { RoundRect(DC, 0, 0, 40, 30, 7, 7); }},
        {stRoundSquare, [](HDC DC) { RoundRect(DC, 5, 0, 35, 30, 7, 7); }},
        {stEllipse, [](HDC DC) { Ellipse(DC, 0, 0, 40, 30); }},
        {stCircle, [](HDC DC) { Ellipse(DC, 5, 0, 35, 30); }},
    };
    for (const auto& [Kind, Draw] : Cases) {
        Shape->Shape = Kind;
        EXPECT_TRUE(SamePixels(PaintToBitmap(Shape), Expected(1, Draw))) << "shape " << int{Kind};
    }
}

TEST_F(ShapeTest, AWidePenStaysInside)
{
    Shape->Pen->Color = clRed;
    Shape->Pen->Width = 5;
    Shape->Brush->Color = clBlue;
    TPixelImage Painted = PaintToBitmap(Shape);
    EXPECT_TRUE(SamePixels(Painted, Expected(5, [](HDC DC) { Rectangle(DC, 2, 2, 38, 28); })));
    EXPECT_EQ(Painted.At(0, 15), clRed);
    EXPECT_EQ(Painted.At(39, 15), clRed);
    EXPECT_EQ(Painted.At(20, 0), clRed);
    EXPECT_EQ(Painted.At(20, 29), clRed);
}

TEST_F(ShapeTest, AClearPenLeavesTheOutlineOut)
{
    Shape->Pen->Style = psClear;
    Shape->Brush->Color = clBlue;
    TPixelImage Painted = PaintToBitmap(Shape);
    EXPECT_EQ(Painted.At(0, 0), clBlue);
    EXPECT_EQ(Painted.At(39, 29), Untouched);
}

TEST_F(ShapeTest, StreamsWhatDiffersOfPenAndBrush)
{
    Shape->Name = "S";
    Shape->Pen->Width = 3;
    Shape->Brush->Style = bsClear;
    std::string Text = FormText(&Window);
    EXPECT_THAT(Text, testing::HasSubstr("    Brush.Style = bsClear\n    Pen.Width = 3\n  end\n"));
}
