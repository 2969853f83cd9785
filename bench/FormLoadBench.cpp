// form_load: a binary form of 2,000 panels, labels, buttons, speed buttons and shapes is read; it is not shown.
#include "bench/Bench.h"
#include "bench/ButtonForms.h"
#include "common/Tsy_common.h"
#include "toolbar/SpeedButton.h"
#include "vcl/classes/Writer.h"
#include "vcl/stdctrls/Button.h"

namespace {

constexpr int ComponentCount = 2000;

template <class T>
T* Add(TForm* Form, TWinControl* Parent, int Index)
{
    auto* Control = new T(Form);
    Control->Name = "Component" + std::to_string(Index);
    Control->SetBounds(Index % 40 * 25, Index / 40 * 20, 24, 19);
    Control->Parent = Parent;
    return Control;
}

void WriteMixedForm(TMemoryStream& Stream)
{
    TForm Form(nullptr);
    Form.Name = "MixedForm";
    for (int I = 0; I < ComponentCount; I += 5) {
        auto* Panel = Add<TkelPanel>(&Form, &Form, I);
        Add<TkelLabel>(&Form, Panel, I + 1);
        Add<TButton>(&Form, Panel, I + 2);
        Add<TkelSpeedButton>(&Form, Panel, I + 3);
        Add<TkelShape>(&Form, Panel, I + 4);
    }
    WriteComponent(Stream, &Form);
}

} // namespace

FIGURE(form_load)
{
    TMemoryStream Stream;
    WriteMixedForm(Stream);
    std::vector<double> PerSecond;
    for (int I = 0; I < 9; ++I) {
        TStopwatch Watch;
        auto Form = ReadButtonForm(Stream);
        PerSecond.push_back(ComponentCount * 1e6 / Watch.Microseconds());
    }
    PrintFigure("form_load", Median(PerSecond), "components/s");
}
