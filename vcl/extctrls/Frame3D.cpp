#include "vcl/extctrls/Frame3D.h"

#include "vcl/graphics/Canvas.h"

void Frame3D(TCanvas* Canvas, TRect& R, TColor TopColor, TColor BottomColor, int Width)
{
    Canvas->Pen->Width = 1;
    Canvas->Pen->Style = psSolid;
    for (; Width > 0; --Width) {
        int Right = R.Right - 1;
        int Bottom = R.Bottom - 1;
        Canvas->Pen->Color = TopColor;
        Canvas->Polyline({{R.Left, Bottom}, {R.Left, R.Top}, {Right, R.Top}});
        Canvas->Pen->Color = BottomColor;
        Canvas->Polyline({{Right, R.Top}, {Right, Bottom}, {R.Left - 1, Bottom}});
        InflateRect(R, -1, -1);
    }
}
