// hot_track: the pointer goes from a button to its neighbour; from the dispatch of WM_MOUSEMOVE until both are painted,
// against the same on a tool bar.
#include "bench/Bench.h"
#include "bench/ButtonForms.h"

namespace {

// The time of one step of the pointer within Window, between two neighbouring buttons.
double StepOver(HWND Window)
{
    // The pointer is really there, so that nobody finds it elsewhere.
    POINT Place = {ButtonSize, ButtonSize / 2};
    ClientToScreen(Window, &Place);
    SetCursorPos(Place.x, Place.y);
    MSG Message;
    while (PeekMessageW(&Message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&Message);

    constexpr int Steps = 20;
    std::vector<double> Times;
    for (int I = 0; I < Steps; ++I) {
        const int X = ButtonSize / 2 + I % 2 * ButtonSize;
        TStopwatch Watch;
        const MSG Move = {Window, WM_MOUSEMOVE, 0, MAKELPARAM(X, ButtonSize / 2), 0, {}};
        DispatchMessageW(&Move);
        UpdateWindow(Window);
        GdiFlush();
        Times.push_back(Watch.Microseconds());
    }
    return Median(Times);
}

} // namespace

void HotTrackBench()
{
    TMemoryStream Stream;
    WriteButtonForm(Stream);
    auto Form = ReadButtonForm(Stream);
    Form->Show();
    ShowPainted(Form->Handle);
    HWND Panel = GetWindow(Form->Handle, GW_CHILD);
    std::vector<double> Values, Baselines;
    for (int I = 0; I < 7; ++I)
        Values.push_back(StepOver(Panel));
    Form->Hide();
    TToolBars Bars;
    ShowPainted(Bars.Window);
    for (int I = 0; I < 7; ++I)
        Baselines.push_back(StepOver(Bars.Bars[0]));
    PrintFigure("hot_track", Median(Values), "us", Median(Baselines));
}
