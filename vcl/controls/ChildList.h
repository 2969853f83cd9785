// TChildList: the children of one control, in the order in which they lie on each other.
//
// Windowless children come first, in the order they are drawn; then windowed ones, the lowest first: a window always
// covers what the parent draws.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/system/WindowsApi.h"

#include <vector>

class TChildList {
public:
    int Count() const { return static_cast<int>(FGraphics.size() + FWindows.size()); }
    // Raises EListError when Index is out of range.
    TControl* At(int Index) const;
    const std::vector<TControl*>& Graphics() const { return FGraphics; }
    const std::vector<TWinControl*>& Windows() const { return FWindows; }

    // Adds it in front of the others of its kind.
    void Add(TControl* Control);
    void Remove(TControl* Control);
    // Place is an index as for At; a control stays among those of its kind.
    void Move(TControl* Control, int Place);
    void MoveToEnd(TControl* Control, bool Top) { Move(Control, Top ? Count() : 0); }

    // The handle of the next control in front of Control that has a window now; nullptr when there is none.
    HWND WindowAbove(const TWinControl* Control) const;

private:
    std::vector<TControl*> FGraphics;
    std::vector<TWinControl*> FWindows;
};
