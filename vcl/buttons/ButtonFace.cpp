#include "vcl/buttons/ButtonFace.h"

#include "vcl/graphics/Canvas.h"

TRect DrawButtonFace(TCanvas* Canvas, const TRect& Client, int, TButtonStyle, bool, bool IsDown, bool IsFocused)
{
    TRect R = Client;
    if (IsFocused) {
        Canvas->Brush->Color = clWindowFrame;
        Canvas->Brush->Style = bsSolid;
        Canvas->FrameRect(R);
        InflateRect(R, -1, -1);
    }
    DrawFrameControl(Canvas->Handle, &R, DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_ADJUSTRECT | (IsDown ? DFCS_PUSHED : 0));
    return R;
}
