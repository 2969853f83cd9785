// Focus, tab order, dialog keys, accelerators and menus of forms, with real keys.
#include "tests/forms/TestForms.h"

#include <utility>

using testing::ElementsAre;

namespace {

class FormKeys : public testing::Test {
protected:
    void SetUp() override
    {
        Form.reset(new TPlainForm(nullptr));
        A = Form->AddProbe(10, "A");
        B = Form->AddProbe(40, "B");
        C = Form->AddProbe(70, "&Cc");
    }
    void TearDown() override { Form.reset(); }

    TFormPtr Form;
    TProbe* A = nullptr;
    TProbe* B = nullptr;
    TProbe* C = nullptr;
};

} // namespace

TEST_F(FormKeys, TheFirstControlHasTheFocus)
{
    Form->Open();
    EXPECT_EQ(Form->ActiveControl, A);
    EXPECT_TRUE(A->Focused());
    EXPECT_EQ(Screen->ActiveControl, A);
}

TEST_F(FormKeys, TheActiveControlCanBeChosenBeforeTheFormShows)
{
    Form->ActiveControl = B;
    EXPECT_FALSE(B->Focused());
    Form->Open();
    EXPECT_TRUE(B->Focused());
    C->Enabled = false;
    EXPECT_THROW(Form->ActiveControl = C, EInvalidOperation);
    EXPECT_THROW(C->SetFocus(), EInvalidOperation);
    EXPECT_EQ(Form->ActiveControl, B);
}

TEST_F(FormKeys, TabGoesRoundAndShiftTabBack)
{
    Form->Open();
    TypeKey(VK_TAB);
    EXPECT_TRUE(B->Focused());
    TypeKey(VK_TAB);
    TypeKey(VK_TAB);
    EXPECT_TRUE(A->Focused());
    TypeKey(VK_TAB, {ssShift});
    EXPECT_TRUE(C->Focused());
    B->TabStop = false;
    TypeKey(VK_TAB, {ssShift});
    EXPECT_TRUE(A->Focused());
    EXPECT_TRUE(A->Keys.empty() || A->Keys.back() != VK_TAB) << "the form used the key up";
}

TEST_F(FormKeys, ArrowsMoveUnlessTheControlWantsThem)
{
    Form->Open();
    TypeKey(VK_DOWN);
    EXPECT_TRUE(B->Focused());
    TypeKey(VK_UP);
    EXPECT_TRUE(A->Focused());
    A->WantsArrows = true;
    TypeKey(VK_DOWN);
    EXPECT_TRUE(A->Focused());
    EXPECT_THAT(A->Keys, ElementsAre(VK_DOWN));
}

TEST_F(FormKeys, EnterAndLeaveAreToldInOrder)
{
    TLog Log;
    auto Note = [&](const char* What) { return [&Log, What](TObject*) { Log.push_back(What); }; };
    A->OnEnter = Note("enter A");
    A->OnExit = Note("exit A");
    B->OnEnter = Note("enter B");
    B->OnExit = Note("exit B");
    Form->Open();
    TypeKey(VK_TAB);
    A->SetFocus();
    EXPECT_THAT(Log, ElementsAre("enter A", "exit A", "enter B", "exit B", "enter A"));
}

TEST_F(FormKeys, AnExitHandlerMaySendTheFocusBack)
{
    A->OnExit = [&](TObject*) { A->SetFocus(); };
    Form->Open();
    TypeKey(VK_TAB);
    EXPECT_TRUE(A->Focused());
    EXPECT_EQ(Form->ActiveControl, A);
    A->OnExit = nullptr;
}

TEST_F(FormKeys, HidingOrDisablingTheFocusedControlTakesTheFocusAway)
{
    Form->Open();
    A->Visible = false;
    EXPECT_FALSE(A->Focused());
    EXPECT_EQ(Form->ActiveControl, nullptr);
    B->SetFocus();
    delete B;
    EXPECT_EQ(Form->ActiveControl, nullptr);
    EXPECT_TRUE(Form->Active);
    TypeKey(VK_TAB);
    EXPECT_TRUE(C->Focused());
}

TEST_F(FormKeys, AcceleratorsReachTheirControl)
{
    Form->Open();
    TypeKey('C', {ssAlt});
    EXPECT_EQ(C->Actions, 1);
    TypeKey('C');
    EXPECT_EQ(C->Actions, 2) << "without Alt too, where no control wants characters";
    C->Enabled = false;
    TypeKey('C', {ssAlt});
    EXPECT_EQ(C->Actions, 2);
}

TEST_F(FormKeys, ReturnAndEscapeAreOfferedToDefaultAndCancel)
{
    B->DialogKey = VK_RETURN;
    C->DialogKey = VK_ESCAPE;
    Form->Open();
    TypeKey(VK_RETURN);
    EXPECT_EQ(B->Actions, 1);
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(C->Actions, 1);
    EXPECT_TRUE(A->Keys.empty());
    EXPECT_TRUE(A->Focused());
}

TEST_F(FormKeys, ADefaultControlEndsAModalForm)
{
    B->DialogKey = VK_RETURN;
    B->OnAction = [&](TObject*) { Form->ModalResult = mrOk; };
    PostAction([] { TypeKey(VK_RETURN); });
    EXPECT_EQ(Form->ShowModal(), mrOk);
}

TEST_F(FormKeys, KeyPreviewSeesKeysFirst)
{
    TLog Log;
    Form->OnKeyDown = [&](TObject*, uint16_t& Key, TShiftState) {
        Log.push_back(AnsiString("form ") + static_cast<char>(Key));
        if (Key == 'Y')
            Key = 0;
    };
    Form->OnKeyPress = [&](TObject*, char16_t& Key) {
        if (Key == u'z')
            Key = u'x';
    };
    Form->Open();
    TypeKey('Z');
    EXPECT_TRUE(Log.empty()) << "only with KeyPreview";
    Form->KeyPreview = true;
    TypeKey('Z');
    TypeKey('Y');
    EXPECT_THAT(Log, ElementsAre("form Z", "form Y"));
    EXPECT_THAT(A->Keys, ElementsAre('Z', 'Z'));
    EXPECT_EQ(A->Chars.substr(0, 2), u"zx") << "the form may change a key";
}

TEST_F(FormKeys, OnShortCutComesBeforeEverything)
{
    Form->Open();
    int Asked = 0;
    Form->OnShortCut = [&](TWMKey& Message, bool& Handled) {
        ++Asked;
        Handled = Message.CharCode == VK_TAB;
    };
    TypeKey(VK_TAB);
    EXPECT_EQ(Asked, 1);
    EXPECT_TRUE(A->Focused());
    Form->OnShortCut = nullptr;
    Application->OnShortCut = [](TWMKey& Message, bool& Handled) { Handled = Message.CharCode == VK_TAB; };
    TypeKey(VK_TAB);
    EXPECT_TRUE(A->Focused());
    Application->OnShortCut = nullptr;
    TypeKey(VK_TAB);
    EXPECT_TRUE(B->Focused());
}

TEST_F(FormKeys, ActivateAndDeactivateAreToldBetweenForms)
{
    TLog Log;
    TFormPtr Other(new TPlainForm(nullptr));
    Other->Left = 500;
    auto Note = [&](const char* What) { return [&Log, What](TObject*) { Log.push_back(What); }; };
    Form->OnActivate = Note("activate 1");
    Form->OnDeactivate = Note("deactivate 1");
    Other->OnActivate = Note("activate 2");
    Other->OnDeactivate = Note("deactivate 2");
    int FormChanges = 0;
    Form->Open();
    Screen->OnActiveFormChange = [&](TObject*) { ++FormChanges; };
    Other->Open();
    EXPECT_EQ(Screen->ActiveForm, Other.get());
    EXPECT_EQ(Screen->Forms[0], Other.get()) << "the last active first";
    Form->SetFocus();
    EXPECT_EQ(FormChanges, 2);
    EXPECT_THAT(Log, ElementsAre("activate 1", "deactivate 1", "activate 2", "deactivate 2", "activate 1"));
    EXPECT_TRUE(A->Focused());
    Screen->OnActiveFormChange = nullptr;
    Other->OnDeactivate = nullptr;
    Form->OnDeactivate = nullptr;
}

TEST_F(FormKeys, HidingAFormActivatesTheNextOfTheProgram)
{
    TFormPtr Other(new TPlainForm(nullptr));
    Form->Open();
    Other->Open();
    Other->Hide();
    EXPECT_TRUE(Form->Active);
    EXPECT_EQ(Screen->ActiveForm, Form.get());
}

TEST_F(FormKeys, DeletingAControlOfAnotherOwnerForgetsIt)
{
    auto* Stray = new TProbe(nullptr);
    Stray->Parent = Form.get();
    Form->Open();
    Stray->SetFocus();
    ASSERT_EQ(Screen->ActiveControl, Stray);
    delete Stray;
    EXPECT_NE(Screen->ActiveControl, Stray);
    EXPECT_EQ(Form->ActiveControl, nullptr);
    TypeKey(VK_TAB);
    EXPECT_TRUE(A->Focused());
}

TEST_F(FormKeys, AFormThatIsDeletedTellsNoControlOfIt)
{
    int Exits = 0;
    A->OnExit = [&](TObject*) { ++Exits; };
    Form->OnDeactivate = [&](TObject*) { ++Exits; };
    Form->Open();
    PumpMessages();
    ASSERT_TRUE(A->Focused());
    Form.reset();
    PumpMessages();
    EXPECT_EQ(Exits, 0);
}

TEST_F(FormKeys, AHandlerMayDeleteTheControlThatGetsTheFocus)
{
    Form->Open();
    A->OnExit = [&](TObject*) { delete std::exchange(B, nullptr); };
    B->SetFocus();
    EXPECT_EQ(Form->ControlCount, 2);
    A->OnExit = nullptr;
    A->SetFocus();
    EXPECT_TRUE(A->Focused());
}

namespace {

class FormMenus : public FormKeys {
protected:
    void SetUp() override
    {
        FormKeys::SetUp();
        auto Note = [this](TObject* Sender) { Log.push_back(StripHotkey(As<TMenuItem>(Sender)->Caption)); };
        Menu = new TMainMenu(Form.get());
        Menu->Items->Add(NewSubMenu("&File", 0, "",
                                    {NewItem("&Open", scNone, false, true, Note, 0, "", Form.get()),
                                     NewItem("&Save", ShortCut('S', {ssCtrl}), false, true, Note, 0, "", Form.get())},
                                    true, Form.get()));
        Menu->Items->Items[0]->Items[1]->Hint = "Save|Writes the file";
        Form->Menu = Menu;
    }

    TMainMenu* Menu = nullptr;
    TLog Log;
};

// Sends keys when the menu is open; the menu has its own message loop.
void KeysWhileMenuIsOpen(std::initializer_list<WORD> Keys)
{
    for (WORD Key : Keys)
        for (DWORD Flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
            INPUT Input{};
            Input.type = INPUT_KEYBOARD;
            Input.ki.wVk = Key;
            Input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(Key, MAPVK_VK_TO_VSC));
            Input.ki.dwFlags = Flags;
            SendInput(1, &Input, sizeof Input);
        }
}

} // namespace

TEST_F(FormMenus, ShortCutsWorkFromEveryControl)
{
    Form->Open();
    B->SetFocus();
    TypeKey('S', {ssCtrl});
    EXPECT_THAT(Log, ElementsAre("Save"));
    EXPECT_TRUE(B->Keys.empty() || B->Keys.back() != 'S') << "the key is used up";
    Menu->Items->Items[0]->Enabled = false;
    TypeKey('S', {ssCtrl});
    EXPECT_EQ(Log.size(), 1u);
}

TEST_F(FormMenus, TheBarWorksByKey)
{
    TLog Hints;
    Application->OnHint = [&](TObject*) { Hints.push_back(Application->Hint); };
    Form->Open();
    // Down to Save, with its hint told, then chosen.
    HWND Window = Form->Handle;
    SetTimer(Window, 77, 2000, [](HWND Owner, UINT, UINT_PTR Id, DWORD) {
        KillTimer(Owner, Id);
        EndMenu();
    });
    PostMessageW(Window, WM_SYSCOMMAND, SC_KEYMENU, 'f');
    KeysWhileMenuIsOpen({VK_DOWN, VK_RETURN});
    EXPECT_TRUE(PumpUntil([&] { return !Log.empty(); }));
    KillTimer(Window, 77);
    EXPECT_THAT(Log, ElementsAre("Save"));
    EXPECT_THAT(Hints, testing::Contains("Writes the file"));
    EXPECT_EQ(Application->Hint, "");
    Application->OnHint = nullptr;
}

TEST_F(FormMenus, TheMainMenuComesAndGoesWithItsItems)
{
    Form->Open();
    const int Height = Form->ClientHeight;
    EXPECT_NE(::GetMenu(Form->Handle), nullptr);
    Menu->Items->Items[0]->Visible = false;
    EXPECT_EQ(::GetMenu(Form->Handle), nullptr) << "no blank strip";
    EXPECT_GT(Form->ClientHeight, Height);
    Menu->Items->Items[0]->Visible = true;
    EXPECT_EQ(Form->ClientHeight, Height);
    delete Menu;
    EXPECT_EQ(Form->Menu, nullptr);
    EXPECT_EQ(::GetMenu(Form->Handle), nullptr);
}

TEST_F(FormMenus, DialogsShowNone)
{
    Form->BorderStyle = bsDialog;
    Form->Open();
    EXPECT_EQ(::GetMenu(Form->Handle), nullptr);
    Form->BorderStyle = bsSingle;
    EXPECT_NE(::GetMenu(Form->Handle), nullptr);
}

TEST_F(FormMenus, PopupShortCutsWorkWhileTheirControlHasTheFocus)
{
    auto* Popup = new TPopupMenu(Form.get());
    Popup->Items->Add(NewItem(
        "Mark", ShortCut('M', {ssCtrl}), false, true, [this](TObject*) { Log.push_back("mark"); }, 0, "", Form.get()));
    B->PopupMenu = Popup;
    Form->Open();
    TypeKey('M', {ssCtrl});
    EXPECT_TRUE(Log.empty());
    B->SetFocus();
    TypeKey('M', {ssCtrl});
    EXPECT_THAT(Log, ElementsAre("mark"));
}
