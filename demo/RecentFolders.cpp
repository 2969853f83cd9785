#include "demo/RecentFolders.h"

#include "vcl/forms/Application.h"
#include "vcl/registry/RegIniFile.h"

namespace {

constexpr size_t MostFolders = 4;
constexpr char Section[] = "Folders";

TRegIniFile Store()
{
    return TRegIniFile("Software\\Halvent\\" + Application->Title);
}

AnsiString TemporaryFolder()
{
    wchar_t Folder[MAX_PATH + 1] = {};
    GetTempPathW(MAX_PATH, Folder);
    return FromWide(Folder);
}

} // namespace

void TRecentFolders::Load()
{
    FFolders.clear();
    for (size_t I = 0; I < MostFolders; ++I)
        if (const AnsiString Folder = Store().ReadString(Section, std::to_string(I), ""); !Folder.empty())
            FFolders.push_back(Folder);
    if (FFolders.empty())
        FFolders = {ExtractFilePath(Application->ExeName), TemporaryFolder()};
}

void TRecentFolders::Add(const AnsiString& Folder)
{
    std::erase(FFolders, Folder);
    FFolders.insert(FFolders.begin(), Folder);
    if (FFolders.size() > MostFolders)
        FFolders.pop_back();
    for (size_t I = 0; I < FFolders.size(); ++I)
        Store().WriteString(Section, std::to_string(I), FFolders[I]);
}
