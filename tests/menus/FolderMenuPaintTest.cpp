// Every step of drawing an item of a folder menu, pixel by pixel.
#include "tests/menus/FolderMenuFixture.h"
#include "tests/support/PixelImage.h"
#include "tests/support/SystemObjects.h"
#include "vcl/graphics/Bitmap.h"

namespace {

constexpr int Width = 200;
constexpr TColor Corner = TColor(0x00FF00);

class FolderMenuPaintTest : public testing::Test {
protected:
    TMenuItem* AddItem(const AnsiString& Caption)
    {
        Menu->Items->Add(NewItem(Caption, scNone, false, true, nullptr, 0, ""));
        return Menu->Items->Items[Menu->Items->Count - 1];
    }
    TPixelImage Draw(TMenuItem* Item, unsigned State = 0)
    {
        TPixelImage Image(Width, Size);
        DrawOn(Image, Item, State);
        return Image;
    }
    void DrawOn(TPixelImage& Image, TMenuItem* Item, unsigned State = 0, int Top = 0)
    {
        TCanvas Canvas;
        Canvas.Handle = Image.DC();
        Canvas.Brush->Style = bsSolid;
        Canvas.Pen->Style = psClear;
        Menu->DoDrawItem(Item, &Canvas, State, {0, Top, Width, Top + Size});
        EXPECT_EQ(Canvas.Font->Color, clWindowText) << "the text keeps its colour";
    }
    // The item without its icon.
    TPixelImage Expected(const AnsiString& Name, TColor Back = clBtnFace) const
    {
        TPixelImage Image(Width, Size, Back);
        TFont Font;
        HDC Context = Image.DC();
        HGDIOBJ Old = SelectObject(Context, Font.Handle);
        SetTextColor(Context, ColorToRGB(clWindowText));
        SetBkColor(Context, ColorToRGB(Back));
        TRect Where(Size + 16, 0, Width, Size);
        DrawText(Context, Name, Where, DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
        SelectObject(Context, Old);
        return Image;
    }
    // The shell's icon for Path, as an image list draws it.
    void DrawIcon(TPixelImage& Image, const AnsiString& Path, int X = 8) const
    {
        const std::unique_ptr<TIcon> Icon(Menu->GetFileIcon(Path));
        TImageList List(nullptr, Size, Size);
        List.ColorDepth = cd32Bit;
        ASSERT_EQ(List.AddIcon(Icon.get()), 0) << Path;
        TCanvas Canvas;
        Canvas.Handle = Image.DC();
        List.Draw(&Canvas, X, 0, 0);
    }
    void UseSmallIcons()
    {
        Menu->SmallIcon = true;
        Menu->Folder = "";
        Menu->Popup(0, 0); // shows nothing
        Size = 16;
    }

    TTestFolder Folder;
    std::unique_ptr<TOpenFolderMenu> Menu{new TOpenFolderMenu(nullptr)};
    int Size = 32;
};

// An icon of 32 by 32 pixels: a red square in its middle, its surroundings as given with alpha.
void MakeIcon(TIcon& Icon, uint32_t Surroundings)
{
    TMaskedImage Color(32, 32);
    for (int Y = 0; Y < 32; ++Y)
        for (int X = 0; X < 32; ++X)
            Color.Pixels()[Y * 32 + X] = X >= 8 && X < 24 && Y >= 8 && Y < 24 ? 0xFFFF0000 : Surroundings;
    TBitmap Pixels, Mask;
    Pixels.PixelFormat = pf32bit;
    Pixels.SetSize(32, 32);
    for (int Y = 0; Y < 32; ++Y)
        std::memcpy(Pixels.ScanLine[Y], Color.Pixels() + Y * 32, 32 * sizeof(uint32_t));
    Mask.Monochrome = true;
    Mask.SetSize(32, 32);
    Mask.Canvas->Brush->Color = Surroundings ? clBlack : clWhite;
    Mask.Canvas->FillRect({0, 0, 32, 32});
    ICONINFO Info = {TRUE, 0, 0, Mask.Handle, Pixels.Handle};
    Icon.Handle = CreateIconIndirect(&Info);
}

TPixelImage DrawOnFace(TFolderIcons& Icons, int Index)
{
    TPixelImage Image(32, 32, clBtnFace);
    Icons.Draw(Image.DC(), 0, 0, Index);
    return Image;
}

} // namespace

// ---- items

TEST_F(FolderMenuPaintTest, AnItemHasItsIconAndItsNameOnTheFace)
{
    const AnsiString Path = Folder.AddFile("notes.txt");
    TPixelImage Wanted = Expected("notes");
    DrawIcon(Wanted, Path);
    EXPECT_TRUE(SamePixels(Draw(AddItem(Path)), Wanted));
}

TEST_F(FolderMenuPaintTest, ASelectedItemStandsOnTheHighlight)
{
    const AnsiString Path = Folder.AddFile("notes.txt");
    TPixelImage Wanted = Expected("notes", clHighlight);
    DrawIcon(Wanted, Path);
    EXPECT_TRUE(SamePixels(Draw(AddItem(Path), ODS_SELECTED), Wanted));
}

TEST_F(FolderMenuPaintTest, AFolderHasItsOwnIcon)
{
    Folder.AddFolder("sub");
    const AnsiString Path = Folder.Path() + "sub";
    TPixelImage Wanted = Expected("sub");
    DrawIcon(Wanted, Path);
    EXPECT_TRUE(SamePixels(Draw(AddItem(Path)), Wanted));
}

TEST_F(FolderMenuPaintTest, FilesHaveTheIconsOfTheirKinds)
{
    for (const char* Name : {"a.txt", "b.bmp", "c.lnk", "d.exe", "e.LNK", "f", "g.txt"}) {
        const AnsiString Path = Folder.AddFile(Name);
        TMenuItem* Item = AddItem(Path);
        TPixelImage Wanted(32, 32, clBtnFace);
        DrawIcon(Wanted, Path, 0);
        EXPECT_TRUE(SamePixels(Draw(Item).Part({8, 0, 40, 32}), Wanted)) << Name;
    }
}

TEST_F(FolderMenuPaintTest, SmallIconsMakeSmallItems)
{
    UseSmallIcons();
    const AnsiString Path = Folder.AddFile("notes.txt");
    TPixelImage Wanted = Expected("notes");
    DrawIcon(Wanted, Path);
    EXPECT_TRUE(SamePixels(Draw(AddItem(Path)), Wanted));
}

TEST_F(FolderMenuPaintTest, WithoutAnIconThereIsTheName)
{
    TMenuItem* Item = AddItem(Folder.Path() + "nowhere\\gone");
    for (int Time = 0; Time < 2; ++Time) {
        EXPECT_TRUE(SamePixels(Draw(Item), Expected("gone")));
        EXPECT_TRUE(SamePixels(Draw(Item, ODS_SELECTED), Expected("gone", clHighlight)));
        EXPECT_EQ(Item->Tag, -1);
    }
    Item->Tag = 99;
    EXPECT_TRUE(SamePixels(Draw(Item), Expected("gone"))) << "of no icon";
}

TEST_F(FolderMenuPaintTest, ALoneDashIsAnEtchedLine)
{
    for (unsigned State : {0u, unsigned{ODS_SELECTED}}) {
        TPixelImage Wanted(Width, Size);
        Wanted.Fill({2, Size / 2, Width - 2, Size / 2 + 1}, clBtnShadow);
        Wanted.Fill({2, Size / 2 + 1, Width - 2, Size / 2 + 2}, clBtnHighlight);
        TMenuItem* Line = AddItem("-");
        EXPECT_TRUE(SamePixels(Draw(Line, State), Wanted));
        EXPECT_EQ(Line->Tag, 0) << "no icon";
    }
}

TEST_F(FolderMenuPaintTest, ANameWithAnEndingLosesFourCharacters)
{
    const struct {
        const char* Name;
        const char* Shown;
    } Cases[] = {
        {"notes.txt", "notes"},
        {"page.html", "page."},
        {"Makefile", "Makefile"},
        {"program.c", "progr"},
        {"a.c", ""},
        {".git", ""},
        {".gitignore", ".gitig"},
        {"a.tar.gz", "a.ta"},
        {"отчёт.док", "отчёт"},
        {"x.отчёт", "x.о"},
        {"日本語.語", "日"},
        {"\U0001F600.\U0001F600", ""},
        {"a&b.txt", "a&b"},
        {"a&&b", "a&&b"},
        {"&x.txt", "&x"},
    };
    for (const auto& Case : Cases) {
        TMenuItem* Item = AddItem(Folder.Path() + "nowhere\\" + Case.Name);
        Item->Tag = -1;
        EXPECT_TRUE(SamePixels(Draw(Item), Expected(Case.Shown))) << Case.Name;
    }
}

TEST_F(FolderMenuPaintTest, ATextThatDoesNotFitEndsInDots)
{
    const AnsiString Name(100, 'w');
    TMenuItem* Item = AddItem(Folder.Path() + "nowhere\\" + Name);
    Item->Tag = -1;
    TPixelImage Wanted(Width, Size, clBtnFace);
    TFont Font;
    HGDIOBJ Old = SelectObject(Wanted.DC(), Font.Handle);
    SetTextColor(Wanted.DC(), ColorToRGB(clWindowText));
    SetBkColor(Wanted.DC(), ColorToRGB(clBtnFace));
    TRect Where(Size + 16, 0, Width, Size);
    DrawText(Wanted.DC(), Name, Where, DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    SelectObject(Wanted.DC(), Old);
    EXPECT_TRUE(SamePixels(Draw(Item), Wanted));
}

// ---- icons

TEST_F(FolderMenuPaintTest, TheTagIsTheIconsIndex)
{
    TMenuItem* First = AddItem(Folder.AddFile("a.txt"));
    TMenuItem* Second = AddItem(Folder.AddFile("b.txt"));
    TMenuItem* Third = AddItem(Folder.AddFile("c.bmp"));
    EXPECT_EQ(Second->Tag, 0);
    Draw(First);
    Draw(Third);
    Draw(Second);
    EXPECT_EQ(First->Tag, 0);
    EXPECT_EQ(Third->Tag, 1);
    EXPECT_EQ(Second->Tag, 2);
}

TEST_F(FolderMenuPaintTest, TheFirstIconIsFetchedOnceToo)
{
    const AnsiString Path = Folder.AddFile("a.txt");
    TMenuItem* First = AddItem(Path);
    const TPixelImage Before = Draw(First);
    // What would be fetched now is another icon, or none.
    Folder.Remove();
    for (int Time = 0; Time < 3; ++Time)
        EXPECT_TRUE(SamePixels(Draw(First), Before));
    TMenuItem* Second = AddItem(Folder.Path() + "b.txt");
    Draw(Second);
    EXPECT_EQ(Second->Tag, -1);
    EXPECT_EQ(First->Tag, 0);
}

TEST_F(FolderMenuPaintTest, AnIconIsNotFetchedForWhatIsOutOfSight)
{
    TMenuItem* Item = AddItem(Folder.AddFile("a.txt"));
    AddItem(Folder.AddFile("b.txt"));
    TPixelImage Image(Width, Size);
    DrawOn(Image, Item, 0, Size);
    DrawOn(Image, Menu->Items->Items[1], 0, 0);
    EXPECT_EQ(Menu->Items->Items[1]->Tag, 0);
    Draw(Item);
    EXPECT_EQ(Item->Tag, 1) << "the second that is seen";
}

TEST_F(FolderMenuPaintTest, DrawingAgainMakesNothing)
{
    TMenuItem* Item = AddItem(Folder.AddFile("a.txt"));
    TPixelImage Image(Width, Size);
    const auto DrawBoth = [&] {
        DrawOn(Image, Item);
        DrawOn(Image, Item, ODS_SELECTED);
    };
    ExpectNoNewSystemObjects(DrawBoth, 25);
}

TEST_F(FolderMenuPaintTest, AClearCornerLeavesTheIconWhole)
{
    TFolderIcons Icons;
    TIcon Icon;
    MakeIcon(Icon, 0);
    EXPECT_EQ(Icons.Add(&Icon), 0);
    TPixelImage Wanted(32, 32, clBtnFace);
    Wanted.Fill({8, 8, 24, 24}, clRed);
    EXPECT_TRUE(SamePixels(DrawOnFace(Icons, 0), Wanted));
}

TEST_F(FolderMenuPaintTest, TheColourOfTheCornerIsLeftOut)
{
    TFolderIcons Icons;
    TIcon Icon;
    MakeIcon(Icon, 0xFF00FF00);
    EXPECT_EQ(Icons.Add(&Icon), 0);
    TPixelImage Wanted(32, 32, clBtnFace);
    Wanted.Fill({8, 8, 24, 24}, clRed);
    EXPECT_EQ(Wanted.CountOf(Corner), 0);
    EXPECT_TRUE(SamePixels(DrawOnFace(Icons, 0), Wanted));
}

TEST_F(FolderMenuPaintTest, EveryIconOfManyIsTheRightOne)
{
    TFolderIcons Icons;
    TIcon Empty;
    EXPECT_EQ(Icons.Add(&Empty), -1);
    for (int I = 0; I < 70; ++I) {
        TIcon Icon;
        MakeIcon(Icon, I % 2 ? 0 : 0xFF000000 | static_cast<uint32_t>(I));
        EXPECT_EQ(Icons.Add(&Icon), I);
    }
    TPixelImage Wanted(32, 32, clBtnFace);
    Wanted.Fill({8, 8, 24, 24}, clRed);
    for (int I : {0, 1, 31, 32, 63, 64, 69})
        EXPECT_TRUE(SamePixels(DrawOnFace(Icons, I), Wanted)) << I;
    const TPixelImage Nothing(32, 32, clBtnFace);
    EXPECT_TRUE(SamePixels(DrawOnFace(Icons, 70), Nothing));
    EXPECT_TRUE(SamePixels(DrawOnFace(Icons, -1), Nothing));
    Icons.Reset(TFolderIcons::Small);
    EXPECT_EQ(Icons.Count(), 0);
    EXPECT_TRUE(SamePixels(DrawOnFace(Icons, 0), Nothing));
}
