#include "vcl/controls/Mouse.h"
#include "tests/controls/TestWindow.h"

using testing::Test;

namespace {

class MouseTest : public ControlsTest {
protected:
    void Send(uint32_t Msg, int X, int Y, uintptr_t Keys = 0)
    {
        SendMessageW(Window.Handle, Msg, Keys, MAKELPARAM(X, Y));
    }
    void TearDown() override
    {
        TMouse::SetHotControl(nullptr);
        ControlsTest::TearDown();
    }
    using TLog = std::vector<AnsiString>;
};

} // namespace

TEST_F(MouseTest, MessagesGoToTheWindowlessControlInItsOwnCoordinates)
{
    auto* Probe = Add<TProbe>(&Window, 20, 30, 40, 20);
    Window.Open();
    Send(WM_LBUTTONDOWN, 25, 37, MK_LBUTTON);
    Send(WM_LBUTTONUP, 26, 38);
    EXPECT_EQ(Probe->Log, (TLog{"down 5,7", "click", "up 6,8"}));
}

TEST_F(MouseTest, AReleaseOutsideIsNoClickButIsTold)
{
    auto* Probe = Add<TProbe>(&Window, 20, 30, 40, 20);
    Window.Open();
    Send(WM_LBUTTONDOWN, 25, 37, MK_LBUTTON);
    EXPECT_TRUE(Probe->MouseCapture);
    Send(WM_LBUTTONUP, 5, 5);
    EXPECT_EQ(Probe->Log, (TLog{"down 5,7", "up -15,-25"}));
    EXPECT_FALSE(Probe->MouseCapture);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(MouseTest, ADoubleClickIsTwoPressesForAControlThatDoesNotWantIt)
{
    auto* Probe = Add<TProbe>(&Window, 20, 30, 40, 20);
    Window.Open();
    Send(WM_LBUTTONDBLCLK, 25, 37, MK_LBUTTON);
    Send(WM_LBUTTONUP, 25, 37);
    EXPECT_EQ(Probe->Log, (TLog{"double", "down 5,7", "up 5,7"}));
    Probe->Log.clear();
    Probe->SetStyleFlag(csDoubleClicks, false);
    Send(WM_LBUTTONDBLCLK, 25, 37, MK_LBUTTON);
    Send(WM_LBUTTONUP, 25, 37);
    EXPECT_EQ(Probe->Log, (TLog{"down 5,7", "click", "up 5,7"}));
}

TEST_F(MouseTest, DisabledControlsGetNoMessagesButAreEntered)
{
    auto* Probe = Add<TProbe>(&Window, 20, 30, 40, 20);
    Window.Open();
    Probe->Enabled = false;
    Send(WM_MOUSEMOVE, 25, 37);
    Send(WM_LBUTTONDOWN, 25, 37, MK_LBUTTON);
    Send(WM_LBUTTONUP, 25, 37);
    EXPECT_EQ(Probe->Log, (TLog{"enter"}));
}

TEST_F(MouseTest, EnterAndLeaveComeWithTheMoveAndBubbleToTheParent)
{
    auto* Box = Add<TBox>(&Window, 0, 0, 100, 100);
    auto* A = Add<TProbe>(Box, 0, 0, 20, 20);
    auto* B = Add<TProbe>(Box, 20, 0, 20, 20);
    Window.Open();
    SendMessageW(Box->Handle, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(A->Log, (TLog{"enter", "move 5,5"}));
    EXPECT_EQ(Box->Log, (TLog{"child enter"}));
    SendMessageW(Box->Handle, WM_MOUSEMOVE, 0, MAKELPARAM(25, 5));
    EXPECT_EQ(A->Log, (TLog{"enter", "move 5,5", "leave"}));
    EXPECT_EQ(B->Log, (TLog{"enter", "move 5,5"}));
    SendMessageW(Box->Handle, WM_MOUSEMOVE, 0, MAKELPARAM(50, 50));
    EXPECT_EQ(B->Log.back(), "leave");
    EXPECT_EQ(Box->Log, (TLog{"child enter", "child leave", "child enter", "child leave", "enter"}));
}

TEST_F(MouseTest, WhileOneControlHasTheMouseOnlyItIsEnteredAndLeft)
{
    auto* A = Add<TProbe>(&Window, 0, 0, 20, 20);
    auto* B = Add<TProbe>(&Window, 20, 0, 20, 20);
    Window.Open();
    Send(WM_MOUSEMOVE, 5, 5);
    Send(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    A->Log.clear();
    Send(WM_MOUSEMOVE, 25, 5, MK_LBUTTON);
    EXPECT_EQ(A->Log, (TLog{"leave", "move 25,5"}));
    EXPECT_TRUE(B->Log.empty());
    Send(WM_MOUSEMOVE, 6, 6, MK_LBUTTON);
    EXPECT_EQ(A->Log, (TLog{"leave", "move 25,5", "enter", "move 6,6"}));
}

TEST_F(MouseTest, AControlDeletedInItsOwnHandlerIsForgotten)
{
    auto* Probe = Add<TProbe>(&Window, 0, 0, 20, 20);
    Window.Open();
    Send(WM_MOUSEMOVE, 5, 5);
    Send(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    EXPECT_EQ(TMouse::HotControl(), Probe);
    delete Probe;
    EXPECT_EQ(TMouse::HotControl(), nullptr);
    EXPECT_EQ(GetCapture(), nullptr);
    Send(WM_MOUSEMOVE, 6, 6);
    EXPECT_EQ(TMouse::HotControl(), &Window);
}

TEST_F(MouseTest, LosingTheMouseGivesThePressUp)
{
    auto* Probe = Add<TProbe>(&Window, 0, 0, 20, 20);
    Window.Open();
    Send(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    Send(WM_CANCELMODE, 0, 0);
    EXPECT_EQ(Probe->Log, (TLog{"down 5,5", "up -1,-1"}));
    EXPECT_FALSE(Probe->MouseCapture);
}

TEST_F(MouseTest, ControlAtPosPrefersTheTopmostAndAsksTheControl)
{
    auto* Low = Add<TProbe>(&Window, 0, 0, 40, 40);
    auto* High = Add<TProbe>(&Window, 20, 20, 40, 40);
    auto* Box = Add<TBox>(&Window, 30, 30, 40, 40);
    EXPECT_EQ(Window.ControlAtPos({25, 25}, false), High);
    EXPECT_EQ(Window.ControlAtPos({35, 35}, false), High);
    EXPECT_EQ(Window.ControlAtPos({35, 35}, false, true), Box);
    High->Enabled = false;
    EXPECT_EQ(Window.ControlAtPos({25, 25}, false), Low);
    EXPECT_EQ(Window.ControlAtPos({25, 25}, true), High);
    EXPECT_EQ(Window.ControlAtPos({39, 39}, false), Low);
    EXPECT_EQ(Window.ControlAtPos({60, 60}, true), nullptr);
}
