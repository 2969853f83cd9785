// The Office check box and radio button.
#include "controls/OfficeCheckBox.h"
#include "controls/OfficeRadioButton.h"
#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/controls/Mouse.h"
#include "vcl/extctrls/Panel.h"
#include "vcl/system/ClassBuilder.h"

#include <cmath>
#include <gmock/gmock.h>
#include <numbers>

using testing::ElementsAre;

namespace {

class TTestRadio : public TkelOfficeRadioButton {
    VCL_CLASS(TTestRadio, TkelOfficeRadioButton)
public:
    using TkelOfficeRadioButton::TkelOfficeRadioButton;
};

void TTestRadio::Describe(TClassBuilder<TTestRadio>&)
{}

class OfficeToggleTest : public TFormTest {
protected:
    static constexpr int Width = 98;
    static constexpr int Height = 20;
    static constexpr int Top = Height / 2 - 6;
    static constexpr int Bottom = Top + 12;

    template <class T>
    T* AddAt(int Y, TWinControl* Parent = nullptr)
    {
        T* Control = Add<T>("Show it", Parent);
        Control->SetBounds(10, Y, Width, Height);
        return Control;
    }
    static void PointAt(TControl* Control) { MovePointerTo(Control, 5, 5); }
    static void PointAway()
    {
        MovePointerAway();
        EXPECT_TRUE(PumpUntil([] { return !TMouse::HotControl(); }));
    }

    // The caption as both draw it, and the frame of the focus.
    static void Caption(TPixelImage& Image, TControl* Control, bool IsHot, bool HasFocus)
    {
        TFont Font;
        Font.Assign(Control->Font);
        const int Y = Font.Height / 2 + Height / 2 - 1;
        const TRect Text(18, Y, 200, 100);
        DrawExpectedText(Image, "Show it", Text, &Font, IsHot ? clWindowText : clGrayText, DT_SINGLELINE);
        if (!HasFocus)
            return;
        const HGDIOBJ Old = SelectObject(Image.DC(), Font.Handle);
        SIZE Size;
        GetTextExtentPoint32W(Image.DC(), L"Show it", 7, &Size);
        SelectObject(Image.DC(), Old);
        const TRect Frame(17, Y, 17 + Size.cx + 3, Y + Size.cy + 1);
        Image.Frame(Frame, clBtnFace, clBtnFace);
        ::DrawFocusRect(Image.DC(), &Frame);
    }

    TkelOfficeCheckBox* Box = AddAt<TkelOfficeCheckBox>(10);
    int Clicks = 0;
    int Keys = 0;
};

class OfficeCheckBoxTest : public OfficeToggleTest {
protected:
    static void Line(TPixelImage& Image, int X1, int Y1, int X2, int Y2, TColor Color)
    {
        const HPEN Pen = CreatePen(PS_SOLID, 1, ColorToRGB(Color));
        const HGDIOBJ Old = SelectObject(Image.DC(), Pen);
        MoveToEx(Image.DC(), X1, Y1, nullptr);
        LineTo(Image.DC(), X2, Y2);
        SelectObject(Image.DC(), Old);
        DeleteObject(Pen);
    }
    TPixelImage Expected(bool IsHot, bool IsMarked, bool HasFocus)
    {
        TPixelImage Image(Width, Height, clBtnFace);
        Image.Fill({2, Top + 1, 13, Bottom}, IsHot ? clWindow : clBtnFace);
        Image.Frame({2, Top + 1, 13, Bottom}, clBtnShadow, clBtnShadow);
        // From the lower left corner round; the last point is not drawn.
        const TColor Light = IsHot ? clBtnHighlight : clBtnShadow;
        Line(Image, 1, Bottom, 1, Top, clBtnShadow);
        Line(Image, 1, Top, 13, Top, clBtnShadow);
        Line(Image, 13, Top, 13, Bottom, Light);
        Line(Image, 13, Bottom, 1, Bottom, Light);
        if (IsMarked) {
            const TColor Mark = IsHot ? clWindowText : clGrayText;
            const int T = Top - 1;
            const int B = T + 12;
            Line(Image, 3, T + 7, 3, B - 1, Mark);
            Line(Image, 4, T + 6, 4, B - 2, Mark);
            Line(Image, 3, B - 1, 11, T + 3, Mark);
            Line(Image, 4, B - 1, 12, T + 3, Mark);
        }
        Caption(Image, Box, IsHot, HasFocus);
        return Image;
    }
};

using OfficeRadioButtonTest = OfficeToggleTest;

} // namespace

// ---- check box

TEST_F(OfficeCheckBoxTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TkelOfficeCheckBox::StaticClass(), "Caption"),
                ElementsAre("Caption", "Checked", "DragCursor = crDrag", "DragMode = dmManual", "Font",
                            "Color = clWindow", "ParentFont = True", "PopupMenu", "Visible = True", "ShowHint", "State",
                            "TabOrder = -1", "TabStop = False", "OnClick", "OnDragDrop", "OnDragOver", "OnEndDrag",
                            "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp"));
    EXPECT_EQ(Box->Color, clBtnFace);
    EXPECT_FALSE(Box->ParentColor);
}

TEST_F(OfficeCheckBoxTest, IsFlatUntilTheMouseIsOverIt)
{
    EXPECT_TRUE(SamePixels(PaintToBitmap(Box), Expected(false, false, false)));
    Show();
    PointAt(Box);
    EXPECT_TRUE(SamePixels(ScreenPixels(Box), Expected(true, false, false)));
    PointAway();
    EXPECT_TRUE(SamePixels(ScreenPixels(Box), Expected(false, false, false)));
}

TEST_F(OfficeCheckBoxTest, CheckedAndGrayedLookTheSame)
{
    for (const TCheckBoxState State : {cbChecked, cbGrayed}) {
        Box->State = State;
        EXPECT_TRUE(SamePixels(PaintToBitmap(Box), Expected(false, true, false)));
    }
    Show();
    PointAt(Box);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Box), Expected(true, true, false)));
}

TEST_F(OfficeCheckBoxTest, TheFrameOfTheFocusStaysUntilTheNextPaint)
{
    auto* Other = AddAt<TkelOfficeCheckBox>(60);
    Other->TabStop = true;
    Box->TabStop = true;
    Show();
    Box->SetFocus();
    EXPECT_TRUE(SamePixels(ScreenPixels(Box), Expected(false, false, true)));
    Other->SetFocus();
    // The caption is drawn again over what is there; the frame is not erased.
    EXPECT_FALSE(SamePixels(ScreenPixels(Box), Expected(false, false, false)));
    Box->Repaint();
    EXPECT_TRUE(SamePixels(ScreenPixels(Box), Expected(false, false, false)));
}

TEST_F(OfficeCheckBoxTest, AClickTogglesAndTellsOnce)
{
    Show();
    Box->OnClick = [this](TObject*) { ++Clicks; };
    ClickOn(Box);
    EXPECT_TRUE(Box->Checked);
    EXPECT_TRUE(Box->Focused());
    EXPECT_EQ(Clicks, 1);
    ClickOn(Box);
    EXPECT_FALSE(Box->Checked);
    EXPECT_EQ(Clicks, 2);
}

TEST_F(OfficeCheckBoxTest, TheRightAndBottomEdgesCountAsInside)
{
    struct {
        int X, Y;
        bool Toggles;
    } Places[] = {{Width, 5, true}, {5, Height, true},     {Width, Height, true}, {0, 0, true},
                  {-1, 5, false},   {Width + 1, 5, false}, {5, Height + 1, false}};
    Show();
    for (const auto& Place : Places) {
        const bool Before = Box->Checked;
        MovePointerTo(Box, 5, 5);
        PressButton();
        MovePointerTo(Box, Place.X, Place.Y);
        ReleaseButton();
        EXPECT_EQ(Box->Checked != Before, Place.Toggles) << Place.X << ", " << Place.Y;
        EXPECT_EQ(GetCapture(), nullptr);
    }
}

TEST_F(OfficeCheckBoxTest, APressThatLosesTheMouseIsNoClick)
{
    Show();
    MovePointerTo(Box, 5, 5);
    PressButton();
    ReleaseCapture();
    ReleaseButton();
    EXPECT_FALSE(Box->Checked);
    ClickOn(Box);
    EXPECT_TRUE(Box->Checked);
}

TEST_F(OfficeCheckBoxTest, SpaceTogglesAndNoKeyRaisesOnKeyUp)
{
    Box->OnKeyUp = [this](TObject*, uint16_t&, TShiftState) { ++Keys; };
    Show();
    Box->SetFocus();
    TypeKey(VK_SPACE);
    EXPECT_TRUE(Box->Checked);
    TypeKey(VK_SPACE);
    EXPECT_FALSE(Box->Checked);
    TypeKey('A');
    EXPECT_EQ(Keys, 0);
}

TEST_F(OfficeCheckBoxTest, AGrayedBoxIsCheckedByAClickAndNeverGrayedByOne)
{
    Show();
    Box->State = cbGrayed;
    EXPECT_FALSE(Box->Checked);
    ClickOn(Box);
    EXPECT_EQ(Box->State, cbChecked);
    ClickOn(Box);
    EXPECT_EQ(Box->State, cbUnchecked);
    ClickOn(Box);
    EXPECT_EQ(Box->State, cbChecked);
}

TEST_F(OfficeCheckBoxTest, AFormKeepsTheGrayedState)
{
    ReadFormText(Box, "object Box: TkelOfficeCheckBox\n  Checked = False\n  State = cbGrayed\nend\n");
    EXPECT_EQ(Box->State, cbGrayed);
    ReadFormText(Box, "object Box: TkelOfficeCheckBox\n  State = cbGrayed\n  Checked = False\nend\n");
    EXPECT_EQ(Box->State, cbGrayed);
    ReadFormText(Box, "object Box: TkelOfficeCheckBox\n  Checked = True\n  State = cbChecked\nend\n");
    EXPECT_EQ(Box->State, cbChecked);
}

TEST_F(OfficeCheckBoxTest, MayBeDeletedInItsOwnEvents)
{
    Show();
    Box->OnClick = [this](TObject*) { delete Box; };
    ClickOn(Box);
    EXPECT_EQ(Form->ControlCount, 0);
    Box = AddAt<TkelOfficeCheckBox>(10);
    Box->OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) { delete Box; };
    ClickOn(Box);
    EXPECT_EQ(Form->ControlCount, 0);
}

TEST_F(OfficeCheckBoxTest, TellsItsStateToAssistiveTechnology)
{
    EXPECT_EQ(Box->AccessibleName(), "Show it");
    EXPECT_EQ(Box->AccessibleRole(), ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_EQ(Box->AccessibleState() & (STATE_SYSTEM_CHECKED | STATE_SYSTEM_MIXED), 0);
    Box->Checked = true;
    EXPECT_NE(Box->AccessibleState() & STATE_SYSTEM_CHECKED, 0);
    Box->State = cbGrayed;
    EXPECT_NE(Box->AccessibleState() & STATE_SYSTEM_MIXED, 0);
}

// ---- radio button

TEST_F(OfficeRadioButtonTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TkelOfficeRadioButton::StaticClass(), "Caption"),
                ElementsAre("Caption", "Checked", "DragCursor = crDrag", "DragMode = dmManual", "Font",
                            "Visible = True", "GroupIndex", "ParentFont = True", "PopupMenu", "ShowHint",
                            "TabOrder = -1", "TabStop = False", "OnClick", "OnDragDrop", "OnDragOver", "OnEndDrag",
                            "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp"));
}

TEST_F(OfficeRadioButtonTest, OnlyOneOfAGroupInAParentIsChecked)
{
    auto* Panel = Add<TPanel>();
    Panel->SetBounds(120, 0, 150, 120);
    auto* A = AddAt<TkelOfficeRadioButton>(40);
    auto* B = AddAt<TkelOfficeRadioButton>(60);
    auto* OtherGroup = AddAt<TkelOfficeRadioButton>(80);
    auto* OtherParent = AddAt<TkelOfficeRadioButton>(10, Panel);
    OtherGroup->GroupIndex = 1;
    OtherGroup->Checked = true;
    OtherParent->Checked = true;
    A->OnClick = [this](TObject*) { ++Clicks; };
    A->Checked = true;
    EXPECT_EQ(Clicks, 1);
    EXPECT_TRUE(A->TabStop);
    B->Checked = true;
    EXPECT_FALSE(A->Checked);
    EXPECT_FALSE(A->TabStop);
    EXPECT_TRUE(B->TabStop);
    EXPECT_EQ(Clicks, 1); // unchecking tells nothing
    EXPECT_TRUE(OtherGroup->Checked);
    EXPECT_TRUE(OtherParent->Checked);
}

TEST_F(OfficeRadioButtonTest, ClicksSpaceAndTabCheckAndNeverUncheck)
{
    auto* A = AddAt<TkelOfficeRadioButton>(40);
    auto* B = AddAt<TkelOfficeRadioButton>(60);
    B->TabStop = true;
    A->TabStop = true;
    Box->TabStop = true;
    Show();
    Box->SetFocus();
    TypeKey(VK_TAB);
    EXPECT_TRUE(A->Focused());
    EXPECT_TRUE(A->Checked);
    ClickOn(B);
    EXPECT_TRUE(B->Checked);
    EXPECT_FALSE(A->Checked);
    ClickOn(B);
    EXPECT_TRUE(B->Checked);
    B->Checked = false;
    TypeKey(VK_SPACE);
    EXPECT_TRUE(B->Checked);
    TypeKey(VK_SPACE);
    EXPECT_TRUE(B->Checked);
}

TEST_F(OfficeRadioButtonTest, ArrowsGoOnToTheNextOne)
{
    auto* A = AddAt<TkelOfficeRadioButton>(40);
    auto* B = AddAt<TkelOfficeRadioButton>(60);
    Show();
    A->SetFocus();
    TypeKey(VK_DOWN);
    EXPECT_TRUE(B->Focused());
    EXPECT_TRUE(B->Checked);
    TypeKey(VK_UP);
    EXPECT_TRUE(A->Checked);
}

TEST_F(OfficeRadioButtonTest, LooksFlatOrSunkenWithADotWhenChecked)
{
    auto* Button = AddAt<TTestRadio>(40);
    const auto Expected = [&](bool IsHot, bool IsChecked) {
        TPixelImage Image(Width, Height, clBtnFace);
        const auto Ellipse = [&](const TRect& R, TColor Outline, TColor Inside) {
            const HPEN Pen = CreatePen(PS_SOLID, 1, ColorToRGB(Outline));
            const HBRUSH Brush = CreateSolidBrush(ColorToRGB(Inside));
            const HGDIOBJ OldPen = SelectObject(Image.DC(), Pen);
            const HGDIOBJ OldBrush = SelectObject(Image.DC(), Brush);
            ::Ellipse(Image.DC(), R.Left, R.Top, R.Right, R.Bottom);
            SelectObject(Image.DC(), OldPen);
            SelectObject(Image.DC(), OldBrush);
            DeleteObject(Pen);
            DeleteObject(Brush);
        };
        Ellipse({2, Top + 1, 12, Bottom - 1}, IsHot ? clBtnShadow : clGrayText, IsHot ? clWindow : clBtnFace);
        if (IsHot) {
            const HGDIOBJ OldPen = SelectObject(Image.DC(), GetStockObject(DC_PEN));
            MoveToEx(Image.DC(), 7 + 6, Top + 6, nullptr);
            for (int Degree = 1; Degree <= 360; ++Degree) {
                const double Angle = Degree * std::numbers::pi / 180;
                SetDCPenColor(Image.DC(), ColorToRGB(Degree >= 45 && Degree <= 225 ? clBtnShadow : clBtnHighlight));
                LineTo(Image.DC(), 7 + static_cast<int>(6 * std::cos(Angle)),
                       Top + 6 - static_cast<int>(6 * std::sin(Angle)));
            }
            SelectObject(Image.DC(), OldPen);
        }
        const TColor Dot = IsHot ? clWindowText : clGrayText;
        if (IsChecked)
            Ellipse({5, Top + 4, 9, Bottom - 4}, Dot, Dot);
        Caption(Image, Button, IsHot, false);
        return Image;
    };
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected(false, false)));
    Button->Checked = true;
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected(false, true)));
    Button->CheckColor = clRed; // changes nothing
    EXPECT_EQ(Button->CheckColor, clRed);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Button), Expected(false, true)));
    Box->TabStop = true; // takes the focus
    Show();
    PointAt(Button);
    EXPECT_TRUE(SamePixels(ScreenPixels(Button), Expected(true, true)));
    Button->Checked = false;
    EXPECT_TRUE(SamePixels(ScreenPixels(Button), Expected(true, false)));
}

TEST_F(OfficeRadioButtonTest, MayBeDeletedInItsOwnClick)
{
    auto* Button = AddAt<TkelOfficeRadioButton>(40);
    Button->OnClick = [&](TObject*) { delete Button; };
    Show();
    ClickOn(Button);
    EXPECT_EQ(Form->ControlCount, 1);
}
