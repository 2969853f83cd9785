// TkelTBDragBox: the grip at the near end of a tool bar that lies in a dock. Each bar makes its own.
#pragma once

#include "toolbar/HandCursor.h"
#include "toolbar/TBHandle.h"

class TkelTBDragBox : public TTBHandle {
    VCL_CLASS(TkelTBDragBox, TGraphicControl)
public:
    // 12 by 12 pixels. Its two ridges are vertical with alLeft and alRight, horizontal with alTop and alBottom;
    // otherwise there are none.
    explicit TkelTBDragBox(TComponent* AOwner);

protected:
    void Paint() override;
};
