// TButtonGlyph: the glyph of a button in all its states, ready to draw, and the layout of glyph and caption.
#pragma once

#include "vcl/buttons/ButtonTypes.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/MaskedImage.h"

#include <memory>

class TButtonGlyph {
public:
    TButtonGlyph();
    TButtonGlyph(const TButtonGlyph&) = delete;

    // One to four pictures of equal size side by side; the pixel at the lower left corner is the background.
    TBitmap* Glyph() { return &FGlyph; }
    // A glyph that is exactly a multiple of its height wide has as many pictures.
    void SetGlyph(TBitmap* Value);
    TNumGlyphs NumGlyphs() const { return FNumGlyphs; }
    // False when that was its number already; values beyond 1 to 4 are brought within.
    bool SetNumGlyphs(TNumGlyphs Value);
    // System colours changed: the pictures are prepared anew.
    void Invalidate();
    // The size of one picture.
    TSize GlyphSize();

    // What the layout and the drawing of glyph and caption need.
    struct TContent {
        TRect Client;
        TPoint Offset;
        std::string_view Caption;
        TButtonLayout Layout = blGlyphLeft;
        int Margin = -1;
        int Spacing = 4;
        TButtonState State = bsUp;
        // More DT_ flags for the caption.
        unsigned TextFlags = 0;
    };
    // Draws both and returns where the text is. Margin: pixels between the glyph and its side of Client, -1: both are
    // centred. Spacing: pixels between glyph and caption, -1: the caption is centred in what the glyph leaves.
    TRect Draw(TCanvas* Canvas, const TContent& Content);

    // The glyph was changed by other means than SetGlyph.
    TNotifyEvent OnChange;

private:
    void DrawGlyph(TCanvas* Canvas, const TPoint& At, TButtonState State);
    void DrawCaption(TCanvas* Canvas, std::string_view Caption, const TRect& Bounds, TButtonState State,
                     unsigned Flags);
    void GlyphChanged(TObject* Sender);
    const TMaskedImage& Picture(TButtonState State);

    TBitmap FGlyph;
    std::unique_ptr<TMaskedImage[]> FPictures; // one per state, each made when it is first drawn
    TNumGlyphs FNumGlyphs = 1;
};
