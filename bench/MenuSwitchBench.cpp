// menu_switch: with a menu open the pointer goes to the next menu button, until its menu is drawn.
#include "bench/BarForm.h"
#include "bench/BenchMenus.h"
#include "bench/ButtonForms.h"
#include "bench/MenuTimer.h"
#include "menus/MenuButton.h"
#include "vcl/forms/Application.h"

FIGURE(menu_switch)
{
    constexpr int ItemCount = 10;
    constexpr int Switches = 30;
    TBarForm Bars(1, 0);
    TkelMenuButton* Buttons[2];
    for (TkelMenuButton*& Button : Buttons) {
        Button = new TkelMenuButton(Bars.Form.get());
        Button->Align = alLeft;
        Button->Width = 60;
        Button->Menu = new TBenchMenu(Bars.Form.get(), ItemCount);
        Button->Parent = Bars.Bars[0];
    }
    Bars.Form->Show();
    ShowPainted(Bars.Form->Handle);
    Application->ProcessMessages();

    std::vector<double> Times;
    TStopwatch Watch;
    int Target = 0; // the button whose menu is to open
    const auto GoTo = [&](int Index) {
        Target = Index;
        const TPoint Place = Buttons[Index]->ClientToScreen({30, 11});
        Watch = TStopwatch();
        SetCursorPos(Place.X, Place.Y);
    };
    TMenuTimer Timer;
    Timer.OnDrawn = [&] {
        if (TkelCustomPopupMenu::Current() != Buttons[Target]->Menu)
            return;
        GdiFlush();
        Times.push_back(Watch.Microseconds());
        if (Times.size() <= Switches)
            GoTo(1 - Target);
        else
            EndMenu();
    };
    GoTo(0);
    Buttons[0]->Click();
    Times.erase(Times.begin()); // the one that was opened by the click
    PrintFigure("menu_switch", Median(Times) / 1000, "ms");
}
