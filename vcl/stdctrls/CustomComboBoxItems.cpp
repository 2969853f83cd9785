// The items of a combo box, its text, and the properties that decide how its window is made.
#include "vcl/stdctrls/CustomComboBox.h"

#include "vcl/stdctrls/TextMeasure.h"

int TCustomComboBox::GetItemIndex() const
{
    if (!HandleAllocated())
        return FKeptIndex;
    auto* Self = const_cast<TCustomComboBox*>(this);
    return static_cast<int>(SendMessageW(Self->GetHandle(), CB_GETCURSEL, 0, 0));
}

void TCustomComboBox::SetItemIndex(int Value)
{
    if (HandleAllocated()) {
        SendMessageW(Handle, CB_SETCURSEL, Value, 0);
        return;
    }
    // A form file gives the number before the items.
    FKeptIndex = Value >= 0 && (IsLoading() || Value < FItems.Count) ? Value : -1;
    if (!IsLoading())
        inherited::StoreText(FKeptIndex >= 0 ? FItems[FKeptIndex] : "");
}

AnsiString TCustomComboBox::GetText() const
{
    if (!IsList())
        return inherited::GetText();
    int Index = GetItemIndex();
    if (Index >= 0 && Index < FItems.Count)
        return FItems[Index];
    return HandleAllocated() ? "" : inherited::GetText();
}

void TCustomComboBox::StoreText(const AnsiString& Value)
{
    if (!IsList()) {
        inherited::StoreText(Value);
        return;
    }
    int Index = FItems.IndexOf(Value);
    if (HandleAllocated() || Index >= 0)
        SetItemIndex(Index);
    else
        inherited::StoreText(Value);
}

void TCustomComboBox::Clear()
{
    FItems.Clear();
    FKeptIndex = -1;
    SetText("");
}

void TCustomComboBox::SelectAll()
{
    SendMessageW(Handle, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
}

bool TCustomComboBox::GetDroppedDown() const
{
    auto* Self = const_cast<TCustomComboBox*>(this);
    return HandleAllocated() && SendMessageW(Self->GetHandle(), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

void TCustomComboBox::SetDroppedDown(bool Value)
{
    SendMessageW(Handle, CB_SHOWDROPDOWN, Value, 0);
}

// The window's height, as it is set, is that of the box and the list together.
void TCustomComboBox::AdjustDropDown()
{
    int Shown = std::clamp(FItems.Count, 1, std::max(DropDownCount, 1));
    auto Item = static_cast<int>(SendMessageW(Handle, CB_GETITEMHEIGHT, 0, 0));
    SetWindowPos(Handle, nullptr, 0, 0, Width, Height + Item * Shown + 2,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
}

void TCustomComboBox::SetCharCase(TEditCharCase Value)
{
    if (FCharCase == Value)
        return;
    FCharCase = Value;
    RecreateWnd();
}

int TCustomComboBox::GetItemHeight() const
{
    if (OwnerDrawn() || !HandleAllocated())
        return FItemHeight;
    auto* Self = const_cast<TCustomComboBox*>(this);
    return static_cast<int>(SendMessageW(Self->GetHandle(), CB_GETITEMHEIGHT, 0, 0));
}

void TCustomComboBox::SetItemHeight(int Value)
{
    if (FItemHeight == Value || Value <= 0)
        return;
    FItemHeight = Value;
    if (OwnerDrawn())
        RecreateWnd();
}

void TCustomComboBox::SetMaxLength(int Value)
{
    Value = std::max(Value, 0);
    if (FMaxLength == Value)
        return;
    FMaxLength = Value;
    if (HandleAllocated())
        SendMessageW(Handle, CB_LIMITTEXT, Value, 0);
}

void TCustomComboBox::SetSorted(bool Value)
{
    if (FSorted == Value)
        return;
    FSorted = Value;
    AnsiString Kept = Text;
    if (HandleAllocated())
        DestroyHandle();
    FItems.SetSorted(Value);
    if (!IsLoading() && FKeptIndex >= 0)
        FKeptIndex = FItems.IndexOf(Kept);
    UpdateControlState();
}

void TCustomComboBox::SetStyle(TComboBoxStyle Value)
{
    if (FStyle == Value)
        return;
    FStyle = Value;
    SetStyleFlag(csFixedHeight, Value != csSimple);
    RecreateWnd();
}
