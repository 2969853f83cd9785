#include "vcl/stdctrls/CustomListBox.h"

#include "vcl/classes/ListIndex.h"
#include "vcl/stdctrls/OwnerDraw.h"
#include "vcl/stdctrls/TextMeasure.h"
#include "vcl/system/ClassBuilder.h"

void TCustomListBox::Describe(TClassBuilder<TCustomListBox>& Class)
{
    Class.Declare<&Self::AutoComplete, &Self::AutoComplete>("AutoComplete").Default(true);
    Class.Declare<&Self::GetBorderStyle, &Self::SetBorderStyle>("BorderStyle").Default(bsSingle);
    Class.Declare<&Self::GetColor, &Self::SetColor>("Color").Default(clWindow).Stored<&Self::IsColorStored>();
    Class.Declare<&Self::GetColumns, &Self::SetColumns>("Columns").Default(0);
    Class.Declare<&Self::GetExtendedSelect, &Self::SetExtendedSelect>("ExtendedSelect").Default(true);
    Class.Declare<&Self::ImeMode, &Self::ImeMode>("ImeMode").Default(imDontCare);
    Class.Declare<&Self::ImeName, &Self::ImeName>("ImeName");
    Class.Declare<&Self::GetIntegralHeight, &Self::SetIntegralHeight>("IntegralHeight").Default(false);
    Class.Declare<&Self::GetItemHeight, &Self::SetItemHeight>("ItemHeight");
    Class.Declare<&Self::GetItems, &Self::SetItems>("Items");
    Class.Declare<&Self::GetMultiSelect, &Self::SetMultiSelect>("MultiSelect").Default(false);
    Class.Declare<&Self::GetParentColor, &Self::SetParentColor>("ParentColor").Default(false);
    Class.Declare<&Self::GetScrollWidth, &Self::SetScrollWidth>("ScrollWidth").Default(0);
    Class.Declare<&Self::GetSorted, &Self::SetSorted>("Sorted").Default(false);
    Class.Declare<&Self::GetStyle, &Self::SetStyle>("Style").Default(lbStandard);
    Class.Declare<&Self::GetTabStop, &Self::SetTabStop>("TabStop").Default(true);
    Class.Declare<&Self::GetTabWidth, &Self::SetTabWidth>("TabWidth").Default(0);
    Class.DeclareEvent<&Self::OnData>("OnData");
    Class.DeclareEvent<&Self::OnDataFind>("OnDataFind");
    Class.DeclareEvent<&Self::OnDataObject>("OnDataObject");
    Class.DeclareEvent<&Self::OnDrawItem>("OnDrawItem");
    Class.DeclareEvent<&Self::OnMeasureItem>("OnMeasureItem");

    Class.Message<&Self::CNCommand>(CN_COMMAND);
    Class.Message<&Self::CNDrawItem>(CN_DRAWITEM);
    Class.Message<&Self::CNMeasureItem>(CN_MEASUREITEM);
    Class.Message<&Self::CMCtl3DChanged>(CM_CTL3DCHANGED);
}

TCustomListBox::TCustomListBox(TComponent* AOwner) : TWinControl(AOwner), FItems(this), FCanvas(this)
{
    ControlStyle = TControlStyle{csSetCaption, csDoubleClicks, csOpaque};
    SetBounds(0, 0, 121, 97);
    TabStop = true;
    ParentColor = false;
}

// ---- the window

void TCustomListBox::CreateParams(TCreateParams& Params)
{
    constexpr DWORD Styles[] = {0, LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS,
                                LBS_OWNERDRAWFIXED | LBS_NODATA, LBS_OWNERDRAWFIXED | LBS_NODATA};
    inherited::CreateParams(Params);
    CreateSubClass(Params, L"LISTBOX");
    Params.Style |= WS_HSCROLL | LBS_NOTIFY | Styles[FStyle] | (FSorted && !IsVirtual() ? LBS_SORT : 0) |
                    (FColumns > 0 ? LBS_MULTICOLUMN : WS_VSCROLL) | (FIntegralHeight ? 0 : LBS_NOINTEGRALHEIGHT) |
                    (FTabWidth > 0 ? LBS_USETABSTOPS : 0);
    if (FMultiSelect)
        Params.Style |= FExtendedSelect ? LBS_EXTENDEDSEL : LBS_MULTIPLESEL;
    if (FBorderStyle == bsSingle) {
        if (Ctl3D)
            Params.ExStyle |= WS_EX_CLIENTEDGE;
        else
            Params.Style |= WS_BORDER;
    }
    Params.WindowClass.style &= ~(CS_HREDRAW | CS_VREDRAW);
}

void TCustomListBox::CreateWnd()
{
    // Integral heights are the window's; the control keeps its own to come back to.
    inherited::CreateWnd();
    SetWindowLongPtrW(Handle, GWLP_ID, reinterpret_cast<LONG_PTR>(Handle));
    if (FStyle == lbVirtual)
        FItemHeight = LineHeight(Font);
    if (OwnerDrawn() && FStyle != lbOwnerDrawVariable)
        SendMessageW(Handle, LB_SETITEMHEIGHT, 0, FItemHeight);
    if (FTabWidth > 0)
        SendMessageW(Handle, LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&FTabWidth));
    SendMessageW(Handle, LB_SETHORIZONTALEXTENT, FScrollWidth, 0);
    UpdateColumnWidth();
    if (IsVirtual())
        SendMessageW(Handle, LB_SETCOUNT, FVirtualCount, 0);
    else
        FItems.MoveToWindow();
    for (int Index : FKeptSelection)
        SendMessageW(Handle, LB_SETSEL, TRUE, Index);
    FKeptSelection.clear();
    SetItemIndex(FKeptIndex);
    if (FKeptTop > 0)
        SendMessageW(Handle, LB_SETTOPINDEX, FKeptTop, 0);
}

void TCustomListBox::DestroyWnd()
{
    FKeptIndex = GetItemIndex();
    FKeptTop = GetTopIndex();
    if (FMultiSelect) {
        FKeptSelection.resize(static_cast<size_t>(GetSelCount()));
        SendMessageW(Handle, LB_GETSELITEMS, FKeptSelection.size(), reinterpret_cast<LPARAM>(FKeptSelection.data()));
    }
    if (!IsVirtual())
        FItems.MoveFromWindow();
    inherited::DestroyWnd();
}

void TCustomListBox::CNCommand(TWMCommand& Message)
{
    switch (Message.NotifyCode()) {
    case LBN_SELCHANGE:
        Changed();
        Click();
        break;
    case LBN_DBLCLK: DblClick(); break;
    default: break;
    }
}

void TCustomListBox::KeyPress(char16_t& Key)
{
    const TStillThere Here(this);
    inherited::KeyPress(Key);
    if (!Here || !AutoComplete || Key < VK_SPACE || FMultiSelect)
        return;
    const TWideString& Typed = FTypeAhead.Type(Key);
    // A letter alone goes on from the chosen item, as the list box does by itself.
    if (Typed.size() == 1 && !IsVirtual())
        return;
    int Found = IsVirtual() ? FItems.IndexOf(FromWide(Typed))
                            : static_cast<int>(SendMessageW(Handle, LB_FINDSTRING, static_cast<WPARAM>(-1),
                                                            reinterpret_cast<LPARAM>(Typed.c_str())));
    Key = 0;
    if (!Here)
        return;
    if (Found < 0) {
        FTypeAhead.Drop();
        return;
    }
    if (Found == GetItemIndex())
        return;
    SetItemIndex(Found);
    Changed();
    Click();
}

// ---- drawing

void TCustomListBox::CNDrawItem(TMessage& Message)
{
    TItemDrawing Drawing(this, FCanvas, Message, Font, Color);
    DrawItem(Drawing.Index(), Drawing.Rect(), Drawing.State());
    Message.Result = 1;
}

void TCustomListBox::DrawItem(int Index, const TRect& Rect, TOwnerDrawState State)
{
    if (OnDrawItem && FStyle != lbVirtual) {
        OnDrawItem(this, Index, Rect, State);
        return;
    }
    FCanvas.FillRect(Rect);
    if (Index < 0 || Index >= Count)
        return;
    const TStillThere Here(this);
    const AnsiString Text = FItems[Index];
    if (Here && FCanvas.HandleAllocated())
        FCanvas.TextOut(Rect.Left + 2, Rect.Top, Text);
}

void TCustomListBox::CNMeasureItem(TMessage& Message)
{
    auto* Item = reinterpret_cast<MEASUREITEMSTRUCT*>(Message.LParam);
    int Height = FItemHeight;
    if (FStyle == lbOwnerDrawVariable)
        MeasureItem(static_cast<int>(Item->itemID), Height);
    Item->itemHeight = static_cast<UINT>(std::max(Height, 1));
    Message.Result = 1;
}

// ---- items

void TCustomListBox::CheckItem(int Index) const
{
    CheckListIndex(Index, FItems.Count);
}

void TCustomListBox::SetCount(int Value)
{
    if (!IsVirtual())
        throw EListError("Listbox (" + Name + ") style must be virtual in order to set Count");
    FVirtualCount = std::max(Value, 0);
    if (HandleAllocated())
        SendMessageW(Handle, LB_SETCOUNT, FVirtualCount, 0);
}

int TCustomListBox::GetItemIndex() const
{
    if (!HandleAllocated())
        return FKeptIndex < FItems.Count ? FKeptIndex : -1;
    auto* Self = const_cast<TCustomListBox*>(this);
    return static_cast<int>(SendMessageW(Self->GetHandle(), FMultiSelect ? LB_GETCARETINDEX : LB_GETCURSEL, 0, 0));
}

void TCustomListBox::SetItemIndex(int Value)
{
    if (!HandleAllocated())
        FKeptIndex = std::max(Value, -1);
    else if (FMultiSelect)
        SendMessageW(Handle, LB_SETCARETINDEX, Value, 0);
    else
        SendMessageW(Handle, LB_SETCURSEL, Value, 0);
}

bool TCustomListBox::GetSelected(int Index)
{
    CheckItem(Index);
    return SendMessageW(Handle, LB_GETSEL, Index, 0) > 0;
}

void TCustomListBox::SetSelected(int Index, bool Value)
{
    CheckItem(Index);
    if (FMultiSelect)
        SendMessageW(Handle, LB_SETSEL, Value, Index);
    else if (Value)
        SetItemIndex(Index);
    else if (Index == GetItemIndex())
        SetItemIndex(-1);
}

int TCustomListBox::GetSelCount()
{
    if (!FMultiSelect)
        return GetItemIndex() >= 0 ? 1 : 0;
    return static_cast<int>(SendMessageW(Handle, LB_GETSELCOUNT, 0, 0));
}

int TCustomListBox::GetTopIndex()
{
    return static_cast<int>(SendMessageW(Handle, LB_GETTOPINDEX, 0, 0));
}

void TCustomListBox::SetTopIndex(int Value)
{
    SendMessageW(Handle, LB_SETTOPINDEX, Value, 0);
}

int TCustomListBox::ItemAtPos(const TPoint& Pos, bool Existing)
{
    if (!ClientRect.Contains(Pos))
        return -1;
    int Index = GetTopIndex();
    for (; Index < Count; ++Index)
        if (ItemRect(Index).Contains(Pos))
            return Index;
    return Existing ? -1 : Index;
}

TRect TCustomListBox::ItemRect(int Index)
{
    TRect R;
    if (Index == 0 || Index < Count)
        SendMessageW(Handle, LB_GETITEMRECT, Index, reinterpret_cast<LPARAM>(&R));
    else if (Index == Count) {
        SendMessageW(Handle, LB_GETITEMRECT, Index - 1, reinterpret_cast<LPARAM>(&R));
        OffsetRect(R, 0, R.Height());
    }
    return R;
}

void TCustomListBox::ClearSelection()
{
    if (FMultiSelect)
        SendMessageW(Handle, LB_SETSEL, FALSE, -1);
    else
        SetItemIndex(-1);
}

void TCustomListBox::SelectAll()
{
    if (FMultiSelect)
        SendMessageW(Handle, LB_SETSEL, TRUE, -1);
}

void TCustomListBox::DeleteSelected()
{
    TStringsUpdate Update(&FItems);
    for (int I = Count - 1; I >= 0; --I)
        if (GetSelected(I))
            FItems.Delete(I);
}

int TCustomListBox::AccessibleRole() const
{
    return ROLE_SYSTEM_LIST;
}
