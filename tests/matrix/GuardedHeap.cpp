#include "tests/matrix/GuardedHeap.h"

#include "vcl/system/WindowsApi.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>

// The smallest components are larger. What is smaller shares pages, and is only overwritten.
static constexpr size_t SmallestGuarded = 96;
static constexpr size_t PageSize = 4096;
static constexpr size_t HeaderSize = 16; // holds the size of the block in bytes
static constexpr size_t ArenaSize = size_t{16} << 30;

// Addresses are never used again, so there are enough for all that a program makes in some minutes.
static std::byte* Arena()
{
    static auto* const Start = static_cast<std::byte*>(VirtualAlloc(nullptr, ArenaSize, MEM_RESERVE, PAGE_NOACCESS));
    return Start;
}

bool IsInGuardedHeap(const void* Address)
{
    return Arena() && Address >= Arena() && Address < Arena() + ArenaSize;
}

static void* AllocateGuarded(size_t Size)
{
    static std::atomic<size_t> Used = 0;
    const size_t Whole = (Size + HeaderSize + PageSize - 1) / PageSize * PageSize;
    const size_t Place = Used.fetch_add(Whole);
    if (!Arena() || Place + Whole > ArenaSize)
        return nullptr;
    void* const Block = VirtualAlloc(Arena() + Place, Whole, MEM_COMMIT, PAGE_READWRITE);
    if (!Block)
        return nullptr;
    std::memcpy(Block, &Whole, sizeof Whole);
    return static_cast<std::byte*>(Block) + HeaderSize;
}

static void FreeGuarded(void* Memory)
{
    auto* const Block = static_cast<std::byte*>(Memory) - HeaderSize;
    size_t Whole;
    std::memcpy(&Whole, Block, sizeof Whole);
    VirtualFree(Block, Whole, MEM_DECOMMIT);
}

void* operator new(size_t Size)
{
    if (void* Memory = Size < SmallestGuarded ? std::malloc(Size ? Size : 1) : AllocateGuarded(Size))
        return Memory;
    throw std::bad_alloc();
}

void operator delete(void* Memory) noexcept
{
    if (IsInGuardedHeap(Memory)) {
        FreeGuarded(Memory);
    } else if (Memory) {
        std::memset(Memory, 0xDD, _msize(Memory));
        std::free(Memory);
    }
}

void operator delete(void* Memory, size_t) noexcept
{
    operator delete(Memory);
}
