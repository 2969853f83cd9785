// Combo buttons under a real mouse.
#include "tests/support/FormTest.h"
#include "tests/support/PaintToBitmap.h"
#include "tests/toolbar/ButtonParts.h"
#include "toolbar/ComboButton.h"
#include "vcl/controls/Mouse.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class ComboButtonInputTest : public TFormTest {
protected:
    ComboButtonInputTest()
    {
        Combo->SetBounds(40, 30, 33, 22);
        Combo->OnButtonClick = [this](TObject*) { Events.push_back("button"); };
        Combo->OnListDown = [this](TObject*) { Events.push_back("list"); };
    }

    bool BothHot() const { return TButtonLook::IsHot(Main) && TButtonLook::IsHot(Arrow); }
    bool BothCold() const { return !TButtonLook::IsHot(Main) && !TButtonLook::IsHot(Arrow); }
    void ExpectShown() { EXPECT_TRUE(SamePixels(ScreenPixels(Combo), PaintToBitmap(Combo))); }

    std::vector<std::string> Events;
    TkelComboButton* Combo = Add<TkelComboButton>();
    TkelSpeedButton* Main = Combo->MainButton();
    TkelSpeedButton* Arrow = Combo->ArrowButton();
};

} // namespace

TEST_F(ComboButtonInputTest, ThePointerOnEitherHalfMakesBothHot)
{
    Show();
    for (TkelSpeedButton* Half : {Main, Arrow}) {
        MovePointerTo(Half, 5, 10);
        EXPECT_TRUE(PumpUntil([&] { return BothHot(); }));
        ExpectShown();
        EXPECT_EQ(ScreenPixels(Combo).At(0, 0), TColor(ColorToRGB(clBtnHighlight)));
        EXPECT_EQ(ScreenPixels(Combo).At(22, 0), TColor(ColorToRGB(clBtnHighlight)));
        MovePointer(Form->ClientToScreen(TPoint(200, 200)));
        EXPECT_TRUE(PumpUntil([&] { return BothCold(); }));
        ExpectShown();
        EXPECT_EQ(ScreenPixels(Combo).At(0, 0), TColor(ColorToRGB(clBtnFace)));
    }
}

TEST_F(ComboButtonInputTest, GoingFromOneHalfToTheOtherPaintsNothing)
{
    Show();
    MovePointerTo(Main, 18, 10);
    EXPECT_TRUE(PumpUntil([&] { return BothHot(); }));
    TPaintCount MainPaints(Main), ArrowPaints(Arrow);
    int Moves = 0;
    for (TkelSpeedButton* Half : {Main, Arrow})
        Half->OnMouseMove = [&](TObject*, TShiftState, int, int) { ++Moves; };
    for (TkelSpeedButton* Half : {Arrow, Main, Arrow})
        MovePointerTo(Half, 4, 10);
    EXPECT_TRUE(PumpUntil([&] { return Moves >= 3; }));
    EXPECT_TRUE(BothHot());
    EXPECT_EQ(MainPaints.Get(), 0);
    EXPECT_EQ(ArrowPaints.Get(), 0);
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return BothCold(); }));
    EXPECT_EQ(MainPaints.Get(), 1);
    EXPECT_EQ(ArrowPaints.Get(), 1);
}

TEST_F(ComboButtonInputTest, LeavingTheWindowCoolsBothHalves)
{
    Show();
    MovePointerTo(Arrow, 4, 10);
    EXPECT_TRUE(PumpUntil([&] { return BothHot(); }));
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return BothCold(); }));
    ExpectShown();
}

TEST_F(ComboButtonInputTest, EachHalfRaisesItsOwnEvent)
{
    Show();
    ClickOn(Main);
    EXPECT_TRUE(PumpUntil([&] { return Events.size() == 1; }));
    EXPECT_TRUE(BothHot());
    ExpectShown();
    ClickOn(Arrow);
    EXPECT_TRUE(PumpUntil([&] { return Events.size() == 2; }));
    EXPECT_TRUE(BothHot());
    EXPECT_FALSE(Arrow->Down);
    ExpectShown();
    EXPECT_THAT(Events, ElementsAre("button", "list"));
}

// As a menu does it that covers the combo button for a while.
TEST_F(ComboButtonInputTest, AClickThatLostThePointerFindsItAgainForBothHalves)
{
    Combo->OnListDown = [&](TObject*) {
        TMouse::SetHotControl(nullptr);
        EXPECT_TRUE(BothCold());
    };
    Show();
    MovePointerTo(Arrow, 5, 10);
    Arrow->Perform(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 10));
    Arrow->Perform(WM_LBUTTONUP, 0, MAKELPARAM(5, 10));
    EXPECT_TRUE(BothHot());
}

TEST_F(ComboButtonInputTest, APressDraggedToTheOtherHalfClicksNeither)
{
    Show();
    MovePointerTo(Main, 5, 10);
    PressButton();
    EXPECT_TRUE(PumpUntil([&] { return TButtonLook::StateOf(Main) == bsDown; }));
    ExpectShown();
    MovePointerTo(Arrow, 5, 10);
    EXPECT_TRUE(PumpUntil([&] { return TButtonLook::StateOf(Main) == bsUp; }));
    ReleaseButton();
    EXPECT_TRUE(PumpUntil([] { return GetCapture() == nullptr; }));
    MovePointerTo(Arrow, 6, 10);
    EXPECT_TRUE(PumpUntil([&] { return BothHot(); }));
    EXPECT_TRUE(Events.empty());
    ExpectShown();
}

TEST_F(ComboButtonInputTest, DisabledItNeitherLightsUpNorClicksAndEnabledUnderThePointerItDoes)
{
    auto* Other = Add<TkelComboButton>();
    Other->SetBounds(100, 30, 33, 22);
    Other->OnButtonClick = [&](TObject*) { Events.push_back("other"); };
    Combo->Enabled = false;
    Show();
    ClickOn(Main);
    ClickOn(Arrow);
    EXPECT_TRUE(BothCold());
    ClickOn(Other->MainButton());
    EXPECT_TRUE(PumpUntil([&] { return !Events.empty(); }));
    EXPECT_THAT(Events, ElementsAre("other"));
    MovePointerTo(Arrow, 5, 10);
    Combo->Enabled = true;
    EXPECT_TRUE(BothHot());
    PumpMessages();
    ExpectShown();
    Combo->Enabled = false;
    EXPECT_TRUE(BothCold());
    PumpMessages();
    ExpectShown();
}

TEST_F(ComboButtonInputTest, AClickLeavesTheFocusWhereItIs)
{
    Show();
    HWND Focus = GetFocus();
    ClickOn(Main);
    ClickOn(Arrow);
    EXPECT_TRUE(PumpUntil([&] { return Events.size() == 2; }));
    EXPECT_EQ(GetFocus(), Focus);
}

TEST_F(ComboButtonInputTest, ItMayBeDeletedWhileThePointerIsOnIt)
{
    Show();
    MovePointerTo(Arrow, 5, 10);
    EXPECT_TRUE(PumpUntil([&] { return BothHot(); }));
    delete Combo;
    MovePointer(Form->ClientToScreen(TPoint(100, 100)));
    EXPECT_EQ(Form->ControlCount, 0);
}

TEST_F(ComboButtonInputTest, TheHintIsOneForBothHalves)
{
    std::vector<TControl*> Asked;
    AnsiString Text;
    Application->HintPause = 30;
    Application->OnShowHint = [&](AnsiString& Hint, bool&, THintInfo& Info) {
        Asked.push_back(Info.HintControl);
        Text = Hint;
    };
    Combo->Hint = "Both halves";
    Combo->ShowHint = true;
    Show();
    MovePointerTo(Main, 5, 10);
    EXPECT_TRUE(PumpUntil([&] { return !Asked.empty(); }));
    MovePointerTo(Arrow, 5, 10);
    EXPECT_TRUE(BothHot());
    EXPECT_FALSE(PumpUntil([&] { return Asked.size() > 1; }, 200)) << "it stays";
    EXPECT_THAT(Asked, ElementsAre(Combo));
    EXPECT_EQ(Text, "Both halves");
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return BothCold(); }));
    Asked.clear();
    MovePointerTo(Arrow, 5, 10);
    EXPECT_TRUE(PumpUntil([&] { return !Asked.empty(); }));
    EXPECT_THAT(Asked, ElementsAre(Combo));
    Application->OnShowHint = nullptr;
    Application->HintPause = 500;
}
