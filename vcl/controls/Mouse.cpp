#include "vcl/controls/Mouse.h"

#include "vcl/controls/FormHost.h"
#include "vcl/controls/WinControl.h"

#include <utility>

TControl* TMouse::Hot = nullptr;
TControl* TMouse::Capture = nullptr;

TControl* TMouse::CaptureControl()
{
    if (Capture)
        return Capture;
    HWND Window = GetCapture();
    return Window ? FindControl(Window) : nullptr;
}

void TMouse::SetCaptureControl(TControl* Control)
{
    Capture = nullptr;
    if (!Control) {
        ReleaseCapture();
        return;
    }
    auto* Window = As<TWinControl>(Control);
    if (!Window) {
        Window = Control->GetParent();
        if (!Window)
            return;
    }
    SetCapture(Window->GetHandle());
    if (Window != Control)
        Capture = Control;
}

void TMouse::CaptureChanged(HWND NewOwner)
{
    if (Capture && (!Capture->GetParent() || Capture->GetParent()->FHandle != NewOwner))
        Capture = nullptr;
}

void TMouse::SetHotControl(TControl* Control)
{
    if (Hot != Control)
        SetHotControl(Control, CaptureControl());
}

void TMouse::SetHotControl(TControl* Control, TControl* Owner)
{
    TControl* Old = Hot;
    if (Old == Control)
        return;
    Hot = Control;
    // What the pointer passes over while another control has the mouse is not told.
    if (Old && (!Owner || Owner == Old))
        Old->Perform(CM_MOUSELEAVE);
    if (Hot == Control && Control && (!Owner || Owner == Control))
        Control->Perform(CM_MOUSEENTER);
    TFormHost::Get().HotControlChanged(Old, Hot);
}

void TMouse::UpdateHotControl()
{
    POINT Screen;
    SetHotControl(GetCursorPos(&Screen) ? FindDragTarget(Screen, true) : nullptr);
}

void TMouse::Forget(TControl* Control)
{
    if (Capture == Control)
        SetCaptureControl(nullptr);
    if (Hot == Control) {
        Hot = nullptr;
        TFormHost::Get().HotControlChanged(Control, nullptr);
    }
}
