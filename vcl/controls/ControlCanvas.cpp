#include "vcl/controls/ControlCanvas.h"

#include "vcl/controls/Control.h"
#include "vcl/system/ClassBuilder.h"

namespace {
TControlCanvas* FirstWithHandle = nullptr;
}

void TControlCanvas::Describe(TClassBuilder<TControlCanvas>&)
{}

TControlCanvas::~TControlCanvas()
{
    FreeHandle();
}

void TControlCanvas::SetControl(TControl* Value)
{
    FreeHandle();
    FControl = Value;
}

void TControlCanvas::CreateHandle()
{
    if (!FControl) {
        TCanvas::CreateHandle();
        return;
    }
    FDeviceContext = FControl->GetDeviceContext(FWindow);
    FNextWithHandle = FirstWithHandle;
    FirstWithHandle = this;
    SetHandle(FDeviceContext);
}

void TControlCanvas::FreeHandle()
{
    if (!FDeviceContext)
        return;
    SetHandle(nullptr);
    ReleaseDC(FWindow, FDeviceContext);
    FDeviceContext = nullptr;
    TControlCanvas** Link = &FirstWithHandle;
    while (*Link != this)
        Link = &(*Link)->FNextWithHandle;
    *Link = FNextWithHandle;
}

void TControlCanvas::FreeHandles()
{
    while (FirstWithHandle)
        FirstWithHandle->FreeHandle();
}
