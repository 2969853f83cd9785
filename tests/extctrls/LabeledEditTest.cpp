#include "vcl/extctrls/LabeledEdit.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "vcl/extctrls/Panel.h"

#include <gmock/gmock.h>

namespace {

class LabeledEditTest : public TFormTest {
protected:
    LabeledEditTest()
    {
        Edit->SetBounds(100, 100, 80, Edit->Height);
        Edit->EditLabel->Caption = "&Name";
    }

    TLabeledEdit* Edit = Add<TLabeledEdit>();
};

} // namespace

TEST_F(LabeledEditTest, TheLabelStandsBesideTheEdit)
{
    TBoundLabel* Label = Edit->EditLabel;
    EXPECT_EQ(Label->Parent, Form.get());
    EXPECT_EQ(Label->BoundsRect.TopLeft(), TPoint(100, 100 - 3 - Label->Height));
    Edit->LabelPosition = lpBelow;
    Edit->LabelSpacing = 5;
    EXPECT_EQ(Label->BoundsRect.TopLeft(), TPoint(100, 100 + Edit->Height + 5));
    Edit->LabelPosition = lpLeft;
    EXPECT_EQ(Label->BoundsRect.TopLeft(), TPoint(100 - 5 - Label->Width, 100 + (Edit->Height - Label->Height) / 2));
    Label->Caption = "a longer one";
    EXPECT_EQ(Label->BoundsRect.Right, 95);
    Edit->LabelPosition = lpRight;
    Edit->Left = 120;
    EXPECT_EQ(Label->BoundsRect.TopLeft(), TPoint(205, 100 + (Edit->Height - Label->Height) / 2));
}

TEST_F(LabeledEditTest, TheLabelFollowsTheEdit)
{
    auto* Panel = Add<TPanel>();
    Edit->Parent = Panel;
    EXPECT_EQ(Edit->EditLabel->Parent, Panel);
    Edit->Enabled = false;
    EXPECT_FALSE(Edit->EditLabel->Enabled);
    Edit->Visible = false;
    EXPECT_FALSE(Edit->EditLabel->Visible);
}

TEST_F(LabeledEditTest, TheLabelIsWrittenAsAPart)
{
    Edit->Name = "E";
    Edit->Text = "";
    std::string Text = FormText(Form.get());
    std::string Size = "    EditLabel.Width = " + std::to_string(Edit->EditLabel->Width) +
                       "\n    EditLabel.Height = " + std::to_string(Edit->EditLabel->Height) + "\n";
    EXPECT_THAT(Text, testing::HasSubstr("    Height = " + std::to_string(Edit->Height) + "\n" + Size +
                                         "    EditLabel.Caption = '&Name'\n    TabOrder = 0\n  end\nend\n"));
    auto Other = std::make_unique<TForm>(nullptr);
    ReadFormText(Other.get(), Text);
    EXPECT_EQ(FormText(Other.get()), Text);
}

TEST_F(LabeledEditTest, TheLabelNamesTheEdit)
{
    EXPECT_EQ(Edit->AccessibleName(), "Name");
    EXPECT_EQ(Edit->EditLabel->FocusControl, Edit);
}

TEST_F(LabeledEditTest, TheLabelMayGoFirst)
{
    delete Edit->EditLabel;
    EXPECT_EQ(Edit->EditLabel, nullptr);
    Edit->Left = 5;
    EXPECT_EQ(Edit->AccessibleName(), "");
}
