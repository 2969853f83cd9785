#include "common/MessageBoxes.h"

#include "vcl/forms/Application.h"

void MsgText(const AnsiString& Text)
{
    Application->MessageBox(Text, "Message", MB_OK | MB_ICONINFORMATION);
}

void MsgError(const AnsiString& Text)
{
    Application->MessageBox(Text, "Error", MB_OK | MB_ICONSTOP);
}

void MsgStop(const AnsiString& Text)
{
    Application->MessageBox(Text, "Stop", MB_OK | MB_ICONSTOP);
}

void MsgWarning(const AnsiString& Text)
{
    Application->MessageBox(Text, "Warning", MB_OK | MB_ICONWARNING);
}

int MsgYesNo(const AnsiString& Text)
{
    return Application->MessageBox(Text, "Question", MB_YESNO | MB_ICONQUESTION);
}

int MsgOkCancel(const AnsiString& Text)
{
    return Application->MessageBox(Text, "Question", MB_OKCANCEL | MB_ICONQUESTION);
}

int MsgYesNoCancel(const AnsiString& Text)
{
    return Application->MessageBox(Text, "Question", MB_YESNOCANCEL | MB_ICONQUESTION);
}
