// What the system holds for the program, to be compared before and after a test.
#pragma once

#include <cstdint>

struct TSystemCounts {
    // Objects of user32 and GDI in the process. Both are always 0 on Wine 8, which does not count them, and on other
    // systems than Windows.
    int64_t UserObjects = 0;
    int64_t GdiObjects = 0;
    // The windows of this thread with all that is in them, without those of input methods.
    int64_t Windows = 0;

    static TSystemCounts Now();
};
