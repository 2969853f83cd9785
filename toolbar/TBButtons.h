// The library's buttons as items of a tool bar: aligned to the left from the start, and with a published Align.
#pragma once

#include "toolbar/ComboPopupButton.h"
#include "toolbar/PopupButton.h"

class TkelTBButton : public TkelSpeedButton {
    VCL_CLASS(TkelTBButton, TkelSpeedButton)
public:
    explicit TkelTBButton(TComponent* AOwner);
};

class TkelTBCombo : public TkelComboButton {
    VCL_CLASS(TkelTBCombo, TkelComboButton)
public:
    explicit TkelTBCombo(TComponent* AOwner);
};

class TkelTBPopup : public TkelPopupButton {
    VCL_CLASS(TkelTBPopup, TkelPopupButton)
public:
    explicit TkelTBPopup(TComponent* AOwner);
};

class TkelTBComboPopup : public TkelComboPopupButton {
    VCL_CLASS(TkelTBComboPopup, TkelComboPopupButton)
public:
    explicit TkelTBComboPopup(TComponent* AOwner);
};
