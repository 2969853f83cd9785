#include "vcl/extctrls/Splitter.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/extctrls/Panel.h"

#include <gmock/gmock.h>

namespace {

class SplitterTest : public TFormTest {
protected:
    void Arrange(TAlign Align)
    {
        Form->ClientWidth = 400;
        Form->ClientHeight = 300;
        Side = Add<TPanel>();
        Side->SetBounds(Align == alRight ? 300 : 0, Align == alBottom ? 200 : 0, 100, 100);
        Side->Align = Align;
        Splitter = Add<TSplitter>();
        // Behind the panel, seen from the form's edge.
        Splitter->SetBounds(Align == alRight ? 200 : 150, Align == alBottom ? 100 : 150, 4, 4);
        Splitter->Align = Align;
        auto* Rest = Add<TPanel>();
        Rest->Align = alClient;
        Splitter->OnMoved = [this](TObject*) { ++Moves; };
        Show();
    }
    void DragBy(int X, int Y)
    {
        TPoint From = Splitter->ClientToScreen({1, 1});
        MovePointer(From);
        PressButton();
        MovePointer(From + TPoint(X, Y));
        ReleaseButton();
        PumpMessages();
    }

    TPanel* Side = nullptr;
    TSplitter* Splitter = nullptr;
    int Moves = 0;
};

} // namespace

TEST_F(SplitterTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TSplitter::StaticClass(), "Align"),
                testing::ElementsAre("Align = alLeft", "AutoSnap = True", "Beveled = False", "Color", "Constraints",
                                     "MinSize = 30", "ParentColor = True", "ResizeStyle = rsPattern", "Visible = True",
                                     "OnCanResize", "OnMoved", "OnPaint"));
}

TEST_F(SplitterTest, ResizesTheControlThatIsAlignedBesideIt)
{
    Arrange(alLeft);
    DragBy(40, 0);
    EXPECT_EQ(Side->Width, 140);
    EXPECT_EQ(Splitter->Left, 140);
    EXPECT_EQ(Moves, 1);
}

TEST_F(SplitterTest, WorksOnEverySide)
{
    Arrange(alRight);
    DragBy(-30, 0);
    EXPECT_EQ(Side->Width, 130);
    EXPECT_EQ(Side->Left, 270);
}

TEST_F(SplitterTest, WorksFromTopToBottom)
{
    Arrange(alTop);
    DragBy(0, 25);
    EXPECT_EQ(Side->Height, 125);
}

TEST_F(SplitterTest, WorksFromTheBottom)
{
    Arrange(alBottom);
    DragBy(0, 25);
    EXPECT_EQ(Side->Height, 75);
    EXPECT_EQ(Side->Top, 225);
}

TEST_F(SplitterTest, ASmallSizeSnapsShutOrStopsAtTheMinimum)
{
    Arrange(alLeft);
    DragBy(-90, 0);
    EXPECT_EQ(Side->Width, 0);
    DragBy(80, 0);
    EXPECT_EQ(Side->Width, 80);
    Splitter->AutoSnap = false;
    DragBy(-70, 0);
    EXPECT_EQ(Side->Width, 30);
    DragBy(360, 0);
    EXPECT_EQ(Side->Width, 400 - 4 - 30);
}

// Docks without bars are such controls: aligned to an edge, and nowhere to be seen.
TEST_F(SplitterTest, ControlsWithoutExtentAreNoNeighbours)
{
    for (TAlign Align : {alLeft, alRight, alTop, alBottom}) {
        SCOPED_TRACE(Align);
        Form = std::make_unique<TForm>(nullptr);
        Form->SetBounds(100, 100, 400, 300);
        std::vector<TPanel*> Empty;
        for (TAlign Side : {alTop, alBottom, alLeft, alRight}) {
            Empty.push_back(Add<TPanel>());
            Empty.back()->Align = Side;
            Empty.back()->SetBounds(0, 0, 0, 0);
        }
        Arrange(Align);
        // Between the panel and the splitter, and at the form's edge.
        Empty[0]->SetBounds(Side->Left, Side->Top + 1, Empty[0]->Width, Empty[0]->Height);
        const bool Sideways = Align == alLeft || Align == alRight;
        const int Towards = Align == alLeft || Align == alTop ? 1 : -1;
        DragBy(Sideways ? 30 * Towards : 0, Sideways ? 0 : 30 * Towards);
        EXPECT_EQ(Sideways ? Side->Width : Side->Height, 130);
        for (const TPanel* Panel : Empty)
            EXPECT_EQ(std::min(Panel->Width, Panel->Height), 0);
    }
}

TEST_F(SplitterTest, WhatItHasClosedItOpensAgainBeforeItResizesAnother)
{
    auto* Edge = Add<TPanel>();
    Edge->Align = alLeft;
    Edge->Width = 40;
    Arrange(alLeft);
    DragBy(-90, 0);
    ASSERT_EQ(Side->Width, 0);
    DragBy(80, 0);
    EXPECT_EQ(Side->Width, 80);
    EXPECT_EQ(Edge->Width, 40);
}

TEST_F(SplitterTest, TheHandlerMayRefuseOrChangeTheSize)
{
    Arrange(alLeft);
    Splitter->OnCanResize = [](TObject*, int& NewSize, bool& Accept) {
        Accept = NewSize < 200;
        NewSize = NewSize / 10 * 10;
    };
    DragBy(37, 0);
    EXPECT_EQ(Side->Width, 130);
    DragBy(150, 0);
    EXPECT_EQ(Side->Width, 130);
    EXPECT_EQ(Moves, 1);
}

TEST_F(SplitterTest, UpdatesAtOnceWhenAskedTo)
{
    Arrange(alLeft);
    Splitter->ResizeStyle = rsUpdate;
    TPoint From = Splitter->ClientToScreen({1, 1});
    MovePointer(From);
    PressButton();
    MovePointer(From + TPoint(20, 0));
    EXPECT_EQ(Side->Width, 120);
    MovePointer(From + TPoint(35, 0));
    EXPECT_EQ(Side->Width, 135);
    ReleaseButton();
    EXPECT_EQ(Side->Width, 135);
    EXPECT_EQ(Moves, 1);
}

TEST_F(SplitterTest, TheLineGoesAwayWithoutATrace)
{
    Arrange(alLeft);
    TPixelImage Before = ScreenPixels(Form.get());
    TPoint From = Splitter->ClientToScreen({1, 1});
    MovePointer(From);
    PressButton();
    MovePointer(From + TPoint(50, 0));
    EXPECT_FALSE(SamePixels(ScreenPixels(Form.get()), Before));
    MovePointer(From);
    ReleaseButton();
    EXPECT_TRUE(SamePixels(ScreenPixels(Form.get()), Before));
    EXPECT_EQ(Moves, 0);
}

TEST_F(SplitterTest, ThePatternInvertsEverySecondPixel)
{
    Arrange(alLeft);
    Form->Color = TColor(0x123456);
    UpdateWindow(Form->Handle);
    const TRect Line = Bounds(Splitter->Left + 50, 10, Splitter->Width, 40);
    const TPixelImage Before = ScreenPixels(Form.get()).Part(Line);
    const TPoint From = Splitter->ClientToScreen({1, 1});
    MovePointer(From);
    PressButton();
    MovePointer(From + TPoint(50, 0));
    const TPixelImage During = ScreenPixels(Form.get()).Part(Line);
    ReleaseButton();
    int Inverted = 0;
    for (int Y = 0; Y < Line.Height(); ++Y)
        for (int X = 0; X < Line.Width(); ++X) {
            const TColor Pixel = During.At(X, Y);
            const bool IsInverted = Pixel == TColor(Before.At(X, Y) ^ 0xFFFFFF);
            EXPECT_TRUE(IsInverted || Pixel == Before.At(X, Y)) << X << ", " << Y << ": " << Pixel;
            if (X > 0)
                EXPECT_NE(Pixel, During.At(X - 1, Y)) << X << ", " << Y;
            Inverted += IsInverted;
        }
    EXPECT_EQ(Inverted, Line.Width() * Line.Height() / 2);
}

TEST_F(SplitterTest, PaintsItsFaceAndBevels)
{
    Arrange(alLeft);
    Splitter->Color = clAqua;
    TPixelImage Expected(4, Splitter->Height, clAqua);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Splitter), Expected));
    Splitter->Beveled = true;
    Expected.Fill(TRect(0, 0, 1, Splitter->Height), clBtnHighlight);
    Expected.Fill(TRect(3, 0, 4, Splitter->Height), clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Splitter), Expected));
}
