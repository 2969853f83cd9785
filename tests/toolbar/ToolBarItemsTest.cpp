// The items of a bar: their order, and how they turn with it.
#include "tests/support/PaintToBitmap.h"
#include "tests/toolbar/DockFixture.h"
#include "vcl/stdctrls/Edit.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

// Without a window: nothing is laid out, and items are where the test puts them.
class ToolBarItemsTest : public DockFixture {
protected:
    TkelTBButton* NewItem(TkelToolBar* Bar, const AnsiString& Name, TAlign Align, int Left, int Top)
    {
        TkelTBButton* Item = NewButton(Bar, Align);
        Item->Name = Name;
        Item->SetBounds(Left, Top, 22, 22);
        return Item;
    }

    // Without the drag box.
    static std::vector<AnsiString> Order(const TkelToolBar* Bar)
    {
        std::vector<AnsiString> Names;
        for (const TControl* Item : Bar->Items())
            if (Item != Bar->DragBox)
                Names.push_back(Item->Name);
        return Names;
    }
};

// With windows: items lie where the layout puts them.
class ToolBarTurningTest : public DockFixture {
protected:
    void SetUp() override
    {
        Horizontal = NewDock(alTop);
        Vertical = NewDock(alLeft);
    }

    // A bar with a text button, a separator, a combo and, at the far end, two buttons.
    TTestBar* NewMixedBar(TkelDock* Dock)
    {
        TTestBar* Bar = InsertBar(Dock, "Bar", 0, 200);
        Wide = NewButton(Bar);
        Wide->Width = 60;
        Separator = new TkelTBSeparator(Form.get());
        Separator->Left = 1000;
        Separator->Align = alLeft;
        Separator->Parent = Bar;
        Combo = new TkelTBCombo(Form.get());
        Combo->Left = 1000;
        Combo->Parent = Bar;
        Last = NewButton(Bar, alRight);
        LastButOne = NewButton(Bar, alRight);
        LastButOne->Left = -1000;
        Bar->CorrectAlign();
        Bar->SortControls();
        return Bar;
    }

    static std::string Place(const TControl* Item)
    {
        return std::to_string(Item->Left) + "," + std::to_string(Item->Top) + " " + std::to_string(Item->Width) + "x" +
               std::to_string(Item->Height);
    }

    TkelDock* Horizontal = nullptr;
    TkelDock* Vertical = nullptr;
    TkelTBButton* Wide = nullptr;
    TkelTBSeparator* Separator = nullptr;
    TkelTBCombo* Combo = nullptr;
    TkelTBButton* LastButOne = nullptr;
    TkelTBButton* Last = nullptr;
};

} // namespace

// ---- SortControls

TEST_F(ToolBarItemsTest, ItemsOfAHorizontalBarAreInTheOrderOfTheirLeftEdges)
{
    TTestBar* Bar = NewBar(NewDock(alTop), "Bar", 0, 0, 300);
    NewItem(Bar, "C", alLeft, 70, 0);
    NewItem(Bar, "A", alRight, 10, 0);
    NewItem(Bar, "B", alNone, 40, 0);
    Bar->SortControls();
    EXPECT_THAT(Order(Bar), ElementsAre("A", "B", "C"));
    EXPECT_EQ(Bar->Items().front(), Bar->DragBox);
}

TEST_F(ToolBarItemsTest, ItemsAtTheSamePlaceKeepTheirOrder)
{
    TTestBar* Bar = NewBar(NewDock(alTop), "Bar", 0, 0, 300);
    for (const char* Name : {"C", "A", "B"})
        NewItem(Bar, Name, alLeft, 40, 0);
    NewItem(Bar, "First", alLeft, 20, 0);
    Bar->SortControls();
    EXPECT_THAT(Order(Bar), ElementsAre("First", "C", "A", "B"));
}

TEST_F(ToolBarItemsTest, ItemsOfAVerticalBarAreInTheOrderOfTheirUpperEdges)
{
    TTestBar* Bar = NewBar(NewDock(alLeft), "Bar", 0, 0, 300);
    NewItem(Bar, "C", alBottom, 0, 70);
    NewItem(Bar, "A", alTop, 50, 10);
    NewItem(Bar, "B", alTop, 20, 40);
    Bar->SortControls();
    EXPECT_THAT(Order(Bar), ElementsAre("A", "B", "C"));
}

TEST_F(ToolBarItemsTest, AnItemOfAVerticalBarThatIsNotAlignedAlongItKeepsItsPlaceAndLetsNonePass)
{
    TTestBar* Bar = NewBar(NewDock(alLeft), "Bar", 0, 0, 300);
    NewItem(Bar, "B", alTop, 0, 40);
    NewItem(Bar, "A", alTop, 0, 10);
    NewItem(Bar, "Other", alLeft, 0, 0);
    NewItem(Bar, "D", alTop, 0, 30);
    NewItem(Bar, "C", alTop, 0, 20);
    Bar->SortControls();
    EXPECT_THAT(Order(Bar), ElementsAre("A", "B", "Other", "C", "D"));
}

TEST_F(ToolBarItemsTest, TheListFollowsTheControls)
{
    TTestBar* Bar = NewBar(NewDock(alTop), "Bar", 0, 0, 300);
    NewItem(Bar, "A", alLeft, 40, 0);
    TkelTBButton* B = NewItem(Bar, "B", alLeft, 20, 0);
    EXPECT_THAT(Order(Bar), ElementsAre("A", "B")) << "as added, until they are sorted";
    delete B;
    EXPECT_THAT(Order(Bar), ElementsAre("A"));
}

TEST_F(ToolBarItemsTest, ThereIsNoLimitToTheNumberOfItems)
{
    TTestBar* Bar = InsertBar(NewDock(alTop), "Bar", 0, 300);
    for (int I = 0; I < 250; ++I)
        NewItem(Bar, "Item" + std::to_string(I), alLeft, 1000 - I, 0);
    Bar->SortControls();
    ASSERT_EQ(Bar->Items().size(), 251u);
    EXPECT_EQ(Bar->Items().back()->Name, "Item0");
    Form->Show();
    Bar->Parent = NewDock(alLeft);
    Bar->InsertToDock();
    for (const TControl* Item : Bar->Items())
        EXPECT_EQ(Item->Align, alTop) << Item->Name;
    EXPECT_EQ(Bar->Items().back()->Top - Bar->DragBox->Top, 12 + 249 * 22);
}

// ---- CorrectAlign

TEST_F(ToolBarItemsTest, InAHorizontalDockItemsComeToLieFromTheLeft)
{
    TkelDock* Dock = NewDock(alTop);
    TTestBar* Bar = NewBar(Dock, "Bar", 0, 0, 300);
    struct {
        TAlign Before;
        TAlign After;
        int Left;
    } Cases[] = {{alLeft, alLeft, 5}, {alRight, alRight, 5},   {alBottom, alRight, 70},
                 {alTop, alLeft, 70}, {alClient, alClient, 5}, {alNone, alNone, 5}};
    for (const auto& Case : Cases) {
        TkelTBButton* Item = NewItem(Bar, "", Case.Before, 5, 70);
        Bar->CorrectAlign();
        EXPECT_EQ(Item->Align, Case.After) << Case.Before;
        EXPECT_EQ(Item->Left, Case.Left) << Case.Before;
        delete Item;
    }
}

TEST_F(ToolBarItemsTest, InAVerticalDockItemsComeToLieFromTheTop)
{
    TkelDock* Dock = NewDock(alRight);
    TTestBar* Bar = NewBar(Dock, "Bar", 0, 0, 300);
    struct {
        TAlign Before;
        TAlign After;
        int Top;
    } Cases[] = {{alTop, alTop, 5},   {alBottom, alBottom, 5}, {alRight, alBottom, 70},
                 {alLeft, alTop, 70}, {alClient, alClient, 5}, {alNone, alNone, 5}};
    Bar->CorrectAlign(); // it has turned
    for (const auto& Case : Cases) {
        TkelTBButton* Item = NewItem(Bar, "", Case.Before, 70, 5);
        Bar->CorrectAlign();
        EXPECT_EQ(Item->Align, Case.After) << Case.Before;
        EXPECT_EQ(Item->Top, Case.Top) << Case.Before;
        delete Item;
    }
}

TEST_F(ToolBarItemsTest, OutsideOfADockWithRowsItemsStayAsTheyAre)
{
    TTestBar* Bar = NewBar(NewDock(alClient, 100), "Bar", 0, 0, 300);
    TkelTBButton* Item = NewItem(Bar, "A", alBottom, 5, 70);
    Bar->CorrectAlign();
    Bar->Parent = Form.get();
    Bar->CorrectAlign();
    EXPECT_EQ(Item->Align, alBottom);
    EXPECT_EQ(Item->Left, 5);
}

// ---- turning

TEST_F(ToolBarTurningTest, ABarTurnsWhenItComesToAVerticalDock)
{
    TTestBar* Bar = NewMixedBar(Horizontal);
    Show();
    EXPECT_EQ(Place(Bar->DragBox), "2,2 12x22");
    EXPECT_EQ(Place(Wide), "14,2 60x22");
    EXPECT_EQ(Place(Separator), "74,2 8x22");
    EXPECT_EQ(Place(Combo), "82,2 33x22");
    EXPECT_EQ(Place(Last), "176,2 22x22");
    EXPECT_EQ(Place(LastButOne), "154,2 22x22");

    Bar->DeleteFromDock();
    Bar->Parent = Vertical;
    Bar->InsertToDock();
    EXPECT_EQ(Bar->Width, 26);
    EXPECT_EQ(Bar->Height, 200);
    EXPECT_EQ(Place(Bar->DragBox), "2,2 22x12");
    EXPECT_EQ(Place(Wide), "2,14 22x60");
    EXPECT_EQ(Place(Separator), "2,74 22x8");
    EXPECT_EQ(Place(Combo), "2,82 22x33");
    EXPECT_EQ(Place(Last), "2,176 22x22");
    EXPECT_EQ(Place(LastButOne), "2,154 22x22");
}

TEST_F(ToolBarTurningTest, ABarThatComesBackLooksAsBefore)
{
    TTestBar* Bar = NewMixedBar(Horizontal);
    Show();
    for (TkelDock* Dock : {Vertical, Horizontal}) {
        Bar->DeleteFromDock();
        Bar->Parent = Dock;
        Bar->InsertToDock();
    }
    EXPECT_EQ(Bar->Width, 200);
    EXPECT_EQ(Bar->Height, 26);
    EXPECT_EQ(Place(Bar->DragBox), "2,2 12x22");
    EXPECT_EQ(Place(Wide), "14,2 60x22");
    EXPECT_EQ(Place(Separator), "74,2 8x22");
    EXPECT_EQ(Place(Combo), "82,2 33x22");
    EXPECT_EQ(Place(Last), "176,2 22x22");
    EXPECT_EQ(Place(LastButOne), "154,2 22x22");
}

// As somebody designs it who has never heard of alignment.
TEST_F(ToolBarTurningTest, AnEditThatIsNotAlignedKeepsItsSizeInAHorizontalBar)
{
    TTestBar* Bar = NewBar(Horizontal, "Bar", 0, 0, 200);
    auto* Edit = new TEdit(Form.get());
    Edit->AutoSize = false;
    Edit->SetBounds(14, 3, 121, 20);
    Edit->Parent = Bar;
    Bar->SortControls();
    Show();
    Bar->HidePanel();
    Bar->CorrectAlign();
    Bar->ShowPanel();
    EXPECT_EQ(Place(Edit), "14,3 121x20");
    Bar->FloatToPos(300, 300);
    EXPECT_EQ(Place(Edit), "14,3 121x20");

    Bar->Parent = Vertical;
    Bar->InsertToDock();
    EXPECT_EQ(Edit->Align, alTop);
    EXPECT_EQ(Edit->Height, 121);
    Bar->DeleteFromDock();
    Bar->Parent = Horizontal;
    Bar->InsertToDock();
    EXPECT_EQ(Edit->Align, alLeft);
    EXPECT_EQ(Edit->Width, 121);
}

TEST_F(ToolBarTurningTest, ABarWithItemsShowsNoCaption)
{
    TTestBar* Bar = NewBar(Horizontal, "Bar", 0, 0, 200);
    Show();
    const TPixelImage WithCaption = PaintToBitmap(Bar);
    TkelTBButton* Button = NewButton(Bar, alRight);
    const TPixelImage WithButton = PaintToBitmap(Bar);
    Bar->Caption = "";
    EXPECT_TRUE(SamePixels(PaintToBitmap(Bar), WithButton));
    delete Button;
    EXPECT_FALSE(SamePixels(PaintToBitmap(Bar), WithCaption)) << "an empty bar shows its caption";
}

TEST_F(ToolBarTurningTest, LeavingAVerticalDockMakesABarHorizontal)
{
    TTestBar* Bar = NewMixedBar(Vertical);
    Show();
    EXPECT_EQ(Bar->Height, 200);
    Bar->DeleteFromDock();
    EXPECT_EQ(Bar->Width, 200);
    EXPECT_EQ(Bar->Height, 26);
    EXPECT_EQ(Wide->Align, alLeft);
    EXPECT_EQ(Last->Align, alRight);
}

TEST_F(ToolBarItemsTest, LeavingAVerticalDockOnlyWhatWasAtItsLowerEndGoesToTheRight)
{
    TTestBar* Bar = InsertBar(NewDock(alLeft), "Bar", 0, 200);
    std::vector<TkelTBButton*> Items;
    for (TAlign Align : {alBottom, alTop, alRight, alNone})
        Items.push_back(NewItem(Bar, "", Align, 0, 0));
    Bar->DeleteFromDock();
    std::vector<TAlign> After;
    for (const TkelTBButton* Item : Items)
        After.push_back(Item->Align);
    EXPECT_THAT(After, ElementsAre(alRight, alLeft, alLeft, alLeft));
}

TEST_F(ToolBarTurningTest, LeavingAHorizontalDockTurnsNothing)
{
    TTestBar* Bar = NewMixedBar(Horizontal);
    Show();
    Bar->DeleteFromDock();
    EXPECT_EQ(Bar->Width, 200);
    EXPECT_EQ(Wide->Align, alLeft);
    EXPECT_EQ(Last->Align, alRight);
}

TEST_F(ToolBarTurningTest, ABarThatIsTallerThanWideIsTurnedForAHorizontalDock)
{
    TTestBar* Bar = NewBar(Horizontal, "Bar", 0, 0, 26, 200);
    Bar->InsertToDock();
    EXPECT_EQ(Bar->Width, 200);
    EXPECT_EQ(Bar->Height, 26);
    EXPECT_EQ(Horizontal->Height, 26);
}

TEST_F(ToolBarTurningTest, TheGripFollowsTheBarFromItsFrameToADock)
{
    TTestBar* Bar = NewMixedBar(Horizontal);
    Show();
    Bar->DeleteFromDock();
    Bar->FloatToPos(300, 300);
    EXPECT_FALSE(Bar->DragBox->Visible);
    EXPECT_EQ(Place(Wide), "1,1 60x24") << "without bevel and grip";
    for (TkelDock* Dock : {Vertical, Horizontal}) {
        Bar->PublicMouseDown(mbLeft, {ssLeft}, 5, 5);
        // The first move brings the bar there, the second finds it there.
        for (int Move = 0; Move < 2; ++Move) {
            const TPoint Place = Dock->ClientToScreen(Dock == Vertical ? TPoint(0, 100) : TPoint(100, 0));
            const TPoint P = Bar->ScreenToClient(Place);
            Bar->PublicMouseMove({ssLeft}, P.X, P.Y);
        }
        ASSERT_EQ(Bar->Parent, Dock);
        EXPECT_TRUE(Bar->DragBox->Visible);
        EXPECT_EQ(Place(Bar->DragBox), Dock == Vertical ? "2,2 22x12" : "2,2 12x22");
        EXPECT_EQ(Place(Wide), Dock == Vertical ? "2,14 22x60" : "14,2 60x22");
        Bar->DeleteFromDock();
        Bar->FloatToPos(300, 300);
    }
}
