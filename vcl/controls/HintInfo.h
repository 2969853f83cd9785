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
    // The part of the control, in its coordinates, that the hint belongs to. When the pointer leaves it, CM_HINTSHOW is
    // sent again.
    TRect CursorRect;
    TPoint CursorPos;
    // When not 0, CM_HINTSHOW is sent again after so many milliseconds.
    int ReshowTimeout = 0;
    // How long the hint stays, in milliseconds.
    int HideTimeout = 0;
    // UTF-8; empty shows nothing.
    AnsiString HintStr;
    // Passed to the hint window.
    void* HintData = nullptr;
};
