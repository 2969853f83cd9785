#include "vcl/controls/WindowProcHook.h"

#include "tests/controls/TestWindow.h"

namespace {

class WindowProcHookTest : public ControlsTest {
protected:
    using TLog = std::vector<AnsiString>;

    THookedWindowProc Noting(const AnsiString& Name)
    {
        return [=, this](TMessage& Message, const TWndMethod& Next) {
            if (Message.Msg == WM_APP)
                Log.push_back(Name);
            Next(Message);
        };
    }
    TLog Heard()
    {
        Log.clear();
        Probe->Perform(WM_APP);
        return Log;
    }

    TProbe* Probe = Add<TProbe>(&Window, 0, 0, 20, 20);
    TLog Log;
};

} // namespace

TEST_F(WindowProcHookTest, TheLatestHookIsTheFirst)
{
    TWindowProcHook A, B;
    A.Install(Probe, Noting("a"));
    B.Install(Probe, Noting("b"));
    EXPECT_EQ(Heard(), (TLog{"b", "a"}));
    EXPECT_EQ(A.Control(), Probe);
}

TEST_F(WindowProcHookTest, HooksAreTakenOutInAnyOrder)
{
    TWindowProcHook A, B;
    A.Install(Probe, Noting("a"));
    B.Install(Probe, Noting("b"));
    A.Remove();
    EXPECT_EQ(Heard(), (TLog{"b"}));
    EXPECT_EQ(A.Control(), nullptr);
    B.Remove();
    EXPECT_EQ(Heard(), TLog{});
}

TEST_F(WindowProcHookTest, TheHookOnTopLeavesNothingBehind)
{
    const TWndMethod Before = Probe->WindowProc;
    TWindowProcHook Hook;
    Hook.Install(Probe, Noting("a"));
    Hook.Remove();
    EXPECT_EQ(Probe->WindowProc, Before);
}

TEST_F(WindowProcHookTest, AHookEndsWithItsControl)
{
    TWindowProcHook Hook;
    Hook.Install(Probe, Noting("a"));
    delete Probe;
    EXPECT_EQ(Hook.Control(), nullptr);
}

TEST_F(WindowProcHookTest, AHookMayBeRemovedWhileItIsCalled)
{
    TWindowProcHook Hook;
    Hook.Install(Probe, [&](TMessage& Message, const TWndMethod& Next) {
        Hook.Remove();
        Next(Message);
    });
    Probe->Perform(WM_APP);
    EXPECT_EQ(Hook.Control(), nullptr);
}

// One that does not live on the heap tells of its end late: when it is no control any more.
TEST_F(WindowProcHookTest, AHookMayBeRemovedByAComponentOfAControlThatIsHalfGone)
{
    struct THooking : TComponent {
        using TComponent::TComponent;
        TWindowProcHook Hook;
    };
    {
        TTestWindow OnStack(nullptr);
        (new THooking(&OnStack))->Hook.Install(&OnStack, Noting("a"));
    }
    EXPECT_EQ(Log, TLog{});
}
