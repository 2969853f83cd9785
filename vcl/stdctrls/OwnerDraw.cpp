#include "vcl/stdctrls/OwnerDraw.h"

#include "vcl/system/Message.h"

TItemDrawing::TItemDrawing(TComponent* List, TCanvas& Canvas, TMessage& Message, TFont* Font, TColor Color)
    : FList(List),
      FCanvas(Canvas),
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
    if (FList) {
        // The canvas has lost its context when the list has left its window.
        if (FCanvas.HandleAllocated() && State().Contains(odFocused))
            FCanvas.DrawFocusRect(Rect());
        FCanvas.Handle = nullptr;
    }
    RestoreDC(FItem.hDC, FSaved);
}
