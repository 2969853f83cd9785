// Speed buttons on a form, with the application's message loop.
#include "tests/support/FormTest.h"
#include "toolbar/SpeedButton.h"
#include "vcl/extctrls/Panel.h"

using SpeedButtonFormTest = TFormTest;

TEST_F(SpeedButtonFormTest, AltAndTheAcceleratorClickTheButton)
{
    auto* Save = Add<TkelSpeedButton>("&Save");
    auto* Open = Add<TkelSpeedButton>("&Open");
    Open->Left = 50;
    int Saves = 0, Opens = 0;
    Save->OnClick = [&](TObject*) { ++Saves; };
    Open->OnClick = [&](TObject*) { ++Opens; };
    Show();
    TypeKey('O', {ssAlt});
    EXPECT_TRUE(PumpUntil([&] { return Opens == 1; }));
    EXPECT_EQ(Saves, 0);
    Save->Enabled = false;
    TypeKey('S', {ssAlt});
    TypeKey('O', {ssAlt});
    EXPECT_TRUE(PumpUntil([&] { return Opens == 2; }));
    EXPECT_EQ(Saves, 0);
}

TEST_F(SpeedButtonFormTest, AButtonThatIsNotOnTheScreenHasNoLetter)
{
    auto* Panel = Add<TPanel>();
    auto* Inner = Add<TPanel>("", Panel);
    auto* Button = Add<TkelSpeedButton>("&Save", Inner);
    int Saves = 0;
    Button->OnClick = [&](TObject*) { ++Saves; };
    Show();
    TypeKey('S', {ssAlt});
    EXPECT_TRUE(PumpUntil([&] { return Saves == 1; }));
    for (TControl* Each :
         {static_cast<TControl*>(Panel), static_cast<TControl*>(Inner), static_cast<TControl*>(Button)}) {
        Each->Visible = false;
        TypeKey('S', {ssAlt});
        EXPECT_EQ(Saves, 1) << Each->ClassName();
        Each->Visible = true;
    }
    TypeKey('S', {ssAlt});
    EXPECT_TRUE(PumpUntil([&] { return Saves == 2; }));
}

TEST_F(SpeedButtonFormTest, AClickLeavesTheFocusWhereItIs)
{
    auto* Button = Add<TkelSpeedButton>();
    int Clicks = 0;
    Button->OnClick = [&](TObject*) { ++Clicks; };
    Show();
    HWND Focus = GetFocus();
    ClickOn(Button);
    EXPECT_TRUE(PumpUntil([&] { return Clicks == 1; }));
    EXPECT_EQ(GetFocus(), Focus);
}

TEST_F(SpeedButtonFormTest, AButtonMayBeDeletedWhileThePointerIsOnIt)
{
    auto* Button = Add<TkelSpeedButton>();
    bool Entered = false;
    Button->OnMouseEnter = [&](TObject*) { Entered = true; };
    Show();
    MovePointerTo(Button, 5, 5);
    EXPECT_TRUE(PumpUntil([&] { return Entered; }));
    delete Button;
    MovePointer(Form->ClientToScreen(TPoint(100, 100)));
    EXPECT_EQ(Form->ControlCount, 0);
}
