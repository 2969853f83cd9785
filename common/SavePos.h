// TkelSavePos: dropped on a form, it restores the form's place and window state when the form is created and saves them
// when the form is deleted; see FormPosition.h for what is kept.
//
// The form may be half gone when this component is deleted. What is saved is therefore how the form was when the last
// message came to a hidden window: such messages come whenever the program becomes active or inactive, and whenever the
// form is moved, resized or hidden.
#pragma once

#include "common/FormPosition.h"
#include "vcl/controls/WindowProcHook.h"
#include "vcl/menus/UtilityWindow.h"

class TkelSavePos : public TComponent {
    VCL_CLASS(TkelSavePos, TComponent)
public:
    // An owner that is no form is neither restored nor saved. In the designer nothing happens at all.
    explicit TkelSavePos(TComponent* AOwner);
    ~TkelSavePos() override;

protected:
    // What the hidden window gets. Every message is answered with 0; only the question whether the user's session may
    // end gets a yes.
    void WndProc(TMessage& Message);

private:
    void FormWndProc(TMessage& Message, const TWndMethod& Next);

    TFormPosition FPosition;
    TWindowProcHook FHook; // of the form
    HWND FWindow = nullptr;
};
