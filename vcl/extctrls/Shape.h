// TShape: a rectangle, an ellipse and their like.
#pragma once

#include "vcl/controls/GraphicControl.h"

VCL_ENUM(TShapeType, stRectangle, stSquare, stRoundRect, stRoundSquare, stEllipse, stCircle);

class TShape : public TGraphicControl {
    VCL_CLASS(TShape, TGraphicControl)
public:
    explicit TShape(TComponent* AOwner);

    // What fills the shape and what outlines it, the control's own; setting copies. White, and a black line.
    TBrush* GetBrush() { return &FBrush; }
    void SetBrush(TBrush* Value) { FBrush.Assign(Value); }
    PROPERTY(TBrush*, Brush);
    TPen* GetPen() { return &FPen; }
    void SetPen(TPen* Value) { FPen.Assign(Value); }
    PROPERTY(TPen*, Pen);
    // Squares and circles are centred in the control; the others fill it.
    TShapeType GetShape() const { return FShape; }
    void SetShape(TShapeType Value);
    PROPERTY(TShapeType, Shape);

    // Takes on a change of pen or brush.
    void StyleChanged(TObject* Sender);

    int AccessibleRole() const override;

protected:
    void Paint() override;

private:
    TBrush FBrush;
    TPen FPen;
    TShapeType FShape = stRectangle;
};
