// Speed buttons under a real mouse: events that go through the system's queue.
#include "tests/toolbar/SpeedButtonFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class SpeedButtonInputTest : public SpeedButtonFixture {
protected:
    void SetUp() override
    {
        SpeedButtonFixture::SetUp();
        Neighbour = NewButton();
        for (TTestButton* Each : {Button, Neighbour}) {
            Each->Glyphs = Glyphs;
            Each->OnClick = [this](TObject* Sender) { ++(Sender == Button ? Clicks : NeighbourClicks); };
        }
        Window->ShowNow();
    }
    void TearDown() override
    {
        // What a test's handlers refer to is gone.
        for (TTestButton* Each : {Button, Neighbour}) {
            for (TNotifyEvent* Event : {&Each->OnClick, &Each->OnDblClick, &Each->OnMouseEnter, &Each->OnMouseLeave})
                *Event = nullptr;
            Each->OnMouseDown = nullptr;
            Each->OnMouseMove = nullptr;
            Each->OnMouseUp = nullptr;
        }
        ReleaseButton();
        MovePointerAway();
    }

    // What the user sees is what the button says of itself.
    void ExpectShown(TButtonState State, bool Hot)
    {
        EXPECT_EQ(Button->State(), State);
        EXPECT_EQ(Button->IsHot(), Hot);
        EXPECT_TRUE(SamePixels(ScreenPixels(Button), PaintToBitmap(Button)));
    }

    TTestButton* Neighbour = nullptr;
    int Clicks = 0;
    int NeighbourClicks = 0;
};

} // namespace

TEST_F(SpeedButtonInputTest, ThePointerMakesAButtonHotAndItsNeighbourCold)
{
    MovePointerTo(Button, 11, 11);
    EXPECT_TRUE(PumpUntil([&] { return Button->IsHot(); }));
    ExpectShown(bsUp, true);
    EXPECT_EQ(ScreenPixels(Button).At(0, 0), TColor(ColorToRGB(clBtnHighlight)));
    EXPECT_EQ(ScreenPixels(Button).At(21, 21), TColor(ColorToRGB(clBtnShadow)));

    MovePointerTo(Neighbour, 5, 5);
    EXPECT_TRUE(PumpUntil([&] { return Neighbour->IsHot(); }));
    ExpectShown(bsUp, false);
    EXPECT_EQ(ScreenPixels(Button).At(0, 0), TColor(ColorToRGB(clBtnFace)));
}

TEST_F(SpeedButtonInputTest, LeavingTheWindowCoolsTheButton)
{
    MovePointerTo(Button, 11, 11);
    EXPECT_TRUE(PumpUntil([&] { return Button->IsHot(); }));
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return !Button->IsHot(); }));
    ExpectShown(bsUp, false);
}

TEST_F(SpeedButtonInputTest, EnterAndLeaveComeInOrderWithTheSender)
{
    std::vector<std::string> Events;
    const auto NameOf = [&](TObject* Sender) { return std::string(Sender == Button ? "first" : "second"); };
    for (TTestButton* Each : {Button, Neighbour}) {
        Each->OnMouseEnter = [&](TObject* Sender) { Events.push_back("enter " + NameOf(Sender)); };
        Each->OnMouseLeave = [&](TObject* Sender) { Events.push_back("leave " + NameOf(Sender)); };
    }
    MovePointerTo(Button, 4, 4);
    MovePointerTo(Button, 14, 14);
    MovePointerTo(Neighbour, 4, 4);
    MovePointer(Window->ClientToScreen(TPoint(5, 100)));
    EXPECT_TRUE(PumpUntil([&] { return Events.size() >= 4; }));
    EXPECT_THAT(Events, ElementsAre("enter first", "leave first", "enter second", "leave second"));
}

TEST_F(SpeedButtonInputTest, AButtonThatIsNotFlatRaisesNoMouseEnter)
{
    int Events = 0;
    Button->OnMouseEnter = [&](TObject*) { ++Events; };
    Button->Flat = false;
    bool Moved = false;
    Button->OnMouseMove = [&](TObject*, TShiftState, int, int) { Moved = true; };
    MovePointerTo(Button, 11, 11);
    EXPECT_TRUE(PumpUntil([&] { return Moved; }));
    EXPECT_EQ(Events, 0);
    EXPECT_FALSE(Button->IsHot());
}

TEST_F(SpeedButtonInputTest, AClickShowsThePressAndRaisesOnClick)
{
    MovePointerTo(Button, 11, 11);
    PressButton();
    EXPECT_TRUE(PumpUntil([&] { return Button->State() == bsDown; }));
    ExpectShown(bsDown, true);
    EXPECT_EQ(Clicks, 0);
    ReleaseButton();
    EXPECT_TRUE(PumpUntil([&] { return Clicks == 1; }));
    ExpectShown(bsUp, true); // the pointer is still there
    EXPECT_EQ(NeighbourClicks, 0);
}

TEST_F(SpeedButtonInputTest, DraggingOutAndInAgainFollowsThePointer)
{
    MovePointerTo(Button, 11, 11);
    PressButton();
    EXPECT_TRUE(PumpUntil([&] { return Button->State() == bsDown; }));
    MovePointerTo(Button, 11, 60);
    EXPECT_TRUE(PumpUntil([&] { return Button->State() == bsUp; }));
    ExpectShown(bsUp, false);
    MovePointerTo(Button, 3, 3);
    EXPECT_TRUE(PumpUntil([&] { return Button->State() == bsDown; }));
    ExpectShown(bsDown, true);
    MovePointerTo(Neighbour, 11, 11); // the mouse is captured: the neighbour stays cold
    EXPECT_TRUE(PumpUntil([&] { return Button->State() == bsUp; }));
    EXPECT_FALSE(Neighbour->IsHot());
    ReleaseButton();
    EXPECT_TRUE(PumpUntil([&] { return !Window->MouseCapture && GetCapture() == nullptr; }));
    EXPECT_EQ(Clicks, 0);
    EXPECT_EQ(NeighbourClicks, 0);
}

TEST_F(SpeedButtonInputTest, ReleasingOnTheBottomEdgeRowClicksOnTheRightEdgeColumnNot)
{
    MovePointerTo(Button, 11, 11);
    PressButton();
    MovePointerTo(Button, 11, 22);
    EXPECT_EQ(Button->State(), bsDown);
    ReleaseButton();
    EXPECT_TRUE(PumpUntil([&] { return Clicks == 1; }));

    MovePointerTo(Button, 11, 11);
    PressButton();
    EXPECT_TRUE(PumpUntil([&] { return Button->State() == bsDown; }));
    MovePointerTo(Button, 22, 11);
    EXPECT_TRUE(PumpUntil([&] { return Button->State() == bsUp; }));
    ReleaseButton();
    EXPECT_TRUE(PumpUntil([] { return GetCapture() == nullptr; }));
    EXPECT_EQ(Clicks, 1);
}

TEST_F(SpeedButtonInputTest, AGroupHasOneButtonDown)
{
    Button->GroupIndex = 7;
    Neighbour->GroupIndex = 7;
    MovePointerTo(Button, 11, 11);
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return Button->Down; }));
    ExpectShown(bsExclusive, true);
    MovePointerTo(Neighbour, 11, 11);
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return Neighbour->Down; }));
    EXPECT_FALSE(Button->Down);
    ExpectShown(bsUp, false);
    ClickButton(); // without AllowAllUp it stays
    EXPECT_TRUE(PumpUntil([&] { return NeighbourClicks == 2; }));
    EXPECT_TRUE(Neighbour->Down);
    Neighbour->AllowAllUp = true;
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return !Neighbour->Down; }));
}

TEST_F(SpeedButtonInputTest, ALatchedButtonShowsItsPatternWhenThePointerHasGone)
{
    Button->GroupIndex = 1;
    MovePointerTo(Button, 11, 11);
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return Button->Down; }));
    MovePointerTo(Neighbour, 11, 11);
    EXPECT_TRUE(PumpUntil([&] { return !Button->IsHot(); }));
    ExpectShown(bsExclusive, false);
    EXPECT_EQ(ScreenPixels(Button).At(2, 2), TColor(ColorToRGB(clBtnHighlight)));
    EXPECT_EQ(ScreenPixels(Button).At(2, 1), TColor(ColorToRGB(clBtnFace)));
}

TEST_F(SpeedButtonInputTest, ADisabledButtonNeitherLightsUpNorClicks)
{
    Button->Enabled = false;
    MovePointerTo(Button, 11, 11);
    ClickButton();
    MovePointerTo(Neighbour, 11, 11);
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return NeighbourClicks == 1; }));
    EXPECT_EQ(Clicks, 0);
    EXPECT_FALSE(Button->IsHot());
}

TEST_F(SpeedButtonInputTest, DisablingAndEnablingUnderThePointerKeepsTrackOfIt)
{
    MovePointerTo(Button, 11, 11);
    EXPECT_TRUE(PumpUntil([&] { return Button->IsHot(); }));
    Button->Enabled = false;
    ExpectShown(bsDisabled, false);
    Button->Enabled = true;
    ExpectShown(bsUp, true);
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return !Button->IsHot(); }));
}

TEST_F(SpeedButtonInputTest, ADoubleClickIsTwoClicksAndADoubleClick)
{
    std::vector<std::string> Events;
    Button->OnClick = [&](TObject*) { Events.push_back("click"); };
    Button->OnDblClick = [&](TObject*) { Events.push_back("double"); };
    MovePointerTo(Button, 11, 11);
    ClickButton();
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return Events.size() >= 3; }));
    EXPECT_THAT(Events, ElementsAre("click", "double", "click"));
}

TEST_F(SpeedButtonInputTest, MouseEventsCarryButtonAndPlace)
{
    std::vector<std::string> Events;
    const auto Note = [&](const char* What, int X, int Y) {
        Events.push_back(std::string(What) + " " + std::to_string(X) + "," + std::to_string(Y));
    };
    Button->OnMouseDown = [&](TObject*, TMouseButton Which, TShiftState, int X, int Y) {
        Note(Which == mbRight ? "right down" : "down", X, Y);
    };
    Button->OnMouseUp = [&](TObject*, TMouseButton Which, TShiftState, int X, int Y) {
        Note(Which == mbRight ? "right up" : "up", X, Y);
    };
    MovePointerTo(Button, 6, 9);
    ClickButton();
    ClickButton(mbRight);
    EXPECT_TRUE(PumpUntil([&] { return Events.size() >= 4; }));
    EXPECT_THAT(Events, ElementsAre("down 6,9", "up 6,9", "right down 6,9", "right up 6,9"));
    EXPECT_EQ(Clicks, 1);
}

// ---- a press that does not end with a release

TEST_F(SpeedButtonInputTest, LosingTheMouseEndsThePress)
{
    const std::vector<std::function<void()>> Losses = {
        [&] { ReleaseCapture(); },
        [&] { Button->MouseCapture = false; },
        [&] { Neighbour->MouseCapture = true; },
    };
    for (int GroupIndex : {0, 7})
        for (const auto& Lose : Losses) {
            Button->GroupIndex = GroupIndex;
            MovePointerTo(Button, 11, 11);
            PressButton();
            EXPECT_TRUE(PumpUntil([&] { return Button->State() == bsDown; }));
            Lose();
            PumpMessages();
            EXPECT_NE(Button->State(), bsDown);
            ReleaseButton();
            ReleaseCapture();
            PumpMessages();
            EXPECT_EQ(Button->State(), bsUp);
            ClickButton(mbRight);
            EXPECT_EQ(Clicks, 0);
            EXPECT_FALSE(Button->Down);
        }
}

TEST_F(SpeedButtonInputTest, ANewParentEndsThePress)
{
    auto* Other = new TCustomControl(Window.get());
    Other->SetBounds(0, 60, 200, 60);
    Other->Parent = Window.get();
    MovePointerTo(Button, 11, 11);
    PressButton();
    EXPECT_TRUE(PumpUntil([&] { return Button->State() == bsDown; }));
    Button->Parent = Other;
    EXPECT_EQ(Button->State(), bsUp);
    EXPECT_FALSE(Button->MouseCapture);
    ReleaseButton();
    MovePointerTo(Button, 11, 11);
    ClickButton(mbRight);
    EXPECT_EQ(Clicks, 0);
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return Clicks == 1; }));
    Button->Parent = Window.get();
}

// ---- hot without a pointer

TEST_F(SpeedButtonInputTest, AButtonThatIsDisabledInItsMouseEnterStaysCold)
{
    Button->OnMouseEnter = [](TObject* Sender) { As<TTestButton>(Sender)->Enabled = false; };
    MovePointerTo(Button, 11, 11);
    EXPECT_TRUE(PumpUntil([&] { return !Button->Enabled; }));
    ExpectShown(bsDisabled, false);
    MovePointerAway();
    Button->Enabled = true;
    ExpectShown(bsUp, false);
}

TEST_F(SpeedButtonInputTest, AButtonThatIsFlatAgainIsHotOnlyUnderThePointer)
{
    MovePointerTo(Button, 11, 11);
    EXPECT_TRUE(PumpUntil([&] { return Button->IsHot(); }));
    Button->Flat = false;
    MovePointerAway();
    Button->Flat = true;
    ExpectShown(bsUp, false);
    Button->Flat = false;
    MovePointerTo(Button, 11, 11);
    Button->Flat = true;
    ExpectShown(bsUp, true);
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return !Button->IsHot(); }));
    Button->OnMouseEnter = [](TObject* Sender) { As<TTestButton>(Sender)->Flat = false; };
    MovePointerTo(Button, 11, 11);
    EXPECT_TRUE(PumpUntil([&] { return !Button->Flat; }));
    MovePointerAway();
    Button->Flat = true;
    ExpectShown(bsUp, false);
}
