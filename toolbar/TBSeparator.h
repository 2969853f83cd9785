// TkelTBSeparator: a gap between the items of a tool bar with an etched groove across it. The bar can be dragged by it.
#pragma once

#include "toolbar/HandCursor.h"
#include "toolbar/TBHandle.h"

class TkelTBSeparator : public TTBHandle {
    VCL_CLASS(TkelTBSeparator, TGraphicControl)
public:
    // 8 by 8 pixels. The groove is vertical with alLeft and alRight, horizontal with alTop and alBottom; otherwise
    // there is none.
    explicit TkelTBSeparator(TComponent* AOwner);

protected:
    void Paint() override;
};
