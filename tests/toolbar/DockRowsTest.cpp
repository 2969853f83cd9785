// Rows of a dock: putting bars in, taking them out, and what has room. The same rules hold along every edge, so each
// test runs for all four; "52: A 0,0 B 10,26" reads as a dock 52 pixels thick with A in its first row and B, 10 pixels
// along, in the next.
#include "tests/toolbar/DockFixture.h"

namespace {

class DockRowsTest : public DockFixture, public testing::WithParamInterface<TAlign> {
protected:
    TkelDock* EmptyDock(int Thickness = 0) { return NewDock(GetParam(), Thickness); }
    bool IsVertical() const { return GetParam() == alLeft || GetParam() == alRight; }
};

std::string EdgeName(const testing::TestParamInfo<TAlign>& Info)
{
    constexpr const char* Names[] = {"None", "Top", "Bottom", "Left", "Right"};
    return Names[Info.param];
}

INSTANTIATE_TEST_SUITE_P(Edges, DockRowsTest, testing::Values(alTop, alBottom, alLeft, alRight), EdgeName);

} // namespace

// ---- InsertToDock

TEST_P(DockRowsTest, EachBarBecomesANewRow)
{
    TkelDock* Dock = EmptyDock();
    InsertBar(Dock, "A", 0, 100);
    EXPECT_EQ(Layout(Dock), "26: A 0,0");
    InsertBar(Dock, "B", 30, 100);
    EXPECT_EQ(Layout(Dock), "52: A 0,0 B 30,26");
    InsertBar(Dock, "C", 0, 100, 40);
    EXPECT_EQ(Layout(Dock), "92: A 0,0 B 30,26 C 0,52");
}

TEST_P(DockRowsTest, InsertingShowsABarRaisedWithItsGrip)
{
    TkelDock* Dock = EmptyDock();
    TTestBar* Bar = NewBar(Dock, "A", 0, 0, 100);
    Bar->Visible = false;
    Bar->BevelInner = bvNone;
    Bar->DragBox->Visible = false;
    Bar->InsertToDock();
    EXPECT_TRUE(Bar->Visible);
    EXPECT_EQ(Bar->BevelInner, bvRaised);
    EXPECT_TRUE(Bar->DragBox->Visible);
    EXPECT_EQ(Bar->TakeEvents(), "static");
    EXPECT_FALSE(Bar->MouseCapture) << "nobody is dragging";
}

TEST_P(DockRowsTest, AHiddenBarDoesNotKeepANewRowFromGettingItsRoom)
{
    TkelDock* Dock = EmptyDock(26);
    NewBar(Dock, "Hidden", 0, 26, 100)->Visible = false;
    NewBar(Dock, "A", 0, 0, 100);
    InsertBar(Dock, "B", 50, 100);
    EXPECT_EQ(Layout(Dock), "52: (Hidden 0,26) A 0,0 B 50,26");
}

// Something lies where the new row begins: a horizontal dock grows only when the newcomer leads that row.
TEST_P(DockRowsTest, ARowThatIsThereAlreadyGrowsAHorizontalDockOnlyForItsFirstBar)
{
    TkelDock* Dock = EmptyDock(26);
    NewBar(Dock, "Outside", 50, 26, 100);
    InsertBar(Dock, "A", 200, 100);
    EXPECT_EQ(Layout(Dock), IsVertical() ? "52: Outside 50,26 A 200,26" : "26: Outside 50,26 A 200,26");

    TkelDock* Other = EmptyDock(26);
    NewBar(Other, "Outside2", 50, 26, 30);
    InsertBar(Other, "B", 0, 40);
    EXPECT_EQ(Layout(Other), "52: Outside2 50,26 B 0,26");
}

// ---- DeleteFromDock

TEST_P(DockRowsTest, RemovingTheMiddleRowMovesTheLastOneUp)
{
    TkelDock* Dock = EmptyDock();
    InsertBar(Dock, "A", 0, 100);
    TTestBar* B = InsertBar(Dock, "B", 0, 100, 40);
    InsertBar(Dock, "C", 0, 100);
    B->DeleteFromDock();
    EXPECT_EQ(Dock->Axis().Thickness(*Dock), 52);
    EXPECT_EQ(Dock->Axis().Row(*Dock->AllBars()[0]), 0);
    EXPECT_EQ(Dock->Axis().Row(*Dock->AllBars()[2]), 26);
    EXPECT_EQ(B->BevelInner, bvNone);
    EXPECT_FALSE(B->DragBox->Visible);
    EXPECT_EQ(B->Parent, Dock) << "until somebody puts it elsewhere";
}

TEST_P(DockRowsTest, RemovingOneOfTwoBarsOfARowChangesNoSize)
{
    TkelDock* Dock = EmptyDock(52);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 100);
    NewBar(Dock, "B", 100, 0, 100);
    NewBar(Dock, "C", 0, 26, 100);
    A->HidePanel();
    EXPECT_EQ(Layout(Dock), "52: (A 0,0) B 100,0 C 0,26");
}

TEST_P(DockRowsTest, ABarOfAnotherThicknessIsNoCompanyInARow)
{
    TkelDock* Dock = EmptyDock(80);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 100);
    NewBar(Dock, "B", 100, 0, 100, 30);
    NewBar(Dock, "C", 0, 30, 100);
    A->HidePanel();
    EXPECT_EQ(Layout(Dock), "54: (A 0,0) B 100,0 C 0,4");
}

TEST_P(DockRowsTest, AHiddenBarDoesNotKeepARow)
{
    TkelDock* Dock = EmptyDock();
    TTestBar* A = InsertBar(Dock, "A", 0, 100);
    TTestBar* B = InsertBar(Dock, "B", 0, 100);
    A->HidePanel();
    EXPECT_EQ(Layout(Dock), "26: (A 0,0) B 0,0");
    B->HidePanel();
    EXPECT_EQ(Layout(Dock), "0: (A 0,0) (B 0,0)");
    A->ShowPanel();
    EXPECT_EQ(Layout(Dock), "26: A 0,0 (B 0,0)");
}

// ---- isInsert

TEST_P(DockRowsTest, ABarFitsBeforeTheFirstBarOfARow)
{
    TkelDock* Dock = EmptyDock(52);
    TTestBar* A = NewBar(Dock, "A", 100, 0, 50);
    EXPECT_EQ(A->isInsert(NewBar(Dock, "B", 0, 26, 99)), 0);
    EXPECT_EQ(A->isInsert(NewBar(Dock, "C", 0, 26, 100)), 0);
}

TEST_P(DockRowsTest, ABarThatDoesNotFitBeforeGoesBehindTheLast)
{
    TkelDock* Dock = EmptyDock(52);
    TTestBar* A = NewBar(Dock, "A", 100, 0, 50);
    NewBar(Dock, "A2", 150, 0, 60);
    EXPECT_EQ(A->isInsert(NewBar(Dock, "B", 0, 26, 101)), 210);
    EXPECT_EQ(A->isInsert(NewBar(Dock, "C", 0, 26, 190)), 210) << "to the very end of the dock";
    EXPECT_EQ(A->isInsert(NewBar(Dock, "D", 0, 26, 191)), -1);
}

TEST_P(DockRowsTest, ABarOfAnotherThicknessDoesNotFit)
{
    TkelDock* Dock = EmptyDock(56);
    EXPECT_EQ(NewBar(Dock, "A", 100, 0, 50)->isInsert(NewBar(Dock, "B", 0, 26, 50, 30)), -1);
}

TEST_P(DockRowsTest, HiddenBarsTakeNoRoomInARow)
{
    TkelDock* Dock = EmptyDock(52);
    TTestBar* A = NewBar(Dock, "A", 100, 0, 50);
    NewBar(Dock, "Hidden", 0, 0, 100)->Visible = false;
    EXPECT_EQ(A->isInsert(NewBar(Dock, "B", 0, 26, 80)), 0);
}

TEST_P(DockRowsTest, NothingFitsIntoARowOutsideOfADock)
{
    TkelDock* Dock = EmptyDock(26);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 50);
    EXPECT_EQ(A->isInsert(nullptr), -1);
    auto* Loose = new TTestBar(Form.get());
    Loose->Parent = Form.get();
    EXPECT_EQ(Loose->isInsert(A), -1);
}

// ---- SwapToolBar: different rows, and there is room

TEST_P(DockRowsTest, ABarFromBelowJoinsARowWithRoomAndItsOwnRowGoes)
{
    TkelDock* Dock = EmptyDock(78);
    TTestBar* A = NewBar(Dock, "A", 5, 26, 100);
    TTestBar* B = NewBar(Dock, "B", 0, 0, 100);
    NewBar(Dock, "C", 0, 52, 100);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "52: A 100,0 B 0,0 C 0,26");
}

TEST_P(DockRowsTest, ABarFromTwoRowsBelowLeavesTheRowBetweenAlone)
{
    TkelDock* Dock = EmptyDock(104);
    TTestBar* A = NewBar(Dock, "A", 0, 52, 100);
    TTestBar* B = NewBar(Dock, "B", 150, 0, 100);
    NewBar(Dock, "C", 0, 26, 100);
    NewBar(Dock, "D", 0, 78, 100);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "78: A 0,0 B 150,0 C 0,26 D 0,52");
}

// The rows below the lower one move up and the dock shrinks as if the bar had come from below. Kept as it is.
TEST_P(DockRowsTest, ABarFromAboveJoinsARowAsIfItHadComeFromBelow)
{
    TkelDock* Dock = EmptyDock(78);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 100);
    TTestBar* B = NewBar(Dock, "B", 0, 26, 100);
    NewBar(Dock, "C", 0, 52, 100);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "52: A 100,26 B 0,26 C 0,26");
}

// Both would now lie outside of the dock.
TEST_P(DockRowsTest, BarsThatTheShrunkDockLeavesOutComeBackIn)
{
    TkelDock* Dock = EmptyDock(52);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 100);
    TTestBar* B = NewBar(Dock, "B", 0, 26, 100);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "26: A 100,0 B 0,0");
}

TEST_P(DockRowsTest, ABarThatLeavesOthersBehindJoinsARowAsIfItHadBeenAlone)
{
    TkelDock* Dock = EmptyDock(78);
    TTestBar* A = NewBar(Dock, "A", 0, 26, 100);
    TTestBar* B = NewBar(Dock, "B", 0, 0, 100);
    NewBar(Dock, "Mate", 100, 26, 100);
    NewBar(Dock, "C", 0, 52, 100);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "52: A 100,0 B 0,0 Mate 100,26 C 0,26");
}

// ---- SwapToolBar: different rows, and there is none

TEST_P(DockRowsTest, RowsOfOneThicknessTradePlaces)
{
    TkelDock* Dock = EmptyDock(78);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 300);
    TTestBar* B = NewBar(Dock, "B", 0, 26, 300);
    NewBar(Dock, "C", 0, 52, 300);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "78: A 0,26 B 0,0 C 0,52");
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "78: A 0,0 B 0,26 C 0,52");
}

TEST_P(DockRowsTest, RowsOfDifferentThicknessTradePlacesWithoutAGap)
{
    TkelDock* Dock = EmptyDock(92);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 100, 26);
    TTestBar* B = NewBar(Dock, "B", 0, 26, 100, 40);
    NewBar(Dock, "C", 0, 66, 100);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "92: A 0,40 B 0,0 C 0,66");
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "92: A 0,0 B 0,26 C 0,66");
}

TEST_P(DockRowsTest, RowsInBetweenMakeUpForTheDifference)
{
    TkelDock* Dock = EmptyDock(92);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 300, 26);
    NewBar(Dock, "Between", 0, 26, 300, 26);
    TTestBar* B = NewBar(Dock, "B", 0, 52, 300, 40);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "92: A 0,66 Between 0,40 B 0,0");
}

// The mates of the dragged bar now lie where the other one came to lie, and come along with the dragged bar.
TEST_P(DockRowsTest, TheDraggedBarsMatesComeAlong)
{
    TkelDock* Dock = EmptyDock(52);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 100);
    NewBar(Dock, "Mate", 100, 0, 100);
    TTestBar* B = NewBar(Dock, "B", 0, 26, 350);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "52: A 0,26 Mate 100,26 B 0,0");
}

TEST_P(DockRowsTest, TheOtherBarsMatesStayWhereTheDraggedBarComes)
{
    TkelDock* Dock = EmptyDock(52);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 350);
    TTestBar* B = NewBar(Dock, "B", 0, 26, 100);
    NewBar(Dock, "Mate", 100, 26, 100);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "52: A 0,26 B 0,0 Mate 100,26");
}

// ---- SwapToolBar: the same row

TEST_P(DockRowsTest, ABarThatRunsIntoTheNextStopsInFrontOfIt)
{
    TkelDock* Dock = EmptyDock(26);
    TTestBar* A = NewBar(Dock, "A", 60, 0, 100);
    TTestBar* B = NewBar(Dock, "B", 150, 0, 100);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "26: A 50,0 B 150,0");
}

TEST_P(DockRowsTest, ABarThatComesFromBehindPushesTheOtherOn)
{
    TkelDock* Dock = EmptyDock(26);
    TTestBar* A = NewBar(Dock, "A", 180, 0, 100);
    TTestBar* B = NewBar(Dock, "B", 100, 0, 100);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "26: A 180,0 B 200,0");
}

TEST_P(DockRowsTest, BarsThatBeginTogetherOverlap)
{
    TkelDock* Dock = EmptyDock(26);
    TTestBar* A = NewBar(Dock, "A", 100, 0, 50);
    TTestBar* B = NewBar(Dock, "B", 100, 0, 80);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "26: A 100,0 B 180,0");
}

TEST_P(DockRowsTest, BarsOfARowThatDoNotMeetStay)
{
    TkelDock* Dock = EmptyDock(26);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 100);
    TTestBar* B = NewBar(Dock, "B", 100, 0, 100);
    A->SwapToolBar(B);
    B->SwapToolBar(A);
    EXPECT_EQ(Layout(Dock), "26: A 0,0 B 100,0");
}

TEST_P(DockRowsTest, ABarIsNotPushedOutOfSight)
{
    TkelDock* Dock = EmptyDock(26);
    TTestBar* A = NewBar(Dock, "A", 330, 0, 60);
    TTestBar* B = NewBar(Dock, "B", 300, 0, 100);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "26: A 330,0 B 300,0");
}

TEST_P(DockRowsTest, TradingWithNobodyOrItselfChangesNothing)
{
    TkelDock* Dock = EmptyDock(52);
    TkelDock* Elsewhere = EmptyDock(26);
    TTestBar* A = NewBar(Dock, "A", 10, 0, 100);
    TTestBar* B = NewBar(Elsewhere, "B", 0, 0, 100);
    A->SwapToolBar(nullptr);
    A->SwapToolBar(A);
    A->SwapToolBar(B);
    EXPECT_EQ(Layout(Dock), "52: A 10,0");
    EXPECT_EQ(Layout(Elsewhere), "26: B 0,0");
}

// ---- FindToolBar: whose middle the pointer has passed

TEST_P(DockRowsTest, ANeighbourIsFoundWhenThePointerPassesItsMiddle)
{
    TkelDock* Dock = EmptyDock(78);
    NewBar(Dock, "Above", 0, 0, 100);
    TTestBar* A = NewBar(Dock, "A", 0, 26, 100);
    NewBar(Dock, "Below", 300, 52, 100);
    const auto Found = [&](int Across) -> AnsiString {
        TkelToolBar* Bar = A->FindToolBar(IsVertical() ? TPoint(Across, 0) : TPoint(0, Across));
        return Bar ? Bar->Name : AnsiString();
    };
    // Their middles are at 13 and 65, the bar begins at 26.
    EXPECT_EQ(Found(13 - 26), "");
    EXPECT_EQ(Found(12 - 26), "Above");
    EXPECT_EQ(Found(65 - 26), "");
    EXPECT_EQ(Found(66 - 26), "Below") << "wherever it lies along the row";
}

TEST_P(DockRowsTest, ABarOfTheSameRowIsFoundBelowItsMiddle)
{
    TkelDock* Dock = EmptyDock(26);
    TTestBar* A = NewBar(Dock, "A", 0, 0, 100);
    TTestBar* B = NewBar(Dock, "B", 100, 0, 100);
    const auto At = [&](int Across) { return IsVertical() ? TPoint(Across, 0) : TPoint(0, Across); };
    EXPECT_EQ(A->FindToolBar(At(13)), nullptr);
    EXPECT_EQ(A->FindToolBar(At(14)), B);
    B->Visible = false;
    EXPECT_EQ(A->FindToolBar(At(14)), nullptr);
}

// ---- docks that are no docks

TEST_F(DockFixture, ADockThatIsNotAtAnEdgeHasNoRows)
{
    for (TAlign Align : {alNone, alClient}) {
        TkelDock* Dock = NewDock(Align, 60);
        auto* A = NewBar(Dock, "", 10, 5, 100);
        auto* B = NewBar(Dock, "", 10, 31, 100);
        A->InsertToDock();
        A->DeleteFromDock();
        A->SwapToolBar(B);
        EXPECT_EQ(A->isInsert(B), -1);
        EXPECT_EQ(A->FindToolBar({0, 100}), nullptr);
        EXPECT_EQ(Layout(Dock), "60:  10,5  10,31");
    }
}
