// TCustomGroupBox: a frame with a title around other controls.
#pragma once

#include "vcl/controls/CustomControl.h"

class TCustomGroupBox : public TCustomControl {
    VCL_CLASS(TCustomGroupBox, TCustomControl)
public:
    explicit TCustomGroupBox(TComponent* AOwner);

    // Kept for form files: group boxes are drawn without themes.
    bool ParentBackground = true;

    int AccessibleRole() const override;

protected:
    void AdjustClientRect(TRect& Rect) const override;
    void Paint() override;
    void Resize() override;

private:
    void CMDialogChar(TCMDialogChar& Message);
    void CMTextChanged(TMessage& Message);
    void CMCtl3DChanged(TMessage& Message);
    void CMFontChanged(TMessage& Message);
    void DrawTitle();
};
