// Hints on the screen, with a real pointer.
#include "tests/forms/TestForms.h"

#include "vcl/forms/HintWindow.h"

using testing::ElementsAre;

namespace {

// The hint window that shows now, or nullptr.
THintWindow* ShownHint()
{
    THintWindow* Found = nullptr;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND Window, LPARAM Result) -> BOOL {
            auto* Hint = As<THintWindow>(FindControl(Window));
            if (Hint && IsWindowVisible(Window))
                *reinterpret_cast<THintWindow**>(Result) = Hint;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&Found));
    return Found;
}

bool WaitForHint()
{
    return PumpUntil([] { return ShownHint() != nullptr; });
}

bool WaitForNoHint()
{
    return PumpUntil([] { return ShownHint() == nullptr; });
}

// Hints a control of its own.
class THintingProbe : public TProbe {
    VCL_CLASS(THintingProbe, TProbe)
public:
    explicit THintingProbe(TComponent* AOwner) : TProbe(AOwner) {}
    bool Refuse = false;

private:
    void CMHintShow(TMessage& Message)
    {
        auto& Info = *reinterpret_cast<THintInfo*>(Message.LParam);
        const bool Left = Info.CursorPos.x < 100;
        Info.HintStr = Left ? "left" : "right";
        Info.CursorRect = Left ? Rect(0, 0, 100, Height) : Rect(100, 0, Width, Height);
        Info.HintPos = {Screen->Width - 3, Screen->Height - 3};
        Message.Result = Refuse;
    }
};

void THintingProbe::Describe(TClassBuilder<THintingProbe>& Class)
{
    Class.Message<&Self::CMHintShow>(CM_HINTSHOW);
}

class Hints : public testing::Test {
protected:
    void SetUp() override
    {
        FPause = Application->HintPause;
        FHidePause = Application->HintHidePause;
        Application->HintPause = 60;
        MovePointerAway();
        Form.reset(new TPlainForm(nullptr));
        A = Form->AddProbe(10);
        A->Hint = "Save|Writes the file";
        B = Form->AddProbe(60);
        B->Hint = "Open";
        Form->ShowHint = true;
        Form->Open();
    }
    void TearDown() override
    {
        Form.reset();
        MovePointerAway();
        Application->CancelHint();
        Application->HintPause = FPause;
        Application->HintHidePause = FHidePause;
        Application->Hint = "";
    }

    TFormPtr Form;
    TProbe* A = nullptr;
    TProbe* B = nullptr;

private:
    int FPause = 0;
    int FHidePause = 0;
};

} // namespace

TEST(HintTexts, HaveAShortAndALongPart)
{
    EXPECT_EQ(GetShortHint("Save|Writes the file"), "Save");
    EXPECT_EQ(GetLongHint("Save|Writes the file"), "Writes the file");
    EXPECT_EQ(GetShortHint("Save"), "Save");
    EXPECT_EQ(GetLongHint("Save"), "Save");
    EXPECT_EQ(GetShortHint("|long"), "");
    EXPECT_EQ(GetLongHint("short|"), "");
}

TEST_F(Hints, ShowAfterAPauseBelowThePointer)
{
    HWND Focus = GetFocus();
    MovePointerTo(A, 20, 10);
    ASSERT_TRUE(WaitForHint());
    EXPECT_EQ(ShownHint()->Caption, "Save");
    EXPECT_EQ(ShownHint()->Color, Application->HintColor);
    EXPECT_EQ(ShownHint()->Left, A->ClientToScreen({20, 10}).x);
    EXPECT_GT(ShownHint()->Top, A->ClientToScreen({20, 10}).y);
    EXPECT_EQ(GetFocus(), Focus);
}

TEST_F(Hints, TellTheLongPartAtOnce)
{
    TLog Log;
    Application->OnHint = [&](TObject*) { Log.push_back(Application->Hint); };
    MovePointerTo(A, 20, 10);
    MovePointerTo(B, 20, 10);
    MovePointerAway();
    EXPECT_TRUE(PumpUntil([&] { return Log.size() == 3; }));
    EXPECT_THAT(Log, ElementsAre("Writes the file", "Open", ""));
    Application->OnHint = nullptr;
}

TEST_F(Hints, GoWhenThePointerLeaves)
{
    MovePointerTo(A, 20, 10);
    ASSERT_TRUE(WaitForHint());
    MovePointerAway();
    EXPECT_TRUE(WaitForNoHint());
}

TEST_F(Hints, GoByThemselvesAfterAWhile)
{
    Application->HintHidePause = 80;
    MovePointerTo(A, 20, 10);
    ASSERT_TRUE(WaitForHint());
    EXPECT_TRUE(WaitForNoHint());
}

TEST_F(Hints, GoWithAKeyOrAButton)
{
    MovePointerTo(A, 20, 10);
    ASSERT_TRUE(WaitForHint());
    TypeKey('X');
    EXPECT_EQ(ShownHint(), nullptr);
    MovePointerTo(B, 20, 10);
    ASSERT_TRUE(WaitForHint());
    ClickButton();
    EXPECT_EQ(ShownHint(), nullptr);
}

TEST_F(Hints, FollowFromControlToControl)
{
    MovePointerTo(A, 20, 10);
    ASSERT_TRUE(WaitForHint());
    MovePointerTo(B, 20, 10);
    EXPECT_TRUE(PumpUntil([] { return ShownHint() && ShownHint()->Caption == "Open"; }));
}

TEST_F(Hints, AreOnlyForControlsThatShowThem)
{
    A->ShowHint = false;
    Form->ShowHint = false;
    B->ShowHint = true;
    MovePointerTo(A, 20, 10);
    EXPECT_FALSE(PumpUntil([] { return ShownHint() != nullptr; }, 300));
    MovePointerTo(B, 20, 10);
    EXPECT_TRUE(WaitForHint());
    MovePointerAway();
    Application->ShowHint = false;
    MovePointerTo(B, 20, 10);
    EXPECT_FALSE(PumpUntil([] { return ShownHint() != nullptr; }, 300));
    Application->ShowHint = true;
}

TEST_F(Hints, OnShowHintMayChangeOrRefuseThem)
{
    Application->OnShowHint = [&](AnsiString& Text, bool& CanShow, THintInfo& Info) {
        if (Info.HintControl == A)
            Text = "Changed";
        else
            CanShow = false;
        Info.HintColor = clLime;
    };
    MovePointerTo(A, 20, 10);
    ASSERT_TRUE(WaitForHint());
    EXPECT_EQ(ShownHint()->Caption, "Changed");
    EXPECT_EQ(ShownHint()->Color, clLime);
    MovePointerTo(B, 20, 10);
    EXPECT_TRUE(WaitForNoHint());
    EXPECT_FALSE(PumpUntil([] { return ShownHint() != nullptr; }, 300));
    Application->OnShowHint = nullptr;
}

TEST_F(Hints, AControlMayHintItsPartsAndStayOnTheScreen)
{
    auto* Parts = new THintingProbe(Form.get());
    Parts->SetBounds(0, 100, 200, 20);
    Parts->Parent = Form.get();
    MovePointerTo(Parts, 20, 10);
    ASSERT_TRUE(WaitForHint());
    EXPECT_EQ(ShownHint()->Caption, "left");
    const TRect Work = Screen->WorkAreaRect;
    EXPECT_LE(ShownHint()->BoundsRect.Right, Work.Right) << "moved to where it fits";
    EXPECT_LE(ShownHint()->BoundsRect.Bottom, Work.Bottom);
    MovePointerTo(Parts, 150, 10);
    EXPECT_TRUE(PumpUntil([] { return ShownHint() && ShownHint()->Caption == "right"; }));
    Parts->Refuse = true;
    MovePointerAway();
    MovePointerTo(Parts, 20, 10);
    EXPECT_FALSE(PumpUntil([] { return ShownHint() != nullptr; }, 300));
}

TEST_F(Hints, GoWithTheirControl)
{
    MovePointerTo(A, 20, 10);
    ASSERT_TRUE(WaitForHint());
    delete A;
    EXPECT_TRUE(WaitForNoHint() || ShownHint()->Caption != "Save");
}

// What the handler shows the hint in is a control of that form, more often than not.
TEST_F(Hints, AreNotToldWhileTheirFormIsBeingDeleted)
{
    MovePointerTo(A, 20, 10);
    ASSERT_TRUE(PumpUntil([] { return Application->Hint == "Writes the file"; }));
    int Told = 0;
    Application->OnHint = [&](TObject*) { ++Told; };
    Form.reset();
    EXPECT_EQ(Told, 0);
    Application->OnHint = nullptr;
}

TEST_F(Hints, AreNotShownForAFormThatAModalOneBlocks)
{
    TFormPtr Modal(new TPlainForm(nullptr));
    Modal->SetBounds(500, 100, 200, 150);
    MovePointerTo(A, 20, 10);
    ASSERT_TRUE(WaitForHint());
    PostAction([&] {
        PostAction([&] {
            EXPECT_EQ(ShownHint(), nullptr) << "what was shown has gone";
            MovePointerTo(B, 20, 10);
            EXPECT_FALSE(PumpUntil([] { return ShownHint() != nullptr; }, 300));
            Application->ActivateHint(B->ClientToScreen({20, 10}));
            EXPECT_EQ(ShownHint(), nullptr);
            Modal->ModalResult = mrOk;
        });
        Modal->ShowModal();
    });
    EXPECT_TRUE(PumpUntil([&] { return Modal->ModalResult == mrOk && !Modal->Visible; }));
    MovePointerTo(A, 20, 10);
    EXPECT_TRUE(WaitForHint()) << "the form is free again";
}
