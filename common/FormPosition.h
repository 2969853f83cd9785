// Where a form was and in which state, kept in the settings store in the section "Windows\" and the form's name.
// Nothing is saved or restored while the setting "SaveWindowPos" in the section "Configuration", which belongs to the
// application, is false.
#pragma once

#include "vcl/forms/Form.h"

// What is saved of a form. The bounds are those of Left, Top, Width and Height, in pixels.
struct TFormPosition {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    TWindowState WindowState = wsNormal;
    AnsiString FormName;

    TFormPosition() = default;
    explicit TFormPosition(const TForm& Form);
};

// A minimized form keeps the bounds and the maximized state that were saved before, a maximized one the bounds.
// Forms without a name share one record.
void SaveFormPosition(const TFormPosition& Position);
void SaveFormPosition(TForm* Form);

// What was never saved stays as it is. A form whose caption no display would show comes to the nearest one.
void RestoreFormPosition(TForm* Form);
