#include "menus/ColorComboButton.h"

#include "robot/WhileMenuOpen.h"
#include "tests/menus/MenuScript.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "tests/support/Strips.h"
#include "toolbar/ToolBar.h"
#include "vcl/system/LiveCount.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class ColorComboButtonTest : public testing::Test {
protected:
    void SetUp() override
    {
        MovePointerAway();
        TBitmap Bitmap;
        FillStrip(&Bitmap, 16, 16);
        auto* Glyphs = new TkelGlyphs(Window.get());
        Glyphs->Picture->Bitmap = &Bitmap;
        Combo = new TkelColorComboButton(Window.get());
        Combo->Left = 100;
        Combo->Parent = Window.get();
        Combo->Glyphs = Glyphs;
        Combo->OnChange = [this](TObject* Sender) { Changes += Sender == Combo; };
    }
    TPixelImage MainHalf() { return PaintToBitmap(Combo).Part({0, 0, 22, 22}); }
    // The glyph moves up to make room for the band.
    TPixelImage FaceWithGlyph()
    {
        TPixelImage Image(22, 22, clBtnFace);
        DrawExpectedCell(Image, 3, 1, {0, 0, 16, 16});
        return Image;
    }

    std::unique_ptr<THostWindow> Window = std::make_unique<THostWindow>();
    TkelColorComboButton* Combo = nullptr;
    int Changes = 0;
    static constexpr TRect Band{3, 17, 19, 20};
};

} // namespace

TEST_F(ColorComboButtonTest, PublishesTheColourAndItsChange)
{
    EXPECT_THAT(PublishedFrom(TkelColorComboButton::StaticClass(), "OnListDown"),
                ElementsAre("OnListDown", "CurrentColor", "OnChange"));
    EXPECT_EQ(Combo->CurrentColor, clBlack);
    Combo->Name = "Combo1";
    Combo->CurrentColor = clTeal;
    EXPECT_THAT(FormText(Combo), HasSubstr("  CurrentColor = clTeal\n"));
}

TEST_F(ColorComboButtonTest, OnChangeIsRaisedWhenTheColourChanges)
{
    Combo->CurrentColor = clBlack;
    EXPECT_EQ(Changes, 0);
    Combo->CurrentColor = clRed;
    EXPECT_EQ(Changes, 1);
    Combo->CurrentColor = clRed;
    EXPECT_EQ(Changes, 1);
    Combo->CurrentColor = clNone;
    EXPECT_EQ(Changes, 2);
}

TEST_F(ColorComboButtonTest, ReadingAFormRaisesNoOnChange)
{
    TkelColorComboButton Read(nullptr);
    int Raised = 0;
    Read.OnChange = [&](TObject*) { ++Raised; };
    ReadFormText(&Read, "object Combo2: TkelColorComboButton\n  CurrentColor = clLime\nend\n");
    EXPECT_EQ(Read.CurrentColor, clLime);
    EXPECT_EQ(Raised, 0);
}

TEST_F(ColorComboButtonTest, TheColourIsABandBelowTheGlyph)
{
    Combo->CurrentColor = clRed;
    TPixelImage Expected = FaceWithGlyph();
    Expected.Fill(Band, clRed);
    EXPECT_TRUE(SamePixels(MainHalf(), Expected));
    Combo->CurrentColor = clHighlight;
    Expected.Fill(Band, clHighlight);
    EXPECT_TRUE(SamePixels(MainHalf(), Expected));
}

TEST_F(ColorComboButtonTest, NoColourIsAnEmptyFrame)
{
    Combo->CurrentColor = clNone;
    TPixelImage Expected = FaceWithGlyph();
    Expected.Frame(Band, clBtnShadow, clBtnShadow);
    EXPECT_TRUE(SamePixels(MainHalf(), Expected));
}

TEST_F(ColorComboButtonTest, DisabledTheBandIsEmbossed)
{
    Combo->CurrentColor = clRed;
    Combo->Enabled = false;
    TPixelImage Expected(22, 22, clBtnFace);
    Expected.Fill({4, 18, 20, 21}, clBtnHighlight);
    Expected.Fill(Band, clBtnShadow);
    DrawExpectedEmbossed(Expected, 3, 1, {0, 0, 16, 16});
    EXPECT_TRUE(SamePixels(MainHalf(), Expected));
}

TEST_F(ColorComboButtonTest, TheBandIsAsWideAsTheButtonAndStaysAtItsFoot)
{
    Combo->Glyphs = nullptr;
    Combo->CurrentColor = clBlue;
    Combo->SetBounds(100, 0, 60, 30);
    TPixelImage Expected(45, 30, clBtnFace);
    Expected.Fill({3, 25, 42, 28}, clBlue);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Combo).Part({0, 0, 45, 30}), Expected));
    Combo->SetBounds(100, 0, 6, 22); // no room for it
    EXPECT_EQ(PaintToBitmap(Combo).CountOf(clBlue), 0);
}

TEST_F(ColorComboButtonTest, AChangeRepaintsTheMainHalfAtOnceAndMakesNoSystemObjects)
{
    Window->ShowNow();
    Combo->CurrentColor = clRed;
    EXPECT_EQ(ScreenPixels(Combo).At(5, 18), clRed);
    const int64_t Handles = LiveHandleCount(), Objects = LiveObjectCount();
    const size_t Pens = TSharedPen::KeptCount(), Brushes = TSharedBrush::KeptCount();
    for (TColor Color : {clLime, clNone, clTeal}) {
        Combo->CurrentColor = Color;
        Combo->Repaint();
    }
    EXPECT_EQ(ScreenPixels(Combo).At(5, 18), clTeal);
    EXPECT_EQ(LiveHandleCount(), Handles);
    EXPECT_EQ(LiveObjectCount(), Objects);
    EXPECT_EQ(TSharedPen::KeptCount(), Pens);
    EXPECT_EQ(TSharedBrush::KeptCount(), Brushes);
}

// ---- the menu

TEST_F(ColorComboButtonTest, ItHasAMenuOfTheSixteenColours)
{
    ASSERT_NE(Combo->ColorMenu, nullptr);
    EXPECT_EQ(Combo->ColorMenu->Owner, Combo);
    EXPECT_EQ(Combo->ColorMenu->Items->Count, 16);
    Combo->Name = "Combo1";
    EXPECT_THAT(FormText(Window.get()), Not(HasSubstr("TkelColorMenu"))) << "it is the button's own";
}

TEST_F(ColorComboButtonTest, TheColourIsTheMenus)
{
    Combo->CurrentColor = clTeal;
    EXPECT_EQ(Combo->ColorMenu->CurrentColor, clTeal);
    Combo->ColorMenu->CurrentColor = clNavy;
    EXPECT_EQ(Combo->CurrentColor, clNavy);
}

TEST_F(ColorComboButtonTest, AChoiceInTheMenuRaisesOnChangeAndShowsInTheBand)
{
    Window->ShowNow();
    TMenuItem* Teal = Combo->ColorMenu->Items->Items[Combo->ColorMenu->ColorToIndex(clTeal)];
    Teal->Click();
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(Combo->CurrentColor, clTeal);
    EXPECT_EQ(ScreenPixels(Combo).At(5, 18), clTeal);
    Teal->Click();
    EXPECT_EQ(Changes, 2) << "to apply the same colour once more";
}

TEST_F(ColorComboButtonTest, InTheDesignerThereIsNoMenuAndTheFormKeepsItsColour)
{
    Window->SetDesigning(true);
    ReadFormText(Window.get(), "object Window1: THostWindow\n  object Combo2: TkelColorComboButton\n"
                               "    CurrentColor = clLime\n  end\nend\n");
    auto* Designed = As<TkelColorComboButton>(Window->FindComponent("Combo2"));
    ASSERT_NE(Designed, nullptr);
    EXPECT_EQ(Designed->ColorMenu, nullptr);
    EXPECT_EQ(Designed->CurrentColor, clBlack);
    EXPECT_THAT(FormText(Designed), HasSubstr("  CurrentColor = clLime\n"));
    EXPECT_EQ(PaintToBitmap(Designed).At(5, 18), clLime);
    Designed->CurrentColor = clNavy;
    EXPECT_EQ(Designed->CurrentColor, clBlack);
    EXPECT_THAT(FormText(Designed), HasSubstr("  CurrentColor = clNavy\n"));
    Designed->ArrowButton()->Click();
    EXPECT_FALSE(Designed->ArrowButton()->Down);
}

namespace {

// On the screen, under a real mouse and keyboard.
class ColorComboButtonFormTest : public TFormTest {
protected:
    static void SetUpTestSuite() { MakeWhatMenusShare(); }
    ColorComboButtonFormTest()
    {
        Combo->SetBounds(40, 30, 33, 22);
        Combo->OnChange = [this](TObject*) { Events.push_back("change"); };
        Combo->OnListDown = [this](TObject*) { Events.push_back("list"); };
        Combo->OnButtonClick = [this](TObject*) { Events.push_back("button"); };
    }

    // Clicks on the arrow and does Action with the menu that opens.
    void DropDownWith(const std::function<void()>& Action)
    {
        TWhileMenuOpen WhileOpen(Action);
        ClickOn(Combo->ArrowButton());
        PumpMessages();
        EXPECT_FALSE(WhileOpen.TimedOut);
    }
    // Opens the menu at the lower left corner and chooses the second colour.
    void ChooseTheSecond()
    {
        TRect Opened;
        DropDownWith([&] {
            GetWindowRect(FindWindowW(L"#32768", nullptr), &Opened);
            SendKey(VK_DOWN);
            SendKey(VK_DOWN);
            SendKey(VK_RETURN);
        });
        EXPECT_EQ(TPoint(Opened.left, Opened.top), Combo->ClientToScreen(TPoint(0, Combo->Height)));
        EXPECT_THAT(Events, ElementsAre("list", "change"));
        EXPECT_EQ(Combo->CurrentColor, clMaroon);
        Events.clear();
    }

    TkelColorComboButton* Combo = Add<TkelColorComboButton>();
    std::vector<std::string> Events;
};

} // namespace

TEST_F(ColorComboButtonFormTest, TheArrowStaysDownWhileTheMenuIsOpen)
{
    Show();
    bool WasDown = false;
    DropDownWith([&] {
        WasDown = Combo->ArrowButton()->Down;
        SendKey(VK_ESCAPE);
    });
    EXPECT_TRUE(WasDown);
    EXPECT_FALSE(Combo->ArrowButton()->Down);
    EXPECT_THAT(Events, ElementsAre("list"));
    EXPECT_EQ(Combo->CurrentColor, clBlack);
}

TEST_F(ColorComboButtonFormTest, AColourIsChosenFromTheMenuBelowTheButton)
{
    Show();
    ChooseTheSecond();
    EXPECT_EQ(ScreenPixels(Combo).At(5, 18), clMaroon);
}

TEST_F(ColorComboButtonFormTest, TheMenuOpensWithTheButtonsColourChecked)
{
    Combo->CurrentColor = clOlive;
    Events.clear();
    Show();
    DropDownWith([&] {
        const int Index = Combo->ColorMenu->ColorToIndex(clOlive);
        EXPECT_TRUE(Combo->ColorMenu->Items->Items[Index]->Checked);
        SendKey(VK_ESCAPE);
    });
}

TEST_F(ColorComboButtonFormTest, AClickOnTheArrowClosesTheMenuAndDoesNothingElse)
{
    Show();
    DropDownWith([] {
        SendButton(mbLeft, true);
        SendButton(mbLeft, false);
    });
    PumpMessages();
    EXPECT_FALSE(TWhileMenuOpen::IsOpen());
    EXPECT_FALSE(Combo->ArrowButton()->Down);
    EXPECT_THAT(Events, ElementsAre("list"));
}

TEST_F(ColorComboButtonFormTest, UprightTheMenuIsBelowTheWhole)
{
    Combo->SetBounds(40, 30, 22, 33);
    Show();
    ChooseTheSecond();
}

TEST_F(ColorComboButtonFormTest, ItWorksOnABarThatFloats)
{
    auto* Dock = Add<TkelDock>();
    auto* Bar = new TkelToolBar(Form.get());
    Bar->AutoSave = false;
    Bar->Caption = "Colours";
    Bar->SetBounds(0, 0, 100, 26);
    Bar->Parent = Dock;
    Combo->Align = alLeft;
    Combo->Parent = Bar;
    Bar->InsertToDock();
    Show();
    ChooseTheSecond();
    Bar->FloatToPos(600, 300);
    ASSERT_TRUE(Bar->Floating);
    Combo->CurrentColor = clBlack;
    Events.clear();
    ChooseTheSecond();
}

// ---- going while the menu is open

TEST_F(ColorComboButtonFormTest, TheButtonMayGoWhileItsMenuIsOpen)
{
    Show();
    DropDownWith([&] { delete Combo; });
    EXPECT_FALSE(TWhileMenuOpen::IsOpen());
    EXPECT_THAT(Events, ElementsAre());
}

TEST_F(ColorComboButtonFormTest, TheFormMayGoWhileTheMenuIsOpen)
{
    Show();
    DropDownWith([&] { Form.reset(); });
    EXPECT_FALSE(TWhileMenuOpen::IsOpen());
    EXPECT_THAT(Events, ElementsAre());
}

TEST_F(ColorComboButtonFormTest, TheButtonMayGoWithTheChoice)
{
    Show();
    Combo->OnChange = [this](TObject*) { delete std::exchange(Combo, nullptr); };
    DropDownWith([] {
        SendKey(VK_DOWN);
        SendKey(VK_RETURN);
    });
    EXPECT_EQ(Combo, nullptr);
}
