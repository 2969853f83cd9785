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

    // The pointer over a place at X, Y of the screen that takes the object (Accepted), and over one that does not.
    virtual TCursor GetDragCursor(bool Accepted, int X, int Y);
    // Dragging has ended, at X, Y of Target; Target is nullptr when nobody took the object. It is deleted after the
    // source's OnEndDrag, unless somebody has done that before.
    virtual void Finished(TObject* Target, int X, int Y, bool Accepted);
};
