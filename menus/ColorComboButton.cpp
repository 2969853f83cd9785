#include "menus/ColorComboButton.h"

#include "toolbar/DropDown.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/SolidFill.h"
#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int BandHeight = 3;
constexpr int BandMargin = 3;       // at its left and right
constexpr int BandMarginBottom = 2; // between the band and the edge
constexpr int BandGap = 1;          // between the band and the glyph

} // namespace

void TkelColorComboButton::Describe(TClassBuilder<TkelColorComboButton>& Class)
{
    Class.Property<&Self::PublishedColor, &Self::SetCurrentColor>("CurrentColor");
    Class.Event<&Self::OnChange>("OnChange");
}

TkelColorComboButton::TkelColorComboButton(TComponent* AOwner) : TkelComboButton(AOwner)
{
    if (IsDesigning())
        return;
    FMenu = new TkelColorMenu(this);
    FMenu->CreateItems();
    FMenu->OnChange = {this, &TkelColorComboButton::Changed};
}

void TkelColorComboButton::SetCurrentColor(TColor Value)
{
    if (PublishedColor() == Value)
        return;
    (FMenu ? FMenu->CurrentColor : FDesignedColor) = Value;
    Changed(this);
}

void TkelColorComboButton::Changed(TObject*)
{
    MainButton()->Repaint();
    if (!IsLoading())
        OnChange(this);
}

void TkelColorComboButton::ListDown()
{
    inherited::ListDown();
    if (FMenu)
        DropDown(FMenu, this, ArrowButton());
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
    } else if (PublishedColor() == clNone) {
        Fill.Frame(Band, clBtnShadow, clBtnShadow);
    } else {
        Fill.Fill(Band, PublishedColor());
    }
    R.bottom -= BandHeight + BandGap;
}
