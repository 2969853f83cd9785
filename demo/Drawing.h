// TDrawing: a sheet of paper to draw on with the mouse. The tools are those of the program: one box for all sheets.
#pragma once

#include "vcl/extctrls/PaintBox.h"
#include "vcl/graphics/Bitmap.h"

// In the order of their glyphs.
enum TDrawingTool {
    dtPencil,
    dtBrush,
    dtEraser,
    dtFill,
    dtText,
    dtPickColor,
    dtLine,
    dtRectangle,
    dtRoundRectangle,
    dtEllipse,
};

struct TDrawingTools {
    TDrawingTool Tool = dtPencil;
    TColor LineColor = clBlack;
    TColor FillColor = clSkyBlue; // clNone: shapes are not filled
    TPenStyle LineStyle = psSolid;
    int LineWidth = 1; // in pixels of the sheet
    // What the text tool writes.
    AnsiString Text;
};

using TSharedPicture = std::shared_ptr<TBitmap>;

class TDrawing : public TObject {
public:
    // Draws in Paper, which has the size of the sheet. Both must live as long as the drawing is used.
    TDrawing(TPaintBox* Paper, TDrawingTools& Tools);

    // The picture as it is now, at first a sample; it is not changed any more.
    const TSharedPicture& GetPicture() const { return FPicture; }
    void SetPicture(TSharedPicture Value);
    PROPERTY(TSharedPicture, Picture);
    void Clear();

    // In per cent of the sheet's size.
    void SetZoom(int Value);

    // The picture has changed, by a stroke that is complete.
    TNotifyEvent OnChange;
    // The tool that picks colours has set LineColor.
    TNotifyEvent OnPick;

private:
    void PaperPaint(TObject* Sender);
    void PaperMouseDown(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);
    void PaperMouseMove(TObject* Sender, TShiftState Shift, int X, int Y);
    void PaperMouseUp(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y);

    bool DrawsFreely() const { return FTools.Tool <= dtEraser; }
    TPoint OnSheet(int X, int Y) const;
    TCanvas* BeginChange();
    void FinishChange();
    void ApplyTool(const TPoint& P);
    void DrawFreely(const TPoint& From, const TPoint& To);
    void DrawShape(TCanvas* Canvas, int Scale) const;
    void SetPens(TCanvas* Canvas, int Scale) const;

    TPaintBox* FPaper;
    TDrawingTools& FTools;
    TSize FSheet;
    TSharedPicture FPicture;
    TPoint FStart; // of the stroke, on the sheet
    TPoint FLast;  // where it is now
    int FZoom = 100;
    bool FDrawing = false; // the button is down
};
