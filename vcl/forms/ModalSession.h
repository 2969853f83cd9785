// TModalSession: a form is shown modally. What it changes for that (the other windows, the cursor, what is active) is
// put right once, at the end of its life.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/forms/FormTypes.h"
#include "vcl/forms/ModalWindows.h"

class TModalSession {
public:
    explicit TModalSession(TCustomForm* Form);
    ~TModalSession();
    TModalSession(const TModalSession&) = delete;

    // Shows the form and handles messages until ModalResult is set. mrCancel when the form has lost its window, has
    // been deleted, or the program ends.
    TModalResult Run();

private:
    void StandAbove();
    void CloseForm();

    TComponentRef<TCustomForm> FForm;
    HWND FActive; // what had the keyboard before
    HWND FFocus;
    TModalWindows FOthers;
    TCursor FCursor;
    HWND FOwner = nullptr; // of the form's window
};
