// Makes the first example of the documentation end when its form is painted, and print the microseconds since the start
// of the process. The linker gives its calls of WinMain to __wrap_WinMain (--wrap).
#include "bench/bare/Startup.h"
#include "vcl/forms/Application.h"

extern "C" int WINAPI __real_WinMain(HINSTANCE Instance, HINSTANCE Before, LPSTR Arguments, int Show);
extern "C" int WINAPI __wrap_WinMain(HINSTANCE Instance, HINSTANCE Before, LPSTR Arguments, int Show);

int WINAPI __wrap_WinMain(HINSTANCE Instance, HINSTANCE Before, LPSTR Arguments, int Show)
{
    // There is no message left: the form is painted.
    Application->OnIdle = [](TObject*, bool&) {
        PrintStartup();
        Application->Terminate();
    };
    return __real_WinMain(Instance, Before, Arguments, Show);
}
