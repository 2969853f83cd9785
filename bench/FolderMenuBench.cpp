// folder_menu: from the popup of a folder menu with 1,000 files until the items that fit on the screen are drawn,
// against going through the folder and asking the shell for the icons of those items.
#include "bench/MenuTimer.h"
#include "menus/FolderMenu.h"
#include "tests/support/TestFolder.h"

namespace {

// The entries that have been drawn.
std::vector<AnsiString> Visible(TkelFolderMenu& Menu)
{
    std::vector<AnsiString> Paths;
    for (int I = 0; I < Menu.Items->Count; ++I)
        if (Menu.Items->Items[I]->Tag != 0 || I == 0)
            Paths.push_back(Menu.Items->Items[I]->Caption);
    return Paths;
}

double Ask(const AnsiString& Folder, const std::vector<AnsiString>& Paths)
{
    TStopwatch Watch;
    WIN32_FIND_DATAW Data;
    HANDLE Search = FindFirstFileW(TWideText(Folder + "*.*").c_str(), &Data);
    while (FindNextFileW(Search, &Data)) {
    }
    FindClose(Search);
    for (const AnsiString& Path : Paths) {
        SHFILEINFOW Info{};
        SHGetFileInfoW(TWideText(Path).c_str(), 0, &Info, sizeof Info, SHGFI_ICON);
        DestroyIcon(Info.hIcon);
    }
    return Watch.Microseconds();
}

} // namespace

FIGURE(folder_menu)
{
    const TTestFolder Folder;
    for (int I = 0; I < 1000; ++I)
        Folder.AddFile(Format("Report %.4d%s", I, I % 2 ? ".txt" : ".bmp"));
    TkelFolderMenu Menu(nullptr);
    Menu.Folder = Folder.Path();
    TMenuTimer Timer;
    const auto Open = [&] { return Timer.Time([&] { Menu.Popup(10, 10); }); };
    Open();
    const std::vector<AnsiString> Drawn = Visible(Menu);
    const TMeasure Measure = Compare(Open, [&] { return Ask(Folder.Path(), Drawn); }, 15);
    PrintFigure("folder_menu", Measure.Value / 1000, "ms", Measure.Baseline / 1000);
}
