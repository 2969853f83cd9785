// THighlightText: the caption of a control that has another colour while the mouse is over it.
#pragma once

#include "vcl/graphics/Font.h"

class THighlightText {
public:
    explicit THighlightText(TFont* Font) : FFont(Font), FNormalColor(Font->Color) {}

    // Of the caption under the mouse.
    TColor Color = clHighlight;

    void MouseEnter()
    {
        FNormalColor = FFont->Color;
        FFont->Color = Color;
    }
    // A colour that was set meanwhile is overwritten.
    void MouseLeave() { FFont->Color = FNormalColor; }

private:
    TFont* FFont;
    TColor FNormalColor;
};
