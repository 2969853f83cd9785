// TWindowProcHook: a place in the chain of WindowProc of a control.
//
// It may be taken out in any order: where another hook has come on top, it only passes on from then on.
#pragma once

#include "vcl/controls/Control.h"

#include <memory>

// Gets each message before the control, or before the hooks that were there earlier; Next is the way on to these.
using THookedWindowProc = TEvent<void(TMessage& Message, const TWndMethod& Next)>;

class TWindowProcHook {
public:
    TWindowProcHook() = default;
    ~TWindowProcHook() { Remove(); }
    TWindowProcHook(const TWindowProcHook&) = delete;

    // Removes itself from where it was before.
    void Install(TControl* Control, const THookedWindowProc& Procedure);
    void Remove();
    // The control is about to go: it is left as it is.
    void Forget();

    TControl* Control() const { return static_cast<TControl*>(FControl); }

private:
    struct TLink {
        THookedWindowProc Procedure;
        TWndMethod Next;
    };

    TComponent* FControl = nullptr;
    TWndMethod FInstalled;
    std::shared_ptr<TLink> FLink; // shared with what is in the chain
};
