// TkelColorComboButton: a split button that stands for a colour: its main half applies the current one and shows it in
// a band below the glyph, its arrow drops a menu of colours.
#pragma once

#include "menus/ColorMenu.h"
#include "toolbar/ComboButton.h"

class TkelColorComboButton : public TkelComboButton {
    VCL_CLASS(TkelColorComboButton, TkelComboButton)
public:
    explicit TkelColorComboButton(TComponent* AOwner);

    // Black at first. With clNone the band is an empty frame. In the designer, where there is no menu to have a current
    // colour, it reads as black; what is set there shows in the band and is kept in the form file.
    TColor GetCurrentColor() const { return FMenu ? FMenu->CurrentColor : clBlack; }
    void SetCurrentColor(TColor Value);
    PROPERTY(TColor, CurrentColor);
    // What the arrow drops, with the sixteen colours in it. The button's own, and so is its OnChange. nullptr in the
    // designer.
    TkelColorMenu* GetColorMenu() const { return FMenu; }
    PROPERTY_READ(TkelColorMenu*, ColorMenu);

    // The user has chosen a colour, or CurrentColor has another value, but not because a form is being read.
    TNotifyEvent OnChange;

protected:
    // Opens the menu below the button and returns when it is closed; the colour that is chosen comes after that. The
    // arrow stays down while the menu is open.
    void ListDown() override;
    void DrawOnMain(TCanvas* Canvas, TRect& R) override;

private:
    TColor PublishedColor() const { return FMenu ? FMenu->CurrentColor : FDesignedColor; }
    void Changed(TObject* Sender);

    TkelColorMenu* FMenu = nullptr;
    TColor FDesignedColor = clBlack;
};
