// buttons_open: a thousand speed buttons on 20 panels from a binary form until they are painted for the first time,
// against 20 tool bars of 50 buttons.
#include "bench/Bench.h"
#include "bench/ButtonForms.h"

FIGURE(buttons_open)
{
    TMemoryStream Stream;
    WriteButtonForm(Stream);
    const TMeasure Open = Compare(
        [&] {
            TStopwatch Watch;
            auto Form = ReadButtonForm(Stream);
            Form->Show();
            ShowPainted(Form->Handle);
            return Watch.Microseconds() / 1000;
        },
        [] {
            TStopwatch Watch;
            TToolBars Bars;
            ShowPainted(Bars.Window);
            return Watch.Microseconds() / 1000; // before the bars go
        });
    PrintFigure("buttons_open", Open.Value, "ms", Open.Baseline);
}
