#include "vcl/stdctrls/CustomComboBox.h"

#include "vcl/classes/StillThere.h"
#include "vcl/controls/FormHost.h"
#include "vcl/stdctrls/OwnerDraw.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Guard.h"
#include "vcl/system/Utf.h"

void TCustomComboBox::Describe(TClassBuilder<TCustomComboBox>& Class)
{
    Class.Declare<&Self::AutoComplete, &Self::AutoComplete>("AutoComplete").Default(true);
    Class.Declare<&Self::AutoDropDown, &Self::AutoDropDown>("AutoDropDown").Default(false);
    Class.Declare<&Self::GetCharCase, &Self::SetCharCase>("CharCase").Default(ecNormal);
    Class.Declare<&Self::GetColor, &Self::SetColor>("Color").Default(clWindow).Stored<&Self::IsColorStored>();
    Class.Declare<&Self::DropDownCount, &Self::DropDownCount>("DropDownCount").Default(8);
    Class.Declare<&Self::ImeMode, &Self::ImeMode>("ImeMode").Default(imDontCare);
    Class.Declare<&Self::ImeName, &Self::ImeName>("ImeName");
    Class.Declare<&Self::GetItemHeight, &Self::SetItemHeight>("ItemHeight");
    Class.Declare<&Self::GetItemIndex, &Self::SetItemIndex>("ItemIndex").Default(-1);
    Class.Declare<&Self::GetItems, &Self::SetItems>("Items");
    Class.Declare<&Self::GetMaxLength, &Self::SetMaxLength>("MaxLength").Default(0);
    Class.Declare<&Self::GetParentColor, &Self::SetParentColor>("ParentColor").Default(false);
    Class.Declare<&Self::GetSorted, &Self::SetSorted>("Sorted").Default(false);
    Class.Declare<&Self::GetStyle, &Self::SetStyle>("Style").Default(csDropDown);
    Class.Declare<&Self::GetTabStop, &Self::SetTabStop>("TabStop").Default(true);
    Class.DeclareEvent<&Self::OnChange>("OnChange");
    Class.DeclareEvent<&Self::OnCloseUp>("OnCloseUp");
    Class.DeclareEvent<&Self::OnDrawItem>("OnDrawItem");
    Class.DeclareEvent<&Self::OnDropDown>("OnDropDown");
    Class.DeclareEvent<&Self::OnMeasureItem>("OnMeasureItem");
    Class.DeclareEvent<&Self::OnSelect>("OnSelect");

    Class.Message<&Self::CNCommand>(CN_COMMAND);
    Class.Message<&Self::CNDrawItem>(CN_DRAWITEM);
    Class.Message<&Self::CNMeasureItem>(CN_MEASUREITEM);
    Class.Message<&Self::CMWantSpecialKey>(CM_WANTSPECIALKEY);
    Class.Message<&Self::CMEnter>(CM_ENTER);
}

TCustomComboBox::TCustomComboBox(TComponent* AOwner)
    : TWinControl(AOwner),
      FItems(this, TWindowStrings::ComboBoxMessages),
      FCanvas(this)
{
    ControlStyle = TControlStyle{csCaptureMouse, csSetCaption, csDoubleClicks, csFixedHeight, csReflector};
    SetBounds(0, 0, 145, 25);
    TabStop = true;
    ParentColor = false;
}

// ---- the window

void TCustomComboBox::CreateParams(TCreateParams& Params)
{
    constexpr DWORD Styles[] = {CBS_DROPDOWN, CBS_SIMPLE, CBS_DROPDOWNLIST, CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED,
                                CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE};
    constexpr DWORD Cases[] = {0, CBS_UPPERCASE, CBS_LOWERCASE};
    inherited::CreateParams(Params);
    CreateSubClass(Params, L"COMBOBOX");
    Params.Style |=
        WS_VSCROLL | CBS_HASSTRINGS | CBS_AUTOHSCROLL | Styles[FStyle] | Cases[FCharCase] | (FSorted ? CBS_SORT : 0);
    Params.WindowClass.style &= ~(CS_HREDRAW | CS_VREDRAW);
}

void TCustomComboBox::CreateWnd()
{
    AnsiString Kept = inherited::GetText();
    inherited::CreateWnd();
    SetWindowLongPtrW(Handle, GWLP_ID, reinterpret_cast<LONG_PTR>(Handle));
    if (!IsList()) {
        COMBOBOXINFO Info{};
        Info.cbSize = sizeof Info;
        GetComboBoxInfo(Handle, &Info);
        FEdit = Info.hwndItem;
        SetWindowSubclass(FEdit, &EditProcedure, 0, reinterpret_cast<DWORD_PTR>(this));
    }
    // 0 is sent too: it is the most there can be, while an edit that is told nothing stops at some 30,000 characters.
    SendMessageW(Handle, CB_LIMITTEXT, FMaxLength, 0);
    if (OwnerDrawn()) {
        SendMessageW(Handle, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), FItemHeight);
        if (FStyle == csOwnerDrawFixed)
            SendMessageW(Handle, CB_SETITEMHEIGHT, 0, FItemHeight);
    }
    FItems.MoveToWindow();
    if (IsList() && FKeptIndex < 0)
        FKeptIndex = FItems.IndexOf(Kept);
    SetItemIndex(FKeptIndex);
    // Choosing an item has put its text into the edit; the text that was there comes back.
    if (!IsList())
        SetWindowTextW(Handle, TWideText(Kept).c_str());
}

void TCustomComboBox::DestroyWnd()
{
    FKeptIndex = GetItemIndex();
    AnsiString Kept = Text;
    FItems.MoveFromWindow();
    FEdit = nullptr;
    inherited::DestroyWnd();
    inherited::StoreText(Kept);
}

LRESULT CALLBACK TCustomComboBox::EditProcedure(HWND Edit, UINT Msg, WPARAM WParam, LPARAM LParam, UINT_PTR,
                                                DWORD_PTR Data)
{
    auto* Combo = reinterpret_cast<TCustomComboBox*>(Data);
    TMessage Message{Msg, WParam, LParam, 0};
    TStillThere Here(Combo);
    bool Done = false;
    try {
        Done = Combo->FEdit == Edit && Combo->ForEdit(Message);
    } catch (...) {
        ReportException(Here ? Combo : nullptr);
    }
    return Done ? Message.Result : DefSubclassProc(Edit, Msg, WParam, LParam);
}

// Messages of the edit window that the control handles itself. True when nothing is left to do; DefaultHandler passes
// on to the edit what it should get.
bool TCustomComboBox::ForEdit(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_SETFOCUS: {
        TFormLink* Form = ParentFormLink();
        return Form && !Form->SetFocusedControl(this);
    }
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP: {
        bool Outer = std::exchange(FFromEdit, true);
        TStillThere Here(this);
        MainWndProc(Message);
        if (Here)
            FFromEdit = Outer;
        return true;
    }
    case WM_CONTEXTMENU: {
        if (!PopupMenu)
            return false;
        MainWndProc(Message);
        return Message.Result != 0;
    }
    default: return false;
    }
}

void TCustomComboBox::DefaultHandler(TMessage& Message)
{
    if (!FFromEdit || !FEdit) {
        inherited::DefaultHandler(Message);
        return;
    }
    FFromEdit = false;
    Message.Result = DefSubclassProc(FEdit, Message.Msg, Message.WParam, Message.LParam);
}

bool TCustomComboBox::Focused() const
{
    HWND Focus = GetFocus();
    return inherited::Focused() || (FEdit && Focus == FEdit);
}

// ---- notifications

void TCustomComboBox::CNCommand(TWMCommand& Message)
{
    const TStillThere Here(this);
    switch (Message.NotifyCode()) {
    case CBN_DBLCLK: DblClick(); break;
    case CBN_EDITCHANGE:
        if (FTyping)
            CompleteText();
        Change();
        break;
    case CBN_DROPDOWN:
        DropDown();
        if (!Here || !HandleAllocated())
            break;
        AdjustDropDown();
        // The list opens behind the handler, even where it is not seen any more.
        if (!Showing || !Focused())
            PostMessageW(Handle, CB_SHOWDROPDOWN, FALSE, 0);
        break;
    case CBN_CLOSEUP: CloseUp(); break;
    case CBN_SELCHANGE:
        // The edit follows only later; handlers expect the new text.
        if (!IsList() && GetItemIndex() >= 0)
            SetWindowTextW(Handle, TWideText(FItems[GetItemIndex()]).c_str());
        Click();
        if (Here)
            Select();
        break;
    default: break;
    }
}

void TCustomComboBox::Select()
{
    if (OnSelect)
        OnSelect(this);
    else
        Change();
}

void TCustomComboBox::CMEnter(TMessage& Message)
{
    if (FEdit && !ControlState.Contains(csLButtonDown))
        SelectAll();
    Inherited(Message);
}

// While the list is down, Enter and Escape close it and do not reach the form's buttons.
void TCustomComboBox::CMWantSpecialKey(TMessage& Message)
{
    Inherited(Message);
    if ((Message.WParam == VK_RETURN || Message.WParam == VK_ESCAPE) && DroppedDown)
        Message.Result = 1;
}

// ---- typing

void TCustomComboBox::KeyPress(char16_t& Key)
{
    const TStillThere Here(this);
    inherited::KeyPress(Key);
    if (!Here)
        return;
    FTyping = Key >= VK_SPACE && AutoComplete;
    if (Key >= VK_SPACE && AutoDropDown && !DroppedDown)
        DroppedDown = true;
    if (Here && IsList() && FTyping && FindTyped(Key))
        Key = 0;
}

// Adds what is missing to the item that begins with the text, selected so that typing goes on over it.
void TCustomComboBox::CompleteText()
{
    FTyping = false;
    TWideString Typed = ToWide(Text);
    auto Selection = static_cast<DWORD>(SendMessageW(Handle, CB_GETEDITSEL, 0, 0));
    if (Typed.empty() || LOWORD(Selection) != Typed.size())
        return;
    auto Found = SendMessageW(Handle, CB_FINDSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(Typed.c_str()));
    if (Found < 0)
        return;
    SendMessageW(Handle, CB_SETCURSEL, static_cast<WPARAM>(Found), 0);
    SendMessageW(Handle, CB_SETEDITSEL, 0, MAKELPARAM(Typed.size(), -1));
}

// True when the key follows others that were typed just before; a single letter is left to the system.
bool TCustomComboBox::FindTyped(char16_t Key)
{
    const TWideString& Typed = FTypeAhead.Type(Key);
    if (Typed.size() == 1)
        return false;
    auto Found = SendMessageW(Handle, CB_FINDSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(Typed.c_str()));
    if (Found < 0) {
        FTypeAhead.Drop();
    } else if (Found != GetItemIndex()) {
        const TStillThere Here(this);
        SetItemIndex(static_cast<int>(Found));
        Click();
        if (Here)
            Select();
    }
    return true;
}

// ---- drawing

void TCustomComboBox::CNDrawItem(TMessage& Message)
{
    TItemDrawing Drawing(this, FCanvas, Message, Font, Color);
    DrawItem(Drawing.Index(), Drawing.Rect(), Drawing.State());
    Message.Result = 1;
}

void TCustomComboBox::DrawItem(int Index, const TRect& Rect, TOwnerDrawState State)
{
    if (OnDrawItem) {
        OnDrawItem(this, Index, Rect, State);
        return;
    }
    FCanvas.FillRect(Rect);
    if (Index >= 0 && Index < FItems.Count)
        FCanvas.TextOut(Rect.Left + 2, Rect.Top, FItems[Index]);
}

void TCustomComboBox::CNMeasureItem(TMessage& Message)
{
    auto* Item = reinterpret_cast<MEASUREITEMSTRUCT*>(Message.LParam);
    int Height = FItemHeight;
    if (FStyle == csOwnerDrawVariable)
        MeasureItem(static_cast<int>(Item->itemID), Height);
    Item->itemHeight = static_cast<UINT>(std::max(Height, 1));
    Message.Result = 1;
}

// ---- for assistive technology

// Its text is its value, not its name; the name is the text of the label beside it.
AnsiString TCustomComboBox::AccessibleName() const
{
    return "";
}

int TCustomComboBox::AccessibleRole() const
{
    return ROLE_SYSTEM_COMBOBOX;
}
