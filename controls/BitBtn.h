// TkelBitBtn: a bitmap button whose caption changes its colour under the mouse.
#pragma once

#include "controls/HighlightText.h"
#include "vcl/buttons/BitBtn.h"

class TkelBitBtn : public TBitBtn {
    VCL_CLASS(TkelBitBtn, TBitBtn)
public:
    explicit TkelBitBtn(TComponent* AOwner);

    // The colour of the caption under the mouse. Its name is part of the form files' format as it stands.
    TColor GetHighlisgColor() const { return FHighlight.Color; }
    void SetHighlisgColor(TColor Value) { FHighlight.Color = Value; }
    PROPERTY(TColor, HighlisgColor);

private:
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);

    THighlightText FHighlight;
};
