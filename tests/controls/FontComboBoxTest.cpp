#include "controls/FontComboBox.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/printers/Printer.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/SysUtils.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <set>

using testing::ElementsAre;

namespace {

class TTestFontCombo : public TkelFontComboBox {
    VCL_CLASS(TTestFontCombo, TkelFontComboBox)
public:
    using TkelFontComboBox::Click;
    using TkelFontComboBox::DrawItem;
    using TkelFontComboBox::TkelFontComboBox;
};

void TTestFontCombo::Describe(TClassBuilder<TTestFontCombo>&)
{}

bool HasPrinter()
{
    try {
        return Printer()->Handle != nullptr;
    } catch (const EPrinter&) {
        return false;
    }
}

class FontComboBoxTest : public TFormTest {
protected:
    static void SetUpTestSuite()
    {
        TFormTest::SetUpTestSuite();
        Printer(); // the program's one
    }

    // A face that is listed.
    AnsiString AnyFace()
    {
        Combo->HandleNeeded();
        return Combo->Items->Strings[Combo->Items->Count / 2];
    }

    TTestFontCombo* Combo = Add<TTestFontCombo>();
    int Changes = 0;
};

struct TBareFaces {
    std::set<std::wstring> All;
    std::set<std::wstring> TrueType;
};

TBareFaces BareFaces()
{
    TBareFaces Faces;
    const HDC Screen = GetDC(nullptr);
    EnumFontsW(
        Screen, nullptr,
        [](const LOGFONTW* Font, const TEXTMETRICW*, DWORD Type, LPARAM Data) {
            auto& Found = *reinterpret_cast<TBareFaces*>(Data);
            Found.All.insert(Font->lfFaceName);
            if (Type & TRUETYPE_FONTTYPE)
                Found.TrueType.insert(Font->lfFaceName);
            return 1;
        },
        reinterpret_cast<LPARAM>(&Faces));
    ReleaseDC(nullptr, Screen);
    return Faces;
}

} // namespace

TEST_F(FontComboBoxTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TkelFontComboBox::StaticClass(), "Device"),
                ElementsAre("Device = fdScreen", "FontName", "Options = []", "TrueTypeOnly"));
}

TEST_F(FontComboBoxTest, ListsEachFaceOfTheScreenOnceInOrder)
{
    Combo->HandleNeeded();
    EXPECT_TRUE(Combo->Sorted);
    const TBareFaces Faces = BareFaces();
    EXPECT_EQ(Combo->Items->Count, std::ssize(Faces.All));
    for (int I = 0; I < Combo->Items->Count; ++I) {
        EXPECT_TRUE(Faces.All.contains(ToWide(Combo->Items->Strings[I])));
        if (I > 0)
            EXPECT_LT(AnsiCompareText(Combo->Items->Strings[I - 1], Combo->Items->Strings[I]), 0);
    }
}

TEST_F(FontComboBoxTest, OptionsLeaveFacesOut)
{
    Combo->HandleNeeded();
    const TBareFaces Faces = BareFaces();
    Combo->Options = {foTrueTypeOnly};
    EXPECT_EQ(Combo->Items->Count, std::ssize(Faces.TrueType));
    for (int I = 0; I < Combo->Items->Count; ++I)
        EXPECT_NE(reinterpret_cast<uintptr_t>(Combo->Items->Objects[I]) & TRUETYPE_FONTTYPE, 0u);
    Combo->Options = {foOEMFontsOnly, foNoOEMFonts};
    EXPECT_EQ(Combo->Items->Count, 0);
    Combo->Options = {foOEMFontsOnly, foAnsiOnly};
    EXPECT_EQ(Combo->Items->Count, 0);
    Combo->Options = {};
    EXPECT_EQ(Combo->Items->Count, std::ssize(Faces.All));
}

TEST_F(FontComboBoxTest, WithoutAPrinterItHasNoFonts)
{
    if (HasPrinter())
        GTEST_SKIP() << "there is a printer";
    Combo->HandleNeeded();
    const int OfScreen = Combo->Items->Count;
    Combo->Device = fdPrinter;
    EXPECT_EQ(Combo->Items->Count, 0);
    Combo->Device = fdBoth;
    EXPECT_EQ(Combo->Items->Count, OfScreen);
}

TEST_F(FontComboBoxTest, TheNameIsFoundWhateverItsCase)
{
    const AnsiString Face = AnyFace();
    Combo->OnChange = [this](TObject*) { ++Changes; };
    Combo->FontName = AnsiLowerCase(Face);
    EXPECT_EQ(Combo->FontName, Face);
    EXPECT_EQ(Changes, 1);
    Combo->FontName = Face;
    EXPECT_EQ(Changes, 1);
    Combo->FontName = "No such face";
    EXPECT_EQ(Combo->FontName, "");
    EXPECT_EQ(Combo->ItemIndex, -1);
    EXPECT_EQ(Changes, 2);
}

TEST_F(FontComboBoxTest, ANameSetEarlyWaitsForTheList)
{
    const AnsiString Face = AnyFace();
    std::unique_ptr<TkelFontComboBox> Early = std::make_unique<TkelFontComboBox>(nullptr);
    Early->FontName = Face;
    EXPECT_EQ(Early->FontName, Face);
    Early->Parent = Form.get();
    Early->HandleNeeded();
    EXPECT_EQ(Early->FontName, Face);
    EXPECT_GE(Early->ItemIndex, 0);
    Early->Parent = nullptr;
    EXPECT_EQ(Early->FontName, Face);
}

TEST_F(FontComboBoxTest, TheFaceStaysWhenTheListIsMadeAnew)
{
    const AnsiString Face = AnyFace();
    Combo->FontName = Face;
    Combo->OnChange = [this](TObject*) { ++Changes; };
    Combo->TrueTypeOnly = true;
    EXPECT_TRUE(Combo->Options.Contains(foTrueTypeOnly));
    Combo->TrueTypeOnly = false;
    Combo->Perform(WM_FONTCHANGE);
    const bool IsTrueType = BareFaces().TrueType.contains(ToWide(Face));
    EXPECT_EQ(Combo->FontName, IsTrueType ? Face : "");
    EXPECT_EQ(Changes, IsTrueType ? 0 : 1);
}

TEST_F(FontComboBoxTest, AFaceThatIsNoLongerListedIsTold)
{
    Combo->FontName = AnyFace();
    Combo->OnChange = [this](TObject*) {
        ++Changes;
        EXPECT_EQ(Combo->FontName, "");
    };
    Combo->Options = {foOEMFontsOnly, foAnsiOnly};
    EXPECT_EQ(Changes, 1);
}

TEST_F(FontComboBoxTest, EveryChoiceOfTheUserTellsOnce)
{
    Combo->FontName = AnyFace();
    Show();
    Combo->SetFocus();
    Combo->OnChange = [this](TObject*) { ++Changes; };
    TypeKey(VK_DOWN);
    EXPECT_EQ(Changes, 1);
    Combo->Click(); // the same face again
    EXPECT_EQ(Changes, 2);
}

TEST_F(FontComboBoxTest, ChoosingTheSameFaceFromTheListTells)
{
    Combo->FontName = AnyFace();
    Combo->Width = 200;
    Show();
    Combo->SetFocus();
    Combo->OnChange = [this](TObject*) { ++Changes; };
    TypeKey(VK_F4);
    ASSERT_TRUE(Combo->DroppedDown);
    TypeKey(VK_RETURN);
    EXPECT_FALSE(Combo->DroppedDown);
    Combo->DroppedDown = true;
    PumpMessages();
    COMBOBOXINFO Info{};
    Info.cbSize = sizeof Info;
    GetComboBoxInfo(Combo->Handle, &Info);
    TRect Item;
    SendMessageW(Info.hwndList, LB_GETITEMRECT, Combo->ItemIndex, reinterpret_cast<LPARAM>(&Item));
    TPoint Place(Item.Left + 5, Item.Top + 5);
    ClientToScreen(Info.hwndList, &Place);
    MovePointer(Place);
    ClickButton();
    EXPECT_FALSE(Combo->DroppedDown);
    EXPECT_EQ(Changes, 1);
}

TEST_F(FontComboBoxTest, GlyphsMarkTrueTypeFonts)
{
    constexpr int Width = 160;
    constexpr int Height = 20;
    Combo->HandleNeeded();
    Combo->Sorted = false;
    Combo->Items->Clear();
    for (const int Type : {RASTER_FONTTYPE, DEVICE_FONTTYPE, TRUETYPE_FONTTYPE | DEVICE_FONTTYPE})
        Combo->Items->AddObject("Face", reinterpret_cast<TObject*>(static_cast<intptr_t>(Type)));
    const char* Glyphs[] = {nullptr, "KEL_PRN_FONT", "KEL_TTF_FONT"};
    for (int Index = 0; Index < 3; ++Index) {
        TPixelImage Painted(Width, Height);
        Combo->Canvas->Handle = Painted.DC();
        Combo->Canvas->Font = Combo->Font;
        Combo->Canvas->Brush->Color = clWindow;
        Combo->DrawItem(Index, TRect(0, 0, Width, Height), {});
        Combo->Canvas->Handle = nullptr;

        TPixelImage Expected(Width, Height, clWindow);
        if (Glyphs[Index]) {
            TBitmap Glyph;
            Glyph.LoadFromResourceName(GetModuleHandleW(nullptr), Glyphs[Index]);
            ASSERT_EQ(Glyph.Width, 20);
            ASSERT_EQ(Glyph.Height, 12);
            const TColor Background = Glyph.Canvas->Pixels[0][11];
            for (int Y = 0; Y < 12; ++Y)
                for (int X = 0; X < 20; ++X)
                    if (const TColor Pixel = Glyph.Canvas->Pixels[X][Y]; Pixel != Background)
                        Expected.Set(2 + X, (Height - 12) / 2 + Y, Pixel);
        }
        DrawExpectedText(Expected, "Face", {26, 0, Width, Height}, Combo->Font, clWindowText,
                         DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        EXPECT_TRUE(SamePixels(Painted, Expected)) << Index;
    }
}

TEST_F(FontComboBoxTest, ItemsAreNotLowerThanTheGlyph)
{
    Combo->Font->Height = -3;
    EXPECT_EQ(Combo->ItemHeight, 11);
}
