// TCustomCheckBox: a mark with a text, checked, unchecked or neither.
#pragma once

#include "vcl/stdctrls/ButtonControl.h"
#include "vcl/stdctrls/StdTypes.h"

class TCustomCheckBox : public TButtonControl {
    VCL_CLASS(TCustomCheckBox, TButtonControl)
public:
    explicit TCustomCheckBox(TComponent* AOwner);

    // The side of the mark that the text is on.
    TLeftRight GetAlignment() const { return FAlignment; }
    void SetAlignment(TLeftRight Value);
    PROPERTY(TLeftRight, Alignment);
    // Clicks also lead to cbGrayed: unchecked, grayed, checked.
    bool AllowGrayed = false;
    // State is cbChecked.
    bool GetChecked() const override { return FState == cbChecked; }
    void SetChecked(bool Value) override { SetState(Value ? cbChecked : cbUnchecked); }
    PROPERTY(bool, Checked);
    // Every change raises OnClick, not only the user's.
    TCheckBoxState GetState() const { return FState; }
    void SetState(TCheckBoxState Value);
    PROPERTY(TCheckBoxState, State);

    int AccessibleRole() const override;
    int AccessibleState() const override;
    bool AccessibleDefaultAction() override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    // What a click does.
    virtual void Toggle();

private:
    void CNCommand(TWMCommand& Message);
    void CMDialogChar(TCMDialogChar& Message);

    TAlignment FAlignment = taRightJustify;
    TCheckBoxState FState = cbUnchecked;
};
