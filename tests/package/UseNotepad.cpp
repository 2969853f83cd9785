// use_notepad EXE: uses the program that the tutorial builds, with the real mouse and keyboard: writes into a file that
// it has opened and saves it, changes the options, moves their form, reads a hint, and finds all of that again when the
// program starts a second time. Returns 0 when all of it went well.
#include "robot/SystemInput.h"
#include "tests/package/Using.h"

#include <cstdio>
#include <fstream>
#include <sstream>

namespace {

constexpr const wchar_t* Settings = L"Software\\Halvent\\Notes";

void Check(bool Holds, const std::string& What)
{
    if (!Holds)
        throw std::runtime_error(What);
}

std::string Contents(const std::string& FileName)
{
    std::ifstream File(FileName, std::ios::binary);
    std::ostringstream Text;
    Text << File.rdbuf();
    return Text.str();
}

void BringToFront(HWND Form)
{
    WaitUntil("the form in front", [&] {
        SetForegroundWindow(Form);
        return GetForegroundWindow() == Form;
    });
}

void PointAt(HWND Window, int X, int Y)
{
    POINT Place = {X, Y};
    ClientToScreen(Window, &Place);
    SendMove(TPoint(Place));
}

void ClickAt(HWND Window, int X, int Y)
{
    PointAt(Window, X, Y);
    SendButton(mbLeft, true);
    SendButton(mbLeft, false);
}

// Typed text, and the shortcut of "Save".
void WriteAndSave(HWND Form, HWND Memo, const std::string& FileName)
{
    ClickAt(Memo, 200, 200);
    SendLetter(L'x');
    WaitUntil("what was typed", [&] { return TextOf(Memo) == "firstx"; });
    SendKey('S', {ssCtrl});
    WaitUntil("the saved file", [&] { return Contents(FileName) == "firstx"; });
    BringToFront(Form);
}

void ChangeOptions(HWND Form)
{
    SendKey(VK_F9);
    HWND Options = WaitForWindow("TOptionsForm");
    Check(!IsWindowEnabled(Form), "the main form is enabled beside a modal one");
    SetWindowPos(Options, nullptr, 300, 320, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    SendMessageW(WaitForChild(Options, "TEdit"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"20"));
    SendKey(VK_RETURN);
    WaitUntil("the options to close", [&] { return !IsWindow(Options); });
}

// The status line tells what the button under the pointer is for.
void ReadHint(HWND Form)
{
    HWND Status = WaitForChild(Form, "TPanel");
    HWND Bar = WaitForChild(Form, "TkelToolBar");
    WaitUntil("the hint of the first button", [&] {
        PointAt(Bar, 24, 12);
        PointAt(Bar, 25, 13);
        return TextOf(Status) == " Begins a new text";
    });
}

// Del takes a letter out of the text; in the list it takes a file out.
void UseDel(HWND Memo, HWND List)
{
    ClickAt(Memo, 200, 200);
    SendKey(VK_HOME);
    SendKey(VK_DELETE);
    WaitUntil("Del in the text", [&] { return TextOf(Memo) == "irstx"; });
    Check(SendMessageW(List, LB_GETCOUNT, 0, 0) == 1, "Del in the text has changed the list");
    SendKey('S', {ssCtrl});
    ClickAt(List, 20, 5);
    SendKey(VK_DELETE);
    WaitUntil("Del in the list", [&] { return SendMessageW(List, LB_GETCOUNT, 0, 0) == 0; });
}

int UseNotepad(const std::string& Exe)
{
    const std::string FileName = "notes.txt";
    std::ofstream(FileName, std::ios::binary) << "first";
    RegDeleteTreeW(HKEY_CURRENT_USER, Settings);
    {
        TProgram Program(Exe + " " + FileName);
        HWND Form = WaitForWindow("TMainForm", "notes.txt - Notes");
        BringToFront(Form);
        HWND Memo = WaitForChild(Form, "TMemo");
        Check(TextOf(Memo) == "first", "the file is not shown");
        WriteAndSave(Form, Memo, FileName);
        ChangeOptions(Form);
        ReadHint(Form);
        PostMessageW(Form, WM_CLOSE, 0, 0);
        Check(Program.WaitForEnd() == 0, "the program fails");
    }
    TProgram Program(Exe);
    HWND Form = WaitForWindow("TMainForm", "New text - Notes");
    BringToFront(Form);
    HWND List = WaitForChild(Form, "TListBox");
    HWND Memo = WaitForChild(Form, "TMemo");
    Check(SendMessageW(List, LB_GETCOUNT, 0, 0) == 1, "the list has forgotten the file");
    ClickAt(List, 20, 5);
    WaitUntil("the file that was chosen", [&] { return TextOf(Memo) == "firstx"; });
    SendKey(VK_F9);
    HWND Options = WaitForWindow("TOptionsForm");
    RECT Place;
    GetWindowRect(Options, &Place);
    Check(Place.left == 300 && Place.top == 320, "the options are somewhere else");
    Check(TextOf(WaitForChild(Options, "TEdit")) == "20", "the options are forgotten");
    SendKey(VK_ESCAPE);
    WaitUntil("the options to close", [&] { return !IsWindow(Options); });
    UseDel(Memo, List);
    PostMessageW(Form, WM_CLOSE, 0, 0);
    return Program.WaitForEnd();
}

} // namespace

int main(int, char** Arguments)
{
    int Result = 1;
    try {
        Result = UseNotepad(Arguments[1]);
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "%s\n", Error.what());
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, Settings);
    return Result;
}
