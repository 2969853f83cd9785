// Message boxes of fixed kinds: a text, and what comes with it. The box is the application's; the forms are disabled
// while it shows. Texts may have any length.
#pragma once

#include "vcl/system/Object.h"

// With the button OK, and the icon and caption of the kind.
void MsgText(const AnsiString& Text);
void MsgError(const AnsiString& Text);
void MsgStop(const AnsiString& Text);
void MsgWarning(const AnsiString& Text);

// Questions. The result is the button's number: IDYES (6), IDNO (7), IDOK (1) or IDCANCEL (2); closing the box is
// Cancel where there is that button.
int MsgYesNo(const AnsiString& Text);
int MsgOkCancel(const AnsiString& Text);
int MsgYesNoCancel(const AnsiString& Text);
