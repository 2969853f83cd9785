// TCustomLabel: a text on a form, often that of another control beside it.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/GraphicControl.h"
#include "vcl/stdctrls/StdTypes.h"

// Draws its caption, in one line or wrapped. With AutoSize it is as large as its text. Its accelerator key gives the
// focus to FocusControl.
class TCustomLabel : public TGraphicControl {
    VCL_CLASS(TCustomLabel, TGraphicControl)
public:
    explicit TCustomLabel(TComponent* AOwner);

    // Where lines stand between the left and the right side. With AutoSize the label keeps its right edge in place
    // (taRightJustify) or its left one (the others).
    TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value);
    PROPERTY(TAlignment, Alignment);
    // The control that the label's accelerator puts the focus on; cleared when it is deleted.
    TWinControl* GetFocusControl() const { return FFocusControl; }
    void SetFocusControl(TWinControl* Value);
    PROPERTY(TWinControl*, FocusControl);
    // Where the text stands between top and bottom.
    TTextLayout GetLayout() const { return FLayout; }
    void SetLayout(TTextLayout Value);
    PROPERTY(TTextLayout, Layout);
    // An & in the caption marks the accelerator; otherwise it is drawn as it stands.
    bool GetShowAccelChar() const { return FShowAccelChar; }
    void SetShowAccelChar(bool Value);
    PROPERTY(bool, ShowAccelChar);
    // What lies behind shows through; otherwise it is filled with Color.
    bool GetTransparent() const { return !GetControlStyle().Contains(csOpaque); }
    void SetTransparent(bool Value);
    PROPERTY(bool, Transparent);
    // Lines longer than the label is wide go on in the next one.
    bool GetWordWrap() const { return FWordWrap; }
    void SetWordWrap(bool Value);
    PROPERTY(bool, WordWrap);

    void SetAutoSize(bool Value) override;

    AnsiString AccessibleName() const override;
    int AccessibleRole() const override;

protected:
    // Draws the text, or with DT_CALCRECT makes Rect as large as it is. Flags are the system's DT_ numbers; the label
    // adds DT_NOPREFIX and the reading direction itself.
    virtual void DoDrawText(TRect& Rect, unsigned Flags);
    virtual AnsiString GetLabelText() const { return Caption; }
    // Takes on the size of the text, when AutoSize says so and the label is not being read.
    virtual void AdjustBounds();

    void Paint() override;
    HDC GetDeviceContext(HWND& Window) override;
    void Loaded() override;

private:
    void CMTextChanged(TMessage& Message);
    void CMFontChanged(TMessage& Message);
    void CMDialogChar(TCMDialogChar& Message);

    unsigned TextFlags() const;

    TComponentRef<TWinControl> FFocusControl;
    TAlignment FAlignment = taLeftJustify;
    TTextLayout FLayout = tlTop;
    bool FShowAccelChar = true;
    bool FWordWrap = false;
    bool FMeasuring = false; // the text is being measured and the canvas has not asked for a context yet
};
