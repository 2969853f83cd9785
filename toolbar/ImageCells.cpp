#include "toolbar/ImageCells.h"

#include "vcl/system/ClassBuilder.h"

void TImageCells::Describe(TClassBuilder<TImageCells>&)
{}

TImageCells& TImageCells::Of(TCustomImageList* List)
{
    for (int I = 0; I < List->ComponentCount; ++I)
        if (auto* Cells = As<TImageCells>(List->Components[I]))
            return *Cells;
    return *new TImageCells(List);
}

TImageCells::TImageCells(TCustomImageList* List) : TComponent(List), FList(List)
{
    FLink.OnChange = {this, &TImageCells::ListChanged};
    List->RegisterChanges(&FLink);
}

void TImageCells::ListChanged(TObject*)
{
    FImages = TMaskedImage();
    FEmbossed.reset();
}

void TImageCells::CopyImages(TBitmap* Strip)
{
    const TCellGrid Cells = Grid();
    Strip->SetSize(Cells.Cols * Cells.CellWidth, Cells.CellHeight);
    TBitmap Image;
    for (int I = 0; I < Cells.Cols; ++I) {
        FList->GetBitmap(I, &Image);
        Strip->Canvas->Draw(I * Cells.CellWidth, 0, &Image);
    }
}

void TImageCells::Prepare()
{
    TBitmap Strip;
    CopyImages(&Strip);
    TMaskedImage Source(&Strip, clNone);
    FImages = ClearImage(Source.Width(), Source.Height());

    const TCellGrid Cells = Grid();
    const int Width = Source.Width();
    for (int I = 0; I < Cells.Cols; ++I) {
        const int Left = I * Cells.CellWidth;
        const uint32_t Background = Source.Pixels()[(Cells.CellHeight - 1) * Width + Left];
        for (int Y = 0; Y < Cells.CellHeight; ++Y)
            for (int X = Left; X < Left + Cells.CellWidth; ++X)
                if (const uint32_t Pixel = Source.Pixels()[Y * Width + X]; Pixel != Background)
                    FImages.Pixels()[Y * Width + X] = Pixel;
    }
}

void TImageCells::Draw(HDC Target, int X, int Y, int Index)
{
    const TCellGrid Cells = Grid();
    if (Index < 0 || Index >= Cells.Cols)
        return;
    if (FImages.Empty())
        Prepare();
    FImages.Draw(Target, X, Y, Cells.Cell(Index));
}

void TImageCells::DrawEmbossed(HDC Target, int X, int Y, int Index)
{
    const TCellGrid Cells = Grid();
    if (Index < 0 || Index >= Cells.Cols)
        return;
    if (!FEmbossed || !FEmbossed->IsCurrent(Cells)) {
        TBitmap Strip;
        CopyImages(&Strip);
        FEmbossed = std::make_unique<TEmbossedCells>(&Strip, Cells);
    }
    FEmbossed->Draw(Target, X, Y, Index);
}
