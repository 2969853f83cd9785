#include "vcl/stdctrls/CustomGroupBox.h"

#include "vcl/graphics/DisabledText.h"
#include "vcl/stdctrls/TextMeasure.h"
#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int TitleLeft = 8;

} // namespace

void TCustomGroupBox::Describe(TClassBuilder<TCustomGroupBox>& Class)
{
    Class.Declare<&Self::ParentBackground, &Self::ParentBackground>("ParentBackground").Default(true);

    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
    Class.Message<&Self::CMTextChanged>(CM_TEXTCHANGED);
    Class.Message<&Self::CMCtl3DChanged>(CM_CTL3DCHANGED);
    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
}

TCustomGroupBox::TCustomGroupBox(TComponent* AOwner) : TCustomControl(AOwner)
{
    ControlStyle =
        TControlStyle{csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks, csReplicatable};
    SetBounds(0, 0, 185, 105);
}

void TCustomGroupBox::AdjustClientRect(TRect& Rect) const
{
    inherited::AdjustClientRect(Rect);
    Rect.Top = Rect.Top + LineHeight(GetFont());
    int Border = Ctl3D ? 2 : 1;
    InflateRect(Rect, -Border, -Border);
}

void TCustomGroupBox::Paint()
{
    Canvas->Font = Font;
    TRect R(0, LineHeight(Font) / 2 - 1, Width, Height);
    Canvas->Brush->Style = bsSolid;
    if (Ctl3D) {
        Canvas->Brush->Color = clBtnHighlight;
        Canvas->FrameRect(TRect(R.Left + 1, R.Top + 1, R.Right, R.Bottom));
        Canvas->Brush->Color = clBtnShadow;
        Canvas->FrameRect(TRect(R.Left, R.Top, R.Right - 1, R.Bottom - 1));
    } else {
        Canvas->Brush->Color = clWindowFrame;
        Canvas->FrameRect(R);
    }
    DrawTitle();
}

// The title interrupts the frame.
void TCustomGroupBox::DrawTitle()
{
    AnsiString Text = Caption;
    if (Text.empty())
        return;
    bool RightToLeft = BiDiMode != bdLeftToRight;
    unsigned Flags = DT_SINGLELINE | (RightToLeft ? DT_RTLREADING : 0);
    TRect R(TitleLeft, 0, 0, LineHeight(Font));
    DrawText(Canvas->Handle, Text, R, Flags | DT_CALCRECT);
    if (BiDiMode == bdRightToLeft)
        OffsetRect(R, Width - R.Right - TitleLeft, 0);
    Canvas->Brush->Color = Color;
    Canvas->FillRect(R);
    if (!Enabled) {
        Canvas->Brush->Style = bsClear;
        DrawDisabledText(Canvas->Handle, Text, R, Flags);
        return;
    }
    DrawText(Canvas->Handle, Text, R, Flags);
}

void TCustomGroupBox::Resize()
{
    Invalidate();
    inherited::Resize();
}

void TCustomGroupBox::CMDialogChar(TCMDialogChar& Message)
{
    if (!IsAccel(Message.CharCode, Caption) || !CanFocus()) {
        Inherited(Message);
        return;
    }
    SelectNext(nullptr, true, false);
    Message.Result = 1;
}

void TCustomGroupBox::CMTextChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

void TCustomGroupBox::CMCtl3DChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
    Realign();
}

void TCustomGroupBox::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    Realign();
}

int TCustomGroupBox::AccessibleRole() const
{
    return ROLE_SYSTEM_GROUPING;
}
