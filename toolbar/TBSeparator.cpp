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
    if (Align == alTop || Align == alBottom)
        Fill.EtchedLine(0, Width, Height / 2 - 1);
    else if (Align == alLeft || Align == alRight)
        Fill.VerticalEtchedLine(Width / 2 - 1, 0, Height);
    if (IsDesigning()) {
        Canvas->Brush->Style = bsClear;
        Canvas->Pen->Style = psDot;
        Canvas->Pen->Color = clBtnShadow;
        Canvas->Rectangle(0, 0, Width, Height);
    }
}
