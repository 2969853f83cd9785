// THintInfo: what is about to be shown as a hint; a control changes it in its CM_HINTSHOW handler.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/graphics/Color.h"

struct THintInfo {
    // Whose hint it is.
    TControl* HintControl = nullptr;
    // The window to show it in: THintWindow or a descendant.
    TClass HintWindowClass = nullptr;
    // The top left corner, on the screen.
    TPoint HintPos;
    // Lines are broken at this width in pixels.
    int HintMaxWidth = 0;
    TColor HintColor = clInfoBk;
    // The part of the control, in its coordinates, that the hint is about. Outside of it the control is asked again.
    TRect CursorRect;
    TPoint CursorPos;
    // Not 0: after so many milliseconds the control is asked again.
    int ReshowTimeout = 0;
    // How long the hint stays, in milliseconds.
    int HideTimeout = 0;
    // UTF-8; empty shows nothing.
    AnsiString HintStr;
    // For the hint window.
    void* HintData = nullptr;
};
