// TDragObject: what is being dragged, when that is more than a control. An OnStartDrag handler may supply one.
#pragma once

#include "vcl/controls/ControlTypes.h"

class TDragObject : public TObject {
    VCL_CLASS(TDragObject, TObject)
public:
    TDragObject() = default;

    // The pointer over a place that takes the object, and over one that does not.
    TCursor AcceptCursor = crDrag;
    TCursor RejectCursor = crNoDrop;
    // Told when dragging ends; Target is nullptr when nobody took it. The object is deleted after that.
    TEndDragEvent OnFinished;
};
