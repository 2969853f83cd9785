// TCustomLabeledEdit: an edit with a label of its own beside it.
#pragma once

#include "vcl/stdctrls/CustomEdit.h"
#include "vcl/stdctrls/CustomLabel.h"

VCL_ENUM(TLabelPosition, lpAbove, lpBelow, lpLeft, lpRight);

// The label of a labeled edit. It belongs to the edit, which decides where it lies.
class TBoundLabel : public TCustomLabel {
    VCL_CLASS(TBoundLabel, TCustomLabel)
public:
    explicit TBoundLabel(TComponent* AOwner);

protected:
    void AdjustBounds() override;
};

class TCustomLabeledEdit : public TCustomEdit {
    VCL_CLASS(TCustomLabeledEdit, TCustomEdit)
public:
    explicit TCustomLabeledEdit(TComponent* AOwner);

    // The edit's own.
    TBoundLabel* GetEditLabel() const { return FEditLabel; }
    PROPERTY_READ(TBoundLabel*, EditLabel);
    TLabelPosition GetLabelPosition() const { return FLabelPosition; }
    void SetLabelPosition(TLabelPosition Value);
    PROPERTY(TLabelPosition, LabelPosition);
    // Pixels between the label and the edit.
    int GetLabelSpacing() const { return FLabelSpacing; }
    void SetLabelSpacing(int Value);
    PROPERTY(int, LabelSpacing);

    void SetParent(TWinControl* Value) override;
    void SetBounds(int ALeft, int ATop, int AWidth, int AHeight) override;
    void SetName(const AnsiString& Value) override;
    AnsiString AccessibleName() const override;

private:
    friend class TBoundLabel;

    void CMEnabledChanged(TMessage& Message);
    void CMVisibleChanged(TMessage& Message);
    void PlaceLabel();

    TComponentRef<TBoundLabel> FEditLabel;
    int FLabelSpacing = 3;
    TLabelPosition FLabelPosition = lpAbove;
};
