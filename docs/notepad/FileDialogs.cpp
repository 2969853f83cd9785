#include "FileDialogs.h"

namespace {

AnsiString Ask(TForm* Owner, const AnsiString& Suggestion, BOOL(WINAPI* Dialog)(OPENFILENAMEW*), DWORD Flags)
{
    wchar_t Path[MAX_PATH] = {};
    lstrcpynW(Path, TWideText(Suggestion).c_str(), MAX_PATH);
    OPENFILENAMEW Request = {};
    Request.lStructSize = sizeof Request;
    Request.hwndOwner = Owner->Handle;
    Request.lpstrFilter = L"Texts (*.txt)\0*.txt\0All files\0*.*\0";
    Request.lpstrFile = Path;
    Request.nMaxFile = MAX_PATH;
    Request.lpstrDefExt = L"txt";
    Request.Flags = Flags | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
    return Dialog(&Request) ? FromWide(Path) : "";
}

} // namespace

AnsiString AskForFileToOpen(TForm* Owner)
{
    return Ask(Owner, "", &GetOpenFileNameW, OFN_FILEMUSTEXIST);
}

AnsiString AskForFileToSave(TForm* Owner, const AnsiString& Suggestion)
{
    return Ask(Owner, Suggestion, &GetSaveFileNameW, OFN_OVERWRITEPROMPT);
}
