#include "vcl/graphics/DisabledText.h"

#include "vcl/graphics/Canvas.h"

void DrawDisabledText(HDC Context, std::string_view Text, TRect R, unsigned Flags)
{
    OffsetRect(R, 1, 1);
    const COLORREF Before = SetTextColor(Context, ColorToRGB(clBtnHighlight));
    DrawText(Context, Text, R, Flags);
    OffsetRect(R, -1, -1);
    SetTextColor(Context, ColorToRGB(clBtnShadow));
    DrawText(Context, Text, R, Flags);
    SetTextColor(Context, Before);
}
