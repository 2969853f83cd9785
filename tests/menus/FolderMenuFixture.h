// A folder menu over a folder with the test's files.
#pragma once

#include "menus/FolderMenu.h"
#include "tests/support/TestFolder.h"

class TOpenFolderMenu : public TkelFolderMenu {
public:
    using TkelFolderMenu::DoDrawItem;
    using TkelFolderMenu::DoMeasureItem;
    using TkelFolderMenu::TkelFolderMenu;
};

// The captions of the items, without the path Start.
inline std::vector<AnsiString> NamesIn(const TMenuItem* Parent, const AnsiString& Start)
{
    std::vector<AnsiString> Names;
    for (int I = 0; I < Parent->Count; ++I) {
        const AnsiString& Caption = Parent->Items[I]->Caption;
        Names.push_back(Caption.starts_with(Start) ? Caption.substr(Start.size()) : "!" + Caption);
    }
    return Names;
}
