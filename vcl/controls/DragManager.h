// TDragManager: the one drag and drop operation inside the application that may be going on.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/system/Message.h"

class TDragManager {
public:
    // Immediate: dragging starts at once. Otherwise when the pointer has moved by Threshold pixels (negative: the
    // system's measure) with the button held. Does nothing while something is being dragged.
    static void Begin(TControl* Control, bool Immediate, int Threshold);
    // Drops on the control under the pointer if that takes it and Drop is true; gives up otherwise.
    static void End(bool Drop);
    // The control being dragged, or nullptr.
    static TControl* Source();
    // Takes the mouse and keyboard messages of a drag; false for every other message.
    static bool HandleMessage(TMessage& Message);
    // Control is going away: dragging it ends, dropping on it becomes impossible.
    static void Forget(TControl* Control);

private:
    static void Start();
    static void MoveTo(const TPoint& Screen);
    static void SetTarget(TControl* Target, const TPoint& Screen);
    static bool Ask(TControl* Target, TDragState State, const TPoint& Screen);
};
