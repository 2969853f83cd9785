// startup: from the start of the showcase's process to its first painted window, against a bare window's program.
#include "bench/Bench.h"
#include "vcl/system/Exceptions.h"
#include "vcl/system/Utf.h"

#include <cstdlib>

namespace {

// The folder of this program.
std::wstring OwnFolder()
{
    wchar_t Path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, Path, MAX_PATH);
    std::wstring Folder = Path;
    return Folder.substr(0, Folder.find_last_of(L'\\') + 1);
}

// Runs a program and gives the number that it prints. Raises EOSError when it does not run.
double NumberFrom(std::wstring Command)
{
    SECURITY_ATTRIBUTES Inherited = {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE Read, Write;
    CreatePipe(&Read, &Write, &Inherited, 0);
    SetHandleInformation(Read, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW Startup = {};
    Startup.cb = sizeof(Startup);
    Startup.dwFlags = STARTF_USESTDHANDLES;
    Startup.hStdOutput = Write;
    PROCESS_INFORMATION Process;
    const BOOL Started =
        CreateProcessW(nullptr, Command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &Startup, &Process);
    CloseHandle(Write);
    char Text[64] = {};
    DWORD Count = 0;
    if (Started) {
        WaitForSingleObject(Process.hProcess, INFINITE);
        CloseHandle(Process.hThread);
        CloseHandle(Process.hProcess);
        ReadFile(Read, Text, sizeof(Text) - 1, &Count, nullptr);
    }
    CloseHandle(Read);
    if (Count == 0)
        throw EOSError("no time from " + FromWide(Command));
    return std::atof(Text);
}

} // namespace

void StartupBench()
{
    const std::wstring Folder = OwnFolder();
    const TMeasure Startup = Compare([&] { return NumberFrom(Folder + L"..\\demo\\demo.exe --startup") / 1000; },
                                     [&] { return NumberFrom(Folder + L"bare_window.exe") / 1000; });
    PrintFigure("startup", Startup.Value, "ms", Startup.Baseline);
}
