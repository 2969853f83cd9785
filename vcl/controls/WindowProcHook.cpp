#include "vcl/controls/WindowProcHook.h"

void TWindowProcHook::Install(TControl* Control, const THookedWindowProc& Procedure)
{
    Remove();
    FControl = Control;
    FLink = std::make_shared<TLink>(Procedure, Control->WindowProc);
    FInstalled = [Link = FLink](TMessage& Message) {
        // Either may change while it is being called.
        const THookedWindowProc Called = Link->Procedure;
        const TWndMethod Next = Link->Next;
        if (Called)
            Called(Message, Next);
        else
            Next(Message);
    };
    Control->WindowProc = FInstalled;
}

void TWindowProcHook::Remove()
{
    // A control whose destructors run is no TControl any more.
    auto* Control = As<TControl>(FControl.Get());
    if (Control && Control->WindowProc == FInstalled)
        Control->WindowProc = FLink->Next;
    Forget();
}

// The chain of the control stays as it is.
void TWindowProcHook::Forget()
{
    if (FLink)
        FLink->Procedure = nullptr;
    FControl = nullptr;
    FInstalled = nullptr;
    FLink.reset();
}
