#include "vcl/extctrls/Panel.h"

#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/extctrls/Frame3D.h"

#include <gmock/gmock.h>

namespace {

class PanelTest : public testing::Test {
protected:
    PanelTest() : Panel(new TPanel(&Window))
    {
        Panel->Parent = &Window;
        Panel->SetBounds(10, 20, 80, 40);
    }

    THostWindow Window;
    TPanel* Panel;
};

} // namespace

TEST(Frame3DTest, DrawsFramesInsideEachOther)
{
    TPixelImage Image(12, 10);
    TCanvas Canvas;
    Canvas.Handle = Image.DC();
    TRect R(1, 1, 11, 9);
    Frame3D(&Canvas, R, clRed, clBlue, 2);
    Canvas.Handle = nullptr;
    EXPECT_EQ(R, TRect(3, 3, 9, 7));
    TPixelImage Expected(12, 10);
    Expected.Frame(TRect(1, 1, 11, 9), clRed, clBlue);
    Expected.Frame(TRect(2, 2, 10, 8), clRed, clBlue);
    EXPECT_TRUE(SamePixels(Image, Expected));
}

TEST_F(PanelTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TPanel::StaticClass(), "Align"),
                testing::ElementsAre(
                    "Align = alNone", "Alignment = taCenter", "Anchors = [akLeft,akTop]", "AutoSize = False",
                    "BevelInner = bvNone", "BevelOuter = bvRaised", "BevelWidth = 1", "BiDiMode = bdLeftToRight",
                    "BorderWidth = 0", "BorderStyle = bsNone", "Caption", "Color = clBtnFace", "Constraints", "Ctl3D",
                    "DragCursor = crDrag", "DragKind = dkDrag", "DragMode = dmManual", "Enabled = True",
                    "FullRepaint = True", "Font", "Locked = False", "ParentBiDiMode = True", "ParentBackground = True",
                    "ParentColor = False", "ParentCtl3D = True", "ParentFont = True", "ParentShowHint = True",
                    "PopupMenu", "ShowHint", "TabOrder = -1", "TabStop = False", "Visible = True", "OnCanResize",
                    "OnClick", "OnConstrainedResize", "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver",
                    "OnEndDrag", "OnEnter", "OnExit", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnResize",
                    "OnStartDrag"));
}

TEST_F(PanelTest, KeepsItsOwnColor)
{
    EXPECT_EQ(Panel->Color, clBtnFace);
    EXPECT_FALSE(Panel->ParentColor);
}

TEST_F(PanelTest, PaintsBevelsBorderAndFace)
{
    Panel->Color = clAqua;
    Panel->BevelInner = bvLowered;
    Panel->BevelWidth = 2;
    Panel->BorderWidth = 3;
    TPixelImage Expected(80, 40, clAqua);
    Expected.Frame(TRect(0, 0, 80, 40), clBtnHighlight, clBtnShadow);
    Expected.Frame(TRect(1, 1, 79, 39), clBtnHighlight, clBtnShadow);
    Expected.Frame(TRect(5, 5, 75, 35), clBtnShadow, clBtnHighlight);
    Expected.Frame(TRect(6, 6, 74, 34), clBtnShadow, clBtnHighlight);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
}

TEST_F(PanelTest, WithoutBevelsItIsAllFace)
{
    Panel->BevelOuter = bvNone;
    TPixelImage Expected(80, 40, clBtnFace);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
    Panel->BevelOuter = bvSpace;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected));
}

TEST_F(PanelTest, CaptionStandsInTheMiddleOfOneLine)
{
    Panel->Caption = "Отмена && &more";
    Panel->BevelOuter = bvNone;
    for (auto [Alignment, Flag] :
         {std::pair{taCenter, DT_CENTER}, {taLeftJustify, DT_LEFT}, {taRightJustify, DT_RIGHT}}) {
        Panel->Alignment = Alignment;
        TPixelImage Expected(80, 40, clBtnFace);
        DrawExpectedText(Expected, "Отмена && &more", Panel->ClientRect, Panel->Font, clWindowText,
                         DT_EXPANDTABS | DT_SINGLELINE | DT_VCENTER | unsigned(Flag));
        EXPECT_TRUE(SamePixels(PaintToBitmap(Panel), Expected)) << "alignment " << int{Alignment};
    }
}

TEST_F(PanelTest, AlignsChildrenInsideItsBorders)
{
    Panel->HandleNeeded();
    auto* Child = new TPanel(Panel);
    Child->Align = alClient;
    Child->Parent = Panel;
    EXPECT_EQ(Child->BoundsRect, TRect(1, 1, 79, 39));
    Panel->BorderWidth = 4;
    EXPECT_EQ(Child->BoundsRect, TRect(5, 5, 75, 35));
    Panel->BevelInner = bvRaised;
    EXPECT_EQ(Child->BoundsRect, TRect(6, 6, 74, 34));
    Panel->BevelWidth = 3;
    EXPECT_EQ(Child->BoundsRect, TRect(10, 10, 70, 30));
}

TEST_F(PanelTest, OutOfRangeWidthsAreBroughtWithin)
{
    Panel->BevelWidth = 0;
    Panel->BorderWidth = -3;
    EXPECT_EQ(Panel->BevelWidth, 1);
    EXPECT_EQ(Panel->BorderWidth, 0);
}

TEST_F(PanelTest, SingleBorderIsSunkenOrALine)
{
    Panel->BorderStyle = bsSingle;
    Panel->Ctl3D = true;
    EXPECT_NE(GetWindowLongW(Panel->Handle, GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
    Panel->Ctl3D = false;
    EXPECT_EQ(GetWindowLongW(Panel->Handle, GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
    EXPECT_NE(GetWindowLongW(Panel->Handle, GWL_STYLE) & WS_BORDER, 0);
}

TEST_F(PanelTest, IsAToolBarUnlessLocked)
{
    EXPECT_EQ(Panel->Perform(CM_ISTOOLCONTROL), 1);
    Panel->Locked = true;
    EXPECT_EQ(Panel->Perform(CM_ISTOOLCONTROL), 0);
}

TEST_F(PanelTest, WithoutFullRepaintOnlyMovedEdgesAreDrawnAgain)
{
    Panel->FullRepaint = false;
    Panel->HandleNeeded();
    ::ShowWindow(Panel->Handle, SW_SHOW);
    Window.ShowNow();
    UpdateWindow(Panel->Handle);
    ValidateRect(Panel->Handle, nullptr);
    Panel->Width = 90;
    TRect Dirty;
    GetUpdateRect(Panel->Handle, &Dirty, FALSE);
    EXPECT_EQ(Dirty, TRect(79, 0, 90, 40));

    ValidateRect(Panel->Handle, nullptr);
    Panel->FullRepaint = true;
    Panel->Width = 85;
    GetUpdateRect(Panel->Handle, &Dirty, FALSE);
    EXPECT_EQ(Dirty, TRect(0, 0, 85, 40));
}

TEST_F(PanelTest, WithACaptionAllOfItIsPaintedAfterAChangeOfSize)
{
    Panel->FullRepaint = false;
    Window.ShowNow();
    const auto InvalidAfter = [&](int Width) {
        UpdateWindow(Panel->Handle);
        Panel->Width = Width;
        TRect Invalid;
        GetUpdateRect(Panel->Handle, &Invalid, FALSE);
        return Invalid;
    };
    EXPECT_EQ(InvalidAfter(90), TRect(79, 0, 90, 40));
    Panel->Caption = "Text";
    EXPECT_EQ(InvalidAfter(100), TRect(0, 0, 100, 40));
}
