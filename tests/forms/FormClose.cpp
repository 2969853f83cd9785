// Showing, closing, releasing and modal display.
#include "tests/forms/TestForms.h"

#include "tests/support/Dialogs.h"
#include "vcl/system/LiveCount.h"

using testing::ElementsAre;

namespace {

TFormPtr NewForm()
{
    return TFormPtr(new TPlainForm(nullptr));
}

} // namespace

TEST(ClosingForms, HidesByDefault)
{
    TFormPtr Form(NewForm());
    TLog Log;
    Form->OnShow = [&](TObject*) { Log.push_back("show"); };
    Form->OnHide = [&](TObject*) { Log.push_back("hide"); };
    Form->OnClose = [&](TObject*, TCloseAction& Action) {
        Log.push_back("close");
        EXPECT_EQ(Action, caHide);
    };
    Form->Open();
    Form->Close();
    EXPECT_FALSE(Form->Visible);
    EXPECT_FALSE(IsWindowVisible(Form->Handle));
    EXPECT_THAT(Log, ElementsAre("show", "close", "hide"));
}

TEST(ClosingForms, CanBeForbidden)
{
    TFormPtr Form(NewForm());
    bool Closed = false;
    Form->OnCloseQuery = [](TObject*, bool& CanClose) { CanClose = false; };
    Form->OnClose = [&](TObject*, TCloseAction&) { Closed = true; };
    Form->Open();
    SendMessageW(Form->Handle, WM_CLOSE, 0, 0);
    EXPECT_TRUE(Form->Visible);
    EXPECT_FALSE(Closed);
    EXPECT_FALSE(SendMessageW(Form->Handle, WM_QUERYENDSESSION, 0, 0)) << "the session's end asks too";
    Form->OnCloseQuery = nullptr;
    Form->OnClose = [](TObject*, TCloseAction& Action) { Action = caNone; };
    Form->Close();
    EXPECT_TRUE(Form->Visible);
    Form->OnClose = [](TObject*, TCloseAction& Action) { Action = caMinimize; };
    Form->Close();
    EXPECT_EQ(Form->WindowState, wsMinimized);
}

TEST(ClosingForms, FreesWhenAsked)
{
    auto* Form = new TPlainForm(nullptr);
    bool Destroyed = false;
    Form->OnClose = [](TObject*, TCloseAction& Action) { Action = caFree; };
    Form->OnDestroy = [&](TObject*) { Destroyed = true; };
    Form->Open();
    Form->Close();
    EXPECT_FALSE(Destroyed) << "not under the handlers that run";
    EXPECT_TRUE(PumpUntil([&] { return Destroyed; }));
}

TEST(ReleasingForms, WaitsForTheHandlersEvenAcrossAMessageLoop)
{
    auto* Form = new TPlainForm(nullptr);
    TProbe* Probe = Form->AddProbe(10);
    Form->Open();
    bool Destroyed = false;
    bool DestroyedInHandler = false;
    bool Returned = false;
    Form->OnDestroy = [&](TObject*) { Destroyed = true; };
    Probe->OnKeyDown = [&](TObject* Sender, uint16_t&, TShiftState) {
        Form->Release();
        Application->ProcessMessages(); // as a message box or a modal form would
        DestroyedInHandler = Destroyed;
        static_cast<TProbe*>(Sender)->Tag = 1; // still there
        Returned = true;
    };
    TypeKey('A');
    EXPECT_TRUE(PumpUntil([&] { return Destroyed; }));
    EXPECT_TRUE(Returned);
    EXPECT_FALSE(DestroyedInHandler);
}

TEST(ReleasingForms, DeletingOneThatIsReleasedIsFine)
{
    auto* Form = new TPlainForm(nullptr);
    Form->Release();
    Form->Release();
    delete Form;
    PumpMessages();
    SUCCEED();
}

TEST(ModalForms, ReturnWhatModalResultSays)
{
    TFormPtr Form(NewForm());
    PostAction([&] {
        EXPECT_TRUE(Form->FormState.Contains(fsModal));
        EXPECT_TRUE(Form->Active);
        Form->ModalResult = mrYes;
    });
    EXPECT_EQ(Form->ShowModal(), mrYes);
    EXPECT_FALSE(Form->Visible);
    EXPECT_FALSE(Form->FormState.Contains(fsModal));
}

TEST(ModalForms, CloseMeansCancel)
{
    TFormPtr Form(NewForm());
    PostAction([&] { PostMessageW(Form->Handle, WM_CLOSE, 0, 0); });
    EXPECT_EQ(Form->ShowModal(), mrCancel);
}

TEST(ModalForms, DisableTheOthersAndGiveTheFocusBack)
{
    TFormPtr Main(NewForm());
    TProbe* First = Main->AddProbe(10);
    TProbe* Second = Main->AddProbe(40);
    Main->Open();
    Second->SetFocus();
    ASSERT_TRUE(Second->Focused());
    TFormPtr Form(NewForm());
    TProbe* Inner = Form->AddProbe(10);
    PostAction([&] {
        EXPECT_FALSE(IsWindowEnabled(Main->Handle));
        EXPECT_TRUE(Main->Enabled) << "the property is not concerned";
        EXPECT_TRUE(Inner->Focused());
        EXPECT_EQ(Screen->ActiveForm, Form.get());
        Form->ModalResult = mrOk;
    });
    EXPECT_EQ(Form->ShowModal(), mrOk);
    EXPECT_TRUE(IsWindowEnabled(Main->Handle));
    EXPECT_TRUE(Main->Active);
    EXPECT_TRUE(Second->Focused());
    EXPECT_EQ(Screen->ActiveForm, Main.get());
    (void)First;
}

TEST(ModalForms, CloseQueryCanKeepThemOpen)
{
    TFormPtr Form(NewForm());
    int Asked = 0;
    Form->OnCloseQuery = [&](TObject*, bool& CanClose) {
        CanClose = ++Asked == 2;
        if (Asked == 1)
            PostAction([&] { Form->ModalResult = mrNo; });
    };
    PostAction([&] { Form->ModalResult = mrOk; });
    EXPECT_EQ(Form->ShowModal(), mrNo);
    EXPECT_EQ(Asked, 2);
}

TEST(ModalForms, Nest)
{
    TFormPtr Outer(NewForm());
    TFormPtr Inner(NewForm());
    TModalResult InnerResult = mrNone;
    PostAction([&] {
        PostAction([&] {
            EXPECT_FALSE(IsWindowEnabled(Outer->Handle));
            Inner->ModalResult = mrRetry;
        });
        InnerResult = Inner->ShowModal();
        EXPECT_TRUE(IsWindowEnabled(Outer->Handle));
        EXPECT_TRUE(Outer->Active);
        Outer->ModalResult = mrAbort;
    });
    EXPECT_EQ(Outer->ShowModal(), mrAbort);
    EXPECT_EQ(InnerResult, mrRetry);
}

TEST(ModalForms, ExceptionsInHandlersDoNotEndThem)
{
    TCatchExceptions Caught;
    TFormPtr Form(NewForm());
    PostAction([] { throw EInvalidOperation("oops"); });
    PostAction([&] { Form->ModalResult = mrOk; });
    EXPECT_EQ(Form->ShowModal(), mrOk);
    EXPECT_THAT(Caught.Messages, ElementsAre("oops"));
}

TEST(ModalForms, CannotBeVisibleBefore)
{
    TFormPtr Form(NewForm());
    Form->Open();
    EXPECT_THROW(Form->ShowModal(), EInvalidOperation);
}

TEST(ModalForms, MayReleaseThemselves)
{
    auto* Form = new TPlainForm(nullptr);
    bool Destroyed = false;
    Form->OnDestroy = [&](TObject*) { Destroyed = true; };
    Form->OnClose = [](TObject*, TCloseAction& Action) { Action = caFree; };
    PostAction([&] { Form->ModalResult = mrOk; });
    EXPECT_EQ(Form->ShowModal(), mrOk);
    EXPECT_TRUE(PumpUntil([&] { return Destroyed; }));
}

TEST(ModalForms, TheCursorIsTheOrdinaryOneMeanwhile)
{
    TFormPtr Form(NewForm());
    Screen->Cursor = crHourGlass;
    TCursor Inside = crNone;
    PostAction([&] {
        Inside = Screen->Cursor;
        Form->ModalResult = mrOk;
    });
    Form->ShowModal();
    EXPECT_EQ(Inside, crDefault);
    EXPECT_EQ(Screen->Cursor, crHourGlass);
    Screen->Cursor = crDefault;
}

namespace {

// Raises in one of the application's modal events, as often as it comes.
struct TFailingModalEvents {
    explicit TFailingModalEvents(bool AtTheEnd)
    {
        Application->OnModalBegin = [this, AtTheEnd](TObject*) { Note("begin", !AtTheEnd); };
        Application->OnModalEnd = [this, AtTheEnd](TObject*) { Note("end", AtTheEnd); };
    }
    ~TFailingModalEvents()
    {
        Application->OnModalBegin = nullptr;
        Application->OnModalEnd = nullptr;
    }
    void Note(const char* What, bool Fails)
    {
        Log.push_back(What);
        if (Fails)
            throw EInvalidOperation(What);
    }
    TLog Log;
};

} // namespace

TEST(ModalForms, AreFinishedOnceWhenTheApplicationsHandlersRaise)
{
    for (const bool AtTheEnd : {false, true}) {
        TCatchExceptions Caught;
        TFailingModalEvents Events(AtTheEnd);
        TFormPtr Main(NewForm());
        Main->Open();
        TFormPtr Form(NewForm());
        int Hidden = 0;
        Form->OnHide = [&](TObject*) { ++Hidden; };
        PostAction([&] { Form->ModalResult = mrYes; });
        EXPECT_EQ(Form->ShowModal(), mrYes);
        EXPECT_THAT(Caught.Messages, ElementsAre(AtTheEnd ? "end" : "begin"));
        EXPECT_FALSE(Form->FormState.Contains(fsModal));
        EXPECT_FALSE(Form->Visible);
        EXPECT_EQ(Hidden, 1);
        EXPECT_TRUE(IsWindowEnabled(Main->Handle));
        EXPECT_TRUE(Main->Active);
        PostAction([&] { Form->ModalResult = mrNo; });
        EXPECT_EQ(Form->ShowModal(), mrNo) << "and again";
        EXPECT_THAT(Events.Log, ElementsAre("begin", "end", "begin", "end"));
    }
}

TEST(ModalForms, AMessageAboutAFailingHandlerIsNotReportedToItAgain)
{
    TFailingModalEvents Events(true);
    TExpectDialogs Dialogs(IDOK);
    TFormPtr Form(NewForm());
    PostAction([&] { Form->ModalResult = mrYes; });
    EXPECT_EQ(Form->ShowModal(), mrYes);
    EXPECT_EQ(Dialogs.Texts().size(), 1u);
    EXPECT_THAT(Events.Log, ElementsAre("begin", "end"));
}

TEST(ModalForms, MayBeDeletedByAHandler)
{
    TFormPtr Main(NewForm());
    Main->Open();
    auto* Form = new TPlainForm(nullptr);
    TProbe* Probe = Form->AddProbe(10);
    Probe->OnKeyDown = [&](TObject*, uint16_t&, TShiftState) { PostAction([Form] { delete Form; }); };
    PostAction([] { TypeKey('A'); });
    EXPECT_EQ(Form->ShowModal(), mrCancel);
    EXPECT_TRUE(IsWindowEnabled(Main->Handle));
    EXPECT_TRUE(Main->Active);
}

TEST(ModalForms, MayBeDeletedWhileTheyClose)
{
    auto* Form = new TPlainForm(nullptr);
    Form->OnClose = [Form](TObject*, TCloseAction&) { delete Form; };
    PostAction([&] { Form->ModalResult = mrOk; });
    EXPECT_EQ(Form->ShowModal(), mrCancel);
}

TEST(ModalForms, MayBeDeletedWhenTheyShow)
{
    auto* Form = new TPlainForm(nullptr);
    Form->OnShow = [Form](TObject*) { PostAction([Form] { delete Form; }); };
    EXPECT_EQ(Form->ShowModal(), mrCancel);
}

TEST(ModalForms, CanBeShownAgain)
{
    TFormPtr Form(NewForm());
    for (int I = 0; I < 3; ++I) {
        PostAction([&] { Form->ModalResult = mrOk; });
        EXPECT_EQ(Form->ShowModal(), mrOk);
    }
}

TEST(DeletingForms, LeavesNoObjectsOrWindows)
{
    const int64_t Objects = LiveObjectCount();
    for (int I = 0; I < 5; ++I) {
        TFormPtr Form(NewForm());
        for (int J = 0; J < 20; ++J)
            Form->AddProbe(J * 20);
        Form->Open();
    }
    EXPECT_EQ(LiveObjectCount(), Objects);
}
