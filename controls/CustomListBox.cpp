#include "controls/CustomListBox.h"

#include "vcl/classes/StillThere.h"
#include "vcl/stdctrls/OwnerDraw.h"
#include "vcl/system/ClassBuilder.h"

void TkelCustomListBox::Describe(TClassBuilder<TkelCustomListBox>& Class)
{
    Class.Declare<&Self::GetBorderStyle, &Self::SetBorderStyle>("BorderStyle").Default(bsSingle);
    Class.Declare<&Self::GetColor, &Self::SetColor>("Color").Default(clWindow).Stored<&Self::IsColorStored>();
    Class.Declare<&Self::GetColumns, &Self::SetColumns>("Columns").Default(0);
    Class.Declare<&Self::GetExtendedSelect, &Self::SetExtendedSelect>("ExtendedSelect").Default(true);
    Class.Declare<&Self::GetIntegralHeight, &Self::SetIntegralHeight>("IntegralHeight").Default(false);
    Class.Declare<&Self::GetItemHeight, &Self::SetItemHeight>("ItemHeight");
    Class.Declare<&Self::GetItems, &Self::SetItems>("Items");
    Class.Declare<&Self::GetMultiSelect, &Self::SetMultiSelect>("MultiSelect").Default(false);
    Class.Declare<&Self::GetParentColor, &Self::SetParentColor>("ParentColor").Default(false);
    Class.Declare<&Self::GetSorted, &Self::SetSorted>("Sorted").Default(false);
    Class.Declare<&Self::GetStyle, &Self::SetStyle>("Style").Default(lbStandard);
    Class.Declare<&Self::GetTabWidth, &Self::SetTabWidth>("TabWidth").Default(0);
    Class.DeclareEvent<&Self::OnDrawItem>("OnDrawItem");
    Class.DeclareEvent<&Self::OnMeasureItem>("OnMeasureItem");
    Class.Publish("TabStop").Default(true);

    Class.Message<&Self::CNCommand>(CN_COMMAND);
    Class.Message<&Self::CNDrawItem>(CN_DRAWITEM);
    Class.Message<&Self::CNMeasureItem>(CN_MEASUREITEM);
    Class.Message<&Self::CMCtl3DChanged>(CM_CTL3DCHANGED);
    Class.Message<&Self::WMLButtonDown>(WM_LBUTTONDOWN);
    Class.Message<&Self::WMPaint>(WM_PAINT);
    Class.Message<&Self::WMSize>(WM_SIZE);
}

TkelCustomListBox::TkelCustomListBox(TComponent* AOwner) : TWinControl(AOwner), FItems(this), FCanvas(this)
{
    ControlStyle = TControlStyle{csSetCaption, csDoubleClicks, csOpaque};
    SetBounds(0, 0, 121, 97);
    TabStop = true;
    ParentColor = false;
}

TkelCustomListBox::~TkelCustomListBox() = default;

// ---- the window

void TkelCustomListBox::CreateParams(TCreateParams& Params)
{
    constexpr DWORD Styles[] = {0, LBS_OWNERDRAWFIXED, LBS_OWNERDRAWVARIABLE, LBS_OWNERDRAWFIXED, LBS_OWNERDRAWFIXED};
    inherited::CreateParams(Params);
    CreateSubClass(Params, L"LISTBOX");
    Params.Style |= WS_HSCROLL | WS_VSCROLL | LBS_HASSTRINGS | LBS_NOTIFY | Styles[FStyle];
    if (FSorted)
        Params.Style |= LBS_SORT;
    if (FMultiSelect)
        Params.Style |= FExtendedSelect ? LBS_EXTENDEDSEL : LBS_MULTIPLESEL;
    if (!FIntegralHeight)
        Params.Style |= LBS_NOINTEGRALHEIGHT;
    if (FColumns > 0)
        Params.Style |= LBS_MULTICOLUMN;
    if (FTabWidth > 0)
        Params.Style |= LBS_USETABSTOPS;
    if (FBorderStyle == bsSingle) {
        if (Ctl3D)
            Params.ExStyle |= WS_EX_CLIENTEDGE;
        else
            Params.Style |= WS_BORDER;
    }
    Params.WindowClass.style &= ~(CS_HREDRAW | CS_VREDRAW);
}

void TkelCustomListBox::CreateWnd()
{
    // The system cuts an integral height already while it creates the window.
    const TRect Bounds = BoundsRect;
    inherited::CreateWnd();
    SetWindowLongPtrW(Handle, GWLP_ID, reinterpret_cast<LONG_PTR>(Handle));
    SetWindowPos(Handle, nullptr, Bounds.Left, Bounds.Top, Bounds.Width(), Bounds.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    if (FTabWidth > 0)
        SendMessageW(Handle, LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&FTabWidth));
    SetColumnWidth();
    FItems.MoveToWindow();
    for (int Index : std::exchange(FKeptSelection, {}))
        SendMessageW(Handle, LB_SETSEL, TRUE, Index);
    SendMessageW(Handle, LB_SETTOPINDEX, std::exchange(FKeptTop, 0), 0);
    SetItemIndex(FKeptIndex);
}

void TkelCustomListBox::DestroyWnd()
{
    FKeptIndex = ItemIndex;
    FKeptTop = TopIndex;
    if (const int Selected = SelCount; Selected > 0) {
        FKeptSelection.resize(static_cast<size_t>(Selected));
        SendMessageW(Handle, LB_GETSELITEMS, Selected, reinterpret_cast<LPARAM>(FKeptSelection.data()));
    }
    FItems.MoveFromWindow();
    inherited::DestroyWnd();
}

template <class T>
void TkelCustomListBox::Remake(T& Field, T Value)
{
    if (Field == Value)
        return;
    Field = Value;
    RecreateWnd();
}

void TkelCustomListBox::SetBorderStyle(TBorderStyle Value)
{
    Remake(FBorderStyle, Value);
}

void TkelCustomListBox::SetExtendedSelect(bool Value)
{
    Remake(FExtendedSelect, Value);
}

void TkelCustomListBox::SetIntegralHeight(bool Value)
{
    Remake(FIntegralHeight, Value);
}

void TkelCustomListBox::SetTabWidth(int Value)
{
    Remake(FTabWidth, std::max(Value, 0));
}

void TkelCustomListBox::SetStyle(TListBoxStyle Value)
{
    Remake(FStyle, Value);
}

// The item index means another thing in a list of several choices: the one that is chosen becomes the one that has the
// focus, and back.
void TkelCustomListBox::SetMultiSelect(bool Value)
{
    if (FMultiSelect == Value)
        return;
    const bool HadWindow = HandleAllocated();
    if (HadWindow)
        DestroyHandle();
    FMultiSelect = Value;
    FKeptSelection.clear();
    if (Value && FKeptIndex >= 0)
        FKeptSelection.push_back(FKeptIndex);
    if (HadWindow)
        UpdateControlState();
}

void TkelCustomListBox::SetSorted(bool Value)
{
    if (FSorted == Value)
        return;
    const bool HadWindow = HandleAllocated();
    if (HadWindow)
        DestroyHandle();
    FSorted = Value;
    FItems.SetSorted(Value);
    if (HadWindow)
        UpdateControlState();
}

int TkelCustomListBox::GetItemHeight() const
{
    if (!HandleAllocated() || FStyle != lbStandard)
        return FItemHeight;
    return const_cast<TkelCustomListBox*>(this)->ItemRect(0).Height();
}

void TkelCustomListBox::SetItemHeight(int Value)
{
    if (Value > 0)
        Remake(FItemHeight, Value);
}

void TkelCustomListBox::SetColumns(int Value)
{
    Value = std::max(Value, 0);
    if (FColumns == Value)
        return;
    const bool IsColumns = FColumns != 0 && Value != 0;
    FColumns = Value;
    if (IsColumns)
        SetColumnWidth();
    else
        RecreateWnd();
}

void TkelCustomListBox::SetColumnWidth()
{
    if (FColumns > 0 && Width > 0 && HandleAllocated())
        SendMessageW(Handle, LB_SETCOLUMNWIDTH, (Width + FColumns - 3) / FColumns, 0);
}

void TkelCustomListBox::WMSize(TMessage& Message)
{
    const TStillThere IsThere(this);
    Inherited(Message);
    if (IsThere)
        SetColumnWidth();
}

void TkelCustomListBox::CMCtl3DChanged(TMessage& Message)
{
    if (FBorderStyle == bsSingle)
        RecreateWnd();
    Inherited(Message);
}

// ---- items

int TkelCustomListBox::GetItemIndex() const
{
    if (!HandleAllocated())
        return FKeptIndex < FItems.Count ? FKeptIndex : -1;
    auto* Self = const_cast<TkelCustomListBox*>(this);
    return static_cast<int>(SendMessageW(Self->GetHandle(), FMultiSelect ? LB_GETCARETINDEX : LB_GETCURSEL, 0, 0));
}

void TkelCustomListBox::SetItemIndex(int Value)
{
    if (!HandleAllocated())
        FKeptIndex = std::max(Value, -1);
    else if (Value != ItemIndex)
        SendMessageW(Handle, FMultiSelect ? LB_SETCARETINDEX : LB_SETCURSEL, Value, 0);
}

bool TkelCustomListBox::GetSelected(int Index)
{
    const auto Result = SendMessageW(Handle, LB_GETSEL, Index, 0);
    if (Result == LB_ERR)
        throw EListError("Index error");
    return Result != 0;
}

void TkelCustomListBox::SetSelected(int Index, bool Value)
{
    if (SendMessageW(Handle, LB_SETSEL, Value, Index) == LB_ERR)
        throw EListError("List Index Error");
}

int TkelCustomListBox::GetSelCount()
{
    return static_cast<int>(SendMessageW(Handle, LB_GETSELCOUNT, 0, 0));
}

int TkelCustomListBox::GetTopIndex()
{
    return static_cast<int>(SendMessageW(Handle, LB_GETTOPINDEX, 0, 0));
}

void TkelCustomListBox::SetTopIndex(int Value)
{
    if (Value != TopIndex)
        SendMessageW(Handle, LB_SETTOPINDEX, Value, 0);
}

int TkelCustomListBox::ItemAtPos(const TPoint& Pos, bool Existing)
{
    if (!ClientRect.Contains(Pos))
        return -1;
    const int Count = ItemCount();
    for (int Index = TopIndex; Index < Count; ++Index) {
        TRect R;
        SendMessageW(Handle, LB_GETITEMRECT, Index, reinterpret_cast<LPARAM>(&R));
        if (R.Contains(Pos))
            return Index;
    }
    return Existing ? -1 : Count;
}

TRect TkelCustomListBox::ItemRect(int Index)
{
    TRect R;
    const int Count = ItemCount();
    if (Index == 0 || Index < Count) {
        SendMessageW(Handle, LB_GETITEMRECT, Index, reinterpret_cast<LPARAM>(&R));
    } else if (Index == Count) {
        SendMessageW(Handle, LB_GETITEMRECT, Index - 1, reinterpret_cast<LPARAM>(&R));
        OffsetRect(R, 0, R.Height());
    }
    return R;
}

intptr_t TkelCustomListBox::GetItemData(int Index)
{
    return RawData(Index);
}

void TkelCustomListBox::SetItemData(int Index, intptr_t Data)
{
    SetRawData(Index, Data);
}

void TkelCustomListBox::DeleteString(int Index)
{
    if (Index >= 0 && Index < ItemCount())
        FItems.DeleteText(Index);
}

void TkelCustomListBox::ResetContent()
{
    FItems.DeleteAll();
}

// ---- mouse and dragging

// With dmAutomatic a press is not the system's before it is known to be no drag. One on a child without a window is the
// child's.
void TkelCustomListBox::WndProc(TMessage& Message)
{
    const bool IsPress = Message.Msg == WM_LBUTTONDOWN || Message.Msg == WM_LBUTTONDBLCLK;
    if (IsPress && !IsDesigning() && DragMode == dmAutomatic && !Dragging() &&
        !ControlAtPos(static_cast<TWMMouse&>(Message).Pos, false)) {
        SetControlFlag(csLButtonDown, true);
        Dispatch(Message);
        return;
    }
    inherited::WndProc(Message);
}

void TkelCustomListBox::WMLButtonDown(TWMMouse& Message)
{
    const TShiftState Shift = KeysToShiftState(Message.Keys());
    const bool Automatic = DragMode == dmAutomatic && !IsDesigning();
    if (Automatic && FMultiSelect && (!Shift.Contains(ssShift) || Shift.Contains(ssCtrl))) {
        const int Index = ItemAtPos(Message.Pos, true);
        if (Index >= 0 && Selected[Index]) {
            // The selection stays, to be dragged as a whole.
            BeginDrag(false);
            return;
        }
    }
    const TStillThere IsThere(this);
    Inherited(Message);
    if (!IsThere || !Automatic || Dragging())
        return;
    if (!FMultiSelect || !(Shift.Contains(ssShift) || Shift.Contains(ssCtrl)))
        BeginDrag(false);
}

// The press that did not become a drag is the click that it would have been.
void TkelCustomListBox::DragCanceled()
{
    POINT Screen;
    GetCursorPos(&Screen);
    const TPoint Pos = ScreenToClient(Screen);
    for (const UINT Msg : {WM_LBUTTONDOWN, WM_LBUTTONUP}) {
        TMessage Message{Msg, 0, MAKELPARAM(Pos.X, Pos.Y), 0};
        DefaultHandler(Message);
    }
}

void TkelCustomListBox::CNCommand(TWMCommand& Message)
{
    switch (Message.NotifyCode()) {
    case LBN_SELCHANGE: Click(); break;
    case LBN_DBLCLK: DblClick(); break;
    default: break;
    }
}

// ---- drawing

void TkelCustomListBox::CNMeasureItem(TMessage& Message)
{
    auto* Item = reinterpret_cast<MEASUREITEMSTRUCT*>(Message.LParam);
    int Height = FItemHeight;
    if (FStyle == lbOwnerDrawVariable)
        MeasureItem(static_cast<int>(Item->itemID), Height);
    Item->itemHeight = static_cast<UINT>(std::max(Height, 1));
    Message.Result = 1;
}

void TkelCustomListBox::MeasureItem(int Index, int& Height)
{
    OnMeasureItem(this, Index, Height);
}

void TkelCustomListBox::CNDrawItem(TMessage& Message)
{
    DrawItemOf(Message);
    Message.Result = 1;
}

void TkelCustomListBox::DrawItemOf(TMessage& Message)
{
    TItemDrawing Drawing(this, FCanvas, Message, Font, Color);
    if (Drawing.Index() >= 0)
        DrawItem(Drawing.Index(), Drawing.Rect(), Drawing.State());
    else
        FCanvas.FillRect(Drawing.Rect());
}

void TkelCustomListBox::DrawItem(int Index, const TRect& Rect, TOwnerDrawState State)
{
    if (OnDrawItem) {
        OnDrawItem(this, Index, Rect, State);
        return;
    }
    FCanvas.FillRect(Rect);
    if (Index < ItemCount())
        FCanvas.TextOut(Rect.Left + 2, Rect.Top, FItems[Index]);
}

// On a context that is not the window's own, the system draws nothing of a list that the application draws.
void TkelCustomListBox::WMPaint(TMessage& Message)
{
    if (HDC Context = reinterpret_cast<HDC>(Message.WParam))
        PaintItems(Context);
    else
        Inherited(Message);
}

void TkelCustomListBox::PaintItems(HDC Context)
{
    DRAWITEMSTRUCT Item{};
    Item.CtlType = ODT_LISTBOX;
    Item.CtlID = GetDlgCtrlID(Handle);
    Item.hwndItem = Handle;
    Item.hDC = Context;
    TRect Clip;
    GetClipBox(Context, &Clip);
    const int Count = ItemCount();
    const int RowHeight = ItemHeight;
    TRect Row(0, 0, ClientWidth, RowHeight);
    const TStillThere IsThere(this);
    for (int Index = TopIndex; IsThere && Index < Count && Row.Top < ClientHeight; ++Index) {
        TRect Common;
        if (IntersectRect(Common, Row, Clip)) {
            Item.itemID = static_cast<UINT>(Index);
            Item.itemState = SendMessageW(Handle, LB_GETSEL, Index, 0) > 0 ? ODS_SELECTED : 0;
            Item.rcItem = Row;
            Perform(CN_DRAWITEM, 0, reinterpret_cast<intptr_t>(&Item));
        }
        OffsetRect(Row, 0, RowHeight);
    }
}

// ---- for assistive technology

int TkelCustomListBox::AccessibleRole() const
{
    return ROLE_SYSTEM_LIST;
}
