// Folder menus on the screen, under a real mouse and keyboard.
#include "tests/menus/FolderMenuFixture.h"
#include "tests/menus/MenuScript.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Knows where its items are.
class TSeenFolderMenu : public TkelFolderMenu {
public:
    using TkelFolderMenu::TkelFolderMenu;

    // By caption, on the screen.
    std::map<AnsiString, TRect> Places;
    AnsiString Selected;

protected:
    void DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect) override
    {
        TkelFolderMenu::DoDrawItem(Item, Canvas, State, Rect);
        if (State & ODS_SELECTED)
            Selected = Item->Caption;
        POINT Origin = {};
        ClientToScreen(WindowFromDC(Canvas->BareHandle()), &Origin);
        Places[Item->Caption] = Rect;
        OffsetRect(Places[Item->Caption], Origin.x, Origin.y);
    }
};

class FolderMenuScreenTest : public TFormTest {
protected:
    static void SetUpTestSuite()
    {
        MakeWhatMenusShare();
        TkelFolderMenu Menu(nullptr);
    }
    void SetUp() override
    {
        Menu->Folder = Folder.Path();
        Menu->SmallIcon = true;
        Menu->OnClickFolder = [this](TObject*, const AnsiString& Path) { Chosen.push_back(Path); };
        Show();
    }

    // With the script running, until no menu is open and what was chosen has come.
    void Popup()
    {
        Menu->Popup(150, 150);
        PumpMessages();
    }
    void PopupAndClose()
    {
        Script.When(AreOpen(1), Keys({VK_ESCAPE}));
        Popup();
        EXPECT_TRUE(Script.IsDone());
    }
    static std::function<bool()> AreOpen(int Menus)
    {
        return [Menus] {
            int Count = 0;
            for (HWND Each = nullptr; (Each = FindWindowExW(nullptr, Each, L"#32768", nullptr)) != nullptr;)
                Count += IsWindowVisible(Each) ? 1 : 0;
            return Count == Menus;
        };
    }
    std::function<bool()> IsDrawn(const AnsiString& Name)
    {
        return [this, Name] { return Menu->Places.contains(Folder.Path() + Name); };
    }
    std::function<bool()> IsSelected(const AnsiString& Name)
    {
        return [this, Name] { return Menu->Selected == Folder.Path() + Name; };
    }
    static std::function<void()> Keys(std::vector<uint16_t> Typed)
    {
        return [Typed] {
            for (uint16_t Key : Typed)
                SendKey(Key);
        };
    }
    std::function<void()> PointTo(const AnsiString& Name)
    {
        return [this, Name] {
            const TRect& R = Menu->Places[Folder.Path() + Name];
            SendMove({(R.left + R.right) / 2, (R.top + R.bottom) / 2});
        };
    }
    static void Click()
    {
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    }
    TMenuItem* ItemOf(const AnsiString& Name)
    {
        for (int I = 0; I < Menu->Items->Count; ++I)
            if (Menu->Items->Items[I]->Caption == Folder.Path() + Name)
                return Menu->Items->Items[I];
        return nullptr;
    }

    TTestFolder Folder;
    TSeenFolderMenu* Menu = new TSeenFolderMenu(Form.get());
    std::vector<AnsiString> Chosen;
    TScript Script;
};

} // namespace

// ---- opening

TEST_F(FolderMenuScreenTest, TheMenuShowsTheFolder)
{
    Folder.AddFolder("sub");
    Folder.AddFile("a.txt");
    PopupAndClose();
    EXPECT_EQ(Menu->Places.size(), 2u);
    EXPECT_EQ(Menu->Places[Folder.Path() + "sub"].bottom, Menu->Places[Folder.Path() + "a.txt"].top);
    EXPECT_EQ(Menu->Places[Folder.Path() + "sub"].Height(), 16);
    EXPECT_THAT(Chosen, IsEmpty());
}

TEST_F(FolderMenuScreenTest, EachPopupReadsTheFolderAnew)
{
    Folder.AddFile("a.txt");
    PopupAndClose();
    Folder.Remove("a.txt");
    Folder.AddFile("b.txt");
    Menu->SmallIcon = false;
    Menu->Places.clear();
    Script.When(IsDrawn("b.txt"), Keys({VK_ESCAPE}));
    Popup();
    EXPECT_TRUE(Script.IsDone());
    EXPECT_FALSE(Menu->Places.contains(Folder.Path() + "a.txt"));
    EXPECT_EQ(Menu->Places[Folder.Path() + "b.txt"].Height(), 32);
}

TEST_F(FolderMenuScreenTest, NothingToShowShowsNothing)
{
    Popup();
    Menu->Folder = "";
    Popup();
    Menu->Folder = Folder.Path() + "nowhere\\";
    Popup();
    EXPECT_EQ(TkelCustomPopupMenu::Current(), nullptr);
    EXPECT_FALSE(FindWindowW(L"#32768", nullptr));
}

TEST_F(FolderMenuScreenTest, OnlyVisibleItemsHaveTheirIconsFetched)
{
    for (int I = 0; I < 200; ++I)
        Folder.AddFile(IntToStr(I) + ".txt");
    PopupAndClose();
    EXPECT_EQ(Menu->Items->Count, 200);
    int Fetched = 0;
    for (int I = 1; I < Menu->Items->Count; ++I)
        Fetched += Menu->Items->Items[I]->Tag != 0;
    EXPECT_GT(Fetched, 5);
    EXPECT_LT(Fetched, GetSystemMetrics(SM_CYSCREEN) / 16);
}

TEST_F(FolderMenuScreenTest, DrawingTheMenuAgainAddsNothing)
{
    for (const char* Name : {"a.txt", "b.txt", "c.txt"})
        Folder.AddFile(Name);
    std::vector<intptr_t> Tags;
    DWORD Before = 0, After = 0;
    Script.When(IsDrawn("a.txt"), [&] {
        HWND Window = FindWindowW(L"#32768", nullptr);
        const auto Redraw = [&] { RedrawWindow(Window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); };
        Redraw();
        Before = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
        for (int Time = 0; Time < 10; ++Time)
            Redraw();
        After = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
        for (int I = 0; I < Menu->Items->Count; ++I)
            Tags.push_back(Menu->Items->Items[I]->Tag);
        SendKey(VK_ESCAPE);
    });
    Popup();
    EXPECT_THAT(Tags, ElementsAre(0, 1, 2));
    EXPECT_EQ(Before, After);
}

// ---- submenus

TEST_F(FolderMenuScreenTest, ASubmenuIsFilledWhenItOpens)
{
    Folder.AddFolder("sub");
    Folder.AddFolder("sub\\deeper");
    Folder.AddFile("sub\\deeper\\b.txt");
    Folder.AddFile("sub\\a.txt");
    Script.When(IsDrawn("sub"), Keys({VK_DOWN, VK_RIGHT}));
    Script.When(IsDrawn("sub\\deeper"), [&] {
        EXPECT_THAT(NamesIn(ItemOf("sub"), Folder.Path() + "sub\\"), ElementsAre("deeper", "a.txt"));
        SendKey(VK_RIGHT);
    });
    Script.When(IsDrawn("sub\\deeper\\b.txt"), Keys({VK_RETURN}));
    Popup();
    EXPECT_TRUE(Script.IsDone());
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre(Folder.Path() + "sub\\deeper\\b.txt")) << "opening chooses nothing";
    EXPECT_EQ(Menu->Places.size(), 4u) << "what held the place was never seen";
}

TEST_F(FolderMenuScreenTest, ThePointerOpensASubmenuAndAClickChoosesInIt)
{
    Folder.AddFolder("sub");
    Folder.AddFile("sub\\a&b.txt");
    Script.When(IsDrawn("sub"), PointTo("sub"));
    Script.When(IsDrawn("sub\\a&b.txt"), [] {});
    // The screen may put the pointer back for a moment.
    Script.When(
        [&] {
            PointTo("sub\\a&b.txt")();
            if (IsSelected("sub\\a&b.txt")())
                Click();
            return AreOpen(0)();
        },
        [] {});
    Popup();
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty() && Script.IsDone(); }));
    EXPECT_THAT(Chosen, ElementsAre(Folder.Path() + "sub\\a&b.txt"));
}

TEST_F(FolderMenuScreenTest, ASubmenuOpenedTwiceIsTheSame)
{
    Folder.AddFolder("sub");
    Folder.AddFile("sub\\a.txt");
    Script.When(IsDrawn("sub"), Keys({VK_DOWN, VK_RIGHT}));
    Script.When(AreOpen(2), Keys({VK_LEFT}));
    Script.When(AreOpen(1), Keys({VK_RIGHT}));
    Script.When(AreOpen(2), [&] {
        EXPECT_THAT(NamesIn(ItemOf("sub"), Folder.Path() + "sub\\"), ElementsAre("a.txt"));
        Keys({VK_ESCAPE, VK_ESCAPE})();
    });
    Popup();
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
}

TEST_F(FolderMenuScreenTest, AClickOnAFolderWithASubmenuDoesNotChooseIt)
{
    Folder.AddFolder("sub");
    Folder.AddFile("sub\\a.txt");
    Script.When(IsDrawn("sub"), [&] {
        PointTo("sub")();
        Click();
    });
    Script.When(IsDrawn("sub\\a.txt"), Keys({VK_ESCAPE, VK_ESCAPE}));
    Popup();
    PumpMessages();
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Chosen, IsEmpty());
}

TEST_F(FolderMenuScreenTest, EmptyFoldersAndThoseWithoutSubmenusAreChosen)
{
    Folder.AddFolder("sub");
    Script.When(IsDrawn("sub"), Keys({VK_DOWN, VK_RETURN}));
    Popup();
    EXPECT_TRUE(PumpUntil([&] { return Chosen.size() == 1; }));
    Folder.AddFile("sub\\a.txt");
    Menu->NoSubFolder = true;
    Script.When(AreOpen(1), Keys({VK_DOWN, VK_RETURN}));
    Popup();
    EXPECT_TRUE(PumpUntil([&] { return Chosen.size() == 2; }));
    EXPECT_THAT(Chosen, ElementsAre(Folder.Path() + "sub", Folder.Path() + "sub"));
}

TEST_F(FolderMenuScreenTest, AFolderThatGoesBeforeItOpensHasNothingToShow)
{
    Folder.AddFolder("sub");
    Folder.AddFile("sub\\a.txt");
    Script.When(IsDrawn("sub"), [&] {
        Folder.Remove("sub");
        Keys({VK_DOWN, VK_RIGHT})();
    });
    Script.When([&] { return ItemOf("sub")->Count == 1 && !ItemOf("sub")->Items[0]->Visible; }, [&] { EndMenu(); });
    Popup();
    EXPECT_TRUE(Script.IsDone());
    EXPECT_EQ(Menu->Places.size(), 1u);
    EXPECT_THAT(Chosen, IsEmpty());
}

TEST_F(FolderMenuScreenTest, AFolderThatWasAwayIsReadWhenItOpensAgain)
{
    Folder.AddFolder("sub");
    Folder.AddFile("sub\\a.txt");
    Script.When(IsDrawn("sub"), [&] {
        Folder.Remove("sub");
        Keys({VK_DOWN, VK_RIGHT})();
    });
    Script.When([&] { return !ItemOf("sub")->Items[0]->Visible; },
                [&] {
                    Folder.AddFolder("sub");
                    Folder.AddFile("sub\\b.txt");
                    Keys({VK_LEFT, VK_RIGHT})();
                });
    Script.When(IsDrawn("sub\\b.txt"), [&] {
        EXPECT_THAT(NamesIn(ItemOf("sub"), Folder.Path() + "sub\\"), ElementsAre("b.txt"));
        EndMenu();
    });
    Popup();
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
}

// ---- links

namespace {

// A program of the system below, with the arguments and in the folder given; false when there is no such system.
bool RunBelow(const wchar_t* Program, AnsiString Arguments, const AnsiString& Folder)
{
    STARTUPINFOW Startup = {};
    Startup.cb = sizeof Startup;
    PROCESS_INFORMATION Process;
    if (!CreateProcessW(Program, TWideText(Arguments).data(), nullptr, nullptr, FALSE, 0, nullptr,
                        TWideText(Folder).c_str(), &Startup, &Process))
        return false;
    WaitForSingleObject(Process.hProcess, 10000);
    CloseHandle(Process.hThread);
    CloseHandle(Process.hProcess);
    return true;
}

} // namespace

TEST_F(FolderMenuScreenTest, ALinkToItsOwnFolderOpensAsOftenAsTheUserLikes)
{
    Folder.AddFile("a.txt");
    if (!RunBelow(L"Z:\\bin\\ln", "ln -s . loop", Folder.Path()))
        RunBelow(L"C:\\windows\\system32\\cmd.exe", "cmd /c mklink /J loop .", Folder.Path());
    ASSERT_TRUE(PumpUntil([&] { return DirectoryExists(Folder.Path() + "loop"); }));
    Script.When(IsDrawn("loop"), Keys({VK_DOWN, VK_RIGHT}));
    Script.When(IsDrawn("loop\\loop"), Keys({VK_RIGHT}));
    Script.When(IsDrawn("loop\\loop\\loop"), Keys({VK_DOWN, VK_RETURN}));
    Popup();
    EXPECT_TRUE(Script.IsDone()) << Script.StepsDone();
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre(Folder.Path() + "loop\\loop\\a.txt"));
    if (!RunBelow(L"Z:\\bin\\rm", "rm loop", Folder.Path()))
        RemoveDirectoryW(TWideText(Folder.Path() + "loop").c_str());
    EXPECT_TRUE(PumpUntil([&] { return !DirectoryExists(Folder.Path() + "loop"); }));
}

// ---- keys

TEST_F(FolderMenuScreenTest, AnAmpersandInANameMarksNoLetter)
{
    Folder.AddFile("&x.txt");
    Folder.AddFile("xylophone.txt");
    Script.When(IsDrawn("&x.txt"), Keys({'X'}));
    Script.When([] { return true; }, Keys({VK_ESCAPE}));
    Popup();
    EXPECT_TRUE(Script.IsDone());
    PumpMessages();
    EXPECT_THAT(Chosen, IsEmpty());
    EXPECT_TRUE(ItemOf("&x.txt"));
    EXPECT_TRUE(ItemOf("xylophone.txt"));
}

// ---- handlers

TEST_F(FolderMenuScreenTest, AHandlerMayDeleteTheMenu)
{
    Folder.AddFile("a.txt");
    Menu->OnClickFolder = [&](TObject*, const AnsiString& Path) {
        delete Menu;
        Chosen.push_back(Path);
    };
    Script.When(IsDrawn("a.txt"), Keys({VK_DOWN, VK_RETURN}));
    Popup();
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre(Folder.Path() + "a.txt"));
}

TEST_F(FolderMenuScreenTest, AHandlerMayGoOnToAnotherFolder)
{
    Folder.AddFolder("sub");
    Folder.AddFile("sub\\b.txt");
    Menu->NoSubFolder = true;
    Menu->OnClickFolder = [&](TObject*, const AnsiString& Path) {
        Chosen.push_back(Path);
        Menu->Folder = Path;
        if (Chosen.size() == 1)
            Menu->Popup(150, 150);
    };
    Script.When(IsDrawn("sub"), Keys({VK_DOWN, VK_RETURN}));
    Script.When(IsDrawn("sub\\b.txt"), Keys({VK_DOWN, VK_RETURN}));
    Popup();
    EXPECT_TRUE(PumpUntil([&] { return Chosen.size() == 2; }));
    EXPECT_TRUE(Script.IsDone());
    EXPECT_THAT(Chosen, ElementsAre(Folder.Path() + "sub", Folder.Path() + "sub\\b.txt"));
}

TEST_F(FolderMenuScreenTest, TheMenuMayGoWhileItIsOpen)
{
    Folder.AddFolder("sub");
    Folder.AddFile("sub\\a.txt");
    Script.When(IsDrawn("sub"), Keys({VK_DOWN, VK_RIGHT}));
    Script.When(IsDrawn("sub\\a.txt"), [&] { delete std::exchange(Menu, nullptr); });
    Menu->Popup(150, 150);
    PumpMessages();
    EXPECT_TRUE(Script.IsDone());
    EXPECT_FALSE(FindWindowW(L"#32768", nullptr));
}

TEST_F(FolderMenuScreenTest, PopupOfTheOpenMenuDoesNothing)
{
    Folder.AddFile("a.txt");
    Script.When(IsDrawn("a.txt"), [&] {
        TMenuItem* Before = Menu->Items->Items[0];
        Menu->Popup(10, 10);
        EXPECT_EQ(Menu->Items->Items[0], Before);
        SendKey(VK_ESCAPE);
    });
    Popup();
    EXPECT_TRUE(Script.IsDone());
}

TEST_F(FolderMenuScreenTest, AMenuButtonDropsAFolder)
{
    Folder.AddFile("a.txt");
    auto* Button = Add<TkelMenuButton>("&Folder");
    Button->SetBounds(10, 10, 60, 22);
    Button->Menu = Menu;
    Script.When(IsDrawn("a.txt"), Keys({VK_DOWN, VK_RETURN}));
    MovePointerTo(Button, 10, 10);
    Click();
    EXPECT_TRUE(PumpUntil([&] { return !Chosen.empty(); }));
    EXPECT_THAT(Chosen, ElementsAre(Folder.Path() + "a.txt"));
    EXPECT_FALSE(Button->Down);
}
