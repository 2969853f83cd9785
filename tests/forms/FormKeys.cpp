// Focus, tab order, dialog keys and accelerators of forms, with real keys.
#include "tests/forms/KeyTest.h"

#include <utility>

using testing::ElementsAre;

namespace {
class FormKeys : public TKeyTest {};
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

TEST_F(FormKeys, AnotherActiveControlGetsTheFocusOfAnActiveForm)
{
    Form->Open();
    Form->ActiveControl = B;
    EXPECT_TRUE(B->Focused());
    Form->ActiveControl = nullptr;
    EXPECT_TRUE(Form->Focused());
}

namespace {

// What a form is told about its focus while Action runs.
template <class Function>
int FocusMessages(TPlainForm* Form, Function Action)
{
    int Count = 0;
    const TWndMethod Before = Form->WindowProc;
    Form->WindowProc = [&](TMessage& Message) {
        Count += Message.Msg == WM_SETFOCUS;
        Before(Message);
    };
    Action();
    Form->WindowProc = Before;
    return Count;
}

} // namespace

TEST_F(FormKeys, AFormThatIsHiddenOrDeletedDoesNotTakeTheFocusOfItsControl)
{
    Form->Open();
    ASSERT_TRUE(A->Focused());
    EXPECT_EQ(FocusMessages(Form.get(), [&] { Form->Hide(); }), 0);
    Form->Open();
    A->SetFocus();
    int Taken = -1;
    TPlainForm* Dying = Form.get();
    Form->OnDestroy = [&](TObject*) { Taken = FocusMessages(Dying, [&] { A->Enabled = false; }); };
    Form.reset();
    EXPECT_EQ(Taken, 0);
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

class TTestDesigner : public TDesignerHook {
public:
    bool IsDesignMsg(TControl* Sender, TMessage& Message) override
    {
        if (Message.Msg != WM_LBUTTONDOWN)
            return false;
        Pressed = Sender;
        return true;
    }
    void Modified() override {}
    void PaintGrid() override { ++Grids; }
    void ValidateRename(TComponent*, std::string_view, std::string_view NewName) override
    {
        if (NewName == "Taken")
            throw EComponentError("refused");
    }

    TControl* Pressed = nullptr;
    int Grids = 0;
};

} // namespace

TEST_F(FormKeys, ADesignerTakesMessagesBeforeTheControls)
{
    TTestDesigner Designer;
    int Clicks = 0;
    A->OnClick = [&](TObject*) { ++Clicks; };
    Form->OnPaint = [&](TObject*) { ADD_FAILURE() << "the designer paints"; };
    Form->Designer = &Designer;
    EXPECT_TRUE(A->ComponentState.Contains(csDesigning));
    Form->Open();
    MovePointerTo(A, 5, 5);
    ClickButton();
    EXPECT_EQ(Designer.Pressed, A);
    EXPECT_EQ(Clicks, 0);
    EXPECT_GT(Designer.Grids, 0);
    EXPECT_THROW(A->Name = "Taken", EComponentError);
    Form->Designer = nullptr;
    EXPECT_FALSE(A->ComponentState.Contains(csDesigning));
    MovePointerAway();
}
