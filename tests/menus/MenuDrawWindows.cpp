// Images of menu items, and menus that the program draws: as they stand on the screen, and item by item.
#include "robot/SystemInput.h"
#include "robot/WhileMenuOpen.h"
#include "tests/menus/TopWindow.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/menus/PopupList.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace {

constexpr TColor Red = TColor(0x1210E4); // no colour of the system's
constexpr TColor Other = TColor(0x0870A1);

int CountOf(HDC Context, int Width, int Height, TColor Color)
{
    int Count = 0;
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X)
            Count += GetPixel(Context, X, Y) == ColorToRGB(Color);
    return Count;
}

// On the screen, within the open menu.
int CountInMenu(TColor Color)
{
    TRect R;
    GetWindowRect(FindWindowW(L"#32768", nullptr), &R);
    TBitmap Picture;
    Picture.SetSize(R.Width(), R.Height());
    HDC Screen = GetDC(nullptr);
    BitBlt(Picture.Canvas->Handle, 0, 0, R.Width(), R.Height(), Screen, R.left, R.top, SRCCOPY);
    ReleaseDC(nullptr, Screen);
    return CountOf(Picture.Canvas->Handle, R.Width(), R.Height(), Color);
}

void FillBitmap(TBitmap* Bitmap, int Width, int Height, TColor Color)
{
    Bitmap->SetSize(Width, Height);
    Bitmap->Canvas->Brush->Color = Color;
    Bitmap->Canvas->FillRect(Rect(0, 0, Width, Height));
}

class MenuDrawing : public testing::Test {
protected:
    // What the program makes once, when it is first needed, is there before the tests count.
    static void SetUpTestSuite()
    {
        TPopupMenu Menu(nullptr);
        Menu.OwnerDraw = true;
        Menu.Items->Add(NewItem("Item", scNone, true, true, nullptr, 0, "", &Menu));
        Measured(Menu.Items->Items[0]);
        Drawn(Menu.Items->Items[0]);
    }

    void SetUp() override
    {
        FTop = NewTopWindow();
        FMenu = std::make_unique<TPopupMenu>(nullptr);
        FMenu->AutoHotkeys = maManual;
        for (const char* Caption : {"&First", "&Отмена", "O&ther"})
            FMenu->Items->Add(NewItem(
                Caption, scNone, false, true,
                [this](TObject* Sender) { FLog.push_back(As<TMenuItem>(Sender)->MenuIndex); }, 0, "", FMenu.get()));
        FItem = FMenu->Items->Items[0];
        FImages = std::make_unique<TImageList>(nullptr);
        TBitmap Image;
        FillBitmap(&Image, 16, 16, Red);
        FImages->Add(&Image, nullptr);
    }
    void TearDown() override
    {
        FMenu.reset();
        FImages.reset();
        DestroyWindow(FTop);
    }

    void PopupWith(const std::function<void()>& Action)
    {
        TWhileMenuOpen WhileOpen([&] {
            Action();
            SendKey(VK_ESCAPE);
        });
        FMenu->Popup(150, 150);
        EXPECT_FALSE(WhileOpen.TimedOut) << "the menu did not close by itself";
    }

    // How many pixels have Color while the menu is open.
    int Shown(TColor Color)
    {
        int Count = -1;
        PopupWith([&] { Count = CountInMenu(Color); });
        return Count;
    }

    // The size that the system is told.
    static TSize Measured(TMenuItem* Item)
    {
        MEASUREITEMSTRUCT Measured{};
        Measured.CtlType = ODT_MENU;
        Measured.itemID = Item->Command;
        EXPECT_TRUE(SendMessageW(PopupList->Window, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&Measured)));
        return {static_cast<int>(Measured.itemWidth), static_cast<int>(Measured.itemHeight)};
    }

    // The item as it is drawn when the system asks for it, in 200 by 30 pixels.
    static std::unique_ptr<TBitmap> Drawn(TMenuItem* Item, UINT State = 0)
    {
        auto Picture = std::make_unique<TBitmap>();
        FillBitmap(Picture.get(), 200, 30, Other);
        DRAWITEMSTRUCT Asked{};
        Asked.CtlType = ODT_MENU;
        Asked.itemID = Item->Command;
        Asked.itemState = State;
        Asked.hDC = Picture->Canvas->Handle;
        Asked.rcItem = {0, 0, 200, 30};
        EXPECT_TRUE(SendMessageW(PopupList->Window, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&Asked)));
        return Picture;
    }

    static int CountIn(TBitmap& Picture, TColor Color, int Width = 200)
    {
        return CountOf(Picture.Canvas->Handle, Width, 30, Color);
    }

    HWND FTop = nullptr;
    std::unique_ptr<TPopupMenu> FMenu;
    std::unique_ptr<TImageList> FImages;
    TMenuItem* FItem = nullptr;
    std::vector<int> FLog;
};

using testing::ElementsAre;

} // namespace

TEST_F(MenuDrawing, ImagesStandBesideTheirCaptions)
{
    FMenu->Images = FImages.get();
    EXPECT_EQ(Shown(Red), 0) << "no item has an index";
    FItem->ImageIndex = 0;
    EXPECT_EQ(Shown(Red), 16 * 16);
    FMenu->Items->Items[2]->ImageIndex = 0;
    EXPECT_EQ(Shown(Red), 2 * 16 * 16);
    FItem->ImageIndex = 7;
    EXPECT_EQ(Shown(Red), 16 * 16) << "the list has no such image";
    FImages.reset();
    EXPECT_EQ(Shown(Red), 0);
    EXPECT_FALSE(FItem->HasImage());
}

TEST_F(MenuDrawing, DisabledImagesAreGray)
{
    FMenu->Images = FImages.get();
    FItem->ImageIndex = 0;
    FItem->Enabled = false;
    EXPECT_EQ(Shown(Red), 0);
    EXPECT_GE(CountIn(*Drawn(FItem, ODS_GRAYED), clBtnShadow), 16 * 16);
}

TEST_F(MenuDrawing, SubMenuImagesStandInForTheMenusOwn)
{
    TBitmap Image;
    FillBitmap(&Image, 8, 8, Red);
    TImageList Small(nullptr, 8, 8);
    Small.Add(&Image, nullptr);
    FMenu->Images = FImages.get();
    TMenuItem* More = NewSubMenu("More", 0, "", {NewItem("Deep", scNone, false, true, nullptr, 0, "", FMenu.get())},
                                 true, FMenu.get());
    FMenu->Items->Add(More);
    TMenuItem* Deep = More->Items[0];
    Deep->ImageIndex = 0;
    EXPECT_EQ(Measured(Deep), TSize(16, 16));
    More->SubMenuImages = &Small;
    EXPECT_EQ(Measured(Deep), TSize(8, 8));
    EXPECT_EQ(CountIn(*Drawn(Deep), Red), 8 * 8);
    More->SubMenuImages = nullptr;
    EXPECT_EQ(CountIn(*Drawn(Deep), Red), 16 * 16);
}

TEST_F(MenuDrawing, ABitmapIsShownWithoutItsBackground)
{
    FMenu->Images = FImages.get();
    FItem->ImageIndex = 0;
    TBitmap Picture;
    FillBitmap(&Picture, 10, 10, clWhite);
    Picture.Canvas->Brush->Color = Other;
    Picture.Canvas->FillRect(Rect(2, 2, 6, 5));
    FItem->Bitmap = &Picture;
    EXPECT_EQ(Shown(Other), 4 * 3) << "instead of the list's image";
    FItem->Enabled = false;
    EXPECT_EQ(Shown(Other), 0);
    FItem->Enabled = true;
    FItem->Bitmap->Canvas->Pixels[0][0] = Other; // changes show without further ado
    EXPECT_EQ(Shown(Other), 4 * 3 + 1);
    FItem->Bitmap = nullptr;
    EXPECT_EQ(Shown(Red), 16 * 16);
}

TEST_F(MenuDrawing, HandlersMeasureAndDrawItems)
{
    FMenu->OwnerDraw = true;
    int UsualHeight = 0;
    FItem->OnMeasureItem = [&](TObject* Sender, TCanvas* ACanvas, int& Width, int& Height) {
        EXPECT_EQ(Sender, FItem);
        EXPECT_GT(Width, ACanvas->TextWidth("First"));
        UsualHeight = Height;
        Width = 220;
        Height = 43;
    };
    TRect Place;
    std::set<bool> States;
    FItem->OnDrawItem = [&](TObject* Sender, TCanvas* ACanvas, const TRect& ARect, bool Selected) {
        EXPECT_EQ(Sender, FItem);
        EXPECT_EQ(ACanvas->Font->Color, Selected ? clHighlightText : clMenuText);
        Place = ARect;
        States.insert(Selected);
        ACanvas->Brush->Color = Red;
        ACanvas->FillRect(Rect(ARect.left, ARect.top, ARect.left + 10, ARect.bottom));
    };
    EXPECT_EQ(Shown(Red), 10 * 43);
    EXPECT_GT(UsualHeight, 0);
    EXPECT_EQ(Place.Height(), 43);
    EXPECT_GE(Place.Width(), 220);
    PopupWith([] { SendKey(VK_DOWN); });
    EXPECT_THAT(States, ElementsAre(false, true));
}

TEST_F(MenuDrawing, OnAdvancedDrawItemComesInsteadOfOnDrawItem)
{
    FMenu->OwnerDraw = true;
    FItem->Checked = true;
    TOwnerDrawState Seen;
    FItem->OnDrawItem = [](TObject*, TCanvas*, const TRect&, bool) { ADD_FAILURE(); };
    FItem->OnAdvancedDrawItem = [&](TObject*, TCanvas*, const TRect&, TOwnerDrawState State) { Seen = State; };
    Shown(Red);
    EXPECT_TRUE(Seen.Contains(odChecked));
    EXPECT_FALSE(Seen.Contains(odGrayed));
    FMenu->OwnerDraw = false;
    Seen = {};
    Shown(Red);
    EXPECT_EQ(Seen, TOwnerDrawState());
}

TEST_F(MenuDrawing, WithoutHandlersItemsLookAsUsual)
{
    FMenu->OwnerDraw = true;
    const TSize Plain = Measured(FItem);
    auto Picture = Drawn(FItem);
    EXPECT_EQ(CountIn(*Picture, Other), 0) << "the background is drawn";
    EXPECT_GT(CountIn(*Picture, clMenuText), 10) << "the caption";
    const int Column = CountIn(*Picture, clMenuText, 13);
    FItem->Checked = true;
    EXPECT_GT(CountIn(*Drawn(FItem), clMenuText, 13), Column) << "the tick";
    FItem->ShortCut = scCtrl | 'K';
    EXPECT_GT(Measured(FItem).cx, Plain.cx);
    EXPECT_GT(CountIn(*Drawn(FItem, ODS_SELECTED), clHighlight), 200 * 30 / 2);
    FMenu->Images = FImages.get();
    FItem->ImageIndex = 0;
    EXPECT_EQ(CountIn(*Drawn(FItem), Red), 16 * 16);
    FItem->Caption = cLineCaption;
    EXPECT_LT(Measured(FItem).cy, Plain.cy);
    EXPECT_EQ(CountIn(*Drawn(FItem), clMenuText), 0);
}

TEST_F(MenuDrawing, LettersOfEveryAlphabetChooseDrawnItems)
{
    FMenu->OwnerDraw = true;
    HMENU Native = FMenu->Handle;
    const auto Answer = [&](wchar_t Letter) {
        return SendMessageW(PopupList->Window, WM_MENUCHAR, MAKEWPARAM(Letter, MF_POPUP),
                            reinterpret_cast<LPARAM>(Native));
    };
    EXPECT_EQ(Answer(L'о'), MAKELRESULT(1, MNC_EXECUTE));
    EXPECT_EQ(Answer(L'T'), MAKELRESULT(2, MNC_EXECUTE));
    EXPECT_EQ(HIWORD(Answer(L'x')), MNC_IGNORE);
    FMenu->Items->Items[2]->Enabled = false;
    EXPECT_EQ(Answer(L'T'), MAKELRESULT(2, MNC_SELECT)) << "disabled items are only selected";
    FMenu->Items->Items[0]->Visible = false;
    Native = FMenu->Handle;
    EXPECT_EQ(Answer(L'О'), MAKELRESULT(0, MNC_EXECUTE)) << "hidden items do not count";
    FMenu->Items->Items[0]->Visible = true;
    FMenu->Items->Items[0]->Caption = "&Опять";
    Native = FMenu->Handle;
    EXPECT_EQ(Answer(L'о'), MAKELRESULT(0, MNC_SELECT));
    MENUITEMINFOW Selected{};
    Selected.cbSize = sizeof Selected;
    Selected.fMask = MIIM_STATE;
    Selected.fState = MFS_HILITE;
    SetMenuItemInfoW(Native, 0, TRUE, &Selected);
    EXPECT_EQ(Answer(L'о'), MAKELRESULT(1, MNC_SELECT)) << "each in turn";
}

TEST_F(MenuDrawing, ALetterTypedInADrawnMenuClicksItsItem)
{
    FMenu->OwnerDraw = true;
    TWhileMenuOpen WhileOpen([] { SendKey('T'); });
    FMenu->Popup(150, 150);
    EXPECT_FALSE(WhileOpen.TimedOut);
    EXPECT_TRUE(PumpUntil([&] { return !FLog.empty(); }));
    EXPECT_THAT(FLog, ElementsAre(2));
}

TEST_F(MenuDrawing, ACyrillicLetterTypedInADrawnMenuClicksItsItem)
{
    FMenu->OwnerDraw = true;
    TWhileMenuOpen WhileOpen([] { SendLetter(L'о'); });
    FMenu->Popup(150, 150);
    EXPECT_FALSE(WhileOpen.TimedOut);
    EXPECT_TRUE(PumpUntil([&] { return !FLog.empty(); }));
    EXPECT_THAT(FLog, ElementsAre(1));
}

TEST_F(MenuDrawing, ItemsOfOtherWindowsAreLeftAlone)
{
    MEASUREITEMSTRUCT Measured{};
    Measured.CtlType = ODT_LISTBOX;
    Measured.itemID = FItem->Command;
    EXPECT_FALSE(SendMessageW(PopupList->Window, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&Measured)));
    Measured.CtlType = ODT_MENU;
    Measured.itemID = 5;
    EXPECT_FALSE(SendMessageW(PopupList->Window, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&Measured)));
    EXPECT_EQ(Measured.itemHeight, 0u);
}
