#include "vcl/stdctrls/TextMeasure.h"

#include "vcl/graphics/Canvas.h"

HDC MeasureContext()
{
    static const HDC Context = CreateCompatibleDC(nullptr);
    return Context;
}

void MeasureText(const TFont* Font, std::string_view Text, TRect& Rect, unsigned Flags)
{
    HGDIOBJ Old = SelectObject(MeasureContext(), Font->Handle);
    DrawText(MeasureContext(), Text, Rect, Flags);
    SelectObject(MeasureContext(), Old);
}

int LineHeight(const TFont* Font)
{
    HGDIOBJ Old = SelectObject(MeasureContext(), Font->Handle);
    TEXTMETRICW Metrics{};
    GetTextMetricsW(MeasureContext(), &Metrics);
    SelectObject(MeasureContext(), Old);
    return Metrics.tmHeight;
}
