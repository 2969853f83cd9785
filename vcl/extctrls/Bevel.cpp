#include "vcl/extctrls/Bevel.h"

#include "vcl/extctrls/Frame3D.h"
#include "vcl/system/ClassBuilder.h"

void TBevel::Describe(TClassBuilder<TBevel>& Class)
{
    Class.PublishAll("Align", "Anchors", "Constraints", "ParentShowHint");
    Class.Property<&Self::GetShape, &Self::SetShape>("Shape").Default(bsBox);
    Class.Publish("ShowHint");
    Class.Property<&Self::GetStyle, &Self::SetStyle>("Style").Default(bsLowered);
    Class.Publish("Visible");
}

TBevel::TBevel(TComponent* AOwner) : TGraphicControl(AOwner)
{
    ControlStyle = ControlStyle + TControlStyle{csReplicatable};
    SetBounds(0, 0, 50, 50);
}

void TBevel::SetShape(TBevelShape Value)
{
    if (FShape == Value)
        return;
    FShape = Value;
    Invalidate();
}

void TBevel::SetStyle(TBevelStyle Value)
{
    if (FStyle == Value)
        return;
    FStyle = Value;
    Invalidate();
}

namespace {

void Line(TCanvas* Canvas, TColor Color, int X1, int Y1, int X2, int Y2)
{
    Canvas->Pen->Color = Color;
    Canvas->MoveTo(X1, Y1);
    Canvas->LineTo(X2, Y2);
}

} // namespace

void TBevel::Paint()
{
    TColor First = FStyle == bsLowered ? clBtnShadow : clBtnHighlight;
    TColor Second = FStyle == bsLowered ? clBtnHighlight : clBtnShadow;
    Canvas->Pen->Width = 1;
    Canvas->Pen->Style = psSolid;
    switch (FShape) {
    case bsBox: {
        TRect R(0, 0, Width, Height);
        Frame3D(Canvas, R, First, Second, 1);
        break;
    }
    case bsFrame: {
        TRect Inner(1, 1, Width, Height);
        Frame3D(Canvas, Inner, Second, Second, 1);
        TRect Outer(0, 0, Width - 1, Height - 1);
        Frame3D(Canvas, Outer, First, First, 1);
        break;
    }
    case bsTopLine:
        Line(Canvas, First, 0, 0, Width, 0);
        Line(Canvas, Second, 0, 1, Width, 1);
        break;
    case bsBottomLine:
        Line(Canvas, First, 0, Height - 2, Width, Height - 2);
        Line(Canvas, Second, 0, Height - 1, Width, Height - 1);
        break;
    case bsLeftLine:
        Line(Canvas, First, 0, 0, 0, Height);
        Line(Canvas, Second, 1, 0, 1, Height);
        break;
    case bsRightLine:
        Line(Canvas, First, Width - 2, 0, Width - 2, Height);
        Line(Canvas, Second, Width - 1, 0, Width - 1, Height);
        break;
    case bsSpacer:
        if (!IsDesigning())
            break;
        Canvas->Pen->Style = psDot;
        Canvas->Pen->Color = clBlack;
        Canvas->Brush->Style = bsClear;
        Canvas->Rectangle(0, 0, Width, Height);
        break;
    }
}

int TBevel::AccessibleRole() const
{
    return ROLE_SYSTEM_SEPARATOR;
}
