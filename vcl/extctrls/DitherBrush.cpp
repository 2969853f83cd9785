#include "vcl/extctrls/DitherBrush.h"

HBRUSH DitherBrush()
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
