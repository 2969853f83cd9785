// Memory that is freed in a test program is filled first, so that whoever still uses it is found out: a pointer in it
// leads nowhere.
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <new>

void operator delete(void* Memory) noexcept
{
    if (Memory)
        std::memset(Memory, 0xDD, _msize(Memory));
    std::free(Memory);
}

void operator delete(void* Memory, std::size_t) noexcept
{
    operator delete(Memory);
}
