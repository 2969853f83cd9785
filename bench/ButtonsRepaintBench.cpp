// buttons_repaint: a thousand shown speed buttons painted again, per button, against as many of tool bars.
// buttons_repaint_to_limit: the same against the bare pixel work: each button's face is filled and its glyph blended
// into a DIB, and each panel's DIB goes to the window in one blit.
#include "bench/Bench.h"
#include "bench/ButtonForms.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/MaskedImage.h"

namespace {

constexpr int AllButtons = BarCount * ButtonsPerBar;

double RepaintWindow(HWND Window)
{
    BringUp(Window);
    TStopwatch Watch;
    RepaintAll(Window);
    return Watch.Microseconds() / AllButtons;
}

class TPixelWork {
public:
    explicit TPixelWork(HWND Window)
        : FWindow(Window),
          FBar(ButtonsPerBar * ButtonSize, ButtonSize),
          FGlyphs(16 * GlyphCount, 16)
    {
        TBitmap Strip;
        DrawGlyphStrip(&Strip);
        BitBlt(FGlyphs.Context(), 0, 0, FGlyphs.Width(), FGlyphs.Height(), Strip.Canvas->Handle, 0, 0, SRCCOPY);
        // All but the left column of each glyph is drawn.
        uint32_t* Pixels = FGlyphs.Pixels();
        for (int I = 0; I < FGlyphs.Width() * FGlyphs.Height(); ++I)
            Pixels[I] = I % 16 == 0 ? 0 : Pixels[I] | 0xFF000000;
    }

    // Per button.
    double Time()
    {
        BringUp(FWindow);
        HDC Target = GetDC(FWindow);
        TStopwatch Watch;
        for (int Bar = 0; Bar < BarCount; ++Bar) {
            for (int Button = 0; Button < ButtonsPerBar; ++Button)
                DrawButton(Button);
            BitBlt(Target, 0, Bar * ButtonSize, FBar.Width(), ButtonSize, FBar.Context(), 0, 0, SRCCOPY);
        }
        GdiFlush();
        const double Result = Watch.Microseconds() / AllButtons;
        ReleaseDC(FWindow, Target);
        return Result;
    }

private:
    void DrawButton(int Index)
    {
        const int Left = Index * ButtonSize;
        const RECT Face = {Left, 0, Left + ButtonSize, ButtonSize};
        FillRect(FBar.Context(), &Face, GetSysColorBrush(COLOR_BTNFACE));
        AlphaBlend(FBar.Context(), Left + 3, 3, 16, 16, FGlyphs.Context(), Index % GlyphCount * 16, 0, 16, 16,
                   {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA});
    }

    HWND FWindow;
    TMaskedImage FBar;
    TMaskedImage FGlyphs;
};

} // namespace

FIGURE(buttons_repaint)
{
    TMemoryStream Stream;
    WriteButtonForm(Stream);
    auto Form = ReadButtonForm(Stream);
    Form->Show();
    ShowPainted(Form->Handle);
    const auto Ours = [&] { return RepaintWindow(Form->Handle); };
    TToolBars Bars;
    ShowPainted(Bars.Window);
    const TMeasure ToBars = Compare(Ours, [&] { return RepaintWindow(Bars.Window); }, 11);
    PrintFigure("buttons_repaint", ToBars.Value, "us", ToBars.Baseline);
    TForm Plain(nullptr);
    Plain.BoundsRect = Form->BoundsRect;
    ShowPainted(Plain.Handle);
    TPixelWork Limit(Plain.Handle);
    const TMeasure ToLimit = Compare(Ours, [&] { return Limit.Time(); }, 21);
    PrintFigure("buttons_repaint_to_limit", ToLimit.Value, "us", ToLimit.Baseline);
}
