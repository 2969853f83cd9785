#include "controls/WebLabel.h"

#include "controls/SharedBitmap.h"
#include "toolbar/DrawBitmapTransparent.h"
#include "toolbar/HandCursor.h" // registers the hand for programs that have links and no tool bars
#include "vcl/classes/StillThere.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int GlyphCell = 18;

} // namespace

void TkelWebLabel::Describe(TClassBuilder<TkelWebLabel>& Class)
{
    Class.Property<&Self::GetUnderline, &Self::SetUnderline>("Underline");

    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

TkelWebLabel::TkelWebLabel(TComponent* AOwner)
    : TLabel(AOwner),
      FActiveGlyph(SharedBitmap("WEB_ACT")),
      FInactiveGlyph(SharedBitmap("WEB_DE"))
{
    AutoSize = false;
}

void TkelWebLabel::SetUnderline(bool Value)
{
    if (FUnderline == Value)
        return;
    FUnderline = Value;
    Invalidate();
}

void TkelWebLabel::CMMouseEnter(TMessage& Message)
{
    SetMouseInside(Message, true);
}

void TkelWebLabel::CMMouseLeave(TMessage& Message)
{
    SetMouseInside(Message, false);
}

void TkelWebLabel::SetMouseInside(TMessage& Message, bool Value)
{
    const TStillThere IsThere(this);
    Inherited(Message);
    if (!IsThere)
        return;
    FMouseInside = Value;
    Repaint();
}

void TkelWebLabel::Paint()
{
    Canvas->Brush->Style = bsClear;
    if (!Transparent) {
        Canvas->Brush->Style = bsSolid;
        Canvas->Brush->Color = Color;
        Canvas->Pen->Color = Color;
        Canvas->Rectangle(0, 0, Width, Height);
    }
    const AnsiString Text = Caption;
    if (Text.empty())
        return;
    Canvas->Font = Font;
    const int TextWidth = Canvas->TextWidth(Text);
    if (FUnderline) {
        TFontStyles Style = Canvas->Font->Style;
        if (FMouseInside)
            Style << fsUnderline;
        else
            Style >> fsUnderline;
        Canvas->Font->Style = Style;
    }
    if (FMouseInside)
        Canvas->Font->Color = clHighlight;

    const int Free = Width - TextWidth - GlyphCell;
    int TextLeft = GlyphCell;
    int GlyphLeft = 0;
    if (Alignment == taRightJustify) {
        TextLeft = Free;
        GlyphLeft = Width - GlyphCell;
    } else if (Alignment == taCenter) {
        TextLeft = Free / 2;
        GlyphLeft = TextLeft - GlyphCell;
    }
    TBitmap* Glyph = (FMouseInside ? FActiveGlyph : FInactiveGlyph).get();
    DrawBitmapTransparent(Canvas, GlyphLeft, 0, Glyph, Glyph->Canvas->Pixels[0][0]);
    Canvas->TextOut(TextLeft, 0, Text);
    Canvas->Font->Color = Font->Color;
}

int TkelWebLabel::AccessibleRole() const
{
    return ROLE_SYSTEM_LINK;
}
