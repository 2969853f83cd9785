// TAligner: lays the children of a control out by their Align and Anchors.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/ControlTypes.h"

#include <span>

class TAligner {
public:
    // Places Parent's children in Rect, which shrinks to what alClient children get. Moved is the child whose change
    // asked for this (or nullptr): of two in the same place it goes first.
    static void Align(TWinControl& Parent, TControl* Moved, TRect& Rect);

private:
    static bool TakesPart(const TControl& Control);
    // Placing a control runs handlers, which may delete any of them.
    using TControls = std::span<const TComponentRef<TControl>>;
    static void AlignSide(TControls Controls, TAlign Side, TControl* Moved, TRect& Rect);
    static void Place(TControl& Control, TAlign Side, TRect& Rect);
    static void Anchor(TControl& Control, const TRect& Client);
};
