#include "vcl/controls/GraphicControl.h"

#include "vcl/system/ClassBuilder.h"

void TGraphicControl::Describe(TClassBuilder<TGraphicControl>& Class)
{
    Class.Message<&Self::WMPaint>(WM_PAINT);
}

TGraphicControl::TGraphicControl(TComponent* AOwner) : TControl(AOwner), FCanvas(this)
{}

TGraphicControl::~TGraphicControl() = default;

void TGraphicControl::WMPaint(TMessage& Message)
{
    auto DC = reinterpret_cast<HDC>(Message.WParam);
    if (!DC)
        return;
    FCanvas.FreeHandle();
    FCanvas.SetHandle(DC);
    Paint();
    FCanvas.SetHandle(nullptr);
}
