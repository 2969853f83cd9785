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

void TImageCells::Prepare(int Index)
{
    const TCellGrid Cells = Grid();
    if (FImages.Empty()) {
        FImages = TMaskedImage(Cells.Cols * Cells.CellWidth, Cells.CellHeight);
        FIsPrepared.assign(static_cast<size_t>(Cells.Cols), false);
    }
    if (FIsPrepared[static_cast<size_t>(Index)])
        return;
    FIsPrepared[static_cast<size_t>(Index)] = true;

    TBitmap Image;
    FList->GetBitmap(Index, &Image);
    TMaskedImage Source(&Image, clNone);
    const uint32_t Background = Source.Pixels()[(Cells.CellHeight - 1) * Cells.CellWidth];
    for (int Y = 0; Y < Cells.CellHeight; ++Y)
        for (int X = 0; X < Cells.CellWidth; ++X)
            if (const uint32_t Pixel = Source.Pixels()[Y * Cells.CellWidth + X]; Pixel != Background)
                FImages.Pixels()[Y * FImages.Width() + Index * Cells.CellWidth + X] = Pixel;
}

void TImageCells::PrepareEmbossed(int Index)
{
    const TCellGrid Cells = Grid();
    if (!FEmbossed || !FEmbossed->IsCurrent(Cells)) {
        FEmbossed = std::make_unique<TEmbossedCells>(Cells);
        FIsEmbossed.assign(static_cast<size_t>(Cells.Cols), false);
    }
    if (FIsEmbossed[static_cast<size_t>(Index)])
        return;
    FIsEmbossed[static_cast<size_t>(Index)] = true;

    TBitmap Image;
    FList->GetBitmap(Index, &Image);
    TMaskedImage Source(&Image, clNone);
    FEmbossed->SetCell(Index, Source.Pixels(), Source.Width());
}

void TImageCells::Draw(HDC Target, int X, int Y, int Index)
{
    const TCellGrid Cells = Grid();
    if (Index < 0 || Index >= Cells.Cols)
        return;
    Prepare(Index);
    FImages.Draw(Target, X, Y, Cells.Cell(Index));
}

void TImageCells::DrawEmbossed(HDC Target, int X, int Y, int Index)
{
    if (Index < 0 || Index >= FList->Count)
        return;
    PrepareEmbossed(Index);
    FEmbossed->Draw(Target, X, Y, Index);
}
