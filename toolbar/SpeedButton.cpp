#include "toolbar/SpeedButton.h"

#include "toolbar/ButtonContent.h"
#include "toolbar/ImageCells.h"
#include "vcl/classes/StillThere.h"
#include "vcl/controls/WinControl.h"
#include "vcl/graphics/DitherBrush.h"
#include "vcl/graphics/SolidFill.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

namespace {

constexpr int DefaultSize = 22;
constexpr int ContentMargin = 2;
constexpr int PushFrame = 2; // what the system's push button frame takes on each side

} // namespace

void TkelSpeedButton::Describe(TClassBuilder<TkelSpeedButton>& Class)
{
    Class.Property<&Self::GetAllowAllUp, &Self::SetAllowAllUp>("AllowAllUp").Default(false);
    Class.Property<&Self::GetGroupIndex, &Self::SetGroupIndex>("GroupIndex").Default(0);
    Class.Property<&Self::GetDown, &Self::SetDown>("Down").Default(false).ReadLast();
    Class.PublishAll("Caption", "Enabled");
    Class.Property<&Self::GetFlat, &Self::SetFlat>("Flat").Default(false);
    Class.Publish("Font");
    Class.Property<&Self::GetGlyphIndex, &Self::SetGlyph>("GlyphIndex");
    Class.Property<&Self::GetGlyphs, &Self::SetGlyphs>("Glyphs");
    Class.Property<&Self::GetImages, &Self::SetImages>("Images");
    Class.Property<&Self::GetLayout, &Self::SetLayout>("Layout").Default(blGlyphLeft);
    Class.PublishAll("ParentFont", "ParentShowHint", "ShowHint", "Visible");
    Class.Event<&Self::OnMouseEnter>("OnMouseEnter");
    Class.Event<&Self::OnMouseLeave>("OnMouseLeave");
    Class.PublishAll("OnClick", "OnDblClick", "OnMouseDown", "OnMouseMove", "OnMouseUp");

    Class.Message<&Self::WMLButtonUp>(WM_LBUTTONUP);
    Class.Message<&Self::WMLButtonDblClk>(WM_LBUTTONDBLCLK);
    Class.Message<&Self::WMCaptureChanged>(WM_CAPTURECHANGED);
    Class.Message<&Self::CMEnabledChanged>(CM_ENABLEDCHANGED);
    Class.Message<&Self::CMButtonPressed>(CM_BUTTONPRESSED);
    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
    Class.Message<&Self::CMRepaint>(CM_FONTCHANGED);
    Class.Message<&Self::CMRepaint>(CM_TEXTCHANGED);
    Class.Message<&Self::CMRepaint>(CM_SYSCOLORCHANGE);
    Class.Message<&Self::CMMouseEnter>(CM_MOUSEENTER);
    Class.Message<&Self::CMMouseLeave>(CM_MOUSELEAVE);
}

TkelSpeedButton::TkelSpeedButton(TComponent* AOwner) : TGraphicControl(AOwner)
{
    SetBounds(0, 0, DefaultSize, DefaultSize);
    ControlStyle = {csCaptureMouse, csOpaque, csDoubleClicks};
    ParentFont = true;
    ++Created;
}

// ---- properties

void TkelSpeedButton::SetGroupIndex(int Value)
{
    if (FGroupIndex == Value)
        return;
    FGroupIndex = Value;
    UpdateExclusive();
}

void TkelSpeedButton::SetAllowAllUp(bool Value)
{
    if (FAllowAllUp == Value)
        return;
    FAllowAllUp = Value;
    UpdateExclusive();
}

void TkelSpeedButton::SetDown(bool Value)
{
    if (FGroupIndex == 0)
        Value = false;
    if (FDown == Value || (FDown && !FAllowAllUp))
        return;
    FDown = Value;
    const bool Redraw = !Value || FState == bsUp;
    FState = Value ? bsExclusive : bsUp;
    if (Redraw)
        Repaint();
    if (Value)
        UpdateExclusive();
}

void TkelSpeedButton::SetGlyphs(TkelGlyphs* Value)
{
    FImages = nullptr;
    FGlyphs = Value;
}

void TkelSpeedButton::SetImages(TImageList* Value)
{
    FGlyphs = nullptr;
    FImages = Value;
}

void TkelSpeedButton::SetGlyph(int Index)
{
    FGlyphIndex = Index;
    Repaint();
}

void TkelSpeedButton::SetFlat(bool Value)
{
    if (FFlat == Value)
        return;
    FFlat = Value;
    FMouseInControl = false;
    UpdateTracking();
    Repaint();
}

void TkelSpeedButton::SetLayout(TButtonLayout Value)
{
    if (FLayout == Value)
        return;
    FLayout = Value;
    Repaint();
}

// ---- mouse

// The bottom edge row counts as inside, the right edge column does not.
bool TkelSpeedButton::IsInside(int X, int Y) const
{
    return X >= 0 && X < ClientWidth && Y >= 0 && Y <= ClientHeight;
}

void TkelSpeedButton::SetState(TButtonState Value)
{
    if (FState == Value)
        return;
    FState = Value;
    Repaint();
}

void TkelSpeedButton::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    const TStillThere IsHere(this);
    inherited::MouseDown(Button, Shift, X, Y);
    if (!IsHere || Button != mbLeft || !Enabled)
        return;
    if (!FDown) {
        FState = bsDown;
        Repaint();
    }
    FDragging = true;
}

void TkelSpeedButton::MouseMove(TShiftState Shift, int X, int Y)
{
    const TStillThere IsHere(this);
    inherited::MouseMove(Shift, X, Y);
    if (!IsHere || !FDragging)
        return;
    if (FDown)
        SetState(bsExclusive);
    else
        SetState(IsInside(X, Y) ? bsDown : bsUp);
}

void TkelSpeedButton::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    const TStillThere IsHere(this);
    inherited::MouseUp(Button, Shift, X, Y);
    // Any button's release ends the press.
    if (!IsHere || !FDragging)
        return;
    FDragging = false;
    const bool Inside = IsInside(X, Y);
    if (FGroupIndex == 0) {
        FState = bsUp;
        FMouseInControl = false;
        Repaint();
    } else if (Inside) {
        SetDown(!FDown);
    } else {
        FState = FDown ? bsExclusive : bsUp;
        Repaint();
    }
    if (Inside)
        Click();
    if (!IsHere)
        return;
    UpdateTracking();
    Repaint();
}

void TkelSpeedButton::WMLButtonUp(TWMMouse& Message)
{
    const TStillThere IsHere(this);
    const TScopeExit Released([&] {
        if (IsHere)
            FReleasing = false;
    });
    FReleasing = true;
    Inherited(Message);
}

// A second press is a press like any other, and OnDblClick comes on top of it.
void TkelSpeedButton::WMLButtonDblClk(TWMMouse& Message)
{
    const TStillThere IsHere(this);
    Inherited(Message);
    if (IsHere)
        DblClick();
}

// Without the mouse the button does not see the release, so the press ends here, and is no click.
void TkelSpeedButton::WMCaptureChanged(TMessage& Message)
{
    Inherited(Message);
    if (FReleasing || !std::exchange(FDragging, false))
        return;
    FState = FDown ? bsExclusive : bsUp;
    UpdateTracking();
    Repaint();
}

void TkelSpeedButton::UpdateTracking()
{
    if (FFlat)
        FMouseInControl = Enabled && IsUnderPointer();
}

bool TkelSpeedButton::IsUnderPointer()
{
    // Asking the system where the pointer is takes long; without a window it cannot be here.
    TPoint Pointer;
    return Parent && Parent->HandleAllocated() && GetCursorPos(&Pointer) && FindDragTarget(Pointer, true) == this;
}

void TkelSpeedButton::CMMouseEnter(TMessage& Message)
{
    const TStillThere IsHere(this);
    Inherited(Message);
    if (!IsHere || !FFlat || FMouseInControl || !Enabled || !FTracking)
        return;
    OnMouseEnter(this);
    if (!IsHere)
        return;
    FMouseInControl = FFlat && Enabled && FTracking;
    Repaint();
}

void TkelSpeedButton::CMMouseLeave(TMessage& Message)
{
    const TStillThere IsHere(this);
    Inherited(Message);
    if (!IsHere || !FFlat || !FMouseInControl || !Enabled || !FTracking)
        return;
    OnMouseLeave(this);
    if (!IsHere)
        return;
    FMouseInControl = false;
    Repaint();
}

// ---- groups, keyboard and changes of the look

void TkelSpeedButton::UpdateExclusive()
{
    if (FGroupIndex == 0 || !Parent)
        return;
    TMessage Message{CM_BUTTONPRESSED, static_cast<uintptr_t>(FGroupIndex), reinterpret_cast<intptr_t>(this)};
    Parent->Broadcast(Message);
}

void TkelSpeedButton::CMButtonPressed(TMessage& Message)
{
    if (static_cast<int>(Message.WParam) != FGroupIndex)
        return;
    auto* Sender = As<TkelSpeedButton>(reinterpret_cast<TObject*>(Message.LParam));
    if (!Sender || Sender == this)
        return;
    if (Sender->FDown && FDown) {
        FDown = false;
        FState = bsUp;
        Repaint();
    }
    FAllowAllUp = Sender->FAllowAllUp;
}

void TkelSpeedButton::CMDialogChar(TCMDialogChar& Message)
{
    if (!Enabled || !IsOnScreen() || !IsAccel(Message.CharCode, Caption)) {
        Inherited(Message);
        return;
    }
    Click();
    Message.Result = 1;
}

bool TkelSpeedButton::IsOnScreen() const
{
    return Visible && Parent && Parent->HandleAllocated() && IsWindowVisible(Parent->Handle);
}

void TkelSpeedButton::CMEnabledChanged(TMessage&)
{
    UpdateTracking();
    Repaint();
}

void TkelSpeedButton::CMRepaint(TMessage&)
{
    Repaint();
}

// ---- for assistive technology

int TkelSpeedButton::AccessibleRole() const
{
    return ROLE_SYSTEM_PUSHBUTTON;
}

int TkelSpeedButton::AccessibleState() const
{
    return inherited::AccessibleState() | (FDown ? STATE_SYSTEM_PRESSED : 0);
}

bool TkelSpeedButton::AccessibleDefaultAction()
{
    if (!Enabled)
        return false;
    Click();
    return true;
}

// ---- painting

void TkelSpeedButton::Paint()
{
    UpdateState();
    DrawFrame();
    TRect R(0, 0, Width, Height);
    if (!FFlat && IsPressed())
        OffsetRect(R, 1, 1);
    DrawContent(R);
    if (FFlat && IsPressed())
        TSolidFill(Canvas->BareHandle()).Frame({0, 0, Width, Height}, clBtnShadow, clBtnHighlight);
    if (FFlat && IsDesigning())
        DrawDesignOutline();
}

void TkelSpeedButton::UpdateState()
{
    if (!Enabled && !IsDesigning())
        FState = bsDisabled;
    else if (FState == bsDisabled)
        FState = FDown && FGroupIndex != 0 ? bsExclusive : bsUp;
}

// The frame and what it encloses. The pattern of a button that stays down leaves the push button's frame alone, and
// gives way to the frame of a hot flat button.
void TkelSpeedButton::DrawFrame()
{
    if (FFlat) {
        DrawFlatFrame();
        return;
    }
    TRect R(0, 0, Width, Height);
    DrawFrameControl(Canvas->BareHandle(), &R, DFC_BUTTON, DFCS_BUTTONPUSH | (IsPressed() ? DFCS_PUSHED : 0));
    if (FState == bsExclusive) {
        InflateRect(R, -PushFrame, -PushFrame);
        FillDithered(Canvas->BareHandle(), R);
    }
}

void TkelSpeedButton::DrawFlatFrame()
{
    HDC Context = Canvas->BareHandle();
    const TRect R(0, 0, Width, Height);
    if (FState == bsExclusive && !FMouseInControl) {
        FillDithered(Context, R);
        return;
    }
    TSolidFill Fill(Context);
    Fill.Fill(R, clBtnFace);
    if (FMouseInControl && !IsPressed()) // a pressed one gets its sunken frame on top of the glyph
        Fill.Frame(R, clBtnHighlight, clBtnShadow);
}

void TkelSpeedButton::DrawContent(const TRect& R)
{
    const AnsiString Text = Caption;
    const TSize Glyph = GlyphSize();
    if (Glyph.cx == 0 || Glyph.cy == 0) {
        DrawButtonCaption(Canvas, Font, Text, R, FState == bsDisabled);
        return;
    }
    TRect Content = R;
    InflateRect(Content, -ContentMargin, -ContentMargin);
    const TSize TextSize = MeasureCaption(Canvas, Font, Text);
    const TButtonContent Place = PlaceContent(Content, Glyph, TextSize, FLayout);
    DrawGlyph(Place.Glyph);
    DrawButtonCaption(Canvas, Font, Text, Bounds(Place.Caption.x, Place.Caption.y, TextSize.cx, TextSize.cy),
                      FState == bsDisabled);
}

TSize TkelSpeedButton::GlyphSize() const
{
    if (FGlyphs)
        return {FGlyphs->Width, FGlyphs->Height};
    if (FImages)
        return {FImages->Width, FImages->Height};
    return {};
}

void TkelSpeedButton::DrawGlyph(const TPoint& At)
{
    const bool Disabled = FState == bsDisabled;
    if (FGlyphs && Disabled)
        FGlyphs->DrawEmbossed(Canvas, At.x, At.y, FGlyphIndex);
    else if (FGlyphs)
        FGlyphs->Draw(Canvas, At.x, At.y, std::max(FGlyphIndex, 0));
    else if (Disabled)
        TImageCells::Of(FImages).DrawEmbossed(Canvas->BareHandle(), At.x, At.y, FGlyphIndex);
    else
        TImageCells::Of(FImages).Draw(Canvas->BareHandle(), At.x, At.y, FGlyphIndex);
}

// So that it can be seen in the designer, where no pointer makes it hot.
void TkelSpeedButton::DrawDesignOutline()
{
    Canvas->Brush->Style = bsClear;
    Canvas->Pen->Style = psDot;
    Canvas->Pen->Color = clBtnShadow;
    Canvas->Rectangle(0, 0, Width, Height);
}
