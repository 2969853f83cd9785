// TWindowProcHook: a place in the chain of WindowProc of a control.
//
// It may be taken out in any order: where another hook has come on top, it only passes on from then on. It ends with
// the control.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/Control.h"

#include <memory>

// Gets each message before the control, or before the hooks that were there earlier; Next is the way on to these.
using THookedWindowProc = TEvent<void(TMessage& Message, const TWndMethod& Next)>;

class TWindowProcHook : public TObject {
public:
    TWindowProcHook() = default;
    ~TWindowProcHook() override { Remove(); }
    TWindowProcHook(const TWindowProcHook&) = delete;

    // Removes itself from where it was before.
    void Install(TControl* Control, const THookedWindowProc& Procedure);
    void Remove();

    // nullptr when it is gone.
    TControl* Control() const { return static_cast<TControl*>(FControl.Get()); }

private:
    struct TLink {
        THookedWindowProc Procedure;
        TWndMethod Next;
    };

    void Forget();

    TComponentRef<TComponent> FControl{this, &TWindowProcHook::Forget};
    TWndMethod FInstalled;
    std::shared_ptr<TLink> FLink; // shared with what is in the chain
};
