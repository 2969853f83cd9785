#include "common/CustomPanel.h"

#include "common/CaptionText.h"
#include "vcl/classes/StillThere.h"
#include "vcl/controls/WindowPainter.h"
#include "vcl/system/ClassBuilder.h"

void TkelCustomPanel::Describe(TClassBuilder<TkelCustomPanel>& Class)
{
    Class.Declare<&Self::GetBevelSides, &Self::SetBevelSides>("BevelSides").Default(AllSides);
    Class.Declare<&Self::GetBorderColor, &Self::SetBorderColor>("BorderColor").Default(clBtnFace);
    Class.Declare<&Self::GetBorderSides, &Self::SetBorderSides>("BorderSides");
    Class.Declare<&Self::GetVerticalAlignment, &Self::SetVerticalAlignment>("VerticalAlignment").Default(vaCenter);
    Class.Declare<&Self::GetTransparent, &Self::SetTransparent>("Transparent");
    Class.Declare<&Self::GetShowCaption, &Self::SetShowCaption>("ShowCaption");
    Class.Declare<&Self::GetAlignment, &Self::SetAlignment>("Alignment").Default(taCenter);
    Class.Declare<&Self::GetBevelInner, &Self::SetBevelInner>("BevelInner").Default(bvNone);
    Class.Declare<&Self::GetBevelOuter, &Self::SetBevelOuter>("BevelOuter").Default(bvRaised);
    Class.Declare<&Self::GetBevelWidth, &Self::SetBevelWidth>("BevelWidth").Default(1);
    Class.Declare<&Self::GetBorderStyle, &Self::SetBorderStyle>("BorderStyle").Default(bsNone);
    Class.Declare<&Self::GetBorderWidth, &Self::SetBorderWidth>("BorderWidth").Default(0);
    Class.Declare<&Self::GetLocked, &Self::SetLocked>("Locked").Default(false);

    Class.Message<&Self::CMTextChanged>(CM_TEXTCHANGED);
    Class.Message<&Self::CMCtl3DChanged>(CM_CTL3DCHANGED);
    Class.Message<&Self::CMIsToolControl>(CM_ISTOOLCONTROL);
    Class.Message<&Self::WMWindowPosChanged>(WM_WINDOWPOSCHANGED);
    Class.Message<&Self::WMEraseBkgnd>(WM_ERASEBKGND);
}

TkelCustomPanel::TkelCustomPanel(TComponent* AOwner) : TCustomControl(AOwner)
{
    ControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption,
                    csOpaque,          csDoubleClicks, csReplicatable};
    SetBounds(0, 0, 185, 41);
    Color = clBtnFace;
}

// ---- properties

template <class T>
void TkelCustomPanel::Change(T& Field, T Value)
{
    if (Field == Value)
        return;
    Field = Value;
    Invalidate();
}

// What changes the frame also changes the room for the children.
template <class T>
void TkelCustomPanel::ChangeFrame(T& Field, T Value)
{
    if (Field == Value)
        return;
    Field = Value;
    Realign();
    Invalidate();
}

void TkelCustomPanel::SetBevelSides(TSides Value)
{
    Change(FBevelSides, Value);
}

void TkelCustomPanel::SetBorderSides(TSides Value)
{
    ChangeFrame(FBorderSides, Value);
}

void TkelCustomPanel::SetBorderColor(TColor Value)
{
    Change(FBorderColor, Value);
}

void TkelCustomPanel::SetAlignment(TAlignment Value)
{
    Change(FAlignment, Value);
}

void TkelCustomPanel::SetVerticalAlignment(TVerticalAlignment Value)
{
    Change(FVerticalAlignment, Value);
}

void TkelCustomPanel::SetShowCaption(bool Value)
{
    Change(FShowCaption, Value);
}

void TkelCustomPanel::SetTransparent(bool Value)
{
    if (FTransparent == Value)
        return;
    FTransparent = Value;
    SetStyleFlag(csOpaque, !Value);
    Invalidate();
}

void TkelCustomPanel::SetBevelInner(TPanelBevel Value)
{
    ChangeFrame(FBevelInner, Value);
}

void TkelCustomPanel::SetBevelOuter(TPanelBevel Value)
{
    ChangeFrame(FBevelOuter, Value);
}

void TkelCustomPanel::SetBevelWidth(int Value)
{
    ChangeFrame(FBevelWidth, Value);
}

void TkelCustomPanel::SetBorderWidth(int Value)
{
    ChangeFrame(FBorderWidth, Value);
}

void TkelCustomPanel::SetBorderStyle(TFormBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TkelCustomPanel::SetLocked(bool Value)
{
    if (FLocked == Value)
        return;
    FLocked = Value;
    if (!Value)
        Realign();
}

// ---- place and window

TRect TkelCustomPanel::GetClientRect() const
{
    TRect R = inherited::GetClientRect();
    R.left += FBorderSides.Contains(sdLeft);
    R.top += FBorderSides.Contains(sdTop);
    R.right -= FBorderSides.Contains(sdRight);
    R.bottom -= FBorderSides.Contains(sdBottom);
    return R;
}

void TkelCustomPanel::AdjustClientRect(TRect& Rect) const
{
    inherited::AdjustClientRect(Rect);
    const auto IsDrawn = [](TPanelBevel Bevel) { return Bevel == bvLowered || Bevel == bvRaised; };
    const int Bevels = (IsDrawn(FBevelOuter) + IsDrawn(FBevelInner)) * std::max(FBevelWidth, 0);
    const int Size = Bevels + std::max(FBorderWidth, 0);
    InflateRect(Rect, -Size, -Size);
}

void TkelCustomPanel::AlignControls(TControl* Control, TRect& Rect)
{
    if (!FLocked)
        inherited::AlignControls(Control, Rect);
}

void TkelCustomPanel::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    if (FBorderStyle == bsSingle)
        Params.Style |= WS_BORDER;
    if (FBorderStyle == bsSingle && Ctl3D) {
        Params.Style &= ~WS_BORDER;
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    }
    // Resize draws the panel anew.
    Params.WindowClass.style &= ~(CS_HREDRAW | CS_VREDRAW);
}

// Bevels, border and caption hang on all four sides.
void TkelCustomPanel::Resize()
{
    Invalidate();
    inherited::Resize();
}

void TkelCustomPanel::WMWindowPosChanged(TMessage& Message)
{
    const TStillThere IsHere(this);
    Inherited(Message);
    if (IsHere && FTransparent && HandleAllocated())
        RedrawWindow(Handle, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void TkelCustomPanel::CMTextChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

void TkelCustomPanel::CMCtl3DChanged(TMessage& Message)
{
    if (FBorderStyle == bsSingle)
        RecreateWnd();
    Inherited(Message);
}

void TkelCustomPanel::CMIsToolControl(TMessage& Message)
{
    Message.Result = !FLocked;
}

int TkelCustomPanel::AccessibleRole() const
{
    return ROLE_SYSTEM_GROUPING;
}

// ---- painting

void TkelCustomPanel::WMEraseBkgnd(TMessage& Message)
{
    if (!FTransparent || !Parent) {
        Inherited(Message);
        return;
    }
    PaintBehind(reinterpret_cast<HDC>(Message.WParam));
    Message.Result = 1;
}

// What the parent shows where this panel lies.
void TkelCustomPanel::PaintBehind(HDC Context)
{
    POINT Origin = {};
    MapWindowPoints(Handle, Parent->Handle, &Origin, 1);
    const int Saved = SaveDC(Context);
    OffsetViewportOrgEx(Context, -Origin.x, -Origin.y, nullptr);
    TRect Clip;
    GetClipBox(Context, &Clip);
    TWindowPainter::PaintInto(*Parent, Context, Clip);
    RestoreDC(Context, Saved);
}

void TkelCustomPanel::DrawSides(const TRect& R, TColor ULColor, TSides Sides, TColor LRColor)
{
    const auto DrawLine = [this](int X1, int Y1, int X2, int Y2) {
        Canvas->MoveTo(X1, Y1);
        Canvas->LineTo(X2, Y2);
    };
    Canvas->Pen->Color = ULColor;
    if (Sides.Contains(sdLeft))
        DrawLine(R.left, R.top, R.left, R.bottom);
    if (Sides.Contains(sdTop))
        DrawLine(R.left, R.top, R.right, R.top);
    Canvas->Pen->Color = LRColor;
    if (Sides.Contains(sdRight))
        DrawLine(R.right - 1, R.top, R.right - 1, R.bottom);
    if (Sides.Contains(sdBottom))
        DrawLine(R.left, R.bottom - 1, R.right, R.bottom - 1);
}

void TkelCustomPanel::DrawBevel(TRect& R, TColor ULColor, TSides Sides, int Width, TColor LRColor)
{
    Canvas->Pen->Width = 1;
    for (int I = 0; I < Width; ++I) {
        DrawSides(R, ULColor, Sides, LRColor);
        InflateRect(R, -1, -1);
    }
}

void TkelCustomPanel::DrawPanelBevel(TRect& R, TPanelBevel Bevel)
{
    if (Bevel == bvLowered || Bevel == bvRaised)
        DrawBevel(R, ULBevelColor[Bevel], FBevelSides, FBevelWidth, LRBevelColor[Bevel]);
}

void TkelCustomPanel::Paint()
{
    // The whole window inside of its own border.
    DrawSides(inherited::GetClientRect(), clBlack, FBorderSides, clBlack);
    TRect R = ClientRect;
    DrawPanelBevel(R, FBevelOuter);
    DrawBevel(R, FBorderColor, FBevelSides, FBorderWidth, FBorderColor);
    DrawPanelBevel(R, FBevelInner);
    if (!FTransparent) {
        Canvas->Brush->Style = bsSolid;
        Canvas->Brush->Color = Color;
        Canvas->FillRect(R);
    }
    if (DrawsCaption())
        DrawCaption(R);
}

void TkelCustomPanel::DrawCaption(TRect R)
{
    const AnsiString Text = Caption;
    if (Text.empty())
        return;
    const unsigned Flags = TextAlignments[FAlignment] | DT_EXPANDTABS | DT_WORDBREAK | DT_VCENTER;
    Canvas->Brush->Style = bsClear;
    Canvas->Font = Font;
    TRect Measured = R;
    DrawText(Canvas->Handle, ShownCaption(Text), Measured, Flags | DT_CALCRECT);
    const int TextHeight = Measured.Height();
    if (FVerticalAlignment == vaCenter) {
        R.top = (R.top + R.bottom - TextHeight) / 2;
        R.bottom = R.top + TextHeight;
    } else if (FVerticalAlignment == vaBottom) {
        R.top = R.bottom - TextHeight - 1;
    }
    DrawText(Canvas->Handle, ShownCaption(Text), R, Flags);
}
