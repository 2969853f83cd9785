#include "vcl/forms/FormLayer.h"

#include "vcl/forms/CustomForm.h"

void TFormLayer::Update() const
{
    if (!FForm->HandleAllocated() || FForm->ComponentState.Contains(csDesigning))
        return;
    HWND Window = FForm->Handle;
    const LONG ExStyle = GetWindowLongW(Window, GWL_EXSTYLE);
    if (!IsNeeded()) {
        SetWindowLongW(Window, GWL_EXSTYLE, ExStyle & ~WS_EX_LAYERED);
        RedrawWindow(Window, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ERASE | RDW_ALLCHILDREN);
        return;
    }
    SetWindowLongW(Window, GWL_EXSTYLE, ExStyle | WS_EX_LAYERED);
    SetLayeredWindowAttributes(
        Window, ColorToRGB(TransparentColorValue), AlphaBlendValue,
        static_cast<DWORD>((AlphaBlend ? LWA_ALPHA : 0) | (TransparentColor ? LWA_COLORKEY : 0)));
}
