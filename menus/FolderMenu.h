// TkelFolderMenu: a popup menu with the contents of a folder, each entry with the icon that the shell shows for it.
//
// The menu is filled at every Popup, and the submenu of a folder in it when that opens. Captions are the entries' full
// paths; Tag is the index of an entry's icon from when that is first drawn, and -1 for an entry that has none.
#pragma once

#include "common/CustomPopupMenu.h"
#include "menus/FolderIcons.h"
#include "vcl/system/FileSearch.h"

#include <functional>

using TOnClickFolder = TEvent<void(TObject* Sender, AnsiString Folder)>;

class TkelFolderMenu : public TkelCustomPopupMenu {
    VCL_CLASS(TkelFolderMenu, TkelCustomPopupMenu)
public:
    // Owner-drawn.
    explicit TkelFolderMenu(TComponent* AOwner);

    // These count from the next Popup on.
    // The folder's path; a backslash at its end is added where it lacks. A folder that does not exist or cannot be
    // read, and none (""), has no entries, and Popup shows no menu.
    AnsiString Folder = "C:\\";
    // Folders are entries to choose, without submenus.
    bool NoSubFolder = false;
    bool ShowFiles = true;
    // Icons of 16 by 16 pixels in place of 32 by 32.
    bool SmallIcon = false;
    // Of one folder; not published. The first ones that are found are shown, as the system has room for so many
    // submenus and commands only.
    int MaxEntries = 8000;

    // An entry was chosen; the path has no backslash at its end. Opening a submenu chooses nothing.
    TOnClickFolder OnClickFolder;

    void Popup(int X, int Y) override;
    // Fills the submenu of a folder when it opens for the first time. OnClickFolder is not raised for that.
    bool DispatchPopup(HMENU Handle) override;

    // Adds an item for each entry of a folder to Parent: folders at the beginning, the last one found first, and each
    // file before the first item whose caption is lower (by bytes). A folder with entries of its own gets a submenu,
    // which has nothing but one nameless item before it is opened.
    void MakeMenu(const AnsiString& Path, TMenuItem* Parent);
    // The shell's icon, small if SmallIcon is set; empty when there is none. The caller deletes it.
    TIcon* GetFileIcon(const AnsiString& Path) const;
    // Raises OnClickFolder with the caption of Sender, a TMenuItem.
    void DoClickFolder(TObject* Sender);

protected:
    void DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect) override;
    void DoMeasureItem(TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas) override;
    AnsiString EntryCaption(const TMenuItem& Item) const override;

    void Loaded() override { inherited::Loaded(); }

private:
    void ForEachEntry(const AnsiString& Path, const std::function<bool(const TSearchRec&)>& Proc) const;
    bool HasEntries(const AnsiString& Path) const;
    void Fill(TMenuItem* Item);
    int IconOf(TMenuItem* Item);

    TFolderIcons FIcons;
    AnsiString FFirstPath; // whose icon has index 0; a Tag of 0 may also mean that none was fetched yet
};
