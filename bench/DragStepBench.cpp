// drag_step: the own time of one MouseMove of a bar that slides along its row, and of one that trades places with the
// next row, with 8 bars of 10 items.
#include "bench/BarForm.h"
#include "bench/Bench.h"
#include "bench/ButtonForms.h"
#include "vcl/forms/Application.h"

namespace {

constexpr int Steps = 40;
constexpr int BarHeight = 26;

// Step is told to go forth and back in turn.
template <class TStep>
double MedianStep(const TStep& Step)
{
    std::vector<double> Times;
    for (int I = 0; I < Steps; ++I) {
        TStopwatch Watch;
        Step(I % 2 == 0);
        Times.push_back(Watch.Microseconds());
        Application->ProcessMessages();
    }
    return Median(Times);
}

} // namespace

FIGURE(drag_step)
{
    TBarForm Bars(8, 10);
    // As long as the dock, so that no row has room for another.
    Bars.Form->Show();
    for (TkelToolBar* Bar : Bars.Bars)
        Bar->Width = Bars.Dock->Width - 20;
    ShowPainted(Bars.Form->Handle);
    Application->ProcessMessages();

    TkelToolBar* Bar = Bars.Bars[3];
    TBarForm::Press(Bar, 400, BarHeight / 2);
    const auto Slide = [&](bool Forth) { TBarForm::MoveTo(Bar, 400 + (Forth ? 5 : -5), BarHeight / 2); };
    PrintFigure("drag_step_sliding", MedianStep(Slide) / 1000, "ms");
    const auto Trade = [&](bool Down) { TBarForm::MoveTo(Bar, 400, Down ? BarHeight + 14 : -14); };
    PrintFigure("drag_step_trading", MedianStep(Trade) / 1000, "ms");
}
