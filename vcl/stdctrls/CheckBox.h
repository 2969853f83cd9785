// TCheckBox: a check box with everything published.
#pragma once

#include "vcl/stdctrls/CustomCheckBox.h"

class TCheckBox : public TCustomCheckBox {
    VCL_CLASS(TCheckBox, TCustomCheckBox)
public:
    using TCustomCheckBox::TCustomCheckBox;
};
