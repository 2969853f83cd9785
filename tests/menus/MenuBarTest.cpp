// The menu bar of an MDI form: its length, and what it shows of a maximized child.
#include "menus/MenuBar.h"

#include "common/Panel.h"
#include "tests/support/FormTest.h"
#include "toolbar/Tsy_toolbar.h"
#include "vcl/system/ClassBuilder.h"

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
    static void SetUpTestSuite() { MakeWhatFormsShare(); }
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

TEST_F(MenuBarTest, ANewBarIsCalledByItsClass)
{
    auto* Another = new TkelMenuBar(Main);
    EXPECT_EQ(Another->Caption, "TkelMenuBar" + std::to_string(Main->ComponentCount));
}
