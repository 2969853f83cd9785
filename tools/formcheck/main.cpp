// formcheck: do my forms load? Loads every form of a folder and tells what is missing.

#include "tools/formcheck/Summary.h"
#include "vcl/classes/FileStream.h"
#include "vcl/forms/Application.h"
#include "vcl/system/Exceptions.h"
#include "vcl/system/SysUtils.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace {

std::vector<std::string> Words()
{
    std::vector<std::string> Result;
    int Count = 0;
    wchar_t** Arguments = CommandLineToArgvW(GetCommandLineW(), &Count);
    for (int I = 1; I < Count; ++I)
        Result.push_back(FromWide(Arguments[I]));
    LocalFree(Arguments);
    return Result;
}

// The form files below Folder, or Folder itself when it is one, in order. Names come with '/'.
std::vector<std::string> FormFiles(const std::string& Folder)
{
    namespace fs = std::filesystem;
    std::vector<std::string> Files;
    fs::path Root(ToWide(Folder));
    if (fs::is_regular_file(Root))
        return {Folder};
    for (const fs::directory_entry& Entry : fs::recursive_directory_iterator(Root)) {
        std::string Name = FromWide(Entry.path().generic_wstring());
        if (Entry.is_regular_file() && SameText(ExtractFileExt(Name), ".dfm"))
            Files.push_back(Name);
    }
    std::sort(Files.begin(), Files.end());
    return Files;
}

std::string Contents(const std::string& FileName)
{
    TFileStream File(FileName, fmOpenRead | fmShareDenyWrite);
    std::string Bytes(static_cast<size_t>(File.Size), 0);
    File.ReadBuffer(Bytes.data(), File.Size);
    return Bytes;
}

int Run(const std::string& Folder)
{
    TSummary Summary;
    for (const std::string& FileName : FormFiles(Folder))
        Summary.Add(std::cout, FileName, CheckForm(Contents(FileName)));
    Summary.PrintTotals(std::cout);
    return Summary.AllComplete() ? 0 : 1;
}

} // namespace

int main()
{
    std::vector<std::string> Arguments = Words();
    if (Arguments.size() != 1) {
        std::cerr << "usage: formcheck FOLDER\n";
        return 2;
    }
    try {
        return Run(Arguments[0]);
    } catch (const std::exception& Error) {
        std::cerr << "formcheck: " << Error.what() << '\n';
        return 2;
    }
}
