#include "vcl/system/LiveCount.h"

#include <atomic>

#if defined(TESSARY_COUNT_OBJECTS)

namespace {
std::atomic<int64_t> LiveObjects{0};
std::atomic<int64_t> LiveHandles{0};
} // namespace

int64_t LiveObjectCount() noexcept
{
    return LiveObjects;
}

int64_t LiveHandleCount() noexcept
{
    return LiveHandles;
}

void CountLiveObject(int Change) noexcept
{
    LiveObjects += Change;
}

void CountLiveHandle(int Change) noexcept
{
    LiveHandles += Change;
}

#else

int64_t LiveObjectCount() noexcept
{
    return 0;
}

int64_t LiveHandleCount() noexcept
{
    return 0;
}

#endif
