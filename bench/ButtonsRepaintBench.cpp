// buttons_repaint: a thousand shown speed buttons painted again, per button, against as many of tool bars.
#include "bench/Bench.h"
#include "bench/ButtonForms.h"

void ButtonsRepaintBench()
{
    TMemoryStream Stream;
    WriteButtonForm(Stream);
    auto Form = ReadButtonForm(Stream);
    Form->Show();
    ShowPainted(Form->Handle);
    TToolBars Bars;
    ShowPainted(Bars.Window);
    const auto PerButton = [](HWND Window) {
        return [Window] {
            BringUp(Window);
            TStopwatch Watch;
            RepaintAll(Window);
            return Watch.Microseconds() / (BarCount * ButtonsPerBar);
        };
    };
    const TMeasure Repaint = Compare(PerButton(Form->Handle), PerButton(Bars.Window), 11);
    PrintFigure("buttons_repaint", Repaint.Value, "us", Repaint.Baseline);
}
