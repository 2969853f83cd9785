#include "vcl/stdctrls/CheckBox.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/stdctrls/Edit.h"
#include "vcl/stdctrls/GroupBox.h"
#include "vcl/stdctrls/RadioButton.h"
#include "vcl/stdctrls/TextMeasure.h"

#include <gmock/gmock.h>

namespace {

class CheckBoxTest : public TFormTest {
protected:
    CheckBoxTest()
    {
        Box->OnClick = [this](TObject*) { States.push_back(Box->State); };
    }

    TCheckBox* Box = Add<TCheckBox>("&Bold");
    std::vector<TCheckBoxState> States;
};

using testing::ElementsAre;

} // namespace

TEST_F(CheckBoxTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TCheckBox::StaticClass(), "Alignment"),
                ElementsAre("Alignment = taRightJustify", "AllowGrayed = False", "Anchors = [akLeft,akTop]",
                            "BiDiMode = bdLeftToRight", "Caption", "Checked = False", "Color", "Constraints", "Ctl3D",
                            "DragCursor = crDrag", "DragKind = dkDrag", "DragMode = dmManual", "Enabled = True", "Font",
                            "ParentBiDiMode = True", "ParentColor = True", "ParentCtl3D = True", "ParentFont = True",
                            "ParentShowHint = True", "PopupMenu", "ShowHint", "State = cbUnchecked", "TabOrder = -1",
                            "TabStop = True", "Visible = True", "OnClick", "OnContextPopup", "OnDragDrop", "OnDragOver",
                            "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown",
                            "OnMouseMove", "OnMouseUp", "OnStartDrag"));
}

TEST_F(CheckBoxTest, MouseSpaceBarAndAcceleratorToggleIt)
{
    Show();
    ClickOn(Box);
    ASSERT_TRUE(PumpUntil([&] { return Box->Checked; }));
    TypeKey(VK_SPACE);
    ASSERT_TRUE(PumpUntil([&] { return !Box->Checked; }));
    TypeKey('B', {ssAlt});
    ASSERT_TRUE(PumpUntil([&] { return Box->Checked; }));
    EXPECT_THAT(States, ElementsAre(cbChecked, cbUnchecked, cbChecked));
    EXPECT_EQ(SendMessageW(Box->Handle, BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_F(CheckBoxTest, AllowGrayedGivesItAThirdState)
{
    Box->AllowGrayed = true;
    for (int I = 0; I < 3; ++I)
        Box->AccessibleDefaultAction();
    EXPECT_THAT(States, ElementsAre(cbGrayed, cbChecked, cbUnchecked));
}

TEST_F(CheckBoxTest, SettingTheStateIsAClick)
{
    Box->Checked = true;
    Box->Checked = true;
    Box->State = cbGrayed;
    EXPECT_FALSE(Box->Checked);
    EXPECT_THAT(States, ElementsAre(cbChecked, cbGrayed));
    EXPECT_NE(Box->AccessibleState() & STATE_SYSTEM_MIXED, 0);
}

TEST_F(CheckBoxTest, TheStateSurvivesANewWindow)
{
    Box->Checked = true;
    Box->HandleNeeded();
    EXPECT_EQ(SendMessageW(Box->Handle, BM_GETCHECK, 0, 0), BST_CHECKED);
    Box->Alignment = taLeftJustify;
    EXPECT_EQ(SendMessageW(Box->Handle, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_NE(GetWindowLongW(Box->Handle, GWL_STYLE) & BS_LEFTTEXT, 0);
}

TEST_F(CheckBoxTest, BothCheckedAndStateAreWritten)
{
    Box->Name = "C";
    Box->Checked = true;
    EXPECT_THAT(FormText(Form.get()), testing::AllOf(testing::HasSubstr("    Checked = True\n"),
                                                     testing::HasSubstr("    State = cbChecked\n")));
}

namespace {

class RadioButtonTest : public TFormTest {
protected:
    TRadioButton* AddRadio(const AnsiString& Caption, int Top, TWinControl* Parent = nullptr)
    {
        auto* Button = Add<TRadioButton>(Caption, Parent);
        Button->Top = Top;
        Button->OnClick = [this](TObject* Sender) { Clicked.push_back(static_cast<TRadioButton*>(Sender)->Caption); };
        return Button;
    }

    std::vector<AnsiString> Clicked;
};

} // namespace

TEST_F(RadioButtonTest, OneOfAParentIsChecked)
{
    TRadioButton* A = AddRadio("A", 10);
    TRadioButton* B = AddRadio("B", 40);
    auto* Group = Add<TGroupBox>("G");
    Group->Top = 100;
    TRadioButton* Inner = AddRadio("Inner", 20, Group);
    A->Checked = true;
    Inner->Checked = true;
    EXPECT_TRUE(A->Checked);
    B->Checked = true;
    EXPECT_FALSE(A->Checked);
    EXPECT_TRUE(Inner->Checked);
    EXPECT_THAT(Clicked, ElementsAre("A", "Inner", "B"));
    EXPECT_TRUE(B->TabStop);
    EXPECT_FALSE(A->TabStop);
}

TEST_F(RadioButtonTest, IsCheckedByMouseAndAccelerator)
{
    TRadioButton* A = AddRadio("&A", 10);
    TRadioButton* B = AddRadio("&B", 40);
    Show();
    ClickOn(B);
    ASSERT_TRUE(PumpUntil([&] { return B->Checked; }));
    TypeKey('A', {ssAlt});
    ASSERT_TRUE(PumpUntil([&] { return A->Checked; }));
    EXPECT_FALSE(B->Checked);
    EXPECT_EQ(SendMessageW(A->Handle, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(SendMessageW(B->Handle, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_THAT(Clicked, ElementsAre("&B", "&A"));
}

TEST_F(RadioButtonTest, ArrowKeysMoveTheMark)
{
    TRadioButton* A = AddRadio("A", 10);
    TRadioButton* B = AddRadio("B", 40);
    A->Checked = true;
    Show();
    A->SetFocus();
    Clicked.clear();
    TypeKey(VK_DOWN);
    ASSERT_TRUE(PumpUntil([&] { return B->Focused(); }));
    ASSERT_TRUE(PumpUntil([&] { return B->Checked; }));
    EXPECT_FALSE(A->Checked);
    TypeKey(VK_UP);
    ASSERT_TRUE(PumpUntil([&] { return A->Checked; }));
    EXPECT_THAT(Clicked, ElementsAre("B", "A"));
}

namespace {

class GroupBoxTest : public TFormTest {
protected:
    GroupBoxTest() { Box->SetBounds(0, 0, 100, 60); }

    TGroupBox* Box = Add<TGroupBox>("Title");
};

} // namespace

TEST_F(GroupBoxTest, PaintsAFrameThatItsTitleInterrupts)
{
    Box->Color = clAqua;
    int Line = LineHeight(Box->Font);
    int Top = Line / 2 - 1;
    TPixelImage Expected(100, 60, clAqua);
    Expected.Frame(TRect(1, Top + 1, 100, 60), clBtnHighlight, clBtnHighlight);
    Expected.Frame(TRect(0, Top, 99, 59), clBtnShadow, clBtnShadow);
    TPixelImage Measure(1, 1);
    HGDIOBJ Old = SelectObject(Measure.DC(), Box->Font->Handle);
    TRect Text(8, 0, 0, Line);
    DrawText(Measure.DC(), "Title", Text, DT_SINGLELINE | DT_CALCRECT);
    SelectObject(Measure.DC(), Old);
    Expected.Fill(Text, clAqua);
    DrawExpectedText(Expected, "Title", Text, Box->Font, clWindowText, DT_SINGLELINE);
    EXPECT_TRUE(SamePixels(PaintToBitmap(Box), Expected));
}

TEST_F(GroupBoxTest, KeepsItsChildrenOffTheFrame)
{
    Box->HandleNeeded();
    auto* Child = Add<TGroupBox>("", Box);
    Child->Align = alClient;
    EXPECT_EQ(Child->BoundsRect, TRect(2, LineHeight(Box->Font) + 2, 98, 58));
}

TEST_F(GroupBoxTest, ItsAcceleratorLeadsInside)
{
    Box->Caption = "&Title";
    auto* Outside = Add<TEdit>();
    Outside->Top = 100;
    auto* Inside = Add<TEdit>("", Box);
    Inside->SetBounds(10, 20, 50, 21);
    Show();
    Outside->SetFocus();
    TypeKey('T', {ssAlt});
    EXPECT_TRUE(PumpUntil([&] { return Inside->Focused(); }));
}
