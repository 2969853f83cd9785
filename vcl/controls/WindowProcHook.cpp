#include "vcl/controls/WindowProcHook.h"

void TWindowProcHook::Install(TControl* Control, const THookedWindowProc& Procedure)
{
    Remove();
    FLink = std::make_shared<TLink>(Procedure, Control->WindowProc);
    FLink->Control = Control;
    FInstalled = [Link = FLink](TMessage& Message) {
        // Either may change while it is being called.
        const THookedWindowProc Called = Link->Procedure;
        const TWndMethod Next = Link->Next;
        if (Called && Link->Control)
            Called(Message, Next);
        else
            Next(Message);
    };
    Control->WindowProc = FInstalled;
}

void TWindowProcHook::Remove()
{
    if (TControl* Hooked = Control(); Hooked && Hooked->WindowProc == FInstalled)
        Hooked->WindowProc = FLink->Next;
    if (FLink)
        FLink->Procedure = nullptr;
    FInstalled = nullptr;
    FLink.reset();
}
