#include "vcl/graphics/Embossing.h"

namespace {

uint32_t OpaquePixel(TColor Color)
{
    const COLORREF Value = ColorToRGB(Color);
    return 0xFF000000 | static_cast<uint32_t>(GetRValue(Value)) << 16 | GetGValue(Value) << 8 | GetBValue(Value);
}

} // namespace

TEmbossing::TEmbossing() : FShadow(OpaquePixel(clBtnShadow)), FHighlight(OpaquePixel(clBtnHighlight))
{}
