// Portability: CONSTRUCTED_FIRST in front of a static object has it constructed before those of other files.
#pragma once

#if defined(_MSC_VER) && !defined(__clang__)
#define CONSTRUCTED_FIRST __pragma(init_seg(lib))
#else
#define CONSTRUCTED_FIRST __attribute__((init_priority(101)))
#endif
