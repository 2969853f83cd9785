// The system's drawing objects and the handles that we own, before and after.
#pragma once

#include "vcl/system/LiveCount.h"
#include "vcl/system/WindowsApi.h"

#include <gtest/gtest.h>

// Draws once to have everything there that is kept, and then so often that what is made each time would be seen.
template <class TAction>
void ExpectNoNewSystemObjects(const TAction& Draw, int Times = 10)
{
    Draw();
    const DWORD Objects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    const int64_t Handles = LiveHandleCount();
    for (int I = 0; I < Times; ++I)
        Draw();
    EXPECT_EQ(LiveHandleCount(), Handles);
    EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), Objects);
}
