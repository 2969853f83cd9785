// TLabeledEdit: a labeled edit with everything published.
#pragma once

#include "vcl/extctrls/CustomLabeledEdit.h"

class TLabeledEdit : public TCustomLabeledEdit {
    VCL_CLASS(TLabeledEdit, TCustomLabeledEdit)
public:
    using TCustomLabeledEdit::TCustomLabeledEdit;
};
