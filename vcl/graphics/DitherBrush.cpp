#include "vcl/graphics/DitherBrush.h"

#include "vcl/graphics/Color.h"

namespace {

constexpr int PatternSize = 8;

} // namespace

HBRUSH DitherBrush()
{
    // No counted handle: it lives as long as the program.
    static const HBRUSH Brush = [] {
        constexpr WORD Rows[PatternSize] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
        HBITMAP Bitmap = CreateBitmap(PatternSize, PatternSize, 1, 1, Rows);
        HBRUSH Result = CreatePatternBrush(Bitmap);
        DeleteObject(Bitmap);
        return Result;
    }();
    return Brush;
}

void FillDithered(HDC Context, const TRect& R)
{
    POINT Origin = {};
    LPtoDP(Context, &Origin, 1);
    POINT OldOrigin;
    SetBrushOrgEx(Context, Origin.x & (PatternSize - 1), Origin.y & (PatternSize - 1), &OldOrigin);
    const COLORREF OldText = SetTextColor(Context, ColorToRGB(clBtnHighlight));
    const COLORREF OldBack = SetBkColor(Context, ColorToRGB(clBtnFace));
    HGDIOBJ OldBrush = SelectObject(Context, DitherBrush());
    PatBlt(Context, R.left, R.top, R.right - R.left, R.bottom - R.top, PATCOPY);
    SelectObject(Context, OldBrush);
    SetBkColor(Context, OldBack);
    SetTextColor(Context, OldText);
    SetBrushOrgEx(Context, OldOrigin.x, OldOrigin.y, nullptr);
}
