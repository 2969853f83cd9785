#include "toolbar/DitherBrush.h"

#include "vcl/graphics/Color.h"

namespace {

constexpr int PatternSize = 8;

// The brush and the colours it was made with. It is no counted handle: it lives as long as the program.
class TDitherBrush {
public:
    ~TDitherBrush() { DeleteObject(FBrush); }

    HBRUSH Handle()
    {
        const COLORREF Face = ColorToRGB(clBtnFace);
        const COLORREF Highlight = ColorToRGB(clBtnHighlight);
        if (!FBrush || Face != FFace || Highlight != FHighlight)
            Create(Face, Highlight);
        return FBrush;
    }

private:
    void Create(COLORREF Face, COLORREF Highlight)
    {
        struct {
            BITMAPINFOHEADER Header;
            RGBQUAD Pixels[PatternSize][PatternSize];
        } Pattern = {};
        Pattern.Header.biSize = sizeof(Pattern.Header);
        Pattern.Header.biWidth = PatternSize;
        Pattern.Header.biHeight = -PatternSize; // the top row first
        Pattern.Header.biPlanes = 1;
        Pattern.Header.biBitCount = 32;
        for (int Y = 0; Y < PatternSize; ++Y)
            for (int X = 0; X < PatternSize; ++X) {
                const COLORREF Color = (X + Y) % 2 == 0 ? Highlight : Face;
                Pattern.Pixels[Y][X] = {GetBValue(Color), GetGValue(Color), GetRValue(Color), 0};
            }
        DeleteObject(FBrush);
        FBrush = CreateDIBPatternBrushPt(&Pattern, DIB_RGB_COLORS);
        FFace = Face;
        FHighlight = Highlight;
    }

    HBRUSH FBrush = nullptr;
    COLORREF FFace = 0;
    COLORREF FHighlight = 0;
};

} // namespace

HBRUSH DitherBrush()
{
    static TDitherBrush Brush;
    return Brush.Handle();
}

void FillDithered(HDC Context, const TRect& R)
{
    POINT Origin = {};
    LPtoDP(Context, &Origin, 1);
    POINT OldOrigin;
    SetBrushOrgEx(Context, Origin.x & (PatternSize - 1), Origin.y & (PatternSize - 1), &OldOrigin);
    HGDIOBJ OldBrush = SelectObject(Context, DitherBrush());
    PatBlt(Context, R.left, R.top, R.right - R.left, R.bottom - R.top, PATCOPY);
    SelectObject(Context, OldBrush);
    SetBrushOrgEx(Context, OldOrigin.x, OldOrigin.y, nullptr);
}
