// Office menus as components and on the screen.
#include "robot/WhileMenuOpen.h"
#include "tests/menus/OfficeMenuFixture.h"
#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "vcl/system/ClassDescription.h"

using testing::ElementsAre;

namespace {

class OfficePopupMenuTest : public TOfficeMenuTest {};

// Of all items, at their places in the menu on the screen.
class TSeenMenu : public TkelOfficePopupMenu {
public:
    using TkelOfficePopupMenu::TkelOfficePopupMenu;

    std::map<AnsiString, TRect> Places;
    std::map<AnsiString, unsigned> States;
    int Measured = 0;

protected:
    void DoDrawItem(TMenuItem* Item, TCanvas* Canvas, unsigned State, const TRect& Rect) override
    {
        Places[Item->Caption] = Rect;
        States[Item->Caption] = State;
        TkelOfficePopupMenu::DoDrawItem(Item, Canvas, State, Rect);
    }
    void DoMeasureItem(TMenuItem* Item, int& Width, int& Height, TCanvas* Canvas) override
    {
        ++Measured;
        TkelOfficePopupMenu::DoMeasureItem(Item, Width, Height, Canvas);
    }
};

class OfficePopupMenuScreenTest : public TFormTest {
protected:
    void SetUp() override { Show(); }
    TMenuItem* AddItem(const AnsiString& Caption)
    {
        TMenuItem* Item = NewItem(
            Caption, scNone, false, true,
            [this](TObject* Sender) { Clicked.push_back(As<TMenuItem>(Sender)->Caption); }, 0, "", Form.get());
        Menu->Items->Add(Item);
        return Item;
    }
    void PopupWith(const std::function<void()>& Action)
    {
        TWhileMenuOpen WhileOpen(Action);
        Menu->Popup(150, 150);
        EXPECT_FALSE(WhileOpen.TimedOut) << "the menu did not close by itself";
        PumpMessages();
    }
    static void SendKeys(std::initializer_list<WORD> Keys)
    {
        for (WORD Key : Keys)
            SendKey(Key);
    }

    TSeenMenu* Menu = new TSeenMenu(Form.get());
    std::vector<AnsiString> Clicked;
};

} // namespace

// ---- properties

TEST_F(OfficePopupMenuTest, PublishesWhatFormsNeed)
{
    EXPECT_EQ(FindClass("TkelOfficePopupMenu"), TkelOfficePopupMenu::StaticClass());
    EXPECT_THAT(PublishedFrom(TkelOfficePopupMenu::StaticClass(), "Style"),
                ElementsAre("Style", "OnDrawItem", "OnMeasureItem", "Banner", "Glyphs", "GlyphsEdit"))
        << "Images keeps the place that popup menus gave it";
    EXPECT_THAT(PublishedFrom(TkelMenuBanner::StaticClass(), "BackColor"),
                ElementsAre("BackColor = clBlack", "Picture", "Position = mbpLeft", "PicturePosition = ppTop"));
}

TEST_F(OfficePopupMenuTest, ANewMenuIsOwnerDrawnWithoutABanner)
{
    EXPECT_EQ(Menu->Style, msOwnerDraw);
    EXPECT_EQ(Menu->Banner->BackColor, clBlack);
    EXPECT_EQ(Menu->Banner->Picture->Width, 0);
    EXPECT_EQ(Menu->Banner->Position, mbpLeft);
    EXPECT_EQ(Menu->Banner->PicturePosition, ppTop);
    EXPECT_EQ(Menu->Glyphs, nullptr);
    EXPECT_EQ(Menu->Images, nullptr);
}

TEST_F(OfficePopupMenuTest, FormFilesKeepTheBanner)
{
    Menu->Banner->BackColor = clNavy;
    Menu->Banner->Position = mbpRight;
    Menu->Banner->PicturePosition = ppCenter;
    const std::string Text = FormText(Menu.get());
    EXPECT_THAT(Text, testing::HasSubstr("Style = msOwnerDraw"));
    EXPECT_THAT(Text, testing::HasSubstr("Banner.BackColor = clNavy"));
    std::unique_ptr<TkelOfficePopupMenu> Copy(new TkelOfficePopupMenu(nullptr));
    ReadFormText(Copy.get(), Text);
    EXPECT_EQ(Copy->Banner->BackColor, clNavy);
    EXPECT_EQ(Copy->Banner->Position, mbpRight);
    EXPECT_EQ(Copy->Banner->PicturePosition, ppCenter);
}

TEST_F(OfficePopupMenuTest, GlyphsAndImagesTakeEachOthersPlace)
{
    Menu->Glyphs = Glyphs.get();
    Menu->Images = Images.get();
    EXPECT_EQ(Menu->Glyphs, nullptr);
    EXPECT_EQ(Menu->Images, Images.get());
    Menu->Glyphs = Glyphs.get();
    EXPECT_EQ(Menu->Images, nullptr);
    EXPECT_EQ(Menu->Glyphs, Glyphs.get());
}

TEST_F(OfficePopupMenuTest, DeletedGlyphsAndImagesAreForgotten)
{
    Menu->Glyphs = Glyphs.get();
    Glyphs.reset();
    EXPECT_EQ(Menu->Glyphs, nullptr);
    Menu->Images = Images.get();
    Images.reset();
    EXPECT_EQ(Menu->Images, nullptr);
}

TEST_F(OfficePopupMenuTest, BannersAreCopied)
{
    UseBanner(30, 10);
    Menu->Banner->Position = mbpRight;
    Menu->Banner->PicturePosition = ppBottom;
    TkelMenuBanner Copy;
    Copy.Assign(Menu->Banner);
    EXPECT_EQ(Copy.BackColor, clNavy);
    EXPECT_EQ(Copy.Position, mbpRight);
    EXPECT_EQ(Copy.PicturePosition, ppBottom);
    EXPECT_EQ(Copy.Picture->Width, 30);
    EXPECT_NE(Copy.Picture->Graphic, Menu->Banner->Picture->Graphic);
    TFont Font;
    EXPECT_THROW(Copy.Assign(&Font), EConvertError);
    EXPECT_EQ(Copy.BackColor, clNavy);
}

// ---- sizes

TEST_F(OfficePopupMenuTest, AnItemIsAsWideAsItsCaptionAndTwoCells)
{
    TMenuItem* Item = AddItem("&Открыть");
    EXPECT_EQ(Measure(Item), TSize(TextWidth("&Открыть") + 2 * G + 2, G + 1));
    Item->ShortCut = ShortCut('O', {ssCtrl});
    EXPECT_EQ(Measure(Item), TSize(TextWidth("&Открыть") + 2 * G + 2 + TextWidth("Ctrl+O"), G + 1));
    EXPECT_EQ(Measure(AddItem("-")), TSize(TextWidth("-") + 2 * G + 2, G + 1)) << "separators too";
}

TEST_F(OfficePopupMenuTest, ABannerAddsItsPictureAndTwoPixels)
{
    TMenuItem* Item = AddItem("&Open");
    const TSize Before = Measure(Item);
    UseBanner(30, 10);
    EXPECT_EQ(Measure(Item), TSize(Before.cx + 32, Before.cy));
    Menu->Banner->Position = mbpRight;
    EXPECT_EQ(Measure(Item), TSize(Before.cx + 32, Before.cy));
}

// ---- keys

TEST_F(OfficePopupMenuTest, ProcessAccelFindsTheFirstEnabledLeaf)
{
    Menu->AutoHotkeys = maManual;
    TMenuItem* More = AddItem("&More");
    auto* Deep = new TMenuItem(Menu.get());
    Deep->Caption = "&Save";
    More->Add(Deep);
    TMenuItem* Later = AddItem("&Send");
    EXPECT_EQ(Menu->ProcessAccel('s'), Deep);
    EXPECT_EQ(Menu->ProcessAccel('m'), nullptr) << "an item with items is never the answer";
    Deep->Enabled = false;
    EXPECT_EQ(Menu->ProcessAccel('s'), Later);
    Deep->Enabled = true;
    More->Enabled = false;
    EXPECT_EQ(Menu->ProcessAccel('s'), Later);
    EXPECT_EQ(Menu->ProcessAccel('x'), nullptr);
    Menu->SetDesigning(true);
    EXPECT_EQ(Menu->ProcessAccel('s'), nullptr);
    Menu->SetDesigning(false);
}

TEST_F(OfficePopupMenuTest, ADialogCharClicksEveryItemWithThatAccelerator)
{
    Menu->AutoHotkeys = maManual;
    std::vector<AnsiString> Clicked;
    for (const char* Caption : {"&Send", "&Open", "A&s"})
        AddItem(Caption)->OnClick = [&](TObject* Sender) { Clicked.push_back(As<TMenuItem>(Sender)->Caption); };
    TWMKey Message;
    Message.Msg = CM_DIALOGCHAR;
    Message.CharCode = 's';
    Menu->Dispatch(Message);
    EXPECT_THAT(Clicked, ElementsAre("&Send", "A&s"));
    EXPECT_EQ(Message.Result, 1);
    Message.Result = 0;
    Message.CharCode = 'x';
    Menu->Dispatch(Message);
    EXPECT_EQ(Message.Result, 0);
    EXPECT_EQ(Clicked.size(), 2u);
}

TEST_F(OfficePopupMenuTest, HiddenItemsAndTitlesHaveNoLetter)
{
    Menu->AutoHotkeys = maManual;
    std::vector<AnsiString> Clicked;
    TMenuItem* Hidden = AddItem("&Send");
    TMenuItem* Title = AddItem("-&Sorting");
    TMenuItem* Below = AddItem("&Mail");
    Below->Add(NewItem("&Spam", scNone, false, true, nullptr, 0, "", Menu.get()));
    TMenuItem* Shown = AddItem("A&s");
    for (TMenuItem* Item : {Hidden, Title, Shown})
        Item->OnClick = [&](TObject* Sender) { Clicked.push_back(As<TMenuItem>(Sender)->Caption); };
    Hidden->Visible = false;
    Below->Visible = false;
    EXPECT_EQ(Menu->ProcessAccel('s'), Shown);
    TWMMenuChar Char;
    Char.Msg = WM_MENUCHAR;
    Char.WParam = 's';
    Char.LParam = reinterpret_cast<intptr_t>(Menu->Handle);
    EXPECT_EQ(static_cast<TkelCustomPopupMenu&>(*Menu).ProcessAccel(Char), Shown->MenuIndex);
    EXPECT_TRUE(Menu->DispatchDrawing(Char));
    EXPECT_EQ(Char.Result, MAKELRESULT(1, MNC_EXECUTE)) << "the second that shows, alone with the letter";
    TWMKey Message;
    Message.Msg = CM_DIALOGCHAR;
    Message.CharCode = 's';
    Menu->Dispatch(Message);
    EXPECT_THAT(Clicked, ElementsAre("A&s"));
}

TEST_F(OfficePopupMenuTest, ADialogCharSurvivesHandlersThatDeleteItemsOrTheMenu)
{
    Menu->AutoHotkeys = maManual;
    std::vector<AnsiString> Clicked;
    const auto Note = [&](TObject* Sender) { Clicked.push_back(As<TMenuItem>(Sender)->Caption); };
    TMenuItem* First = AddItem("&S1");
    TMenuItem* Second = AddItem("&S2");
    for (const char* Caption : {"&S3", "&S4"})
        AddItem(Caption)->OnClick = Note;
    First->OnClick = [&](TObject* Sender) {
        Note(Sender);
        delete First;
        delete Second;
    };
    TWMKey Message;
    Message.Msg = CM_DIALOGCHAR;
    Message.CharCode = 's';
    Menu->Dispatch(Message);
    EXPECT_THAT(Clicked, ElementsAre("&S1", "&S3", "&S4"));
    Clicked.clear();
    Menu->Items->Items[0]->OnClick = [&](TObject* Sender) {
        Note(Sender);
        Menu.reset();
    };
    Menu->Dispatch(Message);
    EXPECT_THAT(Clicked, ElementsAre("&S3"));
    EXPECT_EQ(Message.Result, 1);
}

TEST_F(OfficePopupMenuTest, TitlesOfSeparatorsGetNoAcceleratorOfTheirOwn)
{
    TMenuItem* Title = AddItem("-Edit");
    TMenuItem* Item = AddItem("Edit");
    Menu->GetHandle();
    EXPECT_EQ(Title->Caption, "-Edit");
    EXPECT_EQ(Item->Caption, "&Edit");
}

// ---- on the screen

TEST_F(OfficePopupMenuScreenTest, ItemsAreAsHighAsACellAndAPixel)
{
    for (const char* Caption : {"&New", "-", "-More", "&Open"})
        AddItem(Caption);
    PopupWith([] { SendKeys({VK_ESCAPE}); });
    EXPECT_EQ(Menu->Places.size(), 4u);
    int Top = Menu->Places["&New"].top;
    for (const char* Caption : {"&New", "-", "-More", "&Open"}) {
        EXPECT_EQ(Menu->Places[Caption].top, Top) << Caption;
        EXPECT_EQ(Menu->Places[Caption].Height(), 21) << Caption;
        Top += 21;
    }
}

TEST_F(OfficePopupMenuScreenTest, SeparatorsWithAndWithoutATitleCannotBeChosen)
{
    for (const char* Caption : {"&New", "-", "&Save", "-More", "&Open"})
        AddItem(Caption);
    PopupWith([] { SendKeys({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}); });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_THAT(Clicked, ElementsAre("&Open"));
}

TEST_F(OfficePopupMenuScreenTest, TheBannerIsAtTheBottomAtEveryPopup)
{
    for (const char* Caption : {"&New", "-More", "&Open"})
        AddItem(Caption);
    TBitmap* Picture = Menu->Banner->Picture->Bitmap;
    Picture->SetSize(30, 8);
    Picture->Canvas->Brush->Color = clLime;
    Picture->Canvas->FillRect({0, 0, 30, 8});
    Menu->Banner->BackColor = clNavy;
    Menu->Banner->PicturePosition = ppBottom;
    for (int Time = 0; Time < 3; ++Time)
        PopupWith([&] {
            HWND Window = FindWindowW(L"#32768", nullptr);
            RedrawWindow(Window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            const TRect Last = Menu->Places["&Open"];
            TRect R;
            GetWindowRect(Window, &R);
            POINT Origin = {};
            ClientToScreen(Window, &Origin);
            HDC Context = GetDC(nullptr);
            EXPECT_EQ(TColor(GetPixel(Context, Origin.x + Last.left + 5, Origin.y + Last.bottom - 2)), clLime) << Time;
            EXPECT_EQ(TColor(GetPixel(Context, Origin.x + Last.left + 5, Origin.y + Last.bottom - 10)), clNavy) << Time;
            ReleaseDC(nullptr, Context);
            SendKeys({VK_ESCAPE});
        });
}

TEST_F(OfficePopupMenuScreenTest, ALetterChoosesAnItem)
{
    for (const char* Caption : {"&New", "&Open"})
        AddItem(Caption);
    PopupWith([] { SendKeys({'O'}); });
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_THAT(Clicked, ElementsAre("&Open"));
}

TEST_F(OfficePopupMenuScreenTest, TheEventsAreNotRaised)
{
    int Events = 0;
    Menu->OnMeasureItem = [&](TMenuItem*, int&, int&, TCanvas*) { ++Events; };
    Menu->OnDrawItem = [&](TMenuItem*, TCanvas*, int, const TRect&) { ++Events; };
    AddItem("&New");
    PopupWith([] { SendKeys({VK_ESCAPE}); });
    EXPECT_EQ(Events, 0);
    EXPECT_GT(Menu->Measured, 0);
}
