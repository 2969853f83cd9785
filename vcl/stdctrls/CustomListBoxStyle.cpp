// The properties that decide how a list box's window is made.
#include "vcl/stdctrls/CustomListBox.h"

void TCustomListBox::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TCustomListBox::CMCtl3DChanged(TMessage& Message)
{
    if (FBorderStyle == bsSingle)
        RecreateWnd();
    Inherited(Message);
}

void TCustomListBox::SetColumns(int Value)
{
    Value = std::max(Value, 0);
    if (FColumns == Value)
        return;
    bool WasOne = FColumns == 0;
    FColumns = Value;
    if (WasOne || Value == 0)
        RecreateWnd();
    else
        UpdateColumnWidth();
}

void TCustomListBox::UpdateColumnWidth()
{
    if (FColumns > 0 && HandleAllocated() && Width > 0)
        SendMessageW(Handle, LB_SETCOLUMNWIDTH, (Width + FColumns - 3) / FColumns, 0);
}

void TCustomListBox::Resize()
{
    UpdateColumnWidth();
    inherited::Resize();
}

void TCustomListBox::SetExtendedSelect(bool Value)
{
    if (FExtendedSelect == Value)
        return;
    FExtendedSelect = Value;
    RecreateWnd();
}

void TCustomListBox::SetMultiSelect(bool Value)
{
    if (FMultiSelect == Value)
        return;
    int Index = GetItemIndex();
    if (HandleAllocated())
        DestroyHandle();
    FMultiSelect = Value;
    FKeptIndex = Index;
    UpdateControlState();
}

void TCustomListBox::SetIntegralHeight(bool Value)
{
    if (FIntegralHeight == Value)
        return;
    FIntegralHeight = Value;
    RecreateWnd();
}

int TCustomListBox::GetItemHeight() const
{
    if (OwnerDrawn() || !HandleAllocated())
        return FItemHeight;
    auto* Self = const_cast<TCustomListBox*>(this);
    return static_cast<int>(SendMessageW(Self->GetHandle(), LB_GETITEMHEIGHT, 0, 0));
}

void TCustomListBox::SetItemHeight(int Value)
{
    if (FItemHeight == Value || Value <= 0)
        return;
    FItemHeight = Value;
    if (OwnerDrawn())
        RecreateWnd();
}

void TCustomListBox::SetScrollWidth(int Value)
{
    Value = std::max(Value, 0);
    if (FScrollWidth == Value)
        return;
    FScrollWidth = Value;
    if (HandleAllocated())
        SendMessageW(Handle, LB_SETHORIZONTALEXTENT, FScrollWidth, 0);
}

void TCustomListBox::SetSorted(bool Value)
{
    if (FSorted == Value)
        return;
    FSorted = Value;
    if (HandleAllocated())
        DestroyHandle();
    FItems.SetSorted(Value);
    UpdateControlState();
}

void TCustomListBox::SetStyle(TListBoxStyle Value)
{
    if (FStyle == Value)
        return;
    if (HandleAllocated())
        DestroyHandle();
    // Items of its own are of no use to a virtual list.
    if (!IsVirtual() && Value >= lbVirtual)
        FItems.Clear();
    FStyle = Value;
    UpdateControlState();
}

void TCustomListBox::SetTabWidth(int Value)
{
    Value = std::max(Value, 0);
    if (FTabWidth == Value)
        return;
    FTabWidth = Value;
    RecreateWnd();
}
