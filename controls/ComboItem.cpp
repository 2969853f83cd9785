#include "controls/ComboItem.h"

#include "vcl/stdctrls/TextMeasure.h"

int ComboItemHeight(const TFont* Font)
{
    return LineHeight(Font) + 1;
}

void DrawComboText(TCanvas* Canvas, std::string_view Text, TRect Item, int Left)
{
    Item.Left += Left;
    DrawText(Canvas->Handle, Text, Item, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}
