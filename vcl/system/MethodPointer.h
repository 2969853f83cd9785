// Portability: what a pointer to a member function is made of. Compilers differ; every class here has TObject as its
// first base, so that a pointer to any of their methods comes down to one word.
#pragma once

#include <cstdint>
#include <cstring>

class TObject;

// The one word of a method of TObject or a descendant, or 0 when it takes more than that: a method of a class whose
// TObject is not the first base.
template <class Method>
uintptr_t MethodToCode(Method Pointer) noexcept
{
    uintptr_t Words[sizeof(Method) / sizeof(uintptr_t)];
    std::memcpy(Words, &Pointer, sizeof Pointer);
    for (size_t I = 1; I < sizeof(Method) / sizeof(uintptr_t); ++I)
        if (Words[I] != 0)
            return 0;
    return Words[0];
}

template <class Method>
Method CodeToMethod(uintptr_t Code) noexcept
{
    uintptr_t Words[sizeof(Method) / sizeof(uintptr_t)] = {Code};
    Method Pointer;
    std::memcpy(&Pointer, Words, sizeof Pointer);
    return Pointer;
}
