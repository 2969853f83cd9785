// How many framework objects and system handles are alive. Counted only in builds with TESSARY_COUNT_OBJECTS, which
// the tests use: every test ends with both counts where they began. Other builds always answer 0.
#pragma once

#include <cstdint>

int64_t LiveObjectCount() noexcept;
int64_t LiveHandleCount() noexcept;

#if defined(TESSARY_COUNT_OBJECTS)
void CountLiveObject(int Change) noexcept;
void CountLiveHandle(int Change) noexcept;
#else
inline void CountLiveObject(int) noexcept
{}
inline void CountLiveHandle(int) noexcept
{}
#endif
