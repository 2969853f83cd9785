// TkelColorComboBox: a drop-down list of the sixteen basic colours.
#pragma once

#include "vcl/stdctrls/ComboBox.h"

class TkelColorComboBox : public TComboBox {
    VCL_CLASS(TkelColorComboBox, TComboBox)
public:
    // Black.
    explicit TkelColorComboBox(TComponent* AOwner);

    // The chosen colour. A colour that is not among the sixteen is ignored. Choosing another one raises OnChange.
    TColor GetColorValue() const { return FColorValue; }
    void SetColorValue(TColor Value);
    PROPERTY(TColor, ColorValue);
    // The names of the colours beside their swatches; without them a swatch fills its item.
    bool GetDisplayNames() const { return FDisplayNames; }
    void SetDisplayNames(bool Value);
    PROPERTY(bool, DisplayNames);

    // Fills Items: each item's object is the colour's number. Called whenever a window is created.
    virtual void BuildList();

protected:
    void CreateWnd() override;
    void DrawItem(int Index, const TRect& Rect, TOwnerDrawState State) override;
    void Change() override;
    void Click() override;

private:
    void CMFontChanged(TMessage& Message);

    void ResetItemHeight();
    void TakeSelected();

    TColor FColorValue = clBlack;
    bool FDisplayNames = true;
};
