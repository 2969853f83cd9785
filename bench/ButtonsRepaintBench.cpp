// buttons_repaint: a thousand shown speed buttons painted again, per button, against as many of tool bars.
#include "bench/Bench.h"
#include "bench/ButtonForms.h"

void ButtonsRepaintBench()
{
    constexpr double Buttons = BarCount * ButtonsPerBar;
    TMemoryStream Stream;
    WriteButtonForm(Stream);
    auto Form = ReadButtonForm(Stream);
    Form->Show();
    ShowPainted(Form->Handle);
    std::vector<double> Values, Baselines;
    for (int I = 0; I < 11; ++I) {
        TStopwatch Watch;
        RepaintAll(Form->Handle);
        Values.push_back(Watch.Microseconds() / Buttons);
    }
    Form->Hide();
    TToolBars Bars;
    ShowPainted(Bars.Window);
    for (int I = 0; I < 7; ++I) {
        TStopwatch Watch;
        RepaintAll(Bars.Window);
        Baselines.push_back(Watch.Microseconds() / Buttons);
    }
    PrintFigure("buttons_repaint", Median(Values), "us", Median(Baselines));
}
