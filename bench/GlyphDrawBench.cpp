// glyph_draw: one masked cell of a strip to a window, against ImageList_Draw and against a plain BitBlt.
#include "bench/Bench.h"
#include "bench/ButtonForms.h"
#include "toolbar/Glyphs.h"

FIGURE(glyph_draw)
{
    constexpr int Draws = 500;
    TForm Form(nullptr);
    Form.SetBounds(10, 10, 300, 200);
    ShowPainted(Form.Handle);
    TBitmap Strip;
    DrawGlyphStrip(&Strip);
    TkelGlyphs Glyphs(nullptr);
    Glyphs.Picture->Bitmap = &Strip;
    Glyphs.Cols = GlyphCount;
    HIMAGELIST Images = ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, GlyphCount, 0);
    ImageList_AddMasked(Images, Strip.Handle, ColorToRGB(Glyphs.MaskColor));

    HDC Context = GetDC(Form.Handle);
    TCanvas Canvas;
    Canvas.Handle = Context;
    const auto PerDraw = [&](const std::function<void(int Index)>& Draw) {
        return [Draw] {
            TStopwatch Watch;
            for (int I = 0; I < Draws; ++I)
                Draw(I);
            GdiFlush();
            return Watch.Microseconds() / Draws;
        };
    };
    const auto X = [](int I) { return I % 12 * 20; };
    const auto Masked = PerDraw([&](int I) { Glyphs.Draw(&Canvas, X(I), 10, I % GlyphCount); });
    const auto ImageList =
        PerDraw([&](int I) { ImageList_Draw(Images, I % GlyphCount, Context, X(I), 40, ILD_NORMAL); });
    HDC Source = Strip.Canvas->Handle;
    const auto Plain =
        PerDraw([&](int I) { BitBlt(Context, X(I), 70, 16, 16, Source, I % GlyphCount * 16, 0, SRCCOPY); });

    const TMeasure ToImageList = Compare(Masked, ImageList);
    PrintFigure("glyph_draw", ToImageList.Value, "us", ToImageList.Baseline);
    const TMeasure ToBitBlt = Compare(Masked, Plain);
    PrintFigure("glyph_draw_to_bitblt", ToBitBlt.Value, "us", ToBitBlt.Baseline);

    Canvas.Handle = nullptr;
    ReleaseDC(Form.Handle, Context);
    ImageList_Destroy(Images);
}
