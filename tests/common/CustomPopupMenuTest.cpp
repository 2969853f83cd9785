// Popup menus whose items the application draws, on the screen and with real keys.
#include "tests/common/OwnerDrawMenuFixture.h"
#include "tests/support/FormText.h"
#include "vcl/system/ClassDescription.h"
#include "vcl/system/LiveCount.h"

using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

class CustomPopupMenuTest : public TOwnerDrawMenuTest {
protected:
    void SetUp() override
    {
        TOwnerDrawMenuTest::SetUp();
        First = AddItem(Menu->Items, "&First");
        Second = AddItem(Menu->Items, "&Second");
        Third = AddItem(Menu->Items, "&Third");
        Record(Menu);
    }
    void PopupAndEscape()
    {
        PopupWith(Menu, [this] {
            WaitUntilDrawn();
            SendKeys({VK_ESCAPE});
        });
    }
    // While the menu is open its own loop handles the messages; this runs inside of one, so it draws at once.
    void WaitUntilDrawn()
    {
        if (HWND Window = FindWindowW(L"#32768", nullptr))
            RedrawWindow(Window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }

    TOpenMenu<TkelPopupMenu>* Menu = new TOpenMenu<TkelPopupMenu>(Form.get());
    TMenuItem* First = nullptr;
    TMenuItem* Second = nullptr;
    TMenuItem* Third = nullptr;
};

} // namespace

TEST_F(CustomPopupMenuTest, PublishesStyleAndEvents)
{
    EXPECT_EQ(FindClass("TkelPopupMenu"), TkelPopupMenu::StaticClass());
    EXPECT_THAT(PublishedFrom(TkelPopupMenu::StaticClass(), "Style"),
                ElementsAre("Style", "OnDrawItem", "OnMeasureItem"));
    EXPECT_THAT(FormText(Menu), testing::HasSubstr("Style = msStandard")) << "always stored";
}

TEST_F(CustomPopupMenuTest, AStandardMenuNeverRaisesTheEvents)
{
    EXPECT_EQ(Menu->Style, msStandard);
    PopupAndEscape();
    EXPECT_TRUE(Measured.empty());
    EXPECT_TRUE(Drawn.empty());
    for (int I = 0; I < 3; ++I)
        EXPECT_FALSE(IsOwnerDrawn(Menu->Handle, I));
}

TEST_F(CustomPopupMenuTest, AnOwnerDrawnMenuAsksForEveryItem)
{
    Menu->Style = msOwnerDraw;
    PopupAndEscape();
    EXPECT_THAT(Measured, UnorderedElementsAre("&First", "&Second", "&Third"));
    EXPECT_EQ(Drawn.size(), 3u);
    for (const auto& [Caption, Height] : Heights)
        EXPECT_EQ(Height, 20) << Caption;
}

TEST_F(CustomPopupMenuTest, EveryItemIsMeasuredWithANewCanvas)
{
    Menu->Style = msOwnerDraw;
    const TFont Font;
    int Count = 0;
    Menu->OnMeasureItem = [&](TMenuItem*, int&, int&, TCanvas* Canvas) {
        ++Count;
        EXPECT_EQ(Canvas->Font->Size, Font.Size);
        EXPECT_EQ(Canvas->Font->Color, clWindowText);
        EXPECT_EQ(Canvas->Brush->Color, clWhite);
        EXPECT_EQ(Canvas->Pen->Width, 1);
        Canvas->Font->Size = 30;
        Canvas->Font->Color = clRed;
        Canvas->Brush->Color = clRed;
        Canvas->Pen->Width = 3;
        EXPECT_GT(Canvas->TextHeight("X"), 30);
    };
    PopupAndEscape();
    EXPECT_GE(Count, 3);
}

TEST_F(CustomPopupMenuTest, WithoutHandlersTheItemsStayBlank)
{
    Menu->Style = msOwnerDraw;
    Menu->OnMeasureItem = nullptr;
    Menu->OnDrawItem = nullptr;
    PopupAndEscape();
    EXPECT_TRUE(Drawn.empty());
}

TEST_F(CustomPopupMenuTest, TheStateHasDisabledAndChecked)
{
    Menu->Style = msOwnerDraw;
    Second->Enabled = false;
    Third->Checked = true;
    PopupAndEscape();
    EXPECT_EQ(Drawn["&First"] & (ODS_GRAYED | ODS_CHECKED), 0);
    EXPECT_EQ(Drawn["&Second"] & (ODS_GRAYED | ODS_CHECKED), 2);
    EXPECT_EQ(Drawn["&Third"] & (ODS_GRAYED | ODS_CHECKED), 8);
}

TEST_F(CustomPopupMenuTest, TheStateHasTheSelection)
{
    Menu->Style = msOwnerDraw;
    std::vector<AnsiString> Selected;
    Menu->OnDrawItem = [&](TMenuItem* Item, TCanvas*, int State, const TRect&) {
        if (State & ODS_SELECTED)
            Selected.push_back(Item->Caption);
    };
    PopupWith(Menu, [] { SendKeys({VK_DOWN, VK_DOWN, VK_ESCAPE}); });
    EXPECT_THAT(Selected, testing::Contains("&Second"));
}

TEST_F(CustomPopupMenuTest, SwitchingKeepsSubmenusStatesAndSeparators)
{
    TMenuItem* Line = NewLine(Form.get());
    Menu->Items->Insert(1, Line);
    TMenuItem* More = AddItem(Menu->Items, "&More");
    AddItem(More, "&Deep");
    Second->Enabled = false;
    Third->Checked = true;
    HMENU Handle = Menu->Handle;
    HMENU Sub = GetSubMenu(Handle, 4);
    ASSERT_NE(Sub, nullptr);

    Menu->Style = msOwnerDraw;
    for (int I = 0; I < 5; ++I) {
        EXPECT_TRUE(IsOwnerDrawn(Handle, I));
        EXPECT_EQ(Entry(Handle, I).dwItemData, Menu->Items->Items[I]->Command);
        EXPECT_EQ(Entry(Handle, I).wID, Menu->Items->Items[I]->Command);
    }
    EXPECT_TRUE(IsOwnerDrawn(Sub, 0));
    EXPECT_TRUE(Entry(Handle, 1).fType & MFT_SEPARATOR);
    EXPECT_TRUE(Entry(Handle, 2).fState & MFS_DISABLED);
    EXPECT_TRUE(Entry(Handle, 3).fState & MFS_CHECKED);
    EXPECT_EQ(GetSubMenu(Handle, 4), Sub);
    EXPECT_TRUE(IsMenu(Sub));

    Menu->Style = msStandard;
    for (int I = 0; I < 5; ++I)
        EXPECT_FALSE(IsOwnerDrawn(Handle, I));
    EXPECT_FALSE(IsOwnerDrawn(Sub, 0));
    EXPECT_TRUE(Entry(Handle, 1).fType & MFT_SEPARATOR);
    EXPECT_EQ(EntryText(Handle, 0), "&First");
    EXPECT_EQ(GetSubMenu(Handle, 4), Sub);
}

TEST_F(CustomPopupMenuTest, SwitchingKeepsColumnBreaks)
{
    Second->Break = mbBreak;
    Third->Break = mbBarBreak;
    Menu->Style = msOwnerDraw;
    EXPECT_TRUE(Entry(Menu->Handle, 1).fType & MFT_MENUBREAK);
    EXPECT_TRUE(Entry(Menu->Handle, 2).fType & MFT_MENUBARBREAK);
    EXPECT_TRUE(IsOwnerDrawn(Menu->Handle, 2));
}

TEST_F(CustomPopupMenuTest, ItemsStayOwnerDrawnThroughChanges)
{
    Menu->Style = msOwnerDraw;
    HMENU Handle = Menu->Handle;
    First->Checked = true;
    Second->Enabled = false;
    EXPECT_TRUE(IsOwnerDrawn(Handle, 0));
    EXPECT_TRUE(IsOwnerDrawn(Handle, 1));
    AddItem(Menu->Items, "&Late");
    First->Visible = false;
    EXPECT_TRUE(IsOwnerDrawn(Menu->Handle, 0));
    EXPECT_TRUE(IsOwnerDrawn(Menu->Handle, 2));
}

TEST_F(CustomPopupMenuTest, OneItemCanBeSwitched)
{
    Menu->GetHandle();
    Menu->SetMenuItem(Second, false);
    EXPECT_FALSE(IsOwnerDrawn(Menu->Handle, 0));
    EXPECT_TRUE(IsOwnerDrawn(Menu->Handle, 1));
    Menu->SetMenuItem(Second, true);
    EXPECT_FALSE(IsOwnerDrawn(Menu->Handle, 1));
    First->Visible = false; // has no entry any more
    Menu->SetMenuItem(First, false);
    Menu->ModifyItems(Menu->Items, false);
    EXPECT_TRUE(IsOwnerDrawn(Menu->Handle, 0));
    EXPECT_TRUE(IsOwnerDrawn(Menu->Handle, 1));
}

TEST_F(CustomPopupMenuTest, SubmenusThatFillWhenTheyOpenAreDrawnToo)
{
    Menu->Style = msOwnerDraw;
    TMenuItem* More = AddItem(Menu->Items, "&More");
    AddItem(More, "old");
    More->OnClick = [&](TObject*) {
        More->Clear();
        AddItem(More, "&New");
    };
    PopupWith(Menu, [] { SendKeys({'M', 'N'}); });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_THAT(Clicked, ElementsAre("&New"));
    EXPECT_TRUE(Measured.contains("&New"));
    EXPECT_FALSE(Measured.contains("old"));
}

TEST_F(CustomPopupMenuTest, ACommandClicksItsItemOnce)
{
    for (TMenuStyle Style : {msOwnerDraw, msStandard}) {
        Menu->Style = Style;
        Clicked.clear();
        PopupWith(Menu, [] { SendKeys({VK_DOWN, VK_DOWN, VK_RETURN}); });
        EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
        PumpMessages();
        EXPECT_THAT(Clicked, ElementsAre("&Second")) << Style;
        EXPECT_EQ(TkelCustomPopupMenu::Current(), nullptr);
    }
}

TEST_F(CustomPopupMenuTest, LettersChooseOwnerDrawnItems)
{
    Menu->Style = msOwnerDraw;
    AddItem(Menu->Items, "&Четвёртый");
    PopupWith(Menu, [] { SendKeys({'T'}); });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_THAT(Clicked, ElementsAre("&Third"));
}

TEST_F(CustomPopupMenuTest, TheWindowAnswersLettersWithTheEntrysPosition)
{
    Menu->Style = msOwnerDraw;
    First->Visible = false;
    intptr_t Answer = 0, Unknown = 0;
    PopupWith(Menu, [&] {
        const auto Loop = reinterpret_cast<LPARAM>(Menu->Handle);
        Answer = SendMessageW(PopupList->Window, WM_MENUCHAR, MAKEWPARAM('t', MF_POPUP), Loop);
        Unknown = SendMessageW(PopupList->Window, WM_MENUCHAR, MAKEWPARAM('q', MF_POPUP), Loop);
        SendKeys({VK_ESCAPE});
    });
    EXPECT_EQ(Answer, MAKELRESULT(1, MNC_EXECUTE));
    EXPECT_EQ(HIWORD(Unknown), MNC_IGNORE);
}

TEST_F(CustomPopupMenuTest, ProcessAccelFindsTheFirstEnabledItemOfTheOpenSubmenu)
{
    Menu->AutoHotkeys = maManual;
    TMenuItem* More = AddItem(Menu->Items, "&More");
    TMenuItem* DeepA = AddItem(More, "&Save");
    AddItem(More, "&Same");
    TWMMenuChar Message;
    const auto Ask = [&](char Letter, TMenuItem* Open) {
        Message.WParam = static_cast<uintptr_t>(Letter);
        Message.LParam = reinterpret_cast<intptr_t>(Open->Handle);
        return Menu->ProcessAccel(Message);
    };
    EXPECT_EQ(Ask('s', Menu->Items), 1);
    EXPECT_EQ(Ask('M', Menu->Items), 3);
    EXPECT_EQ(Ask('s', More), 0);
    DeepA->Visible = false;
    EXPECT_EQ(Ask('s', More), 1);
    DeepA->Visible = true;
    DeepA->Enabled = false;
    EXPECT_EQ(Ask('s', More), 1);
    EXPECT_EQ(Ask('x', More), -1);
    EXPECT_EQ(Ask('f', More), -1) << "an item of another menu";
    Second->Enabled = false;
    EXPECT_EQ(Ask('s', Menu->Items), -1);
    More->Enabled = false;
    EXPECT_EQ(Ask('s', More), -1) << "not through what is disabled";
}

TEST_F(CustomPopupMenuTest, PopupOfAMenuThatIsOpenDoesNothing)
{
    Menu->Style = msOwnerDraw;
    TkelPopupMenu Other(nullptr);
    int Returned = 0;
    PopupWith(Menu, [&] {
        EXPECT_EQ(TkelCustomPopupMenu::Current(), Menu);
        Menu->Popup(300, 300);
        ++Returned;
        EXPECT_EQ(Menu->PopupPoint, TPoint(150, 150));
        // Whether or not the system allows a second loop.
        Other.Popup(300, 300);
        EXPECT_EQ(TkelCustomPopupMenu::Current(), Menu);
        SendKeys({VK_ESCAPE});
    });
    EXPECT_EQ(Returned, 1);
    EXPECT_EQ(TkelCustomPopupMenu::Current(), nullptr);
}

TEST_F(CustomPopupMenuTest, OnPopupIsNotRaised)
{
    int Popups = 0;
    Menu->OnPopup = [&](TObject*) { ++Popups; };
    PopupAndEscape();
    EXPECT_EQ(Popups, 0);
}

TEST_F(CustomPopupMenuTest, ACommandOfNobodyLeavesTheMenuAsTheCurrentOneUntilItsOwnComes)
{
    Menu->Style = msOwnerDraw;
    PopupAndEscape();
    SendMessageW(PopupList->Window, WM_COMMAND, 0xFFFE, 0);
    EXPECT_EQ(TkelCustomPopupMenu::Current(), Menu);
    PopupAndEscape();
    EXPECT_EQ(Measured.size(), 3u) << "and it opens all the same";
    SendMessageW(PopupList->Window, WM_COMMAND, Third->Command, 0);
    EXPECT_THAT(Clicked, ElementsAre("&Third"));
    EXPECT_EQ(TkelCustomPopupMenu::Current(), nullptr);
}

TEST_F(CustomPopupMenuTest, ARequestForAnUnknownItemIsLeftUnanswered)
{
    Menu->Style = msOwnerDraw;
    PopupWith(Menu, [&] {
        MEASUREITEMSTRUCT Request = {ODT_MENU, 0, 77, 0, 0, 0xFFFE};
        Measured.clear();
        SendMessageW(PopupList->Window, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&Request));
        EXPECT_EQ(Request.itemID, 0u);
        EXPECT_EQ(Request.itemWidth, 0u);
        EXPECT_EQ(Request.itemHeight, 0u);
        EXPECT_TRUE(Measured.empty());
        Request = {0, 0, 77, 0, 0, Second->Command};
        SendMessageW(PopupList->Window, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&Request));
        EXPECT_EQ(Request.CtlType, UINT{ODT_MENU});
        EXPECT_EQ(Request.itemID, Second->Command);
        EXPECT_EQ(Request.itemWidth, 60u);
        SendKeys({VK_ESCAPE});
    });
}

TEST_F(CustomPopupMenuTest, OtherPopupMenusAreLeftAlone)
{
    Menu->Style = msOwnerDraw;
    TPopupMenu Plain(nullptr);
    std::vector<AnsiString> Log;
    Plain.Items->Add(NewItem("&Plain", scNone, false, true, [&](TObject*) { Log.push_back("plain"); }, 0, "", &Plain));
    PopupAndEscape();
    PopupWith(&Plain, [] { SendKeys({'P'}); });
    EXPECT_TRUE(PumpUntil([&] { return !Log.empty(); }));
    EXPECT_THAT(Log, ElementsAre("plain"));
    EXPECT_TRUE(Clicked.empty());
}

TEST_F(CustomPopupMenuTest, AMenuMayBeDeletedWhileItIsOpen)
{
    Menu->Style = msOwnerDraw;
    PopupWith(Menu, [this] { delete std::exchange(Menu, nullptr); });
    EXPECT_EQ(TkelCustomPopupMenu::Current(), nullptr);
    EXPECT_EQ(FindWindowW(L"#32768", nullptr), nullptr);
    TkelPopupMenu Next(nullptr);
    SendMessageW(PopupList->Window, WM_COMMAND, 0xFFFE, 0);
    EXPECT_EQ(TkelCustomPopupMenu::Current(), nullptr);
}

TEST_F(CustomPopupMenuTest, AHandlerMayDeleteTheMenu)
{
    Menu->Style = msOwnerDraw;
    First->OnClick = [&](TObject*) {
        Clicked.push_back("deleted");
        delete std::exchange(Menu, nullptr);
    };
    PopupWith(Menu, [] { SendKeys({'F'}); });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_EQ(Menu, nullptr);
}

TEST_F(CustomPopupMenuTest, ManyPopupsLeaveNothingBehind)
{
    Menu->Style = msOwnerDraw;
    PopupAndEscape();
    const DWORD Before = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    const int64_t Handles = LiveHandleCount();
    for (int I = 0; I < 5; ++I)
        PopupAndEscape();
    EXPECT_EQ(LiveHandleCount(), Handles);
    EXPECT_LE(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), Before + 2);
}

TEST_F(CustomPopupMenuTest, InTheDesignerNothingIsSwitched)
{
    class TDesigned : public TOpenMenu<TkelPopupMenu> {
    public:
        explicit TDesigned() : TOpenMenu<TkelPopupMenu>(nullptr) { SetDesigning(true); }
        ~TDesigned() override { SetDesigning(false); }
    } Designed;
    AddItem(Designed.Items, "&One");
    Designed.GetHandle();
    Designed.Style = msOwnerDraw;
    EXPECT_EQ(Designed.Style, msOwnerDraw);
    EXPECT_FALSE(IsOwnerDrawn(Designed.Handle, 0));
    TWMMenuChar Message;
    Message.WParam = 'o';
    Message.LParam = reinterpret_cast<intptr_t>(Designed.Handle);
    EXPECT_EQ(Designed.ProcessAccel(Message), -1);
}
