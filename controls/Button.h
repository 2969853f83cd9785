// TkelButton: a push button whose caption changes its colour under the mouse.
#pragma once

#include "controls/HighlightText.h"
#include "vcl/controls/ControlCanvas.h"
#include "vcl/stdctrls/Button.h"

// The system draws the captions of buttons in a colour of its own; this button draws itself.
class TkelButton : public TButton {
    VCL_CLASS(TkelButton, TButton)
public:
    explicit TkelButton(TComponent* AOwner);

    // The colour of the caption under the mouse. Its name is part of the form files' format as it stands.
    TColor GetHighlisgColor() const { return FHighlight.Color; }
    void SetHighlisgColor(TColor Value) { FHighlight.Color = Value; }
    PROPERTY(TColor, HighlisgColor);

protected:
    void CreateParams(TCreateParams& Params) override;
    void SetButtonStyle(bool ADefault) override;

private:
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);
    void CMEnabledChanged(TMessage& Message);
    void CMFontChanged(TMessage& Message);
    void CMTextChanged(TMessage& Message);
    void CNDrawItem(TMessage& Message);
    void WMLButtonDblClk(TMessage& Message);

    void DrawButton(const TRect& R, bool Pressed, bool HasFocus);

    TControlCanvas FCanvas;
    THighlightText FHighlight;
    bool FDrawDefault = false;
};
