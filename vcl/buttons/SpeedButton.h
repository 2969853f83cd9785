// TSpeedButton: a button without a window, for tool bars.
#pragma once

#include "vcl/buttons/ButtonGlyph.h"
#include "vcl/controls/GraphicControl.h"

class TSpeedButton : public TGraphicControl {
    VCL_CLASS(TSpeedButton, TGraphicControl)
public:
    explicit TSpeedButton(TComponent* AOwner);

    // Buttons of one parent with the same GroupIndex, other than 0, form a group: one of them is down at a time. A
    // group of one is a switch when it has AllowAllUp.
    int GetGroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(int Value);
    PROPERTY(int, GroupIndex);
    // Whether a click on the button that is down lets it up again; the same for all of a group.
    bool GetAllowAllUp() const { return FAllowAllUp; }
    void SetAllowAllUp(bool Value);
    PROPERTY(bool, AllowAllUp);
    // Only a button with a GroupIndex can be down. The one that is down comes up only with AllowAllUp.
    bool GetDown() const { return FDown; }
    void SetDown(bool Value);
    PROPERTY(bool, Down);

    // No frame unless the pointer is over it or it is down.
    bool GetFlat() const { return FFlat; }
    void SetFlat(bool Value);
    PROPERTY(bool, Flat);
    // One to four pictures side by side (up, disabled, pressed, down); the pixel at the lower left corner is the
    // background. The control's own; setting copies, and finds out NumGlyphs when the width is a multiple of the
    // height.
    TBitmap* GetGlyph() { return FGlyph.Glyph(); }
    void SetGlyph(TBitmap* Value);
    PROPERTY(TBitmap*, Glyph);
    // 1 to 4; other values are brought within.
    TNumGlyphs GetNumGlyphs() const { return FGlyph.NumGlyphs(); }
    void SetNumGlyphs(TNumGlyphs Value);
    PROPERTY(TNumGlyphs, NumGlyphs);
    TButtonLayout GetLayout() const { return FLayout; }
    void SetLayout(TButtonLayout Value);
    PROPERTY(TButtonLayout, Layout);
    // Pixels between the glyph and the button's edge; -1 centres glyph and caption.
    int GetMargin() const { return FMargin; }
    void SetMargin(int Value);
    PROPERTY(int, Margin);
    // Pixels between glyph and caption; -1 centres the caption in what the glyph leaves.
    int GetSpacing() const { return FSpacing; }
    void SetSpacing(int Value);
    PROPERTY(int, Spacing);
    // What lies behind a flat button shows through.
    bool GetTransparent() const { return FTransparent; }
    void SetTransparent(bool Value);
    PROPERTY(bool, Transparent);

    void Click() override;

    int AccessibleRole() const override;
    int AccessibleState() const override;
    bool AccessibleDefaultAction() override;

protected:
    void Paint() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    // The pointer is over the button.
    bool MouseInControl() const { return FMouseInControl; }

    // How the button looks now.
    TButtonState FState = bsUp;

private:
    void WMLButtonDblClk(TWMMouse& Message);
    void WMCaptureChanged(TMessage& Message);
    void CMEnabledChanged(TMessage& Message);
    void CMButtonPressed(TMessage& Message);
    void CMDialogChar(TCMDialogChar& Message);
    void CMTextChanged(TMessage& Message);
    void CMSysColorChange(TMessage& Message);
    void CMMouseEnter(TMessage& Message);
    void CMMouseLeave(TMessage& Message);

    void DrawFlatFrame(TRect& R, bool Pressed);
    bool Inside(int X, int Y) const;
    void UpdateExclusive();
    void UpdateTracking();
    void UpdateOpaque();
    TButtonState Raised() const { return FDown ? bsExclusive : bsUp; }
    void GlyphChanged(TObject* Sender);

    TButtonGlyph FGlyph;
    int FGroupIndex = 0;
    int FMargin = -1;
    int FSpacing = 4;
    TButtonLayout FLayout = blGlyphLeft;
    bool FAllowAllUp = false;
    bool FDown = false;
    bool FDragging = false; // pressed, and the button is still held
    bool FFlat = false;
    bool FTransparent = true;
    bool FMouseInControl = false;
};
