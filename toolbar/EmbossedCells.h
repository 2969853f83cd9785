// TEmbossedCells: the cells of a picture as disabled buttons show them, ready to draw.
//
// Of each cell only the black pixels are left, as TEmbossing draws them. The highlight may reach one pixel beyond the
// cell's right and bottom edge.
#pragma once

#include "vcl/graphics/Embossing.h"

// Equal cells in rows and columns, numbered row by row from 0.
struct TCellGrid {
    int Cols = 1;
    int Rows = 1;
    int CellWidth = 0;
    int CellHeight = 0;

    bool Contains(int Index) const { return Index >= 0 && Index / Cols < Rows && CellWidth > 0 && CellHeight > 0; }
    TRect Cell(int Index) const { return CellAt(Index, CellWidth, CellHeight); }
    TRect CellAt(int Index, int Width, int Height) const
    {
        return Bounds(Index % Cols * Width, Index / Cols * Height, Width, Height);
    }

    friend bool operator==(const TCellGrid& A, const TCellGrid& B) = default;
};

class TEmbossedCells {
public:
    // The cells of Picture, all of which lie inside of it.
    TEmbossedCells(TBitmap* Picture, const TCellGrid& Grid);
    // Empty cells, which SetCell fills.
    explicit TEmbossedCells(const TCellGrid& Grid);

    // Source is the cell's first pixel, in rows of SourceWidth; Index is one of the grid's.
    void SetCell(int Index, const uint32_t* Source, int SourceWidth);
    // Made for this grid and in the system's present colours.
    bool IsCurrent(const TCellGrid& Grid) const;
    // With the cell's upper left corner at X, Y. An index outside of the grid draws nothing.
    void Draw(HDC Target, int X, int Y, int Index) const;

private:
    TCellGrid FGrid;
    TEmbossing FEmbossing;
    TMaskedImage FImage;
};
