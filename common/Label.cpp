#include "common/Label.h"

#include "common/CaptionText.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/stdctrls/TextMeasure.h"
#include "vcl/system/ClassBuilder.h"

void TkelLabel::Describe(TClassBuilder<TkelLabel>& Class)
{
    Class.Property<&Self::GetTextStyle, &Self::SetTextStyle>("TextStyle").Default(tsRecessed);
    Class.Event<&Self::OnMouseEnter>("OnMouseEnter");
    Class.Event<&Self::OnMouseLeave>("OnMouseLeave");

    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

void TkelLabel::SetTextStyle(TTextStyle Value)
{
    if (FTextStyle == Value)
        return;
    FTextStyle = Value;
    Invalidate();
}

void TkelLabel::DoDrawText(TRect& Rect, unsigned Flags)
{
    const AnsiString Text = GetLabelText();
    std::string_view Shown = ShownCaption(Text);
    if (!ShowAccelChar)
        Flags |= DT_NOPREFIX;
    if (BiDiMode != bdLeftToRight)
        Flags |= DT_RTLREADING;

    if (Flags & DT_CALCRECT) {
        if (Shown.empty() || (ShowAccelChar && Shown == "&"))
            Shown = " ";
        HGDIOBJ OldFont = SelectObject(MeasureContext(), Font->Handle);
        DrawText(MeasureContext(), Shown, Rect, Flags);
        SelectObject(MeasureContext(), OldFont);
        return;
    }
    Canvas->Font = Font;
    const auto DrawShadow = [&](int Distance, TColor Color) {
        TRect Moved = Rect;
        OffsetRect(Moved, Distance, Distance);
        Canvas->Font->Color = Color;
        DrawText(Canvas->Handle, Shown, Moved, Flags);
    };
    if (FTextStyle != tsNone) {
        const bool Raised = FTextStyle == tsRaised;
        DrawShadow(1, Raised ? clBtnShadow : clBtnHighlight);
        DrawShadow(-1, Raised ? clBtnHighlight : clBtnShadow);
    }
    Canvas->Font->Color = Enabled ? Font->Color : clGrayText;
    DrawText(Canvas->Handle, Shown, Rect, Flags);
}

void TkelLabel::CMMouseEnter(TMessage& Message)
{
    Inherited(Message);
    OnMouseEnter(this);
}

void TkelLabel::CMMouseLeave(TMessage& Message)
{
    Inherited(Message);
    OnMouseLeave(this);
}
