// TScrollBox: a scrolling area on a form.
#pragma once

#include "vcl/forms/ScrollingWinControl.h"

class TScrollBox : public TScrollingWinControl {
    VCL_CLASS(TScrollBox, TScrollingWinControl)
public:
    explicit TScrollBox(TComponent* AOwner);

    // bsSingle or bsNone; with Ctl3D a single border is a sunken edge.
    TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    PROPERTY(TBorderStyle, BorderStyle);

protected:
    void CreateParams(TCreateParams& Params) override;

private:
    void CMCtl3DChanged(TMessage& Message);

    TBorderStyle FBorderStyle = bsSingle;
};
