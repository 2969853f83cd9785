// The Office panel and label, the web label and the highlight buttons.
#include "controls/BitBtn.h"
#include "controls/Button.h"
#include "controls/OfficeLabel.h"
#include "controls/OfficePanel.h"
#include "controls/WebLabel.h"
#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/controls/Mouse.h"
#include "vcl/forms/Screen.h"
#include "vcl/graphics/Bitmap.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class HotLabelTest : public TFormTest {
protected:
    template <class T>
    T* AddAt(int Y, int Width, int Height, const AnsiString& Text)
    {
        T* Control = Add<T>(Text);
        Control->SetBounds(10, Y, Width, Height);
        return Control;
    }
    static void PointAt(TControl* Control) { MovePointerTo(Control, 5, 5); }
    static void PointAway()
    {
        MovePointerAway();
        EXPECT_TRUE(PumpUntil([] { return !TMouse::HotControl(); }));
    }
    static int TextWidth(TFont* Font, const AnsiString& Text) { return TextSize(Font, Text).cx; }
    static SIZE TextSize(TFont* Font, const AnsiString& Text)
    {
        TPixelImage Scratch(1, 1);
        const HGDIOBJ Old = SelectObject(Scratch.DC(), Font->Handle);
        SIZE Size;
        const TWideString Wide = ToWide(Text);
        GetTextExtentPoint32W(Scratch.DC(), Wide.c_str(), static_cast<int>(Wide.size()), &Size);
        SelectObject(Scratch.DC(), Old);
        return Size;
    }
};

using OfficePanelTest = HotLabelTest;
using OfficeLabelTest = HotLabelTest;
using HighlightButtonTest = HotLabelTest;

class WebLabelTest : public HotLabelTest {
protected:
    static constexpr int Width = 140;
    static constexpr int Height = 16;

    TPixelImage Expected(bool IsHot, bool IsUnderlined, int GlyphLeft, int TextLeft)
    {
        TPixelImage Image(Width, Height, clBtnFace);
        TBitmap Glyph;
        Glyph.LoadFromResourceName(GetModuleHandleW(nullptr), IsHot ? "WEB_ACT" : "WEB_DE");
        EXPECT_EQ(Glyph.Width, 15);
        EXPECT_EQ(Glyph.Height, 15);
        const TColor Background = Glyph.Canvas->Pixels[0][0];
        for (int Y = 0; Y < 15; ++Y)
            for (int X = 0; X < 15; ++X)
                if (const TColor Pixel = Glyph.Canvas->Pixels[X][Y]; Pixel != Background)
                    Image.Set(GlyphLeft + X, Y, Pixel);
        TFont Font;
        Font.Assign(Label->Font);
        if (IsUnderlined)
            Font.Style = {fsUnderline};
        DrawExpectedText(Image, "Read more", {TextLeft, 0, 400, 100}, &Font, IsHot ? clHighlight : clWindowText,
                         DT_SINGLELINE | DT_NOPREFIX);
        return Image;
    }

    TkelWebLabel* Label = AddAt<TkelWebLabel>(10, Width, Height, "Read more");
};

} // namespace

// ---- panel

TEST_F(OfficePanelTest, PublishesWhatAPanelDoes)
{
    EXPECT_EQ(PublishedFrom(TkelOfficePanel::StaticClass(), "Align"), PublishedFrom(TPanel::StaticClass(), "Align"));
}

TEST_F(OfficePanelTest, IsFlatWithACentredCaptionUntilTheMouseIsOverIt)
{
    constexpr int Width = 100;
    constexpr int Height = 40;
    auto* Panel = AddAt<TkelOfficePanel>(10, Width, Height, "Panel");
    auto* Plain = AddAt<TPanel>(80, Width, Height, "Panel");
    for (const int Border : {0, 5}) {
        Panel->BorderWidth = Border;
        Plain->BorderWidth = Border;
        Panel->Alignment = taLeftJustify;
        Plain->Alignment = taLeftJustify;
        TPixelImage Expected(Width, Height, clBtnFace);
        Expected.Frame({0, 0, Width, Height}, clGrayText, clGrayText);
        Expected.Frame({Border, Border, Width - Border, Height - Border}, clGrayText, clGrayText);
        const SIZE Size = TextSize(Panel->Font, "Panel");
        DrawExpectedText(Expected, "Panel", {(Width - Size.cx) / 2, (Height - Size.cy) / 2, 200, 200}, Panel->Font,
                         clGrayText, DT_SINGLELINE);
        EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
        if (!Form->Visible)
            Show();
        PointAt(Panel);
        EXPECT_TRUE(SamePixels(ScreenPixels(Panel), PaintToBitmap(Plain)));
        Panel->Enabled = false;
        EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
        Panel->Enabled = true;
        PointAway();
        EXPECT_TRUE(SamePixels(ScreenPixels(Panel), Expected));
    }
}

// ---- label

TEST_F(OfficeLabelTest, PublishesWhatALabelDoes)
{
    EXPECT_EQ(PublishedFrom(TkelOfficeLabel::StaticClass(), "Align"), PublishedFrom(TLabel::StaticClass(), "Align"));
}

TEST_F(OfficeLabelTest, IsOneGreyLineUntilTheMouseIsOverIt)
{
    constexpr int Width = 100;
    constexpr int Height = 40;
    auto* Label = AddAt<TkelOfficeLabel>(10, Width, Height, "La&bel");
    auto* Plain = AddAt<TLabel>(80, Width, Height, "La&bel");
    for (auto* Each : {static_cast<TLabel*>(Label), Plain}) {
        Each->AutoSize = false;
        Each->SetBounds(Each->Left, Each->Top, Width, Height);
        Each->Layout = tlBottom;
        Each->WordWrap = true;
    }
    Show();
    const int Free = Width - TextWidth(Label->Font, "La&bel");
    const std::pair<TAlignment, int> Places[] = {{taLeftJustify, 0}, {taRightJustify, Free}, {taCenter, Free / 2}};
    for (const auto& [Alignment, Left] : Places) {
        Label->Alignment = Alignment;
        Plain->Alignment = Alignment;
        TPixelImage Expected(Width, Height, clBtnFace);
        DrawExpectedText(Expected, "La&bel", {Left, 0, 400, 100}, Label->Font, clGrayText, DT_SINGLELINE | DT_NOPREFIX);
        EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Expected));
        PointAt(Label);
        EXPECT_TRUE(SamePixels(ScreenPixels(Label), PaintToBitmap(Plain)));
        PointAway();
        EXPECT_TRUE(SamePixels(ScreenPixels(Label), Expected));
    }
    Label->Caption = "";
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), TPixelImage(Width, Height, clBtnFace)));
    Label->Transparent = true;
    EXPECT_EQ(PaintToBitmap(Label).CountOf(Untouched), Width * Height);
}

// ---- web label

TEST_F(WebLabelTest, PublishesUnderlineBesideWhatALabelHas)
{
    EXPECT_THAT(PublishedFrom(TkelWebLabel::StaticClass(), "Underline"), ElementsAre("Underline"));
    EXPECT_TRUE(Label->Underline);
    EXPECT_FALSE(Label->AutoSize);
}

TEST_F(WebLabelTest, LightsUpUnderTheMouse)
{
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Expected(false, false, 0, 18)));
    Show();
    PointAt(Label);
    EXPECT_TRUE(SamePixels(ScreenPixels(Label), Expected(true, true, 0, 18)));
    PointAway();
    EXPECT_TRUE(SamePixels(ScreenPixels(Label), Expected(false, false, 0, 18)));
}

TEST_F(WebLabelTest, GlyphAndTextStandByAlignment)
{
    const int Text = TextWidth(Label->Font, "Read more");
    Label->Alignment = taRightJustify;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Expected(false, false, Width - 18, Width - Text - 18)));
    Label->Alignment = taCenter;
    const int Left = (Width - Text - 18) / 2;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Expected(false, false, Left - 18, Left)));
}

TEST_F(WebLabelTest, WithoutUnderlineTheFontDecides)
{
    Label->Underline = false;
    Show();
    PointAt(Label);
    EXPECT_TRUE(SamePixels(ScreenPixels(Label), Expected(true, false, 0, 18)));
    Label->Font->Style = {fsUnderline};
    PumpMessages();
    EXPECT_TRUE(SamePixels(ScreenPixels(Label), Expected(true, true, 0, 18)));
    PointAway();
    EXPECT_TRUE(SamePixels(ScreenPixels(Label), Expected(false, true, 0, 18)));
}

TEST_F(WebLabelTest, TheHandIsThereWithoutToolBars)
{
    Label->Cursor = TCursor(10);
    Show();
    PointAt(Label);
    EXPECT_NE(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_EQ(GetCursor(), Screen->Cursors[TCursor(10)]);
}

TEST_F(WebLabelTest, WithoutACaptionThereIsOnlyTheBackground)
{
    Label->Caption = "";
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), TPixelImage(Width, Height, clBtnFace)));
    Label->Transparent = true;
    EXPECT_EQ(PaintToBitmap(Label).CountOf(Untouched), Width * Height);
}

// ---- buttons

TEST_F(HighlightButtonTest, PublishTheColourBesideWhatTheirBaseHas)
{
    EXPECT_THAT(PublishedFrom(TkelButton::StaticClass(), "HighlisgColor"), ElementsAre("HighlisgColor"));
    EXPECT_THAT(PublishedFrom(TkelBitBtn::StaticClass(), "HighlisgColor"), ElementsAre("HighlisgColor"));
}

TEST_F(HighlightButtonTest, TheCaptionChangesItsColourUnderTheMouse)
{
    auto* Button = AddAt<TkelButton>(10, 100, 30, "Button");
    auto* Bitmap = AddAt<TkelBitBtn>(60, 100, 30, "Bitmap");
    Button->HighlisgColor = clRed;
    Bitmap->HighlisgColor = clRed;
    Show();
    for (TButton* Each : {static_cast<TButton*>(Button), static_cast<TButton*>(Bitmap)}) {
        Each->Font->Color = clBlue;
        Each->Update();
        EXPECT_EQ(ScreenPixels(Each).CountOf(clRed), 0);
        EXPECT_GT(ScreenPixels(Each).CountOf(clBlue), 0);
        PointAt(Each);
        EXPECT_EQ(Each->Font->Color, clRed);
        Each->Update();
        EXPECT_GT(ScreenPixels(Each).CountOf(clRed), 0);
        EXPECT_EQ(ScreenPixels(Each).CountOf(clBlue), 0);
        Each->Font->Color = clGreen; // is overwritten
        PointAway();
        EXPECT_EQ(Each->Font->Color, clBlue);
    }
}

TEST_F(HighlightButtonTest, AHighlightOfTheSameColourShowsNothing)
{
    auto* Button = AddAt<TkelButton>(10, 100, 30, "Button");
    Button->HighlisgColor = Button->Font->Color;
    Show();
    const TPixelImage Before = ScreenPixels(Button);
    PointAt(Button);
    Button->Update();
    EXPECT_TRUE(SamePixels(ScreenPixels(Button), Before));
}

TEST_F(HighlightButtonTest, ClicksAndKeysPressThem)
{
    auto* Button = AddAt<TkelButton>(10, 100, 30, "&Press");
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Show();
    ClickOn(Button);
    EXPECT_EQ(Clicks, 1);
    ClickOn(Button); // soon enough for a double click
    EXPECT_EQ(Clicks, 2);
    TypeKey(VK_SPACE);
    EXPECT_EQ(Clicks, 3);
    TypeKey(VK_RETURN);
    EXPECT_EQ(Clicks, 4);
    TypeKey('P', {ssAlt});
    EXPECT_EQ(Clicks, 5);
    Button->OnClick = [&](TObject*) { delete Button; };
    ClickOn(Button);
    EXPECT_EQ(Form->ControlCount, 0);
}
