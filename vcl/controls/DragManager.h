// TDragManager: the one drag and drop operation inside the application that may be going on.
// Every handler may end it, delete the source, the target or the form, or open a modal form.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/system/Message.h"

#include <memory>

class TDragManager {
public:
    // Immediate: dragging starts at once. Otherwise when the pointer has moved by Threshold pixels (negative: the
    // system's measure); a press that is released before is an ordinary one. Does nothing while something is being
    // dragged, and for a control that is on no form.
    static void Begin(TControl* Control, bool Immediate, int Threshold);
    // Drops on the control under the pointer if that takes it and Drop is true; gives up otherwise.
    static void End(bool Drop);
    // The control being dragged or about to be, or nullptr.
    static TControl* Source();
    // Looks at the messages of all windowed controls; true for one that the drag has used up, or whose window
    // is gone now.
    static bool HandleMessage(TWinControl& Window, const TMessage& Message);
    // A control or a drag object is going away: dragging it ends without further events, dropping on it becomes
    // impossible.
    static void Forget(const TObject* Gone);

private:
    class TDrag;
    // Does a step; when that raises, the drag is given up without further events.
    template <class TStep>
    static void Try(const std::shared_ptr<TDrag>& Drag, const TStep& Step);

    // The one that goes on. Those that have ended may still be telling so.
    static std::shared_ptr<TDrag> Current;
};
