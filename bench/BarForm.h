// A form with a dock at the top and tool bars in it.
#pragma once

#include "toolbar/Tsy_toolbar.h"
#include "vcl/forms/Form.h"

#include <memory>
#include <vector>

class TBarForm {
public:
    // Each bar is a row of its own, with as many buttons, and does not save its place. Not shown.
    TBarForm(int BarCount, int ItemCount);

    // As the hand does: pressed at a point of the bar, moved to another.
    static void Press(TkelToolBar* Bar, int X, int Y) { Bar->PublicMouseDown(mbLeft, {ssLeft}, X, Y); }
    static void MoveTo(TkelToolBar* Bar, int X, int Y) { Bar->PublicMouseMove({ssLeft}, X, Y); }

    std::unique_ptr<TForm> Form = std::make_unique<TForm>(nullptr);
    TkelDock* Dock;
    std::vector<TkelToolBar*> Bars;
};

// The settings of the bars in this program.
constexpr const char* BarSettings = "Software\\Halvent\\Tessary bench";
// Where the record of a bar is, as a path below HKEY_CURRENT_USER. Deleted with everything else by DeleteBarSettings.
AnsiString RecordPath(const TkelToolBar* Bar);
void DeleteBarSettings();
