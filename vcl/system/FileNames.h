// File names and paths as Windows writes them: '\' separates, '/' is understood, ':' ends a drive.
#pragma once

#include "vcl/system/Object.h"

#include <string_view>

// Up to and including the last separator or drive colon; empty when there is none.
AnsiString ExtractFilePath(std::string_view FileName);
// As ExtractFilePath, without the last separator, except after a drive ("C:\").
AnsiString ExtractFileDir(std::string_view FileName);
// "C:" or "\\server\share"; empty for a path without a drive.
AnsiString ExtractFileDrive(std::string_view FileName);
// What follows the path.
AnsiString ExtractFileName(std::string_view FileName);
// With its point: ".dfm"; empty when there is none.
AnsiString ExtractFileExt(std::string_view FileName);
// Extension comes with its point; an empty one removes the old.
AnsiString ChangeFileExt(std::string_view FileName, std::string_view Extension);
AnsiString IncludeTrailingPathDelimiter(std::string_view Path);
AnsiString ExcludeTrailingPathDelimiter(std::string_view Path);

// True for files, false for directories and for what cannot be seen.
bool FileExists(std::string_view FileName);
bool DirectoryExists(std::string_view Directory);
// False when the file could not be deleted.
bool DeleteFile(std::string_view FileName);
bool RenameFile(std::string_view OldName, std::string_view NewName);
