#include "vcl/buttons/ButtonGlyph.h"

#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/DisabledText.h"
#include "vcl/graphics/Embossing.h"

TButtonGlyph::TButtonGlyph()
{
    FGlyph.OnChange = {this, &TButtonGlyph::GlyphChanged};
}

void TButtonGlyph::GlyphChanged(TObject*)
{
    Invalidate();
    OnChange(&FGlyph);
}

void TButtonGlyph::Invalidate()
{
    FDisabled = TMaskedImage();
}

void TButtonGlyph::SetGlyph(TBitmap* Value)
{
    if (Value && Value->Height > 0 && Value->Width % Value->Height == 0) {
        int Count = Value->Width / Value->Height;
        FNumGlyphs = Count > 4 ? 1 : Count;
    }
    FGlyph.Assign(Value);
}

bool TButtonGlyph::SetNumGlyphs(TNumGlyphs Value)
{
    Value = std::clamp(Value, 1, 4);
    if (FNumGlyphs == Value)
        return false;
    FNumGlyphs = Value;
    Invalidate();
    return true;
}

TSize TButtonGlyph::GlyphSize() const
{
    return {FGlyph.Width / FNumGlyphs, FGlyph.Height};
}

namespace {

// What a disabled picture shows of a pixel: its dark parts, as shadow.
bool IsDark(uint32_t Pixel)
{
    unsigned Red = (Pixel >> 16) & 0xFF;
    unsigned Green = (Pixel >> 8) & 0xFF;
    unsigned Blue = Pixel & 0xFF;
    return Pixel >> 24 != 0 && Red * 3 + Green * 6 + Blue < 192 * 10;
}

// The layout along one axis: where the first and the second part start in Space.
struct TPlaces {
    int First;
    int Second;
};
TPlaces PlaceParts(int Space, int First, int Second, int Margin, int Spacing)
{
    if (First == 0 || Second == 0)
        Spacing = 0;
    if (Margin == -1) {
        if (Spacing == -1)
            Spacing = Margin = (Space - First - Second) / 3;
        else
            Margin = (Space - First - Spacing - Second + 1) / 2;
    } else if (Spacing == -1) {
        Spacing = (Space - Margin - First - Second) / 2;
    }
    return {Margin, Margin + First + Spacing};
}

} // namespace

TRect TButtonGlyph::Draw(TCanvas* Canvas, const TContent& Content)
{
    TSize Space(Content.Client.Width(), Content.Client.Height());
    TSize Glyph = GlyphSize();
    TRect Text;
    if (!Content.Caption.empty()) {
        Text = TRect(0, 0, Space.cx, 0);
        DrawText(Canvas->Handle, Content.Caption, Text, DT_CALCRECT | Content.TextFlags);
    }
    TSize Caption(Text.Width(), Text.Height());

    TPoint GlyphAt;
    TPoint TextAt;
    if (Content.Layout == blGlyphLeft || Content.Layout == blGlyphRight) {
        TPlaces X = PlaceParts(Space.cx, Glyph.cx, Caption.cx, Content.Margin, Content.Spacing);
        bool Mirrored = Content.Layout == blGlyphRight;
        GlyphAt.X = Mirrored ? Space.cx - X.First - Glyph.cx : X.First;
        TextAt.X = Mirrored ? Space.cx - X.Second - Caption.cx : X.Second;
        GlyphAt.Y = (Space.cy - Glyph.cy + 1) / 2;
        TextAt.Y = (Space.cy - Caption.cy + 1) / 2;
    } else {
        TPlaces Y = PlaceParts(Space.cy, Glyph.cy, Caption.cy, Content.Margin, Content.Spacing);
        bool Mirrored = Content.Layout == blGlyphBottom;
        GlyphAt.Y = Mirrored ? Space.cy - Y.First - Glyph.cy : Y.First;
        TextAt.Y = Mirrored ? Space.cy - Y.Second - Caption.cy : Y.Second;
        GlyphAt.X = (Space.cx - Glyph.cx + 1) / 2;
        TextAt.X = (Space.cx - Caption.cx + 1) / 2;
    }
    TPoint Origin = Content.Client.TopLeft() + Content.Offset;
    OffsetRect(Text, Origin.X + TextAt.X, Origin.Y + TextAt.Y);
    DrawGlyph(Canvas, Origin + GlyphAt, Content.State);
    DrawCaption(Canvas, Content, Text);
    return Text;
}

void TButtonGlyph::DrawGlyph(TCanvas* Canvas, const TPoint& At, TButtonState State)
{
    TSize Size = GlyphSize();
    if (Size.cx == 0 || Size.cy == 0)
        return;
    if (State == bsDisabled && FNumGlyphs == 1) {
        Disabled().Draw(Canvas->Handle, At.X, At.Y);
        return;
    }
    // The pictures come in the order of the states; those at the end may be missing.
    int Index = State < FNumGlyphs ? State : 0;
    FGlyph.Masked(FGlyph.TransparentColor)
        .Draw(Canvas->Handle, At.X, At.Y, Bounds(Index * Size.cx, 0, Size.cx, Size.cy));
}

const TMaskedImage& TButtonGlyph::Disabled()
{
    if (FDisabled.Empty()) {
        TMaskedImage Source(&FGlyph, FGlyph.TransparentColor);
        FDisabled = TMaskedImage(Source.Width(), Source.Height());
        TEmbossing().Stamp(FDisabled, 0, 0, Source.Pixels(), Source.Width(), GlyphSize(), &IsDark);
    }
    return FDisabled;
}

void TButtonGlyph::DrawCaption(TCanvas* Canvas, const TContent& Content, TRect R)
{
    if (Content.Caption.empty())
        return;
    unsigned Flags = DT_CENTER | DT_VCENTER | Content.TextFlags;
    Canvas->Brush->Style = bsClear;
    if (Content.State == bsDisabled) {
        DrawDisabledText(Canvas->Handle, Content.Caption, R, Flags);
        return;
    }
    DrawText(Canvas->Handle, Content.Caption, R, Flags);
}
