// Speed buttons under a real mouse and keyboard.
#include "tests/support/FormTest.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/buttons/SpeedButton.h"
#include "vcl/extctrls/Panel.h"

namespace {

class SpeedButtonInputTest : public TFormTest {
protected:
    TSpeedButton* AddButton(int Left, const AnsiString& Caption = "")
    {
        auto* Button = Add<TSpeedButton>(Caption);
        Button->SetBounds(Left, 10, 60, 22);
        Button->OnClick = [this](TObject* Sender) { Clicked.push_back(Sender); };
        return Button;
    }
    // The pixel of the frame's upper left corner.
    static TColor Corner(TSpeedButton* Button) { return ScreenPixels(Button).At(0, 0); }
    static TColor Shown(TColor Color) { return TColor(ColorToRGB(Color)); }

    std::vector<TObject*> Clicked;
};

} // namespace

TEST_F(SpeedButtonInputTest, AFlatButtonIsFramedWhileThePointerIsOverIt)
{
    TSpeedButton* A = AddButton(10);
    TSpeedButton* B = AddButton(70);
    A->Flat = true;
    B->Flat = true;
    Show();
    MovePointerAway();
    EXPECT_EQ(Corner(A), Shown(Form->Color));
    MovePointerTo(A, 5, 5);
    EXPECT_TRUE(PumpUntil([&] { return Corner(A) == Shown(clBtnHighlight); }));
    MovePointerTo(B, 5, 5);
    EXPECT_TRUE(PumpUntil([&] { return Corner(B) == Shown(clBtnHighlight) && Corner(A) == Shown(Form->Color); }));
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return Corner(B) == Shown(Form->Color); }));
}

TEST_F(SpeedButtonInputTest, PressingDraggingOutAndInAndReleasing)
{
    TSpeedButton* Button = AddButton(10);
    Button->Flat = true;
    Show();
    MovePointerTo(Button, 5, 5);
    PressButton();
    EXPECT_TRUE(PumpUntil([&] { return Corner(Button) == Shown(clBtnShadow); }));
    MovePointerTo(Button, 5, 100);
    EXPECT_TRUE(PumpUntil([&] { return Corner(Button) != Shown(clBtnShadow); }));
    MovePointerTo(Button, 6, 6);
    EXPECT_TRUE(PumpUntil([&] { return Corner(Button) == Shown(clBtnShadow); }));
    ReleaseButton();
    EXPECT_TRUE(PumpUntil([&] { return Clicked.size() == 1; }));
    EXPECT_TRUE(PumpUntil([&] { return Corner(Button) == Shown(clBtnHighlight); }));
    PressButton();
    MovePointerTo(Button, 5, 100);
    ReleaseButton();
    EXPECT_TRUE(PumpUntil([&] { return Corner(Button) == Shown(Form->Color); }));
    EXPECT_EQ(Clicked.size(), 1u);
}

TEST_F(SpeedButtonInputTest, OneOfAGroupIsLatched)
{
    TSpeedButton* A = AddButton(10);
    TSpeedButton* B = AddButton(80);
    A->GroupIndex = 1;
    B->GroupIndex = 1;
    Show();
    ClickOn(A);
    ASSERT_TRUE(PumpUntil([&] { return A->Down; }));
    ClickOn(B);
    ASSERT_TRUE(PumpUntil([&] { return B->Down; }));
    EXPECT_FALSE(A->Down);
    ClickOn(B);
    ASSERT_TRUE(PumpUntil([&] { return Clicked.size() == 3; }));
    EXPECT_TRUE(B->Down);
}

TEST_F(SpeedButtonInputTest, AButtonThatIsDraggedIsNotFramedUnderThePointer)
{
    TSpeedButton* A = AddButton(10);
    TSpeedButton* B = AddButton(80);
    A->Flat = true;
    B->Flat = true;
    A->DragMode = dmAutomatic;
    Show();
    MovePointerTo(A, 5, 5);
    MovePointerTo(A, 6, 6);
    EXPECT_EQ(Corner(A), Shown(Form->Color));
    MovePointerTo(B, 5, 5);
    EXPECT_TRUE(PumpUntil([&] { return Corner(B) == Shown(clBtnHighlight); }));
}

TEST_F(SpeedButtonInputTest, ItsAcceleratorClicksItUnlessItIsDisabledOrHidden)
{
    TSpeedButton* A = AddButton(10, "&Go");
    Add<TPanel>()->Top = 100;
    Show();
    TypeKey('G', {ssAlt});
    ASSERT_TRUE(PumpUntil([&] { return Clicked.size() == 1; }));
    A->Enabled = false;
    TypeKey('G', {ssAlt});
    A->Enabled = true;
    A->Visible = false;
    TypeKey('G', {ssAlt});
    PumpMessages();
    EXPECT_EQ(Clicked.size(), 1u);
}

TEST_F(SpeedButtonInputTest, ADisabledButtonLetsTheMouseAlone)
{
    TSpeedButton* A = AddButton(10);
    A->Flat = true;
    A->Enabled = false;
    Show();
    MovePointerTo(A, 5, 5);
    ClickButton();
    PumpMessages();
    EXPECT_TRUE(Clicked.empty());
    EXPECT_EQ(Corner(A), Shown(Form->Color));
    A->Enabled = true;
    EXPECT_TRUE(PumpUntil([&] { return Corner(A) == Shown(clBtnHighlight); }));
}

TEST_F(SpeedButtonInputTest, PanelsAreClickedToo)
{
    auto* Panel = Add<TPanel>("Panel");
    Panel->SetBounds(10, 50, 100, 40);
    int Clicks = 0;
    int DoubleClicks = 0;
    Panel->OnClick = [&](TObject*) { ++Clicks; };
    Panel->OnDblClick = [&](TObject*) { ++DoubleClicks; };
    Show();
    ClickOn(Panel);
    ASSERT_TRUE(PumpUntil([&] { return Clicks == 1; }));
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return DoubleClicks == 1; }));
}

// ---- the mouse is taken from a pressed button

TEST_F(SpeedButtonInputTest, AButtonThatLosesTheMouseComesUp)
{
    TSpeedButton* A = AddButton(10);
    TSpeedButton* B = AddButton(80);
    Show();
    const auto Pressed = [&] { return (A->AccessibleState() & STATE_SYSTEM_PRESSED) != 0; };
    const std::function<void()> Losses[] = {[&] { A->MouseCapture = false; }, [&] { B->MouseCapture = true; },
                                            [] { ReleaseCapture(); }, [&] { Form->Perform(WM_CANCELMODE); }};
    for (const auto& Lose : Losses) {
        MovePointerTo(A, 5, 5);
        PressButton();
        ASSERT_TRUE(PumpUntil(Pressed));
        Lose();
        EXPECT_FALSE(Pressed());
        B->MouseCapture = false;
        ClickButton(mbRight);
        ReleaseButton();
        PumpMessages();
        EXPECT_TRUE(Clicked.empty());
    }
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return Clicked.size() == 1; }));
}

TEST_F(SpeedButtonInputTest, AButtonThatGetsAnotherParentWhilePressedComesUp)
{
    TSpeedButton* A = AddButton(10);
    A->GroupIndex = 1;
    auto* Panel = Add<TPanel>();
    Panel->SetBounds(10, 50, 200, 60);
    Show();
    MovePointerTo(A, 5, 5);
    PressButton();
    A->Parent = Panel;
    EXPECT_EQ(A->AccessibleState() & STATE_SYSTEM_PRESSED, 0);
    EXPECT_EQ(GetCapture(), nullptr);
    MovePointerTo(A, 5, 5);
    ReleaseButton();
    PumpMessages();
    EXPECT_TRUE(Clicked.empty());
    EXPECT_FALSE(A->Down);
}

TEST_F(SpeedButtonInputTest, OnlyTheLeftButtonEndsAPress)
{
    TSpeedButton* A = AddButton(10);
    Show();
    MovePointerTo(A, 5, 5);
    PressButton();
    ClickButton(mbRight);
    EXPECT_TRUE(Clicked.empty());
    ReleaseButton();
    EXPECT_TRUE(PumpUntil([&] { return Clicked.size() == 1; }));
}
