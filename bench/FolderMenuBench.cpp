// folder_menu: from the popup of a folder menu with 1,000 files until the items that fit on the screen are drawn,
// against going through the folder and asking the shell for the icons of those items.
#include "bench/Bench.h"
#include "menus/FolderMenu.h"
#include "tests/support/TestFolder.h"
#include "vcl/menus/PopupList.h"

namespace {

// Closes itself when it is drawn.
class TTimedMenu : public TkelFolderMenu {
public:
    TTimedMenu() : TkelFolderMenu(nullptr) { PopupList->AddListener({this, &TTimedMenu::Listen}); }
    ~TTimedMenu() override { PopupList->RemoveListener({this, &TTimedMenu::Listen}); }

    double Time()
    {
        FTime = 0;
        FWatch = TStopwatch();
        Popup(10, 10);
        if (FTime == 0)
            throw Exception("folder_menu: the menu does not open");
        return FTime;
    }
    // That have been drawn.
    std::vector<AnsiString> Visible() const
    {
        std::vector<AnsiString> Paths;
        for (int I = 0; I < Items->Count; ++I)
            if (Items->Items[I]->Tag != 0 || I == 0)
                Paths.push_back(Items->Items[I]->Caption);
        return Paths;
    }

private:
    bool Listen(TMessage& Message)
    {
        // The menu has nothing left to do.
        if (Message.Msg != WM_ENTERIDLE || FTime != 0)
            return false;
        FTime = FWatch.Microseconds();
        EndMenu();
        return true;
    }

    TStopwatch FWatch;
    double FTime = 0;
};

double Ask(const AnsiString& Folder, const std::vector<AnsiString>& Visible)
{
    TStopwatch Watch;
    WIN32_FIND_DATAW Data;
    HANDLE Search = FindFirstFileW(TWideText(Folder + "*.*").c_str(), &Data);
    while (FindNextFileW(Search, &Data)) {
    }
    FindClose(Search);
    for (const AnsiString& Path : Visible) {
        SHFILEINFOW Info{};
        SHGetFileInfoW(TWideText(Path).c_str(), 0, &Info, sizeof Info, SHGFI_ICON);
        DestroyIcon(Info.hIcon);
    }
    return Watch.Microseconds();
}

} // namespace

void FolderMenuBench()
{
    const TTestFolder Folder;
    for (int I = 0; I < 1000; ++I)
        Folder.AddFile(Format("Report %.4d%s", I, I % 2 ? ".txt" : ".bmp"));
    TTimedMenu Menu;
    Menu.Folder = Folder.Path();
    Menu.Time();
    const std::vector<AnsiString> Visible = Menu.Visible();
    const TMeasure Measure = Compare([&] { return Menu.Time(); }, [&] { return Ask(Folder.Path(), Visible); }, 15);
    PrintFigure("folder_menu", Measure.Value / 1000, "ms", Measure.Baseline / 1000);
}
