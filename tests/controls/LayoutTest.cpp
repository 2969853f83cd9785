#include "tests/controls/TestWindow.h"

using LayoutTest = ControlsTest;

TEST_F(LayoutTest, AlignedControlsTakeTheirSidesInOrder)
{
    auto* Bottom = Add<TProbe>(&Window, 0, 250, 10, 20);
    auto* Client = Add<TBox>(&Window, 0, 0, 10, 10);
    auto* Top = Add<TProbe>(&Window, 0, 0, 10, 30);
    auto* Left = Add<TProbe>(&Window, 0, 0, 40, 10);
    auto* Right = Add<TBox>(&Window, 0, 0, 60, 10);
    Bottom->Align = alBottom;
    Client->Align = alClient;
    Top->Align = alTop;
    Left->Align = alLeft;
    Right->Align = alRight;
    Window.Open();
    EXPECT_EQ(Top->BoundsRect, TRect(0, 0, 400, 30));
    EXPECT_EQ(Bottom->BoundsRect, TRect(0, 280, 400, 300));
    EXPECT_EQ(Left->BoundsRect, TRect(0, 30, 40, 280));
    EXPECT_EQ(Right->BoundsRect, TRect(340, 30, 400, 280));
    EXPECT_EQ(Client->BoundsRect, TRect(40, 30, 340, 280));
}

TEST_F(LayoutTest, OfOneSideTheNearerGoesFirst)
{
    auto* Second = Add<TProbe>(&Window, 0, 40, 10, 20);
    auto* First = Add<TProbe>(&Window, 0, 5, 10, 30);
    Second->Align = alTop;
    First->Align = alTop;
    Window.Open();
    EXPECT_EQ(First->Top, 0);
    EXPECT_EQ(Second->Top, 30);
    // Moving the second above the first makes it change places.
    Second->Top = -1;
    EXPECT_EQ(Second->Top, 0);
    EXPECT_EQ(First->Top, 20);
}

TEST_F(LayoutTest, HiddenControlsLeaveNoGap)
{
    auto* A = Add<TProbe>(&Window, 0, 0, 10, 30);
    auto* B = Add<TProbe>(&Window, 0, 50, 10, 30);
    A->Align = alTop;
    B->Align = alTop;
    Window.Open();
    A->Visible = false;
    EXPECT_EQ(B->Top, 0);
    A->Visible = true;
    EXPECT_EQ(A->Top + B->Top, 30);
}

TEST_F(LayoutTest, AnchorsKeepTheirDistances)
{
    auto* RightBottom = Add<TProbe>(&Window, 300, 200, 50, 40);
    auto* Both = Add<TBox>(&Window, 10, 10, 100, 20);
    auto* Neither = Add<TProbe>(&Window, 100, 100, 10, 10);
    Window.Open();
    RightBottom->Anchors = TAnchors{akRight, akBottom};
    Both->Anchors = TAnchors{akLeft, akRight, akTop};
    Neither->Anchors = TAnchors{};
    Window.SetBounds(40, 40, 460, 340);
    EXPECT_EQ(RightBottom->BoundsRect, TRect(360, 240, 410, 280));
    EXPECT_EQ(Both->BoundsRect, TRect(10, 10, 170, 30));
    EXPECT_EQ(Neither->BoundsRect, TRect(130, 120, 140, 130));
}

TEST_F(LayoutTest, AnchoredControlsComeBackExactlyAfterMakingTheParentTiny)
{
    auto* Both = Add<TBox>(&Window, 10, 10, 380, 20);
    Window.Open();
    Both->Anchors = TAnchors{akLeft, akRight, akTop};
    Window.SetBounds(40, 40, 20, 20);
    Window.SetBounds(40, 40, 400, 300);
    EXPECT_EQ(Both->BoundsRect, TRect(10, 10, 390, 30));
}

TEST_F(LayoutTest, ABatchBetweenDisableAndEnableAlignMakesOnePass)
{
    struct TCounting : TBox {
        using TBox::TBox;
        void AlignControls(TControl* Control, TRect& Rect) override
        {
            ++Passes;
            TBox::AlignControls(Control, Rect);
        }
        int Passes = 0;
    };
    auto* Box = Add<TCounting>(&Window, 0, 0, 200, 200);
    Window.Open();
    Box->Passes = 0;
    Box->DisableAlign();
    for (int I = 0; I < 10; ++I)
        Add<TProbe>(Box, 0, I, 10, 10)->Align = alTop;
    EXPECT_EQ(Box->Passes, 0);
    Box->EnableAlign();
    EXPECT_EQ(Box->Passes, 1);
    EXPECT_EQ(Box->Controls[9]->Top, 90);
}

TEST_F(LayoutTest, ConstraintsLimitTheSizeAtOnceAndLater)
{
    auto* Probe = Add<TProbe>(&Window, 0, 0, 100, 100);
    Probe->Constraints->MaxWidth = 60;
    EXPECT_EQ(Probe->Width, 60);
    Probe->Constraints->MinHeight = 120;
    EXPECT_EQ(Probe->Height, 120);
    Probe->SetBounds(0, 0, 500, 5);
    EXPECT_EQ(Probe->Width, 60);
    EXPECT_EQ(Probe->Height, 120);
    Probe->Constraints->MinWidth = 80; // crosses MaxWidth and takes it along
    EXPECT_EQ(Probe->Constraints->MaxWidth, 80);
    EXPECT_EQ(Probe->Width, 80);
}

TEST_F(LayoutTest, NegativeSizesCountAsNothing)
{
    auto* Probe = Add<TProbe>(&Window, 0, 0, 10, 10);
    Probe->SetBounds(5, 5, -20, -1);
    EXPECT_EQ(Probe->Width, 0);
    EXPECT_EQ(Probe->Height, 0);
}

TEST_F(LayoutTest, ResizeIsToldOnlyWhenTheSizeChanges)
{
    auto* Probe = Add<TProbe>(&Window, 0, 0, 20, 20);
    int Before = Probe->Resizes;
    Probe->Left = 30;
    EXPECT_EQ(Probe->Resizes, Before);
    Probe->Width = 30;
    EXPECT_EQ(Probe->Resizes, Before + 1);
    Probe->Width = 30;
    EXPECT_EQ(Probe->Resizes, Before + 1);
}

TEST_F(LayoutTest, OnCanResizeMayRefuseOrCorrect)
{
    auto* Probe = Add<TProbe>(&Window, 0, 0, 20, 20);
    Probe->OnCanResize = [](TObject*, int& Width, int&, bool& Resize) {
        Resize = Width < 100;
        Width = Width / 10 * 10;
    };
    Probe->Width = 200;
    EXPECT_EQ(Probe->Width, 20);
    Probe->Width = 57;
    EXPECT_EQ(Probe->Width, 50);
}

namespace {

// Counts how often its children are laid out.
class TCountingBox : public TCustomControl {
    VCL_CLASS(TCountingBox, TCustomControl)
public:
    explicit TCountingBox(TComponent* AOwner) : TCustomControl(AOwner) { SetBounds(0, 0, 200, 200); }
    static inline int Layouts = 0; // of all, as they do not outlive what is tested

protected:
    void AlignControls(TControl* Control, TRect& Rect) override
    {
        ++Layouts;
        TCustomControl::AlignControls(Control, Rect);
    }
};

void TCountingBox::Describe(TClassBuilder<TCountingBox>&)
{}

// Takes only even widths.
class TEvenBox : public TCustomControl {
    VCL_CLASS(TEvenBox, TCustomControl)
public:
    explicit TEvenBox(TComponent* AOwner) : TCustomControl(AOwner) {}

protected:
    bool CanResize(int& NewWidth, int& NewHeight) override
    {
        if (!TCustomControl::CanResize(NewWidth, NewHeight))
            return false;
        NewWidth = NewWidth / 2 * 2;
        return NewHeight < 100;
    }
};

void TEvenBox::Describe(TClassBuilder<TEvenBox>&)
{}

} // namespace

TEST_F(LayoutTest, ADeletedParentLaysNothingOut)
{
    auto* Box = Add<TCountingBox>(&Window, 0, 0, 200, 200);
    for (int I = 0; I < 20; ++I)
        Add<TBox>(Box, 0, 0, 20, 20)->Align = I % 2 ? alTop : alLeft;
    Window.Open();
    TCountingBox::Layouts = 0;
    delete Box;
    EXPECT_EQ(TCountingBox::Layouts, 0);
}

TEST_F(LayoutTest, AnOverriddenCanResizeIsAskedWithoutAnEvent)
{
    for (const bool WithWindow : {false, true}) {
        auto* Box = Add<TEvenBox>(&Window, 0, 0, 20, 20);
        if (WithWindow)
            Window.Open();
        Box->Width = 31;
        EXPECT_EQ(Box->Width, 30);
        Box->Height = 120;
        EXPECT_EQ(Box->Height, 20);
        int Asked = 0;
        Box->OnCanResize = [&](TObject*, int&, int&, bool&) { ++Asked; };
        Box->Width = 41;
        EXPECT_EQ(Box->Width, 40);
        EXPECT_GT(Asked, 0);
    }
}

// A handler may delete the control that is being placed, one that is still to come, or the parent.
TEST_F(LayoutTest, HandlersMayDeleteWhatIsBeingLaidOut)
{
    for (const int Victim : {0, 1, 2, 3}) {
        SCOPED_TRACE(Victim);
        auto* Box = Add<TBox>(&Window, 0, 0, 100, 100);
        TControl* Controls[] = {Add<TProbe>(Box, 0, 0, 20, 20), Add<TBox>(Box, 0, 20, 20, 20),
                                Add<TProbe>(Box, 0, 40, 20, 20)};
        for (TControl* Control : Controls)
            Control->Align = alTop;
        Window.Open();
        bool Deleted = false;
        Controls[1]->OnResize = [&](TObject*) {
            if (std::exchange(Deleted, true))
                return;
            if (Victim < 3)
                delete Controls[Victim];
            else
                delete std::exchange(Box, nullptr);
        };
        Box->SetBounds(0, 0, 150, 100);
        EXPECT_TRUE(Deleted);
        delete Box;
    }
}
