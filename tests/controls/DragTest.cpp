// Drag and drop between controls.
#include "tests/controls/DragFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

// ---- the course of a drag

TEST_F(DragTest, AnAutomaticControlIsDraggedAndDropped)
{
    DragToTarget();
    EXPECT_THAT(Log, ElementsAre("start", "enter target 20,20 with source", "move target 20,20 with source"));
    EXPECT_TRUE(Source->Dragging());
    Log.clear();
    MovePointerTo(Target, 25, 21);
    EXPECT_THAT(Log, ElementsAre("move target 25,21 with source"));
    Log.clear();
    ReleaseButton();
    EXPECT_THAT(Log, ElementsAre("drop on target 25,21 with source", "end target 25,21"));
    EXPECT_FALSE(Source->Dragging());
    EXPECT_EQ(Source->Canceled, 0);
}

TEST_F(DragTest, TargetsAreLeftWhenThePointerMovesOn)
{
    TPiece* Other = NewPiece("other", 220);
    Watch(Other, false);
    HoldOverTarget();
    MovePointerTo(Other, 5, 6);
    EXPECT_THAT(Log, ElementsAre("leave target 105,6 with source", "enter other 5,6 with source",
                                 "move other 5,6 with source"));
}

TEST_F(DragTest, NobodyGetsWhatWasRefused)
{
    Watch(Target, false);
    HoldOverTarget();
    ReleaseButton();
    EXPECT_THAT(Log, ElementsAre("leave target 20,20 with source", "end nothing 0,0"));
    EXPECT_EQ(Source->Canceled, 1);
}

TEST_F(DragTest, ControlsWithoutAHandlerAndDisabledOnesTakeNothing)
{
    Target->OnDragOver = nullptr;
    DragToTarget();
    EXPECT_EQ(GetCursor(), Cursor(crNoDrop));
    ReleaseButton();
    EXPECT_THAT(Log, ElementsAre("start", "end nothing 0,0"));

    Log.clear();
    Watch(Target, true);
    Target->Enabled = false;
    MovePointerTo(Source, 10, 10);
    DragToTarget();
    ReleaseButton();
    EXPECT_THAT(Log, ElementsAre("start", "end nothing 0,0"));
}

TEST_F(DragTest, WindowedControlsAreSourcesAndTargetsToo)
{
    auto* From = Add<TBox>(&Window, 20, 100, 50, 50);
    auto* To = Add<TBox>(&Window, 120, 100, 50, 50);
    From->Caption = "from";
    To->Caption = "to";
    From->OnEndDrag = Source->OnEndDrag;
    From->DragMode = dmAutomatic;
    Watch(To, true);
    MovePointerTo(From, 10, 10);
    PressButton();
    MovePointerTo(To, 3, 4);
    ReleaseButton();
    EXPECT_THAT(
        Log, ElementsAre("enter to 3,4 with from", "move to 3,4 with from", "drop on to 3,4 with from", "end to 3,4"));
}

TEST_F(DragTest, ThePointerTellsWhoTakesIt)
{
    const HCURSOR Before = GetCursor();
    Source->DragCursor = crSizeAll;
    DragToTarget();
    EXPECT_EQ(GetCursor(), Cursor(crSizeAll));
    MovePointerTo(&Window, 5, 200);
    EXPECT_EQ(GetCursor(), Cursor(crNoDrop));
    SendMessageW(GetCapture(), WM_CANCELMODE, 0, 0);
    EXPECT_EQ(GetCursor(), Before);
}

// ---- how it starts

TEST_F(DragTest, ASmallMovementStartsNothing)
{
    PressButton();
    MovePointerTo(Source, 10 + GetSystemMetrics(SM_CXDRAG) - 1, 10);
    EXPECT_THAT(Log, IsEmpty());
    ReleaseButton();
    EXPECT_THAT(Log, IsEmpty());
    EXPECT_FALSE(Source->Dragging());
    EXPECT_EQ(Source->Canceled, 1);
    EXPECT_FALSE(Source->ControlState.Contains(csLButtonDown));
}

TEST_F(DragTest, APressOnAManualControlIsAClickUntilTheThreshold)
{
    Source->DragMode = dmManual;
    Source->OnClick = [this](TObject*) { Log.push_back("click"); };
    Source->OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { Source->BeginDrag(false, 12); };
    PressButton();
    EXPECT_TRUE(Source->Dragging());
    MovePointerTo(Source, 21, 10);
    ReleaseButton();
    EXPECT_THAT(Log, ElementsAre("click"));
    EXPECT_FALSE(Source->Dragging());

    Log.clear();
    MovePointerTo(Source, 10, 10);
    PressButton();
    MovePointerTo(Source, 22, 10);
    EXPECT_THAT(Log, ElementsAre("start"));
    ReleaseButton();
    EXPECT_THAT(Log, ElementsAre("start", "end nothing 0,0")) << "no click at the end of a drag";
    ClickButton();
    EXPECT_EQ(Log.back(), "click");
}

TEST_F(DragTest, DraggingCanStartAtOnce)
{
    Source->DragMode = dmManual;
    Watch(Source, true);
    Source->BeginDrag(true);
    EXPECT_THAT(Log, ElementsAre("start", "enter source 10,10 with source", "move source 10,10 with source"));
    EXPECT_TRUE(Source->Dragging());
    Source->EndDrag(true);
    EXPECT_EQ(Log.back(), "end source 10,10");
}

TEST_F(DragTest, OnlyOneControlIsDraggedAtATime)
{
    Source->BeginDrag(true);
    Target->BeginDrag(true);
    EXPECT_FALSE(Target->Dragging());
    Target->EndDrag(false);
    EXPECT_TRUE(Source->Dragging());
    Source->EndDrag(false);
    EXPECT_THAT(Log, ElementsAre("start", "end nothing 0,0"));
}

TEST_F(DragTest, AControlOnNoFormIsNotDragged)
{
    TPiece Alone(nullptr);
    Alone.BeginDrag(true);
    EXPECT_FALSE(Alone.Dragging());
}

TEST_F(DragTest, APressMayDragAnotherControl)
{
    Target->OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { Source->BeginDrag(true); };
    MovePointerTo(Target, 10, 10);
    PressButton();
    EXPECT_TRUE(Source->Dragging());
    EXPECT_FALSE(Target->ControlState.Contains(csLButtonDown)) << "its press is given up";
    ReleaseButton();
    EXPECT_EQ(Log.back(), "end target 10,10");
}

TEST_F(DragTest, TheMouseMayBeTakenFromAnotherWindow)
{
    auto* Box = Add<TBox>(&Window, 20, 100, 50, 50);
    Box->OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { Source->BeginDrag(false); };
    MovePointerTo(Box, 10, 10);
    PressButton();
    EXPECT_TRUE(Source->Dragging());
    MovePointerTo(Target, 1, 2);
    ReleaseButton();
    EXPECT_EQ(Log.back(), "end target 1,2");
}

TEST_F(DragTest, TheRightButtonDragsToo)
{
    Source->OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { Source->BeginDrag(false); };
    PressButton(mbRight);
    MovePointerTo(Target, 1, 2);
    ReleaseButton(mbRight);
    EXPECT_EQ(Log.back(), "end target 1,2");
}

// ---- how it is given up

TEST_F(DragTest, EscapeGivesUpAndIsUsedUp)
{
    auto* Box = Add<TBox>(&Window, 20, 100, 50, 50);
    Box->OnKeyDown = [this](TObject*, uint16_t& Key, TShiftState) { Log.push_back(Format("key %d", Key)); };
    Box->OnKeyPress = [this](TObject*, char16_t& Key) { Log.push_back(Format("character %d", int{Key})); };
    SetForegroundWindow(Window.Handle);
    ::SetFocus(Box->Handle);
    HoldOverTarget();
    TypeKey(VK_ESCAPE);
    EXPECT_THAT(Log, ElementsAre("leave target 20,20 with source", "end nothing 0,0"));
    EXPECT_EQ(Source->Canceled, 1);
    ReleaseButton();
    EXPECT_EQ(Log.size(), 2u) << "nothing is dropped later";
    TypeKey(VK_ESCAPE);
    EXPECT_THAT(Log, testing::Contains("key 27"));
}

TEST_F(DragTest, ACodeThatEndsDraggingChoosesWhetherToDrop)
{
    HoldOverTarget();
    Source->EndDrag(false);
    EXPECT_THAT(Log, ElementsAre("leave target 20,20 with source", "end nothing 0,0"));
    ReleaseButton();
    MovePointerTo(Source, 10, 10);
    Log.clear();
    HoldOverTarget();
    Source->EndDrag(true);
    EXPECT_THAT(Log, ElementsAre("drop on target 20,20 with source", "end target 20,20"));
}

TEST_F(DragTest, LosingTheMouseGivesUp)
{
    auto* Box = Add<TBox>(&Window, 20, 100, 50, 50);
    HoldOverTarget();
    SetCapture(Box->Handle);
    EXPECT_THAT(Log, ElementsAre("leave target 20,20 with source", "end nothing 0,0"));
    EXPECT_EQ(GetCapture(), Box->Handle) << "whoever took the mouse keeps it";
    ReleaseCapture();
    ReleaseButton();
    EXPECT_EQ(Log.size(), 2u);
}

TEST_F(DragTest, LosingTheMouseBeforeTheStartGivesUpToo)
{
    auto* Box = Add<TBox>(&Window, 20, 100, 50, 50);
    PressButton();
    SetCapture(Box->Handle);
    EXPECT_FALSE(Source->Dragging());
    ReleaseCapture();
    MovePointerTo(Target, 20, 20);
    EXPECT_THAT(Log, IsEmpty());
}

TEST_F(DragTest, DisablingTheFormGivesUpAndDisablingAnotherControlDoesNot)
{
    auto* Box = Add<TBox>(&Window, 20, 100, 50, 50);
    HoldOverTarget();
    EnableWindow(Box->Handle, FALSE);
    EXPECT_TRUE(Source->Dragging());
    EnableWindow(Window.Handle, FALSE);
    EXPECT_FALSE(Source->Dragging());
    EnableWindow(Window.Handle, TRUE);
    EXPECT_THAT(Log, ElementsAre("leave target 20,20 with source", "end nothing 0,0"));
}

TEST_F(DragTest, TheOtherButtonGivesUp)
{
    HoldOverTarget();
    PressButton(mbRight);
    EXPECT_THAT(Log, ElementsAre("leave target 20,20 with source", "end nothing 0,0"));
    ReleaseButton(mbRight);
}

TEST_F(DragTest, TheSourcesWindowMayBeMadeAnew)
{
    HoldOverTarget();
    Window.RecreateWnd();
    EXPECT_TRUE(Source->Dragging());
    MovePointerTo(Target, 4, 5);
    ReleaseButton();
    EXPECT_EQ(Log.back(), "end target 4,5");
}

// ---- drag objects

TEST_F(DragTest, ADragObjectTakesTheSourcesPlaceAndIsFreed)
{
    Source->OnStartDrag = [this](TObject*, TDragObject*& Object) {
        EXPECT_EQ(Object, nullptr);
        Object = new TParcel(Log);
    };
    DragToTarget();
    EXPECT_EQ(GetCursor(), Cursor(crHandPoint));
    MovePointerTo(&Window, 5, 200);
    EXPECT_EQ(GetCursor(), Cursor(crHelp));
    MovePointerTo(Target, 20, 20);
    Log.clear();
    ReleaseButton();
    EXPECT_THAT(
        Log, ElementsAre("drop on target 20,20 with object", "finished on target 20,20", "end target 20,20", "freed"));
}

TEST_F(DragTest, ADragObjectHearsThatNobodyTookIt)
{
    Source->OnStartDrag = [this](TObject*, TDragObject*& Object) { Object = new TParcel(Log); };
    DragToTarget();
    Log.clear();
    Source->EndDrag(false);
    EXPECT_THAT(Log, ElementsAre("leave target 20,20 with object", "finished nowhere 0,0", "end nothing 0,0", "freed"));
}

TEST_F(DragTest, AHandlerMayFreeTheDragObject)
{
    TDragObject* Parcel = nullptr;
    Source->OnStartDrag = [&](TObject*, TDragObject*& Object) { Object = Parcel = new TParcel(Log); };
    Source->OnEndDrag = [&](TObject*, TObject*, int, int) { delete Parcel; };
    DragToTarget();
    ReleaseButton();
    EXPECT_EQ(Log.back(), "freed");
    EXPECT_EQ(std::ranges::count(Log, "freed"), 1);
}
