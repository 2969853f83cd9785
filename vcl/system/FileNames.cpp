#include "vcl/system/FileNames.h"

namespace {

constexpr std::string_view PathEnds = "\\/:";
constexpr std::string_view Separators = "\\/";

bool IsSeparator(char C)
{
    return C == '\\' || C == '/';
}

size_t PathSize(std::string_view FileName)
{
    size_t Last = FileName.find_last_of(PathEnds);
    return Last == FileName.npos ? 0 : Last + 1;
}

// The place of the extension's point, or the end of the name.
size_t ExtensionStart(std::string_view FileName)
{
    size_t Point = FileName.rfind('.');
    return Point == FileName.npos || Point < PathSize(FileName) ? FileName.size() : Point;
}

} // namespace

AnsiString ExtractFilePath(std::string_view FileName)
{
    return AnsiString(FileName.substr(0, PathSize(FileName)));
}

AnsiString ExtractFileDir(std::string_view FileName)
{
    std::string_view Path = FileName.substr(0, PathSize(FileName));
    if (Path.size() > 1 && IsSeparator(Path.back()) && PathEnds.find(Path[Path.size() - 2]) == PathEnds.npos)
        Path.remove_suffix(1);
    return AnsiString(Path);
}

AnsiString ExtractFileDrive(std::string_view FileName)
{
    if (FileName.size() >= 2 && FileName[1] == ':')
        return AnsiString(FileName.substr(0, 2));
    if (FileName.size() < 2 || !IsSeparator(FileName[0]) || !IsSeparator(FileName[1]))
        return {};
    size_t Share = FileName.find_first_of(Separators, 2);
    if (Share == FileName.npos)
        return AnsiString(FileName);
    return AnsiString(FileName.substr(0, FileName.find_first_of(Separators, Share + 1)));
}

AnsiString ExtractFileName(std::string_view FileName)
{
    return AnsiString(FileName.substr(PathSize(FileName)));
}

AnsiString ExtractFileExt(std::string_view FileName)
{
    return AnsiString(FileName.substr(ExtensionStart(FileName)));
}

AnsiString ChangeFileExt(std::string_view FileName, std::string_view Extension)
{
    return AnsiString(FileName.substr(0, ExtensionStart(FileName))).append(Extension);
}

AnsiString IncludeTrailingPathDelimiter(std::string_view Path)
{
    AnsiString Result(Path);
    if (Path.empty() || !IsSeparator(Path.back()))
        Result += '\\';
    return Result;
}

AnsiString ExcludeTrailingPathDelimiter(std::string_view Path)
{
    if (!Path.empty() && IsSeparator(Path.back()))
        Path.remove_suffix(1);
    return AnsiString(Path);
}
