#include "tools/formconv/Console.h"

#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>

std::vector<std::string> CommandLineWords(int, char**)
{
    std::vector<std::string> Words;
    int Count = 0;
    wchar_t** const Arguments = CommandLineToArgvW(GetCommandLineW(), &Count);
    for (int I = 1; I < Count; I++)
        Words.push_back(FromWide(Arguments[I]));
    LocalFree(Arguments);
    return Words;
}

void UseBinaryConsole()
{
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
}
