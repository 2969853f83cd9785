// One bar that shows the items of two main menus.
#include "vcl/menus/MainMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

std::vector<AnsiString> NativeTexts(HMENU Menu)
{
    std::vector<AnsiString> Texts;
    for (int I = 0; I < GetMenuItemCount(Menu); ++I) {
        wchar_t Text[64] = L"";
        GetMenuStringW(Menu, static_cast<UINT>(I), Text, 64, MF_BYPOSITION);
        Texts.push_back(FromWide(Text));
    }
    return Texts;
}

class MenuMerging : public testing::Test {
protected:
    void SetUp() override
    {
        FWindow = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW, 100, 100, 300, 200, nullptr, nullptr, nullptr,
                                  nullptr);
        FMain = MakeMenu();
        FChild = MakeMenu();
        AddTop(FMain.get(), "File", 0, 'A');
        AddTop(FMain.get(), "Edit", 1, 'B');
        AddTop(FMain.get(), "Help", 9, 'C');
        FMain->WindowHandle = FWindow;
        AddTop(FChild.get(), "Draft", 1, 'D');
        AddTop(FChild.get(), "Text", 1, 'E');
        AddTop(FChild.get(), "Table", 5, 'F');
    }
    void TearDown() override
    {
        FMain.reset();
        FChild.reset();
        DestroyWindow(FWindow);
    }

    static std::unique_ptr<TMainMenu> MakeMenu()
    {
        auto Menu = std::make_unique<TMainMenu>(nullptr);
        Menu->AutoHotkeys = maManual;
        return Menu;
    }

    // A submenu with one item "Do " + Caption, whose shortcut is Ctrl+Key.
    TMenuItem* AddTop(TMainMenu* Menu, const AnsiString& Caption, uint8_t Group, char Key)
    {
        auto Note = [this](TObject* Sender) { FLog.push_back(As<TMenuItem>(Sender)->Caption); };
        TMenuItem* Do =
            NewItem("Do " + Caption, ShortCut(static_cast<uint16_t>(Key), {ssCtrl}), false, true, Note, 0, "", Menu);
        TMenuItem* Top = NewSubMenu(Caption, 0, "", {Do}, true, Menu);
        Top->GroupIndex = Group;
        Menu->Items->Add(Top);
        return Top;
    }

    std::vector<AnsiString> Bar() const { return NativeTexts(::GetMenu(FWindow)); }

    HWND FWindow = nullptr;
    std::unique_ptr<TMainMenu> FMain;
    std::unique_ptr<TMainMenu> FChild;
    std::vector<AnsiString> FLog;
};

} // namespace

TEST_F(MenuMerging, EqualGroupsAreReplacedAndOthersInserted)
{
    FMain->Merge(FChild.get());
    EXPECT_THAT(Bar(), ElementsAre("File", "Draft", "Text", "Table", "Help"));
    EXPECT_EQ(FMain->Merged, FChild.get());
    EXPECT_EQ(FMain->Items->Count, 3) << "the items stay where they are";
    FMain->Unmerge(FChild.get());
    EXPECT_THAT(Bar(), ElementsAre("File", "Edit", "Help"));
    EXPECT_EQ(FMain->Merged, nullptr);
}

TEST_F(MenuMerging, EveryItemOfAnEqualGroupIsReplaced)
{
    AddTop(FMain.get(), "About", 9, 'G');
    FChild->Items->Items[2]->GroupIndex = 9;
    FMain->Merge(FChild.get());
    EXPECT_THAT(Bar(), ElementsAre("File", "Draft", "Text", "Table"));
}

TEST_F(MenuMerging, TwiceIsTheSameAsOnce)
{
    FMain->Merge(FChild.get());
    FMain->Merge(FChild.get());
    EXPECT_EQ(Bar().size(), 5u);
    FMain->Unmerge(FChild.get());
    FMain->Unmerge(FChild.get());
    EXPECT_THAT(Bar(), ElementsAre("File", "Edit", "Help"));
    FMain->Merge(FChild.get());
    EXPECT_THAT(Bar(), ElementsAre("File", "Draft", "Text", "Table", "Help"));
}

TEST_F(MenuMerging, AnotherMenuTakesThePlaceOfTheMergedOne)
{
    auto Other = MakeMenu();
    AddTop(Other.get(), "Picture", 4, 'H');
    FMain->Merge(FChild.get());
    FMain->Merge(Other.get());
    EXPECT_THAT(Bar(), ElementsAre("File", "Edit", "Picture", "Help"));
    FMain->Unmerge(FChild.get());
    EXPECT_EQ(Bar().size(), 4u) << "it is not the merged one any more";
    FChild->Merge(Other.get());
    EXPECT_THAT(Bar(), ElementsAre("File", "Edit", "Help")) << "a menu is in one bar at a time";
    FMain->Merge(nullptr);
    EXPECT_THROW(FMain->Merge(FMain.get()), EMenuError);
}

TEST_F(MenuMerging, ShortCutsAndCommandsOfTheMergedMenuWork)
{
    EXPECT_FALSE(FMain->IsShortCut(scCtrl | 'D'));
    FMain->Merge(FChild.get());
    EXPECT_TRUE(FMain->IsShortCut(scCtrl | 'D'));
    EXPECT_FALSE(FMain->IsShortCut(scCtrl | 'B')) << "of an item that is replaced";
    EXPECT_TRUE(FMain->IsShortCut(scCtrl | 'C'));
    EXPECT_TRUE(FMain->DispatchCommand(FChild->Items->Items[2]->Items[0]->Command));
    EXPECT_THAT(FLog, ElementsAre("Do Draft", "Do Help", "Do Table"));
    FChild->Items->Items[0]->Enabled = false;
    EXPECT_FALSE(FMain->IsShortCut(scCtrl | 'D'));
    FMain->Unmerge(FChild.get());
    EXPECT_TRUE(FMain->IsShortCut(scCtrl | 'B'));
    EXPECT_FALSE(FMain->DispatchCommand(FChild->Items->Items[2]->Items[0]->Command));
}

TEST_F(MenuMerging, SubmenusOfTheMergedMenuFillWhenTheyOpen)
{
    FMain->Merge(FChild.get());
    TMenuItem* Table = FChild->Items->Items[2];
    int Opened = 0;
    Table->OnClick = [&](TObject*) {
        ++Opened;
        Table->Add(NewItem("Late", scNone, false, true, nullptr, 0, "", FChild.get()));
    };
    EXPECT_TRUE(FMain->DispatchPopup(Table->Handle));
    EXPECT_EQ(Opened, 1);
    EXPECT_THAT(NativeTexts(GetSubMenu(::GetMenu(FWindow), 3)), ElementsAre("Do Table\tCtrl+F", "Late"));
}

TEST_F(MenuMerging, TheBarFollowsTheMergedItems)
{
    FMain->Merge(FChild.get());
    FChild->Items->Items[0]->Caption = "Sketch";
    FChild->Items->Items[1]->Visible = false;
    EXPECT_THAT(Bar(), ElementsAre("File", "Sketch", "Table", "Help"));
    FChild->Items->Items[2]->Enabled = false;
    EXPECT_TRUE(GetMenuState(::GetMenu(FWindow), 2, MF_BYPOSITION) & MF_DISABLED);
    FChild->Items->Items[2]->GroupIndex = 9;
    EXPECT_THAT(Bar(), ElementsAre("File", "Sketch", "Table"));
    delete FChild->Items->Items[0];
    EXPECT_THAT(Bar(), ElementsAre("File", "Table")) << "the hidden item still replaces its group";
    AddTop(FChild.get(), "Last", 9, 'I');
    EXPECT_THAT(Bar(), ElementsAre("File", "Table", "Last"));
}

TEST_F(MenuMerging, EitherMenuMayGoWhileMerged)
{
    auto Main = MakeMenu();
    AddTop(Main.get(), "Own", 0, 'J');
    Main->Merge(FChild.get());
    EXPECT_EQ(NativeTexts(Main->Handle).size(), 4u);
    Main.reset();
    FMain->Merge(FChild.get());
    EXPECT_THAT(Bar(), ElementsAre("File", "Draft", "Text", "Table", "Help"));
    EXPECT_TRUE(IsMenu(FChild->Items->Items[0]->Handle)) << "the submenus are their items' own";
    FChild.reset();
    EXPECT_THAT(Bar(), ElementsAre("File", "Edit", "Help"));
    EXPECT_EQ(FMain->Merged, nullptr);
}

TEST_F(MenuMerging, TheMergedMenuKeepsABarOfItsOwn)
{
    HWND Second =
        CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW, 0, 0, 200, 200, nullptr, nullptr, nullptr, nullptr);
    FChild->WindowHandle = Second;
    FMain->Merge(FChild.get());
    FMain->Unmerge(FChild.get());
    EXPECT_THAT(NativeTexts(::GetMenu(Second)), ElementsAre("Draft", "Text", "Table"));
    EXPECT_EQ(GetSubMenu(::GetMenu(Second), 0), FChild->Items->Items[0]->Handle);
    FChild->WindowHandle = nullptr;
    DestroyWindow(Second);
}
