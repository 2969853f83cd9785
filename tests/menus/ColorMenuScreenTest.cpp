// Colour menus on the screen, under a real mouse and keyboard.
#include "menus/ColorMenu.h"

#include "robot/WhileMenuOpen.h"
#include "tests/menus/MenuScript.h"
#include "tests/menus/PaletteColor.h"
#include "tests/support/PixelImage.h"

#include <gmock/gmock.h>
#include <set>

using testing::ElementsAre;

namespace {

class ColorMenuScreenTest : public TFormTest {
protected:
    static void SetUpTestSuite() { MakeWhatMenusShare(); }
    void SetUp() override
    {
        Menu->CreateItems();
        Menu->OnChange = [this](TObject* Sender) { Changes += Sender == Menu; };
        Show();
    }

    // Opens the menu, does Action, and returns when the menu is closed and its command, if any, handled.
    void PopupWith(const std::function<void()>& Action)
    {
        TWhileMenuOpen WhileOpen(Action);
        Menu->Popup(150, 150);
        EXPECT_FALSE(WhileOpen.TimedOut) << "the menu did not close by itself";
        PumpMessages();
    }
    // The same for a menu that is only looked at.
    void Look(const std::function<void()>& Action)
    {
        PopupWith([&] {
            Action();
            SendKey(VK_ESCAPE);
        });
    }
    static void SendKeys(std::initializer_list<WORD> Keys)
    {
        for (WORD Key : Keys)
            SendKey(Key);
    }
    // On the screen, while the menu is open.
    TRect PlaceOf(int Index)
    {
        TRect R;
        EXPECT_TRUE(GetMenuItemRect(nullptr, Menu->Handle, static_cast<UINT>(Index), &R));
        return R;
    }
    static void PointAt(const TRect& R) { SendMove({(R.left + R.right) / 2, (R.top + R.bottom) / 2}); }
    TPixelImage PixelsAt(const TRect& R)
    {
        RedrawWindow(FindWindowW(L"#32768", nullptr), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        TPixelImage Image(R.Width(), R.Height());
        HDC Screen = GetDC(nullptr);
        BitBlt(Image.DC(), 0, 0, R.Width(), R.Height(), Screen, R.left, R.top, SRCCOPY);
        ReleaseDC(nullptr, Screen);
        return Image;
    }
    std::vector<int> CheckedItems()
    {
        std::vector<int> Found;
        for (int I = 0; I < Menu->Items->Count; ++I) {
            const bool IsNative = (GetMenuState(Menu->Handle, static_cast<UINT>(I), MF_BYPOSITION) & MF_CHECKED) != 0;
            EXPECT_EQ(IsNative, Menu->Items->Items[I]->Checked) << I;
            if (IsNative)
                Found.push_back(I);
        }
        return Found;
    }
    bool IsSelected(int Index)
    {
        return (GetMenuState(Menu->Handle, static_cast<UINT>(Index), MF_BYPOSITION) & MF_HILITE) != 0;
    }

    TkelColorMenu* Menu = new TkelColorMenu(Form.get());
    int Changes = 0;
};

} // namespace

// ---- the grid

TEST_F(ColorMenuScreenTest, TheOrderingIsColumnsByRows)
{
    constexpr struct {
        TMenuOrdering Ordering;
        int Columns;
        int Rows;
    } Cases[] = {{mo4x4, 4, 4}, {mo16x1, 16, 1}, {mo8x2, 8, 2}, {mo2x8, 2, 8}, {mo1x16, 1, 16}, {mo4x4, 4, 4}};
    for (const auto& [Ordering, Columns, Rows] : Cases) {
        Menu->MenuOrdering = Ordering;
        Look([&, Columns = Columns, Rows = Rows] {
            std::set<int> Lefts, Tops;
            for (int I = 0; I < 16; ++I) {
                Lefts.insert(PlaceOf(I).left);
                Tops.insert(PlaceOf(I).top);
            }
            EXPECT_EQ(std::ssize(Lefts), Columns);
            EXPECT_EQ(std::ssize(Tops), Rows);
            const TRect First = PlaceOf(0);
            for (int I = 0; I < 16; ++I) {
                EXPECT_EQ(PlaceOf(I).Width(), First.Width()) << I;
                EXPECT_EQ(PlaceOf(I).Height(), 22) << I;
                EXPECT_EQ(PlaceOf(I).top, First.top + I % Rows * 22) << I;
                EXPECT_EQ(PlaceOf(I).left, *std::next(Lefts.begin(), I / Rows)) << I;
            }
        });
    }
}

TEST_F(ColorMenuScreenTest, ANewSizeIsThatOfTheNextPopup)
{
    int Width = 0;
    Look([&] { Width = PlaceOf(0).Width(); });
    Menu->Width += 14;
    Menu->Height = 31;
    Look([&] {
        EXPECT_EQ(PlaceOf(0).Width(), Width + 14);
        EXPECT_EQ(PlaceOf(3).Height(), 31);
        EXPECT_EQ(PlaceOf(3).top, PlaceOf(0).top + 3 * 31);
    });
    Menu->Width = 5; // less than nothing is left of it
    Look([&] { EXPECT_EQ(PlaceOf(0).Width(), Width - 10); });
}

TEST_F(ColorMenuScreenTest, EveryCellShowsItsColour)
{
    Look([&] {
        for (int I = 0; I < 16; ++I)
            EXPECT_EQ(PixelsAt(PlaceOf(I)).At(10, 10), PaletteColor(I)) << I;
    });
}

TEST_F(ColorMenuScreenTest, TheFrameOfTheSelectedCellIsWhole)
{
    for (TMenuOrdering Ordering : {mo16x1, mo8x2, mo4x4, mo2x8, mo1x16})
        for (int Index : {0, 15}) {
            Menu->MenuOrdering = Ordering;
            TScript Script;
            Script.When(&TWhileMenuOpen::IsOpen, [&] { PointAt(PlaceOf(Index)); });
            Script.When([&] { return IsSelected(Index); },
                        [&] {
                            const TRect R = PlaceOf(Index);
                            const TPixelImage Seen = PixelsAt({R.left - 2, R.top + 1, R.right, R.bottom - 1});
                            TPixelImage Expected = Seen.Part({0, 0, Seen.Width(), Seen.Height()});
                            Expected.Frame({0, 0, Seen.Width(), Seen.Height()}, clBtnHighlight, cl3DDkShadow);
                            EXPECT_TRUE(SamePixels(Seen, Expected)) << Ordering << ", " << Index;
                            SendKey(VK_ESCAPE);
                        });
            Menu->Popup(150, 150);
            EXPECT_TRUE(Script.IsDone());
        }
}

// ---- choosing

TEST_F(ColorMenuScreenTest, TheMouseChoosesAColour)
{
    PopupWith([&] {
        PointAt(PlaceOf(10));
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(Menu->CurrentColor, PaletteColor(10));
    EXPECT_THAT(CheckedItems(), ElementsAre(10));
}

TEST_F(ColorMenuScreenTest, TheArrowKeysGoThroughTheGrid)
{
    PopupWith([] { SendKeys({VK_DOWN, VK_RIGHT, VK_DOWN, VK_RETURN}); });
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(Menu->CurrentColor, PaletteColor(5));
    EXPECT_THAT(CheckedItems(), ElementsAre(5));
}

TEST_F(ColorMenuScreenTest, EscapeChoosesNothing)
{
    Menu->CurrentColor = PaletteColor(4);
    PopupWith([] { SendKeys({VK_DOWN, VK_ESCAPE}); });
    EXPECT_EQ(Changes, 0);
    EXPECT_EQ(Menu->CurrentColor, PaletteColor(4));
}

TEST_F(ColorMenuScreenTest, LettersChooseNothing)
{
    PopupWith([] { SendKeys({'C', 'O', 'L', VK_ESCAPE}); });
    EXPECT_EQ(Changes, 0);
}

TEST_F(ColorMenuScreenTest, TheCurrentColourIsChecked)
{
    Look([&] { EXPECT_THAT(CheckedItems(), ElementsAre(0)); });
    Menu->CurrentColor = PaletteColor(6);
    Look([&] { EXPECT_THAT(CheckedItems(), ElementsAre(6)); });
}

TEST_F(ColorMenuScreenTest, NoItemIsCheckedForAColourThatTheMenuHasNot)
{
    for (TColor Foreign : {TColor(0x123456), clWhite, clNone, clBtnFace}) {
        Menu->CurrentColor = PaletteColor(6);
        Look([] {});
        Menu->CurrentColor = Foreign;
        Look([&] { EXPECT_THAT(CheckedItems(), ElementsAre()) << "the mark of the colour before would be wrong"; });
    }
}

TEST_F(ColorMenuScreenTest, TheFirstItemOfTheColourIsChecked)
{
    Menu->Items->Items[9]->Tag = 6;
    Menu->CurrentColor = PaletteColor(6);
    Look([&] { EXPECT_THAT(CheckedItems(), ElementsAre(6)); });
}

TEST_F(ColorMenuScreenTest, ItemsOfTheApplicationKeepTheirMarks)
{
    TMenuItem* Own = NewItem("Own", scNone, true, true, nullptr, 0, "", Form.get());
    Own->Tag = -1;
    Menu->Items->Add(Own);
    Menu->CurrentColor = clWhite;
    Look([&] { EXPECT_THAT(CheckedItems(), ElementsAre(16)); });
}

// ---- while it is open

TEST_F(ColorMenuScreenTest, PopupWhileItIsOpenDoesNothing)
{
    Menu->CurrentColor = PaletteColor(3);
    Look([&] {
        const TRect Before = PlaceOf(0);
        Menu->Popup(300, 300);
        EXPECT_EQ(PlaceOf(0), Before);
        EXPECT_THAT(CheckedItems(), ElementsAre(3));
    });
    EXPECT_EQ(Changes, 0);
}

TEST_F(ColorMenuScreenTest, ItMayBeDeletedWhileItIsOpen)
{
    PopupWith([&] { delete std::exchange(Menu, nullptr); });
    EXPECT_FALSE(TWhileMenuOpen::IsOpen());
}
