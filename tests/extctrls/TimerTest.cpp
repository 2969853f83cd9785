#include "vcl/extctrls/Timer.h"

#include "tests/support/FormText.h"
#include "tests/support/Input.h"
#include "tests/support/Reports.h"
#include "vcl/menus/UtilityWindow.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

TEST(TimerTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TTimer::StaticClass(), "Enabled"),
                testing::ElementsAre("Enabled = True", "Interval = 1000", "OnTimer"));
}

TEST(TimerTest, RaisesItsEventAgainAndAgain)
{
    auto Timer = std::make_unique<TTimer>(nullptr);
    int Count = 0;
    Timer->Interval = 10;
    Timer->OnTimer = [&](TObject* Sender) { Count += Sender == Timer.get(); };
    EXPECT_TRUE(PumpUntil([&] { return Count >= 3; }));
}

TEST(TimerTest, RunsOnlyWhenEnabledWithAnInterval)
{
    auto Stopped = std::make_unique<TTimer>(nullptr);
    auto Clock = std::make_unique<TTimer>(nullptr);
    int Wrong = 0;
    int Ticks = 0;
    Stopped->Interval = 10;
    Stopped->Enabled = false;
    Stopped->OnTimer = [&](TObject*) { ++Wrong; };
    Clock->Interval = 10;
    Clock->OnTimer = [&](TObject*) { ++Ticks; };
    EXPECT_TRUE(PumpUntil([&] { return Ticks >= 4; }));
    Stopped->Enabled = true;
    EXPECT_TRUE(PumpUntil([&] { return Wrong == 1; }));
    Stopped->Interval = 0;
    int After = Ticks;
    EXPECT_TRUE(PumpUntil([&] { return Ticks >= After + 4; }));
    EXPECT_EQ(Wrong, 1);
}

TEST(TimerTest, MayBeDeletedByItsHandler)
{
    auto* Timer = new TTimer(nullptr);
    bool Raised = false;
    Timer->Interval = 10;
    Timer->OnTimer = [&](TObject* Sender) {
        Raised = true;
        delete static_cast<TTimer*>(Sender);
    };
    EXPECT_TRUE(PumpUntil([&] { return Raised; }));
}

TEST(TimerTest, AnExceptionOfTheHandlerIsReported)
{
    const TReports Reports;
    auto Timer = std::make_unique<TTimer>(nullptr);
    Timer->Interval = 10;
    Timer->OnTimer = [&](TObject*) {
        Timer->Enabled = false;
        throw Exception("late");
    };
    EXPECT_TRUE(PumpUntil([&] { return !Reports.Texts().empty(); }));
    EXPECT_THAT(Reports.Texts(), ElementsAre("TTimer: late"));
}
