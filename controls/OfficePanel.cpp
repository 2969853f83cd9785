#include "controls/OfficePanel.h"

#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"

void TkelOfficePanel::Describe(TClassBuilder<TkelOfficePanel>& Class)
{
    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

void TkelOfficePanel::CMMouseEnter(TMessage& Message)
{
    SetMouseInside(Message, true);
}

void TkelOfficePanel::CMMouseLeave(TMessage& Message)
{
    SetMouseInside(Message, false);
}

void TkelOfficePanel::SetMouseInside(TMessage& Message, bool Value)
{
    const TStillThere IsThere(this);
    Inherited(Message);
    if (!IsThere)
        return;
    FMouseInside = Value;
    Repaint();
}

void TkelOfficePanel::Paint()
{
    if (FMouseInside && Enabled) {
        inherited::Paint();
        return;
    }
    Canvas->Brush->Style = bsSolid;
    Canvas->Brush->Color = Color;
    Canvas->Pen->Color = clGrayText;
    Canvas->Rectangle(0, 0, Width, Height);
    Canvas->Rectangle(BorderWidth, BorderWidth, Width - BorderWidth, Height - BorderWidth);
    const AnsiString Text = Caption;
    if (Text.empty())
        return;
    Canvas->Font = Font;
    Canvas->Font->Color = clGrayText;
    const TSize Size = Canvas->TextExtent(Text);
    Canvas->TextOut((Width - Size.cx) / 2, (Height - Size.cy) / 2, Text);
    Canvas->Font->Color = Font->Color;
}
