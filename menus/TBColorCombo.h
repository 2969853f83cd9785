// The colour combo button as an item of a tool bar: aligned to the left from the start, and with a published Align.
#pragma once

#include "menus/ColorComboButton.h"

class TkelTBColorCombo : public TkelColorComboButton {
    VCL_CLASS(TkelTBColorCombo, TkelColorComboButton)
public:
    explicit TkelTBColorCombo(TComponent* AOwner);
};
