#include "vcl/controls/CustomControl.h"

#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

void TCustomControl::Describe(TClassBuilder<TCustomControl>&)
{}

TCustomControl::TCustomControl(TComponent* AOwner) : TWinControl(AOwner), FCanvas(this)
{}

TCustomControl::~TCustomControl() = default;

void TCustomControl::PaintWindow(HDC DC)
{
    FCanvas.FreeHandle();
    const TStillThere Still(this);
    const TScopeExit End([&] {
        if (Still)
            FCanvas.SetHandle(nullptr);
    });
    FCanvas.SetHandle(DC);
    Paint();
}
