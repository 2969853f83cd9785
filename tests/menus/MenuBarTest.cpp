// The menu bar of an MDI form: its length, and what it shows of a maximized child.
#include "menus/MenuBar.h"

#include "common/Panel.h"
#include "tests/menus/MenuScript.h"
#include "toolbar/Tsy_toolbar.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

#include <gmock/gmock.h>

namespace {

// Made as the program's main form.
class TBarMain : public TForm {
    VCL_CLASS(TBarMain, TForm)
public:
    explicit TBarMain(TComponent* AOwner) : TForm(AOwner, 0)
    {
        FormStyle = fsMDIForm;
        SetBounds(50, 50, 600, 400);
        Dock = new TkelDock(this);
        Dock->Height = 0;
        Dock->Parent = this;
        Side = new TkelDock(this);
        Side->Align = alLeft;
        Side->Width = 0;
        Side->Parent = this;
        Bar = new TkelMenuBar(this);
        Bar->AutoSave = false;
        Bar->Parent = Dock;
        Bar->InsertToDock();
    }

    TkelDock* Dock;
    TkelDock* Side;
    TkelMenuBar* Bar;
};

void TBarMain::Describe(TClassBuilder<TBarMain>&)
{}

class TBarChild : public TForm {
    VCL_CLASS(TBarChild, TForm)
public:
    explicit TBarChild(TComponent* AOwner) : TForm(AOwner, 0)
    {
        FormStyle = fsMDIChild;
        OnClose = [](TObject*, TCloseAction& Action) {
            ++Closed;
            Action = caFree;
        };
    }
    static inline int Closed = 0;
};

void TBarChild::Describe(TClassBuilder<TBarChild>&)
{}

class MenuBarTest : public testing::Test {
protected:
    static void SetUpTestSuite() { MakeWhatMenusShare(); }
    void SetUp() override
    {
        UseMessageLoop([] { Application->ProcessMessages(); });
        TBarChild::Closed = 0;
        Application->CreateForm(&Main);
        Main->Show();
        ASSERT_TRUE(PumpUntil([&] { return GetForegroundWindow() == Main->Handle; }));
        Bar = Main->Bar;
    }
    void TearDown() override
    {
        MovePointerAway();
        delete Main;
        PumpMessages();
        UseMessageLoop(nullptr);
    }

    TForm* MaximizedChild()
    {
        auto* Child = new TBarChild(Main);
        Child->WindowState = wsMaximized;
        return Child;
    }
    bool ShowsChild() const
    {
        return Bar->IconPanel()->Visible && Bar->MinimizeButton()->Visible && Bar->RestoreButton()->Visible &&
               Bar->CloseButtonOfChild()->Visible;
    }
    void ClickOn(TControl* Control)
    {
        MovePointerTo(Control, Control->Width / 2, Control->Height / 2);
        ClickButton();
    }

    TBarMain* Main = nullptr;
    TkelMenuBar* Bar = nullptr;
};

} // namespace

TEST_F(MenuBarTest, TheBarIsAsLongAsItsDock)
{
    EXPECT_TRUE(PumpUntil([&] { return Bar->Left == 0 && Bar->Width == Main->Dock->Width; }));
    Main->Width = 700;
    EXPECT_TRUE(PumpUntil([&] { return Bar->Width == Main->Dock->Width; }));
    Bar->DeleteFromDock();
    Bar->Parent = Main->Side;
    Bar->InsertToDock();
    EXPECT_TRUE(PumpUntil([&] { return Bar->Top == 0 && Bar->Height == Main->Side->Height; }));
}

TEST_F(MenuBarTest, WithoutAMaximizedChildNothingOfItShows)
{
    EXPECT_FALSE(Bar->IconPanel()->Visible);
    new TBarChild(Main);
    Bar->DoTimer(nullptr);
    EXPECT_FALSE(ShowsChild());
}

TEST_F(MenuBarTest, AMaximizedChildShowsItsIconAtTheStartAndItsButtonsAtTheEnd)
{
    MaximizedChild();
    ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
    EXPECT_FALSE(Bar->ChildIcon()->Icon->Empty);
    EXPECT_LT(Bar->DragBox->Left, Bar->IconPanel()->Left);
    EXPECT_LT(Bar->IconPanel()->Left, Bar->MinimizeButton()->Left);
    EXPECT_LT(Bar->MinimizeButton()->Left, Bar->RestoreButton()->Left);
    EXPECT_LT(Bar->RestoreButton()->Left, Bar->CloseButtonOfChild()->Left);
    EXPECT_EQ(Bar->CloseButtonOfChild()->Left + Bar->CloseButtonOfChild()->Width, Bar->Width - 2);
}

TEST_F(MenuBarTest, TheButtonsActOnTheChild)
{
    TForm* Child = MaximizedChild();
    ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
    ClickOn(Bar->RestoreButton());
    EXPECT_EQ(Child->WindowState, wsNormal);
    EXPECT_FALSE(Bar->IconPanel()->Visible);
    Child->WindowState = wsMaximized;
    ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
    ClickOn(Bar->MinimizeButton());
    EXPECT_EQ(Child->WindowState, wsMinimized);
    EXPECT_FALSE(Bar->IconPanel()->Visible);
    Child->WindowState = wsMaximized;
    ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
    ClickOn(Bar->CloseButtonOfChild());
    EXPECT_EQ(TBarChild::Closed, 1);
    EXPECT_TRUE(PumpUntil([&] { return Main->MDIChildCount == 0; }));
    EXPECT_FALSE(Bar->IconPanel()->Visible);
}

TEST_F(MenuBarTest, TheSystemMenuHasTheItemsOfAMaximizedWindow)
{
    struct {
        const char* Caption;
        int Tag;
        bool Enabled;
    } Items[] = {{"&Restore", 1, true},   {"&Move", 0, false}, {"&Size", 0, false}, {"&Minimize", 2, true},
                 {"&Maximize", 3, false}, {"-", 0, true},      {"&Close", 4, true}};
    TMenuItem* Root = Bar->SystemMenu()->Items;
    ASSERT_EQ(Root->Count, static_cast<int>(std::size(Items)));
    for (int I = 0; I < Root->Count; ++I) {
        EXPECT_EQ(Root->Items[I]->Caption, Items[I].Caption);
        EXPECT_EQ(Root->Items[I]->Tag, Items[I].Tag) << Items[I].Caption;
        EXPECT_EQ(Root->Items[I]->Enabled, Items[I].Enabled) << Items[I].Caption;
    }
    EXPECT_EQ(ShortCutToText(Root->Items[6]->ShortCut), "Ctrl+F4");
    EXPECT_EQ(Bar->SystemMenu()->Glyphs->Width, 10);
    EXPECT_EQ(Bar->SystemMenu()->Glyphs->Height, 9);
}

TEST_F(MenuBarTest, ItsItemsActOnTheChildAndOthersDoNothing)
{
    TForm* Child = MaximizedChild();
    ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
    TMenuItem* Root = Bar->SystemMenu()->Items;
    Bar->DoSysMenuClick(Root->Items[1]);
    EXPECT_EQ(Child->WindowState, wsMaximized);
    Bar->DoSysMenuClick(Root->Items[0]);
    EXPECT_EQ(Child->WindowState, wsNormal);
    Bar->DoSysMenuClick(Root->Items[3]);
    EXPECT_EQ(Child->WindowState, wsMinimized);
    Bar->DoSysMenuClick(Root->Items[6]);
    EXPECT_EQ(TBarChild::Closed, 1);
    Bar->DoSysMenuClick(Root->Items[6]);
    Bar->DoMin(nullptr);
}

// ---- the system menu under a real mouse and keyboard

class SystemMenuTest : public MenuBarTest {
protected:
    void SetUp() override
    {
        MenuBarTest::SetUp();
        auto* Button = new TkelMenuButton(Main);
        Button->Align = alLeft;
        Button->Parent = Bar;
        Child = MaximizedChild();
        ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
    }
    // The window of the system menu, once it is open; nullptr before.
    HWND MenuWindow() const
    {
        return TkelCustomPopupMenu::Current() == Bar->SystemMenu() ? FindWindowW(L"#32768", nullptr) : nullptr;
    }
    auto IsOpen() const
    {
        return [this] { return MenuWindow() != nullptr; };
    }
    // Opens it by its icon, and closes it; where its corner was.
    TPoint PlaceOfOpened()
    {
        TRect Window;
        Script.When(IsOpen(), [&] {
            GetWindowRect(MenuWindow(), &Window);
            SendKey(VK_ESCAPE);
        });
        ClickToOpen(Bar->ChildIcon());
        EXPECT_TRUE(Script.IsDone());
        return {Window.left, Window.top};
    }
    TPoint MiddleOf(int Item) const
    {
        TRect R;
        GetMenuItemRect(nullptr, Bar->SystemMenu()->Handle, static_cast<UINT>(Item), &R);
        return {(R.left + R.right) / 2, (R.top + R.bottom) / 2};
    }

    TForm* Child = nullptr;
    TScript Script;
};

TEST_F(SystemMenuTest, AClickOnTheIconOpensItAtTheStartOfTheBar)
{
    EXPECT_EQ(PlaceOfOpened(), Bar->ClientToScreen({Bar->DragBox->Width, Bar->Height + 2}));
    EXPECT_EQ(Child->WindowState, wsMaximized);
}

TEST_F(SystemMenuTest, InAVerticalBarItOpensBesideIt)
{
    Bar->DeleteFromDock();
    Bar->Parent = Main->Side;
    Bar->InsertToDock();
    ASSERT_TRUE(PumpUntil([&] { return Bar->Height == Main->Side->Height && ShowsChild(); }));
    EXPECT_EQ(PlaceOfOpened(), Bar->ClientToScreen({Bar->Width + 2, Bar->DragBox->Height}));
}

TEST_F(SystemMenuTest, ItsItemsAreChosenWithTheMouse)
{
    Script.When(IsOpen(), [&] {
        SendMove(MiddleOf(0));
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    ClickToOpen(Bar->ChildIcon());
    EXPECT_TRUE(PumpUntil([&] { return Child->WindowState == wsNormal; }));
    EXPECT_FALSE(ShowsChild());
}

TEST_F(SystemMenuTest, ItsItemsAreChosenWithTheKeyboard)
{
    Script.When(IsOpen(), Type('R'));
    ClickToOpen(Bar->ChildIcon());
    EXPECT_TRUE(PumpUntil([&] { return Child->WindowState == wsNormal; }));
    Child->WindowState = wsMaximized;
    ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
    Script.When(IsOpen(), [] {
        SendKey(VK_UP);
        SendKey(VK_RETURN);
    });
    ClickToOpen(Bar->ChildIcon());
    EXPECT_TRUE(PumpUntil([&] { return TBarChild::Closed == 1; })) << "the last one is Close";
}

TEST_F(SystemMenuTest, CtrlF4ClosesTheChildWithTheMenuOpenAndWithout)
{
    new TBarChild(Main);
    ASSERT_TRUE(PumpUntil([&] { return Main->ActiveMDIChild != Child && ShowsChild(); }));
    TypeKey(VK_F4, {ssCtrl});
    EXPECT_TRUE(PumpUntil([&] { return TBarChild::Closed == 1 && Main->ActiveMDIChild == Child && ShowsChild(); }));
    Script.When(IsOpen(), Type(VK_F4, {ssCtrl}));
    ClickToOpen(Bar->ChildIcon());
    EXPECT_TRUE(PumpUntil([&] { return TBarChild::Closed == 2; }));
    EXPECT_TRUE(PumpUntil([&] { return !ShowsChild(); }));
}

TEST_F(SystemMenuTest, ADoubleClickOnTheIconClosesTheChild)
{
    MovePointerTo(Bar->ChildIcon(), 8, 8);
    Script.When(IsOpen(), [] {
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    SendButton(mbLeft, true);
    SendButton(mbLeft, false);
    EXPECT_TRUE(PumpUntil([&] { return TBarChild::Closed == 1; }));
}

TEST_F(SystemMenuTest, TheChildMayGoWhileItIsOpen)
{
    Script.When(IsOpen(), [&] { delete Child; });
    Script.When([] { return true; }, Type('C'));
    ClickToOpen(Bar->ChildIcon());
    PumpMessages();
    EXPECT_TRUE(PumpUntil([&] { return !ShowsChild(); }));
}

TEST_F(MenuBarTest, ANewBarIsCalledByItsClass)
{
    auto* Another = new TkelMenuBar(Main);
    EXPECT_EQ(Another->Caption, "TkelMenuBar" + std::to_string(Main->ComponentCount));
    EXPECT_FALSE(Another->ShowCaption) << "it is for the frame when the bar floats";
}

TEST_F(MenuBarTest, AChildWithoutAnIconShowsTheApplications)
{
    const auto Pixels = [](HICON Icon) {
        TPixelImage Image(16, 16);
        DrawIconEx(Image.DC(), 0, 0, Icon, 16, 16, 0, nullptr, DI_NORMAL);
        return Image;
    };
    const auto Restore = [Before = CopyIcon(Application->Icon->Handle)] { Application->Icon->Handle = Before; };
    const TScopeExit AtEnd(Restore);
    Application->Icon->Handle = CopyIcon(LoadIconW(nullptr, IDI_WARNING));
    auto* Child = As<TForm>(MaximizedChild());
    ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
    EXPECT_TRUE(SamePixels(Pixels(Bar->ChildIcon()->Icon->Handle), Pixels(Application->Icon->Handle)));
    EXPECT_TRUE(SamePixels(Pixels(Bar->ChildIcon()->Icon->Handle), Pixels(Child->GetIconHandle())));
    Child->Close();
    ASSERT_TRUE(PumpUntil([&] { return !ShowsChild(); }));
    MaximizedChild()->Icon->Handle = CopyIcon(LoadIconW(nullptr, IDI_QUESTION));
    ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
    EXPECT_TRUE(SamePixels(Pixels(Bar->ChildIcon()->Icon->Handle), Pixels(LoadIconW(nullptr, IDI_QUESTION))));
}

TEST_F(MenuBarTest, AFloatingBarShowsAChildThatIsMaximized)
{
    const auto ExpectInARow = [&] {
        ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
        EXPECT_LT(Bar->IconPanel()->Left, Bar->MinimizeButton()->Left);
        EXPECT_LT(Bar->MinimizeButton()->Left, Bar->RestoreButton()->Left);
        EXPECT_LT(Bar->RestoreButton()->Left, Bar->CloseButtonOfChild()->Left);
        EXPECT_EQ(Bar->MinimizeButton()->Top, Bar->CloseButtonOfChild()->Top);
    };
    for (TkelDock* From : {Main->Dock, Main->Side}) {
        Bar->DeleteFromDock();
        Bar->Parent = From;
        Bar->InsertToDock();
        PumpMessages();
        Bar->FloatToPos(200, 300);
        ASSERT_TRUE(Bar->Floating);
        auto* Child = MaximizedChild();
        ExpectInARow();
        Child->Close();
        ASSERT_TRUE(PumpUntil([&] { return Main->MDIChildCount == 0 && !ShowsChild(); }));
    }
}

TEST_F(MenuBarTest, TheChildMayTakeTheFormAlongWhenItIsClosed)
{
    TForm* Child = MaximizedChild();
    ASSERT_TRUE(PumpUntil([&] { return ShowsChild(); }));
    Child->OnClose = [&](TObject*, TCloseAction& Action) {
        Action = caNone;
        delete std::exchange(Bar, nullptr);
    };
    ClickOn(Bar->CloseButtonOfChild());
    EXPECT_TRUE(PumpUntil([&] { return Bar == nullptr; }));
}
