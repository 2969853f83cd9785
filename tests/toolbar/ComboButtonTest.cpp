#include "toolbar/ComboButton.h"

#include "tests/support/FormText.h"
#include "tests/toolbar/ButtonParts.h"
#include "tests/toolbar/SpeedButtonFixture.h"
#include "vcl/graphics/DitherBrush.h"
#include "vcl/system/LiveCount.h"

#include <gmock/gmock.h>
#include <set>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class ComboButtonTest : public SpeedButtonFixture {
protected:
    void SetUp() override
    {
        SpeedButtonFixture::SetUp();
        Combo = new TkelComboButton(Window.get());
        Combo->Left = 100;
        Combo->Top = 10;
        Combo->Parent = Window.get();
        Combo->HandleNeeded();
        Combo->OnButtonClick = [this](TObject* Sender) { Note(Sender, "button"); };
        Combo->OnListDown = [this](TObject* Sender) { Note(Sender, "list"); };
        Main = Combo->MainButton();
        Arrow = Combo->ArrowButton();
    }

    void Note(TObject* Sender, const char* What) { Events.push_back(Sender == Combo ? What : "another sender"); }
    static void Click(TkelSpeedButton* Half)
    {
        Half->Perform(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        Half->Perform(WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    }
    bool BothHot() const { return TButtonLook::IsHot(Main) && TButtonLook::IsHot(Arrow); }
    bool BothCold() const { return !TButtonLook::IsHot(Main) && !TButtonLook::IsHot(Arrow); }

    // What a combo button of the standard size shows: its face and the arrow.
    TPixelImage Face(TColor Shadow = clBlack)
    {
        TPixelImage Image(33, 22, clBtnFace);
        if (Shadow != clBlack)
            DrawArrow(Image, 25, 10, clBtnHighlight);
        DrawArrow(Image, 24, 9, Shadow);
        return Image;
    }
    static void DrawArrow(TPixelImage& Image, int X, int Y, TColor Color)
    {
        Image.Fill({X + 1, Y, X + 6, Y + 1}, Color);
        Image.Fill({X + 2, Y + 1, X + 5, Y + 2}, Color);
        Image.Fill({X + 3, Y + 2, X + 4, Y + 3}, Color);
    }

    TkelComboButton* Combo = nullptr;
    TkelSpeedButton* Main = nullptr;
    TkelSpeedButton* Arrow = nullptr;
    std::vector<std::string> Events;
    static constexpr TRect MainArea{0, 0, 22, 22};
    static constexpr TRect ArrowArea{22, 0, 33, 22};
};

} // namespace

TEST_F(ComboButtonTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TkelComboButton::StaticClass(), "Glyphs"),
                ElementsAre("Glyphs", "Images", "GlyphIndex", "GroupIndex", "AllowAllUp", "Down", "Layout", "ShowHint",
                            "ParentShowHint = True", "OnButtonClick", "OnListDown"));
    EXPECT_STREQ(TkelComboButton::StaticClass()->ClassParent()->ClassName(), "TCustomControl");
}

TEST_F(ComboButtonTest, ANewComboButtonHasTwoHalves)
{
    TkelComboButton Fresh(nullptr);
    EXPECT_EQ(Fresh.BoundsRect, TRect(0, 0, 33, 22));
    EXPECT_EQ(Fresh.ControlCount, 2);
    TkelSpeedButton* FreshMain = Fresh.MainButton();
    TkelSpeedButton* FreshArrow = Fresh.ArrowButton();
    EXPECT_EQ(FreshMain->Parent, &Fresh);
    EXPECT_EQ(FreshMain->Align, alClient);
    EXPECT_EQ(FreshMain->BoundsRect, MainArea);
    EXPECT_EQ(FreshMain->GroupIndex, 0);
    EXPECT_TRUE(FreshMain->Visible);
    EXPECT_EQ(FreshMain->Caption, "");
    EXPECT_EQ(FreshArrow->Parent, &Fresh);
    EXPECT_EQ(FreshArrow->Align, alRight);
    EXPECT_EQ(FreshArrow->BoundsRect, ArrowArea);
    EXPECT_TRUE(FreshArrow->AllowAllUp);
    EXPECT_TRUE(FreshArrow->Visible);
    EXPECT_EQ(FreshArrow->GlyphIndex, 0);
    ASSERT_NE(FreshArrow->Glyphs, nullptr);
    EXPECT_EQ(FreshArrow->Glyphs->Width, 7);
    EXPECT_EQ(FreshArrow->Glyphs->Height, 5);
    EXPECT_STREQ(FreshMain->ClassName(), "TkelSpeedButton");
}

TEST_F(ComboButtonTest, InAVerticalBarTheArrowIsBelowTheMainHalf)
{
    Combo->Parent->DisableAlign();
    for (TAlign Upright : {alTop, alBottom}) {
        Combo->Align = Upright;
        Combo->SetBounds(100, 10, 22, 33);
        EXPECT_EQ(Main->BoundsRect, TRect(0, 0, 22, 22));
        EXPECT_EQ(Arrow->BoundsRect, TRect(0, 22, 22, 33));
    }
    Combo->Align = alLeft;
    Combo->SetBounds(100, 10, 33, 22);
    EXPECT_EQ(Main->BoundsRect, MainArea);
    EXPECT_EQ(Arrow->BoundsRect, ArrowArea);
    Combo->Parent->EnableAlign();
}

TEST_F(ComboButtonTest, TheArrowsGroupIsRandom)
{
    std::set<int> Groups;
    for (int I = 0; I < 20; ++I) {
        TkelComboButton Fresh(nullptr);
        EXPECT_GE(Fresh.ArrowButton()->GroupIndex, 1);
        EXPECT_LE(Fresh.ArrowButton()->GroupIndex, 999);
        Groups.insert(Fresh.ArrowButton()->GroupIndex);
    }
    EXPECT_GT(Groups.size(), 10u);
}

TEST_F(ComboButtonTest, TheArrowsGroupStaysItsOwn)
{
    Combo->AllowAllUp = true;
    Combo->GroupIndex = Arrow->GroupIndex;
    EXPECT_NE(Combo->GroupIndex, Arrow->GroupIndex);
    EXPECT_NE(Arrow->GroupIndex, 0);
    Combo->Down = true;
    Combo->AllowAllUp = false;
    EXPECT_TRUE(Arrow->AllowAllUp);
    Click(Arrow);
    EXPECT_TRUE(Combo->Down);
    EXPECT_FALSE(Arrow->Down);
}

TEST_F(ComboButtonTest, ForwardsToItsMainHalf)
{
    TImageList Images(nullptr);
    Combo->Images = &Images;
    EXPECT_EQ(Main->Images, &Images);
    Combo->Glyphs = Glyphs;
    EXPECT_EQ(Main->Glyphs, Glyphs);
    EXPECT_EQ(Combo->Images, nullptr);
    Combo->GlyphIndex = 3;
    EXPECT_EQ(Main->GlyphIndex, 3);
    Combo->GroupIndex = 5;
    EXPECT_EQ(Main->GroupIndex, 5);
    Combo->AllowAllUp = true;
    EXPECT_TRUE(Main->AllowAllUp);
    Combo->Down = true;
    EXPECT_TRUE(Main->Down);
    Combo->Layout = blGlyphTop;
    EXPECT_EQ(Main->Layout, blGlyphTop);
    Main->Down = false;
    Main->GlyphIndex = 1;
    EXPECT_FALSE(Combo->Down);
    EXPECT_EQ(Combo->GlyphIndex, 1);
    EXPECT_EQ(Combo->Glyphs, Glyphs);
    EXPECT_TRUE(Combo->AllowAllUp);
    EXPECT_EQ(Combo->Layout, blGlyphTop);
}

TEST_F(ComboButtonTest, FreeingTheStripClearsGlyphs)
{
    Combo->Glyphs = Glyphs;
    delete Glyphs;
    EXPECT_EQ(Combo->Glyphs, nullptr);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Combo), Face()));
}

// ---- form files

TEST_F(ComboButtonTest, WhatItForwardsIsAlwaysWrittenAndItsHalvesNever)
{
    TkelComboButton Fresh(nullptr);
    Fresh.Name = "Combo1";
    EXPECT_EQ(FormText(&Fresh), "object Combo1: TkelComboButton\n"
                                "  Left = 0\n"
                                "  Top = 0\n"
                                "  Width = 33\n"
                                "  Height = 22\n"
                                "  GlyphIndex = 0\n"
                                "  GroupIndex = 0\n"
                                "  AllowAllUp = False\n"
                                "  Down = False\n"
                                "  Layout = blGlyphLeft\n"
                                "end\n");
}

TEST_F(ComboButtonTest, TheHalvesAreNoComponentsOfTheForm)
{
    const int Before = Window->ComponentCount;
    auto* Another = new TkelComboButton(Window.get());
    Another->Parent = Window.get();
    EXPECT_EQ(Window->ComponentCount, Before + 1);
    Another->Name = "Another1";
    EXPECT_EQ(Another->Caption, "");
    Window->Name = "Window1";
    const std::string Text = FormText(Window.get());
    const size_t Start = Text.find("object Another1");
    ASSERT_NE(Start, std::string::npos);
    EXPECT_THAT(Text.substr(Start + 10), Not(HasSubstr("object")));
}

TEST_F(ComboButtonTest, AFormIsReadAndWrittenUnchanged)
{
    const std::string Text = "object Combo1: TkelComboButton\n"
                             "  Left = 5\n"
                             "  Top = 6\n"
                             "  Width = 50\n"
                             "  Height = 30\n"
                             "  Hint = 'Both'\n"
                             "  GlyphIndex = 2\n"
                             "  GroupIndex = 7\n"
                             "  AllowAllUp = True\n"
                             "  Down = True\n"
                             "  Layout = blGlyphBottom\n"
                             "  ParentShowHint = False\n"
                             "  ShowHint = True\n"
                             "end\n";
    TkelComboButton Read(nullptr);
    ReadFormText(&Read, Text);
    EXPECT_TRUE(Read.Down);
    EXPECT_TRUE(Read.MainButton()->Down);
    EXPECT_FALSE(Read.ArrowButton()->Down);
    const std::string Written = FormText(&Read);
    for (const char* Line :
         {"  GroupIndex = 7\n", "  Down = True\n", "  Layout = blGlyphBottom\n", "  ShowHint = True\n",
          "  Hint = 'Both'\n", "  ParentShowHint = False\n", "  GlyphIndex = 2\n"})
        EXPECT_THAT(Written, HasSubstr(Line));
}

// ---- the halves

TEST_F(ComboButtonTest, TheArrowIsHalfAsWideAsTheButtonIsHigh)
{
    for (int Height : {22, 30, 31, 10, 1, 0}) {
        Combo->SetBounds(100, 10, 60, Height);
        EXPECT_EQ(Arrow->BoundsRect, TRect(60 - Height / 2, 0, 60, Height)) << Height;
        EXPECT_EQ(Main->BoundsRect, TRect(0, 0, 60 - Height / 2, Height)) << Height;
    }
}

TEST_F(ComboButtonTest, OfATallButtonTheArrowStaysAtTheRight)
{
    Combo->SetBounds(100, 10, 30, 60);
    EXPECT_EQ(Main->BoundsRect, TRect(0, 0, 15, 60));
    EXPECT_EQ(Arrow->BoundsRect, TRect(15, 0, 30, 60));
}

TEST_F(ComboButtonTest, AllHaveOneStripAndItGoesWithTheLast)
{
    const int64_t Objects = LiveObjectCount();
    {
        TkelComboButton Second(nullptr);
        EXPECT_EQ(Second.ArrowButton()->Glyphs, Arrow->Glyphs);
        delete Combo;
        EXPECT_EQ(Second.ArrowButton()->Glyphs->Width, 7);
    }
    EXPECT_LT(LiveObjectCount(), Objects);
    TkelComboButton Third(nullptr);
    EXPECT_EQ(Third.ArrowButton()->Glyphs->Width, 7);
}

TEST_F(ComboButtonTest, EachHalfRaisesItsOwnEvent)
{
    Click(Main);
    EXPECT_THAT(Events, ElementsAre("button"));
    Click(Arrow);
    EXPECT_THAT(Events, ElementsAre("button", "list"));
    Click(Arrow);
    EXPECT_THAT(Events, ElementsAre("button", "list", "list"));
}

TEST_F(ComboButtonTest, TheArrowStaysDownUntilOnListDownReturns)
{
    bool WasDown = false;
    Combo->OnListDown = [&](TObject*) { WasDown = Arrow->Down; };
    Click(Arrow);
    EXPECT_TRUE(WasDown);
    EXPECT_FALSE(Arrow->Down);
    Combo->OnListDown = [](TObject*) { throw EInvalidOperation("no"); };
    EXPECT_THROW(Click(Arrow), EInvalidOperation);
    EXPECT_FALSE(Arrow->Down);
}

TEST_F(ComboButtonTest, DescendantsComeBeforeTheEvents)
{
    class TOwnCombo : public TkelComboButton {
    public:
        TOwnCombo(TComponent* AOwner, std::vector<std::string>& Log) : TkelComboButton(AOwner), FLog(Log) {}

    protected:
        void ButtonClick() override { FLog.push_back("ButtonClick"); }
        void ListDown() override { FLog.push_back("ListDown"); }

    private:
        std::vector<std::string>& FLog;
    };
    TOwnCombo Own(nullptr, Events);
    Own.OnButtonClick = [&](TObject* Sender) { Events.push_back(Sender == &Own ? "OnButtonClick" : "?"); };
    Own.OnListDown = [&](TObject* Sender) { Events.push_back(Sender == &Own ? "OnListDown" : "?"); };
    Own.MainButton()->Click();
    Own.ArrowButton()->Click();
    EXPECT_THAT(Events, ElementsAre("ButtonClick", "OnButtonClick", "ListDown", "OnListDown"));
}

TEST_F(ComboButtonTest, GroupsEndAtTheComboButton)
{
    Button->GroupIndex = 3;
    Button->Down = true;
    Combo->GroupIndex = 3;
    Click(Main);
    EXPECT_TRUE(Combo->Down);
    EXPECT_TRUE(Button->Down);
    Click(Main); // no AllowAllUp
    EXPECT_TRUE(Combo->Down);
    Combo->AllowAllUp = true;
    Click(Main);
    EXPECT_FALSE(Combo->Down);
}

// ---- hot tracking

TEST_F(ComboButtonTest, BothHalvesBecomeHotTogether)
{
    for (TControl* Entered :
         {static_cast<TControl*>(Main), static_cast<TControl*>(Arrow), static_cast<TControl*>(Combo)}) {
        Entered->Perform(CM_MOUSEENTER);
        EXPECT_TRUE(BothHot());
        Entered->Perform(CM_MOUSELEAVE);
        EXPECT_TRUE(BothCold());
    }
}

TEST_F(ComboButtonTest, EnterAndLeaveReachTheParent)
{
    int Seen = 0;
    TWndMethod Before = Window->WindowProc;
    Window->WindowProc = [&](TMessage& Message) {
        if (Message.Msg == CM_MOUSEENTER || Message.Msg == CM_MOUSELEAVE)
            Seen += Message.LParam == reinterpret_cast<intptr_t>(Combo);
        Before(Message);
    };
    Arrow->Perform(CM_MOUSEENTER);
    Arrow->Perform(CM_MOUSELEAVE);
    Window->WindowProc = Before;
    EXPECT_EQ(Seen, 2);
}

TEST_F(ComboButtonTest, TheHalvesRaiseNoEnterAndLeaveOfTheirOwn)
{
    int Raised = 0;
    for (TkelSpeedButton* Half : {Main, Arrow}) {
        Half->OnMouseEnter = [&](TObject*) { ++Raised; };
        Half->OnMouseLeave = [&](TObject*) { ++Raised; };
        Half->Perform(CM_MOUSEENTER);
        Half->Perform(CM_MOUSELEAVE);
    }
    EXPECT_EQ(Raised, 0);
}

TEST_F(ComboButtonTest, DisablingDisablesBothHalves)
{
    Main->Perform(CM_MOUSEENTER);
    Combo->Enabled = false;
    EXPECT_FALSE(Main->Enabled);
    EXPECT_FALSE(Arrow->Enabled);
    EXPECT_TRUE(BothCold());
    Combo->Perform(CM_MOUSEENTER);
    EXPECT_TRUE(BothCold());
    Click(Main);
    Click(Arrow);
    EXPECT_TRUE(Events.empty());
    Combo->Enabled = true;
    EXPECT_TRUE(Main->Enabled && Arrow->Enabled);
    Click(Arrow);
    EXPECT_THAT(Events, ElementsAre("list"));
}

// ---- painting

TEST_F(ComboButtonTest, AtRestItShowsItsFaceAndTheArrow)
{
    EXPECT_TRUE(SamePixels(PaintToBitmap(Combo), Face()));
    Combo->Glyphs = Glyphs;
    Combo->GlyphIndex = 1;
    TPixelImage Expected = Face();
    DrawExpectedCell(Expected, 3, 3, {16, 0, 32, 16});
    EXPECT_TRUE(SamePixels(PaintToBitmap(Combo), Expected));
}

TEST_F(ComboButtonTest, HotItHasTwoRaisedFrames)
{
    Arrow->Perform(CM_MOUSEENTER);
    TPixelImage Expected = Face();
    Expected.Frame(MainArea, clBtnHighlight, clBtnShadow);
    Expected.Frame(ArrowArea, clBtnHighlight, clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Combo), Expected));
}

TEST_F(ComboButtonTest, PressedHalvesAreSunken)
{
    Main->Perform(CM_MOUSEENTER);
    for (TkelSpeedButton* Half : {Main, Arrow}) {
        Half->Perform(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        TPixelImage Expected = Face();
        Expected.Frame(MainArea, Half == Main ? clBtnShadow : clBtnHighlight,
                       Half == Main ? clBtnHighlight : clBtnShadow);
        Expected.Frame(ArrowArea, Half == Main ? clBtnHighlight : clBtnShadow,
                       Half == Main ? clBtnShadow : clBtnHighlight);
        EXPECT_TRUE(SamePixels(PaintToBitmap(Combo), Expected));
        Half->Perform(WM_LBUTTONUP, 0, MAKELPARAM(-9, 3));
        Main->Perform(CM_MOUSEENTER);
    }
}

TEST_F(ComboButtonTest, DisabledTheArrowIsEmbossed)
{
    Combo->Enabled = false;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Combo), Face(clBtnShadow)));
}

TEST_F(ComboButtonTest, RepaintingMakesNoSystemObjects)
{
    Combo->Glyphs = Glyphs;
    Window->ShowNow();
    const auto PaintAll = [&] {
        for (bool Enabled : {true, false})
            for (uint32_t Pointer : {CM_MOUSEENTER, CM_MOUSELEAVE}) {
                Combo->Enabled = Enabled;
                Main->Perform(Pointer);
                Combo->Repaint();
                PaintToBitmap(Combo);
            }
        Combo->Enabled = true;
        PumpMessages();
    };
    PaintAll();
    const int64_t Handles = LiveHandleCount(), Objects = LiveObjectCount();
    const size_t Pens = TSharedPen::KeptCount(), Brushes = TSharedBrush::KeptCount();
    PaintAll();
    EXPECT_EQ(LiveHandleCount(), Handles);
    EXPECT_EQ(LiveObjectCount(), Objects);
    EXPECT_EQ(TSharedPen::KeptCount(), Pens);
    EXPECT_EQ(TSharedBrush::KeptCount(), Brushes);
}

// ---- for assistive technology

TEST_F(ComboButtonTest, ItIsASplitButtonToScreenReaders)
{
    EXPECT_EQ(Combo->AccessibleRole(), ROLE_SYSTEM_SPLITBUTTON);
    EXPECT_TRUE(Combo->AccessibleDefaultAction());
    EXPECT_THAT(Events, ElementsAre("button"));
    Combo->Enabled = false;
    EXPECT_FALSE(Combo->AccessibleDefaultAction());
}
