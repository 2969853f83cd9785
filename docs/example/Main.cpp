// A window with a button that counts its clicks. The window itself is described in Main.dfm.
#include "vcl/vcl.h"

class TMainForm : public TForm {
    VCL_CLASS(TMainForm, TForm)
public:
    explicit TMainForm(TComponent* AOwner) : TForm(AOwner) { LoadForm(this); }

    TLabel* Greeting = nullptr;
    TButton* CountButton = nullptr;

    void CountButtonClick(TObject*) { CountButton->Caption = "Clicked: " + std::to_string(++FClicks); }

private:
    int FClicks = 0;
};

void TMainForm::Describe(TClassBuilder<TMainForm>& Class)
{
    Class.Field<&Self::Greeting>("Greeting");
    Class.Field<&Self::CountButton>("CountButton");
    Class.Method<&Self::CountButtonClick>("CountButtonClick");
}

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
    TMainForm* MainForm = nullptr;
    Application->Initialize();
    Application->CreateForm(&MainForm);
    Application->Run();
}
