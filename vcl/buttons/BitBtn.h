// TBitBtn: a push button with a glyph.
#pragma once

#include "vcl/buttons/ButtonGlyph.h"
#include "vcl/controls/ControlCanvas.h"
#include "vcl/stdctrls/Button.h"

VCL_ENUM(TBitBtnKind, bkCustom, bkOK, bkCancel, bkHelp, bkYes, bkNo, bkClose, bkAbort, bkRetry, bkIgnore, bkAll);

class TBitBtn : public TButton {
    VCL_CLASS(TBitBtn, TButton)
public:
    explicit TBitBtn(TComponent* AOwner);

    // A standard button: sets Caption, Glyph, ModalResult, Default and Cancel. When one of them but the caption is
    // changed afterwards the kind is bkCustom.
    TBitBtnKind GetKind();
    void SetKind(TBitBtnKind Value);
    PROPERTY(TBitBtnKind, Kind);
    // One to four pictures side by side (up, disabled, pressed, pressed); the pixel at the lower left corner is the
    // background. The control's own; setting copies.
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
    // Kept for form files: all styles are drawn as bsNew.
    TButtonStyle Style = bsAutoDetect;

    // bkClose closes the form, bkHelp asks the form's or the application's OnHelp; the others do what a button does.
    void Click() override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void SetButtonStyle(bool ADefault) override;
    // Draws the whole button on the canvas.
    virtual void DrawButton(const TRect& R, bool Pressed, bool HasFocus);
    TCanvas* GetCanvas() { return &FCanvas; }
    PROPERTY_READ(TCanvas*, Canvas);

private:
    void CNDrawItem(TMessage& Message);
    void WMLButtonDblClk(TMessage& Message);
    void CMEnabledChanged(TMessage& Message);
    void CMFontChanged(TMessage& Message);
    void CMTextChanged(TMessage& Message);
    void CMSysColorChange(TMessage& Message);

    void GlyphChanged(TObject* Sender);
    bool IsCustom() const;
    bool IsCustomCaption() const;

    TControlCanvas FCanvas;
    TButtonGlyph FGlyph;
    int FMargin = -1;
    int FSpacing = 4;
    TButtonLayout FLayout = blGlyphLeft;
    TBitBtnKind FKind = bkCustom;
    bool FDrawDefault = false;
    bool FGlyphModified = false;
};
