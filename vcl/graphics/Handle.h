// The owner of one system handle.
#pragma once

#include "vcl/graphics/GraphicErrors.h"
#include "vcl/system/LiveCount.h"
#include "vcl/system/WindowsApi.h"

#include <utility>

// Close takes the handle that it ends.
template <class THandle, auto Close>
class TOwnedHandle {
public:
    TOwnedHandle() = default;
    explicit TOwnedHandle(THandle Handle) noexcept { Reset(Handle); }
    TOwnedHandle(TOwnedHandle&& Other) noexcept : FHandle(std::exchange(Other.FHandle, nullptr)) {}
    TOwnedHandle& operator=(TOwnedHandle&& Other) noexcept
    {
        std::swap(FHandle, Other.FHandle);
        return *this;
    }
    ~TOwnedHandle() { Reset(); }

    // A new handle that a system call just gave; raises EOutOfResources when it is null.
    static TOwnedHandle Checked(THandle Handle)
    {
        if (!Handle)
            RaiseOutOfResources();
        return TOwnedHandle(Handle);
    }

    THandle Get() const noexcept { return FHandle; }
    explicit operator bool() const noexcept { return FHandle != nullptr; }

    // Ends the held handle and owns Handle.
    void Reset(THandle Handle = nullptr) noexcept
    {
        if (FHandle) {
            CountLiveHandle(-1);
            Close(FHandle);
        }
        FHandle = Handle;
        if (FHandle)
            CountLiveHandle(+1);
    }
    // Gives the handle to the caller.
    THandle Release() noexcept
    {
        if (FHandle)
            CountLiveHandle(-1);
        return std::exchange(FHandle, nullptr);
    }

private:
    THandle FHandle = nullptr;
};

inline void CloseGdiObject(HGDIOBJ Handle)
{
    DeleteObject(Handle);
}
inline void CloseDC(HDC Handle)
{
    DeleteDC(Handle);
}
inline void CloseIcon(HICON Handle)
{
    DestroyIcon(Handle);
}
inline void CloseMetafile(HENHMETAFILE Handle)
{
    DeleteEnhMetaFile(Handle);
}

using TBitmapHandle = TOwnedHandle<HBITMAP, CloseGdiObject>;
using TPaletteHandle = TOwnedHandle<HPALETTE, CloseGdiObject>;
using TRegionHandle = TOwnedHandle<HRGN, CloseGdiObject>;
using TFontHandle = TOwnedHandle<HFONT, CloseGdiObject>;
using TPenHandle = TOwnedHandle<HPEN, CloseGdiObject>;
using TBrushHandle = TOwnedHandle<HBRUSH, CloseGdiObject>;
using TMemoryDC = TOwnedHandle<HDC, CloseDC>;
using TIconHandle = TOwnedHandle<HICON, CloseIcon>;
using TMetafileHandle = TOwnedHandle<HENHMETAFILE, CloseMetafile>;
