// The menu bars of MDI children: where their buttons go when a child becomes active.
#include "common/Settings.h"
#include "tests/menus/MdiMenuFixture.h"
#include "tests/support/RegistryProbe.h"
#include "toolbar/Flpfrm97.h"
#include "vcl/stdctrls/Memo.h"

using testing::ElementsAre;

namespace {

class MDIChildMenuBarTest : public MdiMenuFixture {};

} // namespace

TEST_F(MDIChildMenuBarTest, AutoMergeIsPublishedAndAlwaysStored)
{
    TkelMDIChildMenuBar Loose(nullptr);
    EXPECT_TRUE(Loose.AutoMerge);
    EXPECT_THAT(PublishedFrom(TkelMDIChildMenuBar::StaticClass(), "AutoMerge"), ElementsAre("AutoMerge"));
    EXPECT_THAT(FormText(&Loose), testing::HasSubstr("AutoMerge = True"));
}

TEST_F(MDIChildMenuBarTest, TheActiveChildsButtonsComeBeforeThoseOfAGreaterGroup)
{
    TMdiChild* Child = NewChild();
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Edit", "&View", "&Help"));
    EXPECT_THAT(InOrder(Bar), ElementsAre("&File", "&Edit", "&View", "&Help"));
    EXPECT_EQ(Child->Edit()->Parent, Bar);
}

TEST_F(MDIChildMenuBarTest, NoButtonMovesAfterTheFirstThatComesBeforeAnother)
{
    TMdiChild* Child = NewChild({.EditGroup = 1, .TextGroup = 1});
    EXPECT_EQ(Child->Edit()->Parent, Bar);
    EXPECT_EQ(Child->Text()->Parent, Child->Bar());
    EXPECT_THAT(Shown(Child->Bar()), ElementsAre("&Text"));
    for (int I = 0; I < 2; ++I) {
        Child->Bar()->Merge();
        EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Edit", "&Text", "&View", "&Help")) << "the next goes on";
        Child->Bar()->UnMerge();
        EXPECT_THAT(InOrder(Child->Bar()), ElementsAre("&Edit", "&Text")) << "in the old order";
        Child->Bar()->Merge();
    }
}

TEST_F(MDIChildMenuBarTest, WithNoGreaterGroupButtonsComeLast)
{
    NewChild({.EditGroup = 5, .TextGroup = 9});
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help", "&Edit", "&Text"));
}

TEST_F(MDIChildMenuBarTest, OnesThatComeLastDoNotKeepOthersFromMoving)
{
    NewChild({.EditGroup = 9, .TextGroup = 0});
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Text", "&View", "&Help", "&Edit"));
}

TEST_F(MDIChildMenuBarTest, AnotherChildsButtonsTakeTheirPlace)
{
    TMdiChild* First = NewChild();
    TMdiChild* Second = NewChild({.EditGroup = 5, .TextGroup = 5});
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help", "&Edit", "&Text"));
    EXPECT_EQ(First->Edit()->Parent, First->Bar());
    EXPECT_THAT(InOrder(First->Bar()), ElementsAre("&Edit", "&Text"));
    for (int I = 0; I < 3; ++I) {
        Activate(First);
        EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Edit", "&View", "&Help"));
        EXPECT_THAT(InOrder(Second->Bar()), ElementsAre("&Edit", "&Text"));
        Activate(Second);
        EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help", "&Edit", "&Text"));
    }
}

TEST_F(MDIChildMenuBarTest, CtrlF6AndCtrlF4ChangeTheMenus)
{
    TMdiChild* First = NewChild();
    NewChild({.EditGroup = 5, .TextGroup = 5});
    TypeKey(VK_F6, {ssCtrl});
    ASSERT_EQ(Main->ActiveMDIChild, First);
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Edit", "&View", "&Help"));
    TypeKey(VK_F4, {ssCtrl});
    ASSERT_TRUE(PumpUntil([&] { return Main->MDIChildCount == 1; }));
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help", "&Edit", "&Text"));
    TypeKey(VK_F4, {ssCtrl});
    ASSERT_TRUE(PumpUntil([&] { return Main->MDIChildCount == 0; }));
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
}

TEST_F(MDIChildMenuBarTest, TheChildNeverShowsTheBarNorItsDock)
{
    TMdiChild* Child = NewChild();
    TMdiChild* Another = NewChild();
    Activate(Child);
    for (const TMdiChild* Each : {Child, Another}) {
        EXPECT_FALSE(Each->Find<TkelDock>("Dock")->Visible);
        EXPECT_FALSE(IsWindowVisible(Each->Bar()->Handle));
        EXPECT_EQ(Each->Find<TMemo>("Memo")->Top, 0);
    }
}

TEST_F(MDIChildMenuBarTest, ABarThatFloatedWhenItWasLeftDoesNotShowEither)
{
    const TRegistryProbe Store(std::string("Software\\Halvent\\") + MenuTestsTitle);
    WriteBool("ToolBar\\Floated", "isFloat", true);
    const TMdiChild* Child = NewChild({.BarText = "AutoSave = True\n      Caption = 'Floated'"});
    EXPECT_TRUE(Child->Bar()->Floating);
    EXPECT_FALSE(Child->Bar()->Frame->Visible);
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Edit", "&View", "&Help"));
}

TEST_F(MDIChildMenuBarTest, WithoutAutoMergeTheBarStaysAndTheButtonsGo)
{
    TMdiChild* Child = NewChild({.BarText = "AutoMerge = False"});
    EXPECT_TRUE(IsWindowVisible(Child->Bar()->Handle));
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Edit", "&View", "&Help"));
    Child->Bar()->UnMerge();
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
    EXPECT_THAT(Shown(Child->Bar()), ElementsAre("&Edit", "&Text"));
    Child->Bar()->Merge();
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Edit", "&View", "&Help"));
}

TEST_F(MDIChildMenuBarTest, AChildOfAnotherOwnerNeverMerges)
{
    auto* Child = new TMdiChild(Application);
    PumpMessages();
    EXPECT_EQ(Main->ActiveMDIChild, Child);
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
    Child->Bar()->Merge();
    Child->Bar()->UnMerge();
    EXPECT_THAT(Shown(Child->Bar()), ElementsAre("&Edit", "&Text"));
    delete Child;
}

TEST_F(MDIChildMenuBarTest, WithoutABarInTheFormTheButtonsStay)
{
    TMdiChild* First = NewChild();
    First->Bar()->UnMerge();
    delete std::exchange(Bar, nullptr);
    TMdiChild* Second = NewChild();
    Activate(First);
    EXPECT_THAT(Shown(First->Bar()), ElementsAre("&Edit", "&Text"));
    EXPECT_THAT(Shown(Second->Bar()), ElementsAre("&Edit", "&Text"));
}

TEST_F(MDIChildMenuBarTest, InAVerticalBarTheButtonsTurn)
{
    Bar->DeleteFromDock();
    Bar->Parent = As<TkelDock>(Main->FindComponent("Side"));
    Bar->InsertToDock();
    ASSERT_TRUE(PumpUntil([&] { return Bar->Height == Bar->Dock->Height; }));
    TMdiChild* Child = NewChild({.EditGroup = 9, .TextGroup = 0});
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Text", "&View", "&Help", "&Edit"));
    EXPECT_EQ(Child->Text()->Align, alTop);
    EXPECT_EQ(Child->Text()->Height, 50);
    Child->Bar()->UnMerge();
    EXPECT_EQ(Child->Text()->Align, alLeft);
    EXPECT_EQ(Child->Text()->Width, 50);
}

TEST_F(MDIChildMenuBarTest, OnTheWayOutAnythingMayGoFirst)
{
    TMdiChild* First = NewChild();
    TMdiChild* Second = NewChild();
    delete First->Bar();
    Activate(First);
    EXPECT_EQ(Second->Edit()->Parent, Second->Bar());
    delete Second->Edit();
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
    Activate(Second);
    delete Main->FindComponent("Dock");
    Bar = nullptr;
    Activate(First);
}

// ---- children without menus

class MDIChildWithoutBarTest : public MdiMenuFixture {
protected:
    TForm* NewPlainChild()
    {
        auto* Child = new TForm(Main, 0);
        Child->FormStyle = fsMDIChild;
        PumpMessages();
        return Child;
    }
};

TEST_F(MDIChildWithoutBarTest, AChildWithoutABarTakesTheOthersButtonsAway)
{
    TMdiChild* Child = NewChild();
    TForm* Plain = NewPlainChild();
    ASSERT_EQ(Main->ActiveMDIChild, Plain);
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
    EXPECT_THAT(InOrder(Child->Bar()), ElementsAre("&Edit", "&Text"));
    TypeKey(VK_F6, {ssCtrl});
    ASSERT_EQ(Main->ActiveMDIChild, Child);
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Edit", "&View", "&Help"));
    TypeKey(VK_F6, {ssCtrl});
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
}

TEST_F(MDIChildWithoutBarTest, ComingBackTheSameButtonsMerge)
{
    TMdiChild* Child = NewChild({.EditGroup = 1, .TextGroup = 1});
    TForm* Plain = NewPlainChild();
    for (int I = 0; I < 3; ++I) {
        Activate(Child);
        EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Edit", "&View", "&Help"));
        EXPECT_THAT(Shown(Child->Bar()), ElementsAre("&Text"));
        Activate(Plain);
        EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
    }
}

TEST_F(MDIChildWithoutBarTest, MergeAllMergesEveryButton)
{
    TMdiChild* Child = NewChild({.EditGroup = 1, .TextGroup = 2});
    Child->OnActivate = [=](TObject*) { Child->Bar()->MergeAll(); };
    TForm* Plain = NewPlainChild();
    for (int I = 0; I < 2; ++I) {
        Activate(Child);
        EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&Edit", "&Text", "&View", "&Help"));
        EXPECT_THAT(InOrder(Bar), ElementsAre("&File", "&Edit", "&Text", "&View", "&Help"));
        EXPECT_THAT(Shown(Child->Bar()), ElementsAre());
        Activate(Plain);
        EXPECT_THAT(InOrder(Child->Bar()), ElementsAre("&Edit", "&Text"));
    }
}

TEST_F(MDIChildWithoutBarTest, AHiddenButtonOfTheChildHasNoLetter)
{
    TMdiChild* Child = NewChild({.EditGroup = 1, .TextGroup = 1});
    ASSERT_EQ(Child->Text()->Parent, Child->Bar()) << "it does not show";
    Script.When([] { return TWhileMenuOpen::IsOpen(); }, Type(VK_ESCAPE));
    TypeKey('T', {ssAlt});
    PumpMessages();
    EXPECT_EQ(Script.StepsDone(), 0u);
}
