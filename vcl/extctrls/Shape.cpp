#include "vcl/extctrls/Shape.h"

#include "vcl/system/ClassBuilder.h"

void TShape::Describe(TClassBuilder<TShape>& Class)
{
    Class.PublishAll("Align", "Anchors");
    Class.Property<&Self::GetBrush, &Self::SetBrush>("Brush");
    Class.PublishAll("Constraints", "DragCursor", "DragKind", "DragMode", "Enabled", "ParentShowHint");
    Class.Property<&Self::GetPen, &Self::SetPen>("Pen");
    Class.Property<&Self::GetShape, &Self::SetShape>("Shape").Default(stRectangle);
    Class.PublishAll("ShowHint", "Visible", "OnContextPopup", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnMouseDown",
                     "OnMouseMove", "OnMouseUp", "OnStartDrag");
}

TShape::TShape(TComponent* AOwner) : TGraphicControl(AOwner)
{
    ControlStyle = ControlStyle + TControlStyle{csReplicatable};
    SetBounds(0, 0, 65, 65);
    FPen.OnChange = {this, &TShape::StyleChanged};
    FBrush.OnChange = {this, &TShape::StyleChanged};
}

void TShape::SetShape(TShapeType Value)
{
    if (FShape == Value)
        return;
    FShape = Value;
    Invalidate();
}

void TShape::StyleChanged(TObject*)
{
    Invalidate();
}

void TShape::Paint()
{
    Canvas->Pen = &FPen;
    Canvas->Brush = &FBrush;

    // A wide pen lies inside the control, except that the system draws one of width 0 as a line of one pixel.
    int PenWidth = FPen.Width;
    int X = PenWidth / 2;
    int Y = X;
    int W = Width - PenWidth + 1;
    int H = Height - PenWidth + 1;
    if (PenWidth == 0) {
        --W;
        --H;
    }
    int Side = std::min(W, H);
    if (FShape == stSquare || FShape == stRoundSquare || FShape == stCircle) {
        X += (W - Side) / 2;
        Y += (H - Side) / 2;
        W = Side;
        H = Side;
    }
    switch (FShape) {
    case stRectangle:
    case stSquare: Canvas->Rectangle(X, Y, X + W, Y + H); break;
    case stRoundRect:
    case stRoundSquare: Canvas->RoundRect(X, Y, X + W, Y + H, Side / 4, Side / 4); break;
    case stEllipse:
    case stCircle: Canvas->Ellipse(X, Y, X + W, Y + H); break;
    }
}

int TShape::AccessibleRole() const
{
    return ROLE_SYSTEM_GRAPHIC;
}
