#include "tests/support/Watchdog.h"

#include "tests/support/Dialogs.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>
#include <thread>

using namespace std::chrono_literals;
using TClock = std::chrono::steady_clock;

namespace {

std::chrono::seconds LimitFromEnvironment()
{
    const char* Limit = std::getenv("TESSARY_TEST_LIMIT");
    return std::chrono::seconds(Limit ? std::atoi(Limit) : 30);
}

} // namespace

// The thread that watches.
class TWatchdog::TGuard {
public:
    explicit TGuard(std::string TestName)
        : FTestName(std::move(TestName)),
          FLimit(LimitFromEnvironment()),
          FThread([this] { Watch(); })
    {}

    ~TGuard()
    {
        {
            std::lock_guard Lock(FMutex);
            FDone = true;
        }
        FWake.notify_one();
        FThread.join();
    }

    void AllowLonger(int Times)
    {
        std::lock_guard Lock(FMutex);
        FLimit *= Times;
    }

private:
    void Watch()
    {
        const TClock::time_point Start = TClock::now();
        std::unique_lock Lock(FMutex);
        while (!FWake.wait_for(Lock, 50ms, [this] { return FDone; })) {
            AnswerDialogs();
            if (FLimit > 0s && TClock::now() > Start + FLimit)
                GiveUp();
        }
    }

    [[noreturn]] void GiveUp()
    {
        std::fprintf(stderr, "%s hangs: not done in %d s. It shows:\n%s", FTestName.c_str(),
                     static_cast<int>(FLimit.count()), DescribeOwnWindows().c_str());
        std::fflush(nullptr);
        std::_Exit(3);
    }

    const std::string FTestName;
    std::chrono::seconds FLimit;
    std::mutex FMutex;
    std::condition_variable FWake;
    bool FDone = false;
    std::thread FThread;
};

TWatchdog::TGuard* TWatchdog::Current = nullptr;

TWatchdog::TWatchdog() = default;
TWatchdog::~TWatchdog() = default;

void TWatchdog::OnTestStart(const testing::TestInfo& Test)
{
    FGuard = std::make_unique<TGuard>(std::string(Test.test_suite_name()) + "." + Test.name());
    Current = FGuard.get();
}

void TWatchdog::OnTestEnd(const testing::TestInfo&)
{
    Current = nullptr;
    FGuard.reset();
}

void TWatchdog::AllowLonger(int Times)
{
    if (Current)
        Current->AllowLonger(Times);
}
