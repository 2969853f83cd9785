// The wheel and the extra buttons of a real mouse over native controls, and what they cannot use.
#include "tests/support/FormTest.h"
#include "vcl/forms/ScrollBox.h"
#include "vcl/stdctrls/Button.h"
#include "vcl/stdctrls/ComboBox.h"
#include "vcl/stdctrls/Edit.h"
#include "vcl/stdctrls/Label.h"
#include "vcl/stdctrls/ListBox.h"
#include "vcl/stdctrls/Memo.h"
#include "vcl/system/ClassBuilder.h"

namespace {

class TListeningBox : public TScrollBox {
    VCL_CLASS(TListeningBox, TScrollBox)
public:
    explicit TListeningBox(TComponent* AOwner) : TScrollBox(AOwner) {}
    std::vector<uint32_t> Heard;

private:
    void Hear(TMessage& Message) { Heard.push_back(Message.Msg); }
};

void TListeningBox::Describe(TClassBuilder<TListeningBox>& Class)
{
    Class.Message<&Self::Hear>(WM_APPCOMMAND);
    Class.Message<&Self::Hear>(WM_MOUSEHWHEEL);
}

class MouseWheelTest : public TFormTest {
protected:
    void SetUp() override
    {
        Form->OnMouseWheel = [this](TObject*, TShiftState, int Delta, const TPoint&, bool& Handled) {
            WheelOnForm += Delta;
            Handled = true;
        };
    }
    // The wheel goes to the control with the focus; systems differ in whether the pointer counts, so it is there too.
    void PointAt(TWinControl* Control)
    {
        Show();
        Control->SetFocus();
        MovePointerTo(Control, 8, 8);
    }
    static void Fill(TStrings* Lines)
    {
        for (int I = 0; I < 100; ++I)
            Lines->Add("line");
    }

    int WheelOnForm = 0;
};

} // namespace

TEST_F(MouseWheelTest, AMemoScrolls)
{
    auto* Memo = Add<TMemo>();
    Memo->ScrollBars = ssVertical;
    Fill(Memo->Lines);
    PointAt(Memo);
    Memo->Perform(EM_LINESCROLL, 0, -1000);
    TurnWheel(-WHEEL_DELTA);
    EXPECT_TRUE(PumpUntil([&] { return Memo->Perform(EM_GETFIRSTVISIBLELINE) > 0; }));
    EXPECT_EQ(WheelOnForm, 0);
}

TEST_F(MouseWheelTest, AListBoxScrolls)
{
    auto* List = Add<TListBox>();
    Fill(List->Items);
    PointAt(List);
    TurnWheel(-WHEEL_DELTA);
    EXPECT_TRUE(PumpUntil([&] { return List->TopIndex > 0; }));
    EXPECT_EQ(WheelOnForm, 0);
}

TEST_F(MouseWheelTest, AComboBoxChangesItsSelection)
{
    auto* Combo = Add<TComboBox>();
    Combo->Style = csDropDownList;
    Fill(Combo->Items);
    Combo->ItemIndex = 3;
    PointAt(Combo);
    TurnWheel(-WHEEL_DELTA);
    EXPECT_TRUE(PumpUntil([&] { return Combo->ItemIndex > 3; }));
    EXPECT_EQ(WheelOnForm, 0);
}

TEST_F(MouseWheelTest, WhatAControlCannotUseReachesItsParent)
{
    auto* Button = Add<TButton>("OK");
    PointAt(Button);
    TurnWheel(-WHEEL_DELTA);
    EXPECT_TRUE(PumpUntil([&] { return WheelOnForm == -WHEEL_DELTA; }));
}

TEST_F(MouseWheelTest, AnEditOfOneLineLeavesTheWheelToItsParent)
{
    auto* Edit = Add<TEdit>("text");
    PointAt(Edit);
    TurnWheel(-WHEEL_DELTA);
    EXPECT_TRUE(PumpUntil([&] { return WheelOnForm == -WHEEL_DELTA; }));
}

TEST_F(MouseWheelTest, AHandlerTakesTheWheelFromTheControl)
{
    auto* Memo = Add<TMemo>();
    Memo->ScrollBars = ssVertical;
    Fill(Memo->Lines);
    int Wheel = 0;
    Memo->OnMouseWheel = [&](TObject*, TShiftState, int Delta, const TPoint&, bool& Handled) {
        Wheel += Delta;
        Handled = true;
    };
    PointAt(Memo);
    Memo->Perform(EM_LINESCROLL, 0, -1000);
    TurnWheel(-WHEEL_DELTA);
    EXPECT_TRUE(PumpUntil([&] { return Wheel == -WHEEL_DELTA; }));
    EXPECT_EQ(Memo->Perform(EM_GETFIRSTVISIBLELINE), 0);
    EXPECT_EQ(WheelOnForm, 0);
}

// The label has no window: what it does not handle is its parent's.
TEST_F(MouseWheelTest, HorizontalWheelAndExtraButtonsReachTheWindowBelowALabel)
{
    auto* Box = Add<TListeningBox>();
    auto* Label = Add<TLabel>("label", Box);
    Label->AutoSize = false;
    Label->SetBounds(0, 0, 100, 40);
    Show();
    ::SetFocus(Box->Handle);
    MovePointerTo(Label, 8, 8);
    ClickExtraButton();
    EXPECT_TRUE(PumpUntil([&] { return Box->Heard == std::vector<uint32_t>{WM_APPCOMMAND}; }));
    TurnWheel(WHEEL_DELTA, true);
    EXPECT_TRUE(PumpUntil([&] { return Box->Heard == std::vector<uint32_t>{WM_APPCOMMAND, WM_MOUSEHWHEEL}; }));
}
