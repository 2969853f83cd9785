#include "vcl/system/FileNames.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

bool FileExists(std::string_view FileName)
{
    DWORD Attributes = GetFileAttributesW(TWideText(FileName).c_str());
    return Attributes != INVALID_FILE_ATTRIBUTES && !(Attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool DirectoryExists(std::string_view Directory)
{
    DWORD Attributes = GetFileAttributesW(TWideText(Directory).c_str());
    return Attributes != INVALID_FILE_ATTRIBUTES && (Attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool DeleteFile(std::string_view FileName)
{
    return DeleteFileW(TWideText(FileName).c_str()) != 0;
}

bool RenameFile(std::string_view OldName, std::string_view NewName)
{
    return MoveFileW(TWideText(OldName).c_str(), TWideText(NewName).c_str()) != 0;
}
