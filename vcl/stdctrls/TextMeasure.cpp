#include "vcl/stdctrls/TextMeasure.h"

#include "vcl/graphics/Font.h"

HDC MeasureContext()
{
    static const HDC Context = CreateCompatibleDC(nullptr);
    return Context;
}

int LineHeight(const TFont* Font)
{
    HGDIOBJ Old = SelectObject(MeasureContext(), Font->Handle);
    TEXTMETRICW Metrics{};
    GetTextMetricsW(MeasureContext(), &Metrics);
    SelectObject(MeasureContext(), Old);
    return Metrics.tmHeight;
}
