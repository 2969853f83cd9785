#include "common/SavePos.h"

#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Guard.h"

void TkelSavePos::Describe(TClassBuilder<TkelSavePos>&)
{}

TkelSavePos::TkelSavePos(TComponent* AOwner) : TComponent(AOwner)
{
    if (IsDesigning())
        return;
    if (auto* Form = As<TForm>(Owner))
        RestoreFormPosition(Form);
    FWindow = AllocateHWnd({this, &TkelSavePos::WndProc});
}

TkelSavePos::~TkelSavePos()
{
    DeallocateHWnd(FWindow);
    if (IsDesigning())
        return;
    // Nothing may leave a destructor.
    Guarded(nullptr, [this] { SaveFormPosition(FPosition); });
}

// A form whose destructors run is no TForm any more, and is left alone.
void TkelSavePos::WndProc(TMessage&)
{
    if (IsDesigning())
        return;
    if (auto* Form = As<TForm>(Owner))
        FPosition = TFormPosition(*Form);
}
