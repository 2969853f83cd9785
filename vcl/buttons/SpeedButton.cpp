#include "vcl/buttons/SpeedButton.h"

#include "vcl/classes/StillThere.h"
#include "vcl/controls/WinControl.h"
#include "vcl/graphics/DitherBrush.h"
#include "vcl/system/ClassBuilder.h"

void TSpeedButton::Describe(TClassBuilder<TSpeedButton>& Class)
{
    Class.Property<&Self::GetAllowAllUp, &Self::SetAllowAllUp>("AllowAllUp").Default(false);
    Class.PublishAll("Anchors", "BiDiMode", "Constraints");
    Class.Property<&Self::GetGroupIndex, &Self::SetGroupIndex>("GroupIndex").Default(0);
    Class.Property<&Self::GetDown, &Self::SetDown>("Down").Default(false).ReadLast();
    Class.PublishAll("Caption", "Enabled");
    Class.Property<&Self::GetFlat, &Self::SetFlat>("Flat").Default(false);
    Class.Publish("Font");
    Class.Property<&Self::GetGlyph, &Self::SetGlyph>("Glyph");
    Class.Property<&Self::GetLayout, &Self::SetLayout>("Layout").Default(blGlyphLeft);
    Class.Property<&Self::GetMargin, &Self::SetMargin>("Margin").Default(-1);
    Class.Property<&Self::GetNumGlyphs, &Self::SetNumGlyphs>("NumGlyphs").Default(1);
    Class.PublishAll("ParentFont", "ParentShowHint", "ParentBiDiMode", "PopupMenu", "ShowHint");
    Class.Property<&Self::GetSpacing, &Self::SetSpacing>("Spacing").Default(4);
    Class.Property<&Self::GetTransparent, &Self::SetTransparent>("Transparent").Default(true);
    Class.PublishAll("Visible", "OnClick", "OnDblClick", "OnMouseDown", "OnMouseMove", "OnMouseUp");

    Class.Message<&Self::WMLButtonDblClk>(WM_LBUTTONDBLCLK);
    Class.Message<&Self::WMCaptureChanged>(WM_CAPTURECHANGED);
    Class.Message<&Self::CMEnabledChanged>(CM_ENABLEDCHANGED);
    Class.Message<&Self::CMButtonPressed>(CM_BUTTONPRESSED);
    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
    Class.Message<&Self::CMTextChanged>(CM_TEXTCHANGED);
    Class.Message<&Self::CMSysColorChange>(CM_SYSCOLORCHANGE);
    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

TSpeedButton::TSpeedButton(TComponent* AOwner) : TGraphicControl(AOwner)
{
    ControlStyle = TControlStyle{csCaptureMouse, csDoubleClicks};
    SetBounds(0, 0, 23, 22);
    Color = clBtnFace;
    FGlyph.OnChange = {this, &TSpeedButton::GlyphChanged};
    UpdateOpaque();
}

// ---- painting

void TSpeedButton::Paint()
{
    if (!Enabled) {
        FState = bsDisabled;
        FDragging = false;
    } else if (FState == bsDisabled) {
        FState = FDown && FGroupIndex != 0 ? bsExclusive : bsUp;
    }
    bool Pressed = FState == bsDown || FState == bsExclusive;
    TRect R(0, 0, Width, Height);
    Canvas->Font = Font;
    if (FFlat)
        DrawFlatFrame(R, Pressed);
    else
        DrawFrameControl(Canvas->Handle, &R, DFC_BUTTON,
                         DFCS_BUTTONPUSH | DFCS_ADJUSTRECT | (Pressed ? DFCS_PUSHED : 0));
    if (FState == bsExclusive && !(FFlat && FMouseInControl))
        FillDithered(Canvas->Handle, R);

    AnsiString Text = Caption;
    FGlyph.Draw(Canvas, {.Client = R,
                         .Offset = Pressed ? TPoint(1, 1) : TPoint(0, 0),
                         .Caption = Text,
                         .Layout = FLayout,
                         .Margin = FMargin,
                         .Spacing = FSpacing,
                         .State = FState,
                         .TextFlags = BiDiMode == bdLeftToRight ? 0u : DT_RTLREADING});
}

void TSpeedButton::DrawFlatFrame(TRect& R, bool Pressed)
{
    if (Pressed || (FMouseInControl && FState != bsDisabled) || IsDesigning()) {
        DrawEdge(Canvas->Handle, &R, Pressed ? BDR_SUNKENOUTER : BDR_RAISEDINNER,
                 BF_RECT | (FTransparent ? 0 : BF_MIDDLE));
    } else if (!FTransparent) {
        Canvas->Brush->Color = Color;
        Canvas->Brush->Style = bsSolid;
        Canvas->FillRect(R);
    }
    InflateRect(R, -1, -1);
}

void TSpeedButton::UpdateOpaque()
{
    SetStyleFlag(csOpaque, !(FFlat && FTransparent));
}

// ---- the mouse

bool TSpeedButton::Inside(int X, int Y) const
{
    return GetClientRect().Contains({X, Y});
}

void TSpeedButton::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    const TStillThere Still(this);
    inherited::MouseDown(Button, Shift, X, Y);
    // A handler that takes the mouse away has ended the press.
    if (!Still || Button != mbLeft || !Enabled || !ControlState.Contains(csLButtonDown))
        return;
    if (!FDown) {
        FState = bsDown;
        Invalidate();
    }
    FDragging = true;
}

void TSpeedButton::MouseMove(TShiftState Shift, int X, int Y)
{
    const TStillThere Still(this);
    inherited::MouseMove(Shift, X, Y);
    if (!Still || !FDragging)
        return;
    TButtonState NewState = Inside(X, Y) && !FDown ? bsDown : Raised();
    if (FState == NewState)
        return;
    FState = NewState;
    Invalidate();
}

void TSpeedButton::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    const TStillThere Still(this);
    inherited::MouseUp(Button, Shift, X, Y);
    if (!Still || !FDragging || Button != mbLeft)
        return;
    FDragging = false;
    bool Clicked = Inside(X, Y);
    if (FGroupIndex == 0) {
        FState = bsUp;
        FMouseInControl = false;
        Invalidate();
    } else if (Clicked) {
        SetDown(!FDown);
        Invalidate();
    } else {
        FState = Raised();
        Invalidate();
    }
    if (Clicked)
        Click();
    if (Still)
        UpdateTracking();
}

void TSpeedButton::WMCaptureChanged(TMessage& Message)
{
    Inherited(Message);
    if (!FDragging)
        return;
    FDragging = false;
    FState = Raised();
    Invalidate();
    UpdateTracking();
}

void TSpeedButton::Click()
{
    inherited::Click();
}

void TSpeedButton::WMLButtonDblClk(TWMMouse& Message)
{
    const TStillThere Still(this);
    Inherited(Message);
    if (Still && FDown)
        DblClick();
}

void TSpeedButton::CMMouseEnter(TMessage& Message)
{
    const TStillThere Still(this);
    Inherited(Message);
    if (!Still || !FFlat || FMouseInControl || !Enabled || DragMode == dmAutomatic)
        return;
    HWND Captured = GetCapture();
    if (Captured && !MouseCapture)
        return;
    FMouseInControl = true;
    Repaint();
}

void TSpeedButton::CMMouseLeave(TMessage& Message)
{
    const TStillThere Still(this);
    Inherited(Message);
    if (!Still || !FFlat || !FMouseInControl || FDragging)
        return;
    FMouseInControl = false;
    Repaint();
}

// Finds out where the pointer is after a press, during which nobody was told.
void TSpeedButton::UpdateTracking()
{
    if (!FFlat || !Enabled)
        return;
    POINT Pointer;
    GetCursorPos(&Pointer);
    bool Over = FindDragTarget(Pointer, true) == this;
    if (Over != FMouseInControl)
        Perform(Over ? CM_MOUSEENTER : CM_MOUSELEAVE);
}

// ---- groups

void TSpeedButton::UpdateExclusive()
{
    if (FGroupIndex == 0 || !Parent)
        return;
    TMessage Message{CM_BUTTONPRESSED, static_cast<uintptr_t>(FGroupIndex), reinterpret_cast<intptr_t>(this), 0};
    Parent->Broadcast(Message);
}

void TSpeedButton::CMButtonPressed(TMessage& Message)
{
    auto* Sender = As<TSpeedButton>(reinterpret_cast<TObject*>(Message.LParam));
    if (!Sender || Sender == this || static_cast<int>(Message.WParam) != FGroupIndex)
        return;
    if (Sender->FDown && FDown) {
        FDown = false;
        FState = bsUp;
        Invalidate();
    }
    FAllowAllUp = Sender->FAllowAllUp;
}

void TSpeedButton::SetDown(bool Value)
{
    if (FGroupIndex == 0)
        Value = false;
    if (FDown == Value || (FDown && !FAllowAllUp))
        return;
    FDown = Value;
    FState = Value ? bsExclusive : bsUp;
    Invalidate();
    if (Value)
        UpdateExclusive();
}

void TSpeedButton::SetGroupIndex(int Value)
{
    if (FGroupIndex == Value)
        return;
    FGroupIndex = Value;
    UpdateExclusive();
}

void TSpeedButton::SetAllowAllUp(bool Value)
{
    if (FAllowAllUp == Value)
        return;
    FAllowAllUp = Value;
    UpdateExclusive();
}

// ---- look

void TSpeedButton::SetFlat(bool Value)
{
    if (FFlat == Value)
        return;
    FFlat = Value;
    UpdateOpaque();
    Invalidate();
}

void TSpeedButton::SetTransparent(bool Value)
{
    if (FTransparent == Value)
        return;
    FTransparent = Value;
    UpdateOpaque();
    Invalidate();
}

void TSpeedButton::SetGlyph(TBitmap* Value)
{
    FGlyph.SetGlyph(Value);
    Invalidate();
}

void TSpeedButton::SetNumGlyphs(TNumGlyphs Value)
{
    if (FGlyph.SetNumGlyphs(Value))
        Invalidate();
}

void TSpeedButton::SetLayout(TButtonLayout Value)
{
    if (FLayout == Value)
        return;
    FLayout = Value;
    Invalidate();
}

void TSpeedButton::SetMargin(int Value)
{
    Value = std::max(Value, -1);
    if (FMargin == Value)
        return;
    FMargin = Value;
    Invalidate();
}

void TSpeedButton::SetSpacing(int Value)
{
    if (FSpacing == Value)
        return;
    FSpacing = Value;
    Invalidate();
}

void TSpeedButton::GlyphChanged(TObject*)
{
    Invalidate();
}

void TSpeedButton::CMEnabledChanged(TMessage& Message)
{
    const TStillThere Still(this);
    if (!Enabled)
        FMouseInControl = false;
    else
        UpdateTracking();
    if (Still)
        Inherited(Message);
}

void TSpeedButton::CMDialogChar(TCMDialogChar& Message)
{
    if (!IsAccel(Message.CharCode, Caption) || !Enabled || !Visible || !Parent || !Parent->Showing) {
        Inherited(Message);
        return;
    }
    Click();
    Message.Result = 1;
}

void TSpeedButton::CMTextChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

void TSpeedButton::CMSysColorChange(TMessage& Message)
{
    FGlyph.Invalidate();
    Inherited(Message);
}

// ---- for assistive technology

int TSpeedButton::AccessibleRole() const
{
    return FGroupIndex == 0 ? ROLE_SYSTEM_PUSHBUTTON : FAllowAllUp ? ROLE_SYSTEM_CHECKBUTTON : ROLE_SYSTEM_RADIOBUTTON;
}

int TSpeedButton::AccessibleState() const
{
    return inherited::AccessibleState() | (FDown ? STATE_SYSTEM_CHECKED : 0) |
           (FState == bsDown ? STATE_SYSTEM_PRESSED : 0);
}

bool TSpeedButton::AccessibleDefaultAction()
{
    if (!Enabled)
        return false;
    if (FGroupIndex != 0)
        SetDown(!FDown);
    Click();
    return true;
}
