// What an owner-drawn menu says of an item's size, without a screen.
#pragma once

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/menus/MenuItem.h"

// Of a menu whose DoMeasureItem can be called.
template <class T>
TSize MeasureItem(T& Menu, TMenuItem* Item)
{
    TBitmap Scratch;
    int Width = 0;
    int Height = 0;
    Menu.DoMeasureItem(Item, Width, Height, Scratch.Canvas);
    return {Width, Height};
}

inline int TextWidth(const AnsiString& Text)
{
    TBitmap Scratch;
    return Scratch.Canvas->TextWidth(Text);
}
