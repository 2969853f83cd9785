#include "vcl/stdctrls/Button.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "vcl/stdctrls/Edit.h"
#include "vcl/stdctrls/Label.h"

#include <gmock/gmock.h>

namespace {

class ButtonTest : public TFormTest {
protected:
    TButton* AddButton(const AnsiString& Caption, int Top)
    {
        auto* Button = Add<TButton>(Caption);
        Button->Top = Top;
        Button->OnClick = [this](TObject* Sender) { Clicked.push_back(static_cast<TButton*>(Sender)->Caption); };
        return Button;
    }
    static bool LooksDefault(TButton* Button)
    {
        return (GetWindowLongW(Button->Handle, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    }

    std::vector<AnsiString> Clicked;
};

using testing::ElementsAre;

} // namespace

TEST_F(ButtonTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TButton::StaticClass(), "Anchors"),
                ElementsAre("Anchors = [akLeft,akTop]", "BiDiMode = bdLeftToRight", "Cancel = False", "Caption",
                            "Constraints", "Default = False", "DragCursor = crDrag", "DragKind = dkDrag",
                            "DragMode = dmManual", "Enabled = True", "Font", "ModalResult = 0", "ParentBiDiMode = True",
                            "ParentFont = True", "ParentShowHint = True", "PopupMenu", "ShowHint", "TabOrder = -1",
                            "TabStop = True", "Visible = True", "OnClick", "OnContextPopup", "OnDragDrop", "OnDragOver",
                            "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown",
                            "OnMouseMove", "OnMouseUp", "OnStartDrag"));
}

TEST_F(ButtonTest, IsClickedByMouseAndSpaceBar)
{
    TButton* Button = AddButton("One", 10);
    Show();
    ClickOn(Button);
    ASSERT_TRUE(PumpUntil([&] { return Clicked.size() == 1; }));
    EXPECT_TRUE(Button->Focused());
    TypeKey(VK_SPACE);
    EXPECT_TRUE(PumpUntil([&] { return Clicked.size() == 2; }));
}

TEST_F(ButtonTest, AReleaseOutsideIsNoClick)
{
    TButton* Button = AddButton("One", 10);
    Show();
    MovePointerTo(Button, 10, 10);
    PressButton();
    MovePointerTo(Button, 10, 60);
    ReleaseButton();
    PumpMessages();
    EXPECT_TRUE(Clicked.empty());
}

TEST_F(ButtonTest, EnterPressesTheDefaultButtonFromAnEdit)
{
    TEdit* Edit = Add<TEdit>();
    TButton* Ok = AddButton("Ok", 60);
    Ok->Default = true;
    Show();
    Edit->SetFocus();
    EXPECT_TRUE(LooksDefault(Ok));
    TypeKey(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_THAT(Clicked, ElementsAre("Ok"));
}

TEST_F(ButtonTest, AnotherButtonWithTheFocusIsTheDefaultMeanwhile)
{
    TButton* Ok = AddButton("Ok", 10);
    TButton* Other = AddButton("Other", 60);
    Ok->Default = true;
    Show();
    Other->SetFocus();
    EXPECT_FALSE(LooksDefault(Ok));
    EXPECT_TRUE(LooksDefault(Other));
    EXPECT_NE(Other->AccessibleState() & STATE_SYSTEM_DEFAULT, 0);
    TypeKey(VK_RETURN);
    ASSERT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_THAT(Clicked, ElementsAre("Other"));
}

TEST_F(ButtonTest, EscapePressesTheCancelButton)
{
    TEdit* Edit = Add<TEdit>();
    TButton* Cancel = AddButton("Cancel", 60);
    Cancel->Cancel = true;
    Show();
    Edit->SetFocus();
    TypeKey(VK_ESCAPE);
    ASSERT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    EXPECT_THAT(Clicked, ElementsAre("Cancel"));
}

TEST_F(ButtonTest, ItsAcceleratorClicksIt)
{
    AddButton("&First", 10);
    TButton* Second = AddButton("&Second", 60);
    AddButton("Thi&rd", 110)->Enabled = false;
    Show();
    TypeKey('S', {ssAlt});
    ASSERT_TRUE(PumpUntil([&] { return !Clicked.empty(); }));
    TypeKey('R', {ssAlt});
    EXPECT_THAT(Clicked, ElementsAre("&Second"));
    EXPECT_EQ(Second->AccessibleName(), "Second");
}

TEST_F(ButtonTest, AClickGivesTheFormItsModalResult)
{
    TButton* Button = AddButton("Yes", 10);
    Button->ModalResult = mrYes;
    Button->Click();
    EXPECT_EQ(Form->ModalResult, mrYes);
}

TEST_F(ButtonTest, AModalFormEndsWithTheResultOfTheButtonThatWasPressed)
{
    AddButton("Yes", 10)->ModalResult = mrYes;
    TButton* No = AddButton("No", 60);
    No->ModalResult = mrNo;
    No->Default = true;
    Form->OnShow = [&](TObject*) { PostMessageW(No->Handle, BM_CLICK, 0, 0); };
    EXPECT_EQ(Form->ShowModal(), mrNo);
}

TEST_F(ButtonTest, LabelsAcceleratorLeadsToItsControl)
{
    TLabel* Label = Add<TLabel>("&Name");
    TButton* Button = AddButton("x", 10);
    TEdit* Edit = Add<TEdit>();
    Label->FocusControl = Edit;
    Edit->Top = 60;
    Show();
    Button->SetFocus();
    TypeKey('N', {ssAlt});
    EXPECT_TRUE(PumpUntil([&] { return Edit->Focused(); }));
    Button->SetFocus();
    Label->ShowAccelChar = false;
    TypeKey('N', {ssAlt});
    PumpMessages();
    EXPECT_TRUE(Button->Focused());
}

TEST_F(ButtonTest, AssistiveTechnologyCanPressIt)
{
    TButton* Button = AddButton("One", 10);
    EXPECT_TRUE(Button->AccessibleDefaultAction());
    EXPECT_EQ(Clicked.size(), 1u);
    Button->Enabled = false;
    EXPECT_FALSE(Button->AccessibleDefaultAction());
    EXPECT_EQ(Clicked.size(), 1u);
}
