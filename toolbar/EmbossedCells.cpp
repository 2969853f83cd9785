#include "toolbar/EmbossedCells.h"

#include "vcl/graphics/Bitmap.h"

namespace {

constexpr uint32_t ColorBits = 0x00FFFFFF;
constexpr uint32_t Opaque = 0xFF000000;

uint32_t OpaquePixel(COLORREF Color)
{
    return Opaque | GetRValue(Color) << 16 | GetGValue(Color) << 8 | GetBValue(Color);
}

} // namespace

TEmbossedCells::TEmbossedCells(const TCellGrid& Grid)
    : FGrid(Grid),
      FShadow(ColorToRGB(clBtnShadow)),
      FHighlight(ColorToRGB(clBtnHighlight)),
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
    const uint32_t Shadow = OpaquePixel(FShadow);
    const uint32_t Highlight = OpaquePixel(FHighlight);
    const TRect Cell = FGrid.CellAt(Index, FGrid.CellWidth + 1, FGrid.CellHeight + 1);
    const int Width = FImage.Width();
    for (int Y = 0; Y < FGrid.CellHeight; ++Y)
        for (int X = 0; X < FGrid.CellWidth; ++X) {
            if (Source[Y * SourceWidth + X] & ColorBits)
                continue;
            // In this order: where two black pixels follow each other, the shadow of the second stays on top.
            uint32_t* Pixel = FImage.Pixels() + (Cell.top + Y) * Width + Cell.left + X;
            Pixel[Width + 1] = Highlight;
            *Pixel = Shadow;
        }
}

bool TEmbossedCells::IsCurrent(const TCellGrid& Grid) const
{
    return Grid == FGrid && FShadow == ColorToRGB(clBtnShadow) && FHighlight == ColorToRGB(clBtnHighlight);
}

void TEmbossedCells::Draw(HDC Target, int X, int Y, int Index) const
{
    if (FGrid.Contains(Index))
        FImage.Draw(Target, X, Y, FGrid.CellAt(Index, FGrid.CellWidth + 1, FGrid.CellHeight + 1));
}
