#include "toolbar/ColorComboButton.h"

#include "toolbar/SolidFill.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int BandHeight = 3;
constexpr int BandMargin = 3;       // at its left and right
constexpr int BandMarginBottom = 2; // between the band and the edge
constexpr int BandGap = 1;          // between the band and the glyph

} // namespace

void TkelColorComboButton::Describe(TClassBuilder<TkelColorComboButton>& Class)
{
    Class.Property<&Self::GetCurrentColor, &Self::SetCurrentColor>("CurrentColor");
    Class.Event<&Self::OnChange>("OnChange");
}

TkelColorComboButton::TkelColorComboButton(TComponent* AOwner) : TkelComboButton(AOwner)
{}

void TkelColorComboButton::SetCurrentColor(TColor Value)
{
    if (FCurrentColor == Value)
        return;
    FCurrentColor = Value;
    MainButton()->Repaint();
    if (!IsLoading())
        OnChange(this);
}

void TkelColorComboButton::DrawOnMain(TCanvas* Canvas, TRect& R)
{
    TRect Band(R.left + BandMargin, R.bottom - BandMarginBottom - BandHeight, R.right - BandMargin,
               R.bottom - BandMarginBottom);
    if (Band.IsEmpty())
        return;
    TSolidFill Fill(Canvas->BareHandle());
    if (!MainButton()->Enabled) {
        OffsetRect(Band, 1, 1);
        Fill.Fill(Band, clBtnHighlight);
        OffsetRect(Band, -1, -1);
        Fill.Fill(Band, clBtnShadow);
    } else if (FCurrentColor == clNone) {
        Fill.Frame(Band, clBtnShadow, clBtnShadow);
    } else {
        Fill.Fill(Band, FCurrentColor);
    }
    R.bottom -= BandHeight + BandGap;
}
