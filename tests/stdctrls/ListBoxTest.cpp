#include "vcl/stdctrls/ListBox.h"

#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/Reports.h"
#include "vcl/stdctrls/ComboBox.h"
#include "vcl/stdctrls/Edit.h"

#include <gmock/gmock.h>

namespace {

std::vector<AnsiString> ItemsOf(TStrings* Items)
{
    std::vector<AnsiString> Result;
    for (int I = 0; I < Items->Count; ++I)
        Result.push_back(Items->Strings[I]);
    return Result;
}

class ListBoxTest : public TFormTest {
protected:
    void Fill(std::initializer_list<const char*> Items)
    {
        for (const char* Item : Items)
            List->Items->Add(Item);
    }

    TListBox* List = Add<TListBox>();
};

using testing::ElementsAre;

} // namespace

TEST_F(ListBoxTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TListBox::StaticClass(), "Style"),
                ElementsAre("Style = lbStandard", "AutoComplete = True", "Align = alNone", "Anchors = [akLeft,akTop]",
                            "BiDiMode = bdLeftToRight", "BorderStyle = bsSingle", "Color = clWindow", "Columns = 0",
                            "Constraints", "Ctl3D", "DragCursor = crDrag", "DragKind = dkDrag", "DragMode = dmManual",
                            "Enabled = True", "ExtendedSelect = True", "Font", "ImeMode = imDontCare", "ImeName",
                            "IntegralHeight = False", "ItemHeight", "Items", "MultiSelect = False",
                            "ParentBiDiMode = True", "ParentColor = False", "ParentCtl3D = True", "ParentFont = True",
                            "ParentShowHint = True", "PopupMenu", "ScrollWidth = 0", "ShowHint", "Sorted = False",
                            "TabOrder = -1", "TabStop = True", "TabWidth = 0", "Visible = True", "OnClick",
                            "OnContextPopup", "OnData", "OnDataFind", "OnDataObject", "OnDblClick", "OnDragDrop",
                            "OnDragOver", "OnDrawItem", "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress",
                            "OnKeyUp", "OnMeasureItem", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag"));
}

TEST_F(ListBoxTest, ItemsAreTheSameWithAndWithoutAWindow)
{
    for (bool WithWindow : {false, true}) {
        if (WithWindow)
            List->HandleNeeded();
        List->Items->Clear();
        EXPECT_EQ(List->Items->Add("b"), 0);
        EXPECT_EQ(List->Items->AddObject("Отмена", List), 1);
        List->Items->Insert(0, "a");
        EXPECT_THAT(ItemsOf(List->Items), ElementsAre("a", "b", "Отмена"));
        EXPECT_EQ(List->Items->Objects[2], List);
        List->Items->Strings[2] = "c";
        EXPECT_EQ(List->Items->Objects[2], List);
        List->Items->Exchange(0, 2);
        List->Items->Delete(1);
        EXPECT_THAT(ItemsOf(List->Items), ElementsAre("c", "a"));
        EXPECT_EQ(List->Items->Objects[0], List);
        EXPECT_EQ(List->Items->Objects[1], nullptr);
        EXPECT_THROW(List->Items->Delete(2), EStringListError);
        EXPECT_THROW(List->Items->GetStrings(-1), EStringListError);
    }
}

TEST_F(ListBoxTest, ItemsAndChoiceSurviveANewWindow)
{
    Fill({"a", "b", "c"});
    List->Items->Objects[1] = List;
    List->ItemIndex = 1;
    EXPECT_EQ(List->ItemIndex, 1);
    List->HandleNeeded();
    EXPECT_EQ(List->ItemIndex, 1);
    List->IntegralHeight = true;
    EXPECT_THAT(ItemsOf(List->Items), ElementsAre("a", "b", "c"));
    EXPECT_EQ(List->Items->Objects[1], List);
    EXPECT_EQ(List->ItemIndex, 1);
}

TEST_F(ListBoxTest, ANewWindowShowsTheSameItemsOnTop)
{
    for (int I = 0; I < 50; ++I)
        List->Items->Add(std::to_string(I));
    Show();
    List->TopIndex = 20;
    EXPECT_EQ(List->TopIndex, 20);
    HWND Before = List->Handle;
    List->Ctl3D = !List->Ctl3D;
    ASSERT_NE(List->Handle, Before);
    EXPECT_EQ(List->TopIndex, 20);
}

TEST_F(ListBoxTest, SortedItemsGoToTheirPlace)
{
    Fill({"b", "a", "b"});
    List->HandleNeeded();
    List->Sorted = true;
    EXPECT_THAT(ItemsOf(List->Items), ElementsAre("a", "b", "b"));
    EXPECT_EQ(List->Items->Add("aa"), 1);
    List->BorderStyle = bsNone;
    EXPECT_THAT(ItemsOf(List->Items), ElementsAre("a", "aa", "b", "b"));
}

TEST_F(ListBoxTest, SeveralCanBeSelected)
{
    Fill({"a", "b", "c", "d"});
    List->MultiSelect = true;
    List->HandleNeeded();
    List->Selected[1] = true;
    List->Selected[3] = true;
    EXPECT_EQ(List->SelCount, 2);
    List->BorderStyle = bsNone;
    EXPECT_TRUE(List->Selected[1]);
    EXPECT_FALSE(List->Selected[2]);
    List->DeleteSelected();
    EXPECT_THAT(ItemsOf(List->Items), ElementsAre("a", "c"));
    List->SelectAll();
    EXPECT_EQ(List->SelCount, 2);
    List->ClearSelection();
    EXPECT_EQ(List->SelCount, 0);
    EXPECT_THROW(List->GetSelected(2), EListError);
}

TEST_F(ListBoxTest, AClickChoosesTheItemUnderThePointer)
{
    Fill({"a", "b", "c"});
    int Clicks = 0;
    int DoubleClicks = 0;
    List->OnClick = [&](TObject*) { ++Clicks; };
    List->OnDblClick = [&](TObject*) { ++DoubleClicks; };
    Show();
    TRect R = List->ItemRect(1);
    EXPECT_EQ(List->ItemAtPos(R.TopLeft() + TPoint(3, 3), true), 1);
    MovePointer(TPoint(List->ClientToScreen(R.TopLeft() + TPoint(3, 3))));
    ClickButton();
    ASSERT_TRUE(PumpUntil([&] { return List->ItemIndex == 1; }));
    EXPECT_EQ(Clicks, 1);
    ClickButton();
    EXPECT_TRUE(PumpUntil([&] { return DoubleClicks == 1; }));
    TypeKey(VK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return List->ItemIndex == 2; }));
    EXPECT_TRUE(List->Focused());
}

TEST_F(ListBoxTest, BelowTheLastItemThereIsNone)
{
    Fill({"a", "b"});
    EXPECT_EQ(List->ItemAtPos(TPoint(5, 80), true), -1);
    EXPECT_EQ(List->ItemAtPos(TPoint(5, 80), false), 2);
    EXPECT_EQ(List->ItemAtPos(TPoint(5, 500), false), -1);
    EXPECT_EQ(List->ItemRect(2).Top, List->ItemRect(1).Bottom);
}

TEST_F(ListBoxTest, TypingQuicklyFindsLongerBeginnings)
{
    Fill({"alpha", "alto", "beta"});
    Show();
    List->SetFocus();
    TypeKey('A');
    TypeKey('L');
    TypeKey('T');
    EXPECT_TRUE(PumpUntil([&] { return List->ItemIndex == 1; }));
}

TEST_F(ListBoxTest, TheApplicationDrawsAndMeasures)
{
    Fill({"a", "b"});
    List->Style = lbOwnerDrawVariable;
    std::vector<int> Drawn;
    bool ColorsFit = true;
    List->OnMeasureItem = [](TWinControl*, int Index, int& Height) { Height = 20 + 10 * Index; };
    List->OnDrawItem = [&](TWinControl* Control, int Index, const TRect& Rect, TOwnerDrawState State) {
        auto* Box = static_cast<TListBox*>(Control);
        Drawn.push_back(Index);
        ColorsFit &= Box->Canvas->Brush->Color == (State.Contains(odSelected) ? clHighlight : clWindow);
        Box->Canvas->FillRect(Rect);
    };
    List->HandleNeeded();
    EXPECT_EQ(List->ItemRect(0).Height(), 20);
    EXPECT_EQ(List->ItemRect(1).Height(), 30);
    List->ItemIndex = 1;
    Show();
    EXPECT_THAT(Drawn, testing::Contains(1));
    EXPECT_TRUE(ColorsFit);
}

TEST_F(ListBoxTest, FixedItemsHaveTheirHeight)
{
    Fill({"a", "b"});
    List->Style = lbOwnerDrawFixed;
    List->ItemHeight = 27;
    EXPECT_EQ(List->ItemRect(1), TRect(0, 27, List->ClientWidth, 54));
}

TEST_F(ListBoxTest, AVirtualListAsksForItsItems)
{
    Fill({"own"});
    EXPECT_THROW(List->Count = 5, EListError);
    List->Style = lbVirtual;
    EXPECT_EQ(List->Count, 0);
    List->OnData = [](TWinControl*, int Index, AnsiString& Data) { Data = "Item " + std::to_string(Index); };
    List->OnDataObject = [](TWinControl* Control, int, TObject*& Object) { Object = Control; };
    List->OnDataFind = [](TWinControl*, const AnsiString& Text) { return Text == "it" ? 4711 : -1; };
    List->Count = 1000000;
    for (bool WithWindow : {false, true}) {
        if (WithWindow)
            List->HandleNeeded();
        EXPECT_EQ(List->Count, 1000000);
        EXPECT_EQ(List->Items->Strings[123456], "Item 123456");
        EXPECT_EQ(List->Items->Objects[7], List);
        EXPECT_EQ(List->Items->IndexOf("it"), 4711);
        EXPECT_THROW(List->Items->Add("x"), EInvalidOperation);
        EXPECT_THROW(List->Items->GetStrings(1000000), EStringListError);
    }
    EXPECT_EQ(SendMessageW(List->Handle, LB_GETCOUNT, 0, 0), 1000000);
    EXPECT_THAT(FormText(Form.get()), testing::Not(testing::HasSubstr("Items")));
    List->ItemIndex = 500000;
    List->BorderStyle = bsNone;
    List->HandleNeeded();
    EXPECT_EQ(List->ItemIndex, 500000);
    List->Items->Clear();
    EXPECT_EQ(List->Count, 0);
    List->Style = lbStandard;
    EXPECT_EQ(List->Items->Add("own"), 0);
}

TEST_F(ListBoxTest, AVirtualListShowsAndFindsWhatItIsTold)
{
    std::vector<int> Asked;
    List->Style = lbVirtual;
    List->OnData = [&](TWinControl*, int Index, AnsiString& Data) {
        Asked.push_back(Index);
        Data = std::to_string(Index);
    };
    List->OnDataFind = [](TWinControl*, const AnsiString& Text) { return Text == "t" ? 2 : -1; };
    List->Count = 3;
    Show();
    EXPECT_THAT(Asked, testing::IsSupersetOf({0, 1, 2}));
    List->SetFocus();
    TypeKey('T');
    EXPECT_TRUE(PumpUntil([&] { return List->ItemIndex == 2; }));
}

namespace {

class ComboBoxTest : public TFormTest {
protected:
    ComboBoxTest()
    {
        for (const char* Item : {"alpha", "alto", "Отмена"})
            Combo->Items->Add(Item);
        Combo->OnChange = [this](TObject*) { Log += "change " + Combo->Text + ";"; };
        Combo->OnClick = [this](TObject*) { Log += "click;"; };
    }
    void Choose(int Index)
    {
        SendMessageW(Combo->Handle, CB_SETCURSEL, Index, 0);
        SendMessageW(Form->Handle, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(Combo->Handle), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(Combo->Handle));
    }

    TComboBox* Combo = Add<TComboBox>();
    AnsiString Log;
};

} // namespace

TEST_F(ComboBoxTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TComboBox::StaticClass(), "AutoComplete"),
                ElementsAre("AutoComplete = True", "AutoDropDown = False", "Style = csDropDown", "Align = alNone",
                            "Anchors = [akLeft,akTop]", "BiDiMode = bdLeftToRight", "CharCase = ecNormal",
                            "Color = clWindow", "Constraints", "Ctl3D", "DragCursor = crDrag", "DragKind = dkDrag",
                            "DragMode = dmManual", "DropDownCount = 8", "Enabled = True", "Font",
                            "ImeMode = imDontCare", "ImeName", "ItemHeight", "ItemIndex = -1", "MaxLength = 0",
                            "ParentBiDiMode = True", "ParentColor = False", "ParentCtl3D = True", "ParentFont = True",
                            "ParentShowHint = True", "PopupMenu", "ShowHint", "Sorted = False", "TabOrder = -1",
                            "TabStop = True", "Text", "Visible = True", "OnChange", "OnClick", "OnCloseUp",
                            "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver", "OnDrawItem", "OnDropDown",
                            "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMeasureItem",
                            "OnSelect", "OnStartDrag", "Items"));
}

TEST_F(ComboBoxTest, ItemsTextAndChoiceSurviveANewWindow)
{
    Combo->Text = "own";
    Combo->HandleNeeded();
    EXPECT_EQ(Combo->Text, "own");
    EXPECT_EQ(Combo->ItemIndex, -1);
    Combo->ItemIndex = 2;
    EXPECT_EQ(Combo->Text, "Отмена");
    Combo->CharCase = ecUpperCase;
    EXPECT_EQ(Combo->ItemIndex, 2);
    EXPECT_THAT(ItemsOf(Combo->Items), ElementsAre("alpha", "alto", "Отмена"));
}

TEST_F(ComboBoxTest, AListShowsTheChosenItem)
{
    Combo->Style = csDropDownList;
    for (bool WithWindow : {false, true}) {
        if (WithWindow)
            Combo->HandleNeeded();
        Combo->ItemIndex = 1;
        EXPECT_EQ(Combo->Text, "alto");
        Combo->Text = "alpha";
        EXPECT_EQ(Combo->ItemIndex, 0);
        Combo->ItemIndex = -1;
        EXPECT_EQ(Combo->Text, "");
    }
}

TEST_F(ComboBoxTest, ChoosingRaisesClickThenSelectOrChange)
{
    Choose(1);
    EXPECT_EQ(Log, "click;change alto;");
    Log.clear();
    Combo->OnSelect = [this](TObject*) { Log += "select;"; };
    Choose(0);
    EXPECT_EQ(Log, "click;select;");
}

TEST_F(ComboBoxTest, TypingGoesThroughTheKeyEventsAndIsCompleted)
{
    AnsiString Keys;
    Combo->OnKeyDown = [&](TObject*, uint16_t& Key, TShiftState) { Keys += static_cast<char>(Key); };
    Combo->OnKeyPress = [&](TObject*, char16_t& Key) {
        if (Key == 'x')
            Key = 0;
    };
    Show();
    Combo->SetFocus();
    EXPECT_TRUE(Combo->Focused());
    EXPECT_EQ(Form->ActiveControl, Combo);
    TypeKey('A');
    TypeKey('L');
    TypeKey('X');
    TypeKey('T');
    ASSERT_TRUE(PumpUntil([&] { return Combo->Text == "alto"; })) << Combo->Text;
    EXPECT_EQ(Keys, "ALXT");
    EXPECT_EQ(Combo->ItemIndex, 1);
    Combo->AutoComplete = false;
    Combo->Text = "";
    TypeKey('A');
    ASSERT_TRUE(PumpUntil([&] { return Combo->Text == "a"; })) << Combo->Text;
}

TEST_F(ComboBoxTest, TabLeavesItForTheNextControl)
{
    auto* Edit = Add<TEdit>();
    Edit->Top = 60;
    bool Left = false;
    Combo->OnExit = [&](TObject*) { Left = true; };
    Show();
    Combo->SetFocus();
    TypeKey(VK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return Edit->Focused(); }));
    EXPECT_TRUE(Left);
}

TEST_F(ComboBoxTest, WithoutMaxLengthATextHasNoEnd)
{
    constexpr size_t Length = 33000;
    Combo->AutoComplete = false;
    Show();
    Combo->SetFocus();
    COMBOBOXINFO Info{};
    Info.cbSize = sizeof Info;
    GetComboBoxInfo(Combo->Handle, &Info);
    SendMessageW(Info.hwndItem, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(std::wstring(Length, L'x').c_str()));
    EXPECT_EQ(Combo->Text.size(), Length);
    TypeKey('A');
    EXPECT_TRUE(PumpUntil([&] { return Combo->Text.size() == Length + 1; }));
}

TEST_F(ComboBoxTest, WhatAnExitRaisesWhenTheEditIsClickedIsReported)
{
    auto* Edit = Add<TEdit>();
    Edit->Top = 60;
    Show();
    Edit->SetFocus();
    Edit->OnExit = [](TObject*) { throw Exception("not yet"); };
    TReports Reports;
    ClickOn(Combo);
    EXPECT_THAT(Reports.Texts(), testing::Contains("TComboBox: not yet"));
    Edit->OnExit = nullptr;
}

TEST_F(ComboBoxTest, TheListDropsDownAndEscapeClosesIt)
{
    bool Dropped = false;
    bool Closed = false;
    Combo->OnDropDown = [&](TObject*) { Dropped = true; };
    Combo->OnCloseUp = [&](TObject*) { Closed = true; };
    Combo->Style = csDropDownList;
    Show();
    Combo->SetFocus();
    Combo->DroppedDown = true;
    EXPECT_TRUE(Dropped);
    EXPECT_TRUE(Combo->DroppedDown);
    COMBOBOXINFO Info{};
    Info.cbSize = sizeof Info;
    GetComboBoxInfo(Combo->Handle, &Info);
    TRect List;
    GetWindowRect(Info.hwndList, &List);
    auto Item = static_cast<int>(SendMessageW(Combo->Handle, CB_GETITEMHEIGHT, 0, 0));
    EXPECT_GE(List.Height(), 3 * Item);
    TypeKey(VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return Closed; }));
    EXPECT_FALSE(Combo->DroppedDown);
}

TEST_F(ComboBoxTest, FormFilesGiveTheNumberBeforeTheItems)
{
    auto Other = std::make_unique<TForm>(nullptr);
    ReadFormText(Other.get(), "object Form2: TForm\n"
                              "  object C: TComboBox\n"
                              "    Style = csDropDownList\n"
                              "    ItemHeight = 13\n"
                              "    ItemIndex = 1\n"
                              "    TabOrder = 0\n"
                              "    Text = 'two'\n"
                              "    Items.Strings = (\n"
                              "      'one'\n"
                              "      'two')\n"
                              "  end\n"
                              "end\n");
    auto* Read = As<TComboBox>(Other->FindComponent("C"));
    ASSERT_TRUE(Read);
    EXPECT_EQ(Read->ItemIndex, 1);
    EXPECT_EQ(Read->Text, "two");
    Read->HandleNeeded();
    EXPECT_EQ(Read->ItemIndex, 1);
    EXPECT_EQ(Read->Text, "two");
}
