// TGraphicsObject: what fonts, pens and brushes have in common.
#pragma once

#include "vcl/classes/Persistent.h"

class TGraphicsObject : public TPersistent {
    VCL_CLASS(TGraphicsObject, TPersistent)
public:
    // After every change of a property. A canvas and a control use it for their own font, pen and brush.
    TNotifyEvent OnChange;

protected:
    TGraphicsObject() = default;

    virtual void Changed() { OnChange(this); }
};
