#include "toolbar/ButtonContent.h"

#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/DisabledText.h"

namespace {

constexpr int Gap = 4;

// The first of two lengths and the second behind it, in the middle between Start and End.
void PlaceInLine(int Start, int End, int First, int Second, LONG& FirstAt, LONG& SecondAt)
{
    const int Between = First != 0 && Second != 0 ? Gap : 0;
    FirstAt = (Start + End - First - Between - Second) / 2;
    SecondAt = FirstAt + First + Between;
}

} // namespace

TButtonContent PlaceContent(const TRect& R, const TSize& Glyph, const TSize& Caption, TButtonLayout Layout)
{
    TButtonContent Place;
    Place.Glyph = {static_cast<int>(R.left + R.right - Glyph.cx) / 2,
                   static_cast<int>(R.top + R.bottom - Glyph.cy) / 2};
    Place.Caption = {static_cast<int>(R.left + R.right - Caption.cx) / 2,
                     static_cast<int>(R.top + R.bottom - Caption.cy) / 2};
    switch (Layout) {
    case blGlyphLeft: PlaceInLine(R.left, R.right, Glyph.cx, Caption.cx, Place.Glyph.x, Place.Caption.x); break;
    case blGlyphRight: PlaceInLine(R.left, R.right, Caption.cx, Glyph.cx, Place.Caption.x, Place.Glyph.x); break;
    case blGlyphTop: PlaceInLine(R.top, R.bottom, Glyph.cy, Caption.cy, Place.Glyph.y, Place.Caption.y); break;
    case blGlyphBottom: PlaceInLine(R.top, R.bottom, Caption.cy, Glyph.cy, Place.Caption.y, Place.Glyph.y); break;
    }
    return Place;
}

TSize MeasureCaption(TCanvas* Canvas, TFont* Font, std::string_view Text)
{
    if (Text.empty())
        return {};
    Canvas->Font = Font;
    TRect R;
    DrawText(Canvas->Handle, Text, R, DT_CALCRECT | DT_SINGLELINE);
    return {R.Width(), R.Height()};
}

void DrawButtonCaption(TCanvas* Canvas, TFont* Font, std::string_view Text, TRect R, bool Disabled,
                       const TPoint& Highlight)
{
    constexpr unsigned Flags = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
    if (Text.empty())
        return;
    Canvas->Font = Font;
    Canvas->Brush->Style = bsClear;
    if (Disabled) {
        DrawDisabledText(Canvas->Handle, Text, R, Flags, Highlight);
        return;
    }
    DrawText(Canvas->Handle, Text, R, Flags);
}
