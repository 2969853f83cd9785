// TkelColorComboButton: a split button that stands for a colour: its main half applies the current one and shows it in
// a band below the glyph.
//
// It offers no colours of its own yet: OnListDown is for the application to do so.
#pragma once

#include "toolbar/ComboButton.h"

class TkelColorComboButton : public TkelComboButton {
    VCL_CLASS(TkelColorComboButton, TkelComboButton)
public:
    explicit TkelColorComboButton(TComponent* AOwner);

    // Black at first. With clNone the band is an empty frame.
    TColor GetCurrentColor() const { return FCurrentColor; }
    void SetCurrentColor(TColor Value);
    PROPERTY(TColor, CurrentColor);

    // CurrentColor has another value, but not because a form is being read.
    TNotifyEvent OnChange;

protected:
    void DrawOnMain(TCanvas* Canvas, TRect& R) override;

private:
    TColor FCurrentColor = clBlack;
};
