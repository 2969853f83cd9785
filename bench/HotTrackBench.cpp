// hot_track: the pointer goes from a button to its neighbour; from the dispatch of WM_MOUSEMOVE until both are painted,
// against the same on a tool bar.
#include "bench/Bench.h"
#include "bench/ButtonForms.h"

namespace {

// The time of one step of the pointer between two neighbouring buttons of Bar, which lies in Window.
double StepOver(HWND Window, HWND Bar)
{
    // The pointer is really there, so that nobody finds it elsewhere.
    POINT Place = {ButtonSize, ButtonSize / 2};
    ClientToScreen(Bar, &Place);
    SetCursorPos(Place.x, Place.y);
    BringUp(Window);

    constexpr int Steps = 20;
    std::vector<double> Times;
    for (int I = 0; I < Steps; ++I) {
        const int X = ButtonSize / 2 + I % 2 * ButtonSize;
        TStopwatch Watch;
        const MSG Move = {Bar, WM_MOUSEMOVE, 0, MAKELPARAM(X, ButtonSize / 2), 0, {}};
        DispatchMessageW(&Move);
        UpdateWindow(Bar);
        GdiFlush();
        Times.push_back(Watch.Microseconds());
    }
    return Median(Times);
}

} // namespace

FIGURE(hot_track)
{
    TMemoryStream Stream;
    WriteButtonForm(Stream);
    auto Form = ReadButtonForm(Stream);
    Form->Show();
    ShowPainted(Form->Handle);
    HWND Panel = GetWindow(Form->Handle, GW_CHILD);
    TToolBars Bars;
    ShowPainted(Bars.Window);
    const TMeasure Step =
        Compare([&] { return StepOver(Form->Handle, Panel); }, [&] { return StepOver(Bars.Window, Bars.Bars[0]); });
    PrintFigure("hot_track", Step.Value, "us", Step.Baseline);
}
