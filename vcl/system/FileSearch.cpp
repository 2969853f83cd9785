#include "vcl/system/FileSearch.h"

namespace {
constexpr int NoMoreFiles = 18;
} // namespace

int FindFirst(std::string_view Path, int Attr, TSearchRec& F)
{
    constexpr int Special = faHidden | faSysFile | faVolumeID | faDirectory;
    F.ExcludeAttr = ~Attr & Special;
    F.FindHandle = OpenFileSearch(Path);
    const int Error = FindNext(F);
    if (Error != 0)
        FindClose(F);
    return Error;
}

int FindNext(TSearchRec& F)
{
    if (!F.FindHandle)
        return NoMoreFiles;
    int Error = 0;
    do
        Error = F.FindHandle->Next(F);
    while (Error == 0 && (F.Attr & F.ExcludeAttr) != 0);
    return Error;
}

void FindClose(TSearchRec& F)
{
    F.FindHandle.reset();
}
