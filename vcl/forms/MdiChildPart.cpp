#include "vcl/forms/MdiChildPart.h"

#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/MdiFrame.h"

bool TMdiChildPart::IsOne() const
{
    return FForm->FormStyle == fsMDIChild && !FForm->Parent && !FForm->ParentWindow && !FForm->IsDesigning();
}

TMdiFrame* TMdiChildPart::Frame() const
{
    if (!FForm->FormState.Contains(fsCreatedMDIChild) || !FForm->HandleAllocated())
        return nullptr;
    HWND Client = GetAncestor(FForm->Handle, GA_PARENT);
    auto* Main = As<TCustomForm>(FindControl(GetAncestor(Client, GA_PARENT)));
    return Main ? Main->FMdiFrame.get() : nullptr;
}

TCustomForm* TMdiChildPart::NeedMainForm()
{
    if (TCustomForm* Form = Application->MdiParent())
        return Form;
    throw EInvalidOperation("Cannot create form. No MDI forms are currently active");
}

void TMdiChildPart::SetWindowParams(TCreateParams& Params) const
{
    Params.WndParent = NeedMainForm()->ClientHandle;
    Params.ExStyle |= WS_EX_MDICHILD;
}

bool TMdiChildPart::Activate() const
{
    TMdiFrame* InFrame = Frame();
    if (InFrame)
        InFrame->Activate(FForm->Handle);
    return InFrame != nullptr;
}

void TMdiChildPart::Focused() const
{
    TMdiFrame* InFrame = Frame();
    if (!InFrame)
        return;
    // The child, not the main form, gets the keyboard when the program becomes active again.
    InFrame->Form().FFocus.Leave();
    InFrame->Activate(FForm->Handle);
}
