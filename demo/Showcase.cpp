// The showcase: a tour of what the library has.
//
//     demo                shows the window
//     demo --tour FOLDER  leads the pointer over it and saves pictures NN-name.bmp
//     demo --startup      prints how long it took from the start of the process to the first painted window, in
//                         microseconds
#include "demo/Main.h"
#include "demo/Tour.h"

#include <cstdio>
#include <cstdlib>

namespace {

// The program's argument of that number; empty behind the last.
std::string_view Argument(int Index)
{
    return Index < __argc ? __argv[Index] : "";
}

uint64_t Microseconds(const FILETIME& Time)
{
    return ((uint64_t{Time.dwHighDateTime} << 32) | Time.dwLowDateTime) / 10;
}

void PrintStartup(TMainForm* Form)
{
    Form->Show();
    Application->ProcessMessages();
    GdiFlush();
    FILETIME Started, Exit, Kernel, User, Now;
    GetSystemTimeAsFileTime(&Now);
    GetProcessTimes(GetCurrentProcess(), &Started, &Exit, &Kernel, &User);
    std::printf("%llu\n", static_cast<unsigned long long>(Microseconds(Now) - Microseconds(Started)));
}

void Start()
{
    TMainForm* MainForm = nullptr;
    Application->Initialize();
    Application->Title = "Tessary showcase";
    Application->CreateForm(&MainForm);
    if (Argument(1) == "--tour")
        TTour(MainForm, AnsiString(Argument(2))).Run();
    else if (Argument(1) == "--startup")
        PrintStartup(MainForm);
    else
        Application->Run();
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
    try {
        Start();
        return EXIT_SUCCESS;
    } catch (Exception& Error) {
        // On a tour nobody is there to answer a message box.
        if (__argc > 1)
            std::fprintf(stderr, "demo: %s\n", Error.what());
        else
            Application->ShowException(&Error);
        return EXIT_FAILURE;
    }
}
