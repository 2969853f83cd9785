// The menu bars of MDI children: where their buttons go when a child becomes active, and how they work there.
#include "menus/MDIChildMenuBar.h"

#include "common/Settings.h"
#include "tests/menus/MenuScript.h"
#include "tests/support/FormText.h"
#include "tests/support/RegistryProbe.h"
#include "toolbar/Flpfrm97.h"
#include "toolbar/Tsy_toolbar.h"
#include "vcl/stdctrls/Memo.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Format.h"

#include <gmock/gmock.h>
#include <random>

using testing::ElementsAre;

namespace {

constexpr const char* MainText = R"(object MdiMain: TMdiMain
  Left = 50
  Top = 50
  ClientWidth = 600
  ClientHeight = 400
  FormStyle = fsMDIForm
  object Dock: TkelDock
    Left = 0
    Top = 0
    Width = 600
    Height = 26
    Align = alTop
    object Bar: TkelMenuBar
      Left = 0
      Top = 0
      Width = 600
      Height = 26
      AutoSave = False
      object FileButton: TkelMenuButton
        Left = 20
        Top = 2
        Width = 50
        Height = 22
        Caption = '&File'
        Menu = FileMenu
        Align = alLeft
      end
      object ViewButton: TkelMenuButton
        Left = 70
        Top = 2
        Width = 50
        Height = 22
        Caption = '&View'
        Menu = ViewMenu
        MenuGroupIndex = 5
        Align = alLeft
      end
      object HelpButton: TkelMenuButton
        Left = 120
        Top = 2
        Width = 50
        Height = 22
        Caption = '&Help'
        Menu = HelpMenu
        MenuGroupIndex = 5
        Align = alLeft
      end
    end
  end
  object Side: TkelDock
    Left = 0
    Top = 26
    Width = 0
    Height = 374
    Align = alLeft
  end
  object FileMenu: TkelOfficePopupMenu
    object OpenItem: TMenuItem
      Caption = '&Open'
      ShortCut = 16463
    end
  end
  object ViewMenu: TkelOfficePopupMenu
    object ZoomItem: TMenuItem
      Caption = '&Zoom'
    end
  end
  object HelpMenu: TkelOfficePopupMenu
    object AboutItem: TMenuItem
      Caption = '&About'
    end
  end
end
)";

// %s: the properties of the bar and of the last button.
constexpr const char* ChildText = R"(object MdiChild: TMdiChild
  ClientWidth = 300
  ClientHeight = 200
  FormStyle = fsMDIChild
  object Dock: TkelDock
    Left = 0
    Top = 0
    Width = 300
    Height = 26
    Align = alTop
    object Bar: TkelMDIChildMenuBar
      Left = 0
      Top = 0
      Width = 300
      Height = 26
      AutoSave = False
      %s
      object EditButton: TkelMenuButton
        Left = 20
        Top = 2
        Width = 50
        Height = 22
        Caption = '&Edit'
        Menu = EditMenu
        MenuGroupIndex = %d
        Align = alLeft
      end
      object TextButton: TkelMenuButton
        Left = 70
        Top = 2
        Width = 50
        Height = 22
        Caption = '&Text'
        Menu = TextMenu
        MenuGroupIndex = %d
        Align = alLeft
      end
    end
  end
  object Memo: TMemo
    Left = 0
    Top = 26
    Width = 300
    Height = 174
    Align = alClient
  end
  object EditMenu: TkelOfficePopupMenu
    object CopyItem: TMenuItem
      Caption = '&Copy'
      ShortCut = 16459
    end
  end
  object TextMenu: TkelOfficePopupMenu
    object BoldItem: TMenuItem
      Caption = '&Bold'
    end
  end
end
)";

class TMdiMain : public TForm {
    VCL_CLASS(TMdiMain, TForm)
public:
    explicit TMdiMain(TComponent* AOwner) : TForm(AOwner, 0) { ReadFormText(this, MainText); }
};

void TMdiMain::Describe(TClassBuilder<TMdiMain>&)
{}

struct TChildSetup {
    int EditGroup = 1;
    int TextGroup = 9;
    const char* BarText = "";
};

class TMdiChild : public TForm {
    VCL_CLASS(TMdiChild, TForm)
public:
    explicit TMdiChild(TComponent* AOwner, const TChildSetup& Setup = {}) : TForm(AOwner, 0)
    {
        ReadFormText(this, Format(ChildText, Setup.BarText, Setup.EditGroup, Setup.TextGroup));
        OnClose = [](TObject*, TCloseAction& Action) { Action = caFree; };
    }
    template <class T>
    T* Find(const AnsiString& Name) const
    {
        return As<T>(FindComponent(Name));
    }
    TkelMDIChildMenuBar* Bar() const { return Find<TkelMDIChildMenuBar>("Bar"); }
    TkelMenuButton* Edit() const { return Find<TkelMenuButton>("EditButton"); }
    TkelMenuButton* Text() const { return Find<TkelMenuButton>("TextButton"); }
};

void TMdiChild::Describe(TClassBuilder<TMdiChild>&)
{}

class MDIChildMenuBarTest : public testing::Test {
protected:
    static void SetUpTestSuite() { MakeWhatMenusShare(); }
    void SetUp() override
    {
        UseMessageLoop([] { Application->ProcessMessages(); });
        Application->CreateForm(&Main);
        Bar = As<TkelMenuBar>(Main->FindComponent("Bar"));
        Main->Show();
        ASSERT_TRUE(PumpUntil([&] { return GetForegroundWindow() == Main->Handle && IsAsLongAsItsDock(); }));
    }
    void TearDown() override
    {
        MovePointerAway();
        delete Main;
        PumpMessages();
        UseMessageLoop(nullptr);
        EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
    }

    bool IsAsLongAsItsDock() const { return Bar->Width == Bar->Dock->Width; }
    TMdiChild* NewChild(const TChildSetup& Setup = {})
    {
        auto* Child = new TMdiChild(Main, Setup);
        PumpMessages();
        return Child;
    }
    static void Activate(TForm* Child)
    {
        Child->BringToFront();
        PumpMessages();
    }
    // The captions of the menu buttons that a bar shows, as they lie.
    static std::vector<AnsiString> Shown(const TkelToolBar* Bar)
    {
        std::vector<const TControl*> Buttons;
        for (int I = 0; I < Bar->ControlCount; ++I)
            if (const auto* Button = As<TkelMenuButton>(Bar->Controls[I]))
                Buttons.push_back(Button);
        std::ranges::sort(Buttons, {}, [](const TControl* Each) { return Each->Left + Each->Top; });
        std::vector<AnsiString> Captions;
        for (const TControl* Button : Buttons)
            Captions.push_back(Button->GetText());
        return Captions;
    }
    static std::vector<AnsiString> InOrder(const TkelToolBar* Bar)
    {
        std::vector<AnsiString> Captions;
        for (const TControl* Item : Bar->Items())
            if (As<TkelMenuButton>(Item))
                Captions.push_back(Item->GetText());
        return Captions;
    }
    TkelMenuButton* Button(const AnsiString& Name) const { return As<TkelMenuButton>(Main->FindComponent(Name)); }

    TMdiMain* Main = nullptr;
    TkelMenuBar* Bar = nullptr;
    TScript Script;
};

} // namespace

// ---- merging

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
    EXPECT_EQ(Second->Edit()->Parent, Bar) << "nobody has taken it back";
    delete Second->Edit();
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
    Activate(Second);
    delete Main->FindComponent("Dock");
    Bar = nullptr;
    Activate(First);
}

// ---- using the merged bar

TEST_F(MDIChildMenuBarTest, ThePointerGoesFromTheFormsMenusToTheChildsAndBack)
{
    TMdiChild* Child = NewChild();
    Script.When(IsOpen(Button("FileButton")), PointTo(Child->Edit()));
    Script.When(PointingOpens(Child->Edit()), PointTo(Button("ViewButton")));
    Script.When(PointingOpens(Button("ViewButton")), Type(VK_ESCAPE));
    ClickToOpen(Button("FileButton"));
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
}

TEST_F(MDIChildMenuBarTest, AltAndTheArrowsReachAllWhileAChildIsActive)
{
    TMdiChild* Child = NewChild();
    Child->Find<TMemo>("Memo")->SetFocus();
    ASSERT_EQ(Screen->ActiveCustomForm, Child);
    TypeKey(VK_MENU);
    EXPECT_TRUE(Button("FileButton")->Hot);
    Script.When([&] { return Child->Edit()->Hot; }, Type(VK_DOWN));
    Script.When(IsOpen(Child->Edit()), Type(VK_RIGHT));
    Script.When(IsOpen(Button("ViewButton")), Type(VK_ESCAPE));
    TypeKey(VK_RIGHT);
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone() && !TMenuTracking::Get().IsTracking(); }));
}

TEST_F(MDIChildMenuBarTest, TheKeyboardWorksWhicheverChildWasMadeLast)
{
    TMdiChild* First = NewChild();
    NewChild();
    Activate(First);
    TypeKey(VK_F10);
    EXPECT_TRUE(Button("FileButton")->Hot);
    TypeKey(VK_ESCAPE);
    NewChild();
    TypeKey(VK_F4, {ssCtrl});
    TypeKey(VK_F10);
    EXPECT_TRUE(Button("FileButton")->Hot);
    TypeKey(VK_F10);
}

TEST_F(MDIChildMenuBarTest, AltAndALetterOpenTheFormsMenusFromAChild)
{
    TMdiChild* Child = NewChild();
    Child->Find<TMemo>("Memo")->SetFocus();
    for (TkelMenuButton* Each : {Button("HelpButton"), Child->Edit()}) {
        Script.When(IsOpen(Each), Type(VK_ESCAPE));
        TypeKey(static_cast<uint16_t>(Each->Caption[1]), {ssAlt});
        EXPECT_TRUE(PumpUntil([&] { return Script.IsDone() && !TMenuTracking::Get().IsTracking(); })) << Each->Caption;
        EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
    }
}

TEST_F(MDIChildMenuBarTest, ShortcutsOfTheFormAndOfTheActiveChildWork)
{
    std::vector<AnsiString> Chosen;
    const auto Choose = [&](TObject* Sender) { Chosen.push_back(As<TMenuItem>(Sender)->Owner->Name); };
    As<TMenuItem>(Main->FindComponent("OpenItem"))->OnClick = Choose;
    TMdiChild* First = NewChild();
    First->Name = "First";
    TMdiChild* Second = NewChild();
    Second->Name = "Second";
    for (const TMdiChild* Child : {First, Second})
        Child->Find<TMenuItem>("CopyItem")->OnClick = Choose;
    TypeKey('K', {ssCtrl});
    TypeKey('O', {ssCtrl});
    Activate(First);
    TypeKey('K', {ssCtrl});
    PumpMessages();
    EXPECT_THAT(Chosen, ElementsAre("Second", "MdiMain", "First"));
}

TEST_F(MDIChildMenuBarTest, ClosingTheChildFromItsOwnMenuIsSafe)
{
    TMdiChild* Child = NewChild();
    Child->Find<TMenuItem>("CopyItem")->OnClick = [=](TObject*) { Child->Close(); };
    Script.When(IsOpen(Child->Edit()), Type('C'));
    ClickToOpen(Child->Edit());
    EXPECT_TRUE(PumpUntil([&] { return Main->MDIChildCount == 0; }));
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
}

TEST_F(MDIChildMenuBarTest, AChildMayGoWhileItsMenuIsOpen)
{
    TMdiChild* Child = NewChild();
    Script.When(IsOpen(Child->Edit()), [&] { delete Child; });
    ClickToOpen(Child->Edit());
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Shown(Bar), ElementsAre("&File", "&View", "&Help"));
}

// ---- all of it, at random

// A hand that knows no rules: keys, the pointer on buttons and in menus, children that come and go.
TEST_F(MDIChildMenuBarTest, ARandomSessionEndsIdle)
{
    constexpr int Actions = 300;
    std::mt19937 Random(4);
    const auto Below = [&](size_t Count) { return static_cast<size_t>(Random() % Count); };
    int Chosen = 0;
    const auto Choose = [&](TObject*) {
        if (++Chosen % 3 == 0 && Main->MDIChildCount < 4)
            new TMdiChild(Main, {.EditGroup = static_cast<int>(Below(7)), .TextGroup = static_cast<int>(Below(7))});
        else if (Chosen % 4 == 0 && Main->ActiveMDIChild)
            Main->ActiveMDIChild->Close();
    };
    const auto SetHandlers = [&](TForm* Form) {
        for (int I = 0; I < Form->ComponentCount; ++I)
            if (auto* Item = As<TMenuItem>(Form->Components[I]))
                Item->OnClick = Choose;
    };
    const auto RandomButton = [&]() -> TkelMenuButton* {
        std::vector<TkelMenuButton*> Buttons;
        for (TControl* Item : Bar->Items())
            if (auto* Button = As<TkelMenuButton>(Item))
                Buttons.push_back(Button);
        return Buttons[Below(Buttons.size())];
    };
    const std::vector<std::function<void()>> Kinds = {
        [&] {
            constexpr uint16_t Keys[] = {VK_MENU, VK_F10, VK_LEFT,   VK_RIGHT, VK_DOWN, VK_UP,
                                         'O',     'Z',    VK_ESCAPE, 'C',      'B',     VK_RETURN};
            SendKey(Keys[Below(std::size(Keys))]);
        },
        [&] {
            constexpr uint16_t Keys[] = {'F', 'V', 'H', 'E', 'T'};
            SendKey(Keys[Below(std::size(Keys))], {ssAlt});
        },
        [&] {
            constexpr uint16_t Keys[] = {VK_F6, 'O', 'K'};
            SendKey(Keys[Below(std::size(Keys))], {ssCtrl});
        },
        [&] { PointTo(RandomButton())(); },
        [&] {
            PointTo(RandomButton())();
            SendButton(mbLeft, true);
            SendButton(mbLeft, false);
        },
        [&] {
            SendMove(RandomButton()->ClientToScreen({20, 35}));
            SendButton(mbLeft, true);
            SendButton(mbLeft, false);
        },
    };
    NewChild();
    NewChild();
    for (int I = 0; I < Actions; ++I)
        Script.When([] { return true; },
                    [&] {
                        SetHandlers(Main);
                        for (int J = 0; J < Main->MDIChildCount; ++J)
                            SetHandlers(Main->MDIChildren[J]);
                        Kinds[Below(Kinds.size())]();
                    });
    for (int I = 0; I < 3; ++I)
        Script.When([] { return true; }, Type(VK_ESCAPE));
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone(); }, 60000)) << Script.StepsDone();
    EXPECT_TRUE(PumpUntil([&] { return !TMenuTracking::Get().IsTracking() && !TMenuTracking::Get().Current(); }));
    for (const TControl* Item : Bar->Items())
        if (const auto* Button = As<TkelMenuButton>(Item)) {
            EXPECT_FALSE(Button->Hot) << Button->Caption;
            EXPECT_FALSE(Button->Down) << Button->Caption;
        }
    EXPECT_GT(Chosen, 10);
    EXPECT_EQ(Main->ActiveMDIChild != nullptr, Main->MDIChildCount > 0);
}
