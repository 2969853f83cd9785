// TTabList: the windowed children of one control in tab order.
#pragma once

#include "vcl/controls/ControlTypes.h"

#include <vector>

class TTabList {
public:
    void Add(TWinControl* Control) { FControls.push_back(Control); }
    void Remove(TWinControl* Control);
    TTabOrder PlaceOf(const TWinControl* Control) const;
    // A place behind the end is the end.
    void Move(TWinControl* Control, TTabOrder Place);
    // Puts the controls where the form file has them; those without a place of their own fill the gaps in their order.
    void TakeReadPlaces();

    // The controls, each followed by those in it.
    void AppendAll(std::vector<TWinControl*>& List) const;

private:
    std::vector<TWinControl*> FControls;
};
