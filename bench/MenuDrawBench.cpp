// menu_draw: one item with glyph, caption and shortcut, as for the system's request, against two texts and an image of
// an image list.
#include "bench/Bench.h"
#include "bench/BenchMenus.h"
#include "bench/ButtonForms.h"

namespace {

constexpr int ItemCount = 26;
constexpr int ItemWidth = 250;
constexpr int ItemHeight = OfficeCellSize + 1;
constexpr int Draws = 10 * ItemCount;

// Where an item lies in the window.
TRect PlaceOf(int Index)
{
    const int Top = Index % ItemCount * ItemHeight;
    return {0, Top, ItemWidth, Top + ItemHeight};
}

// The time of one call of Draw.
double PerDraw(const std::function<void(int Index)>& Draw)
{
    TStopwatch Watch;
    for (int I = 0; I < Draws; ++I)
        Draw(I % ItemCount);
    GdiFlush();
    return Watch.Microseconds() / Draws;
}

} // namespace

FIGURE(menu_draw)
{
    TForm Form(nullptr);
    Form.SetBounds(10, 10, 300, 600);
    ShowPainted(Form.Handle);
    TBenchMenu Menu(nullptr, ItemCount);
    TBitmap Strip;
    DrawGlyphStrip(&Strip);
    HIMAGELIST Images = ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, GlyphCount, 0);
    ImageList_AddMasked(Images, Strip.Handle, ColorToRGB(Menu.Glyphs->MaskColor));
    std::vector<std::wstring> Captions;
    std::vector<std::wstring> ShortCuts;
    for (int I = 0; I < ItemCount; ++I) {
        Captions.push_back(BenchCaption(I));
        ShortCuts.push_back(BenchShortCut(I));
    }

    HDC Context = GetDC(Form.Handle);
    const auto DrawOurs = [&](int Index) {
        DRAWITEMSTRUCT Request{};
        Request.CtlType = ODT_MENU;
        Request.hDC = Context;
        Request.rcItem = PlaceOf(Index);
        Menu.Draw(Index, Request);
    };
    const auto DrawSystems = [&](int Index) {
        TRect R = PlaceOf(Index);
        ImageList_Draw(Images, Index % GlyphCount, Context, R.left + 2, R.top + 2, ILD_NORMAL);
        R.left += OfficeCellSize;
        DrawTextW(Context, Captions[Index].c_str(), -1, &R, DT_VCENTER | DT_SINGLELINE);
        DrawTextW(Context, ShortCuts[Index].c_str(), -1, &R, DT_VCENTER | DT_SINGLELINE | DT_RIGHT);
    };
    const TMeasure Measure = Compare([&] { return PerDraw(DrawOurs); }, [&] { return PerDraw(DrawSystems); }, 15);
    PrintFigure("menu_draw", Measure.Value, "us", Measure.Baseline);
    ReleaseDC(Form.Handle, Context);
    ImageList_Destroy(Images);
}
