// Handlers of the mouse's coming and going that delete controls, and the mouse that is taken from a pressed control.
#include "tests/controls/TestWindow.h"
#include "tests/support/Input.h"
#include "vcl/controls/Mouse.h"

#include <functional>

namespace {

// Does something when the pointer comes or goes, or the mouse is lost.
class TReactor : public TGraphicControl {
    VCL_CLASS(TReactor, TGraphicControl)
public:
    explicit TReactor(TComponent* AOwner) : TGraphicControl(AOwner) {}
    std::function<void()> OnMouseEnter;
    std::function<void()> OnMouseLeave;
    int Lost = 0;
    int Clicks = 0;

protected:
    void Click() override
    {
        ++Clicks;
        TGraphicControl::Click();
    }

private:
    static void Do(std::function<void()> Action)
    {
        if (Action)
            Action();
    }
    void CMMouseEnter(TMessage& Message)
    {
        Inherited(Message);
        Do(OnMouseEnter);
    }
    void CMMouseLeave(TMessage& Message)
    {
        Inherited(Message);
        Do(OnMouseLeave);
    }
    void WMCaptureChanged(TMessage& Message)
    {
        Inherited(Message);
        ++Lost;
    }
};

void TReactor::Describe(TClassBuilder<TReactor>& Class)
{
    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
    Class.Message<&Self::WMCaptureChanged>(WM_CAPTURECHANGED);
}

class MouseSafetyTest : public ControlsTest {
protected:
    void SetUp() override
    {
        MovePointerAway();
        Box = Add<TBox>(&Window, 0, 0, 200, 200);
        A = Add<TReactor>(Box, 10, 10, 40, 40);
        B = Add<TReactor>(Box, 60, 10, 40, 40);
        Window.Open();
    }
    void TearDown() override
    {
        ReleaseButton();
        MovePointerAway();
        EXPECT_EQ(GetCapture(), nullptr);
        ControlsTest::TearDown();
    }
    template <class T>
    static void Delete(T*& Control)
    {
        delete std::exchange(Control, nullptr);
    }
    void Press()
    {
        MovePointerTo(A, 5, 5);
        PressButton();
        EXPECT_TRUE(A->MouseCapture);
    }

    TBox* Box = nullptr;
    TReactor* A = nullptr;
    TReactor* B = nullptr;
};

} // namespace

TEST_F(MouseSafetyTest, AControlMayBeDeletedWhenThePointerEntersIt)
{
    A->OnMouseEnter = [this] { Delete(A); };
    const TPoint Place = A->ClientToScreen({5, 5});
    MovePointer(Place);
    EXPECT_EQ(A, nullptr);
    MovePointer(Place + TPoint(1, 1));
    EXPECT_EQ(TMouse::HotControl(), Box);
}

TEST_F(MouseSafetyTest, AControlMayBeDeletedWhenThePointerLeavesIt)
{
    MovePointerTo(A, 5, 5);
    A->OnMouseLeave = [this] { Delete(A); };
    MovePointerTo(B, 5, 5);
    EXPECT_EQ(A, nullptr);
    EXPECT_EQ(TMouse::HotControl(), B);
}

TEST_F(MouseSafetyTest, TheNextControlMayBeDeletedWhenThePointerLeavesTheOneBefore)
{
    MovePointerTo(A, 5, 5);
    A->OnMouseLeave = [this] { Delete(B); };
    MovePointerTo(B, 5, 5);
    EXPECT_EQ(B, nullptr);
    EXPECT_NE(TMouse::HotControl(), A);
}

TEST_F(MouseSafetyTest, TheParentMayBeDeletedWhenThePointerComesAndGoes)
{
    for (const bool Enter : {true, false}) {
        SCOPED_TRACE(Enter);
        MovePointerAway();
        auto* Parent = Add<TBox>(&Window, 0, 210, 100, 50);
        auto* Child = Add<TReactor>(Parent, 0, 0, 40, 40);
        (Enter ? Child->OnMouseEnter : Child->OnMouseLeave) = [&] { Delete(Parent); };
        MovePointerTo(Child, 5, 5);
        if (!Enter)
            MovePointerTo(Parent, 60, 5);
        EXPECT_EQ(Parent, nullptr);
    }
}

// ---- the mouse is taken away

TEST_F(MouseSafetyTest, AReleaseOfItsOwnIsNoLoss)
{
    Press();
    ReleaseButton();
    EXPECT_EQ(A->Clicks, 1);
    EXPECT_EQ(A->Lost, 0);
}

TEST_F(MouseSafetyTest, AnotherControlTakesTheMouse)
{
    Press();
    B->MouseCapture = true;
    EXPECT_EQ(A->Lost, 1);
    EXPECT_FALSE(A->ControlState.Contains(csLButtonDown));
    B->MouseCapture = false;
    EXPECT_EQ(B->Lost, 1) << "it is told in code that it did not run itself";
    ReleaseButton();
    EXPECT_EQ(A->Clicks, 0);
}

TEST_F(MouseSafetyTest, TheSystemTakesTheMouse)
{
    Press();
    ReleaseCapture();
    EXPECT_EQ(A->Lost, 1);
    ReleaseButton();
    EXPECT_EQ(A->Clicks, 0);
}

TEST_F(MouseSafetyTest, ANewParentTakesTheMouse)
{
    Press();
    auto* Other = Add<TBox>(&Window, 0, 210, 100, 50);
    A->Parent = Other;
    EXPECT_EQ(A->Lost, 1);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(A->ControlState.Contains(csLButtonDown));
}

TEST_F(MouseSafetyTest, AParentsNewWindowTakesTheMouse)
{
    Press();
    Box->RecreateWnd();
    EXPECT_EQ(A->Lost, 1);
    EXPECT_FALSE(A->MouseCapture);
}

TEST_F(MouseSafetyTest, AnotherWindowThatGoesLeavesThePressAlone)
{
    auto* Other = Add<TBox>(&Window, 0, 210, 100, 50);
    Press();
    delete Other;
    EXPECT_TRUE(A->MouseCapture);
    ReleaseButton();
    EXPECT_EQ(A->Clicks, 1);
}

TEST_F(MouseSafetyTest, AWindowedControlThatLosesTheMouseIsNotClicked)
{
    int Clicks = 0;
    Box->OnClick = [&](TObject*) { ++Clicks; };
    MovePointerTo(Box, 150, 150);
    PressButton();
    ReleaseCapture();
    ReleaseButton();
    EXPECT_EQ(Clicks, 0);
    MovePointerTo(Box, 100, 180); // far enough for the next press not to be a double click
    ClickButton();
    EXPECT_EQ(Clicks, 1);
}
