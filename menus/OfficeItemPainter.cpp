#include "menus/OfficeItemPainter.h"

#include "toolbar/ImageCells.h"
#include "vcl/graphics/DisabledText.h"
#include "vcl/graphics/DitherBrush.h"
#include "vcl/graphics/SolidFill.h"
#include "vcl/menus/ShortCut.h"

namespace {

constexpr int G = OfficeCellSize;
constexpr int TextGap = 3; // between the glyph column and the caption

} // namespace

bool IsOfficeSeparator(const TMenuItem& Item)
{
    return Item.Caption.starts_with('-');
}

TOfficeItemPainter::TOfficeItemPainter(TCanvas* Canvas, TMenuItem* Item, unsigned State, const TRect& Rect)
    : FCanvas(Canvas),
      FItem(Item),
      FRect(Rect),
      FSelected((State & ODS_SELECTED) != 0),
      FGrayed((State & ODS_GRAYED) != 0),
      FChecked((State & ODS_CHECKED) != 0)
{
    FTextColor = FSelected ? clHighlightText : clMenuText;
}

void TOfficeItemPainter::DrawBanner(TkelMenuBanner* Banner, int Top, int Height)
{
    TPicture* Picture = Banner->Picture;
    const int Width = Picture->Width;
    if (Width <= 0)
        return;
    const bool IsLeft = Banner->Position == mbpLeft;
    const int X = IsLeft ? FRect.left : FRect.right - Width;
    int Y = 0;
    if (Banner->PicturePosition != ppTop)
        Y = Height - Picture->Height;
    if (Banner->PicturePosition == ppCenter)
        Y /= 2;
    TSolidFill(FCanvas->BareHandle()).Fill({X, FRect.top, X + Width, FRect.bottom}, Banner->BackColor);
    FCanvas->Draw(X, Top + Y, Picture->Graphic);
    (IsLeft ? FRect.left : FRect.right) += IsLeft ? Width : -Width;
}

void TOfficeItemPainter::DrawSeparator()
{
    const int Middle = FRect.top + FRect.Height() / 2;
    TSolidFill(FCanvas->BareHandle()).EtchedLine(FRect.left + 1, FRect.right - 1, Middle);
    const AnsiString Title = FItem->Caption.substr(1);
    if (Title.empty())
        return;
    FCanvas->Brush->Color = clBtnFace;
    FCanvas->Font->Color = clMenuText;
    const TSize Size = FCanvas->TextExtent(Title);
    FCanvas->TextOut(FRect.left + (FRect.Width() - Size.cx) / 2, FRect.top + (FRect.Height() - Size.cy) / 2, Title);
}

void TOfficeItemPainter::DrawItem(const TOfficeGlyphs& Source, const TMaskedImage& Mark)
{
    const bool HasGlyph = !Source.Empty() && FItem->Tag > 0;
    DrawBackground(FSelected && !FChecked && !FGrayed && HasGlyph);
    if (FChecked)
        DrawCheck(Mark);
    if (HasGlyph && !FGrayed && (!FChecked || FItem->RadioItem))
        DrawGlyph(Source);
    if (HasGlyph && FGrayed && !FChecked)
        DrawEmbossedGlyph(Source);
    DrawCaption();
    if (FItem->ShortCut != scNone)
        DrawShortCut();
}

// A raised glyph column has nothing but its frame.
void TOfficeItemPainter::DrawBackground(bool IsRaised)
{
    FCanvas->Brush->Color = FSelected && !FGrayed ? clHighlight : clBtnFace;
    TRect Area = FRect;
    if (IsRaised) {
        Area.left += G + 2;
        DrawFrame(clBtnHighlight, clBtnShadow);
    }
    FCanvas->FillRect(Area);
}

// The corner at the upper right is left out.
void TOfficeItemPainter::DrawFrame(TColor TopLeft, TColor BottomRight)
{
    const int L = FRect.left;
    const int T = FRect.top;
    TSolidFill Fill(FCanvas->BareHandle());
    Fill.Fill({L, T, L + G, T + 1}, TopLeft);
    Fill.Fill({L, T + 1, L + 1, T + G}, TopLeft);
    Fill.Fill({L, T + G, L + G + 1, T + G + 1}, BottomRight);
    Fill.Fill({L + G, T + 1, L + G + 1, T + G}, BottomRight);
}

void TOfficeItemPainter::DrawCheck(const TMaskedImage& Mark)
{
    const TRect Box(FRect.left + 1, FRect.top + 1, FRect.left + G, FRect.bottom - 1);
    HDC Context = FCanvas->BareHandle();
    if (FSelected)
        TSolidFill(Context).Fill(Box, clMenu);
    else
        FillDithered(Context, Box);
    DrawFrame(clBtnShadow, clBtnHighlight);
    // The caption stands on this colour.
    FCanvas->Brush->Color = FSelected ? clHighlight : clMenu;
    if (!FItem->RadioItem)
        Mark.Draw(Context, FRect.left + 1 + (G - Mark.Width()) / 2, FRect.top + 2 + (G - Mark.Height()) / 2);
}

void TOfficeItemPainter::DrawGlyph(const TOfficeGlyphs& Source)
{
    const int X = FRect.left + 1;
    const int Y = FRect.top + 1;
    if (Source.Glyphs)
        Source.Glyphs->DrawCenter(FCanvas, {X, Y, FRect.left + G, FRect.top + G}, Index());
    else
        TImageCells::Of(Source.Images).Draw(FCanvas->BareHandle(), X, Y, Index());
}

// The highlight is where the glyph would be, the shadow one pixel to the upper left of it.
void TOfficeItemPainter::DrawEmbossedGlyph(const TOfficeGlyphs& Source)
{
    const TSize Size = Source.Glyphs ? TSize(Source.Glyphs->Width, Source.Glyphs->Height)
                                     : TSize(Source.Images->Width, Source.Images->Height);
    const int X = FRect.left + (G - Size.cx) / 2 - 1;
    const int Y = FRect.top + (G - Size.cy) / 2 - 1;
    if (Source.Glyphs)
        Source.Glyphs->DrawEmbossed(FCanvas, X, Y, Index());
    else
        TImageCells::Of(Source.Images).DrawEmbossed(FCanvas->BareHandle(), X, Y, Index());
}

// The item's, as high as the caption.
TRect TOfficeItemPainter::TextRect()
{
    TRect R = FRect;
    InflateRect(R, 0, -(R.Height() - FCanvas->TextHeight(FItem->Caption)) / 2);
    return R;
}

void TOfficeItemPainter::DrawCaption()
{
    TRect R = TextRect();
    OffsetRect(R, G + TextGap, 0);
    if (!FGrayed) {
        DrawText(FItem->Caption, R, FTextColor, DT_VCENTER);
        return;
    }
    FCanvas->Brush->Style = bsClear;
    DrawDisabledText(FCanvas->Handle, FItem->Caption, R, DT_VCENTER);
    FTextColor = clBtnShadow;
}

void TOfficeItemPainter::DrawShortCut()
{
    TRect R = TextRect();
    OffsetRect(R, -G, 0);
    DrawText(ShortCutToText(FItem->ShortCut), R, FTextColor, DT_RIGHT | DT_VCENTER);
}

void TOfficeItemPainter::DrawText(const AnsiString& Text, TRect R, TColor Color, unsigned Flags)
{
    FCanvas->Font->Color = Color;
    ::DrawText(FCanvas->Handle, Text, R, Flags);
}
