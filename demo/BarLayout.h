// TBarLayout: the places that tool bars have in the form file, to put the bars back there.
//
// A bar with AutoSave goes to its saved place when it is loaded. The form therefore notes the designed places before:
//
//     void TMainForm::Loaded()
//     {
//         FLayout.Remember(this);
//         inherited::Loaded();
//     }
#pragma once

#include "toolbar/ToolBar.h"
#include "vcl/stdctrls/StdTypes.h"

#include <vector>

class TBarLayout {
public:
    // Notes where the bars that Form owns are now.
    void Remember(const TComponent* Form);
    // Puts them back there, all of them visible, and forgets what was saved about them. Each becomes a row of its own,
    // in the order of the form file.
    void Reset();

    // cbChecked: in a dock; cbGrayed: floats; cbUnchecked: hidden, wherever it would be.
    static TCheckBoxState StateOf(const TkelToolBar* Bar);
    // A bar that floated and is to lie in a dock goes where it was noted, one that is to float in front of the form.
    void SetState(TkelToolBar* Bar, TCheckBoxState Value) const;

    // In the order of the form file.
    std::vector<TkelToolBar*> Bars() const;

private:
    struct TPlace {
        TkelToolBar* Bar;
        TkelDock* Dock;
        TRect Bounds;
    };

    static void PutBack(const TPlace& Place);

    std::vector<TPlace> FPlaces;
};
