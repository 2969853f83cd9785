// A long session with the mouse, at random but always the same for one seed: the messages go to the bar that is taken
// or to the window that has the mouse, at once and in order, so that no timing plays a part.
#include "tests/support/Watchdog.h"
#include "tests/toolbar/DockFixture.h"
#include "toolbar/Flpfrm97.h"

#include <random>
#include <set>

namespace {

constexpr int ActionCount = 10000;

class ToolBarSessionTest : public DockFixture {
protected:
    void SetUp() override
    {
        TWatchdog::AllowLonger(5);
        Form->SetBounds(200, 150, 700, 500);
        for (TAlign Align : {alTop, alBottom, alLeft, alRight})
            Docks.push_back(NewDock(Align));
        for (int I = 0; I < 8; ++I) {
            TTestBar* Bar = InsertBar(Docks[I % 4], "Bar" + std::to_string(I), 20 * I, 90 + 30 * I, I == 5 ? 34 : 26);
            for (int Button = 0; Button < 1 + I / 2; ++Button)
                NewButton(Bar, Button == 2 ? alRight : alLeft);
            if (I == 3)
                Separate(Bar);
            Bar->AutoSave = I == 0;
            Bar->SortControls();
            Bars.push_back(Bar);
        }
        Show();
    }

    void Separate(TTestBar* Bar)
    {
        auto* Separator = new TkelTBSeparator(Form.get());
        Separator->Align = alLeft;
        Separator->Parent = Bar;
    }

    int Random(int Below) { return static_cast<int>(Generator() % static_cast<unsigned>(Below)); }
    TPoint RandomPoint() { return Form->ClientToScreen({Random(760) - 30, Random(540) - 30}); }

    void Send(HWND Target, UINT Message, WPARAM Keys, const TPoint& Place)
    {
        HWND Window = GetCapture() ? GetCapture() : Target;
        POINT P = Place;
        MapWindowPoints(nullptr, Window, &P, 1);
        SendMessageW(Window, Message, Keys, MAKELPARAM(P.x, P.y));
        // Not every move is painted, as with a quick hand.
        if (Message != WM_MOUSEMOVE || ++Moved % 4 == 0)
            PumpMessages();
    }

    // One stroke: take a bar somewhere, or the caption of its frame, move about, let go. Returns the number of actions.
    // Of the right button the release is left out: it would open the system's menus.
    int Stroke()
    {
        TTestBar* Bar = Bars[Random(8)];
        if (!Bar->Visible)
            return 0;
        const bool ByCaption = Bar->Floating && Random(2) == 0;
        const HWND Target = ByCaption ? Bar->Frame->GetHandle() : Bar->GetHandle();
        const TPoint Grip =
            ByCaption ? TPoint(Random(Bar->Width / 2), -8) : TPoint(Random(Bar->Width), Random(Bar->Height));
        TPoint Place = Bar->ClientToScreen(Grip);
        const bool Left = Random(10) != 0;
        const WPARAM Keys = Left ? MK_LBUTTON : MK_RBUTTON;
        Send(Target, WM_MOUSEMOVE, 0, Place);
        Send(Target, Left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, Keys, Place);
        const int Moves = 1 + Random(8);
        for (int Move = 0; Move < Moves; ++Move) {
            Place = Random(3) == 0 ? Place + TPoint(Random(9) - 4, Random(9) - 4) : RandomPoint();
            Send(Target, WM_MOUSEMOVE, Keys, Place);
        }
        if (Left)
            Send(Target, WM_LBUTTONUP, 0, Place);
        EXPECT_EQ(GetCapture(), nullptr) << "the button is up";
        ReleaseCapture();
        return Moves + 3;
    }

    void HideOrShowSomething()
    {
        TTestBar* Bar = Bars[Random(8)];
        if (Hidden.erase(Bar)) {
            Bar->ShowPanel();
        } else {
            Bar->HidePanel();
            Hidden.insert(Bar);
        }
    }

    // Whatever has happened, the user can get at every bar that nobody has hidden.
    void ExpectReachable() const
    {
        for (const TTestBar* Bar : Bars) {
            SCOPED_TRACE(Bar->Name + ": " + Describe(Bar));
            ASSERT_EQ(Bar->Visible, !Hidden.contains(Bar));
            ASSERT_EQ(Bar->Floating, Bar->Dock == nullptr);
            ASSERT_GE(std::min(Bar->Width, Bar->Height), 26);
            if (!Bar->Visible)
                continue;
            if (Bar->Floating) {
                ASSERT_TRUE(IsWindowVisible(Bar->Frame->Handle));
                ASSERT_NE(MonitorFromWindow(Bar->Frame->Handle, MONITOR_DEFAULTTONULL), nullptr);
                continue;
            }
            TRect Seen;
            const TRect Inside(0, 0, Bar->Dock->Width, Bar->Dock->Height);
            ASSERT_TRUE(IntersectRect(Seen, Bar->BoundsRect, Inside));
        }
        for (const TkelDock* Dock : Docks)
            ExpectInOrder(Dock);
    }

    // No bar covers another, and across the dock there is a bar everywhere.
    void ExpectInOrder(const TkelDock* Dock) const
    {
        SCOPED_TRACE("edge " + std::to_string(Dock->Align) + " " + Layout(Dock));
        const TDockAxis Axis = Dock->Axis();
        std::vector<bool> Taken(Axis.Thickness(*Dock));
        TRect Seen;
        for (const TkelToolBar* Bar : Dock->ShownBars()) {
            for (const TkelToolBar* Other : Dock->ShownBars())
                ASSERT_TRUE(Bar == Other || !IntersectRect(Seen, Bar->BoundsRect, Other->BoundsRect))
                    << Bar->Name << " covers " << Other->Name;
            ASSERT_GE(Axis.Row(*Bar), 0);
            ASSERT_LE(Axis.NextRow(*Bar), Axis.Thickness(*Dock));
            std::fill_n(Taken.begin() + Axis.Row(*Bar), Axis.Thickness(*Bar), true);
        }
        ASSERT_EQ(std::count(Taken.begin(), Taken.end(), false), 0) << "there is an empty row";
    }

    static std::string Describe(const TTestBar* Bar)
    {
        const TRect R = Bar->Floating ? Bar->Frame->BoundsRect : Bar->BoundsRect;
        return (Bar->Dock ? "edge " + std::to_string(Bar->Dock->Align) : "floating") + " " + std::to_string(R.left) +
               "," + std::to_string(R.top) + " " + std::to_string(R.Width()) + "x" + std::to_string(R.Height());
    }

    std::string Play(unsigned Seed)
    {
        Generator.seed(Seed);
        for (int Actions = 0; Actions < ActionCount; ++Actions) {
            Actions += Stroke();
            if (Random(8) == 0)
                HideOrShowSomething();
            ExpectReachable();
            if (HasFatalFailure())
                return "failed after " + std::to_string(Actions) + " actions";
        }
        std::string Text;
        for (const TTestBar* Bar : Bars)
            Text += Bar->Name + " " + Describe(Bar) + "\n";
        for (const TkelDock* Dock : Docks)
            Text += Layout(Dock) + "\n";
        return Text;
    }

    std::mt19937 Generator;
    int Moved = 0;
    std::vector<TkelDock*> Docks;
    std::vector<TTestBar*> Bars;
    std::set<const TTestBar*> Hidden;

    static inline std::string FirstLayout;
};

} // namespace

TEST_F(ToolBarSessionTest, TenThousandActionsLoseNoBar)
{
    FirstLayout = Play(20260317);
}

TEST_F(ToolBarSessionTest, TheSameSeedGivesTheSameLayout)
{
    if (FirstLayout.empty())
        GTEST_SKIP() << "the session that this one is compared with did not run";
    EXPECT_EQ(Play(20260317), FirstLayout);
}
