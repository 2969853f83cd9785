#include "tests/support/LiveCountGuard.h"

#include "vcl/system/LiveCount.h"

void TLiveCountGuard::OnTestStart(const testing::TestInfo&)
{
    FObjects = LiveObjectCount();
    FHandles = LiveHandleCount();
    FSystem = TSystemCounts::Now();
}

void TLiveCountGuard::OnTestEnd(const testing::TestInfo& Test)
{
    EXPECT_EQ(LiveObjectCount() - FObjects, 0) << "objects left behind by " << Test.name();
    EXPECT_EQ(LiveHandleCount() - FHandles, 0) << "system handles left behind by " << Test.name();
    const TSystemCounts Now = TSystemCounts::Now();
    EXPECT_EQ(Now.UserObjects - FSystem.UserObjects, 0) << "objects of user32 left behind by " << Test.name();
    EXPECT_EQ(Now.GdiObjects - FSystem.GdiObjects, 0) << "objects of GDI left behind by " << Test.name();
    EXPECT_EQ(Now.Windows - FSystem.Windows, 0) << "windows left behind by " << Test.name();
}
