#include "vcl/menus/MainMenu.h"
#include "vcl/menus/PopupMenu.h"

#include "vcl/classes/MemoryStream.h"
#include "vcl/classes/Reader.h"
#include "vcl/classes/Writer.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/LiveCount.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

// Writes what it owns, as a form does.
class TMenuTestRoot : public TComponent {
    VCL_CLASS(TMenuTestRoot, TComponent)
public:
    explicit TMenuTestRoot(TComponent* AOwner) : TComponent(AOwner) {}
    void GetChildren(const TGetChildProc& Proc, TComponent*) override
    {
        for (int I = 0; I < ComponentCount; ++I)
            if (!Components[I]->HasParent())
                Proc(Components[I]);
    }
};

void TMenuTestRoot::Describe(TClassBuilder<TMenuTestRoot>&)
{}

namespace {

TMenuItem* AddItem(TMenuItem* Parent, const AnsiString& Caption)
{
    auto* Item = new TMenuItem(Parent->Owner);
    Item->Caption = Caption;
    Parent->Add(Item);
    return Item;
}

MENUITEMINFOW NativeItem(HMENU Menu, int Position, TWideString* Text = nullptr)
{
    static wchar_t Buffer[256];
    MENUITEMINFOW Info{};
    Info.cbSize = sizeof Info;
    Info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING;
    Info.dwTypeData = Buffer;
    Info.cch = 256;
    Buffer[0] = 0;
    EXPECT_TRUE(GetMenuItemInfoW(Menu, static_cast<UINT>(Position), TRUE, &Info));
    if (Text)
        *Text = Buffer;
    return Info;
}

AnsiString NativeText(HMENU Menu, int Position)
{
    TWideString Text;
    NativeItem(Menu, Position, &Text);
    return FromWide(Text);
}

std::vector<AnsiString> NativeTexts(HMENU Menu)
{
    std::vector<AnsiString> Texts;
    for (int I = 0; I < GetMenuItemCount(Menu); ++I)
        Texts.push_back((NativeItem(Menu, I).fType & MFT_SEPARATOR) ? "-" : NativeText(Menu, I));
    return Texts;
}

class MenuItems : public testing::Test {
protected:
    void SetUp() override
    {
        FMenu = std::make_unique<TPopupMenu>(nullptr);
        FMenu->AutoHotkeys = maManual;
        FRoot = FMenu->Items;
    }

    std::unique_ptr<TPopupMenu> FMenu;
    TMenuItem* FRoot = nullptr;
};

using testing::ElementsAre;

} // namespace

TEST_F(MenuItems, KnowTheirPlaceInTheTree)
{
    TMenuItem* File = AddItem(FRoot, "File");
    TMenuItem* Open = AddItem(File, "Open");
    TMenuItem* Save = AddItem(File, "Save");
    EXPECT_EQ(FRoot->Count, 1);
    EXPECT_EQ(File->Items[1], Save);
    EXPECT_EQ(Save->Parent, File);
    EXPECT_EQ(Save->MenuIndex, 1);
    EXPECT_EQ(File->IndexOf(Open), 0);
    EXPECT_EQ(Open->GetParentMenu(), FMenu.get());
    EXPECT_EQ(File->GetParentComponent(), FMenu.get()) << "the root item is no one's parent in a form";
    EXPECT_EQ(File->Find("s&ave"), Save);
    Save->MenuIndex = 0;
    EXPECT_EQ(File->Items[0], Save);
    EXPECT_THROW(File->Items[2], EMenuError);
}

TEST_F(MenuItems, CannotBeInsertedTwice)
{
    TMenuItem* Item = AddItem(FRoot, "Once");
    EXPECT_THROW(FRoot->Add(Item), EMenuError);
    TMenuItem* Other = AddItem(FRoot, "Other");
    EXPECT_THROW(Other->Remove(Item), EMenuError);
    FRoot->Remove(Item);
    EXPECT_EQ(Item->Parent, nullptr);
    EXPECT_EQ(FRoot->Count, 1);
    EXPECT_EQ(Item->MenuIndex, -1);
    delete Item;
}

TEST_F(MenuItems, DeletedItemsLeaveTheirMenuAndTakeTheirOwnAlong)
{
    const int64_t Before = LiveObjectCount();
    TMenuItem* File = AddItem(FRoot, "File");
    AddItem(AddItem(File, "Recent"), "One");
    delete File;
    EXPECT_EQ(FRoot->Count, 0);
    EXPECT_EQ(LiveObjectCount(), Before);
}

TEST_F(MenuItems, CommandsAreUniqueAndReused)
{
    std::set<uint16_t> Commands;
    for (int I = 0; I < 500; ++I)
        Commands.insert(AddItem(FRoot, "Item")->Command);
    EXPECT_EQ(Commands.size(), 500u);
    EXPECT_EQ(Commands.count(0), 0u);
    for (TMenuItem* Item = FRoot->Items[0]; Item; Item = FRoot->Count ? FRoot->Items[0] : nullptr)
        delete Item;
    for (int I = 0; I < 130; ++I) { // more in all than there are numbers
        for (int J = 0; J < 500; ++J)
            AddItem(FRoot, "Item");
        FRoot->Clear();
    }
    EXPECT_EQ(FRoot->Count, 0);
}

TEST_F(MenuItems, ClickAsksEnabledAndChecks)
{
    TMenuItem* Item = AddItem(FRoot, "Item");
    int Clicks = 0;
    Item->OnClick = [&](TObject* Sender) {
        EXPECT_EQ(Sender, Item);
        ++Clicks;
    };
    Item->AutoCheck = true;
    Item->Click();
    EXPECT_TRUE(Item->Checked);
    Item->Click();
    EXPECT_FALSE(Item->Checked);
    Item->Enabled = false;
    Item->Click();
    EXPECT_EQ(Clicks, 2);
}

TEST_F(MenuItems, OfARadioGroupOneIsChecked)
{
    TMenuItem* Items[4];
    for (int I = 0; I < 4; ++I) {
        Items[I] = AddItem(FRoot, "Item");
        Items[I]->RadioItem = true;
        Items[I]->GroupIndex = I < 3 ? 1 : 2;
    }
    Items[3]->Checked = true;
    Items[0]->Checked = true;
    Items[1]->Checked = true;
    EXPECT_FALSE(Items[0]->Checked);
    EXPECT_TRUE(Items[1]->Checked);
    EXPECT_TRUE(Items[3]->Checked) << "another group";
    Items[1]->AutoCheck = true;
    Items[1]->Click();
    EXPECT_TRUE(Items[1]->Checked) << "a second click leaves a radio item on";
}

TEST_F(MenuItems, GroupIndexesOnlyGrow)
{
    TMenuItem* First = AddItem(FRoot, "First");
    TMenuItem* Second = AddItem(FRoot, "Second");
    First->GroupIndex = 3;
    EXPECT_EQ(Second->GroupIndex, 3);
    EXPECT_THROW(Second->GroupIndex = 2, EMenuError);
    EXPECT_EQ(Second->GroupIndex, 3);
    EXPECT_EQ(AddItem(FRoot, "Third")->GroupIndex, 3);
}

TEST_F(MenuItems, TheNativeMenuShowsCaptionsShortCutsAndStates)
{
    TMenuItem* Save = AddItem(FRoot, "&Сохранить");
    Save->ShortCut = ShortCut('S', {ssCtrl});
    Save->Checked = true;
    Save->Default = true;
    TMenuItem* Gray = AddItem(FRoot, "Gray");
    Gray->Enabled = false;
    Gray->Break = mbBarBreak;
    Gray->RadioItem = true;
    HMENU Menu = FRoot->Handle;
    EXPECT_EQ(NativeText(Menu, 0), "&Сохранить\tCtrl+S");
    EXPECT_EQ(NativeItem(Menu, 0).fState & (MFS_CHECKED | MFS_DEFAULT | MFS_GRAYED),
              static_cast<UINT>(MFS_CHECKED | MFS_DEFAULT));
    EXPECT_EQ(NativeItem(Menu, 0).wID, Save->Command);
    EXPECT_NE(NativeItem(Menu, 1).fState & MFS_GRAYED, 0u);
    EXPECT_EQ(NativeItem(Menu, 1).fType & (MFT_MENUBARBREAK | MFT_RADIOCHECK),
              static_cast<UINT>(MFT_MENUBARBREAK | MFT_RADIOCHECK));
}

TEST_F(MenuItems, ChangesReachTheNativeMenu)
{
    TMenuItem* A = AddItem(FRoot, "A");
    TMenuItem* B = AddItem(FRoot, "B");
    HMENU Menu = FRoot->Handle;
    A->Checked = true;
    EXPECT_NE(NativeItem(Menu, 0).fState & MFS_CHECKED, 0u) << "at once";
    A->Enabled = false;
    EXPECT_NE(NativeItem(Menu, 0).fState & MFS_GRAYED, 0u);
    EXPECT_NE(NativeItem(Menu, 0).fState & MFS_CHECKED, 0u) << "the other states stay";
    B->Visible = false;
    A->Caption = "Я";
    EXPECT_EQ(FRoot->Handle, Menu) << "the same menu as before";
    EXPECT_THAT(NativeTexts(FRoot->Handle), ElementsAre("Я"));
    B->Visible = true;
    AddItem(B, "Inner");
    EXPECT_EQ(NativeItem(FRoot->Handle, 1).hSubMenu, B->Handle);
    B->Clear();
    EXPECT_EQ(NativeItem(FRoot->Handle, 1).hSubMenu, nullptr);
}

TEST_F(MenuItems, StatesOfSubmenusReachTheirEntry)
{
    TMenuItem* Sub = AddItem(FRoot, "Sub");
    AddItem(Sub, "Inner");
    HMENU Menu = FRoot->Handle;
    Sub->Enabled = false;
    EXPECT_NE(NativeItem(Menu, 0).fState & MFS_GRAYED, 0u);
    EXPECT_EQ(NativeItem(Menu, 0).hSubMenu, Sub->Handle);
}

TEST_F(MenuItems, SeparatorsWithNothingToSeparateDoNotShow)
{
    for (const char* Caption : {"-", "A", "-", "-", "B", "-"})
        AddItem(FRoot, Caption);
    EXPECT_THAT(NativeTexts(FRoot->Handle), ElementsAre("A", "-", "B"));
    FMenu->AutoLineReduction = maManual;
    EXPECT_THAT(NativeTexts(FRoot->Handle), ElementsAre("-", "A", "-", "-", "B", "-"));
}

TEST_F(MenuItems, LinesAreInsertedAroundAnItem)
{
    TMenuItem* Item = AddItem(FRoot, "Item");
    EXPECT_EQ(FRoot->InsertNewLineBefore(Item), 0);
    EXPECT_EQ(FRoot->InsertNewLineAfter(Item), 2);
    EXPECT_TRUE(FRoot->Items[0]->IsLine());
    EXPECT_TRUE(FRoot->Items[2]->IsLine());
}

TEST_F(MenuItems, AutomaticHotkeysFillTheGaps)
{
    FMenu->AutoHotkeys = maAutomatic;
    for (const char* Caption : {"Cut", "&Copy", "Clear", "&Close", "漢字"})
        AddItem(FRoot, Caption);
    FRoot->Handle;
    std::vector<AnsiString> Captions;
    for (int I = 0; I < FRoot->Count; ++I)
        Captions.push_back(FRoot->Items[I]->Caption);
    EXPECT_THAT(Captions, ElementsAre("C&ut", "&Copy", "C&lear", "Cl&ose", "漢字"));
}

TEST_F(MenuItems, AreFoundByCommandHandleAndShortCut)
{
    TMenuItem* File = AddItem(FRoot, "File");
    TMenuItem* Save = AddItem(File, "Save");
    Save->ShortCut = ShortCut('S', {ssCtrl});
    EXPECT_EQ(FMenu->FindItem(Save->Command, fkCommand), Save);
    EXPECT_EQ(FMenu->FindItem(Save->ShortCut, fkShortCut), Save);
    EXPECT_EQ(FMenu->FindItem(reinterpret_cast<uintptr_t>(File->Handle), fkHandle), File);
    EXPECT_EQ(FMenu->FindItem(0, fkCommand), nullptr);
    EXPECT_EQ(FMenu->FindItem(0, fkHandle), nullptr) << "items without a native menu match nothing";
    EXPECT_EQ(FMenu->FindItem(scNone, fkShortCut), nullptr);
}

TEST_F(MenuItems, AShortCutOpensItsSubmenusFirst)
{
    TMenuItem* File = AddItem(FRoot, "File");
    TMenuItem* Save = AddItem(File, "Save");
    Save->ShortCut = ShortCut('S', {ssCtrl});
    std::vector<AnsiString> Log;
    File->OnClick = [&](TObject*) {
        Log.push_back("open");
        Save->Enabled = Log.size() > 1;
    };
    Save->OnClick = [&](TObject*) { Log.push_back("save"); };
    EXPECT_FALSE(FMenu->IsShortCut(Save->ShortCut)) << "the submenu's handler disabled it";
    EXPECT_TRUE(FMenu->IsShortCut(Save->ShortCut));
    EXPECT_THAT(Log, ElementsAre("open", "open", "save"));
    FRoot->Items[0]->Visible = false;
    EXPECT_FALSE(FMenu->IsShortCut(Save->ShortCut));
}

TEST_F(MenuItems, AHandlerMayDeleteItsOwnItem)
{
    TMenuItem* Item = AddItem(FRoot, "Item");
    Item->OnClick = [](TObject* Sender) { delete Sender; };
    EXPECT_TRUE(FMenu->DispatchCommand(Item->Command));
    EXPECT_EQ(FRoot->Count, 0);
}

TEST_F(MenuItems, ASubmenuIsFilledWhenItOpens)
{
    TMenuItem* Recent = AddItem(FRoot, "Recent");
    AddItem(Recent, "placeholder");
    Recent->OnClick = [&](TObject*) {
        Recent->Clear();
        AddItem(Recent, "One");
        AddItem(Recent, "Two");
    };
    HMENU Native = Recent->Handle;
    EXPECT_TRUE(FMenu->DispatchPopup(Native));
    EXPECT_THAT(NativeTexts(Native), ElementsAre("One", "Two")) << "before the system shows it";
}

TEST_F(MenuItems, ChangesAreToldToTheMenu)
{
    std::vector<std::pair<TMenuItem*, bool>> Changes;
    TMenuItem* Item = AddItem(FRoot, "Item");
    FMenu->OnChange = [&](TObject* Sender, TMenuItem* Source, bool Rebuild) {
        EXPECT_EQ(Sender, FMenu.get());
        Changes.emplace_back(Source, Rebuild);
    };
    Item->Checked = true;
    Item->Caption = "Other";
    EXPECT_THAT(Changes, ElementsAre(std::pair(Item, false), std::pair(Item, true)));
    FMenu->OnChange = nullptr;
}

TEST_F(MenuItems, AreFoundByCommandAtOnceHoweverManyThereAre)
{
    const auto MicrosecondsToFind = [&](TMenuItem* Item) {
        double Best = 1e9;
        for (int I = 0; I < 20; ++I) {
            LARGE_INTEGER Start, End, Frequency;
            QueryPerformanceFrequency(&Frequency);
            QueryPerformanceCounter(&Start);
            for (int J = 0; J < 100; ++J)
                EXPECT_EQ(FMenu->FindItem(Item->Command, fkCommand), Item);
            QueryPerformanceCounter(&End);
            Best = std::min(Best, 1e6 * static_cast<double>(End.QuadPart - Start.QuadPart) /
                                      static_cast<double>(Frequency.QuadPart));
        }
        return Best;
    };
    const double InASmallMenu = MicrosecondsToFind(AddItem(FRoot, "First"));
    TMenuItem* Last = nullptr;
    for (int I = 0; I < 5000; ++I)
        Last = AddItem(FRoot, "Item");
    EXPECT_LT(MicrosecondsToFind(Last), 20 * InASmallMenu);
}

TEST_F(MenuItems, ItemsOfOtherMenusAreNotFoundByCommand)
{
    TPopupMenu Other(nullptr);
    TMenuItem* Theirs = AddItem(AddItem(Other.Items, "Sub"), "Theirs");
    TMenuItem* Loose = new TMenuItem(&Other);
    EXPECT_EQ(Other.FindItem(Theirs->Command, fkCommand), Theirs);
    EXPECT_EQ(FMenu->FindItem(Theirs->Command, fkCommand), nullptr);
    EXPECT_EQ(FMenu->FindItem(Loose->Command, fkCommand), nullptr);
    EXPECT_EQ(FMenu->FindItem(uintptr_t{Theirs->Command} + 0x10000, fkCommand), nullptr);
    const uint16_t Command = Theirs->Command;
    delete Theirs;
    EXPECT_EQ(Other.FindItem(Command, fkCommand), nullptr);
}

TEST_F(MenuItems, TheMenuMayGoWhenItTellsOfAChange)
{
    const std::function<void(TMenuItem*)> Changes[] = {
        [](TMenuItem* Item) { Item->Checked = true; },
        [](TMenuItem* Item) { Item->Default = true; },
        [](TMenuItem* Item) { Item->GroupIndex = 3; },
        [](TMenuItem* Item) {
            Item->AutoCheck = true;
            Item->Click();
        },
    };
    for (const auto& Change : Changes) {
        int Clicks = 0;
        auto Menu = std::make_unique<TPopupMenu>(nullptr);
        for (const char* Caption : {"One", "Two"}) {
            AddItem(Menu->Items, Caption)->RadioItem = true;
            Menu->Items->Items[Menu->Items->Count - 1]->OnClick = [&](TObject*) { ++Clicks; };
        }
        Menu->Items->Items[1]->Checked = true;
        Menu->Items->Items[1]->Default = true;
        Menu->OnChange = [&](TObject*, TMenuItem*, bool) { Menu.reset(); };
        Change(Menu->Items->Items[0]);
        EXPECT_EQ(Menu, nullptr);
        EXPECT_EQ(Clicks, 0);
    }
}

TEST(NewMenuItems, HaveTheValuesGiven)
{
    std::unique_ptr<TMenuItem> Sub(NewSubMenu(
        "&File", 5, "File1", {NewItem("Save", ShortCut('S', {ssCtrl}), true, false, nullptr, 7, "Save1"), NewLine()}));
    EXPECT_EQ(Sub->Name, "File1");
    EXPECT_EQ(Sub->HelpContext, 5);
    TMenuItem* Save = Sub->Items[0];
    EXPECT_EQ(Save->ShortCut, ShortCut('S', {ssCtrl}));
    EXPECT_TRUE(Save->Checked);
    EXPECT_FALSE(Save->Enabled);
    EXPECT_EQ(Save->HelpContext, 7);
    EXPECT_TRUE(Sub->Items[1]->IsLine());
}

TEST(MenuStreaming, ItemsAreNestedObjects)
{
    TMemoryStream Stream;
    {
        auto Root = std::make_unique<TMenuTestRoot>(nullptr);
        auto* Menu = new TMainMenu(Root.get());
        Menu->Name = "MainMenu1";
        TMenuItem* File = new TMenuItem(Root.get());
        File->Name = "File1";
        File->Caption = "&Файл";
        Menu->Items->Add(File);
        TMenuItem* Open = new TMenuItem(Root.get());
        Open->Name = "Open1";
        Open->ShortCut = ShortCut('O', {ssCtrl});
        File->Add(Open);
        TWriter(&Stream).WriteRootComponent(Root.get());
    }
    Stream.Position = 0;
    auto Copy = std::make_unique<TMenuTestRoot>(nullptr);
    ReadRootComponent(Stream, Copy.get());
    auto* Menu = As<TMainMenu>(Copy->FindComponent("MainMenu1"));
    ASSERT_NE(Menu, nullptr);
    ASSERT_EQ(Menu->Items->Count, 1);
    EXPECT_EQ(Menu->Items->Items[0]->Caption, "&Файл");
    ASSERT_EQ(Menu->Items->Items[0]->Count, 1);
    EXPECT_EQ(Menu->Items->Items[0]->Items[0], Copy->FindComponent("Open1"));
    EXPECT_EQ(Menu->Items->Items[0]->Items[0]->ShortCut, ShortCut('O', {ssCtrl}));
}

TEST(MenuStreaming, BitmapsAreStoredWithTheirItems)
{
    TMemoryStream Stream;
    {
        auto Root = std::make_unique<TMenuTestRoot>(nullptr);
        auto* Menu = new TPopupMenu(Root.get());
        Menu->Name = "PopupMenu1";
        Menu->OwnerDraw = true;
        for (const char* Name : {"With1", "Without1"})
            Menu->Items->Add(NewItem(Name, scNone, false, true, nullptr, 0, Name, Root.get()));
        Menu->Items->Items[0]->Bitmap->SetSize(6, 5);
        Menu->Items->Items[0]->Bitmap->Canvas->Pixels[2][1] = clRed;
        TWriter(&Stream).WriteRootComponent(Root.get());
    }
    const std::string_view Bytes(static_cast<const char*>(Stream.Memory), static_cast<size_t>(Stream.Size));
    EXPECT_EQ(Bytes.find("Bitmap.Data"), Bytes.rfind("Bitmap.Data")) << "once: an item without has none";
    Stream.Position = 0;
    auto Copy = std::make_unique<TMenuTestRoot>(nullptr);
    ReadRootComponent(Stream, Copy.get());
    auto* With = As<TMenuItem>(Copy->FindComponent("With1"));
    ASSERT_NE(With, nullptr);
    EXPECT_TRUE(With->GetParentMenu()->OwnerDraw);
    EXPECT_TRUE(With->HasImage());
    EXPECT_EQ(With->Bitmap->Width, 6);
    EXPECT_EQ(With->Bitmap->Canvas->Pixels[2][1], clRed);
    EXPECT_FALSE(As<TMenuItem>(Copy->FindComponent("Without1"))->HasImage());
}
