// Handlers that raise exceptions or delete controls while a window is painted.
#include "tests/controls/TestWindow.h"
#include "tests/support/PixelImage.h"
#include "tests/support/Reports.h"
#include "vcl/controls/PaintBuffer.h"

#include <functional>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TPainter : public TGraphicControl {
    VCL_CLASS(TPainter, TGraphicControl)
public:
    explicit TPainter(TComponent* AOwner) : TGraphicControl(AOwner) {}
    std::function<void()> OnPaint;

protected:
    void Paint() override
    {
        const auto Paint = OnPaint;
        if (Paint)
            Paint();
    }
};

void TPainter::Describe(TClassBuilder<TPainter>&)
{}

class TWindowPainterBox : public TCustomControl {
    VCL_CLASS(TWindowPainterBox, TCustomControl)
public:
    explicit TWindowPainterBox(TComponent* AOwner) : TCustomControl(AOwner) {}
    std::function<void()> OnPaint;

protected:
    void Paint() override
    {
        const auto Paint = OnPaint;
        if (Paint)
            Paint();
    }
};

void TWindowPainterBox::Describe(TClassBuilder<TWindowPainterBox>&)
{}

class PaintFailureTest : public ControlsTest {
protected:
    void Fill(TCanvas* Canvas, TColor Color)
    {
        Canvas->Brush->Color = Color;
        Canvas->FillRect({0, 0, 40, 20});
    }
    void SetUp() override { TPaintBuffer::FreeShared(); }

    TReports Reports;
};

} // namespace

TEST_F(PaintFailureTest, AControlThatThrowsPaintsWellTheNextTime)
{
    for (const bool OwnCanvas : {false, true}) {
        SCOPED_TRACE(OwnCanvas);
        auto* Painter = Add<TPainter>(&Window, 20, 30, 40, 20);
        if (OwnCanvas)
            Painter->Canvas->Pen->Color = clBlue;
        Window.Open();
        Painter->OnPaint = [&] {
            Fill(Painter->Canvas, clRed);
            throw Exception("paint");
        };
        Painter->Invalidate();
        Window.Update();
        EXPECT_EQ(Reports.Texts().size(), OwnCanvas ? 2u : 1u);
        // The context is no longer the painter's: drawing now goes to the window.
        Fill(Painter->Canvas, clLime);
        EXPECT_EQ(PixelOnScreen(&Window, 25, 35), clLime);
        EXPECT_EQ(PixelOnScreen(&Window, 19, 29), ColorToRGB(clBtnFace));
        Painter->OnPaint = [&] { Fill(Painter->Canvas, clBlue); };
        Painter->Invalidate();
        Window.Update();
        EXPECT_EQ(PixelOnScreen(&Window, 25, 35), clBlue);
        delete Painter;
    }
}

TEST_F(PaintFailureTest, AWindowThatThrowsPaintsWellTheNextTime)
{
    auto* Box = Add<TWindowPainterBox>(&Window, 20, 30, 40, 20);
    Window.Open();
    Box->OnPaint = [&] {
        Fill(Box->Canvas, clRed);
        throw Exception("paint");
    };
    Box->Invalidate();
    Box->Update();
    EXPECT_THAT(Reports.Texts(), ElementsAre("TWindowPainterBox: paint"));
    Fill(Box->Canvas, clLime);
    EXPECT_EQ(PixelOnScreen(&Window, 25, 35), clLime);
    Box->OnPaint = [&] { Fill(Box->Canvas, clBlue); };
    Box->Invalidate();
    Box->Update();
    EXPECT_EQ(PixelOnScreen(&Window, 25, 35), clBlue);
}

TEST_F(PaintFailureTest, WhatThrowsOnAForeignContextLeavesItAsItWas)
{
    auto* Painter = Add<TPainter>(&Window, 20, 30, 40, 20);
    Window.Open();
    const TPixelImage Image(400, 300);
    HDC DC = Image.DC();
    Painter->OnPaint = [] { throw Exception("paint"); };
    EXPECT_THROW(Window.PaintTo(DC, 3, 4), Exception);
    POINT Origin;
    GetViewportOrgEx(DC, &Origin);
    EXPECT_EQ(TPoint(Origin), TPoint(0, 0));
    EXPECT_EQ(SaveDC(DC), 1) << "no context is left saved";
    RestoreDC(DC, 1);
}

TEST_F(PaintFailureTest, ControlsMayBeDeletedWhileTheyPaint)
{
    for (const bool OwnCanvas : {false, true}) {
        auto* Painter = Add<TPainter>(&Window, 20, 30, 40, 20);
        if (OwnCanvas)
            Painter->Canvas->Pen->Color = clBlue;
        auto* Box = Add<TWindowPainterBox>(&Window, 80, 30, 40, 20);
        Painter->OnPaint = [&] { delete std::exchange(Painter, nullptr); };
        Box->OnPaint = [&] { delete std::exchange(Box, nullptr); };
        Window.Open();
        Window.Update();
        EXPECT_EQ(Painter, nullptr);
        if (Box)
            Box->Update();
        EXPECT_EQ(Box, nullptr);
        auto* Inner = Add<TWindowPainterBox>(&Window, 80, 30, 40, 20);
        auto* Child = Add<TPainter>(Inner, 0, 0, 10, 10);
        Add<TPainter>(Inner, 0, 0, 10, 10);
        Child->OnPaint = [&] { delete std::exchange(Inner, nullptr); };
        Child->Invalidate();
        Inner->Update();
        EXPECT_EQ(Inner, nullptr);
    }
    EXPECT_THAT(Reports.Texts(), IsEmpty());
}
