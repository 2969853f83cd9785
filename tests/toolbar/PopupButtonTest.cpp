#include "toolbar/PopupButton.h"

#include "robot/SystemInput.h"
#include "robot/WhileMenuOpen.h"
#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/Reports.h"
#include "tests/toolbar/ButtonParts.h"
#include "tests/toolbar/SpeedButtonFixture.h"
#include "toolbar/RandomGroup.h"

#include <gmock/gmock.h>
#include <set>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class PopupButtonTest : public SpeedButtonFixture {
protected:
    void SetUp() override
    {
        SpeedButtonFixture::SetUp();
        Popup = new TkelPopupButton(Window.get());
        Popup->SetBounds(100, 10, 30, 22);
        Popup->Parent = Window.get();
        Menu = new TNotedMenu(Window.get());
    }
    static void Press(TkelPopupButton* Button)
    {
        Button->Perform(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        Button->Perform(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }

    TkelPopupButton* Popup = nullptr;
    TNotedMenu* Menu = nullptr;
};

} // namespace

TEST_F(PopupButtonTest, PublishesItsMenuBehindTheSpeedButtonsProperties)
{
    EXPECT_THAT(PublishedFrom(TkelPopupButton::StaticClass(), "OnMouseUp"), ElementsAre("OnMouseUp", "Menu"));
    EXPECT_STREQ(TkelPopupButton::StaticClass()->ClassParent()->ClassName(), "TkelSpeedButton");
}

TEST_F(PopupButtonTest, ANewButtonHasARandomGroupOfItsOwn)
{
    std::set<int> Groups;
    for (int I = 0; I < 20; ++I) {
        TkelPopupButton Fresh(nullptr);
        EXPECT_GE(Fresh.GroupIndex, 1);
        EXPECT_LE(Fresh.GroupIndex, 9999);
        EXPECT_TRUE(Fresh.AllowAllUp);
        EXPECT_FALSE(Fresh.Down);
        EXPECT_EQ(Fresh.Menu, nullptr);
        Groups.insert(Fresh.GroupIndex);
    }
    EXPECT_GT(Groups.size(), 10u);
}

TEST_F(PopupButtonTest, RandomGroupsReachBothEnds)
{
    std::set<int> Groups;
    for (int I = 0; I < 200; ++I)
        Groups.insert(RandomGroup(3));
    EXPECT_THAT(Groups, ElementsAre(1, 2, 3));
}

TEST_F(PopupButtonTest, ItsFormIsReadAndWritten)
{
    Menu->Name = "Menu1";
    Popup->Name = "Popup1";
    Popup->GroupIndex = 77;
    Popup->Menu = Menu;
    Window->Name = "Window1";
    EXPECT_THAT(FormText(Window.get()), HasSubstr("    AllowAllUp = True\n"
                                                  "    GroupIndex = 77\n"
                                                  "    Flat = True\n"
                                                  "    GlyphIndex = 0\n"
                                                  "    Menu = Menu1\n"));
    TkelPopupButton Read(nullptr);
    ReadFormText(&Read, "object Popup2: TkelPopupButton\n  GroupIndex = 5\n  AllowAllUp = False\nend\n");
    EXPECT_EQ(Read.GroupIndex, 5);
    EXPECT_FALSE(Read.AllowAllUp);
}

TEST_F(PopupButtonTest, ClickRaisesOnClickThenOpensTheMenuAtTheLowerLeftCorner)
{
    std::vector<std::string> Events;
    Popup->Menu = Menu;
    Popup->OnClick = [&](TObject* Sender) { Events.push_back(Sender == Popup ? "click" : "?"); };
    Menu->WhileOpen = [&] { Events.push_back("menu"); };
    Press(Popup);
    EXPECT_THAT(Events, ElementsAre("click", "menu"));
    EXPECT_EQ(Menu->Place, Popup->ClientToScreen(TPoint(0, 22)));
    EXPECT_EQ(Menu->PopupComponent, Popup);
}

TEST_F(PopupButtonTest, ItStaysDownWhileTheMenuIsOpen)
{
    bool WasDown = false;
    TButtonState State = bsUp;
    Popup->Menu = Menu;
    Menu->WhileOpen = [&] {
        WasDown = Popup->Down;
        State = TButtonLook::StateOf(Popup);
    };
    Press(Popup);
    EXPECT_TRUE(WasDown);
    EXPECT_EQ(State, bsExclusive);
    EXPECT_FALSE(Popup->Down);
    EXPECT_EQ(TButtonLook::StateOf(Popup), bsUp);
    WasDown = false;
    Popup->Click(); // by its accelerator
    EXPECT_TRUE(WasDown);
    EXPECT_FALSE(Popup->Down);
    EXPECT_EQ(Menu->Popups, 2);
    Press(Popup);
    EXPECT_EQ(Menu->Popups, 3);
}

TEST_F(PopupButtonTest, ItComesUpWhenTheMenuFails)
{
    Popup->Menu = Menu;
    Menu->WhileOpen = [] { throw EInvalidOperation("no"); };
    EXPECT_THROW(Popup->Click(), EInvalidOperation);
    EXPECT_FALSE(Popup->Down);
}

TEST_F(PopupButtonTest, WithoutAMenuItIsAPlainSpeedButton)
{
    TTestButton* Plain = NewButton();
    Popup->Glyphs = Glyphs;
    Plain->Glyphs = Glyphs;
    Popup->Width = Plain->Width;
    int Clicks = 0;
    Popup->OnClick = [&](TObject*) { ++Clicks; };
    for (int I = 1; I <= 3; ++I) {
        Press(Popup);
        Click(Plain);
        EXPECT_EQ(Clicks, I);
        EXPECT_FALSE(Popup->Down);
        EXPECT_TRUE(SamePixels(PaintToBitmap(Popup), PaintToBitmap(Plain)));
    }
}

TEST_F(PopupButtonTest, ItComesUpWhenOnClickFails)
{
    Popup->Menu = Menu;
    Popup->OnClick = [](TObject*) { throw EInvalidOperation("no"); };
    EXPECT_THROW(Press(Popup), EInvalidOperation);
    EXPECT_FALSE(Popup->Down);
    EXPECT_EQ(Menu->Popups, 0);
}

TEST_F(PopupButtonTest, ItComesUpWhenItsMenuIsGoneAfterOnClick)
{
    Popup->Menu = Menu;
    Popup->OnClick = [&](TObject*) { Popup->Menu = nullptr; };
    Press(Popup);
    EXPECT_FALSE(Popup->Down);
    Popup->Menu = Menu;
    Popup->OnClick = [&](TObject*) { delete std::exchange(Menu, nullptr); };
    Press(Popup);
    EXPECT_FALSE(Popup->Down);
}

TEST_F(PopupButtonTest, OutsideOfAllWindowsItOpensNoMenu)
{
    Popup->Menu = Menu;
    Popup->OnClick = [&](TObject*) { Popup->Parent = nullptr; };
    Press(Popup);
    EXPECT_EQ(Menu->Popups, 0);
    EXPECT_FALSE(Popup->Down);
    auto* Panel = new TCustomControl(Window.get());
    Panel->Parent = Window.get();
    Popup->Parent = Panel;
    Popup->OnClick = [&](TObject*) { Panel->Parent = nullptr; };
    Press(Popup);
    EXPECT_EQ(Menu->Popups, 0);
    EXPECT_FALSE(Popup->Down);
}

TEST_F(PopupButtonTest, FreeingTheMenuClearsIt)
{
    Popup->Menu = Menu;
    delete Menu;
    EXPECT_EQ(Popup->Menu, nullptr);
    int Clicks = 0;
    Popup->OnClick = [&](TObject*) { ++Clicks; };
    Press(Popup);
    EXPECT_EQ(Clicks, 1);
    TPopupMenu Elsewhere(nullptr); // of another owner
    Popup->Menu = &Elsewhere;
    EXPECT_EQ(Popup->Menu, &Elsewhere);
    Popup->Menu = nullptr;
    EXPECT_EQ(Popup->Menu, nullptr);
}

TEST_F(PopupButtonTest, AMenuOfAnotherOwnerIsForgottenWhenItGoes)
{
    auto* Elsewhere = new TPopupMenu(nullptr);
    Popup->Menu = Elsewhere;
    delete Elsewhere;
    EXPECT_EQ(Popup->Menu, nullptr);
}

TEST_F(PopupButtonTest, TheMenuMayGoInOnClickAndWhileItIsOpen)
{
    Popup->Menu = Menu;
    Popup->OnClick = [&](TObject*) { delete std::exchange(Menu, nullptr); };
    Press(Popup);
    EXPECT_EQ(Popup->Menu, nullptr);
    Popup->OnClick = nullptr;
    Menu = new TNotedMenu(Window.get());
    Popup->Menu = Menu;
    Menu->WhileOpen = [&] { Popup->Menu = nullptr; };
    Press(Popup);
    EXPECT_FALSE(Popup->Down);
}

TEST_F(PopupButtonTest, ScreenReadersHearOfTheMenu)
{
    EXPECT_EQ(Popup->AccessibleState() & STATE_SYSTEM_HASPOPUP, 0);
    Popup->Menu = Menu;
    EXPECT_NE(Popup->AccessibleState() & STATE_SYSTEM_HASPOPUP, 0);
}

// ---- with a real menu and real input

namespace {

class PopupButtonFormTest : public TFormTest {
protected:
    PopupButtonFormTest()
    {
        for (const char* Caption : {"First", "Second"})
            Menu->Items->Add(NewItem(
                Caption, scNone, false, true,
                [this](TObject* Sender) { Chosen.push_back(As<TMenuItem>(Sender)->Caption); }, 0, "", Menu));
        Menu->AutoHotkeys = maManual;
        Button->SetBounds(20, 20, 40, 22);
        Button->Menu = Menu;
        Button->OnClick = [this](TObject*) { ++Clicks; };
    }

    int Clicks = 0;
    std::vector<AnsiString> Chosen;
    TPopupMenu* Menu = new TPopupMenu(Form.get());
    TkelPopupButton* Button = Add<TkelPopupButton>();
};

} // namespace

TEST_F(PopupButtonFormTest, AClickOpensTheMenuBelowAndEscapeClosesIt)
{
    Show();
    RECT Opened = {};
    bool WasDown = false, Shown = false;
    TWhileMenuOpen WhileOpen([&] {
        GetWindowRect(FindWindowW(L"#32768", nullptr), &Opened);
        WasDown = Button->Down;
        Shown = SamePixels(ScreenPixels(Button), PaintToBitmap(Button));
        SendKey(VK_ESCAPE);
    });
    ClickOn(Button);
    EXPECT_TRUE(PumpUntil([&] { return Clicks == 1 && !TWhileMenuOpen::IsOpen(); }));
    EXPECT_FALSE(WhileOpen.TimedOut);
    EXPECT_EQ(TPoint(Opened.left, Opened.top), Button->ClientToScreen(TPoint(0, 22)));
    EXPECT_TRUE(WasDown);
    EXPECT_TRUE(Shown);
    EXPECT_FALSE(Button->Down);
    EXPECT_EQ(TButtonLook::StateOf(Button), bsUp);
    EXPECT_TRUE(Chosen.empty());
}

TEST_F(PopupButtonFormTest, AnItemIsChosenWithTheKeyboard)
{
    Show();
    TWhileMenuOpen WhileOpen([] {
        for (uint16_t Key : {VK_DOWN, VK_DOWN, VK_RETURN})
            SendKey(Key);
    });
    ClickOn(Button);
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre("Second"));
    EXPECT_FALSE(Button->Down);
}

TEST_F(PopupButtonFormTest, AClickOnTheButtonClosesTheMenuAndDoesNotOpenItAgain)
{
    Show();
    int Opened = 0;
    Menu->OnPopup = [&](TObject*) { ++Opened; };
    TWhileMenuOpen WhileOpen([] {
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    ClickOn(Button);
    EXPECT_TRUE(PumpUntil([&] { return Opened >= 1 && !TWhileMenuOpen::IsOpen(); }));
    PumpMessages();
    EXPECT_FALSE(WhileOpen.TimedOut);
    EXPECT_EQ(Opened, 1);
    EXPECT_FALSE(Button->Down);
    TWhileMenuOpen Again([] { SendKey(VK_ESCAPE); });
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return Opened == 2 && !TWhileMenuOpen::IsOpen(); }));
    EXPECT_FALSE(Button->Down);
}

TEST_F(PopupButtonFormTest, AButtonThatDeletesItselfOpensNothing)
{
    Show();
    int Opened = 0;
    Menu->OnPopup = [&](TObject*) { ++Opened; };
    Button->OnClick = [&](TObject*) { delete std::exchange(Button, nullptr); };
    ClickOn(Button);
    EXPECT_TRUE(PumpUntil([&] { return Button == nullptr; }));
    EXPECT_EQ(Opened, 0);
}

TEST_F(PopupButtonFormTest, AButtonWhoseOnClickFailsComesUp)
{
    Show();
    TReports Reports;
    Button->OnClick = [](TObject*) { throw EInvalidOperation("no"); };
    ClickOn(Button);
    EXPECT_THAT(Reports.Texts(), ElementsAre(HasSubstr("no")));
    EXPECT_FALSE(Button->Down);
    EXPECT_EQ(TButtonLook::StateOf(Button), bsUp);
}
