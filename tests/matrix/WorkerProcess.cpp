#include "tests/matrix/WorkerProcess.h"

#include "vcl/system/Utf.h"

#include <stdexcept>

// The worker lies beside this program.
static std::wstring WorkerPath()
{
    wchar_t Program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, Program, MAX_PATH);
    const std::wstring Path = Program;
    return Path.substr(0, Path.find_last_of(L"\\/") + 1) + L"matrix_worker.exe";
}

// Both ends of a pipe. Ours is not for the worker, which would keep it open.
static void MakePipe(HANDLE& Ours, HANDLE& Theirs, bool WeRead)
{
    SECURITY_ATTRIBUTES Inherited{sizeof(Inherited), nullptr, TRUE};
    HANDLE Read = nullptr;
    HANDLE Write = nullptr;
    if (!CreatePipe(&Read, &Write, &Inherited, 0))
        throw std::runtime_error("no pipe for matrix_worker");
    Ours = WeRead ? Read : Write;
    Theirs = WeRead ? Write : Read;
    SetHandleInformation(Ours, HANDLE_FLAG_INHERIT, 0);
}

TWorkerProcess::TWorkerProcess()
{
    STARTUPINFOW Start{};
    Start.cb = sizeof(Start);
    Start.dwFlags = STARTF_USESTDHANDLES;
    Start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    MakePipe(FOutput, Start.hStdOutput, true);
    MakePipe(FInput, Start.hStdInput, false);
    PROCESS_INFORMATION Process{};
    const bool Started =
        CreateProcessW(WorkerPath().c_str(), nullptr, nullptr, nullptr, TRUE, 0, nullptr, nullptr, &Start, &Process);
    CloseHandle(Start.hStdOutput);
    CloseHandle(Start.hStdInput);
    if (!Started)
        throw std::runtime_error("matrix_worker does not start");
    CloseHandle(Process.hThread);
    FProcess = Process.hProcess;
}

TWorkerProcess::~TWorkerProcess()
{
    CloseHandle(FInput);
    CloseHandle(FOutput);
    if (WaitForSingleObject(FProcess, 2000) != WAIT_OBJECT_0)
        TerminateProcess(FProcess, 1);
    CloseHandle(FProcess);
}

void TWorkerProcess::WriteLine(const std::string& Line)
{
    const std::string Text = Line + "\n";
    DWORD Written = 0;
    WriteFile(FInput, Text.data(), static_cast<DWORD>(Text.size()), &Written, nullptr);
}

bool TWorkerProcess::ReadLine(std::string& Line)
{
    for (;;) {
        if (const size_t End = FRest.find('\n'); End != std::string::npos) {
            Line = FRest.substr(0, End);
            if (Line.ends_with('\r'))
                Line.pop_back();
            FRest.erase(0, End + 1);
            return true;
        }
        char Buffer[4096];
        DWORD Read = 0;
        if (!ReadFile(FOutput, Buffer, sizeof(Buffer), &Read, nullptr) || Read == 0)
            return false;
        FRest.append(Buffer, Read);
    }
}
