#include "tests/controls/TestWindow.h"
#include "tests/support/Reports.h"

using TreeTest = ControlsTest;

TEST_F(TreeTest, WindowlessControlsComeFirstInTheList)
{
    auto* Box = Add<TBox>(&Window, 0, 0, 10, 10);
    auto* Probe = Add<TProbe>(&Window, 0, 0, 10, 10);
    ASSERT_EQ(Window.ControlCount, 2);
    EXPECT_EQ(Window.Controls[0], Probe);
    EXPECT_EQ(Window.Controls[1], Box);
    EXPECT_THROW((void)Window.Controls[2], EListError);
    EXPECT_THROW((void)Window.Controls[-1], EListError);
}

TEST_F(TreeTest, AControlCannotLieInItself)
{
    auto* Outer = Add<TBox>(&Window, 0, 0, 50, 50);
    auto* Inner = Add<TBox>(Outer, 0, 0, 20, 20);
    EXPECT_THROW(Outer->Parent = Inner, EInvalidOperation);
    EXPECT_THROW(Outer->Parent = Outer, EInvalidOperation);
    EXPECT_EQ(Outer->Parent, &Window);
}

TEST_F(TreeTest, DeletingAParentDeletesChildrenOfOtherOwners)
{
    auto* Box = Add<TBox>(&Window, 0, 0, 50, 50);
    int64_t Before = LiveObjectCount();
    auto* Child = new TProbe(nullptr);
    Child->Parent = Box;
    EXPECT_GT(LiveObjectCount(), Before);
    delete Box;
    EXPECT_LE(LiveObjectCount(), Before);
    EXPECT_EQ(Window.ControlCount, 0);
}

TEST_F(TreeTest, FontAndColourFollowTheParentUntilSet)
{
    auto* Box = Add<TBox>(&Window, 0, 0, 50, 50);
    auto* Probe = Add<TProbe>(Box, 0, 0, 10, 10);
    Window.Font->Size = 14;
    Window.Color = clRed;
    EXPECT_EQ(Probe->Font->Size, 14);
    EXPECT_EQ(Probe->Color, clRed);
    EXPECT_TRUE(Probe->ParentFont);
    Box->Font->Size = 20;
    EXPECT_FALSE(Box->ParentFont);
    Probe->Color = clBlue;
    EXPECT_FALSE(Probe->ParentColor);
    Window.Font->Size = 8;
    Window.Color = clLime;
    EXPECT_EQ(Probe->Font->Size, 20);
    EXPECT_EQ(Probe->Color, clBlue);
    Probe->ParentColor = true;
    EXPECT_EQ(Probe->Color, clLime);
}

TEST_F(TreeTest, WindowsAreCreatedWhenShownAndOnlyThen)
{
    auto* Box = Add<TBox>(&Window, 10, 20, 50, 50);
    auto* Hidden = Add<TBox>(&Window, 0, 0, 50, 50);
    Hidden->Visible = false;
    EXPECT_FALSE(Box->HandleAllocated());
    Window.Open();
    EXPECT_TRUE(Box->HandleAllocated());
    EXPECT_TRUE(Box->Showing);
    EXPECT_FALSE(Hidden->HandleAllocated());
    EXPECT_EQ(FindControl(Box->Handle), Box);
    EXPECT_EQ(GetParent(Box->Handle), Window.Handle);
    Hidden->Visible = true;
    EXPECT_TRUE(IsWindowVisible(Hidden->Handle));
    EXPECT_EQ(FindControl(GetDesktopWindow()), nullptr);
    EXPECT_EQ(FindControl(nullptr), nullptr);
}

TEST_F(TreeTest, RecreatingAWindowKeepsTextPlaceAndChildren)
{
    auto* Box = Add<TBox>(&Window, 10, 20, 50, 50);
    auto* Inner = Add<TBox>(Box, 1, 2, 10, 10);
    Box->Caption = "Отмена";
    Window.Open();
    HWND Before = Box->Handle;
    Box->RecreateWnd();
    EXPECT_NE(Box->Handle, Before);
    EXPECT_EQ(Box->Created, 2);
    EXPECT_EQ(Box->Caption, "Отмена");
    EXPECT_EQ(Box->BoundsRect, TRect(10, 20, 60, 70));
    EXPECT_TRUE(Inner->HandleAllocated());
    EXPECT_EQ(GetParent(Inner->Handle), Box->Handle);
    EXPECT_TRUE(IsWindowVisible(Inner->Handle));
}

TEST_F(TreeTest, TheWindowsCaptionIsInUnicode)
{
    auto* Box = Add<TBox>(&Window, 0, 0, 50, 50);
    Window.Open();
    Box->Caption = "日本 Отмена 🙂";
    wchar_t Text[64];
    GetWindowTextW(Box->Handle, Text, 64);
    EXPECT_EQ(std::wstring(Text), L"日本 Отмена 🙂");
    EXPECT_EQ(Box->Caption, "日本 Отмена 🙂");
}

TEST_F(TreeTest, AWindowMadeVisibleWithItsParentCanBeHiddenAndShownAgain)
{
    auto* Outer = Add<TBox>(&Window, 0, 0, 50, 50);
    auto* Inner = Add<TBox>(Outer, 0, 0, 20, 20);
    Outer->Visible = false;
    Window.Open();
    EXPECT_FALSE(Inner->HandleAllocated());
    Outer->Visible = true;
    EXPECT_TRUE(IsWindowVisible(Inner->Handle));
    Inner->Visible = false;
    EXPECT_FALSE(IsWindowVisible(Inner->Handle));
    Window.Visible = false;
    Inner->Visible = true;
    Window.Visible = true;
    EXPECT_TRUE(IsWindowVisible(Inner->Handle));
}

TEST_F(TreeTest, LaterSiblingsLieOnTopWhateverTheOrderOfTheirWindows)
{
    auto* Low = Add<TBox>(&Window, 0, 0, 50, 50);
    auto* High = Add<TBox>(&Window, 0, 0, 50, 50);
    Low->Visible = false;
    Window.Open();
    Low->Visible = true; // its window is created last
    EXPECT_EQ(GetTopWindow(Window.Handle), High->Handle);
    Low->BringToFront();
    EXPECT_EQ(GetTopWindow(Window.Handle), Low->Handle);
    EXPECT_EQ(Window.Controls[1], Low);
    Low->SendToBack();
    EXPECT_EQ(GetTopWindow(Window.Handle), High->Handle);
}

TEST_F(TreeTest, AWindowMovesToAnotherParentWithAllThatIsInIt)
{
    auto* First = Add<TBox>(&Window, 0, 0, 100, 100);
    auto* Second = Add<TBox>(&Window, 200, 50, 100, 100);
    auto* Moved = Add<TBox>(First, 10, 20, 40, 40);
    auto* Inner = Add<TBox>(Moved, 5, 5, 10, 10);
    Inner->Color = clRed;
    Add<TBox>(Second, 0, 0, 50, 50);
    Window.Open();
    const HWND Handle = Moved->Handle;
    Moved->Parent = Second;
    EXPECT_EQ(Moved->Handle, Handle);
    EXPECT_EQ(Moved->Created + Inner->Created, 2);
    EXPECT_EQ(GetParent(Handle), Second->Handle);
    EXPECT_EQ(Moved->BoundsRect, TRect(10, 20, 50, 60));
    EXPECT_EQ(GetTopWindow(Second->Handle), Handle) << "the last child is on top";
    EXPECT_EQ(Second->Controls[1], Moved);
    EXPECT_EQ(First->ControlCount, 0);
    Window.Update();
    UpdateWindow(Inner->Handle);
    EXPECT_EQ(PixelOnScreen(Inner, 5, 5), clRed);
}

TEST_F(TreeTest, AHiddenWindowMovesAndStaysHidden)
{
    auto* First = Add<TBox>(&Window, 0, 0, 100, 100);
    auto* Second = Add<TBox>(&Window, 200, 50, 100, 100);
    auto* Moved = Add<TBox>(First, 10, 20, 40, 40);
    Window.Open();
    Moved->Visible = false;
    Moved->Parent = Second;
    EXPECT_EQ(Moved->Created, 1);
    EXPECT_FALSE(IsWindowVisible(Moved->Handle));
    Moved->Visible = true;
    EXPECT_TRUE(IsWindowVisible(Moved->Handle));
}

TEST_F(TreeTest, AWindowThatMovesToAParentThatDoesNotShowIsCreatedAnewWhenItDoes)
{
    auto* First = Add<TBox>(&Window, 0, 0, 100, 100);
    auto* Second = Add<TBox>(&Window, 200, 50, 100, 100);
    auto* Moved = Add<TBox>(First, 10, 20, 40, 40);
    Second->Visible = false;
    Window.Open();
    Moved->Parent = Second;
    EXPECT_FALSE(Moved->HandleAllocated());
    Second->Visible = true;
    EXPECT_TRUE(Moved->HandleAllocated());
    EXPECT_TRUE(IsWindowVisible(Moved->Handle));
    Moved->Parent = nullptr;
    EXPECT_FALSE(Moved->HandleAllocated());
    Moved->Parent = First;
    EXPECT_EQ(GetParent(Moved->Handle), First->Handle);
}

TEST_F(TreeTest, WindowProcCanBeHookedAndUnhookedInAnyOrderWithTheWindowRecreated)
{
    auto* Box = Add<TBox>(&Window, 0, 0, 50, 50);
    Window.Open();
    int Seen = 0;
    TWndMethod Before = Box->WindowProc;
    Box->WindowProc = [&Seen, Before](TMessage& Message) {
        Seen += Message.Msg == WM_USER + 1;
        Before(Message);
    };
    SendMessageW(Box->Handle, WM_USER + 1, 0, 0);
    Box->RecreateWnd();
    SendMessageW(Box->Handle, WM_USER + 1, 0, 0);
    Box->Perform(WM_USER + 1);
    EXPECT_EQ(Seen, 3);
    Box->WindowProc = Before;
    Box->Perform(WM_USER + 1);
    EXPECT_EQ(Seen, 3);
}

TEST_F(TreeTest, TabOrderFollowsItsNumbers)
{
    auto* A = Add<TBox>(&Window, 0, 0, 10, 10);
    auto* B = Add<TBox>(&Window, 0, 0, 10, 10);
    auto* C = Add<TBox>(&Window, 0, 0, 10, 10);
    EXPECT_EQ(A->TabOrder, 0);
    EXPECT_EQ(C->TabOrder, 2);
    C->TabOrder = 0;
    EXPECT_EQ(A->TabOrder, 1);
    EXPECT_EQ(B->TabOrder, 2);
    A->TabOrder = 99;
    EXPECT_EQ(A->TabOrder, 2);
    A->TabOrder = -1;
    EXPECT_EQ(A->TabOrder, 2);
}

TEST_F(TreeTest, FindNextControlGoesRoundAndSkipsWhatCannotHaveTheFocus)
{
    auto* A = Add<TBox>(&Window, 0, 0, 10, 10);
    auto* B = Add<TBox>(&Window, 0, 0, 10, 10);
    auto* Inner = Add<TBox>(B, 0, 0, 5, 5);
    auto* C = Add<TBox>(&Window, 0, 0, 10, 10);
    for (TBox* Box : {A, Inner, C})
        Box->TabStop = true;
    Window.Open();
    EXPECT_EQ(Window.FindNextControl(A, true, true, false), Inner);
    EXPECT_EQ(Window.FindNextControl(Inner, true, true, false), C);
    EXPECT_EQ(Window.FindNextControl(C, true, true, false), A);
    EXPECT_EQ(Window.FindNextControl(A, false, true, false), C);
    EXPECT_EQ(Window.FindNextControl(nullptr, true, true, false), A);
    C->Enabled = false;
    EXPECT_EQ(Window.FindNextControl(A, false, true, false), Inner);
    EXPECT_EQ(Window.FindNextControl(A, true, false, true), B);
}

TEST_F(TreeTest, AnExceptionInAHandlerIsReportedAndTheWindowLivesOn)
{
    const TReports Reports;
    auto* Box = Add<TBox>(&Window, 0, 0, 50, 50);
    Window.Open();
    Box->OnClick = [](TObject*) { throw EConvertError("broken"); };
    SendMessageW(Box->Handle, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(Box->Handle, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_THAT(Reports.Texts(), testing::ElementsAre("TBox: broken"));
    EXPECT_TRUE(IsWindow(Box->Handle));
}

TEST_F(TreeTest, AnExceptionOfAControlThatIsGoneHasNoSender)
{
    const TReports Reports;
    auto* Box = Add<TBox>(&Window, 0, 0, 50, 50);
    Window.Open();
    Box->OnClick = [&](TObject*) {
        delete Box;
        throw EConvertError("broken");
    };
    const HWND Handle = Box->Handle;
    SendMessageW(Handle, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(Handle, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_THAT(Reports.Texts(), testing::ElementsAre("broken"));
}

TEST_F(TreeTest, AcceleratorsAreTheLetterBehindASingleAmpersand)
{
    EXPECT_TRUE(IsAccel('o', "&Open"));
    EXPECT_TRUE(IsAccel('O', "&Open"));
    EXPECT_FALSE(IsAccel('p', "&Open"));
    EXPECT_FALSE(IsAccel('o', "Open"));
    EXPECT_TRUE(IsAccel('b', "R&&D &budget"));
    EXPECT_FALSE(IsAccel('d', "R&&D"));
    EXPECT_FALSE(IsAccel('&', "Last&"));
    EXPECT_TRUE(IsAccel(0x043E, "&Отмена")); // small о for capital О
}
