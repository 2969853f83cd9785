// TkelGlyphs: one picture cut into equal cells, the glyphs of a whole tool bar.
//
// Buttons, tool bar items and menus refer to a strip and a cell number instead of owning a bitmap each.
#pragma once

#include "toolbar/DrawBitmapTransparent.h"
#include "toolbar/EmbossedCells.h"
#include "vcl/classes/Component.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/Picture.h"

// From 1 up.
using TCellRange = int;

class TkelGlyphs : public TComponent {
    VCL_CLASS(TkelGlyphs, TComponent)
public:
    explicit TkelGlyphs(TComponent* AOwner);
    ~TkelGlyphs() override;

    // How many cells lie side by side and one above the other. Values below 1 count as 1. What remains of the picture
    // at its right and bottom edge is part of no cell.
    TCellRange GetCols() const { return FCols; }
    void SetCols(TCellRange Value) { FCols = std::max(Value, 1); }
    PROPERTY(TCellRange, Cols);
    TCellRange GetRows() const { return FRows; }
    void SetRows(TCellRange Value) { FRows = std::max(Value, 1); }
    PROPERTY(TCellRange, Rows);
    // The size of one cell in pixels. Setting it divides the picture anew; sizes below 1 and sizes larger than the
    // picture are ignored.
    int GetHeight() const { return FPicture.Height / FRows; }
    void SetHeight(int Value);
    PROPERTY(int, Height);
    int GetWidth() const { return FPicture.Width / FCols; }
    void SetWidth(int Value);
    PROPERTY(int, Width);

    // The whole strip, the component's own; setting copies. Every change of it resets MaskColor and raises OnChange.
    TPicture* GetPicture() { return &FPicture; }
    void SetPicture(TPicture* Value) { FPicture.Assign(Value); }
    PROPERTY(TPicture*, Picture);
    // Whether bitmaps are drawn without the pixels of MaskColor. Icons and metafiles know themselves what is
    // transparent.
    bool Masked = true;
    // clNone: draws opaque.
    TColor MaskColor = clOlive;

    // The picture changed, but not because a form is being read. The other properties raise nothing.
    TNotifyEvent OnChange;

    // A copy of one cell: the strip's own, and overwritten by the next call. A negative index is cell 0; one behind the
    // last cell gives a cell without a picture, filled with MaskColor (white when that is clNone).
    TBitmap* GetCell(int Index);
    // Draws a cell with its upper left corner at X, Y; the whole picture when Index is negative. An index behind the
    // last cell draws the empty cell of GetCell. Costs one blit.
    void Draw(TCanvas* Canvas, int X, int Y, int Index);
    // The cell in the middle of Rect.
    void DrawCenter(TCanvas* Canvas, const TRect& Rect, int Index);
    // The cell as disabled buttons show it, see TEmbossedCells. A negative index is cell 0.
    void DrawEmbossed(TCanvas* Canvas, int X, int Y, int Index);
    // Raises EResNotFound "Resource %s not found" and then leaves the picture as it was.
    void LoadBitmapRes(HINSTANCE Instance, const AnsiString& ResName);
    // The transparent colour of the picture when it is a bitmap (that of its lower left pixel, mostly), else clOlive.
    TColor GetDefaultMaskColor();

protected:
    // Raises OnChange.
    virtual void Changed() { OnChange(this); }

private:
    bool IsMaskStored() { return MaskColor != GetDefaultMaskColor(); }
    void PictureChanged(TObject* Sender);
    bool IsMasked() const { return Masked && MaskColor != clNone; }
    TCellGrid Grid() const { return {FCols, FRows, GetWidth(), GetHeight()}; }
    // The picture when it is a bitmap; another graphic is drawn into Scratch.
    TBitmap* AsBitmap(TBitmap& Scratch);
    void DrawBitmapCell(TCanvas* Canvas, int X, int Y, TBitmap* Bitmap, int Index);
    void DrawClipped(TCanvas* Canvas, int X, int Y, TGraphic* Graphic, int Index);
    void CopyCell(TBitmap* Source, int Index);

    TPicture FPicture;
    TCellRange FRows = 1;
    TCellRange FCols = 1;
    TBitmap FCell;
    std::unique_ptr<TEmbossedCells> FEmbossed; // made when a disabled button first shows
};
