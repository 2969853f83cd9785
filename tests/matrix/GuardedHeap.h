// Memory that tells when it is used after it was freed: every object of this program lies in pages of its own, which
// the program loses with the object.
#pragma once

// True when Address is in the pages of a living or deleted object.
bool IsInGuardedHeap(const void* Address);
