// Popup menus on the screen, with real input.
#include "robot/WhileMenuOpen.h"
#include "tests/support/Reports.h"
#include "vcl/menus/PopupList.h"
#include "vcl/menus/UtilityWindow.h"

#include "robot/SystemInput.h"
#include "tests/menus/TopWindow.h"
#include "vcl/system/LiveCount.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

void SendKeys(std::initializer_list<WORD> Keys)
{
    for (WORD Key : Keys)
        SendKey(Key);
}

class PopupMenus : public testing::Test {
protected:
    void SetUp() override
    {
        FTop = NewTopWindow();
        FMenu = std::make_unique<TPopupMenu>(nullptr);
        for (const char* Caption : {"&First", "&Second", "&Third"})
            FMenu->Items->Add(
                NewItem(Caption, scNone, false, true, [this](TObject* Sender) { Note(Sender); }, 0, "", FMenu.get()));
    }
    void TearDown() override
    {
        FMenu.reset();
        DestroyWindow(FTop);
    }

    void Note(TObject* Sender) { FLog.push_back(StripHotkey(As<TMenuItem>(Sender)->Caption)); }

    // Opens the menu, does Action while it is open, and handles what it posts.
    void PopupWith(const std::function<void()>& Action)
    {
        TWhileMenuOpen WhileOpen(Action);
        FMenu->Popup(150, 150);
        EXPECT_FALSE(WhileOpen.TimedOut) << "the menu did not close by itself";
        EXPECT_EQ(FindWindowW(L"#32768", nullptr), nullptr);
    }

    HWND FTop = nullptr;
    std::unique_ptr<TPopupMenu> FMenu;
    std::vector<AnsiString> FLog;
};

using testing::ElementsAre;

} // namespace

TEST_F(PopupMenus, CommandsChosenByKeyReachTheirHandler)
{
    PopupWith([] { SendKeys({VK_DOWN, VK_DOWN, VK_RETURN}); });
    EXPECT_TRUE(PumpUntil([&] { return !FLog.empty(); }));
    EXPECT_THAT(FLog, ElementsAre("Second"));
    EXPECT_EQ(FMenu->PopupPoint, TPoint(150, 150));
}

TEST_F(PopupMenus, CommandsChosenByLetterReachTheirHandler)
{
    PopupWith([] { SendKeys({'T'}); });
    EXPECT_TRUE(PumpUntil([&] { return !FLog.empty(); }));
    EXPECT_THAT(FLog, ElementsAre("Third"));
}

TEST_F(PopupMenus, CommandsChosenByMouseReachTheirHandler)
{
    PopupWith([&] {
        RECT R{};
        GetMenuItemRect(nullptr, FMenu->Handle, 2, &R);
        if (R.right == 0) { // some systems want the menu's own window
            RECT Window;
            GetWindowRect(FindWindowW(L"#32768", nullptr), &Window);
            R = {Window.left, Window.bottom - 14, Window.right, Window.bottom - 6};
        }
        SendMove({(R.left + R.right) / 2, (R.top + R.bottom) / 2});
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    EXPECT_TRUE(PumpUntil([&] { return !FLog.empty(); }));
    EXPECT_THAT(FLog, ElementsAre("Third"));
}

TEST_F(PopupMenus, EscapeChoosesNothing)
{
    PopupWith([] { SendKeys({VK_DOWN, VK_ESCAPE}); });
    PostMessageW(PopupList->Window, WM_NULL, 0, 0);
    MSG Message;
    while (PeekMessageW(&Message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&Message);
    EXPECT_TRUE(FLog.empty());
}

TEST_F(PopupMenus, OnPopupComesBeforeTheMenuShows)
{
    FMenu->OnPopup = [&](TObject* Sender) {
        EXPECT_EQ(Sender, FMenu.get());
        EXPECT_EQ(FindWindowW(L"#32768", nullptr), nullptr);
        FMenu->Items->Items[0]->Visible = false;
    };
    PopupWith([] { SendKeys({VK_DOWN, VK_RETURN}); });
    EXPECT_TRUE(PumpUntil([&] { return !FLog.empty(); }));
    EXPECT_THAT(FLog, ElementsAre("Second"));
}

TEST_F(PopupMenus, TheMenuMayGoInOnPopup)
{
    FMenu->OnPopup = [&](TObject*) { FMenu.reset(); };
    FMenu->Popup(150, 150);
    EXPECT_EQ(FMenu, nullptr);
    EXPECT_EQ(FindWindowW(L"#32768", nullptr), nullptr);
}

TEST_F(PopupMenus, SubmenusFillWhenTheyOpen)
{
    TMenuItem* More = NewSubMenu("&More", 0, "", {NewLine(FMenu.get())}, true, FMenu.get());
    More->OnClick = [&, More](TObject*) {
        More->Clear();
        More->Add(NewItem("&Late", scNone, false, true, [this](TObject* Sender) { Note(Sender); }, 0, "", FMenu.get()));
    };
    FMenu->Items->Add(More);
    PopupWith([] { SendKeys({'M', 'L'}); });
    EXPECT_TRUE(PumpUntil([&] { return !FLog.empty(); }));
    EXPECT_THAT(FLog, ElementsAre("Late"));
}

TEST_F(PopupMenus, TheHintOfTheSelectedItemIsTold)
{
    std::vector<AnsiString> Hints;
    FMenu->Items->Items[0]->Hint = "Short|Long";
    const auto Before = PopupList->OnHint;
    PopupList->OnHint = [&](const AnsiString& Hint) { Hints.push_back(Hint); };
    PopupWith([] { SendKeys({VK_DOWN, VK_ESCAPE}); });
    PopupList->OnHint = Before;
    EXPECT_THAT(Hints, testing::Contains("Long"));
    EXPECT_EQ(Hints.back(), "") << "and taken back when the menu closes";
}

TEST_F(PopupMenus, ListenersSeeTheWindowsMessagesFirst)
{
    std::vector<AnsiString> Log;
    TWindowHook First = [&](TMessage& Message) {
        if (Message.Msg == WM_COMMAND)
            Log.push_back("first");
        return false;
    };
    TWindowHook Second = [&](TMessage& Message) {
        if (Message.Msg != WM_COMMAND)
            return false;
        Log.push_back("second");
        return Message.WParamLo() == FMenu->Items->Items[1]->Command;
    };
    PopupList->AddListener(First);
    PopupList->AddListener(Second);
    SendMessageW(PopupList->Window, WM_COMMAND, FMenu->Items->Items[0]->Command, 0);
    EXPECT_THAT(Log, ElementsAre("second", "first"));
    EXPECT_THAT(FLog, ElementsAre("First"));
    SendMessageW(PopupList->Window, WM_COMMAND, FMenu->Items->Items[1]->Command, 0);
    EXPECT_THAT(FLog, ElementsAre("First")) << "used up by a listener";
    PopupList->RemoveListener(First); // not in the order they came
    Log.clear();
    SendMessageW(PopupList->Window, WM_COMMAND, FMenu->Items->Items[2]->Command, 0);
    EXPECT_THAT(Log, ElementsAre("second"));
    PopupList->RemoveListener(Second);
    SendMessageW(PopupList->Window, WM_COMMAND, FMenu->Items->Items[2]->Command, 0);
    EXPECT_THAT(Log, ElementsAre("second"));
}

TEST_F(PopupMenus, AListenerMayRemoveItself)
{
    int Calls = 0;
    TWindowHook Once;
    Once = [&](TMessage&) {
        ++Calls;
        PopupList->RemoveListener(Once);
        return false;
    };
    PopupList->AddListener(Once);
    SendMessageW(PopupList->Window, WM_APP, 0, 0);
    SendMessageW(PopupList->Window, WM_APP, 0, 0);
    EXPECT_EQ(Calls, 1);
    Once = nullptr;
}

TEST(PopupListWindow, GoesWithTheLastMenu)
{
    auto A = std::make_unique<TPopupMenu>(nullptr);
    auto B = std::make_unique<TPopupMenu>(nullptr);
    HWND Window = PopupList->Window;
    A.reset();
    EXPECT_TRUE(IsWindow(Window));
    B.reset();
    EXPECT_FALSE(IsWindow(Window));
}

TEST(PopupComponent, IsForgottenWhenItGoes)
{
    auto Menu = std::make_unique<TPopupMenu>(nullptr);
    auto* Component = new TComponent(nullptr);
    Menu->PopupComponent = Component;
    delete Component;
    EXPECT_EQ(Menu->PopupComponent, nullptr);
}

// ---- the windows behind

TEST(UtilityWindow, SendsItsMessagesToTheMethod)
{
    std::vector<uint32_t> Messages;
    HWND Window = AllocateHWnd([&](TMessage& Message) {
        Messages.push_back(Message.Msg);
        Message.Result = 42;
    });
    EXPECT_EQ(SendMessageW(Window, WM_APP + 1, 0, 0), 42);
    EXPECT_FALSE(IsWindowVisible(Window));
    DeallocateHWnd(Window);
    EXPECT_FALSE(IsWindow(Window));
    EXPECT_THAT(Messages, testing::Contains(uint32_t{WM_APP + 1}));
    EXPECT_THAT(Messages, testing::Not(testing::Contains(uint32_t{WM_NCDESTROY}))) << "silent when it goes";
    DeallocateHWnd(nullptr);
}

TEST(UtilityWindow, MayGoInItsOwnMethod)
{
    HWND Window = nullptr;
    int Calls = 0;
    Window = AllocateHWnd([&](TMessage& Message) {
        if (Message.Msg != WM_APP)
            return;
        ++Calls;
        DeallocateHWnd(Window);
    });
    SendMessageW(Window, WM_APP, 0, 0);
    EXPECT_FALSE(IsWindow(Window));
    EXPECT_EQ(Calls, 1);
}

TEST(UtilityWindow, ExceptionsGoToTheReport)
{
    const TReports Reports;
    HWND Window = AllocateHWnd([](TMessage& Message) {
        if (Message.Msg == WM_APP)
            throw EInvalidOperation("from a handler");
    });
    SendMessageW(Window, WM_APP, 0, 0);
    EXPECT_TRUE(IsWindow(Window));
    DeallocateHWnd(Window);
    EXPECT_THAT(Reports.Texts(), ElementsAre("from a handler"));
}
