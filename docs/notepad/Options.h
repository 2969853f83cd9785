// The form "Options".
#pragma once

#include "vcl/vcl.h"

class TOptionsForm : public TForm {
    VCL_CLASS(TOptionsForm, TForm)
public:
    explicit TOptionsForm(TComponent* AOwner);

    TEdit* SizeEdit = nullptr;
    TCheckBox* WrapBox = nullptr;

    void FormCreate(TObject* Sender);
    void FormCloseQuery(TObject* Sender, bool& CanClose);
    void FormDestroy(TObject* Sender);
};
