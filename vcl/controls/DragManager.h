// TDragManager: drag and drop between controls. There is at most one drag at a time. Every handler may end it, delete
// the source, the target or the form, or open a modal form.
#pragma once

#include "vcl/controls/ControlTypes.h"
#include "vcl/system/Message.h"

#include <memory>

class TDragManager {
public:
    // Immediate: dragging starts at once. Otherwise when the pointer has moved by Threshold pixels (negative: the
    // system's drag distance); when the button is released before, it is an ordinary click. Does nothing while
    // something is being dragged, and for a control that is on no form.
    static void Begin(TControl* Control, bool Immediate, int Threshold);
    // With Drop, drops on the control under the pointer if that accepts it; otherwise the drag is cancelled.
    static void End(bool Drop);
    // The control being dragged or about to be, or nullptr.
    static TControl* Source();
    // Called for every message of a windowed control. True when the drag has handled the message, or when Window has
    // been deleted.
    static bool HandleMessage(TWinControl& Window, const TMessage& Message);
    // Gone is being deleted. A drag of it ends without further events; it is no drop target any more.
    static void Forget(const TObject* Gone);

private:
    class TDrag;
    // Calls Step; when that throws, the drag is cancelled without further events.
    template <class TStep>
    static void Try(const std::shared_ptr<TDrag>& Drag, const TStep& Step);

    // The current drag. One that has ended lives on while its last events are raised.
    static std::shared_ptr<TDrag> Current;
};
