#include "toolbar/EmbossedCells.h"

#include "vcl/graphics/Bitmap.h"

TEmbossedCells::TEmbossedCells(const TCellGrid& Grid)
    : FGrid(Grid),
      FImage(Grid.Cols * (Grid.CellWidth + 1), Grid.Rows * (Grid.CellHeight + 1))
{}

TEmbossedCells::TEmbossedCells(TBitmap* Picture, const TCellGrid& Grid) : TEmbossedCells(Grid)
{
    TMaskedImage Source(Picture, clNone);
    for (int Index = 0; Index < Grid.Cols * Grid.Rows; ++Index) {
        const TRect Cell = Grid.Cell(Index);
        SetCell(Index, Source.Pixels() + Cell.top * Source.Width() + Cell.left, Source.Width());
    }
}

void TEmbossedCells::SetCell(int Index, const uint32_t* Source, int SourceWidth)
{
    constexpr uint32_t ColorBits = 0x00FFFFFF;
    const TRect Cell = FGrid.CellAt(Index, FGrid.CellWidth + 1, FGrid.CellHeight + 1);
    FEmbossing.Stamp(FImage, Cell.left, Cell.top, Source, SourceWidth, {FGrid.CellWidth, FGrid.CellHeight},
                     [](uint32_t Pixel) { return (Pixel & ColorBits) == 0; });
}

bool TEmbossedCells::IsCurrent(const TCellGrid& Grid) const
{
    return Grid == FGrid && FEmbossing == TEmbossing();
}

void TEmbossedCells::Draw(HDC Target, int X, int Y, int Index) const
{
    if (FGrid.Contains(Index))
        FImage.Draw(Target, X, Y, FGrid.CellAt(Index, FGrid.CellWidth + 1, FGrid.CellHeight + 1));
}
