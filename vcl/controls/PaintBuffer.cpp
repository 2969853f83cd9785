#include "vcl/controls/PaintBuffer.h"

#include "vcl/system/Exceptions.h"
#include "vcl/system/LiveCount.h"

#include <memory>

// A memory context with a bitmap in the screen's format. It is no DIB section, whose pixels belong to the program:
// where the system scales a program for a screen of high resolution, it can only stretch those.
class TPaintBuffer::TSurface {
public:
    TSurface(int AWidth, int AHeight) : Width(AWidth), Height(AHeight)
    {
        HDC Screen = GetDC(nullptr);
        DC = CreateCompatibleDC(Screen);
        Bitmap = CreateCompatibleBitmap(Screen, Width, Height);
        ReleaseDC(nullptr, Screen);
        if (!DC || !Bitmap)
            throw EOSError("Out of system resources");
        Before = static_cast<HBITMAP>(SelectObject(DC, Bitmap));
    }
    ~TSurface()
    {
        SelectObject(DC, Before);
        DeleteObject(Bitmap);
        DeleteDC(DC);
    }

    int Width;
    int Height;
    HDC DC;
    bool InUse = false;

    static std::unique_ptr<TSurface> Shared;

private:
    HBITMAP Bitmap;
    HBITMAP Before;
};

std::unique_ptr<TPaintBuffer::TSurface> TPaintBuffer::TSurface::Shared;

TPaintBuffer::TPaintBuffer(const TRect& Area) : FArea(Area)
{
    auto& Shared = TSurface::Shared;
    FShared = !Shared || !Shared->InUse;
    if (!FShared) {
        FSurface = new TSurface(Area.Width(), Area.Height());
    } else {
        if (!Shared || Shared->Width < Area.Width() || Shared->Height < Area.Height()) {
            int Width = std::max(Area.Width(), Shared ? Shared->Width : 0);
            int Height = std::max(Area.Height(), Shared ? Shared->Height : 0);
            Shared.reset();
            Shared = std::make_unique<TSurface>(Width, Height);
        }
        FSurface = Shared.get();
        FSurface->InUse = true;
    }
    FDC = FSurface->DC;
    // Resets what the last painting may have changed. SaveDC and RestoreDC would take longer than painting a button.
    SetMapMode(FDC, MM_TEXT);
    SetTextAlign(FDC, TA_LEFT);
    SetStretchBltMode(FDC, BLACKONWHITE);
    SetBrushOrgEx(FDC, 0, 0, nullptr);
    SetViewportOrgEx(FDC, -Area.Left, -Area.Top, nullptr);
    SelectClipRgn(FDC, nullptr);
    IntersectClipRect(FDC, Area.Left, Area.Top, Area.Right, Area.Bottom);
}

TPaintBuffer::~TPaintBuffer()
{
    if (FShared)
        FSurface->InUse = false;
    else
        delete FSurface;
}

void TPaintBuffer::CopyTo(HDC Target) const
{
    BitBlt(Target, FArea.Left, FArea.Top, FArea.Width(), FArea.Height(), FDC, FArea.Left, FArea.Top, SRCCOPY);
}

void TPaintBuffer::FreeShared()
{
    if (TSurface::Shared && !TSurface::Shared->InUse)
        TSurface::Shared.reset();
}
