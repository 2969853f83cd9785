// bar_layout: the items of a bar of 100 are sorted and laid out.
#include "bench/BarForm.h"
#include "bench/Bench.h"
#include "bench/ButtonForms.h"

FIGURE(bar_layout)
{
    TBarForm Bars(1, 100);
    Bars.Form->Show();
    ShowPainted(Bars.Form->Handle);
    std::vector<double> Times;
    for (int I = 0; I < 50; ++I) {
        TStopwatch Watch;
        Bars.Bars[0]->SortControls();
        Bars.Bars[0]->Realign();
        Times.push_back(Watch.Microseconds());
    }
    PrintFigure("bar_layout", Median(Times) / 1000, "ms");
}
