#include "vcl/stdctrls/OwnerDraw.h"

#include "vcl/system/Message.h"

TItemDrawing::TItemDrawing(TCanvas& Canvas, TMessage& Message, TFont* Font, TColor Color)
    : FCanvas(Canvas),
      FItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(Message.LParam)),
      FSaved(SaveDC(FItem.hDC))
{
    FCanvas.Handle = FItem.hDC;
    FCanvas.Font = Font;
    FCanvas.Brush->Color = Color;
    FCanvas.Brush->Style = bsSolid;
    if (Index() >= 0 && State().Contains(odSelected)) {
        FCanvas.Brush->Color = clHighlight;
        FCanvas.Font->Color = clHighlightText;
    }
}

TItemDrawing::~TItemDrawing()
{
    if (State().Contains(odFocused))
        FCanvas.DrawFocusRect(Rect());
    FCanvas.Handle = nullptr;
    RestoreDC(FItem.hDC, FSaved);
}
