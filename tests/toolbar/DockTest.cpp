// Docks and bars as components: what they publish, how they start, what they draw.
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "tests/toolbar/DockFixture.h"
#include "toolbar/Flpfrm97.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class DockTest : public DockFixture {
protected:
    static TColor RGBOf(TColor Color) { return TColor(ColorToRGB(Color)); }
};

} // namespace

// ---- docks

TEST_F(DockTest, ADockPublishesItsProperties)
{
    EXPECT_THAT(PublishedFrom(TkelDock::StaticClass(), "BevelOuter"),
                ElementsAre("BevelOuter = bvRaised", "BevelInner = bvNone",
                            "BevelSides = [sdLeft,sdTop,sdRight,sdBottom]", "BorderColor = clBtnFace",
                            "VerticalAlignment = vaCenter", "Align = alNone", "Caption", "PopupMenu"));
}

TEST_F(DockTest, ADockStartsAtTheUpperEdgeWithoutBevels)
{
    TkelDock Dock(nullptr);
    EXPECT_EQ(Dock.Height, 48);
    EXPECT_EQ(Dock.Align, alTop);
    EXPECT_EQ(Dock.BevelOuter, bvNone);
    EXPECT_EQ(Dock.BevelInner, bvNone);
    EXPECT_EQ(Dock.Caption, "");
}

TEST_F(DockTest, ADocksMissingBevelIsAlwaysWritten)
{
    TkelDock Dock(nullptr);
    EXPECT_THAT(FormText(&Dock), HasSubstr("BevelOuter = bvNone"));
    Dock.BevelOuter = bvRaised;
    EXPECT_THAT(FormText(&Dock), Not(HasSubstr("BevelOuter")));
}

TEST_F(DockTest, AnEmptyDockTakesNoRoomInTheRunningForm)
{
    ReadFormText(Form.get(),
                 "object Form: TForm\n  object Dock: TkelDock\n    Width = 300\n    Height = 60\n    Align = "
                 "alTop\n  end\nend\n");
    auto* Dock = As<TkelDock>(Form->FindComponent("Dock"));
    EXPECT_EQ(Dock->Width, 0);
    EXPECT_EQ(Dock->Height, 0);
    Show();
    EXPECT_EQ(Dock->Width, Form->ClientWidth);
    EXPECT_EQ(Dock->Height, 0);
}

TEST_F(DockTest, AnEmptyDockCanBePickedInTheDesigner)
{
    TkelDock Dock(nullptr);
    Dock.SetDesigning(true);
    Dock.ShrinkIfEmpty();
    EXPECT_EQ(Dock.Width, 10);
    EXPECT_EQ(Dock.Height, 10);
}

TEST_F(DockTest, ADockWithAControlKeepsItsSize)
{
    TkelDock* Dock = NewDock(alTop, 60);
    NewBar(Dock, "Bar", 0, 0, 100);
    Dock->ShrinkIfEmpty();
    EXPECT_EQ(Dock->Height, 60);
}

TEST_F(DockTest, TheDesignerShowsWhereADockEnds)
{
    THostWindow Window;
    auto* Dock = new TkelDock(&Window);
    Dock->Align = alNone;
    Dock->SetBounds(0, 0, 40, 20);
    Dock->Color = clWhite;
    Dock->Parent = &Window;
    TPixelImage Plain(40, 20);
    Plain.Fill({0, 0, 40, 20}, clWhite);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Dock), Plain));
    Dock->SetDesigning(true);
    Plain.Frame({0, 0, 40, 20}, clBtnShadow, clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Dock), Plain));
}

TEST_F(DockTest, ABarThatIsOutOfSightWhenTheFormFirstShowsComesIn)
{
    for (bool Arrange : {true, false}) {
        SCOPED_TRACE(Arrange);
        Form = std::make_unique<TForm>(nullptr);
        Form->SetBounds(100, 100, 400, 300);
        TkelDock* Dock = NewDock(alTop, 78);
        Dock->ArrangeRows = Arrange;
        TTestBar* Far = NewBar(Dock, "Far", 5000, 0, 100);
        TTestBar* Low = NewBar(Dock, "Low", 10, 500, 100);
        TTestBar* Cut = NewBar(Dock, "Cut", Form->ClientWidth - 20, 26, 100);
        const int CutAt = Cut->Left;
        Show();
        EXPECT_EQ(Far->Left, Dock->Width - 100);
        EXPECT_EQ(Low->Top, 78 - 26);
        EXPECT_EQ(Cut->Left, CutAt) << "a part of it can be seen";
    }
}

TEST_F(DockTest, ABarThatIsOnlyTooLowWhenTheFormFirstShowsComesIn)
{
    TkelDock* Dock = NewDock(alTop, 52);
    NewBar(Dock, "A", 0, 0, 100);
    NewBar(Dock, "Low", 10, 500, 100);
    Show();
    EXPECT_EQ(Layout(Dock), "52: A 0,0 Low 10,26");
}

TEST_F(DockTest, AShorterDockBringsInItsBarsAndALongerOneLetsThemGoBack)
{
    TkelDock* Dock = NewDock(alTop, 52);
    Form->ClientWidth = 500;
    NewBar(Dock, "A", 20, 0, 100);
    NewBar(Dock, "B", 150, 0, 100);
    NewBar(Dock, "C", 380, 0, 100);
    NewBar(Dock, "D", 0, 26, 100);
    Show();
    const std::string Before = Layout(Dock);
    Form->ClientWidth = 390;
    EXPECT_EQ(Layout(Dock), Before) << "a part of C can be seen";
    Form->ClientWidth = 360;
    EXPECT_EQ(Layout(Dock), "52: A 20,0 B 150,0 C 260,0 D 0,26");
    Form->ClientWidth = 310;
    EXPECT_EQ(Layout(Dock), "52: A 10,0 B 110,0 C 210,0 D 0,26");
    Form->ClientWidth = 250;
    EXPECT_EQ(Layout(Dock), "78: A 20,0 B 150,0 C 150,26 D 0,52") << "there is no room for three";
    Form->ClientWidth = 500;
    EXPECT_EQ(Layout(Dock), Before);
}

TEST_F(DockTest, BarsThatWereMovedMeanwhileDoNotGoBack)
{
    TkelDock* Dock = NewDock(alTop, 26);
    Form->ClientWidth = 500;
    NewBar(Dock, "A", 20, 0, 100);
    TTestBar* B = NewBar(Dock, "B", 380, 0, 100);
    Show();
    Form->ClientWidth = 360;
    EXPECT_EQ(Layout(Dock), "26: A 20,0 B 260,0");
    B->Left = 200;
    Form->ClientWidth = 500;
    EXPECT_EQ(Layout(Dock), "26: A 20,0 B 200,0");
}

TEST_F(DockTest, AUprightDockBringsInItsBarsToo)
{
    TkelDock* Dock = NewDock(alLeft, 26);
    Form->ClientHeight = 400;
    NewBar(Dock, "A", 0, 0, 100);
    NewBar(Dock, "B", 290, 0, 100);
    Show();
    Form->ClientHeight = 240;
    EXPECT_EQ(Layout(Dock), "26: A 0,0 B 140,0");
    Form->ClientHeight = 150;
    EXPECT_EQ(Layout(Dock), "52: A 0,0 B 50,26");
    Form->ClientHeight = 400;
    EXPECT_EQ(Layout(Dock), "26: A 0,0 B 290,0");
}

// ---- bars

TEST_F(DockTest, ABarPublishesItsProperties)
{
    EXPECT_THAT(PublishedFrom(TkelToolBar::StaticClass(), "Caption"),
                ElementsAre("Caption", "PopupMenu", "Visible = True", "Font", "DragMode = dmManual",
                            "DragCursor = crDrag", "OnDragDrop", "OnDragOver", "OnStartDrag", "OnEndDrag", "AutoSave",
                            "CloseButton", "AllowResize", "OnShow", "OnHide", "OnFloat", "OnStatic"));
}

TEST_F(DockTest, ABarStartsVisibleRaisedAndSavingItsPlace)
{
    auto* Bar = new TkelToolBar(Form.get());
    EXPECT_EQ(Bar->Left, 0);
    EXPECT_EQ(Bar->Top, 0);
    EXPECT_EQ(Bar->Height, 26);
    EXPECT_EQ(Bar->BevelInner, bvRaised);
    EXPECT_EQ(Bar->BevelOuter, bvNone);
    EXPECT_TRUE(Bar->Visible);
    EXPECT_TRUE(Bar->AutoSave);
    EXPECT_FALSE(Bar->AllowResize);
    EXPECT_FALSE(Bar->Floating);
    EXPECT_TRUE(Bar->ControlStyle.Contains(csOpaque));
    EXPECT_EQ(Bar->DragBox->Parent, Bar);
    EXPECT_EQ(Bar->DragBox->Owner, Bar);
    EXPECT_EQ(Bar->DragBox->Align, alLeft);
    EXPECT_EQ(Bar->DragBox->Left, 0);
}

TEST_F(DockTest, ANewBarIsCalledByItsClassAndTheNumberOfComponents)
{
    new TkelGlyphs(Form.get());
    auto* Bar = new TkelToolBar(Form.get());
    EXPECT_EQ(Bar->Caption, "TkelToolBar" + std::to_string(Form->ComponentCount));
    TkelToolBar Lone(nullptr);
    EXPECT_EQ(Lone.Caption, "TkelToolBar0");
}

TEST_F(DockTest, AutoSaveAndCloseButtonAreOneFlag)
{
    TkelToolBar Bar(nullptr);
    Bar.AutoSave = false;
    EXPECT_FALSE(Bar.CloseButton);
    Bar.CloseButton = true;
    EXPECT_TRUE(Bar.AutoSave);
}

TEST_F(DockTest, ABarsSwitchesAreAlwaysWrittenAndItsGripNever)
{
    auto* Bar = new TkelToolBar(Form.get());
    Bar->Name = "Bar";
    Bar->Parent = Form.get();
    const std::string Text = FormText(Form.get());
    EXPECT_THAT(Text, HasSubstr("AutoSave = True\n    CloseButton = True\n    AllowResize = False"));
    EXPECT_THAT(Text, Not(HasSubstr("TkelTBDragBox")));
}

TEST_F(DockTest, LayoutIsSuspendedUntilABarThatCodeMakesLiesSomewhere)
{
    auto* Bar = new TkelToolBar(Form.get());
    EXPECT_TRUE(TkelToolBar::IsLayoutSuspended());
    Bar->Parent = NewDock(alTop);
    EXPECT_FALSE(TkelToolBar::IsLayoutSuspended());
}

TEST_F(DockTest, ABarDrawsItsBevelOnePixelInside)
{
    THostWindow Window;
    auto* Bar = new TTestBar(&Window);
    Bar->SetBounds(0, 0, 50, 26);
    Bar->Color = clWhite;
    Bar->ShowCaption = false;
    Bar->Parent = &Window;
    Bar->DragBox->Visible = false;
    EXPECT_EQ(Bar->ClientRect, TRect(1, 1, 49, 25));
    TPixelImage Expected(50, 26);
    Expected.Fill({0, 0, 50, 26}, clWhite);
    Expected.Frame({1, 1, 49, 25}, clBtnHighlight, clBtnShadow);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Bar), Expected));
}

TEST_F(DockTest, AligningBringsABarIntoItsParent)
{
    TkelDock* Dock = NewDock(alTop, 52);
    Show();
    struct {
        TRect Before;
        TPoint After;
    } Cases[] = {{{-10, -10, 90, 16}, {0, 0}},
                 {{Dock->Width - 50, 40, Dock->Width + 50, 66}, {Dock->Width - 100, 26}},
                 {{10, 0, Dock->Width + 30, 26}, {-20, 0}},
                 {{10, 10, 110, 36}, {10, 10}}};
    TTestBar* Bar = NewBar(Dock, "Bar", 0, 0, 100);
    for (const auto& Case : Cases) {
        Bar->BoundsRect = Case.Before;
        Bar->Aligning();
        EXPECT_EQ(TPoint(Bar->Left, Bar->Top), Case.After);
    }
}

TEST_F(DockTest, TheGripStaysAtTheNearEnd)
{
    TTestBar* Bar = InsertBar(NewDock(alTop), "Bar", 0, 200);
    NewButton(Bar)->Left = -100;
    Show();
    EXPECT_EQ(Bar->DragBox->Left, 2);
    Bar->DragBox->Left = 100;
    EXPECT_EQ(Bar->DragBox->Left, 2);
    auto* Separator = new TkelTBSeparator(Form.get());
    Separator->Align = alLeft;
    Separator->Parent = Bar;
    EXPECT_EQ(Bar->DragBox->Left, 2);
    EXPECT_EQ(Separator->Left, 14);
}

// ---- the frame

TEST_F(DockTest, AFrameIsDesignedAsASmallWindowOnTop)
{
    TFPForm97 Frame(nullptr);
    EXPECT_EQ(Frame.BorderIcons, TBorderIcons{biSystemMenu});
    EXPECT_EQ(Frame.BorderStyle, bsToolWindow);
    EXPECT_EQ(Frame.ClientWidth, 213);
    EXPECT_EQ(Frame.ClientHeight, 61);
    EXPECT_EQ(Frame.FormStyle, fsStayOnTop);
    EXPECT_EQ(Frame.Font->Name, "MS Sans Serif");
    EXPECT_EQ(Frame.Font->Height, -11);
    EXPECT_EQ(Frame.Font->Color, clWindowText);
    EXPECT_EQ(Frame.ToolBar, nullptr);
    EXPECT_TRUE(Frame.OnClose && Frame.OnCreate && Frame.OnDeactivate && Frame.OnMouseDown && Frame.OnMouseMove &&
                Frame.OnMouseUp && Frame.OnResize);
}

TEST_F(DockTest, AnEmptyFrameMindsNothing)
{
    auto* Frame = new TFPForm97(nullptr);
    Frame->Show();
    Frame->ClientWidth = 100;
    Frame->Close();
    EXPECT_FALSE(Frame->Visible);
    delete Frame;
}

TEST_F(DockTest, EachStepOfTheMouseReachesTheBarOnce)
{
    TTestBar* Bar = InsertBar(NewDock(alTop), "Bar", 0, 100);
    Show();
    Bar->DeleteFromDock();
    Bar->FloatToPos(300, 300);
    int Downs = 0, Moves = 0, Ups = 0;
    Bar->OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int, int) { ++Downs; };
    Bar->OnMouseMove = [&](TObject*, TShiftState, int, int) { ++Moves; };
    Bar->OnMouseUp = [&](TObject*, TMouseButton, TShiftState, int, int) { ++Ups; };
    SendMessageW(Bar->Frame->Handle, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(30, -8));
    SendMessageW(Bar->Frame->Handle, WM_MOUSEMOVE, MK_RBUTTON, MAKELPARAM(31, -8));
    SendMessageW(Bar->Frame->Handle, WM_LBUTTONUP, 0, MAKELPARAM(31, -8));
    EXPECT_EQ(Downs, 1);
    EXPECT_EQ(Moves, 1);
    EXPECT_EQ(Ups, 1);
    Bar->OnMouseDown = nullptr;
    Bar->OnMouseMove = nullptr;
    Bar->OnMouseUp = nullptr;
}
