// use_example EXE: uses the first example of the documentation: clicks its button, reads what the button says then, and
// closes the window. Returns 0 when all of it went well.
#include "tests/package/Using.h"

#include <cstdio>

namespace {

int UseExample(const std::string& Exe)
{
    TProgram Program(Exe);
    HWND Form = WaitForWindow("TMainForm", "First steps");
    HWND Button = FindWindowExW(Form, nullptr, L"TButton", L"Click me");
    if (!Button)
        throw std::runtime_error("the form has no button \"Click me\"");
    SendMessageW(Button, BM_CLICK, 0, 0);
    SendMessageW(Button, BM_CLICK, 0, 0);
    WaitUntil("\"Clicked: 2\"", [&] { return TextOf(Button) == "Clicked: 2"; });
    PostMessageW(Form, WM_CLOSE, 0, 0);
    return Program.WaitForEnd();
}

} // namespace

int main(int, char** Arguments)
{
    try {
        return UseExample(Arguments[1]);
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "%s\n", Error.what());
        return 1;
    }
}
