// What separators and drag boxes have in common: the bar that they lie on can be dragged by them.
#pragma once

#include "vcl/controls/GraphicControl.h"

// It has no class description of its own: its descendants name TGraphicControl as their parent class.
class TTBHandle : public TGraphicControl {
public:
    // Size pixels wide and high, with the hand as its cursor.
    TTBHandle(TComponent* AOwner, int Size);

protected:
    // On a tool bar the bar gets the event too, in its own coordinates.
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;
};
