#include "toolbar/TBSeparator.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "tests/toolbar/HandleTests.h"
#include "toolbar/TBDragBox.h"
#include "vcl/system/ClassDescription.h"

using testing::ElementsAre;

namespace {

class TBSeparatorTest : public testing::Test {
protected:
    // A separator without a parent keeps its size whatever its Align.
    static TPixelImage Painted(TAlign Align, int Width = 8, int Height = 8, bool Designing = false)
    {
        TkelTBSeparator Separator(nullptr);
        Separator.SetBounds(0, 0, Width, Height);
        Separator.Align = Align;
        Separator.SetDesigning(Designing);
        return PaintToBitmap(&Separator);
    }
    static void DrawDesignOutline(TPixelImage& Image)
    {
        HPEN Dots = CreatePen(PS_DOT, 1, ColorToRGB(clBtnShadow));
        HGDIOBJ OldPen = SelectObject(Image.DC(), Dots);
        HGDIOBJ OldBrush = SelectObject(Image.DC(), GetStockObject(NULL_BRUSH));
        SetBkMode(Image.DC(), TRANSPARENT);
        Rectangle(Image.DC(), 0, 0, Image.Width(), Image.Height());
        SelectObject(Image.DC(), OldPen);
        SelectObject(Image.DC(), OldBrush);
        DeleteObject(Dots);
    }

    std::unique_ptr<THostWindow> Window = std::make_unique<THostWindow>();
};

} // namespace

TEST_F(TBSeparatorTest, ANewSeparatorIs8By8WithTheHand)
{
    TkelTBSeparator Separator(nullptr);
    EXPECT_EQ(Separator.BoundsRect, TRect(0, 0, 8, 8));
    EXPECT_EQ(Separator.Cursor, 10);
    EXPECT_EQ(Separator.Align, alNone);
    EXPECT_STREQ(TkelTBSeparator::StaticClass()->ClassParent()->ClassName(), "TGraphicControl");
    EXPECT_THAT(PublishedFrom(TkelTBSeparator::StaticClass(), "Align"), ElementsAre("Align = alNone"));
    EXPECT_NE(TkelTBSeparator::StaticClass()->Description().FindProperty("Width"), nullptr);
}

TEST_F(TBSeparatorTest, ItsFormIsReadAndWritten)
{
    const std::string Text = "object Separator1: TkelTBSeparator\n"
                             "  Left = 3\n"
                             "  Top = 4\n"
                             "  Width = 9\n"
                             "  Height = 20\n"
                             "  Cursor = 10\n"
                             "  Align = alLeft\n"
                             "end\n";
    TkelTBSeparator Separator(nullptr);
    ReadFormText(&Separator, Text);
    EXPECT_EQ(FormText(&Separator), Text);
}

TEST_F(TBSeparatorTest, AlignedToASideItShowsAVerticalGroove)
{
    for (TAlign Align : {alLeft, alRight}) {
        TPixelImage Expected(8, 22, clBtnFace);
        Expected.Fill({3, 0, 4, 22}, clBtnShadow);
        Expected.Fill({4, 0, 5, 22}, clBtnHighlight);
        EXPECT_TRUE(SamePixels(Painted(Align, 8, 22), Expected));
    }
    TPixelImage Odd(11, 5, clBtnFace);
    Odd.Fill({4, 0, 5, 5}, clBtnShadow);
    Odd.Fill({5, 0, 6, 5}, clBtnHighlight);
    EXPECT_TRUE(SamePixels(Painted(alLeft, 11, 5), Odd));
}

TEST_F(TBSeparatorTest, AlignedToTopOrBottomItShowsAHorizontalGroove)
{
    for (TAlign Align : {alTop, alBottom}) {
        TPixelImage Expected(26, 9, clBtnFace);
        Expected.Fill({0, 3, 26, 4}, clBtnShadow);
        Expected.Fill({0, 4, 26, 5}, clBtnHighlight);
        EXPECT_TRUE(SamePixels(Painted(Align, 26, 9), Expected));
    }
}

TEST_F(TBSeparatorTest, OtherwiseItHasNoGroove)
{
    for (TAlign Align : {alNone, alClient})
        EXPECT_TRUE(SamePixels(Painted(Align, 10, 12), TPixelImage(10, 12, clBtnFace)));
}

TEST_F(TBSeparatorTest, OnePixelIsPaintedToo)
{
    EXPECT_TRUE(SamePixels(Painted(alLeft, 1, 1), TPixelImage(1, 1, clBtnHighlight)));
}

TEST_F(TBSeparatorTest, AtDesignTimeItIsOutlined)
{
    TPixelImage Expected(8, 22, clBtnFace);
    Expected.Fill({3, 0, 4, 22}, clBtnShadow);
    Expected.Fill({4, 0, 5, 22}, clBtnHighlight);
    DrawDesignOutline(Expected);
    EXPECT_TRUE(SamePixels(Painted(alLeft, 8, 22, true), Expected));
    TPixelImage Empty(14, 11, clBtnFace);
    DrawDesignOutline(Empty);
    EXPECT_TRUE(SamePixels(Painted(alNone, 14, 11, true), Empty));
    EXPECT_GT(Empty.CountOf(clBtnShadow), 0);
}

TEST_F(TBSeparatorTest, RepaintingMakesNoSystemObjects)
{
    auto* Separator = new TkelTBSeparator(Window.get());
    Separator->Parent = Window.get();
    Separator->Align = alLeft;
    Window->ShowNow();
    const auto PaintAll = [&] {
        for (bool Designing : {true, false}) {
            Separator->SetDesigning(Designing);
            Separator->Repaint();
        }
    };
    PaintAll();
    const int64_t Handles = LiveHandleCount(), Objects = LiveObjectCount();
    const size_t Pens = TSharedPen::KeptCount(), Brushes = TSharedBrush::KeptCount();
    PaintAll();
    EXPECT_EQ(LiveHandleCount(), Handles);
    EXPECT_EQ(LiveObjectCount(), Objects);
    EXPECT_EQ(TSharedPen::KeptCount(), Pens);
    EXPECT_EQ(TSharedBrush::KeptCount(), Brushes);
    EXPECT_TRUE(SamePixels(ScreenPixels(Separator), PaintToBitmap(Separator)));
}

TEST_F(TBSeparatorTest, PassesTheMouseOnToItsBar)
{
    ExpectPassedOn(new TkelTBSeparator(Window.get()), Window.get());
}

TEST_F(TBSeparatorTest, OnAnOrdinaryPanelItIgnoresTheMouse)
{
    ExpectIgnored(new TkelTBSeparator(Window.get()), Window.get());
}

TEST_F(TBSeparatorTest, WithoutAParentItIgnoresTheMouse)
{
    TkelTBSeparator Separator(nullptr);
    UseMouseOn(&Separator);
    EXPECT_EQ(Separator.BoundsRect, TRect(0, 0, 8, 8));
}

// ---- the cursor

namespace {

TPixelImage PixelsOfCursor(HCURSOR Cursor)
{
    TPixelImage Image(32, 32, clWhite);
    DrawIconEx(Image.DC(), 0, 0, Cursor, 32, 32, 0, nullptr, DI_NORMAL);
    return Image;
}

} // namespace

TEST(HandCursorTest, IsInSlot10OfTheScreen)
{
    HCURSOR Hand = Screen->Cursors[10];
    ASSERT_NE(Hand, nullptr);
    EXPECT_EQ(Screen->Cursors[10], Hand);
    EXPECT_TRUE(SamePixels(PixelsOfCursor(Hand), PixelsOfCursor(LoadCursorW(GetModuleHandleW(nullptr), L"HAND"))));
    EXPECT_FALSE(SamePixels(PixelsOfCursor(Hand), PixelsOfCursor(LoadCursorW(nullptr, IDC_ARROW))));
}

TEST(HandCursorTest, TheProgramsOwnCursorTakesItsPlaceUntilItGoes)
{
    const uint8_t Bits[32 * 4] = {};
    HCURSOR Own = CreateCursor(GetModuleHandleW(nullptr), 1, 1, 32, 32, Bits, Bits);
    Screen->Cursors[10] = Own;
    EXPECT_EQ(Screen->Cursors[10], Own);
    Screen->Cursors[10] = nullptr;
    EXPECT_TRUE(SamePixels(PixelsOfCursor(Screen->Cursors[10]),
                           PixelsOfCursor(LoadCursorW(GetModuleHandleW(nullptr), L"HAND"))));
}

// ---- dragging a bar

namespace {

class TBSeparatorDragTest : public TFormTest {
protected:
    enum TGrip { OnBackground, OnSeparator, OnDragBox };

    // Drags a bar along its dock, off it, about and back by what lies at that place of it. Gives what the bar did at
    // each step.
    std::vector<std::string> DragBy(TGrip Grip)
    {
        auto* Dock = new TkelDock(Form.get());
        Dock->Parent = Form.get();
        auto* Bar = new TkelToolBar(Form.get());
        Bar->AutoSave = false;
        Bar->SetBounds(30, 0, 150, 26);
        Bar->Parent = Dock;
        Bar->InsertToDock();
        if (Grip == OnSeparator) {
            auto* Separator = new TkelTBSeparator(Form.get());
            Separator->Left = 16; // behind the drag box
            Separator->Parent = Bar;
            Separator->Align = alLeft;
        }
        Show();
        const TPoint Start = Bar->ClientToScreen(TPoint(0, 0));
        TPoint Pointer = Bar->ClientToScreen(TPoint(Grip == OnDragBox ? 6 : 16, 13));
        const TControl* Pressed = Bar->ControlAtPos(Bar->ScreenToClient(Pointer), false);
        EXPECT_EQ(As<TkelTBSeparator>(Pressed) != nullptr, Grip == OnSeparator);
        EXPECT_EQ(As<TkelTBDragBox>(Pressed) != nullptr, Grip == OnDragBox);
        std::vector<std::string> Steps;
        MovePointer(Pointer);
        PressButton();
        for (const TPoint& Step : {TPoint(40, 0), {-25, 2}, {30, 120}, {-40, 30}, {20, -152}, {10, 2}}) {
            Pointer = Pointer + Step;
            MovePointer(Pointer);
            const TPoint Moved = Bar->ClientToScreen(TPoint(0, 0)) - Start;
            Steps.push_back(std::to_string(Moved.x) + "," + std::to_string(Moved.y) +
                            (Bar->Floating ? " floating" : ""));
        }
        ReleaseButton();
        EXPECT_TRUE(PumpUntil([] { return GetCapture() == nullptr; }));
        MovePointerAway();
        delete Bar;
        delete Dock;
        PumpMessages();
        return Steps;
    }
};

} // namespace

TEST_F(TBSeparatorDragTest, ASeparatorDragsItsBarAsTheBackgroundDoes)
{
    const std::vector<std::string> ByBackground = DragBy(OnBackground);
    EXPECT_EQ(ByBackground[0], "40,0");
    EXPECT_THAT(ByBackground[2], testing::HasSubstr("floating"));
    EXPECT_THAT(ByBackground.back(), testing::Not(testing::HasSubstr("floating")));
    EXPECT_EQ(DragBy(OnSeparator), ByBackground);
}

TEST_F(TBSeparatorDragTest, AndSoDoesTheDragBox)
{
    EXPECT_EQ(DragBy(OnDragBox), DragBy(OnBackground));
}

TEST_F(TBSeparatorDragTest, ThePointerIsAHandOverASeparator)
{
    auto* Separator = Add<TkelTBSeparator>();
    Separator->SetBounds(50, 50, 20, 20);
    Show();
    MovePointerTo(Separator, 5, 5);
    SendMessageW(Form->Handle, WM_SETCURSOR, reinterpret_cast<WPARAM>(Form->Handle),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), Screen->Cursors[10]);
}
