// The application: its loop, exceptions, message boxes, title, hooks.
#include "tests/forms/TestForms.h"

#include "tests/support/Dialogs.h"

#include <stdexcept>

using testing::ElementsAre;

TEST(ApplicationLoop, ExceptionsInHandlersReachOnException)
{
    TCatchExceptions Caught;
    TFormPtr Form(new TPlainForm(nullptr));
    TProbe* Probe = Form->AddProbe(10);
    Probe->OnKeyDown = [](TObject*, uint16_t& Key, TShiftState) {
        if (Key == 'A')
            throw EInvalidOperation("ours");
        if (Key == 'B')
            throw std::runtime_error("standard");
        if (Key == 'C')
            throw EAbort("silent");
        if (Key == 'D')
            throw 5;
    };
    Form->Open();
    for (char Key : {'A', 'B', 'C', 'D', 'E'})
        TypeKey(static_cast<uint16_t>(Key));
    EXPECT_THAT(Caught.Messages, ElementsAre("ours", "standard", "Unknown exception"));
    EXPECT_EQ(Probe->Keys.size(), 5u) << "the loop goes on";
}

TEST(ApplicationLoop, WithoutOnExceptionABoxShowsTheMessage)
{
    TExpectDialogs Dialogs(IDOK);
    const AnsiString Title = Application->Title;
    Application->Title = "Tëst";
    PostAction([] { throw EInvalidOperation("Не получилось"); });
    EXPECT_TRUE(PumpUntil([&] { return !Dialogs.Texts().empty(); }));
    ASSERT_EQ(Dialogs.Texts().size(), 1u);
    EXPECT_EQ(Dialogs.Texts()[0].substr(0, 6), "Tëst:");
    EXPECT_THAT(Dialogs.Texts()[0], testing::HasSubstr("Не получилось."));
    Application->Title = Title;
}

TEST(ApplicationLoop, OnMessageMayTakeAMessage)
{
    int Seen = 0;
    bool Reached = false;
    Application->OnMessage = [&](MSG& Msg, bool& Handled) {
        if (Msg.message == WM_APP) {
            ++Seen;
            Handled = Seen == 1;
        }
    };
    PostAction([&] { Reached = true; });
    PumpMessages();
    EXPECT_EQ(Seen, 1);
    EXPECT_FALSE(Reached);
    PostAction(nullptr);
    PumpMessages();
    EXPECT_EQ(Seen, 2);
    EXPECT_TRUE(Reached);
    Application->OnMessage = nullptr;
}

TEST(ApplicationLoop, OnIdleComesWhenTheQueueIsEmpty)
{
    int Idles = 0;
    Application->OnIdle = [&](TObject*, bool& Done) {
        ++Idles;
        Done = false;
    };
    while (Idles < 3)
        Application->HandleMessage();
    Application->OnIdle = [&](TObject*, bool&) {
        ++Idles;
        PostMessageW(Application->Handle, WM_NULL, 0, 0); // ends the wait
    };
    Application->HandleMessage();
    EXPECT_GE(Idles, 4);
    Application->OnIdle = nullptr;
    PumpMessages();
}

TEST(ApplicationLoop, RunEndsWhenTheMainFormCloses)
{
    TPlainForm* Main = nullptr;
    Application->CreateForm(&Main);
    ASSERT_EQ(Application->MainForm, Main);
    bool Shown = false;
    PostAction([&] {
        Shown = Main->Visible;
        Main->Close();
    });
    Application->Run();
    EXPECT_TRUE(Shown);
    EXPECT_TRUE(Application->Terminated);
    delete Main;
    EXPECT_EQ(Application->MainForm, nullptr);
    Application->Run(); // returns at once, and the program is a running one again
    EXPECT_FALSE(Application->Terminated);
}

TEST(ApplicationLoop, TerminateEndsModalFormsToo)
{
    TPlainForm* Main = nullptr;
    Application->CreateForm(&Main);
    TModalResult Result = mrNone;
    PostAction([&] {
        TFormPtr Dialog(new TPlainForm(nullptr));
        PostAction([] { Application->Terminate(); });
        Result = Dialog->ShowModal();
    });
    Application->Run();
    EXPECT_EQ(Result, mrCancel);
    delete Main;
    Application->Run(); // without a main form: at once
}

TEST(ApplicationWindow, HooksSeeItsMessagesAndLeaveInAnyOrder)
{
    TLog Log;
    TWindowHook First = [&](TMessage& Message) {
        if (Message.Msg == WM_APP + 5)
            Log.push_back("first");
        return false;
    };
    TWindowHook Second = [&](TMessage& Message) {
        if (Message.Msg != WM_APP + 5)
            return false;
        Log.push_back("second");
        Message.Result = 99;
        return Message.WParam == 1;
    };
    Application->HookMainWindow(First);
    Application->HookMainWindow(Second);
    EXPECT_EQ(SendMessageW(Application->Handle, WM_APP + 5, 1, 0), 99);
    EXPECT_THAT(Log, ElementsAre("second"));
    SendMessageW(Application->Handle, WM_APP + 5, 0, 0);
    EXPECT_THAT(Log, ElementsAre("second", "second", "first"));
    Application->UnhookMainWindow(First);
    Application->UnhookMainWindow(Second);
    Log.clear();
    SendMessageW(Application->Handle, WM_APP + 5, 0, 0);
    EXPECT_TRUE(Log.empty());
}

TEST(ApplicationWindow, MinimizingTheMainFormHidesTheOthers)
{
    TPlainForm* Main = nullptr;
    Application->CreateForm(&Main);
    Main->Open();
    TFormPtr Other(new TPlainForm(nullptr));
    Other->Open();
    TLog Log;
    Application->OnMinimize = [&](TObject*) { Log.push_back("minimize"); };
    Application->OnRestore = [&](TObject*) { Log.push_back("restore"); };
    Application->Minimize();
    EXPECT_TRUE(IsIconic(Main->Handle));
    EXPECT_FALSE(IsWindowVisible(Other->Handle));
    Application->Restore();
    EXPECT_FALSE(IsIconic(Main->Handle));
    EXPECT_TRUE(IsWindowVisible(Other->Handle));
    EXPECT_THAT(Log, ElementsAre("minimize", "restore"));
    Application->OnMinimize = nullptr;
    Application->OnRestore = nullptr;
    Other.reset();
    delete Main;
}

TEST(ApplicationWindow, TellsWhenTheProgramBecomesActive)
{
    TFormPtr Form(new TPlainForm(nullptr));
    Form->Open();
    EXPECT_TRUE(Application->Active);
    TLog Log;
    Application->OnActivate = [&](TObject*) { Log.push_back("activate"); };
    Application->OnDeactivate = [&](TObject*) { Log.push_back("deactivate"); };
    SendMessageW(Application->Handle, WM_ACTIVATEAPP, FALSE, 0);
    EXPECT_FALSE(Application->Active);
    SendMessageW(Application->Handle, WM_ACTIVATEAPP, TRUE, 0);
    EXPECT_TRUE(Application->Active);
    EXPECT_THAT(Log, ElementsAre("deactivate", "activate"));
    Application->OnActivate = nullptr;
    Application->OnDeactivate = nullptr;
}

TEST(ApplicationMessageBox, ShowsItsTextAndDisablesTheForms)
{
    TFormPtr Form(new TPlainForm(nullptr));
    TProbe* Probe = Form->AddProbe(10);
    TFormPtr Other(new TPlainForm(nullptr));
    Other->Open();
    Form->Open();
    TExpectDialogs Dialogs(IDNO);
    bool OtherEnabled = true;
    int Modal = 0;
    Application->OnModalBegin = [&](TObject*) {
        ++Modal;
        OtherEnabled = IsWindowEnabled(Other->Handle);
    };
    EXPECT_EQ(Application->MessageBox("Сохранить?", "Вопрос", MB_YESNO), IDNO);
    EXPECT_FALSE(OtherEnabled);
    EXPECT_TRUE(IsWindowEnabled(Other->Handle));
    EXPECT_TRUE(Probe->Focused());
    EXPECT_EQ(Modal, 1);
    ASSERT_EQ(Dialogs.Texts().size(), 1u);
    EXPECT_THAT(Dialogs.Texts()[0], testing::HasSubstr("Вопрос"));
    EXPECT_THAT(Dialogs.Texts()[0], testing::HasSubstr("Сохранить?"));
    Application->OnModalBegin = nullptr;
}

// ---- the screen

TEST(ScreenCursors, HaveSlotsOfTheApplication)
{
    EXPECT_EQ(Screen->Cursors[crHourGlass], LoadCursorW(nullptr, IDC_WAIT));
    EXPECT_EQ(Screen->Cursors[crNone], nullptr);
    EXPECT_EQ(Screen->Cursors[5], LoadCursorW(nullptr, IDC_ARROW)) << "nobody set it";
    const uint8_t And[32 * 4] = {};
    const uint8_t Xor[32 * 4] = {};
    HCURSOR Own = CreateCursor(GetModuleHandleW(nullptr), 1, 1, 32, 32, And, Xor);
    Screen->Cursors[5] = Own;
    EXPECT_EQ(Screen->Cursors[5], Own);
    TFormPtr Form(new TPlainForm(nullptr));
    TProbe* Probe = Form->AddProbe(10);
    Probe->Cursor = 5;
    Form->Open();
    MovePointerTo(Probe, 5, 5);
    SendMessageW(Probe->Handle, WM_SETCURSOR, reinterpret_cast<WPARAM>(Probe->Handle),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::GetCursor(), Own);
    Screen->Cursor = crHourGlass;
    EXPECT_EQ(::GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    SendMessageW(Probe->Handle, WM_SETCURSOR, reinterpret_cast<WPARAM>(Probe->Handle),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::GetCursor(), LoadCursorW(nullptr, IDC_WAIT)) << "everywhere";
    Screen->Cursor = crDefault;
    EXPECT_EQ(::GetCursor(), Own) << "what is under the pointer says";
    Form.reset();
    Screen->Cursors[5] = nullptr;
    EXPECT_EQ(Screen->Cursors[5], LoadCursorW(nullptr, IDC_ARROW));
}

TEST(ScreenDisplay, TellsTheSystemsSizes)
{
    EXPECT_EQ(Screen->Width, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(Screen->Height, GetSystemMetrics(SM_CYSCREEN));
    EXPECT_GT(Screen->PixelsPerInch, 0);
    EXPECT_GT(Screen->WorkAreaWidth, 0);
    EXPECT_LE(Screen->WorkAreaHeight, Screen->Height);
}

TEST(ScreenFonts, AreSortedAndKnowTahoma)
{
    TStrings* Fonts = Screen->Fonts;
    ASSERT_GT(Fonts->Count, 0);
    EXPECT_GE(Fonts->IndexOf("Tahoma"), 0);
    EXPECT_EQ(Screen->Fonts, Fonts) << "kept";
    Screen->ResetFonts();
}

TEST(ScreenForms, AreCounted)
{
    const int Before = Screen->FormCount;
    TFormPtr Form(new TPlainForm(nullptr));
    EXPECT_EQ(Screen->FormCount, Before + 1);
    EXPECT_THROW(Screen->Forms[Before + 1], EListError);
    Screen->DisableAlign();
    TProbe* Probe = Form->AddProbe(50);
    Form->HandleNeeded();
    Probe->Align = alTop;
    EXPECT_EQ(Probe->Top, 50);
    Screen->EnableAlign();
    EXPECT_EQ(Probe->Top, 0);
    Form.reset();
    EXPECT_EQ(Screen->FormCount, Before);
}
