#include "tests/support/LiveCountGuard.h"

#include "vcl/system/LiveCount.h"

void TLiveCountGuard::OnTestStart(const testing::TestInfo&)
{
    FObjects = LiveObjectCount();
    FHandles = LiveHandleCount();
}

void TLiveCountGuard::OnTestEnd(const testing::TestInfo& Test)
{
    EXPECT_EQ(LiveObjectCount() - FObjects, 0) << "objects left behind by " << Test.name();
    EXPECT_EQ(LiveHandleCount() - FHandles, 0) << "system handles left behind by " << Test.name();
}
