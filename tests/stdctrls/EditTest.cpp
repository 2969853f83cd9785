#include "vcl/stdctrls/Edit.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "vcl/stdctrls/Memo.h"
#include "vcl/stdctrls/TextMeasure.h"

#include <gmock/gmock.h>

namespace {

class EditTest : public TFormTest {
protected:
    TEdit* Edit = Add<TEdit>();
};

using testing::ElementsAre;

} // namespace

TEST_F(EditTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TEdit::StaticClass(), "Align"),
                ElementsAre("Align = alNone", "Anchors = [akLeft,akTop]", "AutoSelect = True", "AutoSize = True",
                            "BiDiMode = bdLeftToRight", "BorderStyle = bsSingle", "CharCase = ecNormal",
                            "Color = clWindow", "Constraints", "Ctl3D", "DragCursor = crDrag", "DragKind = dkDrag",
                            "DragMode = dmManual", "Enabled = True", "Font", "HideSelection = True",
                            "ImeMode = imDontCare", "ImeName", "MaxLength = 0", "OEMConvert = False",
                            "ParentBiDiMode = True", "ParentColor = False", "ParentCtl3D = True", "ParentFont = True",
                            "ParentShowHint = True", "PasswordChar = 0", "PopupMenu", "ReadOnly = False", "ShowHint",
                            "TabOrder = -1", "TabStop = True", "Text", "Visible = True", "OnChange", "OnClick",
                            "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter",
                            "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp",
                            "OnStartDrag"));
}

TEST_F(EditTest, IsAsHighAsALineAndItsBorder)
{
    EXPECT_EQ(Edit->Height, LineHeight(Edit->Font) + 8 * GetSystemMetrics(SM_CYBORDER));
    Edit->Font->Size = 20;
    EXPECT_EQ(Edit->Height, LineHeight(Edit->Font) + 8 * GetSystemMetrics(SM_CYBORDER));
    Edit->Ctl3D = false;
    EXPECT_EQ(Edit->Height, LineHeight(Edit->Font) + 6 * GetSystemMetrics(SM_CYBORDER));
    Edit->AutoSize = false;
    Edit->Height = 77;
    Edit->Font->Size = 8;
    EXPECT_EQ(Edit->Height, 77);
}

TEST_F(EditTest, TypedTextArrivesAndIsTold)
{
    int Changes = 0;
    Edit->OnChange = [&](TObject*) { ++Changes; };
    Show();
    Edit->SetFocus();
    TypeKey('A');
    TypeKey('B', {ssShift});
    ASSERT_TRUE(PumpUntil([&] { return Edit->Text == "aB"; })) << Edit->Text;
    EXPECT_EQ(Changes, 2);
    EXPECT_TRUE(Edit->Modified);
}

TEST_F(EditTest, AClickIsTold)
{
    int Clicks = 0;
    Edit->OnClick = [&](TObject*) { ++Clicks; };
    Show();
    ClickOn(Edit);
    EXPECT_TRUE(PumpUntil([&] { return Clicks == 1; }));
}

TEST_F(EditTest, AssigningTellsOnceWithOrWithoutAWindow)
{
    int Changes = 0;
    Edit->OnChange = [&](TObject*) { ++Changes; };
    Edit->Text = "Отмена";
    EXPECT_EQ(Changes, 1);
    Edit->HandleNeeded();
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(Edit->Text, "Отмена");
    Edit->Text = "x";
    EXPECT_EQ(Changes, 2);
    Edit->Text = "x";
    EXPECT_EQ(Changes, 2);
}

TEST_F(EditTest, SelectionCountsBytesOfTheText)
{
    Edit->Text = "aЖb";
    Edit->SelStart = 1;
    Edit->SelLength = 2;
    EXPECT_EQ(Edit->SelText, "Ж");
    EXPECT_EQ(Edit->SelStart, 1);
    EXPECT_EQ(Edit->SelLength, 2);
    Edit->SelText = "ßß";
    EXPECT_EQ(Edit->Text, "aßßb");
    EXPECT_EQ(Edit->SelStart, 5);
    EXPECT_EQ(Edit->SelLength, 0);
    Edit->SelStart = 100;
    EXPECT_EQ(Edit->SelStart, 6);
    Edit->SelectAll();
    EXPECT_EQ(Edit->SelText, "aßßb");
    Edit->ClearSelection();
    EXPECT_EQ(Edit->Text, "");
}

TEST_F(EditTest, APositionInsideOfACharacterIsBehindIt)
{
    Edit->Text = "aЖ😀b";
    Edit->SelStart = 2;
    EXPECT_EQ(Edit->SelStart, 3);
    Edit->SelLength = 1;
    EXPECT_EQ(Edit->SelText, "😀");
    EXPECT_EQ(Edit->SelLength, 4);
    Edit->SelLength = 5;
    EXPECT_EQ(Edit->SelText, "😀b");
    Edit->SelStart = -1;
    EXPECT_EQ(Edit->SelStart, 0);
    Edit->SelLength = 1000;
    EXPECT_EQ(Edit->SelText, "aЖ😀b");
    Edit->SelLength = -1;
    EXPECT_EQ(Edit->SelText, "");
}

TEST_F(EditTest, WithoutMaxLengthATextHasNoEnd)
{
    const AnsiString Text(33000, 'x');
    Show();
    Edit->SetFocus();
    Edit->SelText = Text;
    EXPECT_EQ(Edit->Text.size(), Text.size());
    TypeKey('A');
    EXPECT_TRUE(PumpUntil([&] { return Edit->Text == Text + "a"; }));
    Edit->SelectAll();
    Edit->CopyToClipboard();
    Edit->PasteFromClipboard();
    Edit->PasteFromClipboard();
    EXPECT_EQ(Edit->Text, Text + "a" + Text + "a");
}

TEST_F(EditTest, MaxLengthHoldsAndCanBeTakenAway)
{
    Edit->MaxLength = 3;
    Show();
    Edit->SetFocus();
    Edit->SelText = "abcdef";
    EXPECT_EQ(Edit->Text, "abc");
    Edit->MaxLength = 0;
    Edit->SelText = AnsiString(33000, 'x');
    EXPECT_EQ(Edit->Text.size(), 33003u);
}

TEST_F(EditTest, EnteringSelectsTheTextUnlessToldNotTo)
{
    auto* Other = Add<TEdit>();
    Edit->Text = "first";
    Other->Text = "second";
    Other->AutoSelect = false;
    Show();
    Other->SetFocus();
    EXPECT_EQ(Other->SelLength, 0);
    Edit->SetFocus();
    EXPECT_EQ(Edit->SelText, "first");
}

TEST_F(EditTest, StylesReachTheWindow)
{
    Edit->Text = "Secret";
    Edit->PasswordChar = '*';
    Edit->ReadOnly = true;
    Edit->MaxLength = 10;
    Edit->CharCase = ecUpperCase;
    Edit->HideSelection = false;
    HWND Window = Edit->Handle;
    EXPECT_EQ(SendMessageW(Window, EM_GETPASSWORDCHAR, 0, 0), '*');
    EXPECT_EQ(SendMessageW(Window, EM_GETLIMITTEXT, 0, 0), 10);
    DWORD Style = static_cast<DWORD>(GetWindowLongW(Window, GWL_STYLE));
    EXPECT_EQ(Style & (ES_PASSWORD | ES_READONLY | ES_UPPERCASE | ES_NOHIDESEL),
              DWORD(ES_PASSWORD | ES_READONLY | ES_UPPERCASE | ES_NOHIDESEL));
    Edit->ReadOnly = false;
    EXPECT_EQ(GetWindowLongW(Window, GWL_STYLE) & ES_READONLY, 0);
    Edit->PasswordChar = 0;
    EXPECT_EQ(SendMessageW(Edit->Handle, EM_GETPASSWORDCHAR, 0, 0), 0);
    EXPECT_NE(Edit->AccessibleState(), STATE_SYSTEM_PROTECTED);
}

TEST_F(EditTest, ANewWindowKeepsWhatTheUserDid)
{
    Edit->Text = "abc";
    Edit->HandleNeeded();
    Edit->Modified = true;
    Edit->BorderStyle = bsNone;
    EXPECT_EQ(Edit->Text, "abc");
    EXPECT_TRUE(Edit->Modified);
}

TEST_F(EditTest, WhatWasTypedCanBeTakenBack)
{
    Show();
    Edit->SetFocus();
    EXPECT_FALSE(Edit->CanUndo);
    TypeKey('A');
    ASSERT_TRUE(PumpUntil([&] { return Edit->Text == "a"; }));
    EXPECT_TRUE(Edit->CanUndo);
    Edit->Undo();
    EXPECT_EQ(Edit->Text, "");
    Edit->ClearUndo();
    EXPECT_FALSE(Edit->CanUndo);
}

namespace {

class MemoTest : public TFormTest {
protected:
    TMemo* Memo = Add<TMemo>();
    std::vector<AnsiString> Lines()
    {
        std::vector<AnsiString> Result;
        for (int I = 0; I < Memo->Lines->Count; ++I)
            Result.push_back(Memo->Lines->Strings[I]);
        return Result;
    }
};

} // namespace

TEST_F(MemoTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TMemo::StaticClass(), "HideSelection"),
                ElementsAre("HideSelection = True", "ImeMode = imDontCare", "ImeName", "Lines", "MaxLength = 0",
                            "OEMConvert = False", "ParentBiDiMode = True", "ParentColor = False", "ParentCtl3D = True",
                            "ParentFont = True", "ParentShowHint = True", "PopupMenu", "ReadOnly = False",
                            "ScrollBars = ssNone", "ShowHint", "TabOrder = -1", "TabStop = True", "Visible = True",
                            "WantReturns = True", "WantTabs = False", "WordWrap = True", "OnChange", "OnClick",
                            "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter",
                            "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp",
                            "OnStartDrag"));
}

TEST_F(MemoTest, LinesAreTheSameWithAndWithoutAWindow)
{
    for (bool WithWindow : {false, true}) {
        if (WithWindow)
            Memo->HandleNeeded();
        Memo->Lines->Clear();
        EXPECT_EQ(Memo->Lines->Count, 0);
        EXPECT_EQ(Memo->Lines->Add("two"), 0);
        Memo->Lines->Add("Отмена");
        Memo->Lines->Insert(0, "one");
        EXPECT_EQ(Memo->Text, "one\r\ntwo\r\nОтмена\r\n");
        Memo->Lines->Strings[1] = "2";
        EXPECT_THAT(Lines(), ElementsAre("one", "2", "Отмена"));
        Memo->Lines->Delete(0);
        EXPECT_THAT(Lines(), ElementsAre("2", "Отмена"));
        Memo->Text = "a\r\nb";
        EXPECT_THAT(Lines(), ElementsAre("a", "b"));
        Memo->Lines->Add("c");
        EXPECT_THAT(Lines(), ElementsAre("a", "b", "c"));
        EXPECT_THROW(Memo->Lines->Delete(3), EStringListError);
        Memo->Lines->Move(0, 2);
        EXPECT_THAT(Lines(), ElementsAre("b", "c", "a"));
    }
}

TEST_F(MemoTest, AnUpdateWithoutAWindowTellsOnce)
{
    int Changes = 0;
    Memo->OnChange = [&](TObject*) { ++Changes; };
    {
        TStringsUpdate Update(Memo->Lines);
        Memo->Lines->Add("a");
        Memo->Lines->Add("b");
        EXPECT_THAT(Lines(), ElementsAre("a", "b"));
    }
    EXPECT_EQ(Changes, 1);
    EXPECT_EQ(Memo->Text, "a\r\nb\r\n");
}

TEST_F(MemoTest, LinesSurviveANewWindow)
{
    Memo->Lines->Add("a");
    Memo->HandleNeeded();
    Memo->Lines->Add("b");
    Memo->WordWrap = false;
    Memo->ScrollBars = ssBoth;
    EXPECT_THAT(Lines(), ElementsAre("a", "b"));
}

TEST_F(MemoTest, EnterAndTabAreTheMemosWhenItWantsThem)
{
    auto* Edit = Add<TEdit>();
    Edit->Top = 150;
    Show();
    Memo->SetFocus();
    TypeKey(VK_RETURN);
    ASSERT_TRUE(PumpUntil([&] { return Memo->Text == "\r\n"; }));
    TypeKey(VK_TAB);
    ASSERT_TRUE(PumpUntil([&] { return Edit->Focused(); }));
    EXPECT_EQ(Memo->Text, "\r\n");

    Memo->WantTabs = true;
    Memo->WantReturns = false;
    Memo->SetFocus();
    TypeKey(VK_TAB);
    ASSERT_TRUE(PumpUntil([&] { return Memo->Text == "\r\n\t" || Memo->Text == "\t\r\n"; })) << Memo->Text;
    AnsiString Before = Memo->Text;
    TypeKey(VK_RETURN);
    PumpMessages();
    EXPECT_EQ(Memo->Text, Before);
    EXPECT_TRUE(Memo->Focused());
}

TEST_F(MemoTest, WithoutMaxLengthATextHasNoEnd)
{
    AnsiString Text;
    for (int I = 0; I < 1000; ++I)
        Text += "a line of more than thirty-three letters\r\n";
    Show();
    Memo->SetFocus();
    Memo->SelText = Text;
    EXPECT_EQ(Memo->Text.size(), Text.size());
    TypeKey('A');
    EXPECT_TRUE(PumpUntil([&] { return Memo->Text == Text + "a"; }));
    Memo->SelectAll();
    Memo->CopyToClipboard();
    Memo->Text = "";
    Memo->PasteFromClipboard();
    EXPECT_EQ(Memo->Text, Text + "a");
}

TEST_F(MemoTest, TellsWhereTheCaretIs)
{
    Memo->Text = "one\r\ntwo";
    Memo->CaretPos = TPoint(2, 1);
    EXPECT_EQ(Memo->CaretPos, TPoint(2, 1));
    EXPECT_EQ(Memo->SelStart, 7);
}

TEST_F(MemoTest, LinesComeBackFromAFormFile)
{
    Memo->Name = "M";
    Memo->Lines->Clear();
    Memo->Lines->Add("first");
    Memo->Lines->Add("Отмена");
    auto Other = std::make_unique<TForm>(nullptr);
    ReadFormText(Other.get(), FormText(Form.get()));
    auto* Read = As<TMemo>(Other->FindComponent("M"));
    ASSERT_TRUE(Read);
    EXPECT_EQ(Read->Text, "first\r\nОтмена\r\n");
}
