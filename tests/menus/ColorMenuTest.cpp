// Colour menus as components and in pictures.
#include "menus/ColorMenu.h"

#include "tests/menus/PaletteColor.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "tests/support/SystemObjects.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class TOpenColorMenu : public TkelColorMenu {
public:
    using TkelColorMenu::DoDrawItem;
    using TkelColorMenu::DoMeasureItem;
    using TkelColorMenu::TkelColorMenu;
};

// The numbers of the items that start a column.
std::vector<int> Breaks(TMenu* Menu)
{
    std::vector<int> Found;
    for (int I = 0; I < Menu->Items->Count; ++I)
        if (Menu->Items->Items[I]->Break == mbBreak)
            Found.push_back(I);
        else
            EXPECT_EQ(Menu->Items->Items[I]->Break, mbNone) << I;
    return Found;
}

std::vector<int> CheckedItems(TMenu* Menu)
{
    std::vector<int> Found;
    for (int I = 0; I < Menu->Items->Count; ++I)
        if (Menu->Items->Items[I]->Checked)
            Found.push_back(I);
    return Found;
}

class ColorMenuTest : public testing::Test {
protected:
    ColorMenuTest()
    {
        Menu->OnChange = [this](TObject* Sender) { Changes += Sender == Menu.get(); };
    }
    TMenuItem* Item(int Index) { return Menu->Items->Items[Index]; }

    std::unique_ptr<TOpenColorMenu> Menu = std::make_unique<TOpenColorMenu>(nullptr);
    int Changes = 0;
};

} // namespace

// ---- properties

TEST_F(ColorMenuTest, PublishesWhatFormsNeed)
{
    EXPECT_EQ(FindClass("TkelColorMenu"), TkelColorMenu::StaticClass());
    EXPECT_STREQ(TkelColorMenu::StaticClass()->ClassParent()->ClassName(), "TkelOfficePopupMenu");
    EXPECT_THAT(PublishedFrom(TkelColorMenu::StaticClass(), "Width"),
                ElementsAre("Width", "Height", "MenuOrdering = mo4x4"))
        << "OnChange keeps the place that menus gave to theirs";
    EXPECT_THAT(PublishedFrom(TkelColorMenu::StaticClass(), "Alignment"), Contains("OnChange"));
}

TEST_F(ColorMenuTest, ANewMenuIsOwnerDrawnAndBlackWithoutItems)
{
    EXPECT_EQ(Menu->Style, msOwnerDraw);
    EXPECT_EQ(Menu->Width, 26);
    EXPECT_EQ(Menu->Height, 22);
    EXPECT_EQ(Menu->MenuOrdering, mo4x4);
    EXPECT_EQ(Menu->CurrentColor, clBlack);
    EXPECT_EQ(Menu->Items->Count, 0);
}

TEST_F(ColorMenuTest, FormFilesAlwaysHaveTheSizeOfACell)
{
    Menu->Name = "Menu1";
    Menu->CreateItems();
    const std::string Text = FormText(Menu.get());
    EXPECT_THAT(Text, HasSubstr("  Width = 26\n  Height = 22\nend"));
    EXPECT_THAT(Text, Not(HasSubstr("AutoHotkeys")));
    EXPECT_THAT(Text, Not(HasSubstr("TMenuItem"))) << "every menu makes them anew";
    Menu->Width = 40;
    Menu->Height = 30;
    Menu->MenuOrdering = mo16x1;
    EXPECT_THAT(FormText(Menu.get()), HasSubstr("  Width = 40\n  Height = 30\n  MenuOrdering = mo16x1\nend"));
}

// ---- items

TEST_F(ColorMenuTest, TheItemsAreSixteenOfOneGroup)
{
    Menu->CreateItems();
    ASSERT_EQ(Menu->Items->Count, 16);
    for (int I = 0; I < 16; ++I) {
        EXPECT_EQ(Item(I)->Name, "miColorMenu" + std::to_string(I));
        EXPECT_EQ(Item(I)->Caption, "color item");
        EXPECT_EQ(Item(I)->Tag, I);
        EXPECT_TRUE(Item(I)->RadioItem);
        EXPECT_EQ(Item(I)->GroupIndex, 98);
        EXPECT_FALSE(Item(I)->Checked);
    }
}

TEST_F(ColorMenuTest, CaptionsStayWhenTheNativeMenuIsMade)
{
    Menu->CreateItems();
    Menu->GetHandle();
    EXPECT_EQ(Item(0)->Caption, "color item") << "no letter chooses a colour";
}

TEST_F(ColorMenuTest, TheOrderingSaysWhereColumnsBegin)
{
    Menu->CreateItems();
    EXPECT_THAT(Breaks(Menu.get()), ElementsAre(0, 4, 8, 12));
    Menu->MenuOrdering = mo16x1;
    EXPECT_THAT(Breaks(Menu.get()), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15));
    Menu->MenuOrdering = mo8x2;
    EXPECT_THAT(Breaks(Menu.get()), ElementsAre(0, 2, 4, 6, 8, 10, 12, 14));
    Menu->MenuOrdering = mo2x8;
    EXPECT_THAT(Breaks(Menu.get()), ElementsAre(8));
    Menu->MenuOrdering = mo1x16;
    EXPECT_THAT(Breaks(Menu.get()), ElementsAre());
    Menu->MenuOrdering = mo4x4;
    EXPECT_THAT(Breaks(Menu.get()), ElementsAre(0, 4, 8, 12));
}

TEST_F(ColorMenuTest, ItemsAreMadeForTheOrderingThatIsSet)
{
    Menu->MenuOrdering = mo2x8;
    Menu->CreateItems();
    EXPECT_THAT(Breaks(Menu.get()), ElementsAre(8));
}

TEST_F(ColorMenuTest, TheSameOrderingOnceMoreLeavesTheItemsAlone)
{
    Menu->CreateItems();
    Item(3)->Break = mbBarBreak;
    Menu->MenuOrdering = mo4x4;
    EXPECT_EQ(Item(3)->Break, mbBarBreak);
}

// ---- form files

TEST_F(ColorMenuTest, AFormWithoutItemsGetsTheColours)
{
    THostWindow Window;
    ReadFormText(&Window,
                 "object Window1: THostWindow\n  object Menu1: TkelColorMenu\n    Width = 30\n"
                 "    Height = 20\n    MenuOrdering = mo2x8\n  end\n  object Menu2: TkelColorMenu\n  end\nend\n");
    auto* First = As<TkelColorMenu>(Window.FindComponent("Menu1"));
    auto* Second = As<TkelColorMenu>(Window.FindComponent("Menu2"));
    ASSERT_TRUE(First && Second);
    EXPECT_EQ(First->Width, 30);
    EXPECT_EQ(First->Height, 20);
    EXPECT_EQ(First->Items->Count, 16);
    EXPECT_THAT(Breaks(First), ElementsAre(8));
    EXPECT_EQ(Second->Items->Count, 16) << "the same names do not collide";
    First->Items->Items[5]->Click();
    EXPECT_EQ(First->CurrentColor, PaletteColor(5));
    EXPECT_EQ(Second->CurrentColor, clBlack);
}

TEST_F(ColorMenuTest, AFormsOwnItemsStayAndDoTheMenusWork)
{
    THostWindow Window;
    Window.SetDesigning(true);
    ReadFormText(&Window, "object Window1: THostWindow\n  object Menu1: TkelColorMenu\n    MenuOrdering = mo8x2\n"
                          "    object miColorMenu0: TMenuItem\n      Tag = 13\n    end\n"
                          "    object miColorMenu1: TMenuItem\n      Tag = 4\n      Break = mbBarBreak\n    end\n"
                          "    object Item3: TMenuItem\n      Tag = 6\n    end\n  end\n"
                          "  object Menu2: TkelColorMenu\n  end\nend\n");
    auto* Read = As<TkelColorMenu>(Window.FindComponent("Menu1"));
    ASSERT_EQ(Read->Items->Count, 3);
    EXPECT_THAT(Breaks(Read), ElementsAre(0, 2));
    Read->Items->Items[0]->Click();
    EXPECT_EQ(Read->CurrentColor, PaletteColor(13));
    Read->Items->Items[1]->Click();
    EXPECT_EQ(Read->CurrentColor, PaletteColor(4));
    EXPECT_THAT(CheckedItems(Read), ElementsAre(1));
    auto* Other = As<TkelColorMenu>(Window.FindComponent("Menu2"));
    EXPECT_EQ(Other->Items->Count, 16) << "a designer's names are unique in the form";
}

// ---- choosing

TEST_F(ColorMenuTest, AClickMakesTheColourTheCurrentOne)
{
    Menu->CreateItems();
    for (int I : {3, 15, 0}) {
        Changes = 0;
        Item(I)->Click();
        EXPECT_EQ(Menu->CurrentColor, PaletteColor(I));
        EXPECT_EQ(Changes, 1);
        EXPECT_THAT(CheckedItems(Menu.get()), ElementsAre(I));
    }
    Item(0)->Click();
    EXPECT_EQ(Changes, 2) << "the current colour once more";
}

TEST_F(ColorMenuTest, SettingTheColourRaisesNoOnChange)
{
    Menu->CreateItems();
    Menu->CurrentColor = PaletteColor(7);
    EXPECT_EQ(Changes, 0);
}

TEST_F(ColorMenuTest, WhatStandsForNoColourCannotBeChosen)
{
    Menu->CreateItems();
    Item(2)->Click();
    Changes = 0;
    for (intptr_t Tag : {intptr_t{-1}, intptr_t{20}, INTPTR_MAX, INTPTR_MIN}) {
        Item(9)->Tag = Tag;
        Item(9)->Click();
    }
    Menu->DoClick(nullptr);
    Menu->DoClick(Menu.get());
    EXPECT_EQ(Changes, 0);
    EXPECT_EQ(Menu->CurrentColor, PaletteColor(2));
    EXPECT_THAT(CheckedItems(Menu.get()), ElementsAre(2));
    Item(9)->Tag = 19;
    Item(9)->Click();
    EXPECT_EQ(Menu->CurrentColor, clWhite) << "the last of the palette";
}

TEST_F(ColorMenuTest, TheIndexOfAColourIsItsNumberInThePalette)
{
    EXPECT_EQ(Menu->ColorToIndex(clBlack), 0) << "no items";
    EXPECT_EQ(Menu->ColorToIndex(clWhite), 0);
    Menu->CreateItems();
    for (int I = 0; I < 16; ++I)
        EXPECT_EQ(Menu->ColorToIndex(PaletteColor(I)), I);
    EXPECT_EQ(Menu->ColorToIndex(TColor(0x123456)), 16);
    EXPECT_EQ(Menu->ColorToIndex(clWhite), 16) << "behind the sixteen";
    EXPECT_EQ(Menu->ColorToIndex(clNone), 16);
    delete Item(15);
    EXPECT_EQ(Menu->ColorToIndex(PaletteColor(14)), 14);
    EXPECT_EQ(Menu->ColorToIndex(PaletteColor(15)), 15);
    Menu->CreateItems();
    EXPECT_EQ(Menu->ColorToIndex(PaletteColor(19)), 19);
    EXPECT_EQ(Menu->ColorToIndex(TColor(0x123456)), 31);
}

// ---- measuring and drawing

TEST_F(ColorMenuTest, TheWidthOfACellCountsWhatTheSystemAdds)
{
    Menu->CreateItems();
    TCanvas Canvas;
    int Width = 0, Height = 0;
    Menu->DoMeasureItem(Item(0), Width, Height, &Canvas);
    EXPECT_EQ(Width, 10);
    EXPECT_EQ(Height, 22);
    Menu->Width = 50;
    Menu->Height = 33;
    Menu->DoMeasureItem(Item(7), Width, Height, &Canvas);
    EXPECT_EQ(Width, 34);
    EXPECT_EQ(Height, 33);
}

namespace {

class ColorMenuPaintTest : public ColorMenuTest {
protected:
    static constexpr int Left = 5;
    static constexpr int Top = 4;
    static constexpr int Width = 24;
    static constexpr int Height = 22;
    static constexpr TRect Cell{Left - 2, Top + 1, Left + Width, Top + Height - 1};

    ColorMenuPaintTest() { Menu->CreateItems(); }

    TPixelImage Draw(TMenuItem* Item, unsigned State)
    {
        TPixelImage Image = Blank();
        DrawOn(Image, Item, State, {Left, Top, Left + Width, Top + Height});
        return Image;
    }
    void DrawOn(TPixelImage& Image, TMenuItem* Item, unsigned State, const TRect& R)
    {
        TCanvas Canvas;
        Canvas.Handle = Image.DC();
        Canvas.Brush->Style = bsSolid;
        Canvas.Pen->Style = psClear;
        Menu->DoDrawItem(Item, &Canvas, State, R);
    }
    static TPixelImage Blank() { return TPixelImage(Left + Width + 5, Top + Height + 5); }
    static TPixelImage Face()
    {
        TPixelImage Image = Blank();
        Image.Fill(Cell, clBtnFace);
        return Image;
    }
    static void Swatch(TPixelImage& Image, TColor Color)
    {
        TRect R = Cell;
        InflateRect(R, -3, -3);
        Image.Frame(R, clBtnShadow, clBtnShadow);
        InflateRect(R, -1, -1);
        if (Color != clNone)
            Image.Fill(R, Color);
    }
};

} // namespace

TEST_F(ColorMenuPaintTest, AtRestAColourStandsOnTheFace)
{
    for (int I = 0; I < 16; ++I) {
        TPixelImage Expected = Face();
        Swatch(Expected, PaletteColor(I));
        EXPECT_TRUE(SamePixels(Draw(Item(I), 0), Expected)) << I;
    }
}

TEST_F(ColorMenuPaintTest, ASelectedCellIsRaised)
{
    TPixelImage Expected = Face();
    Expected.Frame(Cell, clBtnHighlight, cl3DDkShadow);
    Swatch(Expected, PaletteColor(3));
    EXPECT_TRUE(SamePixels(Draw(Item(3), ODS_SELECTED), Expected));
    EXPECT_TRUE(SamePixels(Draw(Item(3), ODS_SELECTED | ODS_CHECKED), Expected));
}

TEST_F(ColorMenuPaintTest, ACheckedCellIsSunkenOnTheCheckerboard)
{
    TPixelImage Expected = Blank();
    for (int Y = Cell.top; Y < Cell.bottom; ++Y)
        for (int X = Cell.left; X < Cell.right; ++X)
            Expected.Set(X, Y, (X + Y) % 2 == 0 ? clBtnHighlight : clBtnFace);
    Expected.Frame(Cell, cl3DDkShadow, clBtnHighlight);
    Swatch(Expected, PaletteColor(3));
    EXPECT_TRUE(SamePixels(Draw(Item(3), ODS_CHECKED), Expected));
}

TEST_F(ColorMenuPaintTest, WhatStandsForNoColourIsAnEmptyFrame)
{
    Item(3)->Tag = 20;
    TPixelImage Expected = Face();
    Swatch(Expected, clNone);
    EXPECT_TRUE(SamePixels(Draw(Item(3), 0), Expected));
}

TEST_F(ColorMenuPaintTest, CellsWithoutRoomForTheColourStayEmpty)
{
    for (int Size = 0; Size < 10; ++Size) {
        TPixelImage Image = Blank();
        DrawOn(Image, Item(13), ODS_SELECTED, {Left, Top, Left + Size, Top + Size});
        const int Side = std::max(Size - 2 - 6 - 2, 0);
        EXPECT_EQ(Image.CountOf(PaletteColor(13)), Side * (Size + 2 - 6 - 2)) << Size;
        for (int X = 0; X < Image.Width(); ++X)
            for (int Y = 0; Y < Image.Height(); ++Y)
                if (!TRect(Left - 2, Top + 1, Left + Size, Top + Size - 1).Contains({X, Y}))
                    ASSERT_EQ(Image.At(X, Y), Untouched) << Size << " at " << X << ", " << Y;
    }
}

TEST_F(ColorMenuPaintTest, DrawingAgainMakesNoSystemObjects)
{
    TPixelImage Image = Blank();
    ExpectNoNewSystemObjects([&] {
        for (unsigned State : {0u, unsigned{ODS_SELECTED}, unsigned{ODS_CHECKED}})
            for (int I = 0; I < 16; ++I)
                DrawOn(Image, Item(I), State, {Left, Top, Left + Width, Top + Height});
    });
}
