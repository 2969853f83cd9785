// TWindowProcHook: a place in the chain of WindowProc of a control.
//
// Hooks may be removed in any order. One that has another hook above it stays in the chain and only passes messages on.
// When the control is deleted the hook is removed by itself.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/controls/Control.h"

#include <memory>

// Called with each message before the control, and before the hooks that were installed earlier; Next calls those.
using THookedWindowProc = TEvent<void(TMessage& Message, const TWndMethod& Next)>;

class TWindowProcHook : public TObject {
public:
    TWindowProcHook() = default;
    ~TWindowProcHook() override { Remove(); }
    TWindowProcHook(const TWindowProcHook&) = delete;

    // Removes itself first from the control that it was installed on before.
    void Install(TControl* Control, const THookedWindowProc& Procedure);
    void Remove();

    // The hooked control; nullptr when there is none, or it has been deleted.
    TControl* Control() const { return static_cast<TControl*>(FControl.Get()); }

private:
    struct TLink {
        THookedWindowProc Procedure;
        TWndMethod Next;
    };

    void Forget();

    TComponentRef<TComponent> FControl{this, &TWindowProcHook::Forget};
    TWndMethod FInstalled;
    std::shared_ptr<TLink> FLink; // shared with the function in the chain
};
