// The showcase: a program with what the library has, and a tour of it.
//
//     demo                     shows the window
//
//     demo --tour FOLDER       leads the pointer over it and saves pictures NN-name.bmp; starts itself for the last
//     ones
//
//     demo --restored FOLDER N is the second half of the tour, after N pictures
//
//     demo --startup           prints how many microseconds it took from the start of the process to the first painted
//                              window, how many child windows that has, and how many tool buttons
#include "demo/Main.h"
#include "demo/MenuTour.h"
#include "demo/Tour.h"
#include "vcl/registry/RegIniFile.h"

#include <cstdio>
#include <cstdlib>

namespace {

// The tour keeps its settings apart from those of the user.
constexpr char TourTitle[] = "Tessary showcase tour";

// The program's argument of that number; empty behind the last.
std::string_view Argument(int Index)
{
    return Index < __argc ? __argv[Index] : "";
}

uint64_t Microseconds(const FILETIME& Time)
{
    return ((uint64_t{Time.dwHighDateTime} << 32) | Time.dwLowDateTime) / 10;
}

int ButtonsIn(TWinControl* Parent)
{
    int Count = 0;
    for (int I = 0; I < Parent->ControlCount; ++I) {
        TControl* Control = Parent->Controls[I];
        if (As<TkelSpeedButton>(Control))
            ++Count;
        if (auto* Inner = As<TWinControl>(Control))
            Count += ButtonsIn(Inner);
    }
    return Count;
}

BOOL CALLBACK CountWindow(HWND, LPARAM Count)
{
    ++*reinterpret_cast<int*>(Count);
    return TRUE;
}

void PrintStartup(TMainForm* Form)
{
    Form->Show();
    Application->ProcessMessages();
    GdiFlush();
    FILETIME Started, Exit, Kernel, User, Now;
    GetSystemTimeAsFileTime(&Now);
    GetProcessTimes(GetCurrentProcess(), &Started, &Exit, &Kernel, &User);
    int Windows = 0;
    EnumChildWindows(Form->Handle, &CountWindow, reinterpret_cast<LPARAM>(&Windows));
    std::printf("%llu %d %d\n", static_cast<unsigned long long>(Microseconds(Now) - Microseconds(Started)), Windows,
                ButtonsIn(Form));
}

// Runs this program once more and waits for it. Raises an Exception when it fails.
void RunAgain(const AnsiString& Arguments)
{
    TWideString Command = TWideText("\"" + Application->ExeName + "\" " + Arguments).c_str();
    STARTUPINFOW Startup = {};
    Startup.cb = sizeof(Startup);
    PROCESS_INFORMATION Process;
    if (!CreateProcessW(nullptr, Command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &Startup, &Process))
        throw Exception("The tour cannot start the program a second time");
    CloseHandle(Process.hThread);
    WaitForSingleObject(Process.hProcess, INFINITE);
    DWORD Code = EXIT_FAILURE;
    GetExitCodeProcess(Process.hProcess, &Code);
    CloseHandle(Process.hProcess);
    if (Code != EXIT_SUCCESS)
        throw Exception("The second half of the tour failed");
}

// Leaves as a user would: what is kept from one run to the next is kept.
void Leave(TMainForm* Form)
{
    Form->Close();
    Application->ProcessMessages();
    delete Form;
}

void RunTour(const AnsiString& Folder)
{
    TRegIniFile("Software\\Halvent").EraseSection(TourTitle);
    TMenuTour::MakeFolder();
    TMainForm* Form = nullptr;
    Application->CreateForm(&Form);
    const int Taken = TTour(Form, Folder, 0).FirstRun();
    Leave(Form);
    RunAgain(Format("--restored \"%s\" %d", Folder, Taken));
}

void RunRestored(const AnsiString& Folder, int Taken)
{
    TMainForm* Form = nullptr;
    Application->CreateForm(&Form);
    TTour(Form, Folder, Taken).SecondRun();
    Leave(Form);
}

void Start()
{
    const std::string_view Mode = Argument(1);
    const bool OnTour = Mode == "--tour" || Mode == "--restored";
    Application->Initialize();
    Application->Title = OnTour ? TourTitle : "Tessary showcase";
    if (Mode == "--tour")
        return RunTour(AnsiString(Argument(2)));
    if (Mode == "--restored")
        return RunRestored(AnsiString(Argument(2)), StrToInt(Argument(3)));
    TMainForm* MainForm = nullptr;
    Application->CreateForm(&MainForm);
    if (Mode == "--startup")
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
