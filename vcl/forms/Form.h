// TForm: the class that applications derive their forms from.
#pragma once

#include "vcl/forms/CustomForm.h"
#include "vcl/forms/LoadForm.h"

class TForm : public TCustomForm {
    VCL_CLASS(TForm, TCustomForm)
public:
    using TCustomForm::TCustomForm;
};
