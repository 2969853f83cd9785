// MDI children: their windows, activation, states and closing, with real input where that matters.
#include "tests/forms/MdiTest.h"

using testing::ElementsAre;

namespace {

class MdiChildren : public TMdiTest {};

// Read from a form file, with a size and a place that the system chooses.
class TMdiDocument : public TForm {
    VCL_CLASS(TMdiDocument, TForm)
public:
    explicit TMdiDocument(TComponent* AOwner) : TForm(AOwner) { LoadForm(this); }

    void FormCreate(TObject*) { Log.push_back(HandleAllocated() || Visible ? "create late" : "create hidden"); }
    void FormShow(TObject*) { Log.push_back("show"); }
    void FormActivate(TObject*) { Log.push_back("activate"); }

    TProbe* Edit = nullptr;
    TLog Log;
};

void TMdiDocument::Describe(TClassBuilder<TMdiDocument>& Class)
{
    Class.Field<&Self::Edit>("Edit");
    Class.Method<&Self::FormCreate>("FormCreate");
    Class.Method<&Self::FormShow>("FormShow");
    Class.Method<&Self::FormActivate>("FormActivate");
}

// Makes its first child while it is made itself.
class TMdiOpener : public TMdiMain {
    VCL_CLASS(TMdiOpener, TMdiMain)
public:
    explicit TMdiOpener(TComponent* AOwner) : TMdiMain(AOwner) { First = new TMdiNote(this); }

    TMdiNote* First;
};

void TMdiOpener::Describe(TClassBuilder<TMdiOpener>&)
{}

TPoint CaptionOf(TForm* Form)
{
    TRect R;
    GetWindowRect(Form->Handle, &R);
    return {R.Left + R.Width() / 3, R.Top + GetSystemMetrics(SM_CYSIZEFRAME) + GetSystemMetrics(SM_CYCAPTION) / 2};
}

// The system has a message loop of its own while a button is down there.
void ClickOnFrame()
{
    SendButton(mbLeft, true);
    SendButton(mbLeft, false);
    PumpMessages();
}

} // namespace

TEST(MdiChildrenWithout, AChildNeedsAMainFormForIt)
{
    TFormPtr Form(new TPlainForm(nullptr));
    EXPECT_THROW(Form->FormStyle = fsMDIChild, EInvalidOperation);
    EXPECT_EQ(Form->FormStyle, fsNormal);
    EXPECT_FALSE(Form->Visible);
    // A form with the style that is not the main form holds no children either.
    Form->FormStyle = fsMDIForm;
    Form->HandleNeeded();
    try {
        TMdiNote Note(nullptr);
        ADD_FAILURE() << "made";
    } catch (EInvalidOperation& E) {
        EXPECT_EQ(E.Message, "Cannot create form. No MDI forms are currently active");
    }
    EXPECT_EQ(Form->MDIChildCount, 0);
}

TEST_F(MdiChildren, AChildShowsInTheClientWindowAsSoonAsItIsMade)
{
    Open(1);
    TMdiNote* Note = Notes[0];
    EXPECT_TRUE(Note->Visible);
    EXPECT_EQ(Note->Position, poDefault);
    EXPECT_EQ(GetParent(Note->Handle), Main->ClientHandle);
    EXPECT_NE(Note->ExStyle() & WS_EX_MDICHILD, 0u);
    EXPECT_NE(Note->Style() & WS_CHILD, 0u);
    EXPECT_TRUE(IsWindowVisible(Note->Handle));
    EXPECT_TRUE(Note->FormState.Contains(fsCreatedMDIChild));
    EXPECT_EQ(Note->Parent, nullptr);
    ExpectActive(Note);
    EXPECT_TRUE(Note->A->Focused());
}

TEST_F(MdiChildren, DefaultPlacesCascade)
{
    Open(3);
    EXPECT_GT(Notes[1]->Left, Notes[0]->Left);
    EXPECT_GT(Notes[1]->Top, Notes[0]->Top);
    EXPECT_GT(Notes[2]->Left, Notes[1]->Left);
    EXPECT_EQ(Notes[0]->Width, Notes[1]->Width);
}

TEST_F(MdiChildren, APlaceOfItsOwnIsInTheClientWindow)
{
    Open(1);
    TMdiNote* Note = Notes[0];
    Note->SetBounds(17, 23, 210, 140);
    TRect R;
    GetWindowRect(Note->Handle, &R);
    MapWindowPoints(nullptr, Main->ClientHandle, reinterpret_cast<POINT*>(&R), 2);
    EXPECT_EQ(R, Bounds(17, 23, 210, 140));
    EXPECT_EQ(Note->BoundsRect, R);
}

TEST_F(MdiChildren, ChildrenAlwaysHaveACaption)
{
    Open(1);
    Notes[0]->BorderStyle = bsNone;
    EXPECT_EQ(Notes[0]->Style() & WS_CAPTION, WS_CAPTION);
    Notes[0]->BorderStyle = bsDialog;
    EXPECT_EQ(Notes[0]->Style() & WS_CAPTION, WS_CAPTION);
    Notes[0]->BorderIcons = {biSystemMenu};
    EXPECT_EQ(Notes[0]->Style() & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX), 0u);
}

TEST_F(MdiChildren, AChildHasAnIcon)
{
    Open(1);
    EXPECT_NE(Notes[0]->GetIconHandle(), nullptr);
    EXPECT_EQ(reinterpret_cast<HICON>(SendMessageW(Notes[0]->Handle, WM_GETICON, ICON_BIG, 0)),
              Notes[0]->GetIconHandle());
}

TEST_F(MdiChildren, AChildCannotBeHidden)
{
    Open(1);
    try {
        Notes[0]->Hide();
        ADD_FAILURE() << "hidden";
    } catch (EInvalidOperation& E) {
        EXPECT_EQ(E.Message, "Cannot hide an MDI Child Form");
    }
    EXPECT_TRUE(Notes[0]->Visible);
    EXPECT_TRUE(IsWindowVisible(Notes[0]->Handle));
    EXPECT_THROW(Notes[0]->ShowModal(), EInvalidOperation);
}

// ---- activation

TEST_F(MdiChildren, AClickActivates)
{
    Open(2);
    Main->TileMode = tbVertical;
    Main->Tile();
    MovePointerTo(Notes[0]->B, 5, 5);
    ClickButton();
    ExpectActive(Notes[0]);
    MovePointerTo(Notes[1], 100, 100);
    ClickButton();
    ExpectActive(Notes[1]);
    MovePointer(CaptionOf(Notes[0]));
    ClickOnFrame();
    ExpectActive(Notes[0]);
}

TEST_F(MdiChildren, EachChildKeepsItsActiveControl)
{
    Open(2);
    Notes[1]->B->SetFocus();
    Notes[0]->Show();
    EXPECT_TRUE(Notes[0]->A->Focused());
    Main->Next();
    EXPECT_TRUE(Notes[1]->B->Focused());
    EXPECT_EQ(Screen->ActiveControl, Notes[1]->B);
    EXPECT_EQ(Notes[0]->ActiveControl, Notes[0]->A);
    TypeKey(VK_TAB);
    EXPECT_TRUE(Notes[1]->A->Focused()) << "tab stays inside";
}

TEST_F(MdiChildren, FocusingAControlActivatesItsChild)
{
    Open(2);
    Notes[0]->B->SetFocus();
    ExpectActive(Notes[0]);
    EXPECT_TRUE(Notes[0]->B->Focused());
    ::SetFocus(Notes[1]->B->Handle);
    ExpectActive(Notes[1]);
    EXPECT_TRUE(Notes[1]->B->Focused());
    Notes[0]->SetFocus();
    ExpectActive(Notes[0]);
}

TEST_F(MdiChildren, ActivateAndDeactivateAreTold)
{
    Open(2);
    TLog Log;
    for (TMdiNote* Note : Notes) {
        Note->OnActivate = [&Log, Note](TObject*) { Log.push_back("+" + Note->Caption); };
        Note->OnDeactivate = [&Log, Note](TObject*) { Log.push_back("-" + Note->Caption); };
    }
    Notes[0]->Show();
    EXPECT_THAT(Log, ElementsAre("-Note 2", "+Note 1"));
    Log.clear();
    Main->Next();
    EXPECT_THAT(Log, ElementsAre("-Note 1", "+Note 2"));
    for (TMdiNote* Note : Notes)
        Note->OnActivate = Note->OnDeactivate = nullptr;
}

TEST_F(MdiChildren, WindowProcHooksSeeTheActivation)
{
    Open(2);
    TLog Log;
    std::vector<TWndMethod> Before;
    for (TMdiNote* Note : Notes) {
        TWndMethod Next = Note->WindowProc;
        Before.push_back(Next);
        Note->WindowProc = [&Log, Note, Next](TMessage& Message) {
            if (Message.Msg == WM_MDIACTIVATE) {
                const bool Activated = reinterpret_cast<HWND>(Message.LParam) == Note->Handle;
                Log.push_back((Activated ? "+" : "-") + Note->Caption);
            }
            Next(Message);
        };
    }
    Notes[0]->Show();
    EXPECT_THAT(Log, ElementsAre("-Note 2", "+Note 1"));
    for (size_t I = 0; I < Notes.size(); ++I)
        Notes[I]->WindowProc = Before[I];
}

TEST_F(MdiChildren, TheActiveChildComesBackWithTheProgram)
{
    TProbe* Edit = Main->AddProbe(0);
    Edit->Align = alTop;
    Open(2);
    Notes[1]->B->SetFocus();
    TFormPtr Other(new TPlainForm(nullptr));
    Other->Open();
    EXPECT_EQ(Screen->ActiveForm, Other.get());
    Main->SetFocus();
    PumpMessages();
    EXPECT_TRUE(Notes[1]->B->Focused());
    ExpectActive(Notes[1]);
    // A control of the main form keeps the focus, too.
    Edit->SetFocus();
    EXPECT_TRUE(Edit->Focused());
    EXPECT_EQ(Screen->ActiveForm, Main);
    Other->Open();
    Main->SetFocus();
    EXPECT_TRUE(Edit->Focused());
    EXPECT_EQ(Active(), Notes[1]);
}

TEST_F(MdiChildren, BringToFrontActivates)
{
    Open(2);
    Notes[0]->BringToFront();
    ExpectActive(Notes[0]);
}

// ---- form files

TEST_F(MdiChildren, AChildFromAFormFileShowsWhenItIsReady)
{
    Main->Open();
    std::unique_ptr<TMdiDocument> Document(new TMdiDocument(nullptr));
    EXPECT_THAT(Document->Log, ElementsAre("create hidden", "show", "activate"));
    EXPECT_EQ(Main->ActiveMDIChild, Document.get());
    EXPECT_TRUE(Document->Edit->Focused());
    EXPECT_EQ(Document->ClientWidth, 222);
    EXPECT_EQ(Document->ClientHeight, 111);
}

TEST(MdiChildrenWithout, AFormFileIsRefused)
{
    EXPECT_THROW(TMdiDocument(nullptr), EInvalidOperation);
}

TEST(MdiChildrenWithout, ChildrenMayBeMadeInOnCreateOfTheMainForm)
{
    TMdiOpener* Main = nullptr;
    Application->CreateForm(&Main);
    EXPECT_EQ(Main->MDIChildCount, 1);
    EXPECT_TRUE(Main->First->Visible);
    Main->Visible = true;
    EXPECT_TRUE(PumpUntil([&] { return Main->First->Active; }));
    EXPECT_EQ(Screen->ActiveForm, Main->First);
    delete Main;
}

// ---- keys

TEST_F(MdiChildren, CtrlF6GoesToTheNextChild)
{
    Open(2);
    TypeKey(VK_F6, {ssCtrl});
    ExpectActive(Notes[0]);
    TypeKey(VK_F6, {ssCtrl, ssShift});
    ExpectActive(Notes[1]);
}

TEST_F(MdiChildren, TheOnlyChildIsItsOwnNext)
{
    Open(1);
    Notes[0]->WindowState = wsMaximized;
    TypeKey(VK_F6, {ssCtrl});
    EXPECT_EQ(Notes[0]->WindowState, wsMaximized);
    Main->Next();
    Main->Previous();
    EXPECT_EQ(Notes[0]->WindowState, wsMaximized);
    ExpectActive(Notes[0]);
}

TEST_F(MdiChildren, CtrlF4ClosesTheActiveChild)
{
    Open(2);
    Notes[1]->OnClose = [](TObject*, TCloseAction& Action) { Action = caFree; };
    TypeKey(VK_F4, {ssCtrl});
    PumpMessages();
    EXPECT_EQ(Main->MDIChildCount, 1);
    ExpectActive(Notes[0]);
}

TEST_F(MdiChildren, TheKeysAreLeftToAModalForm)
{
    Open(2);
    TFormPtr Dialog(new TPlainForm(nullptr));
    TProbe* Probe = Dialog->AddProbe(10);
    PostAction([&] {
        TypeKey(VK_F6, {ssCtrl});
        Dialog->ModalResult = mrOk;
    });
    EXPECT_EQ(Dialog->ShowModal(), mrOk);
    EXPECT_THAT(Probe->Keys, testing::Contains(VK_F6));
    PumpMessages();
    ExpectActive(Notes[1]);
}

// ---- states

TEST_F(MdiChildren, TheMaximizedStateGoesOnToTheNextChild)
{
    Open(3);
    const TRect Before = Notes[1]->BoundsRect;
    Notes[2]->WindowState = wsMaximized;
    EXPECT_TRUE(IsZoomed(Notes[2]->Handle));
    TypeKey(VK_F6, {ssCtrl});
    TMdiNote* Now = Active();
    EXPECT_NE(Now, Notes[2]);
    EXPECT_EQ(Now->WindowState, wsMaximized);
    EXPECT_EQ(Notes[2]->WindowState, wsNormal);
    auto* New = new TMdiNote(Main);
    EXPECT_EQ(New->WindowState, wsMaximized) << "a new one, too";
    ExpectActive(New);
    delete New;
    EXPECT_EQ(Active()->WindowState, wsMaximized) << "and the one that follows a closed one";
    Notes[1]->Show();
    Notes[1]->WindowState = wsNormal;
    EXPECT_EQ(Notes[1]->BoundsRect, Before);
}

TEST_F(MdiChildren, AChildMayBeMaximizedOrMinimizedFromTheStart)
{
    Open(1);
    auto* Note = new TPlainForm(Main);
    Note->WindowState = wsMaximized;
    Note->FormStyle = fsMDIChild;
    EXPECT_TRUE(IsZoomed(Note->Handle));
    EXPECT_EQ(Main->ActiveMDIChild, Note);
    delete Note;
    Notes[0]->WindowState = wsNormal;
    Note = new TPlainForm(Main);
    Note->WindowState = wsMinimized;
    Note->FormStyle = fsMDIChild;
    EXPECT_TRUE(IsIconic(Note->Handle));
    EXPECT_EQ(Note->WindowState, wsMinimized);
}

TEST_F(MdiChildren, ADoubleClickOnTheCaptionMaximizes)
{
    Open(1);
    MovePointer(CaptionOf(Notes[0]));
    ClickOnFrame();
    ClickOnFrame();
    EXPECT_TRUE(PumpUntil([&] { return Notes[0]->WindowState == wsMaximized; }));
}

// ---- closing

TEST_F(MdiChildren, ClosingMinimizesUnlessToldOtherwise)
{
    Open(2);
    Notes[1]->Close();
    EXPECT_EQ(Notes[1]->WindowState, wsMinimized);
    EXPECT_TRUE(IsIconic(Notes[1]->Handle));
    Notes[0]->BorderIcons = {biSystemMenu};
    Notes[0]->Close();
    EXPECT_EQ(Notes[0]->WindowState, wsNormal) << "it has no button to minimize it either";
    TCloseAction Asked = caFree;
    Notes[0]->OnClose = [&](TObject*, TCloseAction& Action) { Asked = Action; };
    Notes[0]->Close();
    EXPECT_EQ(Asked, caNone);
    Notes[1]->OnClose = [&](TObject*, TCloseAction& Action) { Action = caFree; };
    Notes[1]->Close();
    PumpMessages();
    EXPECT_EQ(Main->MDIChildCount, 1);
}

TEST_F(MdiChildren, TheKeyboardIsTheMainFormsWhenTheLastChildGoes)
{
    Open(1);
    delete Notes[0];
    PumpMessages();
    EXPECT_EQ(Main->MDIChildCount, 0);
    EXPECT_EQ(Main->ActiveMDIChild, nullptr);
    EXPECT_EQ(Screen->ActiveForm, Main);
    int Keys = 0;
    Main->OnKeyDown = [&](TObject*, uint16_t&, TShiftState) { ++Keys; };
    TypeKey('X');
    EXPECT_EQ(Keys, 1);
}

TEST_F(MdiChildren, AChildMayBecomeAnOrdinaryForm)
{
    Open(2);
    Notes[1]->FormStyle = fsNormal;
    EXPECT_EQ(Main->MDIChildCount, 1);
    EXPECT_EQ(Active(), Notes[0]);
    EXPECT_TRUE(Notes[1]->Visible);
    EXPECT_EQ(Notes[1]->Style() & WS_CHILD, 0u);
    Notes[1]->Hide();
    Notes[1]->FormStyle = fsMDIChild;
    EXPECT_TRUE(Notes[1]->Visible);
    ExpectActive(Notes[1]);
}
