#include "common/Label.h"

#include "common/CaptionText.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class LabelTest : public testing::Test {
protected:
    void SetUp() override
    {
        Label->AutoSize = false;
        Label->SetBounds(10, 10, 80, 20);
        Label->Parent = Window.get();
        Label->Color = clBtnFace;
        Label->Caption = "&Label";
    }

    // The face with the text at its place, moved, in several colours one on the other.
    struct TPass {
        int Moved;
        TColor Color;
    };
    TPixelImage Passes(std::initializer_list<TPass> List, std::string_view Text = "&Label", unsigned Flags = 0)
    {
        TPixelImage Expected(80, 20, clBtnFace);
        for (const TPass& Pass : List)
            DrawExpectedText(Expected, Text, {Pass.Moved, Pass.Moved, 80 + Pass.Moved, 20 + Pass.Moved}, Label->Font,
                             Pass.Color, DT_EXPANDTABS | Flags);
        return Expected;
    }

    std::unique_ptr<THostWindow> Window = std::make_unique<THostWindow>();
    TkelLabel* Label = new TkelLabel(Window.get());
};

} // namespace

TEST_F(LabelTest, PublishesItsPropertiesAfterThoseOfALabel)
{
    EXPECT_THAT(PublishedFrom(TkelLabel::StaticClass(), "TextStyle"),
                ElementsAre("TextStyle = tsRecessed", "OnMouseEnter", "OnMouseLeave"));
}

TEST_F(LabelTest, ByDefaultTheTextIsRecessed)
{
    EXPECT_EQ(Label->TextStyle, tsRecessed);
    EXPECT_TRUE(
        SamePixels(PaintToBitmap(Label), Passes({{1, clBtnHighlight}, {-1, clBtnShadow}, {0, Label->Font->Color}})));
}

TEST_F(LabelTest, RaisedTextHasItsLightAtTheUpperLeft)
{
    Label->TextStyle = tsRaised;
    EXPECT_TRUE(
        SamePixels(PaintToBitmap(Label), Passes({{1, clBtnShadow}, {-1, clBtnHighlight}, {0, Label->Font->Color}})));
}

TEST_F(LabelTest, PlainTextHasNoShadow)
{
    Label->TextStyle = tsNone;
    Label->Font->Color = clMaroon;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Passes({{0, clMaroon}})));
}

TEST_F(LabelTest, DisabledTextIsGreyAndKeepsItsStyle)
{
    Label->Enabled = false;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Passes({{1, clBtnHighlight}, {-1, clBtnShadow}, {0, clGrayText}})));
    Label->TextStyle = tsNone;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Passes({{0, clGrayText}})));
}

TEST_F(LabelTest, TextIsReadFromTheRightWhenBiDiModeSaysSo)
{
    Label->TextStyle = tsNone;
    Label->Caption = "abc!";
    Label->BiDiMode = bdRightToLeftReadingOnly;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Passes({{0, Label->Font->Color}}, "abc!", DT_RTLREADING)));
    EXPECT_FALSE(SamePixels(PaintToBitmap(Label), Passes({{0, Label->Font->Color}}, "abc!")));
}

TEST_F(LabelTest, WithoutAccelCharTheAmpersandIsDrawn)
{
    Label->TextStyle = tsNone;
    Label->ShowAccelChar = false;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Label), Passes({{0, Label->Font->Color}}, "&Label", DT_NOPREFIX)));
    EXPECT_FALSE(SamePixels(PaintToBitmap(Label), Passes({{0, Label->Font->Color}})));
}

TEST_F(LabelTest, NoTextIsAsHighAsABlank)
{
    Label->AutoSize = true;
    Label->Caption = " ";
    const int Height = Label->Height, Width = Label->Width;
    EXPECT_GT(Height, 5);
    for (const char* Text : {"", "&"}) {
        Label->Caption = "Some text";
        Label->Caption = Text;
        EXPECT_EQ(Label->Height, Height) << Text;
        EXPECT_EQ(Label->Width, Width) << Text;
    }
    Label->ShowAccelChar = false; // now it is a text
    EXPECT_GT(Label->Width, Width);
}

TEST_F(LabelTest, MeasuringDoesNotCountTheShadows)
{
    Label->AutoSize = true;
    Label->TextStyle = tsNone;
    Label->Caption = "Measure";
    const TRect Plain = Label->BoundsRect;
    Label->TextStyle = tsRaised;
    Label->Caption = "";
    Label->Caption = "Measure";
    EXPECT_EQ(Label->BoundsRect, Plain);
}

TEST_F(LabelTest, OfALongCaption255CharactersCount)
{
    Label->AutoSize = true;
    Label->Caption = std::string(255, 'x');
    const int Width = Label->Width;
    Label->Caption = std::string(400, 'x');
    EXPECT_EQ(Label->Width, Width);
}

TEST_F(LabelTest, AChangeOfStyleRepaints)
{
    Window->ShowNow();
    ValidateRect(Window->Handle, nullptr);
    Label->TextStyle = tsRecessed;
    EXPECT_FALSE(GetUpdateRect(Window->Handle, nullptr, FALSE));
    Label->TextStyle = tsRaised;
    EXPECT_TRUE(GetUpdateRect(Window->Handle, nullptr, FALSE));
}

TEST(ShownCaptionTest, CutsAt255UnitsAndNeverInsideOfACharacter)
{
    EXPECT_EQ(ShownCaption(""), "");
    EXPECT_EQ(ShownCaption(std::string(255, 'a')).size(), 255u);
    EXPECT_EQ(ShownCaption(std::string(256, 'a')).size(), 255u);
    std::string Cyrillic, Pairs;
    for (int I = 0; I < 255; ++I)
        Cyrillic += "ж";
    for (int I = 0; I < 200; ++I)
        Pairs += "\U0001F600";
    EXPECT_EQ(ShownCaption(Cyrillic).size(), 510u);
    EXPECT_EQ(ShownCaption(Cyrillic + "ж").size(), 510u);
    EXPECT_EQ(ShownCaption(Pairs).size(), 127u * 4); // two units each
}
