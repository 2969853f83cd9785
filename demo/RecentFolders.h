// TRecentFolders: the folders that the user has been in, kept in the registry from one run to the next.
#pragma once

#include "vcl/system/SysUtils.h"

#include <vector>

class TRecentFolders {
public:
    // Reads what was kept; at first that is the folder of the program and the one for temporary files.
    void Load();
    // Folder, which ends with a backslash, becomes the first. The oldest is forgotten when there are more than four.
    void Add(const AnsiString& Folder);

    // The last one first.
    const std::vector<AnsiString>& Folders() const { return FFolders; }

private:
    std::vector<AnsiString> FFolders;
};
