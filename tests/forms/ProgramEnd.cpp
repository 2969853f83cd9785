// How a program ends that an exception ends: never without a word. See tests/guards/programs/Ending.cpp.
#include "tests/support/Input.h"
#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <gtest/gtest.h>

namespace {

struct TEnd {
    std::string Text; // of the message box
    DWORD Status = 0;
};

struct TSearch {
    DWORD Process;
    HWND Found;
};

// The message box of a process, nullptr while there is none.
HWND MessageBoxOf(DWORD Process)
{
    TSearch Search{Process, nullptr};
    EnumWindows(
        [](HWND Window, LPARAM Param) -> BOOL {
            auto& Search = *reinterpret_cast<TSearch*>(Param);
            wchar_t Class[16] = {};
            DWORD Process = 0;
            GetWindowThreadProcessId(Window, &Process);
            GetClassNameW(Window, Class, 16);
            if (Process != Search.Process || std::wstring(Class) != L"#32770" || !IsWindowVisible(Window))
                return TRUE;
            Search.Found = Window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&Search));
    return Search.Found;
}

std::string TextOf(HWND Box)
{
    std::string Text;
    for (HWND Child = nullptr; (Child = FindWindowExW(Box, Child, L"Static", nullptr));) {
        wchar_t Part[256] = {};
        SendMessageW(Child, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(Part));
        Text += FromWide(Part); // the icon's is empty
    }
    return Text;
}

// Runs the program, reads its message, closes it and waits for the end.
TEnd EndOf(const std::wstring& Place)
{
    wchar_t Program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, Program, MAX_PATH);
    std::wstring Folder = Program;
    Folder.resize(Folder.find_last_of(L"\\/") + 1);
    std::wstring Command = L"\"" + Folder + L"guards\\ending_program.exe\" " + Place;
    STARTUPINFOW Start{};
    Start.cb = sizeof(Start);
    PROCESS_INFORMATION Process;
    TEnd End;
    if (!CreateProcessW(nullptr, Command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &Start, &Process)) {
        ADD_FAILURE() << "the program does not start";
        return End;
    }
    HWND Box = nullptr;
    auto HasEnded = [&] { return WaitForSingleObject(Process.hProcess, 10) == WAIT_OBJECT_0; };
    EXPECT_TRUE(PumpUntil([&] { return (Box = MessageBoxOf(Process.dwProcessId)) || HasEnded(); }));
    if (Box) {
        End.Text = TextOf(Box);
        PostMessageW(Box, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    }
    if (!PumpUntil(HasEnded)) {
        ADD_FAILURE() << "the program does not end";
        TerminateProcess(Process.hProcess, 99);
    }
    GetExitCodeProcess(Process.hProcess, &End.Status);
    CloseHandle(Process.hThread);
    CloseHandle(Process.hProcess);
    return End;
}

} // namespace

TEST(ProgramEnd, AnExceptionInCreateFormIsShown)
{
    const TEnd End = EndOf(L"create");
    EXPECT_EQ(End.Text, "EResNotFound: Resource TMainForm not found");
    EXPECT_EQ(End.Status, 1u);
}

TEST(ProgramEnd, AnExceptionThatLeavesRunIsShown)
{
    const TEnd End = EndOf(L"run");
    EXPECT_EQ(End.Text, "not in a destructor");
    EXPECT_EQ(End.Status, 1u);
}

TEST(ProgramEnd, AnExceptionInTheConstructorOfAStaticObjectIsShown)
{
    const TEnd End = EndOf(L"static");
    EXPECT_EQ(End.Text, "EInvalidOperation: not in a constructor");
    EXPECT_EQ(End.Status, 1u);
}
