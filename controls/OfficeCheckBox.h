// TkelOfficeCheckBox: a check box that is flat and grey until the mouse comes over it.
#pragma once

#include "controls/OfficeToggle.h"
#include "vcl/stdctrls/StdTypes.h"

class TkelOfficeCheckBox : public TOfficeToggle {
    VCL_CLASS(TkelOfficeCheckBox, TOfficeToggle)
public:
    explicit TkelOfficeCheckBox(TComponent* AOwner);

    // State is cbChecked.
    bool GetChecked() const { return FState == cbChecked; }
    void SetChecked(bool Value);
    PROPERTY(bool, Checked);
    // Every change raises OnClick. The grayed state looks like the checked one; the user cannot choose it.
    TCheckBoxState GetState() const { return FState; }
    void SetState(TCheckBoxState Value);
    PROPERTY(TCheckBoxState, State);

    int AccessibleRole() const override;
    int AccessibleState() const override;

protected:
    void Paint() override;
    void Toggle() override;

private:
    void DrawMark(int Top);

    TCheckBoxState FState = cbUnchecked;
};
