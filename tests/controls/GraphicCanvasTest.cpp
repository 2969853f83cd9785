// The canvas of windowless controls, and what one control's painting leaves to the next.
#include "tests/support/PaintToBitmap.h"
#include "vcl/controls/GraphicControl.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/LiveCount.h"

namespace {

class TScribble : public TGraphicControl {
    VCL_CLASS(TScribble, TGraphicControl)
public:
    explicit TScribble(TComponent* AOwner) : TGraphicControl(AOwner) { SetBounds(0, 0, 20, 20); }

    std::function<void(TCanvas*)> OnPaint;

protected:
    void Paint() override { OnPaint(Canvas); }
};

void TScribble::Describe(TClassBuilder<TScribble>&)
{}

class GraphicCanvasTest : public testing::Test {
protected:
    TScribble* Add(int Left)
    {
        auto* Control = new TScribble(Window.get());
        Control->Left = Left;
        Control->Parent = Window.get();
        return Control;
    }

    std::unique_ptr<THostWindow> Window = std::make_unique<THostWindow>();
    TScribble* First = Add(0);
    TScribble* Second = Add(50);
};

} // namespace

TEST_F(GraphicCanvasTest, ThePassingCanvasOfAPaintStartsAsNew)
{
    std::vector<TColor> Colors;
    First->OnPaint = [&](TCanvas* Canvas) {
        Colors.push_back(Canvas->Pen->Color);
        Canvas->Pen->Color = clRed;
    };
    PaintToBitmap(First);
    PaintToBitmap(First);
    EXPECT_EQ(Colors, (std::vector{clBlack, clBlack}));
}

TEST_F(GraphicCanvasTest, ACanvasThatWasAskedForKeepsItsPen)
{
    First->Canvas->Pen->Color = clRed;
    TColor Seen = clNone;
    TCanvas* Used = nullptr;
    First->OnPaint = [&](TCanvas* Canvas) {
        Seen = Canvas->Pen->Color;
        Used = Canvas;
    };
    PaintToBitmap(First);
    EXPECT_EQ(Seen, clRed);
    EXPECT_EQ(Used, First->Canvas);
}

TEST_F(GraphicCanvasTest, AControlThatOnlyPaintsKeepsNoCanvas)
{
    const int64_t Objects = LiveObjectCount();
    First->OnPaint = [](TCanvas* Canvas) { Canvas->Rectangle(0, 0, 5, 5); };
    PaintToBitmap(First);
    First->OnPaint = nullptr;
    EXPECT_EQ(LiveObjectCount(), Objects);
}

TEST_F(GraphicCanvasTest, AfterAFailedPaintTheNextOneWorks)
{
    First->OnPaint = [](TCanvas*) { throw EAbort("stop"); };
    EXPECT_THROW(PaintToBitmap(First), EAbort);
    bool Painted = false;
    First->OnPaint = [&](TCanvas* Canvas) { Painted = Canvas->HandleAllocated(); };
    PaintToBitmap(First);
    EXPECT_TRUE(Painted);
}

TEST_F(GraphicCanvasTest, WhatAControlDoesToTheContextDoesNotReachTheNext)
{
    First->OnPaint = [](TCanvas* Canvas) {
        HDC Context = Canvas->Handle;
        SetTextAlign(Context, TA_RIGHT | TA_BOTTOM);
        SetStretchBltMode(Context, HALFTONE);
        SetBrushOrgEx(Context, 3, 5, nullptr);
        OffsetViewportOrgEx(Context, 7, 7, nullptr);
        IntersectClipRect(Context, 0, 0, 1, 1);
        SetBkColor(Context, RGB(1, 2, 3));
    };
    UINT Align = ~0u;
    int Mode = 0;
    POINT Origin, Brush;
    TRect Clip;
    Second->OnPaint = [&](TCanvas* Canvas) {
        HDC Context = Canvas->Handle;
        Align = GetTextAlign(Context);
        Mode = GetStretchBltMode(Context);
        GetViewportOrgEx(Context, &Origin);
        GetBrushOrgEx(Context, &Brush);
        GetClipBox(Context, &Clip);
    };
    PaintToBitmap(Window.get());
    EXPECT_EQ(Align, UINT{TA_LEFT});
    EXPECT_NE(Mode, HALFTONE);
    EXPECT_EQ(TPoint(Origin), TPoint(50, 0));
    EXPECT_EQ(TPoint(Brush), TPoint(0, 0));
    EXPECT_EQ(Clip, TRect(0, 0, 20, 20));
}
