#include "vcl/controls/GraphicControl.h"

#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

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
    const TStillThere Still(this);
    const TScopeExit Return([&] {
        if (!Still)
            return;
        FCanvas = nullptr;
        FCanvasPasses = false;
    });
    FCanvas = &Passing;
    FCanvasPasses = true;
    PaintOn(Passing, DC);
}

void TGraphicControl::PaintOn(TControlCanvas& Canvas, HDC DC)
{
    // Deleting the control deletes the canvas.
    const TStillThere Still(this);
    const TScopeExit End([&] {
        if (Still)
            Canvas.SetHandle(nullptr);
    });
    Canvas.SetHandle(DC);
    Paint();
}
