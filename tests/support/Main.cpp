// Runs the tests of one program, with the guards that every test gets.
#include "tests/support/LiveCountGuard.h"
#include "tests/support/Watchdog.h"

#include <gmock/gmock.h>

int main(int Count, char** Arguments)
{
    testing::InitGoogleMock(&Count, Arguments);
    testing::TestEventListeners& Listeners = testing::UnitTest::GetInstance()->listeners();
    Listeners.Append(new TLiveCountGuard);
    Listeners.Append(new TWatchdog);
    return RUN_ALL_TESTS();
}
