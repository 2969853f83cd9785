#include "vcl/system/LiveCount.h"

#include <gtest/gtest.h>

TEST(Guards, ObjectLeftBehind)
{
    CountLiveObject(+1);
}

TEST(Guards, HandleFreedTwice)
{
    CountLiveHandle(-1);
}

TEST(Guards, EndlessLoop)
{
    for (volatile unsigned I = 0;; I = I + 1) {
    }
}
