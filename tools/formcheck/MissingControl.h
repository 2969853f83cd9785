// TMissingControl stands in a form for a component whose class is not there: it takes children, and any property.
#pragma once

#include "vcl/controls/CustomControl.h"

class TMissingControl : public TCustomControl {
    VCL_CLASS(TMissingControl, TCustomControl)
public:
    explicit TMissingControl(TComponent* AOwner) : TCustomControl(AOwner) {}

    // What stands in an unknown frame has names of its own.
    TComponent* GetChildOwner() const override;
    void GetChildren(const TGetChildProc& Proc, TComponent* Root) override;
};
