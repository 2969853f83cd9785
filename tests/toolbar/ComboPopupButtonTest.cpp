#include "toolbar/ComboPopupButton.h"

#include "robot/SystemInput.h"
#include "robot/WhileMenuOpen.h"
#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "tests/toolbar/ButtonParts.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class ComboPopupButtonTest : public TFormTest {
protected:
    ComboPopupButtonTest()
    {
        Combo->SetBounds(40, 30, 33, 22);
        Combo->OnButtonClick = [this](TObject*) { Events.push_back("button"); };
        Combo->OnListDown = [this](TObject*) { Events.push_back("list"); };
        Noted->WhileOpen = [this] { Events.push_back("menu"); };
        Real->Items->Add(NewItem("Item", scNone, false, true, nullptr, 0, "", Real));
    }
    void Click(TkelSpeedButton* Half)
    {
        Half->Perform(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        Half->Perform(WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    }

    std::vector<std::string> Events;
    TkelComboPopupButton* Combo = Add<TkelComboPopupButton>();
    TNotedMenu* Noted = new TNotedMenu(Form.get());
    TPopupMenu* Real = new TPopupMenu(Form.get());
};

} // namespace

TEST_F(ComboPopupButtonTest, PublishesItsMenuBehindTheComboButtonsProperties)
{
    EXPECT_THAT(PublishedFrom(TkelComboPopupButton::StaticClass(), "OnListDown"), ElementsAre("OnListDown", "Menu"));
    EXPECT_EQ(Combo->BoundsRect, TRect(40, 30, 73, 52));
    EXPECT_EQ(Combo->Menu, nullptr);
}

TEST_F(ComboPopupButtonTest, ItsMenuIsWritten)
{
    Noted->Name = "Menu1";
    Combo->Menu = Noted;
    EXPECT_THAT(FormText(Form.get()), HasSubstr("    Menu = Menu1\n"));
}

TEST_F(ComboPopupButtonTest, TheArrowOpensTheMenuAtTheLowerLeftCornerOfTheWhole)
{
    Form->HandleNeeded();
    Combo->Menu = Noted;
    bool WasDown = false;
    Noted->WhileOpen = [&] {
        Events.push_back("menu");
        WasDown = Combo->ArrowButton()->Down;
    };
    Click(Combo->ArrowButton());
    EXPECT_THAT(Events, ElementsAre("menu", "list"));
    EXPECT_EQ(Noted->Place, Combo->ClientToScreen(TPoint(0, 22)));
    EXPECT_EQ(Noted->PopupComponent, Combo);
    EXPECT_TRUE(WasDown);
    EXPECT_FALSE(Combo->ArrowButton()->Down);
    Click(Combo->ArrowButton());
    EXPECT_EQ(Noted->Popups, 2);
}

TEST_F(ComboPopupButtonTest, TheMainHalfOpensNothing)
{
    Combo->Menu = Noted;
    Click(Combo->MainButton());
    EXPECT_THAT(Events, ElementsAre("button"));
    EXPECT_EQ(Noted->Popups, 0);
}

TEST_F(ComboPopupButtonTest, WithoutAMenuTheArrowOnlyRaisesOnListDown)
{
    Click(Combo->ArrowButton());
    EXPECT_THAT(Events, ElementsAre("list"));
    EXPECT_FALSE(Combo->ArrowButton()->Down);
}

TEST_F(ComboPopupButtonTest, OutsideOfAllWindowsTheArrowOpensNothing)
{
    Combo->Menu = Noted;
    Combo->Parent = nullptr;
    EXPECT_NO_THROW(Combo->ArrowButton()->Click());
    EXPECT_EQ(Noted->Popups, 0);
    EXPECT_FALSE(Combo->ArrowButton()->Down);
    Combo->Parent = Form.get();
}

TEST_F(ComboPopupButtonTest, FreeingTheMenuClearsIt)
{
    Combo->Menu = Noted;
    delete Noted;
    EXPECT_EQ(Combo->Menu, nullptr);
    auto* Elsewhere = new TPopupMenu(nullptr);
    Combo->Menu = Elsewhere;
    delete Elsewhere;
    EXPECT_EQ(Combo->Menu, nullptr);
    Click(Combo->ArrowButton());
    EXPECT_THAT(Events, ElementsAre("list"));
}

TEST_F(ComboPopupButtonTest, TheArrowStaysDownUntilEscapeClosesTheMenu)
{
    Combo->Menu = Real;
    Show();
    RECT Opened = {};
    bool WasDown = false, Shown = false;
    TkelSpeedButton* Arrow = Combo->ArrowButton();
    TWhileMenuOpen WhileOpen([&] {
        GetWindowRect(FindWindowW(L"#32768", nullptr), &Opened);
        WasDown = Arrow->Down && TButtonLook::StateOf(Arrow) == bsExclusive;
        Shown = SamePixels(ScreenPixels(Combo), PaintToBitmap(Combo));
        SendKey(VK_ESCAPE);
    });
    ClickOn(Arrow);
    EXPECT_TRUE(PumpUntil([&] { return !Events.empty(); }));
    EXPECT_FALSE(WhileOpen.TimedOut);
    EXPECT_THAT(Events, ElementsAre("list"));
    EXPECT_EQ(TPoint(Opened.left, Opened.top), Combo->ClientToScreen(TPoint(0, 22)));
    EXPECT_TRUE(WasDown);
    EXPECT_TRUE(Shown);
    EXPECT_FALSE(Arrow->Down);
    EXPECT_EQ(TButtonLook::StateOf(Arrow), bsUp);
    EXPECT_TRUE(SamePixels(ScreenPixels(Combo), PaintToBitmap(Combo)));
}

TEST_F(ComboPopupButtonTest, AClickOnTheArrowClosesTheMenuAndDoesNotOpenItAgain)
{
    Combo->Menu = Real;
    Show();
    int Opened = 0;
    Real->OnPopup = [&](TObject*) { ++Opened; };
    TWhileMenuOpen WhileOpen([] {
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    ClickOn(Combo->ArrowButton());
    EXPECT_TRUE(PumpUntil([&] { return !Events.empty(); }));
    PumpMessages();
    EXPECT_FALSE(WhileOpen.TimedOut);
    EXPECT_EQ(Opened, 1);
    EXPECT_FALSE(Combo->ArrowButton()->Down);
}

TEST_F(ComboPopupButtonTest, TheButtonMayGoWhileItsMenuIsOpen)
{
    Combo->Menu = Real;
    Show();
    TWhileMenuOpen WhileOpen([&] {
        delete std::exchange(Combo, nullptr);
        EndMenu();
    });
    ClickOn(Combo->ArrowButton());
    PumpMessages();
    EXPECT_EQ(Combo, nullptr);
    EXPECT_FALSE(WhileOpen.TimedOut);
    EXPECT_THAT(Events, ElementsAre());
}
