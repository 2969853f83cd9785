// menu_open: an Office menu of 30 items with glyphs, from the call to the drawn menu, against the same items as the
// system's own text items.
#include "bench/BenchMenus.h"
#include "bench/MenuTimer.h"

FIGURE(menu_open)
{
    constexpr int ItemCount = 30;
    TBenchMenu Menu(nullptr, ItemCount);
    HMENU Plain = CreatePlainMenu(ItemCount);
    TMenuTimer Timer;
    const auto Open = [&] { return Timer.Time([&] { Menu.Popup(100, 100); }); };
    const auto OpenPlain = [&] {
        return Timer.Time([&] { TrackPopupMenu(Plain, TPM_RIGHTBUTTON, 100, 100, 0, PopupList->Window, nullptr); });
    };
    const TMeasure Measure = Compare(Open, OpenPlain, 15);
    PrintFigure("menu_open", Measure.Value / 1000, "ms", Measure.Baseline / 1000);
    DestroyMenu(Plain);
}
