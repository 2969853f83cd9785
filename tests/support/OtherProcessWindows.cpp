#include "tests/support/OtherProcess.h"

#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

bool PassesInAnotherProcess(const std::string& Test)
{
    wchar_t Program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, Program, MAX_PATH);
    std::wstring Command = L"\"" + std::wstring(Program) +
                           L"\" --gtest_also_run_disabled_tests --gtest_brief=1 --gtest_filter=" + ToWide(Test);
    STARTUPINFOW Start{};
    Start.cb = sizeof(Start);
    PROCESS_INFORMATION Process;
    if (!CreateProcessW(nullptr, Command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &Start, &Process))
        return false;
    WaitForSingleObject(Process.hProcess, INFINITE); // the other process has its own limit of time
    DWORD Result = 1;
    GetExitCodeProcess(Process.hProcess, &Result);
    CloseHandle(Process.hThread);
    CloseHandle(Process.hProcess);
    return Result == 0;
}
