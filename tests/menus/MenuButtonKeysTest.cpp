// Menu buttons under a real keyboard.
#include "menus/MenuBar.h"
#include "tests/menus/MenuButtonFixture.h"

using testing::ElementsAre;

namespace {

class MenuButtonKeysTest : public MenuButtonFixture {};

} // namespace

TEST_F(MenuButtonKeysTest, ALetterChoosesAnItem)
{
    Script.When(IsOpen(File), Type('S'));
    ClickToOpen(File);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Save"));
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, TheArrowsGoRoundTheBar)
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

TEST_F(MenuButtonKeysTest, AltHighlightsTheFirstButtonAndDownOpensItsMenu)
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

TEST_F(MenuButtonKeysTest, F10HighlightsAndEscapeOrASecondOneLeaves)
{
    for (uint16_t Leaving : {VK_ESCAPE, VK_F10, VK_MENU}) {
        TypeKey(VK_F10);
        EXPECT_TRUE(File->Hot);
        TypeKey(Leaving);
        ExpectIdle();
    }
}

TEST_F(MenuButtonKeysTest, InKeyboardModeALetterOpensAMenu)
{
    Script.When(IsOpen(Edit), Type(VK_ESCAPE));
    TypeKey(VK_MENU);
    TypeKey('E');
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone(); }));
    PumpMessages();
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, AltTogetherWithAnotherKeyHighlightsNothing)
{
    TypeKey('Q', {ssAlt});
    ExpectIdle();
    TypeKey(VK_MENU, {ssCtrl});
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, ShortcutsOfClosedMenusWork)
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

TEST_F(MenuButtonKeysTest, AShortcutWorksInKeyboardModeAndEndsIt)
{
    File->Menu->Items->Items[1]->ShortCut = ShortCut('E', {ssCtrl}); // E is the letter of a button, too
    TypeKey(VK_F10);
    ASSERT_TRUE(File->Hot);
    TypeKey('E', {ssCtrl});
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Save"));
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, WithCtrlALetterIsNone)
{
    Script.When(IsOpen(File), Type('S', {ssCtrl}));
    Script.When(IsOpen(File), Type(VK_ESCAPE));
    ClickToOpen(File);
    PumpMessages();
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Chosen, ElementsAre());
}

TEST_F(MenuButtonKeysTest, WithShiftALetterIsTheSame)
{
    Script.When(IsOpen(Edit), Type('C', {ssShift}));
    TypeKey(VK_F10);
    TypeKey('E', {ssShift});
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Copy"));
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, ACyrillicLetterChoosesAnItem)
{
    File->Menu->Items->Items[1]->Caption = "&Сохранить";
    Script.When(IsOpen(File), [] { SendLetter(L'с'); });
    ClickToOpen(File);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("&Сохранить"));
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, AFunctionKeyIsNoLetter)
{
    // The virtual key of F1 has the number of a small p.
    File->Menu->Items->Items[1]->Caption = "&print";
    Script.When(IsOpen(File), Type(VK_F1));
    Script.When([&] { return IsOpen(File)() && Chosen.empty(); }, Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Chosen, ElementsAre());
}

TEST_F(MenuButtonKeysTest, TheLetterOfADisabledItemChoosesNothing)
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

TEST_F(MenuButtonKeysTest, AnItemIsChosenWithTheArrowsAndEnter)
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

// ---- submenus

class MenuButtonWithSubmenuTest : public MenuButtonFixture {
protected:
    void SetUp() override
    {
        MenuButtonFixture::SetUp();
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

TEST_F(MenuButtonKeysTest, AltHeldForLongTogglesOnce)
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

TEST_F(MenuButtonKeysTest, AltGrHighlightsNothing)
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

TEST_F(MenuButtonKeysTest, AltLeavesAnOpenMenu)
{
    Script.When(IsOpen(File), Type(VK_MENU));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, AltAndALetterOpenAMenu)
{
    Script.When(IsOpen(Edit), Type(VK_ESCAPE));
    TypeKey('E', {ssAlt});
    EXPECT_TRUE(PumpUntil([&] { return Script.IsDone(); }));
    PumpMessages();
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, APressElsewhereEndsTheKeyboardMode)
{
    MovePointerTo(Form.get(), 200, 200);
    TypeKey(VK_F10);
    ASSERT_TRUE(File->Hot);
    ClickButton();
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, AnotherKeyEndsTheKeyboardModeAndGoesWhereItShould)
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

TEST_F(MenuButtonKeysTest, AnotherFormEndsTheKeyboardMode)
{
    TForm Other(nullptr, 0);
    Other.SetBounds(550, 100, 200, 150);
    Other.Show();
    for (int I = 0; I < 2; ++I) {
        Form->SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return Screen->ActiveCustomForm == Form.get(); }));
        TypeKey(VK_F10);
        ASSERT_TRUE(File->Hot);
        Other.SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return Screen->ActiveCustomForm == &Other; }));
        ExpectIdle();
    }
}

TEST_F(MenuButtonKeysTest, TheKeyboardBeginsInTheMenuBar)
{
    auto* Menus = new TkelMenuBar(Form.get());
    Menus->AutoSave = false;
    Menus->Parent = Dock;
    Menus->InsertToDock();
    auto* First = AddButton("&Window", {"&Next"});
    First->Parent = Menus;
    auto* Last = AddButton("&Tools", {"&Options"});
    PumpMessages();
    ASSERT_EQ(Last->Parent, Bar) << "the youngest lies elsewhere";
    TypeKey(VK_F10);
    EXPECT_TRUE(First->Hot);
    TypeKey(VK_ESCAPE);
    Script.When(IsOpen(Last), Type(VK_ESCAPE));
    ClickToOpen(Last);
    EXPECT_TRUE(Script.IsDone());
    TypeKey(VK_MENU);
    EXPECT_TRUE(First->Hot) << "also after a menu elsewhere";
    TypeKey(VK_ESCAPE);
    Menus->HidePanel();
    TypeKey(VK_F10);
    EXPECT_TRUE(File->Hot) << "there is no bar";
    TypeKey(VK_ESCAPE);
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, WhatIsNotOnTheScreenHasNoLetter)
{
    File->Menu->Items->Items[1]->Visible = false; // Save
    Script.When(IsOpen(File), Type('S'));
    Script.When(IsOpen(File), Type(VK_ESCAPE));
    ClickToOpen(File);
    PumpMessages();
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Chosen, ElementsAre());
    Bar->HidePanel();
    Script.When([] { return TWhileMenuOpen::IsOpen(); }, Type(VK_ESCAPE));
    TypeKey('E', {ssAlt});
    PumpMessages();
    EXPECT_EQ(Script.StepsDone(), 2u) << "no menu has opened";
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, ATitleHasNoLetter)
{
    TMenuItem* Title = File->Menu->Items->Items[1];
    Title->Caption = "-&Lines";
    Title->OnClick = [&](TObject*) { Chosen.push_back("title"); };
    Script.When(IsOpen(File), Type('L'));
    Script.When(IsOpen(File), Type(VK_ESCAPE));
    ClickToOpen(File);
    PumpMessages();
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Chosen, ElementsAre());
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, AnotherProgramEndsTheKeyboardMode)
{
    TypeKey(VK_F10);
    ASSERT_TRUE(File->Hot);
    // As the system tells every window of the program.
    SendMessageW(PopupList->Window, WM_ACTIVATEAPP, FALSE, 0);
    ExpectIdle();
}

TEST_F(MenuButtonKeysTest, InAnotherFormTheKeysMeanSomethingElse)
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
