#include "tests/support/Dialogs.h"

#include "vcl/system/Utf.h"
#include "vcl/system/WindowsApi.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <mutex>

namespace {

struct TState {
    std::mutex Mutex;
    int ExpectedButton = 0; // 0 while none is expected
    std::vector<std::string> Texts;
    std::vector<HWND> Answered;
};

TState& State()
{
    static TState Instance;
    return Instance;
}

std::string ClassOf(HWND Window)
{
    wchar_t Name[128] = {};
    GetClassNameW(Window, Name, 128);
    return FromWide(Name);
}

// Asks the window itself, but does not wait for a program that hangs.
std::string TextOf(HWND Window)
{
    wchar_t Text[1024] = {};
    DWORD_PTR Length = 0;
    SendMessageTimeoutW(Window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(Text), SMTO_ABORTIFHUNG, 500, &Length);
    return FromWide(Text);
}

std::vector<HWND> VisibleWindows()
{
    std::vector<HWND> Windows;
    EnumWindows(
        [](HWND Window, LPARAM Result) -> BOOL {
            DWORD Process = 0;
            GetWindowThreadProcessId(Window, &Process);
            if (Process == GetCurrentProcessId() && IsWindowVisible(Window))
                reinterpret_cast<std::vector<HWND>*>(Result)->push_back(Window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&Windows));
    return Windows;
}

std::vector<HWND> ChildrenOfClass(HWND Parent, const wchar_t* Class)
{
    std::vector<HWND> Children;
    for (HWND Child = nullptr; (Child = FindWindowExW(Parent, Child, Class, nullptr));)
        Children.push_back(Child);
    return Children;
}

std::string Describe(HWND Dialog)
{
    std::string Result = TextOf(Dialog) + ":";
    for (HWND Child : ChildrenOfClass(Dialog, L"Static")) {
        const std::string Text = TextOf(Child);
        // The icon is a static control too.
        Result += Text.empty() ? "" : " " + Text;
    }
    return Result;
}

void Answer(HWND Dialog, int Button)
{
    HWND Control = GetDlgItem(Dialog, Button);
    PostMessageW(Dialog, WM_COMMAND, MAKEWPARAM(Button, BN_CLICKED), reinterpret_cast<LPARAM>(Control));
}

// The last button is the one that does least: "No", "Cancel", or the only one.
void Dismiss(HWND Dialog)
{
    const std::vector<HWND> Buttons = ChildrenOfClass(Dialog, L"Button");
    if (Buttons.empty())
        PostMessageW(Dialog, WM_CLOSE, 0, 0);
    else
        Answer(Dialog, GetDlgCtrlID(Buttons.back()));
}

void AnswerDialog(TState& State, HWND Dialog)
{
    const std::string Text = Describe(Dialog);
    State.Answered.push_back(Dialog);
    if (State.ExpectedButton && GetDlgItem(Dialog, State.ExpectedButton)) {
        State.Texts.push_back(Text);
        Answer(Dialog, State.ExpectedButton);
        return;
    }
    ADD_FAILURE() << (State.ExpectedButton ? "dialog without the expected button: " : "unexpected dialog: ") << Text;
    Dismiss(Dialog);
}

} // namespace

TExpectDialogs::TExpectDialogs(int Button)
{
    std::lock_guard Lock(State().Mutex);
    State().ExpectedButton = Button;
    State().Texts.clear();
}

TExpectDialogs::~TExpectDialogs()
{
    std::lock_guard Lock(State().Mutex);
    State().ExpectedButton = 0;
}

std::vector<std::string> TExpectDialogs::Texts() const
{
    std::lock_guard Lock(State().Mutex);
    return State().Texts;
}

void AnswerDialogs()
{
    std::lock_guard Lock(State().Mutex);
    std::vector<HWND>& Answered = State().Answered;
    std::erase_if(Answered, [](HWND Window) { return !IsWindow(Window); });
    for (HWND Window : VisibleWindows())
        if (ClassOf(Window) == "#32770" && std::ranges::find(Answered, Window) == Answered.end())
            AnswerDialog(State(), Window);
}

std::string DescribeOwnWindows()
{
    std::string Result;
    for (HWND Window : VisibleWindows())
        Result += "  " + ClassOf(Window) + " \"" + Describe(Window) + "\"\n";
    return Result.empty() ? "  no windows\n" : Result;
}
