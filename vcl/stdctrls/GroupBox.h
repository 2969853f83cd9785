// TGroupBox: a group box with everything published.
#pragma once

#include "vcl/stdctrls/CustomGroupBox.h"

class TGroupBox : public TCustomGroupBox {
    VCL_CLASS(TGroupBox, TCustomGroupBox)
public:
    using TCustomGroupBox::TCustomGroupBox;
};
