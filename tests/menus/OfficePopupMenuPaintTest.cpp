// Every step of drawing an item of an Office menu, in every state, pixel by pixel.
#include "tests/menus/OfficeMenuFixture.h"
#include "tests/support/SystemObjects.h"

namespace {

constexpr unsigned Selected = ODS_SELECTED;
constexpr unsigned Grayed = ODS_GRAYED;
constexpr unsigned Checked = ODS_CHECKED;

class OfficePopupMenuPaintTest : public TOfficeMenuTest {};

} // namespace

// ---- plain items

TEST_F(OfficePopupMenuPaintTest, AnItemAtRestStandsOnTheFace)
{
    TMenuItem* Item = AddItem("&Open");
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
    Text(Expected, "&Open", G + 3, 0, clMenuText, clBtnFace);
    EXPECT_TRUE(SamePixels(Draw(Item), Expected));
}

TEST_F(OfficePopupMenuPaintTest, ASelectedItemStandsOnTheHighlight)
{
    TMenuItem* Item = AddItem("&Open");
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, Width, G + 1}, clHighlight);
    Text(Expected, "&Open", G + 3, 0, clHighlightText, clHighlight);
    EXPECT_TRUE(SamePixels(Draw(Item, Selected), Expected));
}

TEST_F(OfficePopupMenuPaintTest, AGrayedItemIsEmbossedAndNeverHighlighted)
{
    TMenuItem* Item = AddItem("&Open");
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
    Text(Expected, "&Open", G + 3, 1, clBtnHighlight, clNone);
    Text(Expected, "&Open", G + 3, 0, clBtnShadow, clNone);
    EXPECT_TRUE(SamePixels(Draw(Item, Grayed), Expected));
    EXPECT_TRUE(SamePixels(Draw(Item, Grayed | Selected), Expected));
}

TEST_F(OfficePopupMenuPaintTest, TheShortCutStandsAtTheRight)
{
    TMenuItem* Item = AddItem("&Open");
    Item->ShortCut = ShortCut('O', {ssCtrl});
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
    Text(Expected, "&Open", G + 3, 0, clMenuText, clBtnFace);
    Text(Expected, "Ctrl+O", -G, 0, clMenuText, clBtnFace, Width - G);
    EXPECT_TRUE(SamePixels(Draw(Item), Expected));
    Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
    Text(Expected, "&Open", G + 3, 1, clBtnHighlight, clNone);
    Text(Expected, "&Open", G + 3, 0, clBtnShadow, clNone);
    Text(Expected, "Ctrl+O", -G, 0, clBtnShadow, clNone, Width - G); // flat
    EXPECT_TRUE(SamePixels(Draw(Item, Grayed), Expected));
}

// ---- glyphs

TEST_F(OfficePopupMenuPaintTest, TheTagChoosesTheGlyphCell)
{
    UseGlyphs();
    for (int Tag : {1, 2}) {
        TMenuItem* Item = AddItem("", Tag);
        TPixelImage Expected = Blank();
        Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
        Glyph(Expected, 2, 2, Tag - 1);
        EXPECT_TRUE(SamePixels(Draw(Item), Expected)) << Tag;
    }
}

TEST_F(OfficePopupMenuPaintTest, NoTagShowsNoGlyphAndNoRaisedColumn)
{
    UseGlyphs();
    for (int Tag : {0, -1}) {
        TPixelImage Expected = Blank();
        Expected.Fill({0, 0, Width, G + 1}, clHighlight);
        EXPECT_TRUE(SamePixels(Draw(AddItem("", Tag), Selected), Expected)) << Tag;
    }
    Menu->Glyphs = nullptr;
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, Width, G + 1}, clHighlight);
    EXPECT_TRUE(SamePixels(Draw(AddItem("", 1), Selected), Expected)) << "a tag without glyphs";
}

TEST_F(OfficePopupMenuPaintTest, ASelectedGlyphIsRaisedInAnUnfilledColumn)
{
    UseGlyphs();
    TMenuItem* Item = AddItem("", 1);
    TPixelImage Expected = Blank();
    Expected.Fill({G + 2, 0, Width, G + 1}, clHighlight);
    Frame(Expected, 0, clBtnHighlight, clBtnShadow);
    Glyph(Expected, 2, 2, 0);
    EXPECT_TRUE(SamePixels(Draw(Item, Selected), Expected));
    EXPECT_EQ(Expected.At(G, 0), Untouched) << "the corner at the upper right";
}

TEST_F(OfficePopupMenuPaintTest, AGrayedGlyphIsEmbossed)
{
    UseGlyphs();
    for (int Tag : {1, 2}) {
        TMenuItem* Item = AddItem("", Tag);
        TPixelImage Expected = Blank();
        Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
        Embossed(Expected, 2, 2, Tag - 1);
        EXPECT_TRUE(SamePixels(Draw(Item, Grayed), Expected)) << Tag;
        EXPECT_TRUE(SamePixels(Draw(Item, Grayed | Selected), Expected)) << Tag;
    }
}

TEST_F(OfficePopupMenuPaintTest, ImagesStandAtTheColumnsUpperLeft)
{
    UseImages();
    TMenuItem* Item = AddItem("", 2);
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
    Glyph(Expected, 1, 1, 1);
    EXPECT_TRUE(SamePixels(Draw(Item), Expected));
    Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
    Embossed(Expected, 2, 2, 1);
    EXPECT_TRUE(SamePixels(Draw(Item, Grayed), Expected));
}

TEST_F(OfficePopupMenuPaintTest, ATagBehindTheLastImageOrCellShowsNone)
{
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
    TMenuItem* Item = AddItem("", 99);
    UseImages();
    EXPECT_TRUE(SamePixels(Draw(Item), Expected));
    EXPECT_TRUE(SamePixels(Draw(Item, Grayed), Expected));
    UseGlyphs();
    EXPECT_TRUE(SamePixels(Draw(Item), Expected));
    EXPECT_TRUE(SamePixels(Draw(Item, Grayed), Expected));
}

// ---- checked items

TEST_F(OfficePopupMenuPaintTest, ACheckedItemHasItsMarkInASunkenBox)
{
    TMenuItem* Item = AddItem("");
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
    Dither(Expected, {1, 1, G, G});
    Frame(Expected, 0, clBtnShadow, clBtnHighlight);
    Check(Expected, 0);
    EXPECT_TRUE(SamePixels(Draw(Item, Checked), Expected));
}

TEST_F(OfficePopupMenuPaintTest, TheBoxOfASelectedCheckedItemHasTheMenusColour)
{
    UseGlyphs(); // a mark takes the glyph's place
    TMenuItem* Item = AddItem("", 1);
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, Width, G + 1}, clHighlight);
    Expected.Fill({1, 1, G, G}, clMenu);
    Frame(Expected, 0, clBtnShadow, clBtnHighlight);
    Check(Expected, 0);
    EXPECT_TRUE(SamePixels(Draw(Item, Checked | Selected), Expected));
}

TEST_F(OfficePopupMenuPaintTest, TheCaptionOfACheckedItemStandsOnTheMenusColour)
{
    TMenuItem* Item = AddItem("&Bold");
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
    Dither(Expected, {1, 1, G, G});
    Frame(Expected, 0, clBtnShadow, clBtnHighlight);
    Check(Expected, 0);
    Text(Expected, "&Bold", G + 3, 0, clMenuText, clMenu);
    EXPECT_TRUE(SamePixels(Draw(Item, Checked), Expected));
}

TEST_F(OfficePopupMenuPaintTest, ACheckedRadioItemShowsItsGlyphInstead)
{
    for (bool FromImages : {false, true}) {
        FromImages ? UseImages() : UseGlyphs();
        TMenuItem* Item = AddItem("", 1);
        Item->RadioItem = true;
        const int At = FromImages ? 1 : 2;
        TPixelImage Expected = Blank();
        Expected.Fill({0, 0, Width, G + 1}, clBtnFace);
        Dither(Expected, {1, 1, G, G});
        Frame(Expected, 0, clBtnShadow, clBtnHighlight);
        TPixelImage Disabled = Expected.Part({0, 0, Width, G + 1});
        Glyph(Expected, At, At, 0);
        EXPECT_TRUE(SamePixels(Draw(Item, Checked), Expected)) << FromImages;
        EXPECT_TRUE(SamePixels(Draw(Item, Checked | Grayed), Disabled)) << "an empty box " << FromImages;
        Expected.Fill({0, 0, Width, G + 1}, clHighlight);
        Expected.Fill({1, 1, G, G}, clMenu);
        Frame(Expected, 0, clBtnShadow, clBtnHighlight);
        Glyph(Expected, At, At, 0);
        EXPECT_TRUE(SamePixels(Draw(Item, Checked | Selected), Expected)) << "selected " << FromImages;
    }
}

TEST_F(OfficePopupMenuPaintTest, AnUncheckedRadioItemShowsItsGlyphAsOthersDo)
{
    UseGlyphs();
    TMenuItem* Item = AddItem("", 2);
    const TPixelImage Plain = Draw(Item);
    Item->RadioItem = true;
    EXPECT_TRUE(SamePixels(Draw(Item), Plain));
}

// ---- separators

TEST_F(OfficePopupMenuPaintTest, ALoneDashIsAnEtchedLine)
{
    TMenuItem* Item = AddItem("-");
    TPixelImage Expected = Blank();
    Expected.Fill({1, G / 2, Width - 1, G / 2 + 1}, clBtnShadow);
    Expected.Fill({1, G / 2 + 1, Width - 1, G / 2 + 2}, clBtnHighlight);
    EXPECT_TRUE(SamePixels(Draw(Item), Expected));
    EXPECT_TRUE(SamePixels(Draw(Item, Selected | Grayed), Expected));
}

TEST_F(OfficePopupMenuPaintTest, WhatFollowsTheDashIsTheTitleInTheMiddle)
{
    TMenuItem* Item = AddItem("-Правка");
    TPixelImage Expected = Blank();
    Expected.Fill({1, G / 2, Width - 1, G / 2 + 1}, clBtnShadow);
    Expected.Fill({1, G / 2 + 1, Width - 1, G / 2 + 2}, clBtnHighlight);
    {
        TCanvas Canvas;
        Canvas.Handle = Expected.DC();
        Canvas.Brush->Color = clBtnFace;
        Canvas.Font->Color = clMenuText;
        const TSize Size = Canvas.TextExtent("Правка");
        Canvas.TextOut((Width - Size.cx) / 2, (G + 1 - Size.cy) / 2, "Правка");
    }
    EXPECT_TRUE(SamePixels(Draw(Item), Expected));
}

// ---- the banner

TEST_F(OfficePopupMenuPaintTest, ABannerAtTheLeftMovesEverythingToTheRight)
{
    TMenuItem* Item = AddItem("");
    UseGlyphs();
    Item->Tag = 1;
    const TPixelImage Before = Draw(Item);
    UseBanner(30, 5);
    TPixelImage Expected = Blank();
    Expected.Fill({0, 0, 30, G + 1}, clNavy);
    Expected.Fill({0, 0, 30, 5}, clLime);
    Expected.Copy(30, 0, Before);
    EXPECT_TRUE(SamePixels(Draw(Item), Expected));
}

TEST_F(OfficePopupMenuPaintTest, ABannerAtTheRightLeavesTheItemLess)
{
    TMenuItem* Line = AddItem("-");
    UseBanner(30, 5);
    Menu->Banner->Position = mbpRight;
    TPixelImage Expected = Blank();
    Expected.Fill({Width - 30, 0, Width, G + 1}, clNavy);
    Expected.Fill({Width - 30, 0, Width, 5}, clLime);
    Expected.Fill({1, G / 2, Width - 31, G / 2 + 1}, clBtnShadow);
    Expected.Fill({1, G / 2 + 1, Width - 31, G / 2 + 2}, clBtnHighlight);
    EXPECT_TRUE(SamePixels(Draw(Line), Expected));
}

TEST_F(OfficePopupMenuPaintTest, ThePictureStandsAtTheTopBottomOrCentreOfTheMenu)
{
    std::vector<TMenuItem*> Items;
    for (int I = 0; I < 3; ++I) {
        Items.push_back(AddItem("x"));
        Measure(Items.back());
    }
    UseBanner(30, 10);
    const int Total = 3 * (G + 1);
    const std::pair<TPicturePosition, int> Places[] = {
        {ppTop, 0}, {ppBottom, Total - 10}, {ppCenter, (Total - 10) / 2}};
    for (TMenuBannerPosition Side : {mbpLeft, mbpRight})
        for (const auto& [Place, Y] : Places) {
            Menu->Banner->Position = Side;
            Menu->Banner->PicturePosition = Place;
            const int X = Side == mbpLeft ? 0 : Width - 30;
            TPixelImage Image(Width, Total);
            for (int I = 0; I < 3; ++I)
                DrawOn(Image, Items[static_cast<size_t>(I)], 0, I * (G + 1));
            TPixelImage Expected(30, Total);
            Expected.Fill({0, 0, 30, Total}, clNavy);
            Expected.Fill({0, Y, 30, Y + 10}, clLime);
            EXPECT_TRUE(SamePixels(Image.Part({X, 0, X + 30, Total}), Expected)) << Side << Place;
        }
}

TEST_F(OfficePopupMenuPaintTest, TheHeightIsTheMenusHoweverOftenItIsMeasured)
{
    TMenuItem* First = AddItem("x");
    TMenuItem* More = AddItem("more");
    auto* Deep = new TMenuItem(Menu.get());
    Deep->Caption = "deep";
    More->Add(Deep);
    TMenuItem* Hidden = AddItem("hidden");
    for (TMenuItem* Item : {First, More, Hidden, Deep, First})
        Measure(Item);
    Hidden->Visible = false;
    Menu->GetHandle();
    UseBanner(30, 10);
    Menu->Banner->PicturePosition = ppBottom;
    EXPECT_EQ(Draw(First, 0, 42).At(0, 32), clLime);
    EXPECT_EQ(Draw(First, 0, 42).At(0, 20), clNavy);
    EXPECT_EQ(Draw(Deep).At(0, 11), clLime) << "a submenu has its own height";
}

// ---- cost

TEST_F(OfficePopupMenuPaintTest, DrawingAgainMakesNoSystemObjects)
{
    UseGlyphs();
    UseBanner(30, 10);
    TMenuItem* Item = AddItem("&Open", 1);
    Item->ShortCut = ShortCut('O', {ssCtrl});
    TMenuItem* Line = AddItem("-Title");
    TPixelImage Image(Width, 2 * G);
    ExpectNoNewSystemObjects([&] {
        for (unsigned State = 0; State < 16; ++State)
            for (TMenuItem* Each : {Item, Line})
                DrawOn(Image, Each, State, 0);
    });
}
