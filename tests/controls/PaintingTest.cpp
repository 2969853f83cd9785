#include "tests/controls/TestWindow.h"

namespace {

class PaintingTest : public ControlsTest {
protected:
    TProbe* AddColored(TWinControl* Parent, const TRect& R, TColor Color, bool Opaque = true)
    {
        auto* Probe = Add<TProbe>(Parent, R.Left, R.Top, R.Width(), R.Height());
        Probe->Color = Color;
        Probe->SetStyleFlag(csOpaque, Opaque);
        return Probe;
    }
};

} // namespace

TEST_F(PaintingTest, ControlsArePaintedOverTheParentsBackgroundAndClippedToThemselves)
{
    auto* Probe = AddColored(&Window, {20, 30, 60, 50}, clRed);
    Window.Open();
    EXPECT_EQ(PixelOnScreen(&Window, 20, 30), clRed);
    EXPECT_EQ(PixelOnScreen(&Window, 59, 49), clRed);
    EXPECT_EQ(PixelOnScreen(&Window, 60, 49), ColorToRGB(clBtnFace));
    EXPECT_EQ(PixelOnScreen(&Window, 19, 30), ColorToRGB(clBtnFace));
    EXPECT_EQ(Probe->Paints, 1);
}

TEST_F(PaintingTest, LaterControlsArePaintedOverEarlierOnes)
{
    AddColored(&Window, {0, 0, 40, 40}, clRed);
    auto* Blue = AddColored(&Window, {20, 20, 60, 60}, clBlue);
    Window.Open();
    EXPECT_EQ(PixelOnScreen(&Window, 30, 30), clBlue);
    Blue->SendToBack();
    Window.Update();
    EXPECT_EQ(PixelOnScreen(&Window, 30, 30), clRed);
    EXPECT_EQ(PixelOnScreen(&Window, 50, 50), clBlue);
}

TEST_F(PaintingTest, RepaintOfAnOpaqueControlPaintsItAloneAndAtOnce)
{
    auto* Probe = AddColored(&Window, {20, 30, 60, 50}, clRed);
    auto* Other = AddColored(&Window, {80, 30, 90, 50}, clRed);
    Window.Open();
    int WindowPaints = Window.Paints;
    Probe->Color = clLime;
    ValidateRect(Window.Handle, nullptr);
    Probe->Repaint();
    EXPECT_EQ(PixelOnScreen(&Window, 25, 35), clLime);
    EXPECT_EQ(PixelOnScreen(&Window, 60, 35), ColorToRGB(clBtnFace));
    EXPECT_EQ(Probe->Paints, 2);
    EXPECT_EQ(Other->Paints, 1);
    EXPECT_EQ(Window.Paints, WindowPaints);
}

TEST_F(PaintingTest, RepaintUnderAnotherControlKeepsThatOneOnTop)
{
    auto* Below = AddColored(&Window, {0, 0, 40, 40}, clRed);
    AddColored(&Window, {20, 20, 60, 60}, clBlue);
    Window.Open();
    Below->Color = clLime;
    Below->Repaint();
    EXPECT_EQ(PixelOnScreen(&Window, 30, 30), clBlue);
    EXPECT_EQ(PixelOnScreen(&Window, 10, 10), clLime);
}

TEST_F(PaintingTest, InvalidatingAnOpaqueControlDoesNotRunTheParentsPaint)
{
    auto* Probe = AddColored(&Window, {20, 30, 60, 50}, clRed);
    Window.Open();
    int WindowPaints = Window.Paints;
    Probe->Invalidate();
    Probe->Update();
    EXPECT_EQ(Probe->Paints, 2);
    EXPECT_EQ(Window.Paints, WindowPaints);
}

TEST_F(PaintingTest, ATransparentControlGetsTheParentsBackgroundBack)
{
    auto* Probe = AddColored(&Window, {20, 30, 60, 50}, clRed, false);
    Window.Open();
    Probe->Visible = false;
    Window.Update();
    EXPECT_EQ(PixelOnScreen(&Window, 25, 35), ColorToRGB(clBtnFace));
}

TEST_F(PaintingTest, MovingAControlUncoversWhatWasBehind)
{
    auto* Probe = AddColored(&Window, {20, 30, 60, 50}, clRed);
    Window.Open();
    Probe->Left = 100;
    Window.Update();
    EXPECT_EQ(PixelOnScreen(&Window, 25, 35), ColorToRGB(clBtnFace));
    EXPECT_EQ(PixelOnScreen(&Window, 105, 35), clRed);
}

TEST_F(PaintingTest, NothingIsPaintedWhileTheWindowIsHidden)
{
    auto* Probe = AddColored(&Window, {20, 30, 60, 50}, clRed);
    Probe->Repaint();
    Window.Open();
    int Before = Probe->Paints;
    Window.Visible = false;
    Probe->Repaint();
    EXPECT_EQ(Probe->Paints, Before);
}

TEST_F(PaintingTest, PaintToDrawsTheWholeTree)
{
    auto* Box = Add<TBox>(&Window, 100, 100, 50, 50);
    Box->Color = clYellow;
    AddColored(&Window, {20, 30, 60, 50}, clRed);
    AddColored(Box, {10, 10, 20, 20}, clBlue);
    Window.Open();
    TBitmap Bitmap;
    Bitmap.Width = 410;
    Bitmap.Height = 310;
    Window.PaintTo(Bitmap.Canvas->Handle, 10, 10);
    EXPECT_EQ(Bitmap.Canvas->Pixels[12][12], ColorToRGB(clBtnFace));
    EXPECT_EQ(Bitmap.Canvas->Pixels[35][45], clRed);
    EXPECT_EQ(Bitmap.Canvas->Pixels[112][112], clYellow);
    EXPECT_EQ(Bitmap.Canvas->Pixels[125][125], clBlue);
}

TEST_F(PaintingTest, DrawingOutsidePaintGoesToTheScreenAndGivesTheContextBack)
{
    auto* Probe = AddColored(&Window, {20, 30, 60, 50}, clRed);
    Window.Open();
    Probe->Canvas->Pixels[3][4] = clAqua;
    EXPECT_EQ(PixelOnScreen(Probe, 3, 4), clAqua);
    Probe->Canvas->Pixels[-1][4] = clAqua; // outside the control
    EXPECT_EQ(PixelOnScreen(Probe, -1, 4), ColorToRGB(clBtnFace));
    TControlCanvas::FreeHandles();
    EXPECT_FALSE(Probe->Canvas->HandleAllocated());
}
