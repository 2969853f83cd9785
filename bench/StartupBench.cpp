// From the start of the process until its windows are painted:
// startup_small: the first example of the documentation, against the same window and button without any library.
// startup_showcase: the showcase, against a program with as many windows and tool bar buttons and a multi-line edit of
// the system's.
#include "bench/Bench.h"
#include "vcl/system/Exceptions.h"
#include "vcl/system/Utf.h"

#include <cstdio>
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

// Runs a program, whose path is relative to the folder of this one, and returns what it prints. Raises EOSError when
// that is nothing.
std::string OutputOf(const std::wstring& Program)
{
    std::wstring Command = OwnFolder() + Program;
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
    return Text;
}

// Of a program that prints microseconds first.
double MillisecondsOf(const std::wstring& Program)
{
    return std::atof(OutputOf(Program).c_str()) / 1000;
}

} // namespace

FIGURE(startup_small)
{
    const TMeasure Startup =
        Compare([] { return MillisecondsOf(L"small_program.exe"); }, [] { return MillisecondsOf(L"bare_button.exe"); });
    PrintFigure("startup_small", Startup.Value, "ms", Startup.Baseline);
}

FIGURE(startup_showcase)
{
    const std::wstring Showcase = L"..\\demo\\demo.exe --startup";
    // What it shows, behind the time.
    unsigned Windows = 0, Buttons = 0;
    if (std::sscanf(OutputOf(Showcase).c_str(), "%*u %u %u", &Windows, &Buttons) != 2)
        throw EOSError("the showcase does not count its windows and buttons");
    const std::wstring Bare = L"bare_showcase.exe " + std::to_wstring(Windows) + L" " + std::to_wstring(Buttons);
    const TMeasure Startup = Compare([&] { return MillisecondsOf(Showcase); }, [&] { return MillisecondsOf(Bare); });
    PrintFigure("startup_showcase", Startup.Value, "ms", Startup.Baseline);
}
