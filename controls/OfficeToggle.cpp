#include "controls/OfficeToggle.h"

#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int CaptionGap = 5; // between the mark and the caption

} // namespace

void TOfficeToggle::Describe(TClassBuilder<TOfficeToggle>& Class)
{
    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
    Class.Message<&Self::CMTextChanged>(CM_TEXTCHANGED);
    Class.Message<&Self::WMCaptureChanged>(WM_CAPTURECHANGED);
}

TOfficeToggle::TOfficeToggle(TComponent* AOwner) : TCustomControl(AOwner)
{
    // A click is a change of state, and tells of itself.
    SetStyleFlag(csClickEvents, false);
    SetBounds(0, 0, 98, 20);
    ParentColor = false;
    Color = clBtnFace;
}

// ---- drawing

void TOfficeToggle::DrawCaption()
{
    const AnsiString Text = Caption;
    const int X = MarkRight + CaptionGap;
    // The font's height is negative for sizes in points, which lifts the text.
    const int Y = Canvas->Font->Height / 2 + Height / 2 - 1;
    Canvas->Brush->Style = bsClear;
    const TSize Size = Canvas->TextExtent(Text);
    const TColor FontColor = Canvas->Font->Color;
    if (!FMouseInside)
        Canvas->Font->Color = clGrayText;
    Canvas->TextOut(X, Y, Text);
    Canvas->Font->Color = FontColor;
    if (!FHasFocus)
        return;
    Canvas->Brush->Color = clBtnFace;
    Canvas->Brush->Style = bsSolid;
    const TRect Frame(X - 1, Y, X + Size.cx + 2, Y + Size.cy + 1);
    Canvas->FrameRect(Frame);
    Canvas->DrawFocusRect(Frame);
}

void TOfficeToggle::RedrawNow()
{
    if (HandleAllocated() && IsWindowVisible(Handle))
        Paint();
}

void TOfficeToggle::CMTextChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

// ---- mouse and focus

void TOfficeToggle::SetMouseInside(bool Value)
{
    FMouseInside = Value;
    RedrawNow();
}

void TOfficeToggle::CMMouseEnter(TMessage& Message)
{
    const TStillThere IsThere(this);
    Inherited(Message);
    if (IsThere)
        SetMouseInside(true);
}

void TOfficeToggle::CMMouseLeave(TMessage& Message)
{
    const TStillThere IsThere(this);
    Inherited(Message);
    if (IsThere)
        SetMouseInside(false);
}

void TOfficeToggle::DoEnter()
{
    const TStillThere IsThere(this);
    inherited::DoEnter();
    if (!IsThere)
        return;
    FHasFocus = true;
    RedrawNow();
}

void TOfficeToggle::DoExit()
{
    const TStillThere IsThere(this);
    inherited::DoExit();
    if (!IsThere)
        return;
    FHasFocus = false;
    RedrawNow();
}

void TOfficeToggle::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    const TStillThere IsThere(this);
    FPressLost = false;
    if (CanFocus())
        SetFocus();
    if (!IsThere)
        return;
    FHasFocus = true;
    inherited::MouseDown(Button, Shift, X, Y);
    if (IsThere && Parent)
        MouseCapture = true;
}

// The right and bottom edges count as inside.
void TOfficeToggle::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    const TStillThere IsThere(this);
    const bool Counts = !std::exchange(FPressLost, false);
    MouseCapture = false;
    if (Counts && X >= 0 && X <= Width && Y >= 0 && Y <= Height)
        Toggle();
    if (IsThere)
        inherited::MouseUp(Button, Shift, X, Y);
}

void TOfficeToggle::WMCaptureChanged(TMessage& Message)
{
    FPressLost = ControlState.Contains(csLButtonDown);
    Inherited(Message);
}

void TOfficeToggle::KeyUp(uint16_t& Key, TShiftState)
{
    if (Key == VK_SPACE)
        Toggle();
}

bool TOfficeToggle::AccessibleDefaultAction()
{
    if (!Enabled)
        return false;
    Toggle();
    return true;
}
