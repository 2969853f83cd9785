#include "vcl/controls/CustomControl.h"

#include "vcl/system/ClassBuilder.h"

void TCustomControl::Describe(TClassBuilder<TCustomControl>&)
{}

TCustomControl::TCustomControl(TComponent* AOwner) : TWinControl(AOwner), FCanvas(this)
{}

TCustomControl::~TCustomControl() = default;

void TCustomControl::PaintWindow(HDC DC)
{
    FCanvas.FreeHandle();
    FCanvas.SetHandle(DC);
    Paint();
    FCanvas.SetHandle(nullptr);
}
