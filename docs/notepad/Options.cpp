#include "Options.h"

#include "common/Tsy_common.h"

TOptionsForm::TOptionsForm(TComponent* AOwner) : TForm(AOwner)
{
    LoadForm(this);
}

void TOptionsForm::Describe(TClassBuilder<TOptionsForm>& Class)
{
    Class.Field<&Self::SizeEdit>("SizeEdit");
    Class.Field<&Self::WrapBox>("WrapBox");
    Class.Method<&Self::FormCreate>("FormCreate");
    Class.Method<&Self::FormCloseQuery>("FormCloseQuery");
    Class.Method<&Self::FormDestroy>("FormDestroy");
}

// Without a place that was saved the form comes up in the middle of the main form, as its file says.
void TOptionsForm::FormCreate(TObject*)
{
    if (ReadString("Windows\\OptionsForm", "Left", "").empty())
        return;
    RestoreFormPosition(this);
    Position = poDesigned;
}

void TOptionsForm::FormCloseQuery(TObject*, bool& CanClose)
{
    const int Size = StrToIntDef(SizeEdit->Text, 0);
    if (ModalResult != mrOk || (Size >= 6 && Size <= 72))
        return;
    MsgWarning("The size of the text is a number from 6 to 72.");
    SizeEdit->SetFocus();
    CanClose = false;
}

void TOptionsForm::FormDestroy(TObject*)
{
    SaveFormPosition(this);
}
