// TButtonGlyph: the glyph of a button in all its states, ready to draw, and the layout of glyph and caption.
#pragma once

#include "vcl/buttons/ButtonTypes.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/MaskedImage.h"

class TButtonGlyph : public TObject {
public:
    TButtonGlyph();

    // One to four pictures of equal size side by side; the pixel at the lower left corner is the background.
    TBitmap* Glyph() { return &FGlyph; }
    // Copies. A glyph whose width is a multiple of its height has as many pictures.
    void SetGlyph(TBitmap* Value);
    TNumGlyphs NumGlyphs() const { return FNumGlyphs; }
    // False when that was its number already. Values beyond 1 to 4 are brought within.
    bool SetNumGlyphs(TNumGlyphs Value);
    // The size of one picture.
    TSize GlyphSize() const;
    // System colours changed: what depends on them is made anew.
    void Invalidate();

    // What is drawn, and where.
    struct TContent {
        TRect Client;
        // Moves glyph and caption, as a pressed button does.
        TPoint Offset;
        std::string_view Caption;
        TButtonLayout Layout = blGlyphLeft;
        // Pixels between the glyph and its side of Client; -1 centres glyph and caption.
        int Margin = -1;
        // Pixels between glyph and caption; -1 centres the caption in what the glyph leaves.
        int Spacing = 4;
        TButtonState State = bsUp;
        // More DT_ flags for the caption.
        unsigned TextFlags = 0;
    };
    // Draws both, the caption in the canvas's font, and returns where the caption is.
    TRect Draw(TCanvas* Canvas, const TContent& Content);

    // The glyph changed.
    TNotifyEvent OnChange;

private:
    void DrawGlyph(TCanvas* Canvas, const TPoint& At, TButtonState State);
    void DrawCaption(TCanvas* Canvas, const TContent& Content, TRect R);
    const TMaskedImage& Disabled();
    void GlyphChanged(TObject* Sender);

    TBitmap FGlyph;
    TMaskedImage FDisabled; // the only picture's engraved form, made when it is first drawn
    TNumGlyphs FNumGlyphs = 1;
};
