#include "tests/common/SettingsFixture.h"

bool PassesInAnotherProcess(const std::string& Test)
{
    std::wstring Command = ToWide("\"" + Application->ExeName +
                                  "\" --gtest_also_run_disabled_tests --gtest_brief=1 --gtest_filter=" + Test);
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
