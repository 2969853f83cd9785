#include "toolbar/TBSeparator.h"

#include "vcl/graphics/SolidFill.h"
#include "vcl/system/ClassBuilder.h"

void TkelTBSeparator::Describe(TClassBuilder<TkelTBSeparator>& Class)
{
    Class.PublishAll("Align", "Width", "Height");
}

TkelTBSeparator::TkelTBSeparator(TComponent* AOwner) : TTBHandle(AOwner, 8)
{}

void TkelTBSeparator::Paint()
{
    TSolidFill Fill(Canvas->BareHandle());
    Fill.Fill({0, 0, Width, Height}, clBtnFace);
    const int MiddleX = Width / 2;
    const int MiddleY = Height / 2;
    if (Align == alTop || Align == alBottom) {
        Fill.Fill({0, MiddleY - 1, Width, MiddleY}, clBtnShadow);
        Fill.Fill({0, MiddleY, Width, MiddleY + 1}, clBtnHighlight);
    } else if (Align == alLeft || Align == alRight) {
        Fill.Fill({MiddleX - 1, 0, MiddleX, Height}, clBtnShadow);
        Fill.Fill({MiddleX, 0, MiddleX + 1, Height}, clBtnHighlight);
    }
    if (IsDesigning()) {
        Canvas->Brush->Style = bsClear;
        Canvas->Pen->Style = psDot;
        Canvas->Pen->Color = clBtnShadow;
        Canvas->Rectangle(0, 0, Width, Height);
    }
}
