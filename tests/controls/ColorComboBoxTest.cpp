#include "controls/ColorComboBox.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/system/ClassBuilder.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

// Hands out what the drawing of an item needs.
class TTestColorCombo : public TkelColorComboBox {
    VCL_CLASS(TTestColorCombo, TkelColorComboBox)
public:
    using TkelColorComboBox::DrawItem;
    using TkelColorComboBox::TkelColorComboBox;
};

void TTestColorCombo::Describe(TClassBuilder<TTestColorCombo>&)
{}

class ColorComboBoxTest : public TFormTest {
protected:
    static constexpr int Width = 80;
    static constexpr int Height = 18;

    // The item at Index, drawn as the window would at rest.
    TPixelImage Draw(int Index)
    {
        TPixelImage Image(Width, Height);
        Combo->HandleNeeded();
        Combo->Canvas->Handle = Image.DC();
        Combo->Canvas->Font = Combo->Font;
        Combo->Canvas->Brush->Color = clWindow;
        Combo->DrawItem(Index, TRect(0, 0, Width, Height), {});
        EXPECT_EQ(Combo->Canvas->Brush->Color, clWindow);
        Combo->Canvas->Handle = nullptr;
        return Image;
    }
    static void Swatch(TPixelImage& Image, const TRect& R, TColor Color)
    {
        Image.Frame(R, clBlack, clBlack);
        Image.Fill({R.Left + 1, R.Top + 1, R.Right - 1, R.Bottom - 1}, Color);
    }

    TTestColorCombo* Combo = Add<TTestColorCombo>();
    int Changes = 0;
};

} // namespace

TEST_F(ColorComboBoxTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TkelColorComboBox::StaticClass(), "ColorValue"),
                ElementsAre("ColorValue = clBlack", "DisplayNames = True"));
}

TEST_F(ColorComboBoxTest, ListsTheSixteenColoursByName)
{
    Combo->HandleNeeded();
    EXPECT_EQ(Combo->Style, csOwnerDrawFixed);
    EXPECT_EQ(Combo->Items->CommaText, "Black,Maroon,Green,Olive,Navy,Purple,Teal,Gray,Silver,Red,Lime,Yellow,Blue,"
                                       "Fuchsia,Aqua,White");
    EXPECT_EQ(reinterpret_cast<intptr_t>(Combo->Items->Objects[12]), 0xFF0000);
    EXPECT_EQ(Combo->ItemIndex, 0);
}

TEST_F(ColorComboBoxTest, SettingAColourChoosesItAndTells)
{
    Combo->HandleNeeded();
    Combo->OnChange = [this](TObject*) {
        ++Changes;
        EXPECT_EQ(Combo->ColorValue, clRed);
    };
    Combo->ColorValue = clRed;
    EXPECT_EQ(Combo->ItemIndex, 9);
    EXPECT_EQ(Changes, 1);
    Combo->ColorValue = clRed;
    EXPECT_EQ(Changes, 1);
    Combo->ItemIndex = -1; // the same colour is chosen anew
    Combo->ColorValue = clRed;
    EXPECT_EQ(Combo->ItemIndex, 9);
    EXPECT_EQ(Changes, 2);
}

TEST_F(ColorComboBoxTest, AColourThatIsNotListedIsIgnored)
{
    for (bool WithWindow : {false, true}) {
        if (WithWindow)
            Combo->HandleNeeded();
        Combo->ColorValue = clTeal;
        Combo->ColorValue = TColor(0x123456);
        EXPECT_EQ(Combo->ColorValue, clTeal);
        Combo->ColorValue = clBtnFace;
        EXPECT_EQ(Combo->ColorValue, clTeal);
    }
    EXPECT_EQ(Combo->ItemIndex, 6);
}

TEST_F(ColorComboBoxTest, AColourSetWithoutAWindowIsChosenInIt)
{
    Combo->ColorValue = clNavy;
    Combo->HandleNeeded();
    EXPECT_EQ(Combo->ItemIndex, 4);
    EXPECT_EQ(Combo->ColorValue, clNavy);
    Combo->Font->Size = 14; // a new window
    EXPECT_EQ(Combo->ItemIndex, 4);
    EXPECT_EQ(Combo->Items->Count, 16);
}

TEST_F(ColorComboBoxTest, TheUsersChoiceTellsOnceWithTheNewColour)
{
    Show();
    Combo->SetFocus();
    Combo->OnChange = [this](TObject*) {
        ++Changes;
        EXPECT_EQ(Combo->ColorValue, clMaroon);
    };
    Combo->OnClick = [this](TObject*) { EXPECT_EQ(Combo->ColorValue, clMaroon); };
    TypeKey(VK_DOWN);
    EXPECT_EQ(Combo->ColorValue, clMaroon);
    EXPECT_EQ(Changes, 1);
}

TEST_F(ColorComboBoxTest, MayBeDeletedInItsOwnEvents)
{
    Combo->HandleNeeded();
    Combo->OnChange = [this](TObject*) { delete Combo; };
    Combo->ColorValue = clRed;
    EXPECT_EQ(Form->ControlCount, 0);
}

TEST_F(ColorComboBoxTest, ItemsAreAsHighAsTheFontButNotLessThanNine)
{
    TEXTMETRICW Metrics;
    const HDC Screen = GetDC(nullptr);
    const HGDIOBJ Old = SelectObject(Screen, Combo->Font->Handle);
    GetTextMetricsW(Screen, &Metrics);
    SelectObject(Screen, Old);
    ReleaseDC(nullptr, Screen);
    Combo->Perform(CM_FONTCHANGED);
    EXPECT_EQ(Combo->ItemHeight, Metrics.tmHeight + 1);
    Combo->Font->Height = -3;
    EXPECT_EQ(Combo->ItemHeight, 9);
}

TEST_F(ColorComboBoxTest, AnItemIsASwatchAndAName)
{
    TPixelImage Expected(Width, Height, clWindow);
    Swatch(Expected, {2, 2, 24, Height - 2}, clRed);
    DrawExpectedText(Expected, "Red", {28, 0, Width, Height}, Combo->Font, clWindowText,
                     DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    EXPECT_TRUE(SamePixels(Draw(9), Expected));
}

TEST_F(ColorComboBoxTest, WithoutNamesTheSwatchFillsTheItem)
{
    Combo->DisplayNames = false;
    TPixelImage Expected(Width, Height, clWindow);
    Swatch(Expected, {2, 2, Width - 3, Height - 2}, clYellow);
    EXPECT_TRUE(SamePixels(Draw(11), Expected));
}

TEST_F(ColorComboBoxTest, WhatIsNoItemIsOnlyFilled)
{
    EXPECT_TRUE(SamePixels(Draw(-1), TPixelImage(Width, Height, clWindow)));
}

TEST_F(ColorComboBoxTest, AFormKeepsTheColour)
{
    Combo->ColorValue = clAqua;
    Combo->DisplayNames = false;
    const std::string Text = FormText(Combo);
    EXPECT_THAT(Text, testing::HasSubstr("ColorValue = clAqua"));
    EXPECT_THAT(Text, testing::HasSubstr("DisplayNames = False"));
}
