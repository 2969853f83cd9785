// TEdit: one line of text to edit, with everything published.
#pragma once

#include "vcl/stdctrls/CustomEdit.h"

class TEdit : public TCustomEdit {
    VCL_CLASS(TEdit, TCustomEdit)
public:
    using TCustomEdit::TCustomEdit;
};
