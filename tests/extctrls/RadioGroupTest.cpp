#include "vcl/extctrls/RadioGroup.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "vcl/stdctrls/RadioButton.h"
#include "vcl/stdctrls/TextMeasure.h"

#include <gmock/gmock.h>

namespace {

class RadioGroupTest : public TFormTest {
protected:
    RadioGroupTest()
    {
        Group->SetBounds(10, 10, 130, 100);
        Group->OnClick = [this](TObject*) { Clicks.push_back(Group->ItemIndex); };
    }
    void Fill(int Count)
    {
        for (int I = 0; I < Count; ++I)
            Group->Items->Add("Item &" + std::to_string(I));
    }

    TRadioGroup* Group = Add<TRadioGroup>("Group");
    std::vector<int> Clicks;
};

using testing::ElementsAre;

} // namespace

TEST_F(RadioGroupTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TRadioGroup::StaticClass(), "Color"),
                ElementsAre("Color", "Columns = 1", "Ctl3D", "DragCursor = crDrag", "DragKind = dkDrag",
                            "DragMode = dmManual", "Enabled = True", "Font", "ItemIndex = -1", "Items", "Constraints",
                            "ParentBiDiMode = True", "ParentBackground = True", "ParentColor = True",
                            "ParentCtl3D = True", "ParentFont = True", "ParentShowHint = True", "PopupMenu", "ShowHint",
                            "TabOrder = -1", "TabStop = False", "Visible = True", "OnClick", "OnContextPopup",
                            "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter", "OnExit", "OnStartDrag"));
}

TEST_F(RadioGroupTest, ThereIsOneButtonForEachItem)
{
    Fill(3);
    EXPECT_EQ(Group->ControlCount, 3);
    EXPECT_EQ(Group->Buttons[2]->Caption, "Item &2");
    Group->Items->Delete(0);
    EXPECT_EQ(Group->ControlCount, 2);
    EXPECT_EQ(Group->Buttons[0]->Caption, "Item &1");
    EXPECT_THROW(Group->GetButtons(2), EListError);
}

TEST_F(RadioGroupTest, ChoosingByCodeAndByMouseIsTold)
{
    Fill(3);
    Group->ItemIndex = 1;
    EXPECT_TRUE(Group->Buttons[1]->Checked);
    Show();
    ClickOn(Group->Buttons[2]);
    ASSERT_TRUE(PumpUntil([&] { return Group->ItemIndex == 2; }));
    EXPECT_FALSE(Group->Buttons[1]->Checked);
    EXPECT_THAT(Clicks, ElementsAre(1, 2));
    Group->ItemIndex = 99;
    EXPECT_EQ(Group->ItemIndex, 2);
    Group->ItemIndex = -1;
    EXPECT_FALSE(Group->Buttons[2]->Checked);
}

TEST_F(RadioGroupTest, ButtonsGoDownEachColumn)
{
    Fill(3);
    Group->Columns = 2;
    int Title = LineHeight(Group->Font);
    int Row = (100 - Title - 5) / 2;
    int Top = Title + 1 + (100 - Title - 5) % 2 / 2;
    EXPECT_EQ(Group->Buttons[0]->BoundsRect, Bounds(8, Top, 60, Row));
    EXPECT_EQ(Group->Buttons[1]->BoundsRect, Bounds(8, Top + Row, 60, Row));
    EXPECT_EQ(Group->Buttons[2]->BoundsRect, Bounds(68, Top, 60, Row));
    Group->Columns = 40;
    EXPECT_EQ(Group->Columns, 16);
}

TEST_F(RadioGroupTest, DeletingTheChosenItemChoosesTheLast)
{
    Fill(3);
    Group->ItemIndex = 2;
    Group->Items->Delete(2);
    EXPECT_EQ(Group->ItemIndex, 1);
    EXPECT_TRUE(Group->Buttons[1]->Checked);
    Group->Items->Clear();
    EXPECT_EQ(Group->ItemIndex, -1);
}

TEST_F(RadioGroupTest, WhatRowsLeaveIsHalfAboveAndHalfBelow)
{
    Fill(3);
    const int Title = LineHeight(Group->Font);
    Group->Height = Title + 5 + 3 * 20 + 2;
    EXPECT_EQ(Group->Buttons[0]->Top, Title + 1 + 1);
    EXPECT_EQ(Group->Buttons[2]->BoundsRect.Bottom, Title + 1 + 1 + 60);
}

TEST_F(RadioGroupTest, ColumnsBeginAtTheRightWhenReadingDoes)
{
    Fill(3);
    Group->Columns = 2;
    Group->BiDiMode = bdRightToLeft;
    Group->Width = 150;
    EXPECT_EQ(Group->Buttons[0]->Left, 8 + 70);
    EXPECT_EQ(Group->Buttons[2]->Left, 8);
}

TEST_F(RadioGroupTest, DisablingTakesItsButtonsAlong)
{
    Fill(2);
    Group->Enabled = false;
    EXPECT_FALSE(Group->Buttons[1]->Enabled);
}

TEST_F(RadioGroupTest, ComesBackFromAFormFileWithoutItsButtons)
{
    Group->Name = "G";
    Fill(2);
    Group->ItemIndex = 1;
    std::string Text = FormText(Form.get());
    EXPECT_THAT(Text, testing::Not(testing::HasSubstr("TGroupButton")));
    auto Other = std::make_unique<TForm>(nullptr);
    ReadFormText(Other.get(), Text);
    auto* Read = As<TRadioGroup>(Other->FindComponent("G"));
    ASSERT_TRUE(Read);
    EXPECT_EQ(Read->ItemIndex, 1);
    EXPECT_TRUE(Read->Buttons[1]->Checked);
    EXPECT_EQ(FormText(Other.get()), Text);
}
