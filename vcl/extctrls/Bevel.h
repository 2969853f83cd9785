// TBevel: lines and boxes that divide a form.
#pragma once

#include "vcl/controls/GraphicControl.h"

VCL_ENUM(TBevelStyle, bsLowered, bsRaised);
VCL_ENUM(TBevelShape, bsBox, bsFrame, bsTopLine, bsBottomLine, bsLeftLine, bsRightLine, bsSpacer);

class TBevel : public TGraphicControl {
    VCL_CLASS(TBevel, TGraphicControl)
public:
    explicit TBevel(TComponent* AOwner);

    // bsSpacer shows at design time only.
    TBevelShape GetShape() const { return FShape; }
    void SetShape(TBevelShape Value);
    PROPERTY(TBevelShape, Shape);
    TBevelStyle GetStyle() const { return FStyle; }
    void SetStyle(TBevelStyle Value);
    PROPERTY(TBevelStyle, Style);

    int AccessibleRole() const override;

protected:
    void Paint() override;

private:
    TBevelShape FShape = bsBox;
    TBevelStyle FStyle = bsLowered;
};
