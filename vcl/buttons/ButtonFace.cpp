#include "vcl/buttons/ButtonFace.h"

#include "vcl/extctrls/DitherBrush.h"
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

void FillPushed(TCanvas* Canvas, const TRect& R)
{
    HDC Context = Canvas->Handle;
    COLORREF OldText = SetTextColor(Context, ColorToRGB(clBtnHighlight));
    COLORREF OldBack = SetBkColor(Context, ColorToRGB(clBtnFace));
    ::FillRect(Context, &R, DitherBrush());
    SetTextColor(Context, OldText);
    SetBkColor(Context, OldBack);
}
