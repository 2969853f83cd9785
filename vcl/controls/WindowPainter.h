// TWindowPainter: puts a window's background, its own drawing and its windowless children together in a buffer, which
// reaches the screen in one step.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/system/WindowsApi.h"

class TWindowPainter {
public:
    // Answers WM_PAINT: paints what is invalid.
    static void Paint(TWinControl& Window);
    // Paints an opaque windowless control at once, without its parent. False when something lies over it or it is not
    // opaque; then nothing was done.
    static bool PaintAlone(TControl& Control);
    // Window and its windowless children, where Clip (in window coordinates) needs them.
    static void PaintInto(TWinControl& Window, HDC DC, const TRect& Clip);
    // The windowless children from the one at First on.
    static void PaintControls(TWinControl& Window, HDC DC, size_t First, const TRect& Clip);

private:
    // Clip, in device coordinates, is selected afterwards; nullptr: no clipping.
    static void PaintControl(TControl& Control, HDC DC, HRGN Clip);
    static bool IsCovered(const TControl& Control);
    // The topmost opaque child that alone covers Clip, as an index; size() when there is none.
    static size_t FindCover(const TWinControl& Window, const TRect& Clip);
};
