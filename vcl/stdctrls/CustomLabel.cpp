#include "vcl/stdctrls/CustomLabel.h"

#include "vcl/controls/WinControl.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/DisabledText.h"
#include "vcl/stdctrls/TextMeasure.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

void TCustomLabel::Describe(TClassBuilder<TCustomLabel>& Class)
{
    Class.Declare<&Self::GetAutoSize, &Self::SetAutoSize>("AutoSize").Default(true);
    Class.Declare<&Self::GetAlignment, &Self::SetAlignment>("Alignment").Default(taLeftJustify);
    Class.Declare<&Self::GetFocusControl, &Self::SetFocusControl>("FocusControl");
    Class.Declare<&Self::GetShowAccelChar, &Self::SetShowAccelChar>("ShowAccelChar").Default(true);
    Class.Declare<&Self::GetTransparent, &Self::SetTransparent>("Transparent").Default(false);
    Class.Declare<&Self::GetLayout, &Self::SetLayout>("Layout").Default(tlTop);
    Class.Declare<&Self::GetWordWrap, &Self::SetWordWrap>("WordWrap").Default(false);

    Class.Message<&Self::CMTextChanged>(CM_TEXTCHANGED);
    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
}

TCustomLabel::TCustomLabel(TComponent* AOwner) : TGraphicControl(AOwner)
{
    ControlStyle = ControlStyle + TControlStyle{csReplicatable, csOpaque};
    SetBounds(0, 0, 65, 17);
    TControl::SetAutoSize(true);
}

unsigned TCustomLabel::TextFlags() const
{
    TAlignment Shown = FAlignment;
    if (BiDiMode == bdRightToLeft && Shown != taCenter)
        Shown = Shown == taLeftJustify ? taRightJustify : taLeftJustify;
    return DT_EXPANDTABS | (FWordWrap ? DT_WORDBREAK : 0) | DrawTextAlignment(Shown);
}

void TCustomLabel::DoDrawText(TRect& Rect, unsigned Flags)
{
    AnsiString Text = GetLabelText();
    bool Measuring = Flags & DT_CALCRECT;
    if (Measuring && (Text.empty() || (FShowAccelChar && Text == "&")))
        Text += ' ';
    if (!FShowAccelChar)
        Flags |= DT_NOPREFIX;
    if (BiDiMode != bdLeftToRight)
        Flags |= DT_RTLREADING;

    if (Measuring) {
        // No canvas: a label that is measured while nothing is painted would keep one for good.
        MeasureText(Font, Text, Rect, Flags);
        return;
    }
    Canvas->Font = Font;
    if (!Enabled) {
        DrawDisabledText(Canvas->Handle, Text, Rect, Flags);
        return;
    }
    DrawText(Canvas->Handle, Text, Rect, Flags);
}

void TCustomLabel::Paint()
{
    TRect R = ClientRect;
    if (!Transparent) {
        Canvas->Brush->Color = Color;
        Canvas->Brush->Style = bsSolid;
        Canvas->FillRect(R);
    }
    Canvas->Brush->Style = bsClear;
    unsigned Flags = TextFlags();
    if (FLayout != tlTop) {
        TRect Text = R;
        DoDrawText(Text, Flags | DT_CALCRECT);
        int Free = Height - Text.Height();
        OffsetRect(R, 0, FLayout == tlBottom ? Free : Free / 2);
    }
    DoDrawText(R, Flags);
}

void TCustomLabel::AdjustBounds()
{
    if (IsLoading() || !AutoSize)
        return;
    TRect Text = ClientRect;
    bool OnCanvas = false;
    {
        TScopedValue Measuring(FMeasuring, true);
        DoDrawText(Text, TextFlags() | DT_CALCRECT);
        OnCanvas = !FMeasuring;
    }
    // Nothing is to be drawn on the context that the canvas got.
    if (OnCanvas)
        TControlCanvas::FreeHandles();
    int NewLeft = FAlignment == taRightJustify ? Left + Width - Text.Right : Left;
    SetBounds(NewLeft, Top, Text.Right, Text.Bottom);
}

// An override of DoDrawText may measure on the canvas, also before the label has a parent.
HDC TCustomLabel::GetDeviceContext(HWND& Window)
{
    if (!std::exchange(FMeasuring, false))
        return inherited::GetDeviceContext(Window);
    Window = nullptr;
    return MeasureContext();
}

void TCustomLabel::SetAutoSize(bool Value)
{
    if (AutoSize == Value)
        return;
    inherited::SetAutoSize(Value);
    AdjustBounds();
}

void TCustomLabel::SetAlignment(TAlignment Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    Invalidate();
}

void TCustomLabel::SetFocusControl(TWinControl* Value)
{
    FFocusControl = Value;
}

void TCustomLabel::SetLayout(TTextLayout Value)
{
    if (FLayout == Value)
        return;
    FLayout = Value;
    Invalidate();
}

void TCustomLabel::SetShowAccelChar(bool Value)
{
    if (FShowAccelChar == Value)
        return;
    FShowAccelChar = Value;
    Invalidate();
    AdjustBounds();
}

void TCustomLabel::SetTransparent(bool Value)
{
    if (Transparent == Value)
        return;
    SetStyleFlag(csOpaque, !Value);
    Invalidate();
}

void TCustomLabel::SetWordWrap(bool Value)
{
    if (FWordWrap == Value)
        return;
    FWordWrap = Value;
    Invalidate();
    AdjustBounds();
}

void TCustomLabel::Loaded()
{
    inherited::Loaded();
    AdjustBounds();
}

void TCustomLabel::CMTextChanged(TMessage&)
{
    Invalidate();
    AdjustBounds();
}

void TCustomLabel::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    AdjustBounds();
}

void TCustomLabel::CMDialogChar(TCMDialogChar& Message)
{
    if (FFocusControl && Enabled && FShowAccelChar && IsAccel(Message.CharCode, Caption) && FFocusControl->CanFocus()) {
        FFocusControl->SetFocus();
        Message.Result = 1;
    }
}

AnsiString TCustomLabel::AccessibleName() const
{
    return FShowAccelChar ? inherited::AccessibleName() : GetLabelText();
}

int TCustomLabel::AccessibleRole() const
{
    return ROLE_SYSTEM_STATICTEXT;
}
