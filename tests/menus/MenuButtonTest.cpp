// Menu buttons under a real mouse and keyboard.
#include "common/PointInRect.h"
#include "tests/menus/MenuScript.h"
#include "tests/support/FormText.h"
#include "toolbar/Flpfrm97.h"
#include "toolbar/Tsy_toolbar.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class MenuButtonTest : public TFormTest {
protected:
    static void SetUpTestSuite() { MakeWhatMenusShare(); }
    void SetUp() override
    {
        Dock = new TkelDock(Form.get());
        Dock->Height = 0;
        Dock->Parent = Form.get();
        Bar = new TkelToolBar(Form.get());
        Bar->AutoSave = false;
        Bar->Caption = "Menus";
        Bar->Parent = Dock;
        Bar->Width = 300;
        Bar->InsertToDock();
        File = AddButton("&File", {"&Open", "&Save", "E&xit"});
        Edit = AddButton("&Edit", {"Cu&t", "&Copy"});
        Help = AddButton("&Help", {"&About"});
        Show();
    }
    void TearDown() override
    {
        ReleaseButton();
        EXPECT_FALSE(TMenuTracking::Get().IsTracking());
    }

    TkelMenuButton* AddButton(const AnsiString& Caption, std::initializer_list<const char*> Items)
    {
        auto* Menu = new TkelOfficePopupMenu(Form.get());
        for (const char* Item : Items) {
            Menu->Items->Add(NewItem(
                Item, scNone, false, true,
                [this](TObject* Sender) { Chosen.push_back(As<TMenuItem>(Sender)->Caption); }, 0, "", Menu));
        }
        auto* Button = new TkelMenuButton(Form.get());
        Button->Caption = Caption;
        Button->Width = 50;
        Button->Left = 1000;
        Button->Align = alLeft;
        Button->Menu = Menu;
        Button->Parent = Bar;
        return Button;
    }

    static bool PointerIsOn(const TControl* Control)
    {
        TPoint Pointer;
        GetCursorPos(&Pointer);
        return PointInRect(Control->ScreenToClient(Pointer), Control->ClientRect);
    }
    void ExpectIdle()
    {
        EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
        for (const TkelMenuButton* Button : {File, Edit, Help}) {
            EXPECT_FALSE(Button->Hot) << Button->Caption;
            EXPECT_FALSE(Button->Down) << Button->Caption;
        }
    }

    TkelDock* Dock = nullptr;
    TkelToolBar* Bar = nullptr;
    TkelMenuButton* File = nullptr;
    TkelMenuButton* Edit = nullptr;
    TkelMenuButton* Help = nullptr;
    std::vector<AnsiString> Chosen;
    TScript Script;
};

} // namespace

TEST_F(MenuButtonTest, AButtonPublishesItsProperties)
{
    const std::vector<std::string> Published = PublishedFrom(TkelMenuButton::StaticClass(), "Align");
    EXPECT_THAT(Published, testing::Contains("Align = alNone"));
    EXPECT_THAT(Published, testing::Contains("Menu"));
    EXPECT_THAT(Published, testing::Contains("MenuGroupIndex = 0"));
}

TEST_F(MenuButtonTest, APressOpensTheMenuBelowTheButtonWhichStaysDown)
{
    TRect Window;
    bool WasDown = false;
    Script.When(IsOpen(File), [&] {
        GetWindowRect(FindWindowW(L"#32768", nullptr), &Window);
        WasDown = File->Down && File->Hot;
        SendKey(VK_ESCAPE);
    });
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_TRUE(WasDown);
    const TPoint Corner = File->ClientToScreen({0, File->Height});
    EXPECT_EQ(Window.left, Corner.X);
    EXPECT_EQ(Window.top, Corner.Y);
    ExpectIdle();
}

TEST_F(MenuButtonTest, ThePointerGoesOnToTheNextMenu)
{
    Script.When(IsOpen(File), PointTo(Edit));
    Script.When(PointingOpens(Edit), PointTo(Help));
    Script.When(PointingOpens(Help), PointTo(File));
    Script.When(PointingOpens(File), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    ExpectIdle();
}

TEST_F(MenuButtonTest, TheButtonThatThePointerHasLeftIsFlatAtOnce)
{
    // With a menu open nobody is told that the pointer leaves.
    const auto Corner = [&] {
        HDC Context = GetDC(Bar->Handle);
        const TColor Color = static_cast<TColor>(GetPixel(Context, File->Left, File->Top));
        ReleaseDC(Bar->Handle, Context);
        return Color;
    };
    TColor OnIt = clNone;
    TColor Left = clNone;
    Script.When(IsOpen(File), [&] {
        OnIt = Corner();
        PointTo(Edit)();
    });
    Script.When(PointingOpens(Edit), [&] {
        Left = Corner();
        SendKey(VK_ESCAPE);
    });
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_EQ(OnIt, static_cast<TColor>(ColorToRGB(clBtnShadow)));
    EXPECT_EQ(Left, static_cast<TColor>(ColorToRGB(clBtnFace)));
}

TEST_F(MenuButtonTest, AClickOnTheButtonOfTheOpenMenuClosesIt)
{
    Script.When(IsOpen(File), [] {
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    ClickToOpen(File);
    PumpMessages();
    EXPECT_TRUE(Script.IsDone());
    ExpectIdle();
}

TEST_F(MenuButtonTest, ALetterChoosesAnItem)
{
    Script.When(IsOpen(File), Type('S'));
    ClickToOpen(File);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Save"));
    ExpectIdle();
}

TEST_F(MenuButtonTest, TheArrowsGoRoundTheBar)
{
    Script.When(IsOpen(File), Type(VK_RIGHT));
    Script.When(IsOpen(Edit), Type(VK_RIGHT));
    Script.When(IsOpen(Help), Type(VK_RIGHT));
    Script.When(IsOpen(File), Type(VK_LEFT));
    Script.When(IsOpen(Help), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
    ExpectIdle();
}

TEST_F(MenuButtonTest, AltHighlightsTheFirstButtonAndDownOpensItsMenu)
{
    TypeKey(VK_MENU);
    EXPECT_TRUE(File->Hot);
    EXPECT_FALSE(File->Down);
    TypeKey(VK_RIGHT);
    EXPECT_FALSE(File->Hot);
    EXPECT_TRUE(Edit->Hot);
    TypeKey(VK_LEFT);
    TypeKey(VK_LEFT);
    EXPECT_TRUE(Help->Hot);
    Script.When(IsOpen(Help), Type(VK_RETURN));
    TypeKey(VK_DOWN);
    TypeKey(VK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone() && !TMenuTracking::Get().IsTracking(); }));
}

TEST_F(MenuButtonTest, F10HighlightsAndEscapeOrASecondOneLeaves)
{
    for (uint16_t Leaving : {VK_ESCAPE, VK_F10, VK_MENU}) {
        TypeKey(VK_F10);
        EXPECT_TRUE(File->Hot);
        TypeKey(Leaving);
        ExpectIdle();
    }
}

TEST_F(MenuButtonTest, InKeyboardModeALetterOpensAMenu)
{
    Script.When(IsOpen(Edit), Type(VK_ESCAPE));
    TypeKey(VK_MENU);
    TypeKey('E');
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone(); }));
    PumpMessages();
    ExpectIdle();
}

TEST_F(MenuButtonTest, AltTogetherWithAnotherKeyHighlightsNothing)
{
    TypeKey('Q', {ssAlt});
    ExpectIdle();
    TypeKey(VK_MENU, {ssCtrl});
    ExpectIdle();
}

TEST_F(MenuButtonTest, ShortcutsOfClosedMenusWork)
{
    File->Menu->Items->Items[1]->ShortCut = ShortCut('S', {ssCtrl});
    TypeKey('S', {ssCtrl});
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    PumpMessages();
    EXPECT_THAT(Chosen, ElementsAre("&Save")) << "once";
    File->Menu->Items->Items[1]->Enabled = false;
    TypeKey('S', {ssCtrl});
    PumpMessages();
    EXPECT_EQ(Chosen.size(), 1u);
}

TEST_F(MenuButtonTest, AShortcutWorksInKeyboardModeAndEndsIt)
{
    File->Menu->Items->Items[1]->ShortCut = ShortCut('E', {ssCtrl}); // E is the letter of a button, too
    TypeKey(VK_F10);
    ASSERT_TRUE(File->Hot);
    TypeKey('E', {ssCtrl});
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Save"));
    ExpectIdle();
}

TEST_F(MenuButtonTest, WithCtrlALetterIsNone)
{
    Script.When(IsOpen(File), Type('S', {ssCtrl}));
    Script.When(IsOpen(File), Type(VK_ESCAPE));
    ClickToOpen(File);
    PumpMessages();
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Chosen, ElementsAre());
}

TEST_F(MenuButtonTest, WithShiftALetterIsTheSame)
{
    Script.When(IsOpen(Edit), Type('C', {ssShift}));
    TypeKey(VK_F10);
    TypeKey('E', {ssShift});
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Copy"));
    ExpectIdle();
}

TEST_F(MenuButtonTest, ACyrillicLetterChoosesAnItem)
{
    File->Menu->Items->Items[1]->Caption = "&Сохранить";
    Script.When(IsOpen(File), [] { SendLetter(L'с'); });
    ClickToOpen(File);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Сохранить"));
    ExpectIdle();
}

TEST_F(MenuButtonTest, AFunctionKeyIsNoLetter)
{
    // The virtual key of F1 has the number of a small p.
    File->Menu->Items->Items[1]->Caption = "&print";
    Script.When(IsOpen(File), Type(VK_F1));
    Script.When([&] { return IsOpen(File)() && Chosen.empty(); }, Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Chosen, ElementsAre());
}

TEST_F(MenuButtonTest, TheLetterOfADisabledItemChoosesNothing)
{
    File->Menu->Items->Items[1]->Enabled = false;
    // Wine closes the menu then, as it does with every disabled item.
    Script.When(IsOpen(File), [] {
        SendKey('S');
        SendKey(VK_ESCAPE);
    });
    ClickToOpen(File);
    PumpMessages();
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Chosen, ElementsAre());
    ExpectIdle();
}

TEST_F(MenuButtonTest, AnItemIsChosenWithTheArrowsAndEnter)
{
    Script.When(IsOpen(File), [] {
        SendKey(VK_DOWN);
        SendKey(VK_DOWN);
        SendKey(VK_RETURN);
    });
    ClickToOpen(File);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Save"));
    ExpectIdle();
}

TEST_F(MenuButtonTest, AnItemIsChosenByGoingOnToItWithTheButtonHeld)
{
    Script.When(IsOpen(File), [&] { SendMove(File->ClientToScreen({20, File->Height + 32})); });
    Script.When([] { return true; }, [] { SendButton(mbLeft, false); });
    MovePointerTo(File, 10, 10);
    SendButton(mbLeft, true);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Save"));
    ExpectIdle();
}

// ---- submenus

class MenuButtonWithSubmenuTest : public MenuButtonTest {
protected:
    void SetUp() override
    {
        MenuButtonTest::SetUp();
        for (const char* Caption : {"&One", "&Two"})
            File->Menu->Items->Items[0]->Add(NewItem(
                Caption, scNone, false, true,
                [this](TObject* Sender) { Chosen.push_back(As<TMenuItem>(Sender)->Caption); }, 0, "", File->Menu));
    }
    static int OpenMenus()
    {
        int Count = 0;
        for (HWND Window = nullptr; (Window = FindWindowExW(nullptr, Window, L"#32768", nullptr));)
            Count += IsWindowVisible(Window) != 0;
        return Count;
    }
};

TEST_F(MenuButtonWithSubmenuTest, RightGoesIntoASubmenuAndLeftOutOfIt)
{
    Script.When(IsOpen(File), [] {
        SendKey(VK_DOWN);
        SendKey(VK_RIGHT);
    });
    Script.When([&] { return IsOpen(File)() && OpenMenus() == 2; }, Type(VK_LEFT));
    Script.When([&] { return IsOpen(File)() && OpenMenus() == 1; }, Type(VK_LEFT));
    Script.When(IsOpen(Help), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
    ExpectIdle();
}

TEST_F(MenuButtonWithSubmenuTest, RightLeavesASubmenuForTheNextMenu)
{
    Script.When(IsOpen(File), [] {
        SendKey(VK_DOWN);
        SendKey(VK_RIGHT);
    });
    Script.When([&] { return OpenMenus() == 2; }, Type(VK_RIGHT));
    Script.When(IsOpen(Edit), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
    ExpectIdle();
}

TEST_F(MenuButtonWithSubmenuTest, ALetterReachesItemsOfSubmenus)
{
    Script.When(IsOpen(File), Type('T'));
    ClickToOpen(File);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Two"));
    ExpectIdle();
}

// ---- keys that are more than they seem

TEST_F(MenuButtonTest, AltHeldForLongTogglesOnce)
{
    for (int I = 0; I < 5; ++I)
        SendKeyState(VK_MENU, true);
    SendKeyState(VK_MENU, false);
    PumpMessages();
    EXPECT_TRUE(File->Hot);
    for (int I = 0; I < 5; ++I)
        SendKeyState(VK_MENU, true);
    SendKeyState(VK_MENU, false);
    PumpMessages();
    ExpectIdle();
}

TEST_F(MenuButtonTest, AltGrHighlightsNothing)
{
    // Wine goes to the menu of the window.
    const auto IsInMenuMode = [] {
        GUITHREADINFO Info{};
        Info.cbSize = sizeof Info;
        return GetGUIThreadInfo(GetCurrentThreadId(), &Info) && (Info.flags & GUI_INMENUMODE);
    };
    Script.When(IsInMenuMode, Type(VK_ESCAPE));
    SendKeyState(VK_LCONTROL, true);
    SendKeyState(VK_RMENU, true);
    SendKeyState(VK_RMENU, false);
    SendKeyState(VK_LCONTROL, false);
    PumpMessages();
    ExpectIdle();
}

TEST_F(MenuButtonTest, AltLeavesAnOpenMenu)
{
    Script.When(IsOpen(File), Type(VK_MENU));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    ExpectIdle();
}

TEST_F(MenuButtonTest, AltAndALetterOpenAMenu)
{
    Script.When(IsOpen(Edit), Type(VK_ESCAPE));
    TypeKey('E', {ssAlt});
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone(); }));
    PumpMessages();
    ExpectIdle();
}

TEST_F(MenuButtonTest, APressElsewhereEndsTheKeyboardMode)
{
    MovePointerTo(Form.get(), 200, 200);
    TypeKey(VK_F10);
    ASSERT_TRUE(File->Hot);
    ClickButton();
    ExpectIdle();
}

TEST_F(MenuButtonTest, AnotherKeyEndsTheKeyboardModeAndGoesWhereItShould)
{
    std::vector<uint16_t> Keys;
    Form->KeyPreview = true;
    Form->OnKeyDown = [&](TObject*, uint16_t& Key, TShiftState) { Keys.push_back(Key); };
    TypeKey(VK_F10);
    ASSERT_TRUE(File->Hot);
    TypeKey('X');
    EXPECT_THAT(Keys, ElementsAre('X'));
    ExpectIdle();
}

TEST_F(MenuButtonTest, AnotherFormEndsTheKeyboardMode)
{
    TypeKey(VK_F10);
    ASSERT_TRUE(File->Hot);
    TForm Other(nullptr, 0);
    Other.SetBounds(550, 100, 200, 150);
    Other.Show();
    ASSERT_TRUE(PumpUntil([&] { return Screen->ActiveCustomForm == &Other; }));
    TypeKey(VK_RIGHT);
    ExpectIdle();
}

TEST_F(MenuButtonTest, AnotherProgramEndsTheKeyboardMode)
{
    TypeKey(VK_F10);
    ASSERT_TRUE(File->Hot);
    // As the system tells every window of the program.
    SendMessageW(PopupList->Window, WM_ACTIVATEAPP, FALSE, 0);
    ExpectIdle();
}

TEST_F(MenuButtonTest, ButtonsThatCannotBeUsedArePassedOver)
{
    Edit->Enabled = false;
    TypeKey(VK_F10);
    TypeKey(VK_RIGHT);
    EXPECT_TRUE(Help->Hot);
    TypeKey(VK_ESCAPE);
    Script.When(IsOpen(File), PointTo(Edit));
    Script.When([&] { return IsOpen(File)() && PointerIsOn(Edit); }, PointTo(Help));
    Script.When(PointingOpens(Help), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
}

TEST_F(MenuButtonTest, InAnotherFormTheKeysMeanSomethingElse)
{
    TForm Other(nullptr, 0);
    Other.SetBounds(550, 100, 200, 150);
    Other.Show();
    ASSERT_TRUE(PumpUntil([&] { return Screen->ActiveCustomForm == &Other; }));
    File->Menu->Items->Items[1]->ShortCut = ShortCut('S', {ssCtrl});
    SendKey(VK_F10);
    SendKey(VK_ESCAPE); // out of the system's own menu
    PumpMessages();
    TypeKey('S', {ssCtrl});
    ExpectIdle();
    EXPECT_THAT(Chosen, ElementsAre());
}

// ---- other places

TEST_F(MenuButtonTest, InAVerticalBarTheMenuOpensBesideTheButton)
{
    auto* Side = new TkelDock(Form.get());
    Side->Align = alLeft;
    Side->Width = 0;
    Side->Parent = Form.get();
    Bar->DeleteFromDock();
    Bar->Parent = Side;
    Bar->InsertToDock();
    PumpMessages();
    ASSERT_EQ(Edit->Align, alTop);
    EXPECT_GT(Edit->Height, Edit->Width);
    TRect Window;
    Script.When(IsOpen(Edit), [&] {
        GetWindowRect(FindWindowW(L"#32768", nullptr), &Window);
        SendKey(VK_RIGHT);
    });
    Script.When(IsOpen(Help), PointTo(File));
    Script.When(PointingOpens(File), Type(VK_ESCAPE));
    ClickToOpen(Edit);
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
    const TPoint Corner = Edit->ClientToScreen({Edit->Width, 0});
    EXPECT_EQ(Window.left, Corner.X);
    EXPECT_EQ(Window.top, Corner.Y);
    ExpectIdle();
}

TEST_F(MenuButtonTest, AFloatingBarWorksFromItsFormAndFromItsFrame)
{
    Bar->FloatToPos(120, 260);
    ASSERT_TRUE(Bar->Floating);
    PumpMessages();
    for (TForm* Active : {Form.get(), static_cast<TForm*>(Bar->Frame)}) {
        Active->SetFocus();
        SetForegroundWindow(Active->Handle);
        ASSERT_TRUE(PumpUntil([&] { return Screen->ActiveCustomForm == Active; }));
        TypeKey(VK_MENU);
        EXPECT_TRUE(File->Hot);
        TypeKey(VK_ESCAPE);
        Script.When(IsOpen(Edit), Type(VK_ESCAPE));
        TypeKey('E', {ssAlt});
        EXPECT_TRUE(PumpUntil([&] { return Script.IsDone() && !TMenuTracking::Get().IsTracking(); }));
        ExpectIdle();
    }
}

TEST_F(MenuButtonTest, OnClickComesBeforeEveryOpening)
{
    std::vector<AnsiString> Opened;
    for (TkelMenuButton* Button : {File, Edit, Help})
        Button->OnClick = [&](TObject* Sender) { Opened.push_back(As<TkelMenuButton>(Sender)->Caption); };
    Script.When(IsOpen(File), PointTo(Edit));
    Script.When(PointingOpens(Edit), Type(VK_RIGHT));
    Script.When(IsOpen(Help), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
    EXPECT_THAT(Opened, ElementsAre("&File", "&Edit", "&Help"));
}

TEST_F(MenuButtonTest, AButtonWithoutAMenuIsAnOrdinaryOne)
{
    int Clicks = 0;
    Help->Menu = nullptr;
    Help->OnClick = [&](TObject*) { ++Clicks; };
    ClickOn(Help);
    EXPECT_EQ(Clicks, 1);
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, AMenuOfAnotherKindOpensToo)
{
    auto* Menu = new TPopupMenu(Form.get());
    Menu->Items->Add(
        NewItem("&About", scNone, false, true, [this](TObject*) { Chosen.push_back("About"); }, 0, "", Menu));
    Help->Menu = Menu;
    Script.When([&] { return TMenuTracking::Get().Current() == Help && FindWindowW(L"#32768", nullptr); }, Type('A'));
    ClickToOpen(Help);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    ExpectIdle();
}

// ---- what may go

class MenuHooks : public testing::Test {
protected:
    static void SetUpTestSuite() { MakeWhatMenusShare(); }
};

TEST_F(MenuHooks, AreThereFromTheFirstButtonToTheLast)
{
    const int64_t Before = LiveHandleCount();
    auto First = std::make_unique<TkelMenuButton>(nullptr);
    EXPECT_EQ(LiveHandleCount(), Before + 2);
    auto Second = std::make_unique<TkelMenuButton>(nullptr);
    EXPECT_EQ(LiveHandleCount(), Before + 2);
    First.reset();
    EXPECT_EQ(LiveHandleCount(), Before + 2);
    Second.reset();
    EXPECT_EQ(LiveHandleCount(), Before);
}

TEST_F(MenuButtonTest, TheFormMayGoWhileAMenuIsOpen)
{
    Script.When(IsOpen(File), [&] { Form.reset(); });
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, TheBarMayGoWhileAMenuIsOpen)
{
    Script.When(IsOpen(File), [&] { delete Bar; });
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, ABarThatGoesInKeyboardModeTakesTheHighlightAlong)
{
    TypeKey(VK_F10);
    ASSERT_TRUE(File->Hot);
    delete Bar;
    TypeKey(VK_RIGHT);
    TypeKey(VK_DOWN);
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, AButtonMayGoWhileItsMenuIsOpen)
{
    Script.When(IsOpen(File), [&] {
        delete File;
        File = Edit;
    });
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}

TEST_F(MenuButtonTest, TheMenuMayGoWithItsButton)
{
    delete File->Menu;
    EXPECT_EQ(File->Menu, nullptr);
    ClickToOpen(File);
    EXPECT_EQ(TMenuTracking::Get().Current(), nullptr);
}
