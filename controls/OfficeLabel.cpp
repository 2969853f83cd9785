#include "controls/OfficeLabel.h"

#include "vcl/classes/StillThere.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/system/ClassBuilder.h"

void TkelOfficeLabel::Describe(TClassBuilder<TkelOfficeLabel>& Class)
{
    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

void TkelOfficeLabel::CMMouseEnter(TMessage& Message)
{
    SetMouseInside(Message, true);
}

void TkelOfficeLabel::CMMouseLeave(TMessage& Message)
{
    SetMouseInside(Message, false);
}

void TkelOfficeLabel::SetMouseInside(TMessage& Message, bool Value)
{
    const TStillThere IsThere(this);
    Inherited(Message);
    if (!IsThere)
        return;
    FMouseInside = Value;
    Repaint();
}

void TkelOfficeLabel::Paint()
{
    if (FMouseInside && Enabled) {
        inherited::Paint();
        return;
    }
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
    Canvas->Font->Color = clGrayText;
    const int Free = Width - Canvas->TextWidth(Text);
    const int X = Alignment == taLeftJustify ? 0 : Alignment == taRightJustify ? Free : Free / 2;
    Canvas->TextOut(X, 0, Text);
    Canvas->Font->Color = Font->Color;
}
