#include "vcl/system/FileNames.h"

#include <filesystem>

namespace {
std::filesystem::path PathOf(std::string_view FileName)
{
    return std::filesystem::path(FileName);
}
} // namespace

bool FileExists(std::string_view FileName)
{
    std::error_code Error;
    return std::filesystem::is_regular_file(PathOf(FileName), Error);
}

bool DirectoryExists(std::string_view Directory)
{
    std::error_code Error;
    return std::filesystem::is_directory(PathOf(Directory), Error);
}

bool DeleteFile(std::string_view FileName)
{
    std::error_code Error;
    return FileExists(FileName) && std::filesystem::remove(PathOf(FileName), Error);
}

bool RenameFile(std::string_view OldName, std::string_view NewName)
{
    std::error_code Error;
    if (FileExists(NewName))
        return false;
    std::filesystem::rename(PathOf(OldName), PathOf(NewName), Error);
    return !Error;
}
