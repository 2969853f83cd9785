// A program that an exception ends, in the place that its argument names: "static", "create" or "run". Like the
// programs of beginners, it catches nothing.
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/system/ClassBuilder.h"

#include <cstring>

namespace {

bool FailsIn(const char* Place)
{
    return std::strstr(GetCommandLineA(), Place) != nullptr;
}

struct TStatic {
    TStatic()
    {
        if (FailsIn("static"))
            throw EInvalidOperation("not in a constructor");
    }
} Static;

// There is no form file for it.
class TMainForm : public TForm {
    VCL_CLASS(TMainForm, TForm)
public:
    explicit TMainForm(TComponent* AOwner) : TForm(AOwner)
    {
        if (FailsIn("create"))
            LoadForm(this);
    }
};

void TMainForm::Describe(TClassBuilder<TMainForm>&)
{}

TMainForm* MainForm;

void Fail()
{
    throw std::runtime_error("not in a destructor");
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
    Application->Initialize();
    Application->CreateForm(&MainForm);
    if (FailsIn("run"))
        Application->OnIdle = [](TObject*, bool&) noexcept { Fail(); };
    Application->Run();
    return 0;
}
