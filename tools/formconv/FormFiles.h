// Reading and writing whole files by UTF-8 names; "-" is standard input or output.
#pragma once

#include <string>
#include <string_view>

// Both throw an exception whose message names the file.
std::string ReadWholeFile(const std::string& FileName);
// The file is replaced only when everything has been written; otherwise it stays as it was.
void WriteWholeFile(const std::string& FileName, std::string_view Data);
