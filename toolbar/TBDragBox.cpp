#include "toolbar/TBDragBox.h"

#include "vcl/graphics/SolidFill.h"
#include "vcl/system/ClassBuilder.h"

namespace {

// Where the ridges begin, from the edge along the bar. Each is three pixels thick: light, face, dark.
constexpr int Ridges[] = {2, 5};

void DrawHorizontalRidge(TSolidFill& Fill, int Top, int Width)
{
    Fill.Fill({0, Top + 1, 1, Top + 2}, clBtnHighlight);
    Fill.Fill({0, Top, Width, Top + 1}, clBtnHighlight);
    Fill.Fill({Width - 1, Top + 1, Width, Top + 2}, clBtnShadow);
    Fill.Fill({0, Top + 2, Width, Top + 3}, clBtnShadow);
}

void DrawVerticalRidge(TSolidFill& Fill, int Left, int Height)
{
    Fill.Fill({Left + 1, 0, Left + 2, 1}, clBtnHighlight);
    Fill.Fill({Left, 0, Left + 1, Height}, clBtnHighlight);
    Fill.Fill({Left + 1, Height - 1, Left + 2, Height}, clBtnShadow);
    Fill.Fill({Left + 2, 0, Left + 3, Height}, clBtnShadow);
}

} // namespace

void TkelTBDragBox::Describe(TClassBuilder<TkelTBDragBox>& Class)
{
    Class.PublishAll("Align", "Width", "Height");
}

TkelTBDragBox::TkelTBDragBox(TComponent* AOwner) : TTBHandle(AOwner, 12)
{}

void TkelTBDragBox::Paint()
{
    TSolidFill Fill(Canvas->BareHandle());
    Fill.Fill({0, 0, Width, Height}, clBtnFace);
    for (int Start : Ridges)
        if (Align == alTop || Align == alBottom)
            DrawHorizontalRidge(Fill, Start, Width);
        else if (Align == alLeft || Align == alRight)
            DrawVerticalRidge(Fill, Start, Height);
}
