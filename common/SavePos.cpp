#include "common/SavePos.h"

#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Guard.h"

void TkelSavePos::Describe(TClassBuilder<TkelSavePos>&)
{}

TkelSavePos::TkelSavePos(TComponent* AOwner) : TComponent(AOwner)
{
    if (IsDesigning())
        return;
    auto* Form = As<TForm>(Owner);
    if (Form)
        RestoreFormPosition(Form);
    FWindow = AllocateHWnd({this, &TkelSavePos::WndProc});
    if (Form)
        FHook.Install(Form, {this, &TkelSavePos::FormWndProc});
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
void TkelSavePos::WndProc(TMessage& Message)
{
    if (Message.Msg == WM_QUERYENDSESSION)
        Message.Result = 1;
    if (IsDesigning())
        return;
    if (auto* Form = As<TForm>(Owner))
        FPosition = TFormPosition(*Form);
}

// Modal forms come and go while the program stays active: nothing else would tell of them.
void TkelSavePos::FormWndProc(TMessage& Message, const TWndMethod& Next)
{
    const TStillThere IsHere(this);
    const bool Changes = Message.Msg == WM_MOVE || Message.Msg == WM_SIZE || Message.Msg == CM_SHOWINGCHANGED;
    Next(Message);
    if (Changes && IsHere)
        SendMessageW(FWindow, WM_NULL, 0, 0);
}
