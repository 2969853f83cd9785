#include "vcl/stdctrls/ScrollBar.h"

#include "tests/support/FormText.h"
#include "tests/support/Input.h"
#include "tests/support/PaintToBitmap.h"

#include <gmock/gmock.h>

namespace {

class ScrollBarTest : public testing::Test {
protected:
    ScrollBarTest() : Bar(new TScrollBar(&Window))
    {
        Bar->Parent = &Window;
        Bar->SetBounds(10, 10, 200, 20);
        Bar->OnChange = [this](TObject*) { Changes.push_back(Bar->Position); };
        Bar->OnScroll = [this](TObject*, TScrollCode Code, int& ScrollPos) { Scrolls.push_back({Code, ScrollPos}); };
    }

    // What the window says.
    SCROLLINFO Info()
    {
        SCROLLINFO Result{};
        Result.cbSize = sizeof Result;
        Result.fMask = SIF_ALL;
        GetScrollInfo(Bar->Handle, SB_CTL, &Result);
        return Result;
    }

    // Press and release in one: the system holds the program up as long as the button is down on a bar.
    void ClickAt(int X)
    {
        MovePointerTo(Bar, X, 10);
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
        ASSERT_TRUE(PumpUntil([&] { return !Scrolls.empty() && Scrolls.back().first == scEndScroll; }));
    }

    THostWindow Window;
    TScrollBar* Bar;
    std::vector<int> Changes;
    std::vector<std::pair<TScrollCode, int>> Scrolls;
};

} // namespace

TEST_F(ScrollBarTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TScrollBar::StaticClass(), "Kind"),
                testing::ElementsAre("Kind = sbHorizontal", "LargeChange = 1", "Max = 100", "Min = 0", "PageSize",
                                     "ParentBiDiMode = True", "ParentCtl3D = True", "ParentShowHint = True",
                                     "PopupMenu", "Position = 0", "ShowHint", "SmallChange = 1", "TabOrder = -1",
                                     "TabStop = True", "Visible = True", "OnContextPopup", "OnChange", "OnDragDrop",
                                     "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress",
                                     "OnKeyUp", "OnScroll", "OnStartDrag"));
}

TEST_F(ScrollBarTest, ClampsThePositionAndTellsOfChanges)
{
    Bar->Position = 30;
    Bar->Position = 30;
    Bar->Position = 500;
    EXPECT_EQ(Bar->Position, 100);
    Bar->Min = 10;
    Bar->Position = -5;
    EXPECT_EQ(Bar->Position, 10);
    EXPECT_THAT(Changes, testing::ElementsAre(30, 100, 10));
}

TEST_F(ScrollBarTest, RefusesARangeThatIsNone)
{
    EXPECT_THROW(Bar->SetParams(0, 5, 4), EInvalidOperation);
    EXPECT_THROW(Bar->PageSize = 101, EInvalidOperation);
    EXPECT_THROW(Bar->PageSize = -1, EInvalidOperation);
    EXPECT_EQ(Bar->Min, 0);
    EXPECT_EQ(Bar->Max, 100);
    EXPECT_EQ(Bar->PageSize, 0);
}

TEST_F(ScrollBarTest, FormFilesMayGiveTheRangeInAnyOrder)
{
    THostWindow Form;
    ReadFormText(&Form, "object Form: THostWindow\n"
                        "  object Bar: TScrollBar\n"
                        "    Max = -10\n    Min = -50\n    PageSize = 0\n    Position = -20\n"
                        "  end\n"
                        "end\n");
    auto* Read = As<TScrollBar>(Form.FindComponent("Bar"));
    ASSERT_TRUE(Read);
    EXPECT_EQ(Read->Min, -50);
    EXPECT_EQ(Read->Max, -10);
    EXPECT_EQ(Read->Position, -20);
}

TEST_F(ScrollBarTest, TheWindowHasTheValues)
{
    Bar->Max = 1000;
    Bar->PageSize = 100;
    Bar->Position = 250;
    SCROLLINFO Before = Info();
    EXPECT_EQ(Before.nMax, 1000);
    EXPECT_EQ(Before.nPage, 100u);
    EXPECT_EQ(Before.nPos, 250);
    Bar->Position = 251;
    EXPECT_EQ(Info().nPos, 251);
}

TEST_F(ScrollBarTest, TurningItSwapsItsSides)
{
    Bar->Kind = sbVertical;
    EXPECT_EQ(Bar->BoundsRect, Bounds(10, 10, 20, 200));
    EXPECT_NE(GetWindowLongW(Bar->Handle, GWL_STYLE) & SBS_VERT, 0);
}

TEST_F(ScrollBarTest, ChangesAreAtLeastOne)
{
    Bar->SmallChange = 0;
    Bar->LargeChange = 100000;
    EXPECT_EQ(Bar->SmallChange, 1);
    EXPECT_EQ(Bar->LargeChange, 32767);
}

TEST_F(ScrollBarTest, ClicksOnItsPartsScroll)
{
    Bar->SmallChange = 3;
    Bar->LargeChange = 20;
    Window.ShowNow();

    int End = GetSystemMetrics(SM_CXHSCROLL);
    ClickAt(Bar->Width - End / 2);
    EXPECT_EQ(Bar->Position, 3);
    EXPECT_EQ(Scrolls.front(), std::pair(scLineDown, 3));

    Scrolls.clear();
    ClickAt(Bar->Width - End - 5);
    EXPECT_EQ(Bar->Position, 23);
    EXPECT_EQ(Scrolls.front(), std::pair(scPageDown, 23));
    MovePointerAway();
}

TEST_F(ScrollBarTest, TheHandlerMayMoveTheBarElsewhere)
{
    Bar->OnScroll = [](TObject*, TScrollCode, int& ScrollPos) { ScrollPos = 42; };
    SendMessageW(Window.Handle, WM_HSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(Bar->Handle));
    EXPECT_EQ(Bar->Position, 42);
}

TEST_F(ScrollBarTest, WithAPageTheUserStopsWhereItsEndShows)
{
    Bar->PageSize = 30;
    SendMessageW(Window.Handle, WM_HSCROLL, SB_BOTTOM, reinterpret_cast<LPARAM>(Bar->Handle));
    EXPECT_EQ(Bar->Position, 71);
    EXPECT_THAT(Scrolls, testing::ElementsAre(std::pair(scBottom, 71)));
}

TEST_F(ScrollBarTest, TracksPositionsBeyondSixteenBits)
{
    Bar->Max = 1000000;
    Bar->Position = 900000;
    SCROLLINFO Track = Info();
    EXPECT_EQ(Track.nPos, 900000);
    SendMessageW(Window.Handle, WM_HSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(Bar->Handle));
    EXPECT_EQ(Bar->Position, 900001);
}
