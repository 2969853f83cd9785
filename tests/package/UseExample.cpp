// use_example EXE: uses the example of the documentation as its user would: clicks its button, reads what the button
// says then, and closes the window. Returns 0 when all of it went well.

#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <cstdio>
#include <stdexcept>

namespace {

constexpr DWORD Patience = 20000; // ms

// Asks until the answer is true, and tells What is missing when that takes too long.
template <class Question>
void WaitUntil(const char* What, Question IsDone)
{
    for (const ULONGLONG Start = GetTickCount64(); !IsDone(); Sleep(20))
        if (GetTickCount64() - Start > Patience)
            throw std::runtime_error(std::string("waited in vain: ") + What);
}

std::string TextOf(HWND Window)
{
    wchar_t Text[100] = {};
    SendMessageW(Window, WM_GETTEXT, 100, reinterpret_cast<LPARAM>(Text));
    return FromWide(Text);
}

void UseExample()
{
    HWND Form = nullptr;
    WaitUntil("the form", [&] {
        Form = FindWindowW(L"TMainForm", L"First steps");
        return Form && IsWindowVisible(Form);
    });
    HWND Button = FindWindowExW(Form, nullptr, L"TButton", L"Click me");
    if (!Button)
        throw std::runtime_error("the form has no button \"Click me\"");
    SendMessageW(Button, BM_CLICK, 0, 0);
    SendMessageW(Button, BM_CLICK, 0, 0);
    WaitUntil("\"Clicked: 2\"", [&] { return TextOf(Button) == "Clicked: 2"; });
    PostMessageW(Form, WM_CLOSE, 0, 0);
}

} // namespace

int main(int, char** Arguments)
{
    TWideString Command = ToWide(Arguments[1]);
    STARTUPINFOW Startup = {};
    Startup.cb = sizeof Startup;
    PROCESS_INFORMATION Process = {};
    if (!CreateProcessW(nullptr, Command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &Startup, &Process)) {
        std::fprintf(stderr, "%s does not start: error %lu\n", Arguments[1], GetLastError());
        return 1;
    }
    try {
        UseExample();
        DWORD Status = 0;
        WaitUntil("the end of the program",
                  [&] { return GetExitCodeProcess(Process.hProcess, &Status) && Status != STILL_ACTIVE; });
        return static_cast<int>(Status);
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "%s\n", Error.what());
        TerminateProcess(Process.hProcess, 1);
        return 1;
    }
}
