#include "vcl/forms/ApplicationHost.h"

#include "vcl/forms/Application.h"
#include "vcl/forms/HintController.h"
#include "vcl/forms/Screen.h"
#include "vcl/system/Guard.h"

namespace {

void ReportToApplication(TObject* Sender)
{
    Application->HandleException(Sender);
}

} // namespace

TApplicationHost::TApplicationHost(TApplication& Application)
    : FApplication(Application),
      FBefore(TFormHost::Install(this))
{
    SetExceptionSink(&ReportToApplication);
    // Static objects are not made in order: PopupList may not be set yet.
    TPopupList::Get().OnHint = [this](const AnsiString& Hint) { FApplication.Hint = Hint; };
}

TApplicationHost::~TApplicationHost()
{
    TPopupList::Get().OnHint = nullptr;
    SetExceptionSink(nullptr);
    TFormHost::Install(FBefore);
}

HCURSOR TApplicationHost::CursorHandle(TCursor Cursor)
{
    return Screen->Cursors[Screen->Cursor != crDefault ? Screen->Cursor : Cursor];
}

void TApplicationHost::HotControlChanged(TControl* Old, TControl* New)
{
    FApplication.FHints->HotControlChanged(Old, New);
}

void TApplicationHost::CancelHint()
{
    FApplication.CancelHint();
}

HWND TApplicationHost::MainHandle()
{
    return FApplication.Handle;
}
