#include "tests/package/Using.h"

namespace {

constexpr DWORD Patience = 20000; // ms

} // namespace

void WaitUntil(const std::string& What, const std::function<bool()>& IsDone)
{
    for (const ULONGLONG Start = GetTickCount64(); !IsDone(); Sleep(20))
        if (GetTickCount64() - Start > Patience)
            throw std::runtime_error("waited in vain: " + What);
}

std::string TextOf(HWND Window)
{
    wchar_t Text[1000] = {};
    SendMessageW(Window, WM_GETTEXT, std::size(Text), reinterpret_cast<LPARAM>(Text));
    return FromWide(Text);
}

HWND WaitForWindow(const char* Class, const std::string& Text)
{
    HWND Window = nullptr;
    WaitUntil(std::string("the window ") + Class + " \"" + Text + "\"", [&] {
        Window = FindWindowW(ToWide(Class).c_str(), Text.empty() ? nullptr : ToWide(Text).c_str());
        return Window && IsWindowVisible(Window);
    });
    return Window;
}

HWND WaitForChild(HWND Parent, const char* Class)
{
    struct TSearch {
        std::wstring Class;
        HWND Found;
    } Search = {ToWide(Class), nullptr};
    const auto Visit = [](HWND Window, LPARAM Data) -> BOOL {
        auto* Wanted = reinterpret_cast<TSearch*>(Data);
        wchar_t Name[100] = {};
        GetClassNameW(Window, Name, std::size(Name));
        if (Wanted->Class == Name)
            Wanted->Found = Window;
        return !Wanted->Found;
    };
    WaitUntil(std::string("the child window ") + Class, [&] {
        EnumChildWindows(Parent, Visit, reinterpret_cast<LPARAM>(&Search));
        return Search.Found != nullptr;
    });
    return Search.Found;
}

TProgram::TProgram(const std::string& Command)
{
    TWideString Line = ToWide(Command);
    STARTUPINFOW Startup = {};
    Startup.cb = sizeof Startup;
    if (!CreateProcessW(nullptr, Line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &Startup, &FProcess))
        throw std::runtime_error(Command + " does not start: error " + std::to_string(GetLastError()));
    CloseHandle(FProcess.hThread);
}

TProgram::~TProgram()
{
    if (WaitForSingleObject(FProcess.hProcess, 0) == WAIT_TIMEOUT)
        TerminateProcess(FProcess.hProcess, 1);
    CloseHandle(FProcess.hProcess);
}

int TProgram::WaitForEnd()
{
    WaitUntil("the end of the program", [&] { return WaitForSingleObject(FProcess.hProcess, 0) != WAIT_TIMEOUT; });
    DWORD Code = 1;
    GetExitCodeProcess(FProcess.hProcess, &Code);
    return static_cast<int>(Code);
}
