#include "vcl/stdctrls/CustomStaticText.h"

#include "vcl/graphics/Canvas.h"
#include "vcl/stdctrls/TextMeasure.h"
#include "vcl/system/ClassBuilder.h"

void TCustomStaticText::Describe(TClassBuilder<TCustomStaticText>& Class)
{
    Class.Declare<&Self::GetAlignment, &Self::SetAlignment>("Alignment").Default(taLeftJustify);
    Class.Declare<&Self::GetAutoSize, &Self::SetAutoSize>("AutoSize").Default(true);
    Class.Declare<&Self::GetBorderStyle, &Self::SetBorderStyle>("BorderStyle").Default(sbsNone);
    Class.Declare<&Self::GetFocusControl, &Self::SetFocusControl>("FocusControl");
    Class.Declare<&Self::GetShowAccelChar, &Self::SetShowAccelChar>("ShowAccelChar").Default(true);

    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
    Class.Message<&Self::CMTextChanged>(CM_TEXTCHANGED);
}

TCustomStaticText::TCustomStaticText(TComponent* AOwner) : TWinControl(AOwner)
{
    ControlStyle = TControlStyle{csCaptureMouse, csClickEvents, csSetCaption, csReplicatable, csDoubleClicks};
    SetBounds(0, 0, 65, 17);
    TControl::SetAutoSize(true);
}

void TCustomStaticText::CreateParams(TCreateParams& Params)
{
    constexpr DWORD Alignments[] = {SS_LEFT, SS_RIGHT, SS_CENTER};
    constexpr DWORD Borders[] = {0, WS_BORDER, SS_SUNKEN};
    inherited::CreateParams(Params);
    CreateSubClass(Params, L"STATIC");
    Params.Style |= SS_NOTIFY | Alignments[FAlignment] | Borders[FBorderStyle] | (FShowAccelChar ? 0 : SS_NOPREFIX);
    Params.WindowClass.style &= ~CS_VREDRAW;
}

// As large as the text and a border of two lines around it.
void TCustomStaticText::AdjustBounds()
{
    if (IsLoading() || !AutoSize)
        return;
    TRect Text;
    MeasureText(Font, Caption, Text, DT_CALCRECT | DT_SINGLELINE | (FShowAccelChar ? 0 : DT_NOPREFIX));
    SetBounds(Left, Top, Text.Width() + 4 * GetSystemMetrics(SM_CXBORDER),
              LineHeight(Font) + 4 * GetSystemMetrics(SM_CYBORDER));
}

void TCustomStaticText::SetAlignment(TAlignment Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    RecreateWnd();
}

void TCustomStaticText::SetBorderStyle(TStaticBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TCustomStaticText::SetFocusControl(TWinControl* Value)
{
    FFocusControl = Value;
}

void TCustomStaticText::SetShowAccelChar(bool Value)
{
    if (FShowAccelChar == Value)
        return;
    FShowAccelChar = Value;
    RecreateWnd();
    AdjustBounds();
}

void TCustomStaticText::SetAutoSize(bool Value)
{
    if (AutoSize == Value)
        return;
    inherited::SetAutoSize(Value);
    AdjustBounds();
}

void TCustomStaticText::Loaded()
{
    inherited::Loaded();
    AdjustBounds();
}

void TCustomStaticText::CMDialogChar(TCMDialogChar& Message)
{
    if (!FFocusControl || !Enabled || !FShowAccelChar || !IsAccel(Message.CharCode, Caption) ||
        !FFocusControl->CanFocus()) {
        Inherited(Message);
        return;
    }
    FFocusControl->SetFocus();
    Message.Result = 1;
}

void TCustomStaticText::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    AdjustBounds();
}

void TCustomStaticText::CMTextChanged(TMessage& Message)
{
    Inherited(Message);
    AdjustBounds();
    Invalidate();
}

AnsiString TCustomStaticText::AccessibleName() const
{
    return FShowAccelChar ? inherited::AccessibleName() : Caption;
}

int TCustomStaticText::AccessibleRole() const
{
    return ROLE_SYSTEM_STATICTEXT;
}
