// TFrame: a piece of a form with a form file of its own, which stands on forms like a control.
#pragma once

#include "vcl/forms/LoadForm.h"
#include "vcl/forms/ScrollingWinControl.h"

class TCustomFrame : public TScrollingWinControl {
    VCL_CLASS(TCustomFrame, TScrollingWinControl)
public:
    explicit TCustomFrame(TComponent* AOwner);

    void GetChildren(const TGetChildProc& Proc, TComponent* Root) override;
    void DefineProperties(TFiler& Filer) override;

protected:
    void CreateParams(TCreateParams& Params) override;

private:
    void ReadDesignPixels(TReader* Reader);
};

// A descendant's constructor ends with LoadForm(this).
class TFrame : public TCustomFrame {
    VCL_CLASS(TFrame, TCustomFrame)
public:
    using TCustomFrame::TCustomFrame;
};
