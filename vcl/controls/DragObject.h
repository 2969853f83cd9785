// TDragObject: what is being dragged, when that is more than a control. An OnStartDrag handler may supply one.
#pragma once

#include "vcl/controls/ControlTypes.h"

class TDragObject : public TObject {
    VCL_CLASS(TDragObject, TObject)
public:
    TDragObject() = default;
    ~TDragObject() override;

protected:
    friend class TDragManager;

    // The cursor at X, Y of the screen; Accepted: over a control that accepts the object.
    virtual TCursor GetDragCursor(bool Accepted, int X, int Y);
    // Dragging has ended, at X, Y of Target; Target is nullptr when no control accepted the object. The drag manager
    // deletes the object after the source's OnEndDrag, unless that has been done before.
    virtual void Finished(TObject* Target, int X, int Y, bool Accepted);
};
