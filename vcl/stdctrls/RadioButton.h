// TRadioButton: one of the radio buttons of its parent, of which one is checked.
#pragma once

#include "vcl/stdctrls/ButtonControl.h"
#include "vcl/stdctrls/StdTypes.h"

class TRadioButton : public TButtonControl {
    VCL_CLASS(TRadioButton, TButtonControl)
public:
    explicit TRadioButton(TComponent* AOwner);

    // The side of the mark that the text is on.
    TLeftRight GetAlignment() const { return FAlignment; }
    void SetAlignment(TLeftRight Value);
    PROPERTY(TLeftRight, Alignment);
    // Setting true clears the parent's other radio buttons and raises OnClick. The one that is checked is a tab stop.
    bool GetChecked() const override { return FChecked; }
    void SetChecked(bool Value) override;
    PROPERTY(bool, Checked);

    int AccessibleRole() const override;
    int AccessibleState() const override;
    bool AccessibleDefaultAction() override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;

private:
    void WMSetFocus(TMessage& Message);
    void CNCommand(TWMCommand& Message);
    void CMDialogChar(TCMDialogChar& Message);
    void TurnSiblingsOff();

    TAlignment FAlignment = taRightJustify;
    bool FChecked = false;
};
