#include "tests/support/FormText.h"
#include "tests/toolbar/SpeedButtonFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

using SpeedButtonTest = SpeedButtonFixture;

TEST_F(SpeedButtonTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TkelSpeedButton::StaticClass(), "AllowAllUp"),
                ElementsAre("AllowAllUp = False", "GroupIndex = 0", "Down = False", "Caption", "Enabled = True",
                            "Flat = False", "Font", "GlyphIndex", "Glyphs", "Images", "Layout = blGlyphLeft",
                            "ParentFont = True", "ParentShowHint = True", "ShowHint", "Visible = True", "OnMouseEnter",
                            "OnMouseLeave", "OnClick", "OnDblClick", "OnMouseDown", "OnMouseMove", "OnMouseUp"));
}

TEST_F(SpeedButtonTest, ANewButtonIsFlatAnd22Pixels)
{
    const int Before = TkelSpeedButton::CreatedCount();
    TkelSpeedButton Fresh(nullptr);
    EXPECT_EQ(Fresh.BoundsRect, TRect(0, 0, 22, 22));
    EXPECT_EQ(Fresh.ControlStyle, (TControlStyle{csCaptureMouse, csOpaque, csDoubleClicks}));
    EXPECT_EQ(Fresh.GlyphIndex, 0);
    EXPECT_TRUE(Fresh.ParentFont);
    EXPECT_EQ(Fresh.Layout, blGlyphLeft);
    EXPECT_TRUE(Fresh.Flat);
    EXPECT_FALSE(Fresh.Down);
    EXPECT_EQ(TkelSpeedButton::CreatedCount(), Before + 1);
}

TEST_F(SpeedButtonTest, OnlyWhatDiffersFromTheDefaultsIsWritten)
{
    TkelSpeedButton Fresh(nullptr);
    Fresh.Name = "Button1";
    EXPECT_EQ(FormText(&Fresh), "object Button1: TkelSpeedButton\n"
                                "  Left = 0\n"
                                "  Top = 0\n"
                                "  Width = 22\n"
                                "  Height = 22\n"
                                "  Flat = True\n"
                                "  GlyphIndex = 0\n"
                                "end\n");
}

TEST_F(SpeedButtonTest, AFullFormIsReadAndWrittenUnchanged)
{
    const std::string Text = "object Button1: TkelSpeedButton\n"
                             "  Left = 5\n"
                             "  Top = 6\n"
                             "  Width = 70\n"
                             "  Height = 25\n"
                             "  AllowAllUp = True\n"
                             "  GroupIndex = 3\n"
                             "  Down = True\n"
                             "  Caption = '&Bold'\n"
                             "  Enabled = False\n"
                             "  GlyphIndex = 7\n"
                             "  Layout = blGlyphBottom\n"
                             "  Visible = False\n"
                             "end\n";
    TkelSpeedButton Read(nullptr);
    Read.Flat = false;
    ReadFormText(&Read, Text);
    EXPECT_TRUE(Read.Down);
    EXPECT_EQ(FormText(&Read), Text);
}

// ---- the source of the glyph

TEST_F(SpeedButtonTest, AButtonHasOneSourceOfItsGlyph)
{
    auto* Images = new TImageList(Window.get());
    Button->Glyphs = Glyphs;
    EXPECT_EQ(Button->Glyphs, Glyphs);
    Button->Images = Images;
    EXPECT_EQ(Button->Images, Images);
    EXPECT_EQ(Button->Glyphs, nullptr);
    Button->Glyphs = Glyphs;
    EXPECT_EQ(Button->Images, nullptr);
}

TEST_F(SpeedButtonTest, FreeingTheStripClearsGlyphsAndTheCaptionIsStillPainted)
{
    Button->Caption = "A";
    const TPixelImage CaptionOnly = PaintToBitmap(Button);
    auto Other = std::make_unique<TkelGlyphs>(nullptr);
    Other->Picture = Glyphs->Picture;
    Button->Glyphs = Other.get();
    EXPECT_FALSE(SamePixels(PaintToBitmap(Button), CaptionOnly));
    Other.reset();
    EXPECT_EQ(Button->Glyphs, nullptr);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), CaptionOnly));
}

TEST_F(SpeedButtonTest, FreeingTheImageListClearsImages)
{
    auto Images = std::make_unique<TImageList>(nullptr);
    Button->Images = Images.get();
    Images.reset();
    EXPECT_EQ(Button->Images, nullptr);
}

TEST_F(SpeedButtonTest, AButtonMayGoBeforeItsStrip)
{
    Button->Glyphs = Glyphs;
    delete Button;
    Glyphs->Picture->Graphic = nullptr;
}

// ---- Down and groups

TEST_F(SpeedButtonTest, WithoutAGroupDownStaysFalse)
{
    Button->Down = true;
    EXPECT_FALSE(Button->Down);
    EXPECT_EQ(Button->State(), bsUp);
}

TEST_F(SpeedButtonTest, InAGroupWithoutAllowAllUpAClickOnTheDownButtonLeavesItDown)
{
    TTestButton* Member = NewButton(1);
    Click(Member);
    EXPECT_TRUE(Member->Down);
    Click(Member);
    EXPECT_TRUE(Member->Down);
    EXPECT_EQ(Member->State(), bsExclusive);
    Member->Down = false;
    EXPECT_TRUE(Member->Down);
}

TEST_F(SpeedButtonTest, WithAllowAllUpAClickOnTheDownButtonRaisesIt)
{
    TTestButton* Member = NewButton(1, true);
    Click(Member);
    EXPECT_TRUE(Member->Down);
    EXPECT_EQ(Member->State(), bsExclusive);
    Click(Member);
    EXPECT_FALSE(Member->Down);
    EXPECT_EQ(Member->State(), bsUp);
}

TEST_F(SpeedButtonTest, PressingOneButtonOfAGroupRaisesTheOther)
{
    TTestButton* First = NewButton(1);
    TTestButton* Second = NewButton(1);
    TTestButton* Stranger = NewButton(2);
    First->Down = true;
    Stranger->Down = true;
    Click(Second);
    EXPECT_FALSE(First->Down);
    EXPECT_EQ(First->State(), bsUp);
    EXPECT_TRUE(Second->Down);
    EXPECT_TRUE(Stranger->Down);
}

TEST_F(SpeedButtonTest, AGroupEndsAtItsParent)
{
    auto* Other = new THostWindow(Window.get());
    auto* Member = new TTestButton(Other);
    Member->Parent = Other;
    Member->GroupIndex = 1;
    Member->Down = true;
    NewButton(1)->Down = true;
    EXPECT_TRUE(Member->Down);
}

TEST_F(SpeedButtonTest, AGroupSharesAllowAllUp)
{
    TTestButton* First = NewButton(1);
    TTestButton* Second = NewButton(1);
    TTestButton* Stranger = NewButton(2);
    First->AllowAllUp = true;
    EXPECT_TRUE(Second->AllowAllUp);
    EXPECT_FALSE(Stranger->AllowAllUp);
    Second->AllowAllUp = false;
    EXPECT_FALSE(First->AllowAllUp);
    TTestButton* Third = NewButton(0);
    Third->AllowAllUp = true;
    Third->GroupIndex = 1; // joining tells the group too
    EXPECT_TRUE(First->AllowAllUp);
}

TEST_F(SpeedButtonTest, TheGroupMessageOfAnotherGroupOrOfTheButtonItselfIsIgnored)
{
    TTestButton* First = NewButton(1);
    First->Down = true;
    First->Perform(CM_BUTTONPRESSED, 1, reinterpret_cast<intptr_t>(First));
    TTestButton* Second = NewButton(2);
    Second->Down = true;
    First->Perform(CM_BUTTONPRESSED, 2, reinterpret_cast<intptr_t>(Second));
    EXPECT_TRUE(First->Down);
}

TEST_F(SpeedButtonTest, SettingDownRepaintsAtOnce)
{
    Window->ShowNow();
    TTestButton* Member = NewButton(1, true);
    PumpMessages();
    int Paints = Member->PaintCount();
    Member->Down = true;
    EXPECT_EQ(Member->PaintCount(), Paints + 1);
    EXPECT_TRUE(SamePixels(ScreenPixels(Member), PaintToBitmap(Member)));
    Paints = Member->PaintCount();
    Member->Down = true;
    EXPECT_EQ(Member->PaintCount(), Paints);
    Member->Down = false;
    EXPECT_EQ(Member->PaintCount(), Paints + 1);
}

// ---- setters

TEST_F(SpeedButtonTest, WhatChangesTheLookRepaints)
{
    Window->ShowNow();
    const auto Paints = [&](const std::function<void()>& Change) {
        const int Before = Button->PaintCount();
        Change();
        PumpMessages();
        return Button->PaintCount() - Before;
    };
    EXPECT_EQ(Paints([&] { Button->GlyphIndex = 2; }), 1);
    EXPECT_EQ(Paints([&] { Button->GlyphIndex = 2; }), 1);
    EXPECT_EQ(Paints([&] { Button->Flat = false; }), 1);
    EXPECT_EQ(Paints([&] { Button->Flat = false; }), 0);
    EXPECT_EQ(Paints([&] { Button->Layout = blGlyphTop; }), 1);
    EXPECT_EQ(Paints([&] { Button->Layout = blGlyphTop; }), 0);
    EXPECT_EQ(Paints([&] { Button->Caption = "x"; }), 1);
    EXPECT_EQ(Paints([&] { Button->Font->Size = 20; }), 1);
    EXPECT_EQ(Paints([&] { Button->Enabled = false; }), 1);
    EXPECT_EQ(Paints([&] { Button->Perform(CM_SYSCOLORCHANGE); }), 1);
    EXPECT_EQ(Paints([&] { Button->Glyphs = Glyphs; }), 0);
    EXPECT_EQ(Paints([&] { Button->Images = nullptr; }), 0);
    EXPECT_EQ(Paints([&] { Button->GroupIndex = 3; }), 0);
    EXPECT_EQ(Paints([&] { Button->AllowAllUp = true; }), 0);
}

TEST_F(SpeedButtonTest, RepaintingAButtonPaintsNothingElse)
{
    TTestButton* Neighbour = NewButton();
    Window->ShowNow();
    const int Paints = Neighbour->PaintCount();
    Button->GlyphIndex = 3;
    PumpMessages();
    EXPECT_EQ(Neighbour->PaintCount(), Paints);
    EXPECT_TRUE(SamePixels(ScreenPixels(Button), PaintToBitmap(Button)));
}

// ---- pressing

TEST_F(SpeedButtonTest, PressAndReleaseInsideClicks)
{
    std::vector<TButtonState> States;
    Button->OnClick = [&](TObject*) { States.push_back(Button->State()); };
    Press(Button);
    EXPECT_EQ(Button->State(), bsDown);
    Release(Button);
    EXPECT_EQ(Button->State(), bsUp);
    EXPECT_THAT(States, ElementsAre(bsUp)); // up again when the handler runs
}

TEST_F(SpeedButtonTest, DraggingOutShowsItRaisedAndBackInPressed)
{
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Press(Button);
    Button->MouseMove({ssLeft}, -1, 5);
    EXPECT_EQ(Button->State(), bsUp);
    Button->MouseMove({ssLeft}, 3, 5);
    EXPECT_EQ(Button->State(), bsDown);
    Button->MouseMove({ssLeft}, 5, -1);
    EXPECT_EQ(Button->State(), bsUp);
    Release(Button, 5, -1);
    EXPECT_EQ(Clicks, 0);
}

TEST_F(SpeedButtonTest, TheBottomEdgeRowIsInsideTheRightEdgeColumnIsNot)
{
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Press(Button);
    Button->MouseMove({ssLeft}, 5, 22);
    EXPECT_EQ(Button->State(), bsDown);
    Release(Button, 5, 22);
    EXPECT_EQ(Clicks, 1);
    Press(Button);
    Button->MouseMove({ssLeft}, 22, 5);
    EXPECT_EQ(Button->State(), bsUp);
    Release(Button, 22, 5);
    Press(Button);
    Release(Button, 5, 23);
    EXPECT_EQ(Clicks, 1);
}

TEST_F(SpeedButtonTest, DraggingADownButtonKeepsItDown)
{
    TTestButton* Member = NewButton(1, true);
    Member->Down = true;
    Press(Member);
    EXPECT_EQ(Member->State(), bsExclusive);
    Member->MouseMove({ssLeft}, 100, 5);
    EXPECT_EQ(Member->State(), bsExclusive);
    Release(Member, 100, 5);
    EXPECT_TRUE(Member->Down);
    EXPECT_EQ(Member->State(), bsExclusive);
}

TEST_F(SpeedButtonTest, ReleasingOutsideOfAGroupButtonLeavesItUp)
{
    TTestButton* Member = NewButton(1);
    Press(Member);
    Release(Member, 100, 5);
    EXPECT_FALSE(Member->Down);
    EXPECT_EQ(Member->State(), bsUp);
}

TEST_F(SpeedButtonTest, DownIsSetBeforeTheClick)
{
    TTestButton* Member = NewButton(1);
    bool DownInClick = false;
    Member->OnClick = [&](TObject*) { DownInClick = Member->Down; };
    Click(Member);
    EXPECT_TRUE(DownInClick);
}

TEST_F(SpeedButtonTest, OtherButtonsOfTheMouseDoNotPress)
{
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Button->MouseDown(mbRight, {ssRight}, 5, 5);
    EXPECT_EQ(Button->State(), bsUp);
    Button->MouseUp(mbRight, {}, 5, 5);
    EXPECT_EQ(Clicks, 0);
}

TEST_F(SpeedButtonTest, TheReleaseOfAnyButtonEndsThePress)
{
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Press(Button);
    Button->MouseUp(mbRight, {ssLeft}, 5, 5); // the left one is still held
    EXPECT_EQ(Button->State(), bsUp);
    EXPECT_EQ(Clicks, 1);
    Release(Button);
    EXPECT_EQ(Clicks, 1);
}

TEST_F(SpeedButtonTest, ADisabledButtonIsNotPressed)
{
    Button->Enabled = false;
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Click(Button);
    EXPECT_NE(Button->State(), bsDown);
    EXPECT_EQ(Clicks, 0);
}

TEST_F(SpeedButtonTest, MovesWithoutAPressChangeNothing)
{
    Button->MouseMove({}, 5, 5);
    EXPECT_EQ(Button->State(), bsUp);
}

// ---- keyboard

TEST_F(SpeedButtonTest, TheAcceleratorClicks)
{
    Window->ShowNow();
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Button->Caption = "&Bold";
    EXPECT_EQ(Button->Perform(CM_DIALOGCHAR, 'b'), 1);
    EXPECT_EQ(Button->Perform(CM_DIALOGCHAR, 'B'), 1);
    EXPECT_EQ(Clicks, 2);
    EXPECT_EQ(Button->Perform(CM_DIALOGCHAR, 'o'), 0);
    Button->Enabled = false;
    EXPECT_EQ(Button->Perform(CM_DIALOGCHAR, 'b'), 0);
    EXPECT_EQ(Clicks, 2);
}

TEST_F(SpeedButtonTest, ACyrillicAcceleratorClicks)
{
    Window->ShowNow();
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Button->Caption = "От&мена";
    EXPECT_EQ(Button->Perform(CM_DIALOGCHAR, L'М'), 1);
    EXPECT_EQ(Clicks, 1);
}

// ---- hot tracking by messages

TEST_F(SpeedButtonTest, EnterAndLeaveAreRaisedOnce)
{
    std::vector<std::string> Events;
    Button->OnMouseEnter = [&](TObject*) { Events.push_back("enter"); };
    Button->OnMouseLeave = [&](TObject*) { Events.push_back("leave"); };
    Button->Perform(CM_MOUSELEAVE);
    Button->Perform(CM_MOUSEENTER);
    Button->Perform(CM_MOUSEENTER);
    EXPECT_TRUE(Button->IsHot());
    Button->Perform(CM_MOUSELEAVE);
    EXPECT_FALSE(Button->IsHot());
    EXPECT_THAT(Events, ElementsAre("enter", "leave"));
}

TEST_F(SpeedButtonTest, AButtonThatIsNotFlatOrDisabledOrNotTrackingRaisesNothing)
{
    int Events = 0;
    Button->OnMouseEnter = [&](TObject*) { ++Events; };
    Button->OnMouseLeave = [&](TObject*) { ++Events; };
    const auto PassOver = [&] {
        Button->Perform(CM_MOUSEENTER);
        Button->Perform(CM_MOUSELEAVE);
    };
    Button->Flat = false;
    PassOver();
    Button->Flat = true;
    Button->FTracking = false;
    PassOver();
    Button->FTracking = true;
    Button->Enabled = false;
    PassOver();
    EXPECT_EQ(Events, 0);
    EXPECT_FALSE(Button->IsHot());
}

TEST_F(SpeedButtonTest, EnterAndLeaveReachTheParent)
{
    int Seen = 0;
    TWndMethod Before = Window->WindowProc;
    Window->WindowProc = [&](TMessage& Message) {
        if (Message.Msg == CM_MOUSEENTER || Message.Msg == CM_MOUSELEAVE)
            Seen += Message.LParam == reinterpret_cast<intptr_t>(Button);
        Before(Message);
    };
    Button->Perform(CM_MOUSEENTER);
    Button->Perform(CM_MOUSELEAVE);
    Window->WindowProc = Before;
    EXPECT_EQ(Seen, 2);
}

// ---- for assistive technology

TEST_F(SpeedButtonTest, ItIsAPushButtonToScreenReaders)
{
    Button->Caption = "&Bold";
    Button->GroupIndex = 1;
    EXPECT_EQ(Button->AccessibleName(), "Bold");
    EXPECT_EQ(Button->AccessibleRole(), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(Button->AccessibleState() & STATE_SYSTEM_PRESSED, 0);
    Button->Down = true;
    EXPECT_NE(Button->AccessibleState() & STATE_SYSTEM_PRESSED, 0);
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    EXPECT_TRUE(Button->AccessibleDefaultAction());
    Button->Enabled = false;
    EXPECT_FALSE(Button->AccessibleDefaultAction());
    EXPECT_EQ(Clicks, 1);
}
