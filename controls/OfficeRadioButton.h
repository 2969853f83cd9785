// TkelOfficeRadioButton: a radio button that is flat and grey until the mouse comes over it.
#pragma once

#include "controls/OfficeToggle.h"

// Of the buttons of one GroupIndex in one parent only one is checked; it is the one that Tab goes to. The button that
// gets the focus is checked by that.
class TkelOfficeRadioButton : public TOfficeToggle {
    VCL_CLASS(TkelOfficeRadioButton, TOfficeToggle)
public:
    explicit TkelOfficeRadioButton(TComponent* AOwner);

    // Setting to true raises OnClick and makes the others of the group false. The user cannot uncheck a button.
    bool GetChecked() const { return FChecked; }
    void SetChecked(bool Value);
    PROPERTY(bool, Checked);
    // Kept, and not used: the dot has the colour of the text.
    TColor GetCheckColor() const { return FCheckColor; }
    void SetCheckColor(TColor Value);
    PROPERTY(TColor, CheckColor);
    uint8_t GroupIndex = 0;

    int AccessibleRole() const override;
    int AccessibleState() const override;

protected:
    // A sunken ring: its upper left half in the shadow's colour, the other in the highlight's.
    void Cerchio(int CenterX, int CenterY, int Radius);
    void TurnSiblingsOff();

    void Paint() override;
    void Toggle() override;
    void DoEnter() override;

private:
    bool FChecked = false;
    TColor FCheckColor = clBlack;
};
