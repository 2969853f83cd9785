// hook_cost: what the mouse hook of the menu buttons does with one move while no menu is open, without the hook that
// comes after it.
#include "bench/Bench.h"
#include "menus/MenuButton.h"
#include "menus/MenuHooks.h"

#include <algorithm>

FIGURE(hook_cost)
{
    constexpr int Moves = 10000;
    TComponent Owner(nullptr);
    for (int I = 0; I < 10; ++I)
        new TkelMenuButton(&Owner);
    MOUSEHOOKSTRUCT Move{};
    const auto PerMove = [&] {
        TStopwatch Watch;
        for (int I = 0; I < Moves; ++I) {
            Move.pt = {I % 1000, I % 700};
            MenuButtonsSeeMouse(WM_MOUSEMOVE, reinterpret_cast<LPARAM>(&Move));
        }
        return Watch.Microseconds() / Moves;
    };
    std::vector<double> Times(15);
    std::ranges::generate(Times, PerMove);
    PrintFigure("hook_cost", Median(Times), "us");
}
