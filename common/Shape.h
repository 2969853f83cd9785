// TkelShape: a shape that can be aligned.
#pragma once

#include "vcl/extctrls/Shape.h"

class TkelShape : public TShape {
    VCL_CLASS(TkelShape, TShape)
public:
    using TShape::TShape;
};
