// TCustomStaticText: a label with a window of its own.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/WinControl.h"
#include "vcl/stdctrls/StdTypes.h"

class TCustomStaticText : public TWinControl {
    VCL_CLASS(TCustomStaticText, TWinControl)
public:
    explicit TCustomStaticText(TComponent* AOwner);

    TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value);
    PROPERTY(TAlignment, Alignment);
    TStaticBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TStaticBorderStyle Value);
    PROPERTY(TStaticBorderStyle, BorderStyle);
    // The control that the accelerator puts the focus on; cleared when it is deleted.
    TWinControl* GetFocusControl() const { return FFocusControl; }
    void SetFocusControl(TWinControl* Value);
    PROPERTY(TWinControl*, FocusControl);
    // An & in the caption marks the accelerator; otherwise it is drawn as it stands.
    bool GetShowAccelChar() const { return FShowAccelChar; }
    void SetShowAccelChar(bool Value);
    PROPERTY(bool, ShowAccelChar);

    void SetAutoSize(bool Value) override;
    AnsiString AccessibleName() const override;
    int AccessibleRole() const override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void Loaded() override;

private:
    void CMDialogChar(TCMDialogChar& Message);
    void CMFontChanged(TMessage& Message);
    void CMTextChanged(TMessage& Message);
    void AdjustBounds();

    TComponentRef<TWinControl> FFocusControl;
    TAlignment FAlignment = taLeftJustify;
    TStaticBorderStyle FBorderStyle = sbsNone;
    bool FShowAccelChar = true;
};
