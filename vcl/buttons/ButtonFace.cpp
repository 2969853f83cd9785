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

namespace {

// One bit a pixel: it takes the colours of the context that it is used in, so that it never has to be made again.
HBRUSH PatternBrush()
{
    static const HBRUSH Brush = [] {
        constexpr WORD Rows[8] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
        HBITMAP Bitmap = CreateBitmap(8, 8, 1, 1, Rows);
        HBRUSH Result = CreatePatternBrush(Bitmap);
        DeleteObject(Bitmap);
        return Result;
    }();
    return Brush;
}

} // namespace

void FillPushed(TCanvas* Canvas, const TRect& R)
{
    HDC Context = Canvas->Handle;
    COLORREF OldText = SetTextColor(Context, ColorToRGB(clBtnHighlight));
    COLORREF OldBack = SetBkColor(Context, ColorToRGB(clBtnFace));
    ::FillRect(Context, &R, PatternBrush());
    SetTextColor(Context, OldText);
    SetBkColor(Context, OldBack);
}
