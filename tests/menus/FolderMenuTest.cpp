// What folder menus make of a folder.
#include "menus/Tsy_menus.h"
#include "tests/menus/FolderMenuFixture.h"
#include "tests/menus/MeasureItem.h"
#include "tests/support/FormText.h"
#include "vcl/system/ClassDescription.h"

#include <algorithm>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

class FolderMenuTest : public testing::Test {
protected:
    // The names in the test's folder after MakeMenu.
    std::vector<AnsiString> Made()
    {
        Menu->Items->Clear();
        Menu->MakeMenu(Folder.Path(), Menu->Items);
        return NamesIn(Menu->Items, Folder.Path());
    }
    TMenuItem* ItemOf(const AnsiString& Name)
    {
        const std::vector<AnsiString> Names = Made();
        const auto Found = std::ranges::find(Names, Name);
        return Found == Names.end() ? nullptr : Menu->Items->Items[static_cast<int>(Found - Names.begin())];
    }
    TSize Measure(TMenuItem* Item) { return MeasureItem(*Menu, Item); }
    // Goes through what a popup does, without a menu on the screen.
    void PopupNothing()
    {
        Menu->Folder = "";
        Menu->Popup(0, 0);
    }

    TTestFolder Folder;
    std::unique_ptr<TOpenFolderMenu> Menu{new TOpenFolderMenu(nullptr)};
};

} // namespace

// ---- properties

TEST_F(FolderMenuTest, PublishesWhatFormsNeed)
{
    EXPECT_EQ(FindClass("TkelFolderMenu"), TkelFolderMenu::StaticClass());
    EXPECT_THAT(PublishedFrom(TkelFolderMenu::StaticClass(), "Folder"),
                ElementsAre("Folder", "NoSubFolder = False", "ShowFiles = True", "SmallIcon = False", "OnClickFolder"));
    EXPECT_EQ(Menu->Style, msOwnerDraw);
    EXPECT_EQ(Menu->Folder, "C:\\");
    EXPECT_FALSE(Menu->NoSubFolder);
    EXPECT_TRUE(Menu->ShowFiles);
    EXPECT_FALSE(Menu->SmallIcon);
}

TEST_F(FolderMenuTest, FormFilesKeepWhatWasSet)
{
    Menu->Folder = "D:\\Отчёты\\";
    Menu->NoSubFolder = true;
    Menu->ShowFiles = false;
    Menu->SmallIcon = true;
    std::unique_ptr<TkelFolderMenu> Copy(new TkelFolderMenu(nullptr));
    ReadFormText(Copy.get(), FormText(Menu.get()));
    EXPECT_EQ(Copy->Folder, "D:\\Отчёты\\");
    EXPECT_TRUE(Copy->NoSubFolder);
    EXPECT_FALSE(Copy->ShowFiles);
    EXPECT_TRUE(Copy->SmallIcon);
}

// ---- entries

TEST_F(FolderMenuTest, FoldersComeFirstTheLastFoundOnTop)
{
    for (const char* Name : {"beta", "alpha", "gamma"})
        Folder.AddFolder(Name);
    Folder.AddFile("zebra.txt");
    std::vector<AnsiString> Expected;
    TSearchRec F;
    for (int Error = FindFirst(Folder.Path() + "*.*", faAnyFile, F); Error == 0; Error = FindNext(F))
        if (F.Attr & faDirectory && F.Name != "." && F.Name != "..")
            Expected.insert(Expected.begin(), F.Name);
    FindClose(F);
    EXPECT_EQ(Expected.size(), 3u);
    Expected.push_back("zebra.txt");
    EXPECT_THAT(Made(), ElementsAreArray(Expected));
}

TEST_F(FolderMenuTest, FilesStandBeforeTheFirstLowerOne)
{
    std::vector<AnsiString> Names = {"b.txt", "a.txt", "C.txt", "b", "Отчёт.txt", "10", "9"};
    for (const AnsiString& Name : Names)
        Folder.AddFile(Name);
    std::ranges::sort(Names, std::greater());
    EXPECT_THAT(Made(), ElementsAreArray(Names));
}

TEST_F(FolderMenuTest, ItemsThatAreThereAlreadyAreCountedIn)
{
    const AnsiString Start = Folder.Path();
    for (const char* Name : {"d", "m", "c", "k"})
        Menu->Items->Add(NewItem(Start + Name, scNone, false, true, nullptr, 0, ""));
    Folder.AddFile("h");
    Folder.AddFile("a");
    Folder.AddFile("cc");
    Folder.AddFolder("sub");
    Menu->MakeMenu(Start, Menu->Items);
    EXPECT_THAT(NamesIn(Menu->Items, Start), ElementsAre("sub", "h", "d", "m", "cc", "c", "k", "a"));
}

TEST_F(FolderMenuTest, FilesCanBeLeftOut)
{
    Folder.AddFile("a.txt");
    Folder.AddFolder("sub");
    Menu->ShowFiles = false;
    EXPECT_THAT(Made(), ElementsAre("sub"));
}

TEST_F(FolderMenuTest, NamesStayAsTheyAre)
{
    for (const char* Name : {"&Save", "a&&b", "-", "日本.txt", "no ending"})
        Folder.AddFile(Name);
    EXPECT_THAT(Made(), ElementsAre("日本.txt", "no ending", "a&&b", "-", "&Save"));
    Menu->GetHandle(); // where accelerators are given out
    EXPECT_THAT(NamesIn(Menu->Items, Folder.Path()), ElementsAre("日本.txt", "no ending", "a&&b", "-", "&Save"));
    for (int I = 0; I < Menu->Items->Count; ++I)
        EXPECT_FALSE(Menu->Items->Items[I]->IsLine());
}

TEST_F(FolderMenuTest, TheNativeMenuSaysTheNamesToo)
{
    Folder.AddFile("a&b.txt");
    Made();
    wchar_t Text[100] = {};
    GetMenuStringW(Menu->Handle, 0, Text, 100, MF_BYPOSITION);
    EXPECT_EQ(FromWide(Text), "a&&b.txt") << "where a single & would underline the next letter";
}

TEST_F(FolderMenuTest, HiddenFilesAreShown)
{
    const AnsiString Path = Folder.AddFile("hidden.txt");
    SetFileAttributesW(TWideText(Path).c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    EXPECT_THAT(Made(), ElementsAre("hidden.txt"));
}

TEST_F(FolderMenuTest, AMissingBackslashIsAdded)
{
    Folder.AddFile("a.txt");
    Menu->MakeMenu(ExcludeTrailingPathDelimiter(Folder.Path()), Menu->Items);
    EXPECT_THAT(NamesIn(Menu->Items, Folder.Path()), ElementsAre("a.txt"));
}

TEST_F(FolderMenuTest, WhatIsNoFolderHasNoEntries)
{
    const AnsiString File = Folder.AddFile("a.txt");
    for (const AnsiString& Path : {AnsiString(), Folder.Path() + "nowhere\\", File, AnsiString("?:\\"),
                                   Folder.Path() + AnsiString(300, 'x') + "\\"}) {
        Menu->MakeMenu(Path, Menu->Items);
        EXPECT_EQ(Menu->Items->Count, 0) << Path;
    }
}

TEST_F(FolderMenuTest, AFolderHasASubmenuWhenThereIsSomethingToShow)
{
    Folder.AddFolder("empty");
    Folder.AddFolder("full");
    Folder.AddFile("full\\a.txt");
    TMenuItem* Empty = ItemOf("empty");
    ASSERT_TRUE(Empty);
    EXPECT_EQ(Empty->Count, 0) << "can be chosen";
    TMenuItem* Full = ItemOf("full");
    ASSERT_TRUE(Full);
    ASSERT_EQ(Full->Count, 1) << "not read before it opens";
    EXPECT_EQ(Full->Items[0]->Caption, "");
    Menu->ShowFiles = false;
    EXPECT_EQ(ItemOf("full")->Count, 0) << "only files";
    Folder.AddFolder("full\\sub");
    EXPECT_EQ(ItemOf("full")->Count, 1);
    Menu->NoSubFolder = true;
    EXPECT_EQ(ItemOf("full")->Count, 0);
}

TEST_F(FolderMenuTest, AFolderTooDeepToReadCanBeChosen)
{
    AnsiString Path = Folder.Path();
    while (Path.size() < MAX_PATH - 40) {
        Path += AnsiString(20, 'd') + "\\";
        CreateDirectoryW(TWideText("\\\\?\\" + Path).c_str(), nullptr);
    }
    const AnsiString Deep = Path + AnsiString(60, 'e');
    CreateDirectoryW(TWideText("\\\\?\\" + Deep).c_str(), nullptr);
    CreateDirectoryW(TWideText("\\\\?\\" + Deep + "\\inside").c_str(), nullptr);
    ASSERT_GT(Deep.size(), static_cast<size_t>(MAX_PATH));
    Menu->MakeMenu(Path, Menu->Items);
    ASSERT_EQ(Menu->Items->Count, 1);
    EXPECT_EQ(Menu->Items->Items[0]->Caption, Deep);
    RemoveDirectoryW(TWideText("\\\\?\\" + Deep + "\\inside").c_str());
    RemoveDirectoryW(TWideText("\\\\?\\" + Deep).c_str());
}

TEST_F(FolderMenuTest, AnEndlessFolderEndsSomewhere)
{
    for (int I = 0; I < 10; ++I)
        Folder.AddFile(IntToStr(I));
    EXPECT_EQ(Made().size(), 10u);
    Menu->MaxEntries = 7;
    EXPECT_EQ(Made().size(), 7u);
    Menu->MaxEntries = 0;
    EXPECT_THAT(Made(), IsEmpty());
}

TEST_F(FolderMenuTest, PopupForgetsTheItemsBefore)
{
    Folder.AddFile("a.txt");
    Made();
    PopupNothing();
    EXPECT_EQ(Menu->Items->Count, 0);
}

// ---- what an item is

TEST_F(FolderMenuTest, ClickingAnItemGivesItsPath)
{
    Folder.AddFile("a.txt");
    TMenuItem* Item = ItemOf("a.txt");
    ASSERT_TRUE(Item);
    Item->Click(); // nobody listens
    std::vector<std::pair<TObject*, AnsiString>> Clicks;
    Menu->OnClickFolder = [&](TObject* Sender, const AnsiString& Path) { Clicks.emplace_back(Sender, Path); };
    Item->Click();
    Menu->DoClickFolder(Item);
    const std::pair<TObject*, AnsiString> Click(Menu.get(), Folder.Path() + "a.txt");
    EXPECT_THAT(Clicks, ElementsAre(Click, Click));
    Menu->DoClickFolder(nullptr);
    EXPECT_EQ(Clicks.size(), 2u);
}

TEST_F(FolderMenuTest, AnItemIsAsWideAsItsWholeNameAndItsIcon)
{
    Folder.AddFile("R&D report.txt");
    TMenuItem* Item = ItemOf("R&D report.txt");
    ASSERT_TRUE(Item);
    EXPECT_EQ(Measure(Item), TSize(TextWidth("R&D report.txt") + 32 + 38, 32));
    Menu->SmallIcon = true;
    EXPECT_EQ(Measure(Item), TSize(TextWidth("R&D report.txt") + 32 + 38, 32)) << "until the next popup";
    PopupNothing();
    Item = ItemOf("R&D report.txt");
    EXPECT_EQ(Measure(Item), TSize(TextWidth("R&D report.txt") + 16 + 38, 16));
    Menu->SmallIcon = false;
    PopupNothing();
    EXPECT_EQ(Measure(ItemOf("R&D report.txt")).cy, 32);
}

TEST_F(FolderMenuTest, AnItemIsNeverWiderThanTheScreen)
{
    const AnsiString Name(250, 'W');
    const std::unique_ptr<TMenuItem> Item(NewItem("C:\\" + Name, scNone, false, true, nullptr, 0, ""));
    ASSERT_GT(TextWidth(Name), GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LT(Measure(Item.get()).cx, GetSystemMetrics(SM_CXSCREEN));
}

TEST_F(FolderMenuTest, IconsOfFilesAreTheCallers)
{
    const AnsiString Path = Folder.AddFile("a.txt");
    std::unique_ptr<TIcon> Icon(Menu->GetFileIcon(Path));
    ASSERT_TRUE(Icon);
    EXPECT_FALSE(Icon->Empty);
    EXPECT_EQ(Icon->Width, 32);
    Menu->SmallIcon = true;
    Icon.reset(Menu->GetFileIcon(Path));
    EXPECT_EQ(Icon->Width, 16);
    Icon.reset(Menu->GetFileIcon(Folder.Path() + "nowhere\\nothing"));
    ASSERT_TRUE(Icon);
    EXPECT_TRUE(Icon->Empty);
}
