#include "controls/Button.h"

#include "vcl/buttons/ButtonFace.h"
#include "vcl/graphics/DisabledText.h"
#include "vcl/system/ClassBuilder.h"

void TkelButton::Describe(TClassBuilder<TkelButton>& Class)
{
    Class.Property<&Self::GetHighlisgColor, &Self::SetHighlisgColor>("HighlisgColor");

    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
    Class.Message<&Self::CMEnabledChanged>(CM_ENABLEDCHANGED);
    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
    Class.Message<&Self::CMTextChanged>(CM_TEXTCHANGED);
    Class.Message<&Self::CNDrawItem>(CN_DRAWITEM);
    Class.Message<&Self::WMLButtonDblClk>(WM_LBUTTONDBLCLK);
}

TkelButton::TkelButton(TComponent* AOwner) : TButton(AOwner), FCanvas(this), FHighlight(Font)
{}

void TkelButton::CMMouseEnter(TMessage&)
{
    FHighlight.MouseEnter();
}

void TkelButton::CMMouseLeave(TMessage&)
{
    FHighlight.MouseLeave();
}

// ---- the window

void TkelButton::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    Params.Style = (Params.Style & ~DWORD{BS_TYPEMASK}) | BS_OWNERDRAW;
    FDrawDefault = Default;
}

void TkelButton::SetButtonStyle(bool ADefault)
{
    if (FDrawDefault == ADefault)
        return;
    FDrawDefault = ADefault;
    Refresh();
}

// An owner-drawn button sees the second press of a double click as no press.
void TkelButton::WMLButtonDblClk(TMessage& Message)
{
    Perform(WM_LBUTTONDOWN, Message.WParam, Message.LParam);
}

void TkelButton::CMEnabledChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

void TkelButton::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

void TkelButton::CMTextChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

// ---- drawing

void TkelButton::CNDrawItem(TMessage& Message)
{
    const auto& Item = *reinterpret_cast<DRAWITEMSTRUCT*>(Message.LParam);
    const int Saved = SaveDC(Item.hDC);
    FCanvas.Handle = Item.hDC;
    DrawButton(ClientRect, Item.itemState & ODS_SELECTED, Item.itemState & ODS_FOCUS);
    FCanvas.Handle = nullptr;
    RestoreDC(Item.hDC, Saved);
    Message.Result = 1;
}

void TkelButton::DrawButton(const TRect& R, bool Pressed, bool HasFocus)
{
    TRect Face = DrawButtonFace(&FCanvas, R, 1, bsNew, false, Pressed, HasFocus || FDrawDefault);
    TRect Text = Face;
    if (Pressed)
        OffsetRect(Text, 1, 1);
    FCanvas.Font = Font;
    FCanvas.Brush->Style = bsClear;
    const unsigned Flags = DT_CENTER | DT_VCENTER | DT_SINGLELINE | (BiDiMode == bdLeftToRight ? 0u : DT_RTLREADING);
    if (Enabled)
        DrawText(FCanvas.Handle, Caption, Text, Flags);
    else
        DrawDisabledText(FCanvas.Handle, Caption, Text, Flags);
    if (!HasFocus)
        return;
    InflateRect(Face, -2, -2);
    FCanvas.DrawFocusRect(Face);
}
