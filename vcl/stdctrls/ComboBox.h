// TComboBox: a combo box with everything published.
#pragma once

#include "vcl/stdctrls/CustomComboBox.h"

class TComboBox : public TCustomComboBox {
    VCL_CLASS(TComboBox, TCustomComboBox)
public:
    using TCustomComboBox::TCustomComboBox;
};
