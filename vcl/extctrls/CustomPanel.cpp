#include "vcl/extctrls/CustomPanel.h"

#include "vcl/extctrls/Frame3D.h"
#include "vcl/system/ClassBuilder.h"

void TCustomPanel::Describe(TClassBuilder<TCustomPanel>& Class)
{
    Class.Declare<&Self::GetAlignment, &Self::SetAlignment>("Alignment").Default(taCenter);
    Class.Declare<&Self::GetBevelInner, &Self::SetBevelInner>("BevelInner").Default(bvNone);
    Class.Declare<&Self::GetBevelOuter, &Self::SetBevelOuter>("BevelOuter").Default(bvRaised);
    Class.Declare<&Self::GetBevelWidth, &Self::SetBevelWidth>("BevelWidth").Default(1);
    Class.Declare<&Self::GetBorderWidth, &Self::SetBorderWidth>("BorderWidth").Default(0);
    Class.Declare<&Self::GetBorderStyle, &Self::SetBorderStyle>("BorderStyle").Default(bsNone);
    Class.Declare<&Self::GetColor, &Self::SetColor>("Color").Default(clBtnFace).Stored<&Self::IsColorStored>();
    Class.Declare<&Self::FullRepaint, &Self::FullRepaint>("FullRepaint").Default(true);
    Class.Declare<&Self::Locked, &Self::Locked>("Locked").Default(false);
    Class.Declare<&Self::GetParentColor, &Self::SetParentColor>("ParentColor").Default(false);
    Class.Declare<&Self::ParentBackground, &Self::ParentBackground>("ParentBackground").Default(true);

    Class.Message<&Self::CMTextChanged>(CM_TEXTCHANGED);
    Class.Message<&Self::CMCtl3DChanged>(CM_CTL3DCHANGED);
    Class.Message<&Self::CMIsToolControl>(CM_ISTOOLCONTROL);
}

TCustomPanel::TCustomPanel(TComponent* AOwner) : TCustomControl(AOwner)
{
    ControlStyle = TControlStyle{csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption,
                                 csOpaque,          csDoubleClicks, csReplicatable};
    SetBounds(0, 0, 185, 41);
    Color = clBtnFace;
}

void TCustomPanel::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    if (FBorderStyle == bsSingle) {
        if (Ctl3D)
            Params.ExStyle |= WS_EX_CLIENTEDGE;
        else
            Params.Style |= WS_BORDER;
    }
    // The system is not to repaint all of it after a change of size: Resize invalidates what changed.
    Params.WindowClass.style &= ~(CS_HREDRAW | CS_VREDRAW);
}

void TCustomPanel::AdjustClientRect(TRect& Rect) const
{
    inherited::AdjustClientRect(Rect);
    int Border = BorderSize();
    InflateRect(Rect, -Border, -Border);
}

int TCustomPanel::BorderSize() const
{
    return FBorderWidth + (FBevelInner != bvNone ? FBevelWidth : 0) + (FBevelOuter != bvNone ? FBevelWidth : 0);
}

void TCustomPanel::DrawBevel(TRect& R, TPanelBevel Bevel)
{
    switch (Bevel) {
    case bvNone: return;
    case bvLowered: return Frame3D(Canvas, R, clBtnShadow, clBtnHighlight, FBevelWidth);
    case bvRaised: return Frame3D(Canvas, R, clBtnHighlight, clBtnShadow, FBevelWidth);
    case bvSpace: return Frame3D(Canvas, R, Color, Color, FBevelWidth);
    }
}

void TCustomPanel::Paint()
{
    TRect R = ClientRect;
    DrawBevel(R, FBevelOuter);
    Frame3D(Canvas, R, Color, Color, FBorderWidth);
    DrawBevel(R, FBevelInner);
    Canvas->Brush->Color = Color;
    Canvas->Brush->Style = bsSolid;
    Canvas->FillRect(R);
    DrawCaption(R);
}

void TCustomPanel::DrawCaption(TRect R)
{
    AnsiString Text = Caption;
    if (Text.empty())
        return;
    Canvas->Brush->Style = bsClear;
    Canvas->Font = Font;
    unsigned Flags = DT_EXPANDTABS | DT_SINGLELINE | DT_VCENTER | DrawTextAlignment(FAlignment);
    if (BiDiMode != bdLeftToRight)
        Flags |= DT_RTLREADING;
    DrawText(Canvas->Handle, Text, R, Flags);
}

void TCustomPanel::Resize()
{
    InvalidateResized();
    inherited::Resize();
}

// Without FullRepaint only the edges that moved are drawn again; a caption stands in the middle and moves too.
void TCustomPanel::InvalidateResized()
{
    TSize Before = FDrawnSize;
    FDrawnSize = TSize(ClientWidth, ClientHeight);
    if (!HandleAllocated() || Before == FDrawnSize)
        return;
    if (FullRepaint || !Caption.empty()) {
        Invalidate();
        return;
    }
    int Border = BorderSize();
    int X = std::min(Before.cx, FDrawnSize.cx) - Border;
    int Y = std::min(Before.cy, FDrawnSize.cy) - Border;
    if (Before.cx != FDrawnSize.cx) {
        TRect Edge(X, 0, FDrawnSize.cx, FDrawnSize.cy);
        InvalidateRect(Handle, &Edge, TRUE);
    }
    if (Before.cy != FDrawnSize.cy) {
        TRect Edge(0, Y, FDrawnSize.cx, FDrawnSize.cy);
        InvalidateRect(Handle, &Edge, TRUE);
    }
}

void TCustomPanel::SetAlignment(TAlignment Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    Invalidate();
}

void TCustomPanel::BevelChanged()
{
    Realign();
    Invalidate();
}

void TCustomPanel::SetBevelInner(TPanelBevel Value)
{
    if (FBevelInner == Value)
        return;
    FBevelInner = Value;
    BevelChanged();
}

void TCustomPanel::SetBevelOuter(TPanelBevel Value)
{
    if (FBevelOuter == Value)
        return;
    FBevelOuter = Value;
    BevelChanged();
}

void TCustomPanel::SetBevelWidth(TBevelWidth Value)
{
    Value = std::max(Value, 1);
    if (FBevelWidth == Value)
        return;
    FBevelWidth = Value;
    BevelChanged();
}

void TCustomPanel::SetBorderWidth(TBorderWidth Value)
{
    Value = std::max(Value, 0);
    if (FBorderWidth == Value)
        return;
    FBorderWidth = Value;
    BevelChanged();
}

void TCustomPanel::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TCustomPanel::CMTextChanged(TMessage& Message)
{
    Inherited(Message);
    Invalidate();
}

void TCustomPanel::CMCtl3DChanged(TMessage& Message)
{
    if (FBorderStyle == bsSingle)
        RecreateWnd();
    Inherited(Message);
}

void TCustomPanel::CMIsToolControl(TMessage& Message)
{
    if (!Locked)
        Message.Result = 1;
}

int TCustomPanel::AccessibleRole() const
{
    return ROLE_SYSTEM_GROUPING;
}
