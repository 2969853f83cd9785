// Handlers of a drag that delete what takes part in it, end it, begin another, or raise exceptions.
#include "tests/controls/DragFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

namespace {

// What is deleted, and in which event.
enum class TVictim { Source, Target, Window };
enum class TMoment { Start, Enter, Move, Leave, Drop, Canceled, End };

class DragDeletes : public DragTest, public testing::WithParamInterface<std::tuple<TVictim, TMoment>> {
protected:
    void Delete()
    {
        if (std::exchange(Deleted, true))
            return;
        switch (std::get<TVictim>(GetParam())) {
        case TVictim::Source: delete Source; break;
        case TVictim::Target: delete Target; break;
        case TVictim::Window:
            WindowIsGone = true;
            delete &Window;
            break;
        }
    }
    void At(TMoment Moment)
    {
        if (std::get<TMoment>(GetParam()) == Moment)
            Delete();
    }
    static TMoment MomentOf(TDragState State)
    {
        if (State == dsDragMove)
            return TMoment::Move;
        return State == dsDragEnter ? TMoment::Enter : TMoment::Leave;
    }

    bool Deleted = false;
};

AnsiString NameOfCase(const testing::TestParamInfo<DragDeletes::ParamType>& Case)
{
    constexpr const char* Victims[] = {"Source", "Target", "Window"};
    constexpr const char* Moments[] = {"Start", "Enter", "Move", "Leave", "Drop", "Canceled", "End"};
    const auto [Victim, Moment] = Case.param;
    return Format("%sIn%s", Victims[static_cast<int>(Victim)], Moments[static_cast<int>(Moment)]);
}

} // namespace

TEST_P(DragDeletes, IsSafe)
{
    const TPoint Place = Target->ClientToScreen({20, 20});
    const TPoint Elsewhere = Window.ClientToScreen({5, 200});
    const TMoment Moment = std::get<TMoment>(GetParam());
    Source->OnStartDrag = [this](TObject*, TDragObject*& Object) {
        Object = new TParcel(Log);
        At(TMoment::Start);
    };
    Target->OnDragOver = [this](TObject*, TObject*, int, int, TDragState State, bool&) { At(MomentOf(State)); };
    Target->OnDragDrop = [this](TObject*, TObject*, int, int) { At(TMoment::Drop); };
    Source->OnCanceled = [this] { At(TMoment::Canceled); };
    Source->OnEndDrag = [this](TObject*, TObject*, int, int) { At(TMoment::End); };
    PressButton();
    MovePointer(Place);
    if (Moment == TMoment::Leave || Moment == TMoment::Canceled)
        MovePointer(Elsewhere);
    ReleaseButton();
    EXPECT_TRUE(Deleted);
    EXPECT_EQ(std::ranges::count(Log, "freed"), 1);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_THAT(Reports.Texts(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Everything, DragDeletes,
                         testing::Combine(testing::Values(TVictim::Source, TVictim::Target, TVictim::Window),
                                          testing::Values(TMoment::Start, TMoment::Enter, TMoment::Move, TMoment::Leave,
                                                          TMoment::Drop, TMoment::Canceled, TMoment::End)),
                         NameOfCase);

TEST_F(DragTest, ATargetThatGoesAwayIsReportedToNobody)
{
    Target->OnDragDrop = [this](TObject*, TObject*, int, int) { delete Target; };
    HoldOverTarget();
    ReleaseButton();
    EXPECT_THAT(Log, ElementsAre("end nothing 20,20"));
}

TEST_F(DragTest, ASourceThatGoesAwayBeforeTheStartIsForgotten)
{
    PressButton();
    delete Source;
    MovePointerTo(Target, 20, 20);
    ReleaseButton();
    EXPECT_THAT(Log, IsEmpty());
    Target->BeginDrag(true);
    EXPECT_TRUE(Target->Dragging());
    Target->EndDrag(false);
}

TEST_F(DragTest, HandlersMayEndTheDrag)
{
    Source->OnStartDrag = [this](TObject*, TDragObject*& Object) {
        Object = new TParcel(Log);
        Source->EndDrag(false);
    };
    DragToTarget();
    ReleaseButton();
    EXPECT_THAT(Log, ElementsAre("finished nowhere 0,0", "end nothing 0,0", "freed"));

    Log.clear();
    Source->OnStartDrag = nullptr;
    Target->OnDragOver = [this](TObject*, TObject*, int, int, TDragState State, bool&) {
        if (State == dsDragEnter)
            Source->EndDrag(true);
    };
    MovePointerTo(Source, 10, 10);
    DragToTarget();
    ReleaseButton();
    EXPECT_THAT(Log, ElementsAre("end nothing 0,0")) << "entered, but not taken yet";
}

TEST_F(DragTest, TheDropMayBeginAnotherDrag)
{
    Target->OnDragDrop = [this](TObject*, TObject*, int, int) {
        Log.push_back("dropped");
        Target->BeginDrag(true);
    };
    Target->OnEndDrag = [this](TObject*, TObject*, int, int) { Log.push_back("second end"); };
    HoldOverTarget();
    ReleaseButton();
    EXPECT_THAT(Log, testing::IsSupersetOf({"dropped", "end target 20,20"}));
    EXPECT_TRUE(Target->Dragging());
    EXPECT_NE(GetCapture(), nullptr);
    Target->EndDrag(false);
    EXPECT_EQ(Log.back(), "second end");
}

TEST_F(DragTest, AnExceptionAtTheStartGivesUp)
{
    Source->OnStartDrag = [](TObject*, TDragObject*&) { throw Exception("no start"); };
    // Windowless controls get their messages from the window, which reports to the host.
    EXPECT_THROW(Source->BeginDrag(true), Exception);
    EXPECT_FALSE(Source->Dragging());
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_THAT(Log, IsEmpty());
}

TEST_F(DragTest, AnExceptionOnTheWayEndsTheDragOnce)
{
    Target->OnDragOver = [](TObject*, TObject*, int, int, TDragState, bool&) { throw Exception("not over me"); };
    PressButton();
    MovePointerTo(&Window, 5, 200);
    Log.clear();
    MovePointerTo(Target, 20, 20);
    EXPECT_THAT(Log, ElementsAre("end nothing 0,0"));
    EXPECT_THAT(Reports.Texts(), ElementsAre(EndsWith("not over me")));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(DragTest, AnExceptionInTheDropIsReportedAfterTheEndIsTold)
{
    Target->OnDragDrop = [](TObject*, TObject*, int, int) { throw Exception("not here"); };
    HoldOverTarget();
    ReleaseButton();
    EXPECT_THAT(Log, ElementsAre("end target 20,20"));
    EXPECT_THAT(Reports.Texts(), ElementsAre(EndsWith("not here")));
}
