#include "toolbar/Glyphs.h"

#include "vcl/graphics/MaskedImage.h"
#include "vcl/system/ClassBuilder.h"

void TkelGlyphs::Describe(TClassBuilder<TkelGlyphs>& Class)
{
    Class.Property<&Self::GetCols, &Self::SetCols>("Cols").Default(1);
    Class.Property<&Self::GetHeight, &Self::SetHeight>("Height").NotStored();
    Class.Value<&Self::Masked>("Masked").Default(true);
    Class.Property<&Self::GetRows, &Self::SetRows>("Rows").Default(1);
    Class.Property<&Self::GetPicture, &Self::SetPicture>("Picture");
    Class.Value<&Self::MaskColor>("MaskColor").Stored<&Self::IsMaskStored>();
    Class.Property<&Self::GetWidth, &Self::SetWidth>("Width").NotStored();
    Class.Event<&Self::OnChange>("OnChange");
}

TkelGlyphs::TkelGlyphs(TComponent* AOwner) : TComponent(AOwner)
{
    FPicture.OnChange = {this, &TkelGlyphs::PictureChanged};
}

TkelGlyphs::~TkelGlyphs()
{
    FPicture.OnChange = nullptr;
}

void TkelGlyphs::SetWidth(int Value)
{
    if (Value > 0 && FPicture.Width / Value > 0)
        FCols = FPicture.Width / Value;
}

void TkelGlyphs::SetHeight(int Value)
{
    if (Value > 0 && FPicture.Height / Value > 0)
        FRows = FPicture.Height / Value;
}

void TkelGlyphs::LoadBitmapRes(HINSTANCE Instance, const AnsiString& ResName)
{
    TBitmap Bitmap;
    Bitmap.LoadFromResourceName(Instance, ResName);
    FPicture.Assign(&Bitmap);
}

TColor TkelGlyphs::GetDefaultMaskColor()
{
    auto* Bitmap = As<TBitmap>(FPicture.Graphic);
    return Bitmap ? TColor(Bitmap->TransparentColor & ~PaletteRelative) : clOlive;
}

void TkelGlyphs::PictureChanged(TObject*)
{
    FEmbossed.reset();
    MaskColor = GetDefaultMaskColor();
    if (!IsLoading())
        Changed();
}

TBitmap* TkelGlyphs::AsBitmap(TBitmap& Scratch)
{
    if (auto* Bitmap = As<TBitmap>(FPicture.Graphic))
        return Bitmap;
    Scratch.SetSize(FPicture.Width, FPicture.Height);
    Scratch.Canvas->Draw(0, 0, FPicture.Graphic);
    return &Scratch;
}

TBitmap* TkelGlyphs::GetCell(int Index)
{
    TBitmap Scratch;
    CopyCell(AsBitmap(Scratch), Index);
    return &FCell;
}

void TkelGlyphs::CopyCell(TBitmap* Source, int Index)
{
    const TCellGrid Cells = Grid();
    const TRect Dest(0, 0, Cells.CellWidth, Cells.CellHeight);
    Index = std::max(Index, 0);
    FCell.SetSize(Cells.CellWidth, Cells.CellHeight);
    if (Cells.Contains(Index)) {
        FCell.Canvas->CopyRect(Dest, Source->Canvas, Cells.Cell(Index));
        return;
    }
    FCell.Canvas->Brush->Color = MaskColor == clNone ? clWhite : MaskColor;
    FCell.Canvas->FillRect(Dest);
}

void TkelGlyphs::Draw(TCanvas* Canvas, int X, int Y, int Index)
{
    TGraphic* Graphic = FPicture.Graphic;
    if (!Graphic || Graphic->Empty)
        return;
    auto* Bitmap = As<TBitmap>(Graphic);
    if (Index >= 0 && Bitmap)
        DrawBitmapCell(Canvas, X, Y, Bitmap, Index);
    else if (Index >= 0)
        DrawClipped(Canvas, X, Y, Graphic, Index);
    else if (Bitmap && IsMasked())
        DrawBitmapTransparent(Canvas, X, Y, Bitmap, MaskColor);
    else
        Canvas->Draw(X, Y, Graphic);
}

void TkelGlyphs::DrawBitmapCell(TCanvas* Canvas, int X, int Y, TBitmap* Bitmap, int Index)
{
    const TCellGrid Cells = Grid();
    if (Cells.Contains(Index))
        Bitmap->Masked(IsMasked() ? MaskColor : clNone).Draw(Canvas->BareHandle(), X, Y, Cells.Cell(Index));
    else if (!IsMasked())
        Canvas->Draw(X, Y, GetCell(Index));
}

// The graphic draws itself, shifted so that only the cell shows: that keeps what is transparent in it.
void TkelGlyphs::DrawClipped(TCanvas* Canvas, int X, int Y, TGraphic* Graphic, int Index)
{
    if (!Grid().Contains(Index))
        return;
    const TRect Cell = Grid().Cell(Index);
    HDC Context = Canvas->BareHandle();
    const int Saved = SaveDC(Context);
    IntersectClipRect(Context, X, Y, X + Cell.Width(), Y + Cell.Height());
    Canvas->Draw(X - Cell.left, Y - Cell.top, Graphic);
    RestoreDC(Context, Saved);
}

void TkelGlyphs::DrawCenter(TCanvas* Canvas, const TRect& Rect, int Index)
{
    Draw(Canvas, (Rect.left + Rect.right - GetWidth()) / 2, (Rect.top + Rect.bottom - GetHeight()) / 2, Index);
}

void TkelGlyphs::DrawEmbossed(TCanvas* Canvas, int X, int Y, int Index)
{
    const TCellGrid Cells = Grid();
    Index = std::max(Index, 0);
    if (!Cells.Contains(Index))
        return;
    if (!FEmbossed || !FEmbossed->IsCurrent(Cells)) {
        TBitmap Scratch;
        FEmbossed = std::make_unique<TEmbossedCells>(AsBitmap(Scratch), Cells);
    }
    FEmbossed->Draw(Canvas->BareHandle(), X, Y, Index);
}
