// The library's list box and check list box.
#include "controls/CheckListBox.h"
#include "tests/support/FormTest.h"
#include "tests/support/FormText.h"
#include "tests/support/PaintToBitmap.h"
#include "vcl/classes/StringList.h"
#include "vcl/graphics/GraphicErrors.h"
#include "vcl/stdctrls/Edit.h"
#include "vcl/stdctrls/Label.h"
#include "vcl/system/ClassBuilder.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class TTestList : public TkelCustomListBox {
    VCL_CLASS(TTestList, TkelCustomListBox)
public:
    using TkelCustomListBox::TkelCustomListBox;

    int CreatedWindows = 0;

protected:
    void CreateWnd() override
    {
        ++CreatedWindows;
        inherited::CreateWnd();
    }
};

void TTestList::Describe(TClassBuilder<TTestList>&)
{}

template <class T>
class TListTest : public TFormTest {
protected:
    TListTest() { List->SetBounds(10, 10, 150, 120); }

    void Fill(int Count)
    {
        for (int I = 0; I < Count; ++I)
            List->Items->Add("Item " + std::string(I < 10 ? "0" : "") + std::to_string(I));
    }
    void ClickItem(int Index, int X, TMouseButton Button = mbLeft)
    {
        const TRect R = List->ItemRect(Index);
        MovePointerTo(List, R.Left + X, (R.Top + R.Bottom) / 2);
        ClickButton(Button);
    }
    template <class E>
    static testing::AssertionResult Raises(const char* Message, const std::function<void()>& Body)
    {
        try {
            Body();
        } catch (const E& Error) {
            if (Error.Message == Message && std::string(Error.ClassName()) != "Exception")
                return testing::AssertionSuccess();
            return testing::AssertionFailure() << Error.ClassName() << ": " << Error.Message;
        }
        return testing::AssertionFailure() << "nothing is raised";
    }

    T* List = Add<T>();
    int Clicks = 0;
};

using CustomListBoxTest = TListTest<TTestList>;

class CheckListBoxTest : public TListTest<TkelCheckListBox> {
protected:
    static constexpr int OnText = 60;
    // For Assign, which takes them over at once.
    TStrings* Strings(std::initializer_list<const char*> Texts)
    {
        FStrings.Clear();
        for (const char* Text : Texts)
            FStrings.Add(Text);
        return &FStrings;
    }
    std::vector<int> CheckedItems()
    {
        std::vector<int> Found;
        for (int I = 0; I < List->Items->Count; ++I)
            if (List->Checked[I])
                Found.push_back(I);
        return Found;
    }
    int InCheck() const { return TkelCheckListBox::GetCheckWidth() - 1; }
    void SetStates()
    {
        List->Checked[1] = true;
        List->State[3] = cbGrayed;
    }

private:
    TStringList FStrings;
};

TObject* Number(intptr_t Value)
{
    return reinterpret_cast<TObject*>(Value);
}

// Long texts and other scripts.
const AnsiString Texts[] = {"Отмена", "取消", "إلغاء", AnsiString(10000, 'x') + "!"};

} // namespace

// ---- TkelCustomListBox

TEST_F(CustomListBoxTest, PublishesOnlyTabStop)
{
    EXPECT_THAT(PublishedFrom(TkelCustomListBox::StaticClass(), "TabStop"), ElementsAre("TabStop = True"));
    EXPECT_EQ(List->BorderStyle, bsSingle);
    EXPECT_EQ(List->ItemHeight, 16);
    EXPECT_EQ(List->Columns, 0);
    EXPECT_EQ(List->TabWidth, 0);
    EXPECT_TRUE(List->ExtendedSelect);
    EXPECT_FALSE(List->IntegralHeight || List->MultiSelect || List->Sorted);
}

TEST_F(CustomListBoxTest, ItemsAreTheSameWithAndWithoutAWindow)
{
    for (bool WithWindow : {false, true}) {
        if (WithWindow)
            List->HandleNeeded();
        List->Items->Clear();
        for (const AnsiString& Text : Texts)
            List->Items->Add(Text);
        List->Items->InsertObject(0, "first", Number(-7));
        ASSERT_EQ(List->Items->Count, 5);
        for (int I = 0; I < 4; ++I)
            EXPECT_EQ(List->Items->Strings[I + 1], Texts[I]);
        EXPECT_EQ(List->Items->Objects[0], Number(-7));
        List->ItemIndex = 0;
        List->Items->Strings[0] = "other";
        EXPECT_EQ(List->Items->Objects[0], Number(-7));
        EXPECT_EQ(List->ItemIndex, 0);
        List->Items->Delete(1);
        EXPECT_EQ(List->Items->Strings[1], Texts[1]);
        EXPECT_EQ(List->GetItemData(0), -7);
    }
}

TEST_F(CustomListBoxTest, FailuresHaveTheirClassAndMessage)
{
    Fill(2);
    List->HandleNeeded();
    for (const int Index : {-1, 2, 1000000}) {
        EXPECT_TRUE(Raises<EOutOfResources>("List Index Error", [&] { List->Items->GetStrings(Index); }));
        EXPECT_TRUE(Raises<EOutOfResources>("List Index Error", [&] { List->Items->GetObjects(Index); }));
        EXPECT_TRUE(Raises<EListError>("Index error", [&] { List->GetSelected(Index); }));
        if (Index >= 0)
            EXPECT_TRUE(Raises<EOutOfResources>("Insert line error", [&] { List->Items->Insert(Index + 1, "x"); }));
    }
    List->MultiSelect = true;
    EXPECT_TRUE(Raises<EListError>("List Index Error", [&] { List->SetSelected(2, true); }));
    EXPECT_EQ(List->Items->Count, 2);
}

TEST_F(CustomListBoxTest, StylesOfTheWindowFollowTheProperties)
{
    const auto Has = [this](DWORD Style) { return (GetWindowLongW(List->Handle, GWL_STYLE) & Style) == Style; };
    const auto HasEx = [this](DWORD Style) { return (GetWindowLongW(List->Handle, GWL_EXSTYLE) & Style) == Style; };
    EXPECT_TRUE(Has(LBS_HASSTRINGS | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT));
    EXPECT_TRUE(HasEx(WS_EX_CLIENTEDGE));
    List->Ctl3D = false;
    EXPECT_TRUE(Has(WS_BORDER));
    EXPECT_FALSE(HasEx(WS_EX_CLIENTEDGE));
    List->BorderStyle = bsNone;
    EXPECT_FALSE(Has(WS_BORDER));
    List->Style = lbOwnerDrawFixed;
    EXPECT_TRUE(Has(LBS_OWNERDRAWFIXED));
    List->Style = lbOwnerDrawVariable;
    EXPECT_TRUE(Has(LBS_OWNERDRAWVARIABLE));
    List->Style = lbStandard;
    List->Sorted = true;
    EXPECT_TRUE(Has(LBS_SORT));
    List->MultiSelect = true;
    EXPECT_TRUE(Has(LBS_EXTENDEDSEL));
    List->ExtendedSelect = false;
    EXPECT_TRUE(Has(LBS_MULTIPLESEL));
    EXPECT_FALSE(Has(LBS_EXTENDEDSEL));
    List->IntegralHeight = true;
    EXPECT_FALSE(Has(LBS_NOINTEGRALHEIGHT));
    List->Columns = 2;
    EXPECT_TRUE(Has(LBS_MULTICOLUMN));
    List->TabWidth = -4;
    EXPECT_EQ(List->TabWidth, 0);
    List->TabWidth = 40;
    EXPECT_TRUE(Has(LBS_USETABSTOPS));
}

TEST_F(CustomListBoxTest, ChangingTheNumberOfColumnsKeepsTheWindow)
{
    Show();
    const int Before = List->CreatedWindows;
    List->Columns = 2;
    EXPECT_EQ(List->CreatedWindows, Before + 1);
    List->Columns = 3;
    EXPECT_EQ(List->CreatedWindows, Before + 1);
    List->Columns = 0;
    EXPECT_EQ(List->CreatedWindows, Before + 2);
    List->ItemHeight = 0;
    EXPECT_EQ(List->CreatedWindows, Before + 2);
    List->ItemHeight = 30;
    EXPECT_EQ(List->CreatedWindows, Before + 3);
}

TEST_F(CustomListBoxTest, TellsWhereItemsAre)
{
    Fill(3);
    Show();
    const int Height = List->ItemHeight;
    EXPECT_EQ(List->ItemRect(1).Top, Height);
    EXPECT_EQ(List->ItemRect(3).Top, 3 * Height); // where one more would be
    EXPECT_TRUE(List->ItemRect(4).IsEmpty());
    EXPECT_EQ(List->ItemAtPos({5, Height + 1}, true), 1);
    EXPECT_EQ(List->ItemAtPos({5, 3 * Height + 1}, true), -1);
    EXPECT_EQ(List->ItemAtPos({5, 3 * Height + 1}, false), 3);
    EXPECT_EQ(List->ItemAtPos({-1, 5}, false), -1);
    List->Items->Clear();
    EXPECT_FALSE(List->ItemRect(0).IsEmpty());
}

TEST_F(CustomListBoxTest, TheUserSelectsAndTheHandlerMayDeleteTheList)
{
    Fill(5);
    List->OnClick = [this](TObject*) { ++Clicks; };
    Show();
    ClickItem(2, 20);
    EXPECT_EQ(List->ItemIndex, 2);
    EXPECT_EQ(Clicks, 1);
    TypeKey(VK_DOWN);
    EXPECT_EQ(List->ItemIndex, 3);
    EXPECT_EQ(Clicks, 2);
}

TEST_F(CustomListBoxTest, AChildWithoutAWindowGetsItsPresses)
{
    List->DragMode = dmAutomatic;
    auto* Child = new TLabel(Form.get());
    Child->SetBounds(60, 40, 60, 20);
    Child->Parent = List;
    Child->OnClick = [this](TObject*) { ++Clicks; };
    Show();
    MovePointerTo(Child, 5, 5);
    ClickButton(mbLeft);
    EXPECT_TRUE(PumpUntil([this] { return Clicks == 1; }));
}

TEST_F(CustomListBoxTest, DraggingASelectionKeepsIt)
{
    auto* Target = Add<TEdit>();
    Target->SetBounds(200, 10, 100, 25);
    int Drops = 0;
    Target->OnDragOver = [](TObject*, TObject*, int, int, TDragState, bool& Accept) { Accept = true; };
    Target->OnDragDrop = [&](TObject*, TObject* Source, int, int) {
        EXPECT_EQ(Source, List);
        EXPECT_EQ(List->SelCount, 3);
        ++Drops;
    };
    Fill(6);
    List->MultiSelect = true;
    List->DragMode = dmAutomatic;
    Show();
    for (const int Index : {1, 2, 4})
        List->Selected[Index] = true;
    const TRect R = List->ItemRect(2);
    MovePointerTo(List, 20, (R.Top + R.Bottom) / 2);
    PressButton();
    MovePointerTo(List, 60, R.Top + 30);
    MovePointerTo(Target, 20, 10);
    ReleaseButton();
    EXPECT_EQ(Drops, 1);
    EXPECT_EQ(List->SelCount, 3);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(CustomListBoxTest, ADragThatIsNoneIsAPlainClick)
{
    Fill(6);
    List->OnClick = [this](TObject*) { ++Clicks; };
    List->MultiSelect = true;
    List->DragMode = dmAutomatic;
    Show();
    for (const int Index : {1, 2, 4})
        List->Selected[Index] = true;
    ClickItem(2, 20);
    EXPECT_EQ(List->SelCount, 1);
    EXPECT_TRUE(List->Selected[2]);
    ClickItem(5, 20);
    EXPECT_EQ(List->SelCount, 1);
    EXPECT_TRUE(List->Selected[5]);
    EXPECT_EQ(Clicks, 2);
    EXPECT_EQ(GetCapture(), nullptr);
}

// ---- TkelCheckListBox

TEST_F(CheckListBoxTest, PublishesItsPropertiesInOrder)
{
    EXPECT_THAT(PublishedFrom(TkelCheckListBox::StaticClass(), "OnClickCheck"),
                ElementsAre("OnClickCheck", "Align = alNone", "AllowGrayed = False", "BorderStyle = bsSingle",
                            "Color = clWindow", "Columns = 0", "Ctl3D", "DragCursor = crDrag", "DragMode = dmManual",
                            "Enabled = True", "Font", "IntegralHeight = False", "ItemHeight", "Items",
                            "ParentColor = False", "ParentCtl3D = True", "ParentFont = True", "ParentShowHint = True",
                            "PopupMenu", "ShowHint", "Sorted = False", "Style = lbStandard", "TabOrder = -1",
                            "TabWidth = 0", "Visible = True", "OnClick", "OnDblClick", "OnDragDrop", "OnDragOver",
                            "OnDrawItem", "OnEndDrag", "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp",
                            "OnMeasureItem", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnStartDrag"));
}

TEST_F(CheckListBoxTest, AnItemThatWasNeverCheckedIsUncheckedAndKeepsNothing)
{
    Fill(2);
    List->HandleNeeded();
    EXPECT_FALSE(List->Checked[0]);
    EXPECT_EQ(List->State[1], cbUnchecked);
    EXPECT_EQ(SendMessageW(List->Handle, LB_GETITEMDATA, 0, 0), 0);
    List->Checked[0] = false;
    EXPECT_EQ(SendMessageW(List->Handle, LB_GETITEMDATA, 0, 0), 0);
}

TEST_F(CheckListBoxTest, TheUsersDataIsTheUsers)
{
    for (bool WithWindow : {false, true}) {
        if (WithWindow)
            List->HandleNeeded();
        List->Items->Clear();
        Fill(3);
        List->Items->Objects[0] = Number(42);
        List->SetItemData(1, -5);
        List->Checked[0] = true;
        List->State[2] = cbGrayed;
        EXPECT_EQ(List->Items->Objects[0], Number(42));
        EXPECT_EQ(List->GetItemData(1), -5);
        EXPECT_EQ(List->GetItemData(2), 0);
        EXPECT_TRUE(List->Checked[0]);
        EXPECT_FALSE(List->Checked[1]);
        EXPECT_EQ(List->State[2], cbGrayed);
    }
    // A number that somebody puts into the window is never taken for a pointer.
    SendMessageW(List->Handle, LB_SETITEMDATA, 1, 0x1234);
    EXPECT_FALSE(List->Checked[1]);
    EXPECT_EQ(List->GetItemData(1), 0);
    List->Checked[1] = true;
    EXPECT_TRUE(List->Checked[1]);
}

TEST_F(CheckListBoxTest, FailuresHaveTheirClassAndMessage)
{
    Fill(1);
    List->HandleNeeded();
    for (const int Index : {-1, 1}) {
        EXPECT_TRUE(Raises<EListError>("List Index Error", [&] { List->GetChecked(Index); }));
        EXPECT_TRUE(Raises<EListError>("List Index Error", [&] { List->SetState(Index, cbGrayed); }));
        EXPECT_TRUE(Raises<EListError>("List Index Error", [&] { List->GetItemData(Index); }));
        EXPECT_TRUE(Raises<EListError>("List Index Error", [&] { List->SetItemData(Index, 1); }));
        EXPECT_TRUE(Raises<EListError>("List Index Error", [&] { List->Items->Delete(Index); }));
        EXPECT_TRUE(Raises<EOutOfResources>("List Index Error", [&] { List->Items->GetStrings(Index); }));
    }
}

TEST_F(CheckListBoxTest, ItemsTakeTheirStatesAlong)
{
    Fill(4);
    SetStates();
    List->Items->Delete(0);
    EXPECT_TRUE(List->Checked[0]);
    EXPECT_EQ(List->State[2], cbGrayed);
    List->HandleNeeded();
    List->Items->Insert(0, "new");
    EXPECT_TRUE(List->Checked[1]);
    List->Items->Strings[1] = "renamed";
    EXPECT_TRUE(List->Checked[1]);
    List->Items->Clear();
    Fill(2);
    EXPECT_FALSE(List->Checked[1]);
}

TEST_F(CheckListBoxTest, ANewWindowKeepsEverything)
{
    const std::pair<const char*, std::function<void()>> Changes[] = {
        {"Ctl3D", [this] { List->Ctl3D = false; }},
        {"BorderStyle", [this] { List->BorderStyle = bsNone; }},
        {"Style", [this] { List->Style = lbOwnerDrawFixed; }},
        {"Style variable", [this] { List->Style = lbOwnerDrawVariable; }},
        {"Sorted", [this] { List->Sorted = true; }},
        {"not Sorted", [this] { List->Sorted = false; }},
        {"IntegralHeight", [this] { List->IntegralHeight = true; }},
        {"ItemHeight", [this] { List->ItemHeight = 18; }},
        {"TabWidth", [this] { List->TabWidth = 20; }},
        {"Parent",
         [this] {
             List->Parent = nullptr;
             EXPECT_TRUE(List->Checked[1]);
             EXPECT_EQ(List->Items->Strings[39], "Item 39");
             List->Parent = Form.get();
         }},
    };
    Fill(40);
    SetStates();
    Show();
    for (int I = 0; I < 40; ++I)
        List->SetItemData(I, 100 + I);
    List->ItemIndex = 21;
    List->TopIndex = 20;
    for (const auto& [Name, Change] : Changes) {
        SCOPED_TRACE(Name);
        const HWND Before = List->Handle;
        Change();
        EXPECT_NE(List->Handle, Before);
        ASSERT_EQ(List->Items->Count, 40);
        for (int I = 0; I < 40; ++I) {
            EXPECT_EQ(List->Items->Strings[I], "Item " + std::string(I < 10 ? "0" : "") + std::to_string(I));
            EXPECT_EQ(List->GetItemData(I), 100 + I);
            EXPECT_EQ(List->State[I], I == 1 ? cbChecked : I == 3 ? cbGrayed : cbUnchecked);
        }
        EXPECT_EQ(List->ItemIndex, 21);
        EXPECT_EQ(List->TopIndex, 20);
    }
    List->MultiSelect = true;
    EXPECT_EQ(List->SelCount, 1);
    List->Selected[5] = true;
    List->BorderStyle = bsSingle;
    EXPECT_TRUE(List->Selected[5] && List->Selected[21]);
    EXPECT_EQ(List->SelCount, 2);
}

TEST_F(CheckListBoxTest, SortingTakesTheStatesAlong)
{
    for (const char* Text : {"c", "a", "b"})
        List->Items->Add(Text);
    List->Checked[0] = true;
    List->HandleNeeded();
    List->Sorted = true;
    EXPECT_EQ(List->Items->CommaText, "a,b,c");
    EXPECT_TRUE(List->Checked[2]);
    EXPECT_FALSE(List->Checked[0]);
    EXPECT_EQ(List->Items->Add("aa"), 1);
    EXPECT_TRUE(List->Checked[3]);
}

TEST_F(CheckListBoxTest, TheCheckColumnTogglesWithAnyButtonAndTheTextSelects)
{
    Fill(3);
    List->OnClickCheck = [this](TObject*) { ++Clicks; };
    Show();
    ClickItem(1, OnText);
    EXPECT_EQ(List->ItemIndex, 1);
    EXPECT_FALSE(List->Checked[1]);
    int Expected = 0;
    for (const TMouseButton Button : {mbLeft, mbRight, mbMiddle}) {
        const bool Before = List->Checked[2];
        ClickItem(2, InCheck(), Button);
        EXPECT_NE(List->Checked[2], Before);
        EXPECT_EQ(Clicks, ++Expected);
    }
    const bool Before = List->Checked[2];
    ClickItem(2, InCheck() + 1);
    EXPECT_EQ(List->Checked[2], Before);
}

TEST_F(CheckListBoxTest, StatesFollowEachOther)
{
    Fill(1);
    Show();
    const auto Next = [this] {
        ClickItem(0, 3);
        return List->State[0];
    };
    EXPECT_EQ(Next(), cbChecked);
    EXPECT_EQ(Next(), cbUnchecked);
    List->State[0] = cbGrayed;
    EXPECT_EQ(Next(), cbChecked);
    List->AllowGrayed = true;
    EXPECT_EQ(Next(), cbUnchecked);
    EXPECT_EQ(Next(), cbGrayed);
    EXPECT_EQ(Next(), cbChecked);
    EXPECT_EQ(Next(), cbUnchecked);
}

TEST_F(CheckListBoxTest, SpaceTogglesTheChosenItem)
{
    Fill(3);
    List->OnClickCheck = [this](TObject*) { ++Clicks; };
    Show();
    List->SetFocus();
    EXPECT_EQ(List->ItemIndex, -1);
    TypeKey(VK_SPACE);
    EXPECT_EQ(List->ItemIndex, -1);
    EXPECT_EQ(Clicks, 0);
    List->ItemIndex = 1;
    TypeKey(VK_SPACE);
    EXPECT_TRUE(List->Checked[1]);
    EXPECT_EQ(Clicks, 1);
    List->Checked[1] = false; // by code: nobody is told
    EXPECT_EQ(Clicks, 1);
}

// By real keys: letters that are on no Western keyboard go to the item that begins with them.
TEST_F(CheckListBoxTest, KeysAndMarksWorkWithTextsOfAllScripts)
{
    List->Items->Assign(Strings({"Отмена", "取消", "إلغاء", "שלום world", "Cancel"}));
    Show();
    List->SetFocus();
    int Expected = 0;
    for (const wchar_t Letter : {L'О', L'取', L'إ', L'ש', L'C'}) {
        SendLetter(Letter);
        EXPECT_TRUE(PumpUntil([&] { return List->ItemIndex == Expected; })) << Expected;
        TypeKey(VK_SPACE);
        EXPECT_EQ(CheckedItems(), std::vector<int>{Expected});
        List->Checked[Expected++] = false;
    }
    List->Checked[1] = true;
    List->State[3] = cbGrayed;
    List->Sorted = true;
    EXPECT_TRUE(List->Checked[List->Items->IndexOf("取消")]);
    EXPECT_EQ(List->State[List->Items->IndexOf("שלום world")], cbGrayed);
}

TEST_F(CheckListBoxTest, TextsOfAllScriptsStandBehindTheCheckColumn)
{
    List->Items->Assign(Strings({"Отмена", "取消", "إلغاء", "שלום world"}));
    Add<TEdit>()->TabOrder = 0; // has the focus
    Show();
    List->Update();
    const TPixelImage Screen = ScreenPixels(List);
    const int Column = TkelCheckListBox::GetCheckWidth();
    for (int I = 0; I < List->Items->Count; ++I) {
        const TRect R = List->ItemRect(I);
        TPixelImage Expected(R.Width() - Column, R.Height(), clWindow);
        const TWideString Text = ToWide(List->Items->Strings[I]);
        const HGDIOBJ Old = SelectObject(Expected.DC(), List->Font->Handle);
        SetBkMode(Expected.DC(), TRANSPARENT);
        ExtTextOutW(Expected.DC(), 2, 0, 0, nullptr, Text.c_str(), static_cast<UINT>(Text.size()), nullptr);
        SelectObject(Expected.DC(), Old);
        EXPECT_TRUE(SamePixels(Screen.Part({Column, R.Top, R.Right, R.Bottom}), Expected)) << List->Items->Strings[I];
    }
}

TEST_F(CheckListBoxTest, HandlersMayDeleteTheList)
{
    Fill(3);
    List->OnClickCheck = [this](TObject*) { delete List; };
    Show();
    ClickItem(1, 3);
    EXPECT_EQ(Form->ControlCount, 0);
    List = Add<TkelCheckListBox>();
    Fill(3);
    List->OnClick = [this](TObject*) { delete List; };
    ClickItem(1, OnText);
    EXPECT_EQ(Form->ControlCount, 0);
}

TEST_F(CheckListBoxTest, DrawsABoxInFrontOfEveryItem)
{
    Fill(3);
    List->Checked[1] = true;
    List->State[2] = cbGrayed;
    Show();
    List->Update();
    const TPixelImage Screen = ScreenPixels(List);
    constexpr UINT States[] = {DFCS_BUTTONCHECK, DFCS_BUTTONCHECK | DFCS_CHECKED, DFCS_BUTTON3STATE | DFCS_CHECKED};
    const int Column = TkelCheckListBox::GetCheckWidth();
    for (int I = 0; I < 3; ++I) {
        const TRect R = List->ItemRect(I);
        TPixelImage Expected(Column, R.Height(), clWindow);
        // The box is as large as the system's, two pixels narrower than its column.
        const int Size = Column - 2;
        HBITMAP Checks = LoadBitmapW(nullptr, MAKEINTRESOURCEW(32759));
        BITMAP Info;
        GetObjectW(Checks, sizeof Info, &Info);
        DeleteObject(Checks);
        const int Height = Info.bmHeight / 3;
        EXPECT_EQ(Size, Info.bmWidth / 4);
        const int Top = (R.Height() - Height) / 2;
        RECT Box = {1, Top, 1 + Size, Top + Height};
        DrawFrameControl(Expected.DC(), &Box, DFC_BUTTON, States[I]);
        EXPECT_TRUE(SamePixels(Screen.Part({0, R.Top, Column, R.Bottom}), Expected)) << I;
    }
}

TEST_F(CheckListBoxTest, AStandardListNeverAsksForDrawing)
{
    int Draws = 0;
    List->OnDrawItem = [&](TWinControl*, int, const TRect& Rect, TOwnerDrawState) {
        ++Draws;
        EXPECT_EQ(Rect.Left, TkelCheckListBox::GetCheckWidth());
    };
    Fill(2);
    Show();
    List->Repaint();
    EXPECT_EQ(Draws, 0);
    EXPECT_TRUE(List->OnDrawItem);
    List->Style = lbOwnerDrawFixed;
    List->Repaint();
    EXPECT_GE(Draws, 2);
}

TEST_F(CheckListBoxTest, PaintsItselfOnAnyContext)
{
    Fill(3);
    List->BorderStyle = bsNone;
    List->Checked[1] = true;
    Add<TEdit>()->TabOrder = 0; // has the focus
    Show();
    List->Update();
    const TPixelImage Screen = ScreenPixels(List);
    TPixelImage Other(List->Width, List->Height, clWindow);
    List->Perform(WM_PAINT, reinterpret_cast<uintptr_t>(Other.DC()));
    const TRect Items(0, 0, List->ClientWidth, List->ItemRect(2).Bottom);
    EXPECT_TRUE(SamePixels(Other.Part(Items), Screen.Part(Items)));
}

TEST_F(CheckListBoxTest, AFormKeepsItsItems)
{
    List->Items->CommaText = "one,two";
    const std::string Text = FormText(List);
    EXPECT_THAT(Text, testing::HasSubstr("'one'"));
    ReadFormText(List, "object List: TkelCheckListBox\n  Sorted = True\n  Items.Strings = (\n    'b'\n    'a')\nend\n");
    EXPECT_EQ(List->Items->CommaText, "a,b");
}
