#include "vcl/system/FileNames.h"
#include "vcl/system/FileSearch.h"

#include <ctime>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// As Windows numbers them.
constexpr int FileNotFound = 2;
constexpr int PathNotFound = 3;
constexpr int NoMoreFiles = 18;

bool Matches(std::string_view Name, std::string_view Mask)
{
    if (Mask.empty())
        return Name.empty();
    if (Mask[0] == '*')
        return Matches(Name, Mask.substr(1)) || (!Name.empty() && Matches(Name.substr(1), Mask));
    return !Name.empty() && (Mask[0] == '?' || Mask[0] == Name[0]) && Matches(Name.substr(1), Mask.substr(1));
}

int DosTime(time_t Time)
{
    tm Local;
    localtime_r(&Time, &Local);
    const int Date = (Local.tm_year - 80) << 9 | (Local.tm_mon + 1) << 5 | Local.tm_mday;
    const int TimeOfDay = Local.tm_hour << 11 | Local.tm_min << 5 | Local.tm_sec / 2;
    return static_cast<int>(static_cast<unsigned>(Date) << 16 | static_cast<unsigned>(TimeOfDay));
}

class TSystemSearch : public TFileSearch {
public:
    explicit TSystemSearch(std::string_view Path) : FFolder(ExtractFilePath(Path)), FMask(ExtractFileName(Path))
    {
        if (FMask == "*.*")
            FMask = "*";
        FDirectory = opendir(FFolder.empty() ? "." : FFolder.c_str());
    }
    ~TSystemSearch() override
    {
        if (FDirectory)
            closedir(FDirectory);
    }

    int Next(TSearchRec& F) override
    {
        if (!FDirectory)
            return PathNotFound;
        while (const dirent* Entry = readdir(FDirectory))
            if (Matches(Entry->d_name, FMask)) {
                FFound = true;
                Fill(F, Entry->d_name);
                return 0;
            }
        return FFound ? NoMoreFiles : FileNotFound;
    }

private:
    void Fill(TSearchRec& F, const AnsiString& Name) const
    {
        struct stat Entry = {}, Target = {};
        const AnsiString Path = FFolder + Name;
        lstat(Path.c_str(), &Entry);
        if (stat(Path.c_str(), &Target) != 0)
            Target = Entry;
        const bool IsDots = Name == "." || Name == "..";
        F.Name = Name;
        F.Size = S_ISDIR(Target.st_mode) ? 0 : Target.st_size;
        F.Time = DosTime(Target.st_mtime);
        F.Attr = S_ISDIR(Target.st_mode) ? faDirectory : faArchive;
        F.Attr |= S_ISLNK(Entry.st_mode) ? faSymLink : 0;
        F.Attr |= Name.starts_with('.') && !IsDots ? faHidden : 0;
        F.Attr |= access(Path.c_str(), W_OK) != 0 ? faReadOnly : 0;
    }

    AnsiString FFolder;
    AnsiString FMask;
    DIR* FDirectory;
    bool FFound = false;
};

} // namespace

std::unique_ptr<TFileSearch> OpenFileSearch(std::string_view Path)
{
    return std::make_unique<TSystemSearch>(Path);
}
