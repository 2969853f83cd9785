#include "vcl/controls/GraphicControl.h"

#include "vcl/system/ClassBuilder.h"

void TGraphicControl::Describe(TClassBuilder<TGraphicControl>& Class)
{
    Class.Message<&Self::WMPaint>(WM_PAINT);
}

TGraphicControl::TGraphicControl(TComponent* AOwner) : TControl(AOwner)
{}

TGraphicControl::~TGraphicControl()
{
    if (!FCanvasPasses)
        delete FCanvas;
}

TCanvas* TGraphicControl::GetCanvas()
{
    if (!FCanvas)
        FCanvas = new TControlCanvas(this);
    return FCanvas;
}

void TGraphicControl::WMPaint(TMessage& Message)
{
    auto DC = reinterpret_cast<HDC>(Message.WParam);
    if (!DC)
        return;
    if (FCanvas) {
        FCanvas->FreeHandle();
        PaintOn(*FCanvas, DC);
        return;
    }
    TControlCanvas Passing(this);
    FCanvas = &Passing;
    FCanvasPasses = true;
    const auto Return = [this] {
        FCanvas = nullptr;
        FCanvasPasses = false;
    };
    try {
        PaintOn(Passing, DC);
    } catch (...) {
        Return();
        throw;
    }
    Return();
}

void TGraphicControl::PaintOn(TControlCanvas& Canvas, HDC DC)
{
    Canvas.SetHandle(DC);
    try {
        Paint();
    } catch (...) {
        Canvas.SetHandle(nullptr);
        throw;
    }
    Canvas.SetHandle(nullptr);
}
