// font_list: the list of a font combo box built anew, against one bare pass over the fonts of the screen.
#include "bench/Bench.h"
#include "controls/FontComboBox.h"
#include "vcl/forms/Form.h"

FIGURE(font_list)
{
    TForm Form(nullptr);
    auto* Combo = new TkelFontComboBox(&Form);
    Combo->Parent = &Form;
    Combo->HandleNeeded();
    const auto Build = [&] {
        TStopwatch Watch;
        Combo->BuildList();
        return Watch.Microseconds();
    };
    const auto BarePass = [] {
        TStopwatch Watch;
        HDC Screen = GetDC(nullptr);
        EnumFontsW(Screen, nullptr, [](const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM) { return 1; }, 0);
        ReleaseDC(nullptr, Screen);
        return Watch.Microseconds();
    };
    const TMeasure Measure = Compare(Build, BarePass, 21);
    PrintFigure("font_list", Measure.Value / 1000, "ms", Measure.Baseline / 1000);
}
