// float_dock: a bar of 20 items is torn off its dock and put back, against a bare tool window that is created, shown
// and destroyed, and a child window that goes to it and comes back.
#include "bench/BarForm.h"
#include "bench/Bench.h"
#include "bench/ButtonForms.h"
#include "vcl/forms/Application.h"

namespace {

double TearOffAndDock(const TBarForm& Bars)
{
    TkelToolBar* Bar = Bars.Bars[0];
    TStopwatch Watch;
    TBarForm::Press(Bar, 5, 13);
    TBarForm::MoveTo(Bar, 5, 200);
    // The frame comes to the dock, and the bar is docked when it is there.
    for (int Move = 0; Move < 2 && Bar->Floating; ++Move) {
        const TPoint Place = Bar->ScreenToClient(Bars.Dock->ClientToScreen(TPoint(5, 1)));
        TBarForm::MoveTo(Bar, Place.X, Place.Y);
    }
    Bar->MouseCapture = false;
    Application->ProcessMessages(); // the frame goes
    if (Bar->Floating)
        throw Exception("float_dock: the bar does not dock");
    return Watch.Microseconds();
}

double BareWindow(HWND Parent)
{
    HWND Child = GetWindow(Parent, GW_CHILD);
    TStopwatch Watch;
    HWND Tool = CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_CAPTION | WS_SYSMENU,
                                60, 260, 470, 50, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    ShowWindow(Tool, SW_SHOW);
    SetParent(Child, Tool);
    SetParent(Child, Parent);
    DestroyWindow(Tool);
    Application->ProcessMessages();
    return Watch.Microseconds();
}

} // namespace

FIGURE(float_dock)
{
    TBarForm Bars(1, 20);
    Bars.Form->Show();
    ShowPainted(Bars.Form->Handle);
    Application->ProcessMessages();
    const TMeasure Measure =
        Compare([&] { return TearOffAndDock(Bars); }, [&] { return BareWindow(Bars.Dock->Handle); }, 15);
    PrintFigure("float_dock", Measure.Value / 1000, "ms", Measure.Baseline / 1000);
}
