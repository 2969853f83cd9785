// TPaintBuffer: a memory device context that a window is painted into before it reaches the screen. One bitmap is
// shared by all windows and grows as needed; nested painting gets a bitmap of its own.
#pragma once

#include "vcl/graphics/Types.h"

class TPaintBuffer {
public:
    // A context of at least Area's size, in which coordinates are those of the window: Area's top left corner is the
    // bitmap's. Its contents are undefined.
    explicit TPaintBuffer(const TRect& Area);
    ~TPaintBuffer();
    TPaintBuffer(const TPaintBuffer&) = delete;

    HDC DC() const { return FDC; }
    // Copies what was painted to the same place of Target.
    void CopyTo(HDC Target) const;

    // Frees the shared bitmap; the next buffer allocates a new one.
    static void FreeShared();

private:
    class TSurface;

    TRect FArea;
    TSurface* FSurface;
    bool FShared;
    HDC FDC;
};
