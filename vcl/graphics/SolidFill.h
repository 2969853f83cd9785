// TSolidFill: plain areas, one-pixel frames and etched lines, drawn without a pen or brush of their own.
#pragma once

#include "vcl/graphics/Color.h"
#include "vcl/graphics/Types.h"

// Draws on a device context, whose brush comes back when the object goes.
class TSolidFill {
public:
    explicit TSolidFill(HDC Context)
        : FContext(Context),
          FOldBrush(SelectObject(Context, GetStockObject(DC_BRUSH))),
          FOldColor(GetDCBrushColor(Context))
    {}
    ~TSolidFill()
    {
        SetDCBrushColor(FContext, FOldColor);
        SelectObject(FContext, FOldBrush);
    }
    TSolidFill(const TSolidFill&) = delete;

    void Fill(const TRect& R, TColor Color)
    {
        SetDCBrushColor(FContext, ColorToRGB(Color));
        PatBlt(FContext, R.left, R.top, R.right - R.left, R.bottom - R.top, PATCOPY);
    }

    // The outermost pixels of R: left and top in TopLeft, right and bottom in BottomRight, which also has the corners
    // where the two meet.
    void Frame(const TRect& R, TColor TopLeft, TColor BottomRight)
    {
        Fill({R.left, R.top, R.right - 1, R.top + 1}, TopLeft);
        Fill({R.left, R.top + 1, R.left + 1, R.bottom - 1}, TopLeft);
        Fill({R.right - 1, R.top, R.right, R.bottom}, BottomRight);
        Fill({R.left, R.bottom - 1, R.right - 1, R.bottom}, BottomRight);
    }

    // A line that looks cut into the surface, from Left to Right: clBtnShadow at Y, clBtnHighlight below it.
    void EtchedLine(int Left, int Right, int Y)
    {
        Fill({Left, Y, Right, Y + 1}, clBtnShadow);
        Fill({Left, Y + 1, Right, Y + 2}, clBtnHighlight);
    }

    // The same from Top to Bottom: clBtnShadow at X, clBtnHighlight to the right of it.
    void VerticalEtchedLine(int X, int Top, int Bottom)
    {
        Fill({X, Top, X + 1, Bottom}, clBtnShadow);
        Fill({X + 1, Top, X + 2, Bottom}, clBtnHighlight);
    }

private:
    HDC FContext;
    HGDIOBJ FOldBrush;
    COLORREF FOldColor;
};
