// TkelWebLabel: a label that looks like a link: a glyph in front of its text, and both light up under the mouse.
#pragma once

#include "vcl/stdctrls/Label.h"

#include <memory>

class TBitmap;

// A click raises OnClick; what it opens is the application's business, and so is the Cursor (10 is the hand). The text
// is one line at the top, after the glyph, or before it with taRightJustify; with taCenter glyph and text stand 18
// pixels left of the middle. An & is drawn as it stands.
class TkelWebLabel : public TLabel {
    VCL_CLASS(TkelWebLabel, TLabel)
public:
    explicit TkelWebLabel(TComponent* AOwner);

    // The text is underlined under the mouse and not elsewhere. When false it is as Font says.
    bool GetUnderline() const { return FUnderline; }
    void SetUnderline(bool Value);
    PROPERTY(bool, Underline);

    int AccessibleRole() const override;

protected:
    void Paint() override;

private:
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);
    void SetMouseInside(TMessage& Message, bool Value);

    std::shared_ptr<TBitmap> FActiveGlyph;
    std::shared_ptr<TBitmap> FInactiveGlyph;
    bool FMouseInside = false;
    bool FUnderline = true;
};
