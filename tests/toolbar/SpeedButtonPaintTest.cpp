// Every step of painting a speed button, in every state, pixel by pixel.
#include "tests/toolbar/SpeedButtonFixture.h"
#include "vcl/graphics/DitherBrush.h"
#include "vcl/system/LiveCount.h"

namespace {

class SpeedButtonPaintTest : public SpeedButtonFixture {
protected:
    static constexpr int Size = 22;

    // What a flat button of the standard size shows without a frame: its face.
    TPixelImage Face() { return TPixelImage(Size, Size, clBtnFace); }
    static void Dither(TPixelImage& Image, const TRect& R)
    {
        for (int Y = R.top; Y < R.bottom; ++Y)
            for (int X = R.left; X < R.right; ++X)
                Image.Set(X, Y, (X + Y) % 2 == 0 ? clBtnHighlight : clBtnFace);
    }
    static void PushFrame(TPixelImage& Image, bool Pushed)
    {
        RECT R = {0, 0, Image.Width(), Image.Height()};
        DrawFrameControl(Image.DC(), &R, DFC_BUTTON, DFCS_BUTTONPUSH | (Pushed ? DFCS_PUSHED : 0));
    }
    void LatchDown()
    {
        Button->GroupIndex = 1;
        Button->Down = true;
    }
    // The caption in the middle of R.
    void Caption(TPixelImage& Image, const TRect& R, TColor Color)
    {
        DrawExpectedText(Image, Button->Caption, R, Button->Font, Color, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    }
    TSize CaptionSize()
    {
        TPixelImage Scratch(1, 1);
        HGDIOBJ Old = SelectObject(Scratch.DC(), Button->Font->Handle);
        TRect R;
        DrawText(Scratch.DC(), Button->Caption, R, DT_CALCRECT | DT_SINGLELINE);
        SelectObject(Scratch.DC(), Old);
        return {R.Width(), R.Height()};
    }
};

} // namespace

// ---- frames

TEST_F(SpeedButtonPaintTest, AFlatButtonAtRestHasNoFrame)
{
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Face()));
}

TEST_F(SpeedButtonPaintTest, AHotFlatButtonHasARaisedFrame)
{
    Button->SetHot(true);
    TPixelImage Expected = Face();
    Expected.Frame({0, 0, Size, Size}, clBtnHighlight, clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, APressedFlatButtonHasASunkenFrame)
{
    Press(Button);
    TPixelImage Expected = Face();
    Expected.Frame({0, 0, Size, Size}, clBtnShadow, clBtnHighlight);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
    Button->SetHot(true);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, AFlatButtonThatIsDownShowsThePatternUnlessItIsHot)
{
    LatchDown();
    TPixelImage Expected = Face();
    Dither(Expected, {0, 0, Size, Size});
    Expected.Frame({0, 0, Size, Size}, clBtnShadow, clBtnHighlight);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));

    Button->SetHot(true);
    TPixelImage Hot = Face();
    Hot.Frame({0, 0, Size, Size}, clBtnShadow, clBtnHighlight);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Hot));
}

TEST_F(SpeedButtonPaintTest, ThePatternStartsAtTheButtonWhereverThatLies)
{
    LatchDown();
    Button->Left = 11;
    Button->Top = 10;
    const TPixelImage Alone = PaintToBitmap(Button);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Window.get()).Part(Button->BoundsRect), Alone));
    Window->ShowNow();
    EXPECT_TRUE(SamePixels(ScreenPixels(Button), Alone));
    Button->Repaint();
    EXPECT_TRUE(SamePixels(ScreenPixels(Button), Alone));
}

TEST_F(SpeedButtonPaintTest, AButtonThatIsNotFlatHasThePushButtonsFrame)
{
    Button->Flat = false;
    TPixelImage Up = Face(), Down = Face(), Latched = Face();
    PushFrame(Up, false);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Up));
    Button->SetHot(true); // means nothing here
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Up));

    Press(Button);
    PushFrame(Down, true);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Down));
    Release(Button);

    LatchDown();
    PushFrame(Latched, true);
    Dither(Latched, {2, 2, Size - 2, Size - 2});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Latched));
}

TEST_F(SpeedButtonPaintTest, ADisabledButtonHasNoFrameOfItsState)
{
    Button->SetHot(false);
    LatchDown();
    Button->Enabled = false;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Face()));
    EXPECT_EQ(Button->State(), bsDisabled);
    Button->Enabled = true;
    PaintToBitmap(Button);
    EXPECT_EQ(Button->State(), bsExclusive);
    Button->GroupIndex = 0;
    Button->Enabled = false;
    PaintToBitmap(Button);
    Button->Enabled = true;
    PaintToBitmap(Button);
    EXPECT_EQ(Button->State(), bsUp);
}

// ---- glyphs

TEST_F(SpeedButtonPaintTest, TheGlyphStandsInTheMiddle)
{
    Button->Glyphs = Glyphs;
    Button->GlyphIndex = 2;
    TPixelImage Expected = Face();
    DrawExpectedCell(Expected, 3, 3, {32, 0, 48, 16});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, ANegativeIndexShowsTheFirstCell)
{
    Button->Glyphs = Glyphs;
    Button->GlyphIndex = -1;
    TPixelImage Expected = Face();
    DrawExpectedCell(Expected, 3, 3, {0, 0, 16, 16});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, PressedTheGlyphOfAFlatButtonStaysAndThatOfAPushButtonMoves)
{
    Button->Glyphs = Glyphs;
    Press(Button);
    TPixelImage Flat = Face();
    DrawExpectedCell(Flat, 3, 3, {0, 0, 16, 16});
    Flat.Frame({0, 0, Size, Size}, clBtnShadow, clBtnHighlight);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Flat));

    Button->Flat = false;
    TPixelImage Push = Face();
    PushFrame(Push, true);
    DrawExpectedCell(Push, 4, 4, {0, 0, 16, 16});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Push));
}

TEST_F(SpeedButtonPaintTest, TheSunkenFrameLiesOnTopOfTheGlyph)
{
    Button->SetBounds(10, 10, 14, 14);
    Button->Glyphs = Glyphs;
    Press(Button);
    TPixelImage Expected(14, 14, clBtnFace);
    DrawExpectedCell(Expected, 0, 0, {1, 1, 15, 15}); // starts at -1, -1
    Expected.Frame({0, 0, 14, 14}, clBtnShadow, clBtnHighlight);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, TheGlyphOfADownButtonLiesOnThePattern)
{
    Button->Glyphs = Glyphs;
    LatchDown();
    TPixelImage Expected = Face();
    Dither(Expected, {0, 0, Size, Size});
    DrawExpectedCell(Expected, 3, 3, {0, 0, 16, 16});
    Expected.Frame({0, 0, Size, Size}, clBtnShadow, clBtnHighlight);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, ADisabledGlyphIsEmbossed)
{
    Button->Glyphs = Glyphs;
    Button->GlyphIndex = 1;
    Button->Enabled = false;
    TPixelImage Expected = Face();
    DrawExpectedEmbossed(Expected, 3, 3, {16, 0, 32, 16});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

// ---- image lists

TEST_F(SpeedButtonPaintTest, AnImageIsDrawnWithoutTheColourOfItsLowerLeftPixel)
{
    auto* Images = new TImageList(Window.get());
    TBitmap Bitmap;
    FillStrip(&Bitmap, 64, 16);
    Images->Add(&Bitmap, nullptr);
    Button->Images = Images;
    Button->GlyphIndex = 1;
    TPixelImage Expected = Face();
    DrawExpectedCell(Expected, 3, 3, {16, 0, 32, 16});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));

    Button->Enabled = false;
    TPixelImage Disabled = Face();
    DrawExpectedEmbossed(Disabled, 3, 3, {16, 0, 32, 16});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Disabled));
}

TEST_F(SpeedButtonPaintTest, EachImageHasItsOwnTransparentColour)
{
    auto* Images = new TImageList(Window.get());
    TBitmap Bitmap;
    Bitmap.SetSize(32, 16);
    Bitmap.Canvas->Brush->Color = clRed;
    Bitmap.Canvas->FillRect({0, 0, 16, 16});
    Bitmap.Canvas->Brush->Color = clBlue;
    Bitmap.Canvas->FillRect({16, 0, 32, 16});
    Bitmap.Canvas->Pixels[4][4] = clBlue;
    Bitmap.Canvas->Pixels[20][4] = clRed;
    Images->Add(&Bitmap, nullptr);
    Button->Images = Images;
    for (int I = 0; I < 2; ++I) {
        Button->GlyphIndex = I;
        TPixelImage Expected = Face();
        Expected.Set(7, 7, I ? clRed : clBlue);
        EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected)) << I;
    }
}

TEST_F(SpeedButtonPaintTest, AMaskedImageLeavesItsBackgroundOut)
{
    auto* Images = new TImageList(Window.get());
    TBitmap Bitmap;
    FillStrip(&Bitmap, 64, 16);
    Images->AddMasked(&Bitmap, StripMask);
    Button->Images = Images;
    TPixelImage Expected = Face();
    DrawExpectedCell(Expected, 3, 3, {0, 0, 16, 16});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, AChangeOfTheImageListShowsAtTheNextPainting)
{
    auto* Images = new TImageList(Window.get());
    TBitmap Bitmap;
    FillStrip(&Bitmap, 64, 16);
    Images->Add(&Bitmap, nullptr);
    Button->Images = Images;
    PaintToBitmap(Button);
    Images->Delete(0);
    TPixelImage Expected = Face();
    DrawExpectedCell(Expected, 3, 3, {16, 0, 32, 16});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, AnImageThatDoesNotExistIsLeftOut)
{
    auto* Images = new TImageList(Window.get());
    Button->Images = Images;
    for (int Index : {-1, 0, 99}) {
        Button->GlyphIndex = Index;
        Button->Enabled = true;
        EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Face())) << Index;
        Button->Enabled = false;
        EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Face())) << Index;
    }
}

TEST_F(SpeedButtonPaintTest, ButtonsOfOneListShareWhatIsPrepared)
{
    auto* Images = new TImageList(Window.get());
    TBitmap Bitmap;
    FillStrip(&Bitmap, 64, 16);
    Images->Add(&Bitmap, nullptr);
    TTestButton* Other = NewButton();
    Button->Images = Images;
    Other->Images = Images;
    PaintToBitmap(Button);
    const int64_t Handles = LiveHandleCount(), Objects = LiveObjectCount();
    Other->GlyphIndex = 3;
    PaintToBitmap(Other);
    EXPECT_EQ(LiveHandleCount(), Handles);
    EXPECT_EQ(LiveObjectCount(), Objects);
}

// ---- captions

TEST_F(SpeedButtonPaintTest, WithoutAGlyphTheCaptionStandsInTheMiddle)
{
    Button->SetBounds(10, 10, 80, 25);
    Button->Caption = "От&мена";
    TPixelImage Expected(80, 25, clBtnFace);
    Caption(Expected, {0, 0, 80, 25}, Button->Font->Color);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
    EXPECT_GT(80 * 25 - Expected.CountOf(clBtnFace), 30) << "no text was compared";
}

TEST_F(SpeedButtonPaintTest, TheCaptionHasTheFontsColourAndFace)
{
    Button->SetBounds(10, 10, 90, 30);
    Button->Caption = "Bold";
    Button->Font->Color = clNavy;
    Button->Font->Size = 14;
    Button->Font->Style = {fsBold};
    TPixelImage Expected(90, 30, clBtnFace);
    Caption(Expected, {0, 0, 90, 30}, clNavy);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, ADisabledCaptionIsDrawnTwice)
{
    Button->SetBounds(10, 10, 80, 25);
    Button->Caption = "Cut";
    Button->Enabled = false;
    TPixelImage Expected(80, 25, clBtnFace);
    Caption(Expected, {1, 1, 81, 26}, clBtnHighlight);
    Caption(Expected, {0, 0, 80, 25}, clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, ThePressedCaptionOfAPushButtonMoves)
{
    Button->SetBounds(10, 10, 80, 25);
    Button->Caption = "Cut";
    Button->Flat = false;
    Press(Button);
    TPixelImage Expected(80, 25, clBtnFace);
    PushFrame(Expected, true);
    Caption(Expected, {1, 1, 81, 26}, Button->Font->Color);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, GlyphAndCaptionStandAsAPairInTheMiddle)
{
    constexpr int W = 90, H = 60, Gap = 4;
    Button->SetBounds(10, 10, W, H);
    Button->Glyphs = Glyphs;
    Button->Caption = "&Save";
    const TSize Text = CaptionSize();
    const int Beside = (W - 16 - Gap - Text.cx) / 2, Above = (H - 16 - Gap - Text.cy) / 2;
    const struct {
        TButtonLayout Layout;
        TPoint Glyph, Caption;
    } Cases[] = {
        {blGlyphLeft, {Beside, (H - 16) / 2}, {Beside + 16 + Gap, static_cast<int>(H - Text.cy) / 2}},
        {blGlyphRight,
         {Beside + static_cast<int>(Text.cx) + Gap, (H - 16) / 2},
         {Beside, static_cast<int>(H - Text.cy) / 2}},
        {blGlyphTop, {(W - 16) / 2, Above}, {static_cast<int>(W - Text.cx) / 2, Above + 16 + Gap}},
        {blGlyphBottom,
         {(W - 16) / 2, Above + static_cast<int>(Text.cy) + Gap},
         {static_cast<int>(W - Text.cx) / 2, Above}},
    };
    for (const auto& Case : Cases) {
        SCOPED_TRACE(int{Case.Layout});
        Button->Layout = Case.Layout;
        TPixelImage Expected(W, H, clBtnFace);
        DrawExpectedCell(Expected, Case.Glyph.x, Case.Glyph.y, {0, 0, 16, 16});
        DrawExpectedText(Expected, "&Save", Bounds(Case.Caption.x, Case.Caption.y, Text.cx, Text.cy), Button->Font,
                         Button->Font->Color, DT_LEFT | DT_SINGLELINE);
        EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
    }
}

TEST_F(SpeedButtonPaintTest, DisabledGlyphAndCaptionTogether)
{
    Button->SetBounds(10, 10, 90, 22);
    Button->Glyphs = Glyphs;
    Button->Caption = "Save";
    Button->Enabled = false;
    const TSize Text = CaptionSize();
    const int Left = (90 - 16 - 4 - Text.cx) / 2;
    TPixelImage Expected(90, 22, clBtnFace);
    DrawExpectedEmbossed(Expected, Left, 3, {0, 0, 16, 16});
    const TRect R = Bounds(Left + 20, static_cast<int>(22 - Text.cy) / 2, Text.cx, Text.cy);
    DrawExpectedText(Expected, "Save", {R.left + 1, R.top + 1, R.right + 1, R.bottom + 1}, Button->Font, clBtnHighlight,
                     DT_SINGLELINE);
    DrawExpectedText(Expected, "Save", R, Button->Font, clBtnShadow, DT_SINGLELINE);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
}

TEST_F(SpeedButtonPaintTest, AnEmptyStripLeavesRoomForTheCaptionAlone)
{
    Button->SetBounds(10, 10, 60, 22);
    Button->Caption = "x";
    const TPixelImage Alone = PaintToBitmap(Button);
    Glyphs->Picture->Graphic = nullptr;
    Button->Glyphs = Glyphs;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Alone));
}

// ---- the designer

TEST_F(SpeedButtonPaintTest, TheDesignerShowsADottedOutlineAndNoDisabledState)
{
    Button->SetDesigning(true);
    Button->Enabled = false;
    TPixelImage Expected = Face();
    HDC Context = Expected.DC();
    HPEN Dots = CreatePen(PS_DOT, 1, ColorToRGB(clBtnShadow));
    HGDIOBJ OldPen = SelectObject(Context, Dots), OldBrush = SelectObject(Context, GetStockObject(NULL_BRUSH));
    SetBkMode(Context, TRANSPARENT);
    Rectangle(Context, 0, 0, Size, Size);
    SelectObject(Context, OldPen), SelectObject(Context, OldBrush);
    DeleteObject(Dots);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected));
    EXPECT_NE(Button->State(), bsDisabled);
    Button->Flat = false;
    TPixelImage Push = Face();
    PushFrame(Push, false);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Push));
}

// ---- economy

TEST_F(SpeedButtonPaintTest, PaintingAgainMakesNoSystemObjects)
{
    Button->Glyphs = Glyphs;
    Button->Caption = "x";
    Button->GroupIndex = 1;
    Button->AllowAllUp = true;
    const auto PaintAll = [&] {
        for (bool Flat : {true, false})
            for (bool Down : {true, false})
                for (bool Enabled : {true, false}) {
                    Button->Flat = Flat;
                    Button->Down = Down;
                    Button->Enabled = Enabled;
                    PaintToBitmap(Button);
                }
    };
    PaintAll();
    const size_t Fonts = TSharedFont::KeptCount(), Pens = TSharedPen::KeptCount(), Brushes = TSharedBrush::KeptCount();
    const int64_t Handles = LiveHandleCount(), Objects = LiveObjectCount();
    PaintAll();
    EXPECT_EQ(LiveHandleCount(), Handles);
    EXPECT_EQ(LiveObjectCount(), Objects);
    EXPECT_EQ(TSharedFont::KeptCount(), Fonts);
    EXPECT_EQ(TSharedPen::KeptCount(), Pens);
    EXPECT_EQ(TSharedBrush::KeptCount(), Brushes);
}

TEST_F(SpeedButtonPaintTest, TheDitherBrushFollowsTheSystemColours)
{
    TPixelImage Image(8, 8), Expected(8, 8);
    static TColorResolver Before;
    Before = SetColorResolver([](TColor Color) { return Color == clBtnFace ? RGB(9, 8, 7) : Before(Color); });
    FillDithered(Image.DC(), {0, 0, 8, 8});
    Dither(Expected, {0, 0, 8, 8});
    SetColorResolver(Before);
    EXPECT_TRUE(SamePixels(Image, Expected));
    FillDithered(Image.DC(), {0, 0, 8, 8});
    Dither(Expected, {0, 0, 8, 8});
    EXPECT_TRUE(SamePixels(Image, Expected));
    EXPECT_EQ(DitherBrush(), DitherBrush());
}
