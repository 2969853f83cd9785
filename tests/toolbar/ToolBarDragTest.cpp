// Bars under a real mouse: sliding, trading places, tearing off, floating, docking.
#include "robot/SystemInput.h"
#include "tests/toolbar/DockFixture.h"
#include "toolbar/Flpfrm97.h"

#include <thread>

namespace {

class ToolBarDragTest : public DockFixture {
protected:
    void SetUp() override
    {
        Form->ClientWidth = 400;
        Form->ClientHeight = 300;
        Top = NewDock(alTop);
        Bottom = NewDock(alBottom);
        Left = NewDock(alLeft);
        Right = NewDock(alRight);
    }
    void TearDown() override { ReleaseButton(); }

    // Presses on a point of the control, and moves on by so much.
    void Grab(TControl* Control, int X, int Y)
    {
        At = Control->ClientToScreen(TPoint(X, Y));
        MovePointer(At);
        PressButton();
    }
    void Pull(int DX, int DY)
    {
        At = At + TPoint(DX, DY);
        MovePointer(At);
    }
    void PullTo(TControl* Control, int X, int Y)
    {
        At = Control->ClientToScreen(TPoint(X, Y));
        MovePointer(At);
    }
    // Shows the form with one bar, 100 by 26 unless told otherwise, grabbed by its background.
    TTestBar* GrabbedBar(TkelDock* Dock, int Start, int X, int Y, int Length = 100)
    {
        TTestBar* Bar = InsertBar(Dock, "Bar", Start, Length);
        Show();
        Grab(Bar, X, Y);
        return Bar;
    }
    // Where the pointer is, in the bar's coordinates.
    TPoint InBar(const TkelToolBar* Bar) const { return Bar->ScreenToClient(At); }
    // A floating bar, shown at a place of its own.
    TTestBar* FloatingBar(int Length = 100)
    {
        TTestBar* Bar = InsertBar(Top, "Bar", 0, Length);
        Show();
        Bar->DeleteFromDock();
        Bar->FloatToPos(700, 300);
        PumpMessages();
        Bar->TakeEvents();
        return Bar;
    }
    void GrabCaption(TkelToolBar* Bar) { Grab(Bar->Frame, 20, -8); }

    TkelDock* Top = nullptr;
    TkelDock* Bottom = nullptr;
    TkelDock* Left = nullptr;
    TkelDock* Right = nullptr;
    TPoint At;
};

// A point of the window's frame that the system takes for Part.
TPoint FindOnFrame(TkelToolBar* Bar, intptr_t Part)
{
    const TRect R = Bar->Frame->BoundsRect;
    for (int Y = R.top; Y < R.bottom; ++Y)
        for (int X = R.right - 1; X >= R.left; --X)
            if (SendMessageW(Bar->Frame->Handle, WM_NCHITTEST, 0, MAKELPARAM(X, Y)) == Part)
                return {X, Y};
    ADD_FAILURE() << "the frame has no part " << Part;
    return {};
}

} // namespace

// ---- along a row

TEST_F(ToolBarDragTest, ABarSlidesWithThePointer)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    Pull(30, 0);
    EXPECT_EQ(Bar->Left, 80);
    Pull(-60, 3);
    EXPECT_EQ(Bar->Left, 20);
    EXPECT_EQ(Bar->Top, 0);
    EXPECT_EQ(InBar(Bar).X, 40);
    EXPECT_EQ(Bar->TakeEvents(), "");
}

TEST_F(ToolBarDragTest, OnePixelIsEnough)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    Pull(1, 0);
    EXPECT_EQ(Bar->Left, 51);
}

TEST_F(ToolBarDragTest, ABarStopsAtBothEndsOfAHorizontalDock)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    Pull(-80, 0);
    EXPECT_EQ(Bar->Left, 0);
    PullTo(Top, Top->Width - 5, 13);
    EXPECT_EQ(Bar->Left, Top->Width - 100);
}

TEST_F(ToolBarDragTest, ABarStopsAtBothEndsOfAVerticalDock)
{
    TTestBar* Bar = GrabbedBar(Left, 50, 13, 40);
    Pull(0, 30);
    EXPECT_EQ(Bar->Top, 80);
    Pull(0, -110);
    EXPECT_EQ(Bar->Top, 0);
    PullTo(Left, 13, Left->Height - 10); // not too near to the lower dock
    EXPECT_EQ(Bar->Top, Left->Height - 100);
}

// The clamps come in opposite orders: kept as they are.
TEST_F(ToolBarDragTest, ABarLongerThanItsDockShowsItsEndInAHorizontalDock)
{
    TTestBar* Bar = GrabbedBar(Top, 0, 200, 13, 500);
    Pull(40, 0);
    EXPECT_EQ(Bar->Left, Top->Width - 500);
    Pull(-30, 0);
    EXPECT_EQ(Bar->Left, Top->Width - 500);
}

TEST_F(ToolBarDragTest, ABarLongerThanItsDockShowsItsBeginningInAVerticalDock)
{
    TTestBar* Bar = GrabbedBar(Right, 0, 13, 200, 500);
    Pull(0, 40);
    EXPECT_EQ(Bar->Top, 0);
    Pull(0, -30);
    EXPECT_EQ(Bar->Top, 0);
}

TEST_F(ToolBarDragTest, TheRightButtonDragsNothing)
{
    TTestBar* Bar = InsertBar(Top, "Bar", 50, 100);
    Show();
    MovePointerTo(Bar, 40, 13);
    PressButton(mbRight);
    MovePointerTo(Bar, 70, 13);
    EXPECT_EQ(Bar->Left, 50);
    MovePointerTo(Bar, 70, 113);
    EXPECT_FALSE(Bar->Floating);
    ReleaseButton(mbRight);
}

TEST_F(ToolBarDragTest, TheBarStaysWhenTheButtonIsUp)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    Pull(10, 0);
    ReleaseButton();
    Pull(10, 0);
    EXPECT_EQ(Bar->Left, 60);
    EXPECT_FALSE(Bar->MouseCapture);
}

TEST_F(ToolBarDragTest, TheGripDragsTheBar)
{
    TTestBar* Bar = InsertBar(Top, "Bar", 50, 100);
    Show();
    Grab(Bar->DragBox, 5, 10);
    Pull(25, 0);
    EXPECT_EQ(Bar->Left, 75);
    Pull(0, 80);
    EXPECT_TRUE(Bar->Floating);
    Pull(20, 20);
    EXPECT_EQ(InBar(Bar), TPoint(5 + 2, CapSize)) << "the frame follows though the grip is gone";
}

TEST_F(ToolBarDragTest, ASeparatorDragsTheBar)
{
    TTestBar* Bar = InsertBar(Top, "Bar", 50, 100);
    auto* Separator = new TkelTBSeparator(Form.get());
    Separator->Align = alLeft;
    Separator->Parent = Bar;
    Show();
    Grab(Separator, 3, 10);
    Pull(25, 0);
    EXPECT_EQ(Bar->Left, 75);
    Pull(0, 80);
    EXPECT_TRUE(Bar->Floating);
}

TEST_F(ToolBarDragTest, AButtonOfTheBarDragsNothing)
{
    TTestBar* Bar = InsertBar(Top, "Bar", 50, 100);
    TkelTBButton* Button = NewButton(Bar);
    Show();
    Grab(Button, 5, 5);
    Pull(25, 0);
    Pull(0, 80);
    EXPECT_EQ(Bar->Left, 50);
    EXPECT_FALSE(Bar->Floating);
}

// ---- trading places

TEST_F(ToolBarDragTest, ABarTradesPlacesWithTheRowBelow)
{
    TTestBar* A = InsertBar(Top, "A", 0, 300);
    TTestBar* B = InsertBar(Top, "B", 0, 300);
    Show();
    Grab(A, 100, 13);
    PullTo(Top, 100, 39);
    EXPECT_EQ(Layout(Top), "52: A 0,0 B 0,26") << "its middle is at 39";
    Pull(0, 1);
    EXPECT_EQ(Layout(Top), "52: A 0,26 B 0,0");
    // On the way back it is the middle of the row above that counts.
    PullTo(Top, 100, 13);
    EXPECT_EQ(Layout(Top), "52: A 0,26 B 0,0");
    Pull(0, -1);
    EXPECT_EQ(Layout(Top), "52: A 0,0 B 0,26");
    EXPECT_EQ(A->TakeEvents() + B->TakeEvents(), "");
}

TEST_F(ToolBarDragTest, ABarFromBelowJoinsARowThatHasRoom)
{
    InsertBar(Top, "A", 0, 100);
    TTestBar* B = InsertBar(Top, "B", 0, 100);
    Show();
    Grab(B, 50, 13);
    PullTo(Top, 50, 12);
    EXPECT_EQ(Layout(Top), "26: A 0,0 B 100,0");
}

TEST_F(ToolBarDragTest, ABarFromAboveJoinsARowThatHasRoom)
{
    TTestBar* A = InsertBar(Top, "A", 0, 100);
    InsertBar(Top, "B", 0, 100);
    Show();
    Grab(A, 50, 13);
    PullTo(Top, 50, 40);
    EXPECT_EQ(Layout(Top), "26: A 100,0 B 0,0");
}

TEST_F(ToolBarDragTest, ColumnsTradePlacesToo)
{
    TTestBar* A = InsertBar(Left, "A", 0, 200);
    InsertBar(Left, "B", 0, 200);
    Show();
    Grab(A, 13, 100);
    PullTo(Left, 40, 100);
    EXPECT_EQ(Layout(Left), "52: A 0,26 B 0,0");
    PullTo(Left, 12, 100);
    EXPECT_EQ(Layout(Left), "52: A 0,0 B 0,26");
}

TEST_F(ToolBarDragTest, ABarPushesItsNeighbourBehindItself)
{
    InsertBar(Top, "A", 0, 100);
    TTestBar* B = InsertBar(Top, "B", 0, 100);
    Show();
    Grab(B, 50, 13);
    PullTo(Top, 50, 12); // into the row of A, behind it
    PullTo(Top, 80, 14); // over it, with the pointer in its lower half
    EXPECT_EQ(Layout(Top), "26: A 100,0 B 30,0");
    PullTo(Top, 150, 14);
    EXPECT_EQ(Layout(Top), "26: A 100,0 B 100,0");
    Pull(1, 0);
    Pull(1, 0);
    EXPECT_EQ(Layout(Top), "26: A 200,0 B 102,0");
    Pull(0, -2);
    Pull(120, 0);
    EXPECT_EQ(Layout(Top), "26: A 200,0 B 222,0") << "in the upper half bars pass each other";
}

// ---- Escape

TEST_F(ToolBarDragTest, EscapePutsABarBackWhereItWasTaken)
{
    TTestBar* A = InsertBar(Top, "A", 0, 100);
    InsertBar(Top, "B", 30, 100);
    TTestBar* C = InsertBar(Left, "C", 60, 100);
    Show();
    const std::string Before = Layout(Top) + Layout(Left) + Layout(Bottom);
    struct {
        TPoint Place;
        TWinControl* There;
    } Cases[] = {{{200, 13}, Top}, {{100, 40}, Top}, {{13, 200}, Left}, {{200, 200}, nullptr}};
    for (const auto& Case : Cases) {
        Grab(A->DragBox, 5, 10);
        PullTo(Form.get(), Case.Place.X, Case.Place.Y);
        Pull(1, 1);
        if (Case.There)
            EXPECT_EQ(A->Parent, Case.There);
        else
            EXPECT_TRUE(A->Floating);
        EXPECT_NE(Layout(Top) + Layout(Left) + Layout(Bottom), Before);
        TypeKey(VK_ESCAPE);
        // The order of the dock's controls may have changed.
        EXPECT_EQ(A->Parent, Top);
        EXPECT_EQ(TPoint(A->Left, A->Top), TPoint(0, 0));
        EXPECT_EQ(A->Width, 100);
        EXPECT_EQ(Top->Height, 52);
        EXPECT_EQ(TPoint(C->Left, C->Top), TPoint(0, 60));
        EXPECT_EQ(Left->Width, 26);
        EXPECT_FALSE(A->Floating);
        Pull(10, 10);
        EXPECT_EQ(A->Left, 0) << "the drag is over though the button is down";
        ReleaseButton();
        EXPECT_EQ(GetCapture(), nullptr);
    }
    Grab(A->DragBox, 5, 10);
    Pull(20, 0);
    EXPECT_EQ(A->Left, 20) << "another drag";
}

TEST_F(ToolBarDragTest, EscapePutsAFloatingBarBack)
{
    TTestBar* Bar = FloatingBar();
    const TRect Before = Bar->Frame->BoundsRect;
    GrabCaption(Bar);
    PullTo(Form.get(), 200, 200);
    Pull(1, 1);
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(Bar->Frame->BoundsRect, Before);
    ReleaseButton();
    GrabCaption(Bar);
    PullTo(Form.get(), 3, 150);
    Pull(0, 1);
    ASSERT_EQ(Bar->Parent, Left);
    TypeKey(VK_ESCAPE);
    ASSERT_TRUE(Bar->Floating);
    EXPECT_EQ(Bar->Frame->BoundsRect, Before);
    EXPECT_EQ(Left->Width, 0);
    EXPECT_EQ(Bar->Width, 100);
}

TEST_F(ToolBarDragTest, WithoutADragEscapeGoesToTheForm)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    Pull(10, 0);
    ReleaseButton();
    Form->KeyPreview = true;
    int Keys = 0;
    Form->OnKeyDown = [&](TObject*, uint16_t& Key, TShiftState) { Keys += Key == VK_ESCAPE; };
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(Keys, 1);
    EXPECT_EQ(Bar->Left, 60);
    Grab(Bar, 40, 13);
    Pull(10, 0);
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(Keys, 1) << "that one is the drag's own";
    EXPECT_EQ(Bar->Left, 60);
}

TEST_F(ToolBarDragTest, ABarThatEscapeReturnsMayGoInItsHandler)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    PullTo(Form.get(), 200, 200);
    ASSERT_TRUE(Bar->Floating);
    Bar->OnStatic = [=](TObject*) { delete Bar; };
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(Form->FindComponent("Bar"), nullptr);
}

// ---- leaving and entering docks

TEST_F(ToolBarDragTest, ABarStaysWithinFivePixelsOfItsDock)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    PullTo(Top, 90, 30);
    EXPECT_EQ(Bar->Parent, Top);
    Pull(0, 1);
    EXPECT_TRUE(Bar->Floating);
    EXPECT_EQ(Bar->TakeEvents(), "float");
}

TEST_F(ToolBarDragTest, ABarTornOffAnUpperDockFloatsBelowThePointer)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    PullTo(Top, 90, 120);
    ASSERT_TRUE(Bar->Floating);
    EXPECT_EQ(Bar->Parent, Bar->Frame);
    EXPECT_TRUE(Bar->Frame->Visible);
    EXPECT_EQ(Bar->Frame->Caption, "Bar");
    EXPECT_EQ(Bar->Frame->ClientWidth, 100);
    EXPECT_EQ(Bar->Frame->ClientHeight, 26);
    EXPECT_EQ(InBar(Bar), TPoint(40, CapSize));
    EXPECT_EQ(Top->Height, 0);
    Pull(33, 44);
    EXPECT_EQ(InBar(Bar), TPoint(40, CapSize)) << "it keeps below the pointer";
    ReleaseButton();
    Pull(50, 0);
    EXPECT_EQ(InBar(Bar), TPoint(90, CapSize));
}

TEST_F(ToolBarDragTest, ABarTornUpwardsKeepsItsPlaceBelowThePointer)
{
    TTestBar* Bar = GrabbedBar(Bottom, 50, 40, 13);
    PullTo(Bar, 40, -20);
    ASSERT_TRUE(Bar->Floating);
    EXPECT_EQ(InBar(Bar), TPoint(40, 26 - 20));
    EXPECT_EQ(Bottom->Height, 0);
}

TEST_F(ToolBarDragTest, ABarTornOffASideFloatsHorizontallyAtTheSamePlaceAlongIt)
{
    for (TkelDock* Dock : {Left, Right}) {
        TTestBar* Bar = InsertBar(Dock, Dock == Left ? "FromLeft" : "FromRight", 20, 120);
        if (Dock == Left)
            Show();
        Grab(Bar, 13, 70);
        PullTo(Form.get(), 200, 100);
        ASSERT_TRUE(Bar->Floating);
        EXPECT_EQ(Bar->Width, 120);
        EXPECT_EQ(Bar->Height, 26);
        EXPECT_EQ(InBar(Bar), TPoint(80, CapSize)) << "ten pixels further along than it was taken";
        EXPECT_EQ(Dock->Width, 0);
        Pull(10, 10);
        EXPECT_EQ(InBar(Bar), TPoint(80, CapSize));
        ReleaseButton();
        Bar->HidePanel();
    }
}

TEST_F(ToolBarDragTest, ABarThatTheHandHasLeftBehindComesAlongAsItWasTaken)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    PullTo(Form.get(), 350, 200);
    ASSERT_TRUE(Bar->Floating);
    EXPECT_EQ(InBar(Bar), TPoint(40, CapSize));
}

TEST_F(ToolBarDragTest, ABarThatAQuickHandPullsUpComesAlongByItsCaption)
{
    TTestBar* Bar = GrabbedBar(Bottom, 50, 40, 13);
    PullTo(Bar, 40, -200);
    ASSERT_TRUE(Bar->Floating);
    EXPECT_EQ(InBar(Bar), TPoint(40, -CapSize / 2));
}

TEST_F(ToolBarDragTest, ABarGoesFromDockToDock)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    NewButton(Bar, alRight);
    PullTo(Form.get(), 3, 150);
    EXPECT_EQ(Bar->Parent, Left);
    EXPECT_EQ(Bar->TakeEvents(), "static");
    EXPECT_EQ(Bar->Width, 26);
    EXPECT_EQ(Bar->Height, 100);
    EXPECT_EQ(Top->Height, 0);
    EXPECT_EQ(Left->Width, 26);
    PullTo(Form.get(), 200, 298);
    EXPECT_EQ(Bar->Parent, Bottom);
    EXPECT_EQ(Bar->Width, 100);
    EXPECT_EQ(Bar->Items().back()->Align, alRight);
    Pull(-20, 0);
    EXPECT_EQ(InBar(Bar).X, 40) << "the drag goes on";
    EXPECT_FALSE(Bar->Floating);
}

// Where docks meet, both are near.
TEST_F(ToolBarDragTest, ABarStaysInItsOwnDockWhereDocksMeet)
{
    delete Top;
    Top = NewDock(alTop); // behind the one at the left among the components
    TTestBar* A = InsertBar(Top, "A", 0, 100);
    InsertBar(Top, "B", 0, 350);
    Show();
    Grab(A->DragBox, 2, 13);
    for (int Step = 0; Step < 16; ++Step)
        Pull(0, 2);
    EXPECT_EQ(A->Parent, Top);
    EXPECT_EQ(Layout(Top), "52: A 0,26 B 0,0");
}

TEST_F(ToolBarDragTest, HiddenDocksTakeNoBars)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    Left->Visible = false;
    PullTo(Form.get(), 3, 150);
    EXPECT_TRUE(Bar->Floating);
}

// ---- frames

TEST_F(ToolBarDragTest, TheCaptionDragsAFrameWithoutAJump)
{
    TTestBar* Bar = FloatingBar();
    const TRect Before = Bar->Frame->BoundsRect;
    GrabCaption(Bar);
    Pull(1, 0);
    EXPECT_EQ(Bar->Frame->Left, Before.left + 1);
    EXPECT_EQ(Bar->Frame->Top, Before.top);
    Pull(-31, 40);
    EXPECT_EQ(Bar->Frame->Left, Before.left - 30);
    EXPECT_EQ(Bar->Frame->Top, Before.top + 40);
    EXPECT_EQ(Bar->TakeEvents(), "");
}

TEST_F(ToolBarDragTest, TheBackgroundDragsAFrameToo)
{
    TTestBar* Bar = FloatingBar();
    const TRect Before = Bar->Frame->BoundsRect;
    Grab(Bar, 50, 13);
    Pull(-12, 7);
    EXPECT_EQ(Bar->Frame->Left, Before.left - 12);
    EXPECT_EQ(Bar->Frame->Top, Before.top + 7);
}

TEST_F(ToolBarDragTest, AFrameDocksOnEverySide)
{
    for (TkelDock* Dock : {Top, Left, Bottom, Right}) {
        if (!Form->Visible)
            FloatingBar();
        auto* Bar = As<TTestBar>(Form->FindComponent("Bar"));
        TFPForm97* Frame = Bar->Frame;
        GrabCaption(Bar);
        // The bar begins eight pixels below the pointer.
        const TPoint Middle(Dock == Left    ? 1
                            : Dock == Right ? Form->ClientWidth - 2
                                            : 200,
                            Dock == Top      ? -15
                            : Dock == Bottom ? Form->ClientHeight - 20
                                             : 150);
        PullTo(Form.get(), Middle.X, Middle.Y);
        Pull(0, 1); // now the bar is there
        ASSERT_EQ(Bar->Parent, Dock) << "the dock aligned to edge " << static_cast<int>(Dock->Align);
        EXPECT_EQ(Bar->TakeEvents(), "static");
        EXPECT_FALSE(Bar->Floating);
        EXPECT_EQ(Bar->Frame, nullptr);
        EXPECT_TRUE(Bar->DragBox->Visible);
        EXPECT_EQ(Dock->Axis().Thickness(*Dock), 26);
        for (int I = 0; I < Screen->FormCount; ++I)
            EXPECT_NE(Screen->Forms[I], Frame) << "the frame is gone";
        ReleaseButton();

        Grab(Bar, 15, 15);
        PullTo(Form.get(), 200, 150);
        ASSERT_TRUE(Bar->Floating);
        ReleaseButton();
        Bar->TakeEvents();
    }
}

TEST_F(ToolBarDragTest, AFrameDocksToAnEmptyUpperDockWhenTheBarReachesItsEdge)
{
    TTestBar* Bar = FloatingBar();
    ASSERT_EQ(Top->Height, 0);
    GrabCaption(Bar);
    // The bar, a pixel smaller all around, must come into the band of two pixels around the form's upper edge.
    const TPoint Grip = At - Bar->ClientOrigin;
    const TPoint Edge = Form->ClientOrigin + TPoint(100, 0);
    At = Edge + Grip;
    MovePointer(At);
    Pull(1, 0);
    EXPECT_TRUE(Bar->Floating) << "the bar begins one pixel below its upper edge, where the band ends";
    Pull(0, -1);
    Pull(1, 0);
    EXPECT_EQ(Bar->Parent, Top);
    EXPECT_EQ(Top->Height, 26);
}

TEST_F(ToolBarDragTest, AFrameDocksAtASideOnlyWithThePointer)
{
    TTestBar* Bar = FloatingBar();
    GrabCaption(Bar);
    // The frame reaches over the form's left edge, the pointer is six pixels inside.
    PullTo(Form.get(), 6, 150);
    EXPECT_TRUE(Bar->Floating);
    Pull(-1, 0);
    EXPECT_EQ(Bar->Parent, Left);
}

TEST_F(ToolBarDragTest, TheCloseBoxHidesTheBar)
{
    TTestBar* Bar = FloatingBar();
    TFPForm97* Frame = Bar->Frame;
    MovePointer(FindOnFrame(Bar, HTCLOSE));
    // The system waits for the release in a loop of its own.
    SendButton(mbLeft, true);
    SendButton(mbLeft, false);
    EXPECT_TRUE(PumpUntil([&] { return !Frame->Visible; }));
    EXPECT_FALSE(Bar->Visible);
    EXPECT_EQ(Bar->TakeEvents(), "hide");
    Bar->ShowPanel();
    EXPECT_TRUE(Bar->Visible);
    EXPECT_TRUE(Frame->Visible);
    EXPECT_EQ(Bar->Frame, Frame) << "the same one";
    EXPECT_EQ(Bar->TakeEvents(), "show");
}

TEST_F(ToolBarDragTest, AFrameHasItsCloseBoxWhateverCloseButtonSays)
{
    TTestBar* Bar = FloatingBar();
    EXPECT_FALSE(Bar->CloseButton);
    EXPECT_EQ(Bar->Frame->BorderIcons, TBorderIcons{biSystemMenu});
    EXPECT_EQ(Bar->Frame->BorderStyle, bsToolWindow);
    EXPECT_EQ(Bar->Frame->FormStyle, fsStayOnTop);
}

TEST_F(ToolBarDragTest, AFrameIsAsNarrowAsItsBar)
{
    TTestBar* Bar = FloatingBar(30);
    EXPECT_EQ(Bar->Width, 30);
    EXPECT_EQ(Bar->Frame->ClientWidth, 30);
}

TEST_F(ToolBarDragTest, TheUserSizesAFrameWithAllowResize)
{
    TTestBar* Bar = InsertBar(Top, "Bar", 0, 100);
    Bar->AllowResize = true;
    Show();
    Bar->DeleteFromDock();
    Bar->FloatToPos(500, 300);
    PumpMessages();
    EXPECT_EQ(Bar->Frame->BorderStyle, bsSizeToolWin);
    EXPECT_EQ(Bar->Width, 100);

    // The system moves the edge in a loop of its own, so the pointer is moved from outside.
    const TPoint Corner = FindOnFrame(Bar, HTBOTTOMRIGHT);
    MovePointer(Corner);
    std::thread Hand([&] {
        SendButton(mbLeft, true);
        for (int Step = 1; Step <= 10; ++Step) {
            Sleep(20);
            SendMove(Corner + TPoint(6 * Step, 3 * Step));
        }
        Sleep(50);
        SendButton(mbLeft, false);
    });
    EXPECT_TRUE(PumpUntil([&] { return Bar->Frame->ClientWidth == 160 && Bar->Frame->ClientHeight == 56; }));
    Hand.join();
    PumpMessages();
    EXPECT_EQ(Bar->Width, 160);
    EXPECT_EQ(Bar->Height, 56);
}

TEST_F(ToolBarDragTest, ABarThatWasResizedWhileItFloatedDocksWithItsRowThickness)
{
    for (TkelDock* Dock : {Bottom, Left}) {
        TTestBar* Bar = InsertBar(Dock, "", 0, 100);
        Bar->AllowResize = true;
        if (Dock == Bottom)
            Show();
        Bar->FloatToPos(700, 300);
        Bar->Frame->ClientHeight = 90;
        Bar->Frame->ClientWidth = 80;
        ASSERT_EQ(Bar->Height, 90);
        GrabCaption(Bar);
        PullTo(Form.get(), 200, -15);
        Pull(0, 1);
        ReleaseButton();
        ASSERT_EQ(Bar->Parent, Top);
        EXPECT_EQ(Bar->Height, 26);
        EXPECT_EQ(Bar->Width, 80);
        EXPECT_EQ(Top->Height, 26);
        delete Bar;
    }
}

TEST_F(ToolBarDragTest, WithoutAllowResizeAFrameHasNoEdgesToPull)
{
    TTestBar* Bar = FloatingBar();
    const TRect R = Bar->Frame->BoundsRect;
    const auto Hit = SendMessageW(Bar->Frame->Handle, WM_NCHITTEST, 0, MAKELPARAM(R.right - 1, R.bottom - 1));
    EXPECT_NE(Hit, HTBOTTOMRIGHT);
    EXPECT_NE(Hit, HTRIGHT);
}

// ---- frames and the form that their bars come from

TEST_F(ToolBarDragTest, AFrameBelongsToTheFormsWindow)
{
    TTestBar* Bar = FloatingBar();
    EXPECT_EQ(Bar->Frame->Owner, nullptr);
    EXPECT_EQ(GetWindow(Bar->Frame->Handle, GW_OWNER), Form->Handle);
    EXPECT_NE(GetWindowLongW(Bar->Frame->Handle, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(ToolBarDragTest, AFrameIsMinimizedWithTheForm)
{
    TTestBar* Bar = FloatingBar();
    for (int Time = 1; Time <= 2; ++Time) {
        ShowWindow(Form->Handle, SW_MINIMIZE);
        EXPECT_TRUE(PumpUntil([&] { return !IsWindowVisible(Bar->Frame->Handle); })) << Time;
        EXPECT_TRUE(Bar->Visible);
        ShowWindow(Form->Handle, SW_RESTORE);
        EXPECT_TRUE(PumpUntil([&] { return IsWindowVisible(Bar->Frame->Handle) != 0; })) << Time;
    }
}

TEST_F(ToolBarDragTest, AFrameIsClosedAndShownWithTheForm)
{
    TTestBar* Bar = FloatingBar();
    Form->Close();
    EXPECT_FALSE(IsWindowVisible(Bar->Frame->Handle));
    EXPECT_TRUE(Bar->Visible);
    Show();
    EXPECT_TRUE(IsWindowVisible(Bar->Frame->Handle));
    Bar->HidePanel();
    Form->Close();
    Show();
    EXPECT_FALSE(IsWindowVisible(Bar->Frame->Handle)) << "a bar that the user has closed stays closed";
}

TEST_F(ToolBarDragTest, ABarOfAFormThatDoesNotShowIsNotToBeSeen)
{
    TTestBar* Bar = InsertBar(Top, "Bar", 0, 100);
    Bar->FloatToPos(700, 300);
    EXPECT_FALSE(Bar->Frame->Showing);
    Show();
    EXPECT_TRUE(IsWindowVisible(Bar->Frame->Handle));
    EXPECT_EQ(GetWindow(Bar->Frame->Handle, GW_OWNER), Form->Handle);
}

TEST_F(ToolBarDragTest, AFrameOutlivesAWindowOfTheForm)
{
    TTestBar* Bar = FloatingBar();
    const HWND Frame = Bar->Frame->Handle;
    Form->Perform(CM_RECREATEWND);
    PumpMessages();
    EXPECT_EQ(Bar->Frame->Handle, Frame);
    EXPECT_TRUE(IsWindow(Frame));
    EXPECT_TRUE(IsWindowVisible(Frame));
    EXPECT_EQ(GetWindow(Frame, GW_OWNER), Form->Handle);
}

TEST_F(ToolBarDragTest, ABarMayOutliveTheFormThatItComesFrom)
{
    auto* Bar = new TTestBar(nullptr);
    Bar->Caption = "Bar";
    Bar->Parent = Top;
    Bar->SetBounds(0, 0, 100, 26);
    Bar->InsertToDock();
    Show();
    Bar->FloatToPos(700, 300);
    Form.reset();
    PumpMessages();
    EXPECT_TRUE(Bar->Floating);
    delete Bar;
    PumpMessages();
    EXPECT_EQ(Screen->FormCount, 0);
    Form = std::make_unique<TForm>(nullptr);
}

// ---- positions

TEST_F(ToolBarDragTest, FloatToPosPlacesTheFrame)
{
    TTestBar* Bar = InsertBar(Top, "Bar", 0, 100);
    Show();
    Bar->DeleteFromDock();
    Bar->FloatToPos(300, 400);
    EXPECT_EQ(Bar->Frame->Left, 300);
    EXPECT_EQ(Bar->Frame->Top, 400 - CapSize);
    EXPECT_EQ(Bar->TakeEvents(), "float");
    Bar->FloatToPos(320, 410);
    EXPECT_EQ(Bar->Frame->Left, 320);
    EXPECT_EQ(Bar->Frame->Top, 410 - CapSize);
    EXPECT_EQ(Bar->TakeEvents(), "") << "it floats already";
    int X = 0;
    int Y = 0;
    EXPECT_TRUE(Bar->isFloat(X, Y));
    EXPECT_EQ(X, 321);
    EXPECT_EQ(Y, 411);
}

TEST_F(ToolBarDragTest, ADockedBarGivesUpItsPlaceWhenItIsMadeToFloat)
{
    TTestBar* A = InsertBar(Top, "A", 0, 100);
    InsertBar(Top, "B", 0, 100);
    TTestBar* Upright = InsertBar(Left, "C", 0, 100);
    Show();
    A->FloatToPos(300, 400);
    EXPECT_EQ(Layout(Top), "26: B 0,0");
    EXPECT_FALSE(A->DragBox->Visible);
    EXPECT_EQ(A->BevelInner, bvNone);
    Upright->FloatToPos(500, 400);
    EXPECT_EQ(Layout(Left), "0:");
    EXPECT_EQ(Upright->Width, 100);
    EXPECT_EQ(Upright->Height, 26);
    EXPECT_EQ(Upright->Frame->ClientWidth, 100);
    EXPECT_TRUE(Upright->Visible);
}

TEST_F(ToolBarDragTest, ADockedBarThatIsDeletedGivesUpItsRow)
{
    TTestBar* A = InsertBar(Top, "A", 0, 100);
    InsertBar(Top, "B", 0, 100);
    TTestBar* C = InsertBar(Top, "C", 0, 100);
    Show();
    C->HidePanel();
    delete A;
    EXPECT_EQ(Layout(Top), "26: B 0,0 (C 0,0)");
    delete C;
    EXPECT_EQ(Layout(Top), "26: B 0,0") << "it had no room";
}

TEST_F(ToolBarDragTest, ADockedBarTellsItsPlaceInTheDock)
{
    TTestBar* Bar = InsertBar(Top, "Bar", 35, 100);
    int X = 0;
    int Y = 1;
    EXPECT_FALSE(Bar->isFloat(X, Y));
    EXPECT_EQ(X, 35);
    EXPECT_EQ(Y, 0);
}

TEST_F(ToolBarDragTest, AHiddenBarFloatsUnseen)
{
    TTestBar* Bar = InsertBar(Top, "Bar", 0, 100);
    Show();
    Bar->HidePanel();
    Bar->FloatToPos(300, 300);
    EXPECT_FALSE(Bar->Visible);
    EXPECT_FALSE(Bar->Frame->Visible);
    Bar->ShowPanel();
    EXPECT_TRUE(Bar->Visible);
    EXPECT_TRUE(Bar->Frame->Visible);
}

TEST_F(ToolBarDragTest, ShowingAShownBarAndHidingAHiddenOneDoNothing)
{
    TTestBar* Bar = InsertBar(Top, "Bar", 0, 100);
    Bar->ShowPanel();
    EXPECT_EQ(Bar->TakeEvents(), "");
    EXPECT_EQ(Top->Height, 26);
    Bar->HidePanel();
    Bar->TakeEvents();
    Bar->HidePanel();
    EXPECT_EQ(Bar->TakeEvents(), "");
    EXPECT_EQ(Top->Height, 0);
}

// ---- things that go while they are needed

TEST_F(ToolBarDragTest, AFloatingBarTakesItsFrameAlong)
{
    TTestBar* Bar = FloatingBar();
    const int Forms = Screen->FormCount;
    delete Bar;
    PumpMessages();
    EXPECT_EQ(Screen->FormCount, Forms - 1);
}

TEST_F(ToolBarDragTest, AFrameThatIsDeletedTakesItsBarAlong)
{
    TTestBar* Bar = FloatingBar();
    const int Forms = Screen->FormCount;
    Bar->Frame->Release();
    PumpMessages();
    EXPECT_EQ(Screen->FormCount, Forms - 1);
    EXPECT_EQ(Form->FindComponent("Bar"), nullptr);
}

// Messages are handled in the middle of the step.
TEST_F(ToolBarDragTest, TheFormMayGoWhileBarsTradePlaces)
{
    TTestBar* A = InsertBar(Top, "A", 0, 300);
    InsertBar(Top, "B", 0, 300);
    Show();
    Application->OnMessage = [this](MSG& Message, bool& Handled) {
        Handled = Message.message == WM_APP;
        if (Handled)
            Form.reset();
    };
    A->PublicMouseDown(mbLeft, {ssLeft}, 100, 13);
    PostMessageW(Application->Handle, WM_APP, 0, 0);
    A->PublicMouseMove({ssLeft}, 100, 40);
    Application->OnMessage = nullptr;
    EXPECT_EQ(Form, nullptr);
    Form = std::make_unique<TForm>(nullptr);
}

TEST_F(ToolBarDragTest, TheFormMayGoWhileABarIsDragged)
{
    TTestBar* Bar = GrabbedBar(Top, 50, 40, 13);
    PullTo(Top, 90, 120);
    ASSERT_TRUE(Bar->Floating);
    Form.reset();
    ReleaseButton();
    PumpMessages();
    EXPECT_EQ(Screen->FormCount, 0);
    Form = std::make_unique<TForm>(nullptr);
}
