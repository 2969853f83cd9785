#include "vcl/graphics/DisabledText.h"

#include "vcl/graphics/Canvas.h"

void DrawDisabledText(HDC Context, std::string_view Text, TRect R, unsigned Flags, const TPoint& Highlight)
{
    OffsetRect(R, Highlight.X, Highlight.Y);
    const COLORREF Before = SetTextColor(Context, ColorToRGB(clBtnHighlight));
    DrawText(Context, Text, R, Flags);
    OffsetRect(R, -Highlight.X, -Highlight.Y);
    SetTextColor(Context, ColorToRGB(clBtnShadow));
    DrawText(Context, Text, R, Flags);
    SetTextColor(Context, Before);
}
