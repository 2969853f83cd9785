#include "common/Panel.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/extctrls/Shape.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

constexpr int W = 80, H = 50;

class CustomPanelTest : public testing::Test {
protected:
    void SetUp() override
    {
        Panel->Parent = Window.get();
        Panel->SetBounds(20, 30, W, H);
        Panel->BevelOuter = bvNone;
        Panel->HandleNeeded(); // children are only aligned on a window
    }

    TPixelImage Face() { return TPixelImage(W, H, clBtnFace); }
    TkelPanel* AddChild(TAlign Align)
    {
        auto* Child = new TkelPanel(Window.get());
        Child->SetBounds(5, 5, 10, 10);
        Child->Parent = Panel;
        Child->Align = Align;
        return Child;
    }
    int TextHeight(std::string_view Text, int Width)
    {
        TPixelImage Scratch(1, 1);
        HGDIOBJ Old = SelectObject(Scratch.DC(), Panel->Font->Handle);
        TRect R(0, 0, Width, 0);
        DrawText(Scratch.DC(), Text, R, DT_CALCRECT | DT_EXPANDTABS | DT_WORDBREAK);
        SelectObject(Scratch.DC(), Old);
        return R.Height();
    }

    std::unique_ptr<THostWindow> Window = std::make_unique<THostWindow>();
    TkelPanel* Panel = new TkelPanel(Window.get());
};

constexpr unsigned CaptionFlags = DT_EXPANDTABS | DT_WORDBREAK;

} // namespace

// ---- what is streamed

TEST_F(CustomPanelTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TkelPanel::StaticClass(), "BevelSides"),
                ElementsAre("BevelSides = [sdLeft,sdTop,sdRight,sdBottom]", "BorderColor = clBtnFace", "BorderSides",
                            "VerticalAlignment = vaCenter", "Transparent", "ShowCaption", "Align = alNone",
                            "Alignment = taCenter", "BevelInner = bvNone", "BevelOuter = bvRaised", "BevelWidth = 1",
                            "BorderStyle = bsNone", "BorderWidth = 0", "Locked = False", "DragCursor = crDrag",
                            "Enabled = True", "Caption", "Color = clBtnFace", "Ctl3D", "Font", "ParentColor = False",
                            "ParentCtl3D = True", "ParentFont = True", "ParentShowHint = True", "PopupMenu", "ShowHint",
                            "TabOrder = -1", "TabStop = False", "Visible = True", "OnClick", "OnDblClick", "OnDragDrop",
                            "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnMouseDown", "OnMouseMove", "OnMouseUp",
                            "OnResize"));
}

TEST_F(CustomPanelTest, WritesWhatHasNoDefaultAndWhatDiffers)
{
    TkelPanel Fresh(nullptr);
    Fresh.Name = "Panel1";
    Fresh.Caption = "";
    EXPECT_EQ(FormText(&Fresh), "object Panel1: TkelPanel\n"
                                "  Left = 0\n"
                                "  Top = 0\n"
                                "  Width = 185\n"
                                "  Height = 41\n"
                                "  BorderSides = []\n"
                                "  Transparent = False\n"
                                "  ShowCaption = True\n"
                                "end\n");
}

TEST_F(CustomPanelTest, AFullFormIsReadAndWrittenUnchanged)
{
    const std::string Text = "object Panel1: TkelPanel\n"
                             "  Left = 1\n"
                             "  Top = 2\n"
                             "  Width = 100\n"
                             "  Height = 60\n"
                             "  BevelSides = [sdLeft, sdBottom]\n"
                             "  BorderColor = clRed\n"
                             "  BorderSides = [sdTop]\n"
                             "  VerticalAlignment = vaBottom\n"
                             "  Transparent = True\n"
                             "  ShowCaption = False\n"
                             "  Align = alTop\n"
                             "  Alignment = taRightJustify\n"
                             "  BevelInner = bvLowered\n"
                             "  BevelOuter = bvNone\n"
                             "  BevelWidth = 3\n"
                             "  BorderStyle = bsSingle\n"
                             "  BorderWidth = 4\n"
                             "  Locked = True\n"
                             "  Caption = 'Text'\n"
                             "  Color = clNavy\n"
                             "end\n";
    TkelPanel Read(nullptr);
    ReadFormText(&Read, Text);
    EXPECT_EQ(FormText(&Read), Text);
}

// ---- painting

TEST_F(CustomPanelTest, WithoutBevelsThePanelIsItsColour)
{
    Panel->Color = clTeal;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), TPixelImage(W, H, clTeal)));
}

TEST_F(CustomPanelTest, ARaisedBevelIsLightOnTopAndDarkBelow)
{
    Panel->BevelOuter = bvRaised;
    TPixelImage Expected = Face();
    Expected.Frame({0, 0, W, H}, clBtnHighlight, clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
}

TEST_F(CustomPanelTest, ALoweredBevelIsDarkOnTopAndLightBelow)
{
    Panel->BevelOuter = bvLowered;
    TPixelImage Expected = Face();
    Expected.Frame({0, 0, W, H}, clBtnShadow, clBtnHighlight);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
}

TEST_F(CustomPanelTest, FromOutsideToInsideComeOuterBevelRingAndInnerBevel)
{
    Panel->BevelOuter = bvRaised;
    Panel->BevelInner = bvLowered;
    Panel->BevelWidth = 2;
    Panel->BorderWidth = 3;
    Panel->BorderColor = clMaroon;
    TPixelImage Expected = Face();
    for (int I = 0; I < 2; ++I)
        Expected.Frame({I, I, W - I, H - I}, clBtnHighlight, clBtnShadow);
    for (int I = 2; I < 5; ++I)
        Expected.Frame({I, I, W - I, H - I}, clMaroon, clMaroon);
    for (int I = 5; I < 7; ++I)
        Expected.Frame({I, I, W - I, H - I}, clBtnShadow, clBtnHighlight);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
}

TEST_F(CustomPanelTest, WithoutRightAndBottomSideOnlyTheTopLeftHalfOfABevelIsDrawn)
{
    Panel->BevelOuter = bvRaised;
    Panel->BevelWidth = 2;
    Panel->BevelSides = {sdLeft, sdTop};
    TPixelImage Expected = Face();
    for (int I = 0; I < 2; ++I) {
        Expected.Fill({I, I, W - I, I + 1}, clBtnHighlight);
        Expected.Fill({I, I, I + 1, H - I}, clBtnHighlight);
    }
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
}

TEST_F(CustomPanelTest, TheContentShrinksOnAllSidesWhicheverAreDrawn)
{
    Panel->BevelOuter = bvRaised;
    Panel->BevelWidth = 2;
    Panel->BevelSides = {sdLeft, sdTop};
    Panel->VerticalAlignment = vaTop;
    Panel->Alignment = taRightJustify;
    Panel->Caption = "Right";
    TPixelImage Expected = Face();
    for (int I = 0; I < 2; ++I) {
        Expected.Fill({I, I, W - I, I + 1}, clBtnHighlight);
        Expected.Fill({I, I, I + 1, H - I}, clBtnHighlight);
    }
    DrawExpectedText(Expected, "Right", {2, 2, W - 2, H - 2}, Panel->Font, Panel->Font->Color, CaptionFlags | DT_RIGHT);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
}

TEST_F(CustomPanelTest, EachBorderSideIsOneBlackLineOutsideOfTheBevels)
{
    for (uint32_t Bits = 0; Bits < 16; ++Bits) {
        SCOPED_TRACE(Bits);
        const TSides Sides = TSides::FromBits(Bits);
        Panel->BorderSides = Sides;
        Panel->BevelOuter = bvRaised;
        TPixelImage Expected = Face();
        const TRect Inside(Sides.Contains(sdLeft), Sides.Contains(sdTop), W - Sides.Contains(sdRight),
                           H - Sides.Contains(sdBottom));
        Expected.Fill({0, 0, W, H}, clBlack);
        Expected.Fill(Inside, clBtnFace);
        Expected.Frame(Inside, clBtnHighlight, clBtnShadow);
        EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
        EXPECT_EQ(Panel->ClientRect, Inside);
    }
}

TEST_F(CustomPanelTest, ABottomBorderMakesTheClientAreaOnePixelShorter)
{
    Panel->BorderSides = {sdBottom};
    EXPECT_EQ(Panel->ClientHeight, H - 1);
    EXPECT_EQ(Panel->ClientWidth, W);
    const TPixelImage Painted = PaintToBitmap(Panel);
    EXPECT_EQ(Painted.CountOf(clBlack), W);
    EXPECT_EQ(Painted.At(0, H - 1), clBlack);
}

TEST_F(CustomPanelTest, WidthsBelowOneDrawNothing)
{
    Panel->BevelOuter = bvRaised;
    Panel->BevelWidth = 0;
    Panel->BorderWidth = -3;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Face()));
    EXPECT_EQ(AddChild(alClient)->BoundsRect, TRect(0, 0, W, H));
}

TEST_F(CustomPanelTest, ABevelOfSpaceIsDrawnAsNone)
{
    Panel->BevelOuter = bvSpace;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Face()));
}

// ---- caption

TEST_F(CustomPanelTest, TheCaptionStandsWhereTheAlignmentsSay)
{
    Panel->BevelOuter = bvRaised;
    Panel->Caption = "Caption";
    const int Text = TextHeight("Caption", W - 2);
    constexpr unsigned Horizontal[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
    const TRect Vertical[] = {
        {1, 1, W - 1, H - 1}, {1, (H - Text) / 2, W - 1, (H - Text) / 2 + Text}, {1, H - 1 - Text - 1, W - 1, H - 1}};
    for (TAlignment Across : {taLeftJustify, taRightJustify, taCenter})
        for (TVerticalAlignment Down : {vaTop, vaCenter, vaBottom}) {
            SCOPED_TRACE(Across * 10 + Down);
            Panel->Alignment = Across;
            Panel->VerticalAlignment = Down;
            TPixelImage Expected = Face();
            Expected.Frame({0, 0, W, H}, clBtnHighlight, clBtnShadow);
            DrawExpectedText(Expected, "Caption", Vertical[Down], Panel->Font, Panel->Font->Color,
                             Horizontal[Across] | CaptionFlags);
            EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
        }
}

TEST_F(CustomPanelTest, ALongCaptionIsWrappedAndMeasuredAsAWhole)
{
    Panel->Caption = "Several words that need lines";
    const int Text = TextHeight(Panel->Caption, W);
    EXPECT_GT(Text, TextHeight("x", W));
    TPixelImage Expected = Face();
    DrawExpectedText(Expected, Panel->Caption, {0, (H - Text) / 2, W, (H - Text) / 2 + Text}, Panel->Font,
                     Panel->Font->Color, DT_CENTER | CaptionFlags);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
}

TEST_F(CustomPanelTest, AtTheBottomOnePixelStaysBelowTheLastLine)
{
    Panel->VerticalAlignment = vaBottom;
    Panel->Caption = "g"; // reaches down to the last row of its line
    const int Text = TextHeight("g", W);
    TPixelImage Expected = Face();
    DrawExpectedText(Expected, "g", {0, H - Text - 1, W, H - 1}, Panel->Font, Panel->Font->Color,
                     DT_CENTER | CaptionFlags);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
}

TEST_F(CustomPanelTest, WithoutShowCaptionNoTextIsDrawn)
{
    Panel->Caption = "Caption";
    EXPECT_LT(PaintToBitmap(Panel).CountOf(clBtnFace), W * H);
    Panel->ShowCaption = false;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Face()));
}

TEST_F(CustomPanelTest, OfALongCaption255CharactersShow)
{
    Panel->SetBounds(0, 0, 150, 180);
    Panel->Alignment = taLeftJustify;
    std::string Long;
    for (int I = 0; I < 300; ++I)
        Long += I % 6 == 5 ? " " : "й";
    Panel->Caption = Long;
    const TPixelImage Painted = PaintToBitmap(Panel);
    std::string Cut;
    for (int I = 0; I < 255; ++I)
        Cut += I % 6 == 5 ? " " : "й";
    Panel->Caption = Cut;
    EXPECT_TRUE(SamePixels(Painted, PaintToBitmap(Panel)));
    Panel->Caption = Cut.substr(0, Cut.size() - 2);
    EXPECT_FALSE(SamePixels(Painted, PaintToBitmap(Panel)));
}

// ---- changes

TEST_F(CustomPanelTest, EverySetterThatChangesTheLookRepaints)
{
    Window->ShowNow();
    const auto Invalidated = [&](const std::function<void()>& Change) {
        ValidateRect(Panel->Handle, nullptr);
        Change();
        const bool Result = GetUpdateRect(Panel->Handle, nullptr, FALSE);
        ValidateRect(Panel->Handle, nullptr);
        Change(); // a second time the value is the same
        EXPECT_FALSE(GetUpdateRect(Panel->Handle, nullptr, FALSE));
        return Result;
    };
    EXPECT_TRUE(Invalidated([&] { Panel->BevelSides = {sdTop}; }));
    EXPECT_TRUE(Invalidated([&] { Panel->BorderColor = clRed; }));
    EXPECT_TRUE(Invalidated([&] { Panel->BorderSides = {sdTop}; }));
    EXPECT_TRUE(Invalidated([&] { Panel->VerticalAlignment = vaTop; }));
    EXPECT_TRUE(Invalidated([&] { Panel->Transparent = true; }));
    EXPECT_TRUE(Invalidated([&] { Panel->ShowCaption = false; }));
    EXPECT_TRUE(Invalidated([&] { Panel->Alignment = taLeftJustify; }));
    EXPECT_TRUE(Invalidated([&] { Panel->BevelInner = bvLowered; }));
    EXPECT_TRUE(Invalidated([&] { Panel->BevelOuter = bvLowered; }));
    EXPECT_TRUE(Invalidated([&] { Panel->BevelWidth = 2; }));
    EXPECT_TRUE(Invalidated([&] { Panel->BorderWidth = 2; }));
    EXPECT_TRUE(Invalidated([&] { Panel->Caption = "New"; }));
}

TEST_F(CustomPanelTest, AChangeOfSizeRepaintsTheWholePanel)
{
    Panel->BevelOuter = bvRaised;
    Panel->Caption = "Middle";
    Window->ShowNow();
    Panel->SetBounds(20, 30, W + 30, H + 20);
    Panel->Update();
    EXPECT_TRUE(SamePixels(ScreenPixels(Panel), PaintToBitmap(Panel)));
    Panel->SetBounds(20, 30, W - 20, H - 10);
    Panel->Update();
    EXPECT_TRUE(SamePixels(ScreenPixels(Panel), PaintToBitmap(Panel)));
}

// ---- transparent

TEST_F(CustomPanelTest, ATransparentPanelShowsItsParentBehindBevelAndCaption)
{
    auto* Behind = new TShape(Window.get());
    Behind->SetBounds(40, 35, 30, 20);
    Behind->Brush->Color = clLime;
    Behind->Parent = Window.get();
    Panel->Transparent = true;
    Panel->BevelOuter = bvLowered;
    Panel->Caption = "See";
    TPixelImage Expected(W, H, THostWindow::BackgroundColor);
    Expected.Copy(20, 5, PaintToBitmap(Behind));
    Expected.Frame({0, 0, W, H}, clBtnShadow, clBtnHighlight);
    const int Text = TextHeight("See", W - 2);
    DrawExpectedText(Expected, "See", {1, (H - Text) / 2, W - 1, (H - Text) / 2 + Text}, Panel->Font,
                     Panel->Font->Color, DT_CENTER | CaptionFlags);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
}

TEST_F(CustomPanelTest, AMovedTransparentPanelShowsWhatIsBehindItsNewPlace)
{
    auto* Behind = new TShape(Window.get());
    Behind->SetBounds(40, 35, 30, 20);
    Behind->Brush->Color = clLime;
    Behind->Parent = Window.get();
    Panel->Transparent = true;
    Window->ShowNow();
    Panel->Left = 47;
    Panel->Update();
    Window->Update();
    TPixelImage Expected(W, H, THostWindow::BackgroundColor);
    Expected.Copy(40 - 47, 5, PaintToBitmap(Behind).Part({0, 0, 30, 20}));
    EXPECT_TRUE(SamePixels(ScreenPixels(Panel), Expected));
}

TEST_F(CustomPanelTest, ATransparentPanelOnATransparentPanelShowsWhatIsBehindBoth)
{
    auto* Inner = new TkelPanel(Window.get());
    Inner->SetBounds(10, 10, 20, 20);
    Inner->BevelOuter = bvNone;
    Inner->Transparent = true;
    Inner->Parent = Panel;
    Panel->Transparent = true;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Inner), TPixelImage(20, 20, THostWindow::BackgroundColor)));
}

// ---- layout, window and messages

TEST_F(CustomPanelTest, ChildrenAreAlignedInsideBordersAndBevels)
{
    Panel->BorderSides = {sdLeft, sdBottom};
    Panel->BevelOuter = bvRaised;
    Panel->BevelInner = bvLowered;
    Panel->BevelWidth = 2;
    Panel->BorderWidth = 3;
    TkelPanel* Child = AddChild(alClient);
    EXPECT_EQ(Child->BoundsRect, TRect(8, 7, W - 7, H - 8));
    Panel->BevelInner = bvNone;
    EXPECT_EQ(Child->BoundsRect, TRect(6, 5, W - 5, H - 6));
}

TEST_F(CustomPanelTest, ALockedPanelLeavesItsChildrenWhereTheyAre)
{
    TkelPanel* Child = AddChild(alTop);
    EXPECT_EQ(Child->BoundsRect, TRect(0, 0, W, 10));
    Panel->Locked = true;
    Panel->Width = 200;
    EXPECT_EQ(Child->Width, W);
    Panel->Locked = false;
    EXPECT_EQ(Child->Width, 200);
}

TEST_F(CustomPanelTest, ItIsAToolControlUnlessItIsLocked)
{
    EXPECT_EQ(Panel->Perform(CM_ISTOOLCONTROL), 1);
    Panel->Locked = true;
    EXPECT_EQ(Panel->Perform(CM_ISTOOLCONTROL), 0);
}

TEST_F(CustomPanelTest, ASingleBorderIsSunkenWithCtl3D)
{
    const auto Styles = [&] {
        return std::pair(GetWindowLongPtrW(Panel->Handle, GWL_STYLE) & WS_BORDER,
                         GetWindowLongPtrW(Panel->Handle, GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
    };
    Panel->Ctl3D = true;
    EXPECT_EQ(Styles(), std::pair(LONG_PTR{0}, LONG_PTR{0}));
    Panel->BorderStyle = bsSingle;
    EXPECT_EQ(Styles(), std::pair(LONG_PTR{0}, LONG_PTR{WS_EX_CLIENTEDGE}));
    Panel->Ctl3D = false;
    EXPECT_EQ(Styles(), std::pair(LONG_PTR{WS_BORDER}, LONG_PTR{0}));
    EXPECT_EQ(Panel->ClientRect, TRect(0, 0, W - 2, H - 2));
}

TEST_F(CustomPanelTest, TheWindowIsNotRedrawnByTheSystemWhenItIsSized)
{
    const ULONG_PTR Style = GetClassLongPtrW(Panel->Handle, GCL_STYLE);
    EXPECT_EQ(Style & (CS_HREDRAW | CS_VREDRAW), 0u);
}

TEST_F(CustomPanelTest, PanelsAreGoneWithTheirOwner)
{
    AddChild(alClient);
    PaintToBitmap(Panel);
    delete Panel;
    EXPECT_EQ(Window->ControlCount, 0);
}
