// Main menus whose items the application draws, shown on a form.
#include "tests/common/OwnerDrawMenuFixture.h"
#include "tests/support/FormText.h"
#include "vcl/classes/ComponentRef.h"
#include "vcl/stdctrls/ListBox.h"
#include "vcl/system/ClassDescription.h"
#include "vcl/system/LiveCount.h"

using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

class CustomMenuTest : public TOwnerDrawMenuTest {
protected:
    void SetUp() override
    {
        TOwnerDrawMenuTest::SetUp();
        File = AddItem(Menu->Items, "&File");
        File->Name = "File1";
        Open = AddItem(File, "&Open");
        Save = AddItem(File, "&Save");
        Help = AddItem(Menu->Items, "&Help"); // without a name
        About = AddItem(Help, "&About");
        Record(Menu);
        SetMenu(Form->Handle, Menu->Handle);
        PumpMessages();
    }
    void TearDown() override { SetMenu(Form->Handle, nullptr); }

    // Opens a menu of the bar by its letter and types keys there.
    void OpenAndType(WORD Letter, std::initializer_list<WORD> Keys)
    {
        TWhileMenuOpen WhileOpen([=] { SendKeys(Keys); });
        SendMessageW(Form->Handle, WM_SYSCOMMAND, SC_KEYMENU, Letter);
        EXPECT_FALSE(WhileOpen.TimedOut) << "the menu did not close by itself";
        PumpMessages();
    }
    MEASUREITEMSTRUCT Measure(TMenuItem* Item, UINT Type = ODT_MENU)
    {
        MEASUREITEMSTRUCT Request = {Type, 0, 5, 0, 0, Item->Command};
        SendMessageW(Form->Handle, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&Request));
        return Request;
    }
    LRESULT Draw(TMenuItem* Item, UINT Type = ODT_MENU)
    {
        HDC Context = GetDC(nullptr);
        DRAWITEMSTRUCT Request = {Type,         0, 0, ODA_DRAWENTIRE, ODS_SELECTED, nullptr, Context, {0, 0, 9, 9},
                                  Item->Command};
        const LRESULT Result = SendMessageW(Form->Handle, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&Request));
        ReleaseDC(nullptr, Context);
        return Result;
    }

    TOpenMenu<TkelMenu>* Menu = new TOpenMenu<TkelMenu>(Form.get());
    TMenuItem* File = nullptr;
    TMenuItem* Open = nullptr;
    TMenuItem* Save = nullptr;
    TMenuItem* Help = nullptr;
    TMenuItem* About = nullptr;
};

} // namespace

TEST_F(CustomMenuTest, PublishesStyleAndEvents)
{
    EXPECT_EQ(FindClass("TkelMenu"), TkelMenu::StaticClass());
    EXPECT_THAT(PublishedFrom(TkelMenu::StaticClass(), "Style"), ElementsAre("Style", "OnDrawItem", "OnMeasureItem"));
    EXPECT_EQ(Menu->Style, msStandard);
    EXPECT_THAT(FormText(Menu), testing::HasSubstr("Style = msStandard")) << "always stored";
}

TEST_F(CustomMenuTest, AStandardMenuNeverRaisesTheEvents)
{
    OpenAndType('f', {VK_ESCAPE, VK_ESCAPE});
    Measure(Open);
    EXPECT_EQ(Draw(Open), 0);
    EXPECT_TRUE(Measured.empty());
    EXPECT_TRUE(Drawn.empty());
}

TEST_F(CustomMenuTest, OnlyItemsBelowANamedItemAreOwnerDrawn)
{
    Menu->Style = msOwnerDraw;
    EXPECT_FALSE(IsOwnerDrawn(Menu->Handle, 0));
    EXPECT_FALSE(IsOwnerDrawn(Menu->Handle, 1));
    EXPECT_TRUE(IsOwnerDrawn(File->Handle, 0));
    EXPECT_TRUE(IsOwnerDrawn(File->Handle, 1));
    EXPECT_FALSE(IsOwnerDrawn(Help->Handle, 0));
    EXPECT_EQ(Entry(File->Handle, 1).dwItemData, Save->Command);
    EXPECT_EQ(GetSubMenu(Menu->Handle, 0), File->Handle);
    EXPECT_EQ(EntryText(Menu->Handle, 0), "&File");
    Menu->Style = msStandard;
    EXPECT_FALSE(IsOwnerDrawn(File->Handle, 0));
    EXPECT_EQ(EntryText(File->Handle, 0), "&Open");
}

TEST_F(CustomMenuTest, TheMenuAsksForItsItemsAndDrawsThem)
{
    Menu->Style = msOwnerDraw;
    Save->Enabled = false;
    OpenAndType('f', {VK_DOWN, VK_ESCAPE, VK_ESCAPE});
    EXPECT_THAT(Measured, UnorderedElementsAre("&Open", "&Save"));
    EXPECT_TRUE(Drawn.contains("&Open"));
    EXPECT_TRUE(Drawn["&Save"] & ODS_GRAYED);
    for (const auto& [Caption, Height] : Heights)
        EXPECT_EQ(Height, 20) << Caption;
}

TEST_F(CustomMenuTest, ChosenItemsAreClickedOnce)
{
    for (TMenuStyle Style : {msOwnerDraw, msStandard}) {
        Menu->Style = Style;
        Clicked.clear();
        OpenAndType('f', {VK_DOWN, VK_RETURN});
        EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty() && Clicked.back() == "&Save"; }));
        EXPECT_THAT(Clicked, ElementsAre("&File", "&Save")) << "opening a submenu clicks its item";
    }
}

TEST_F(CustomMenuTest, WhatAControlTellsIsNoCommand)
{
    auto* List = new TListBox(Form.get());
    List->Parent = Form.get();
    SendMessageW(Form->Handle, WM_COMMAND, Open->Command, reinterpret_cast<LPARAM>(List->Handle));
    EXPECT_TRUE(Clicked.empty());
    SendMessageW(Form->Handle, WM_COMMAND, Open->Command, 0);
    EXPECT_THAT(Clicked, ElementsAre("&Open"));
}

TEST_F(CustomMenuTest, FormFilesSwitchTheItemsWhenTheyAreRead)
{
    TForm Owner(nullptr);
    Owner.SetBounds(0, 0, 100, 100);
    auto* Read = new TkelMenu(&Owner);
    ReadFormText(Read, "object Menu1: TkelMenu\n"
                       "  Style = msOwnerDraw\n"
                       "  object File2: TMenuItem\n    Caption = 'File'\n"
                       "    object Open2: TMenuItem\n      Caption = 'Open'\n    end\n  end\nend\n");
    ASSERT_EQ(Read->Items->Count, 1);
    EXPECT_EQ(Read->Style, msOwnerDraw);
    EXPECT_TRUE(IsOwnerDrawn(Read->Items->Items[0]->Handle, 0));
    EXPECT_FALSE(IsOwnerDrawn(Read->Handle, 0));
}

TEST_F(CustomMenuTest, TheRequestsAreAnsweredAsTheyShouldBe)
{
    Menu->Style = msOwnerDraw;
    const MEASUREITEMSTRUCT Request = Measure(Open);
    EXPECT_EQ(Request.itemWidth, 60u);
    EXPECT_EQ(Request.itemHeight, 20u);
    EXPECT_EQ(Request.itemID, 0u);
    EXPECT_EQ(Draw(Open), reinterpret_cast<LRESULT>(Form->Handle));
    EXPECT_EQ(Drawn["&Open"], ODS_SELECTED);
}

TEST_F(CustomMenuTest, RequestsOfControlsAndOfUnknownItemsGoOn)
{
    Menu->Style = msOwnerDraw;
    EXPECT_EQ(Measure(Open, ODT_LISTBOX).itemHeight, 0u);
    EXPECT_EQ(Draw(Open, ODT_LISTBOX), 0);
    std::unique_ptr<TMenuItem> Stranger(new TMenuItem(nullptr));
    EXPECT_EQ(Measure(Stranger.get()).itemHeight, 0u);
    EXPECT_EQ(Draw(Stranger.get()), 0);
    EXPECT_TRUE(Drawn.empty());
}

TEST_F(CustomMenuTest, TheMenuMayGoInItsEvents)
{
    SetMenu(Form->Handle, nullptr);
    for (int I = 0; I < 3; ++I) {
        auto* Fresh = new TkelMenu(Form.get());
        TMenuItem* Sub = AddItem(Fresh->Items, "&Sub");
        Sub->Name = "Sub";
        TMenuItem* Item = AddItem(Sub, "&Item");
        Fresh->Style = msOwnerDraw;
        const TComponentRef<TkelMenu> There(Fresh);
        Fresh->OnMeasureItem = [&](TMenuItem*, int&, int&, TCanvas*) { delete There.Get(); };
        Fresh->OnDrawItem = [&](TMenuItem*, TCanvas*, int, const TRect&) { delete There.Get(); };
        Sub->OnClick = [&](TObject*) { delete There.Get(); };
        if (I == 0)
            Measure(Item);
        else if (I == 1)
            EXPECT_EQ(Draw(Item), reinterpret_cast<LRESULT>(Form->Handle));
        else
            SendMessageW(Form->Handle, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(Sub->Handle), 0);
        EXPECT_EQ(There.Get(), nullptr) << I;
        delete There.Get();
    }
}

TEST_F(CustomMenuTest, TheStyleOfTheMenuMadeLastDecides)
{
    Menu->Style = msOwnerDraw;
    TForm Other(nullptr);
    auto* Later = new TkelMenu(&Other);
    EXPECT_EQ(TkelCustomMenu::Current(), Later);
    EXPECT_EQ(Draw(Open), 0);
    Later->Style = msOwnerDraw;
    EXPECT_NE(Draw(Open), 0);
    delete Later;
    EXPECT_EQ(TkelCustomMenu::Current(), Menu);
    EXPECT_NE(Draw(Open), 0);
}

TEST_F(CustomMenuTest, TheFormIsAsBeforeWhenTheMenuIsGone)
{
    const TWndMethod Hooked = Form->WindowProc;
    auto* Second = new TkelMenu(Form.get());
    EXPECT_NE(Form->WindowProc, Hooked);
    delete Second;
    EXPECT_EQ(Form->WindowProc, Hooked);
}

TEST_F(CustomMenuTest, HooksGoInAnyOrder)
{
    int Seen = 0;
    TForm Other(nullptr);
    auto* Under = new TkelMenu(&Other);
    auto* Over = new TkelMenu(&Other);
    const TWndMethod Before = Other.WindowProc;
    Other.WindowProc = [&](TMessage& Message) {
        Seen += Message.Msg == WM_USER;
        Before(Message);
    };
    delete Under;
    delete Over;
    Other.Perform(WM_USER);
    EXPECT_EQ(Seen, 1);
    Other.WindowProc = nullptr;
}

TEST_F(CustomMenuTest, TheHookSurvivesANewWindow)
{
    Menu->Style = msOwnerDraw;
    SetMenu(Form->Handle, nullptr);
    SetPropW(Form->Handle, L"Before", Form->Handle);
    Form->Perform(CM_RECREATEWND);
    PumpMessages();
    ASSERT_EQ(GetPropW(Form->Handle, L"Before"), nullptr);
    EXPECT_EQ(Draw(Open), reinterpret_cast<LRESULT>(Form->Handle));
}

TEST_F(CustomMenuTest, OnlyAFormCanOwnIt)
{
    TComponent Component(nullptr);
    EXPECT_THROW(new TkelMenu(&Component), EInvalidCast);
    EXPECT_THROW(new TkelMenu(nullptr), EInvalidCast);
    EXPECT_EQ(TkelCustomMenu::Current(), Menu);
}

TEST_F(CustomMenuTest, TheFormMayGoWithItsMenuAndItsWindow)
{
    auto Other = std::make_unique<TForm>(nullptr);
    auto* Owned = new TkelMenu(Other.get());
    Owned->Style = msOwnerDraw;
    Other->GetHandle();
    Other.reset();
    EXPECT_EQ(TkelCustomMenu::Current(), Menu);
}
