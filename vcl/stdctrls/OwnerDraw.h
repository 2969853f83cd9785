// TItemDrawing: what a list is asked to draw.
#pragma once

#include "vcl/classes/StillThere.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/stdctrls/StdTypes.h"

// Prepares a canvas for the item that a CN_DRAWITEM message is about, as long as it lives: the item's context, the
// font and the colours, those of a selection where the item is selected. Draws the focus frame at its end, unless the
// list, which the canvas belongs to, was deleted.
class TItemDrawing {
public:
    TItemDrawing(TComponent* List, TCanvas& Canvas, TMessage& Message, TFont* Font, TColor Color);
    ~TItemDrawing();
    TItemDrawing(const TItemDrawing&) = delete;

    // -1: there is no item.
    int Index() const { return static_cast<int>(FItem.itemID); }
    TRect Rect() const { return FItem.rcItem; }
    TOwnerDrawState State() const { return OwnerDrawState(FItem.itemState); }

private:
    TStillThere FList;
    TCanvas& FCanvas;
    const DRAWITEMSTRUCT& FItem;
    int FSaved;
};
