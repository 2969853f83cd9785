// Menu buttons under a real mouse and keyboard.
#include "tests/menus/MenuScript.h"
#include "tests/support/FormText.h"
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
    Script.When(IsOpen(Edit), PointTo(Help));
    Script.When(IsOpen(Help), PointTo(File));
    Script.When(IsOpen(File), Type(VK_ESCAPE));
    ClickToOpen(File);
    EXPECT_TRUE(Script.IsDone());
    ExpectIdle();
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

TEST_F(MenuButtonTest, CyrillicAcceleratorsFollowTheLetters)
{
    // The layout of the machine is not to be relied on; the letter itself is what counts.
    EXPECT_EQ(As<TkelOfficePopupMenu>(File->Menu)->ProcessAccel('S')->Caption, "&Save");
    File->Menu->Items->Items[1]->Caption = "&Сохранить";
    EXPECT_EQ(As<TkelOfficePopupMenu>(File->Menu)->ProcessAccel(0x0441)->Caption, "&Сохранить");
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
