#include "common/FormPosition.h"

#include "common/CaptionInSight.h"
#include "common/Settings.h"

namespace {

bool PositionsAreKept()
{
    return ReadBool("Configuration", "SaveWindowPos", true);
}

AnsiString SectionOf(const AnsiString& FormName)
{
    return "Windows\\" + FormName;
}

} // namespace

TFormPosition::TFormPosition(const TForm& Form)
    : Left(Form.Left),
      Top(Form.Top),
      Width(Form.Width),
      Height(Form.Height),
      WindowState(Form.WindowState),
      FormName(Form.Name)
{}

void SaveFormPosition(const TFormPosition& Position)
{
    if (!PositionsAreKept())
        return;
    const AnsiString Section = SectionOf(Position.FormName);
    WriteBool(Section, "Minimized", Position.WindowState == wsMinimized);
    if (Position.WindowState == wsMinimized)
        return;
    WriteBool(Section, "Maximized", Position.WindowState == wsMaximized);
    if (Position.WindowState == wsMaximized)
        return;
    WriteInteger(Section, "Left", Position.Left);
    WriteInteger(Section, "Top", Position.Top);
    WriteInteger(Section, "Width", Position.Width);
    WriteInteger(Section, "Height", Position.Height);
}

void SaveFormPosition(TForm* Form)
{
    SaveFormPosition(TFormPosition(*Form));
}

void RestoreFormPosition(TForm* Form)
{
    if (!PositionsAreKept())
        return;
    const AnsiString Section = SectionOf(Form->Name);
    Form->Left = ReadInteger(Section, "Left", Form->Left);
    Form->Top = ReadInteger(Section, "Top", Form->Top);
    Form->Width = ReadInteger(Section, "Width", Form->Width);
    Form->Height = ReadInteger(Section, "Height", Form->Height);
    BringCaptionInSight(*Form, GetSystemMetrics(SM_CYCAPTION));
    if (ReadBool(Section, "Minimized", false))
        Form->WindowState = wsMinimized;
    if (ReadBool(Section, "Maximized", false))
        Form->WindowState = wsMaximized;
}
