#include "vcl/forms/ModalSession.h"

#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/Screen.h"
#include "vcl/system/Guard.h"

TModalSession::TModalSession(TCustomForm* Form)
    : FForm(Form),
      FActive(GetActiveWindow()),
      FFocus(GetFocus()),
      FOthers(Form->Handle),
      FCursor(Screen->Cursor)
{
    Form->FFormState << fsModal;
    Screen->Cursor = crDefault;
    Application->ModalStarted();
}

TModalSession::~TModalSession()
{
    if (FForm && FForm->HandleAllocated())
        SetWindowLongPtrW(FForm->Handle, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(FOwner));
    FOthers.Enable();
    if (FForm)
        FForm->FFormState >> fsModal;
    if (FForm)
        Guarded(FForm, [this] { FForm->Hide(); });
    Screen->Cursor = FCursor;
    if (FActive && IsWindow(FActive) && IsWindowVisible(FActive))
        SetActiveWindow(FActive);
    if (FFocus && IsWindow(FFocus) && GetActiveWindow() == FActive && IsWindowVisible(FFocus))
        ::SetFocus(FFocus);
    Application->ModalFinished();
}

// Above what was active, whatever is clicked.
void TModalSession::StandAbove()
{
    FOwner = reinterpret_cast<HWND>(GetWindowLongPtrW(FForm->Handle, GWLP_HWNDPARENT));
    if (FActive)
        SetWindowLongPtrW(FForm->Handle, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(FActive));
}

TModalResult TModalSession::Run()
{
    StandAbove();
    FForm->Show();
    if (FForm)
        FForm->ModalResult = mrNone;
    while (FForm && FForm->ModalResult == mrNone) {
        Application->HandleMessage();
        if (!FForm)
            break;
        if (Application->Terminated || !FForm->HandleAllocated())
            FForm->ModalResult = mrCancel;
        else if (FForm->ModalResult != mrNone)
            CloseForm();
    }
    const TModalResult Result = FForm ? FForm->ModalResult : mrCancel;
    if (FForm && FForm->HandleAllocated())
        FForm->Perform(CM_DEACTIVATE);
    return Result;
}

// The form has a result: it closes, unless its handlers forbid that.
void TModalSession::CloseForm()
{
    TCloseAction Action = caNone;
    const bool Asked = Guarded(FForm, [&] {
        if (!FForm->CloseQuery() || !FForm)
            return;
        Action = caHide;
        FForm->DoClose(Action);
    });
    if (!FForm)
        return;
    if (!Asked || Action == caNone)
        FForm->ModalResult = mrNone;
    else if (Action == caFree)
        FForm->Release();
}
