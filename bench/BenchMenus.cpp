#include "bench/BenchMenus.h"

#include "bench/ButtonForms.h"
#include "common/OwnerDrawItems.h"
#include "vcl/system/Format.h"
#include "vcl/system/Utf.h"

namespace {

AnsiString CaptionOf(int Index)
{
    return Format("&Open the document %d", Index);
}

TShortCut ShortCutOf(int Index)
{
    return ShortCut(static_cast<uint16_t>('A' + Index % 26), {ssCtrl});
}

} // namespace

TBenchMenu::TBenchMenu(TComponent* AOwner, int ItemCount) : TkelOfficePopupMenu(AOwner)
{
    Glyphs = new TkelGlyphs(this);
    TBitmap Strip;
    DrawGlyphStrip(&Strip);
    Glyphs->Picture->Bitmap = &Strip;
    Glyphs->Cols = GlyphCount;
    for (int I = 0; I < ItemCount; ++I) {
        TMenuItem* Item = NewItem(CaptionOf(I), ShortCutOf(I), false, true, {}, 0, "", this);
        Item->Tag = 1 + I % GlyphCount;
        Items->Add(Item);
    }
}

void TBenchMenu::Draw(int Index, const DRAWITEMSTRUCT& Request)
{
    DrawWith(Request,
             [&](TCanvas* Canvas) { DoDrawItem(Items->Items[Index], Canvas, Request.itemState, Request.rcItem); });
}

std::wstring BenchCaption(int Index)
{
    return ToWide(CaptionOf(Index));
}

std::wstring BenchShortCut(int Index)
{
    return ToWide(ShortCutToText(ShortCutOf(Index)));
}

HMENU CreatePlainMenu(int ItemCount)
{
    HMENU Menu = CreatePopupMenu();
    for (int I = 0; I < ItemCount; ++I)
        AppendMenuW(Menu, MF_STRING, static_cast<UINT_PTR>(I + 1),
                    (BenchCaption(I) + L'\t' + BenchShortCut(I)).c_str());
    return Menu;
}
