// How border styles and icons come out as styles of the window.
#pragma once

#include "vcl/forms/FormTypes.h"
#include "vcl/system/WindowsApi.h"

struct TFormFrame {
    DWORD Style = 0;
    DWORD ExStyle = 0;

    // The icons that a border style has room for: dialogs the system menu and help, tool windows the system menu.
    static TBorderIcons IconsFor(TFormBorderStyle BorderStyle, TBorderIcons Icons);
    static TFormFrame Of(TFormBorderStyle BorderStyle, TBorderIcons Icons, bool IsChild);
    // What the frame adds to the client size in pixels.
    TSize Margins(bool HasMenu) const;
};
