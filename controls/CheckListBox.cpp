#include "controls/CheckListBox.h"

#include "vcl/classes/StillThere.h"
#include "vcl/graphics/Handle.h"
#include "vcl/system/ClassBuilder.h"
#include "vcl/system/Scope.h"

namespace {

// The size of the system's check boxes, whose bitmap has four by three of them.
TSize CheckSize()
{
    static const TSize Size = [] {
        const TBitmapHandle Checks(LoadBitmapW(nullptr, MAKEINTRESOURCEW(32759)));
        BITMAP Info{};
        GetObjectW(Checks.Get(), sizeof Info, &Info);
        return TSize(Info.bmWidth / 4, Info.bmHeight / 3);
    }();
    return Size;
}

} // namespace

void TkelCheckListBox::Describe(TClassBuilder<TkelCheckListBox>& Class)
{
    Class.Event<&Self::OnClickCheck>("OnClickCheck");
    Class.Publish("Align");
    Class.Value<&Self::AllowGrayed>("AllowGrayed").Default(false);
    Class.PublishAll("BorderStyle", "Color", "Columns", "Ctl3D", "DragCursor", "DragMode", "Enabled", "Font",
                     "IntegralHeight", "ItemHeight", "Items", "ParentColor", "ParentCtl3D", "ParentFont",
                     "ParentShowHint", "PopupMenu", "ShowHint", "Sorted", "Style", "TabOrder", "TabStop", "TabWidth",
                     "Visible", "OnClick", "OnDblClick", "OnDragDrop", "OnDragOver", "OnDrawItem", "OnEndDrag",
                     "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMeasureItem", "OnMouseDown",
                     "OnMouseMove", "OnMouseUp", "OnStartDrag");

    Class.Message<&Self::CMFontChanged>(CM_FONTCHANGED);
}

int TkelCheckListBox::GetCheckWidth()
{
    return CheckSize().cx + 2;
}

// ---- the window

void TkelCheckListBox::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    if (!(Params.Style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)))
        Params.Style |= LBS_OWNERDRAWFIXED;
}

void TkelCheckListBox::CreateWnd()
{
    inherited::CreateWnd();
    ResetItemHeight();
}

void TkelCheckListBox::ResetItemHeight()
{
    if (!HandleAllocated() || Style != lbStandard)
        return;
    Canvas->Font = Font;
    SendMessageW(Handle, LB_SETITEMHEIGHT, 0, Canvas->TextHeight("Wg"));
}

void TkelCheckListBox::CMFontChanged(TMessage& Message)
{
    Inherited(Message);
    ResetItemHeight();
}

// ---- what is kept with an item

TCheckListBoxDataWrapper* TkelCheckListBox::FindWrapper(int Index)
{
    const intptr_t Raw = RawData(Index);
    if (Raw == LB_ERR)
        throw EListError("List Index Error");
    if (Raw == 0)
        return nullptr;
    const auto Found = FWrappers.find(Raw);
    return Found == FWrappers.end() ? nullptr : Found->second.get();
}

TCheckListBoxDataWrapper& TkelCheckListBox::GetWrapper(int Index)
{
    if (TCheckListBoxDataWrapper* Existing = FindWrapper(Index))
        return *Existing;
    auto Wrapper = std::make_unique<TCheckListBoxDataWrapper>();
    TCheckListBoxDataWrapper& Result = *Wrapper;
    const auto Raw = reinterpret_cast<intptr_t>(&Result);
    FWrappers.emplace(Raw, std::move(Wrapper));
    SetRawData(Index, Raw);
    return Result;
}

void TkelCheckListBox::FreeWrapper(int Index)
{
    if (TCheckListBoxDataWrapper* Wrapper = FindWrapper(Index))
        FWrappers.erase(reinterpret_cast<intptr_t>(Wrapper));
}

intptr_t TkelCheckListBox::GetItemData(int Index)
{
    const TCheckListBoxDataWrapper* Wrapper = FindWrapper(Index);
    return Wrapper ? Wrapper->Data : 0;
}

// Without a wrapper the data is 0 already.
void TkelCheckListBox::SetItemData(int Index, intptr_t Data)
{
    GetWrapper(Index).Data = Data;
}

void TkelCheckListBox::DeleteString(int Index)
{
    FreeWrapper(Index);
    inherited::DeleteString(Index);
}

void TkelCheckListBox::ResetContent()
{
    FWrappers.clear();
    inherited::ResetContent();
}

// ---- states

TCheckBoxState TkelCheckListBox::GetState(int Index)
{
    const TCheckListBoxDataWrapper* Wrapper = FindWrapper(Index);
    return Wrapper ? Wrapper->State : TCheckListBoxDataWrapper::GetDefaultState();
}

void TkelCheckListBox::SetState(int Index, TCheckBoxState Value)
{
    if (GetState(Index) == Value)
        return;
    GetWrapper(Index).State = Value;
    InvalidateCheck(Index);
}

bool TkelCheckListBox::GetChecked(int Index)
{
    return GetState(Index) == cbChecked;
}

void TkelCheckListBox::SetChecked(int Index, bool Value)
{
    if (GetChecked(Index) != Value)
        SetState(Index, Value ? cbChecked : cbUnchecked);
}

void TkelCheckListBox::ToggleClickCheck(int Index)
{
    if (Index < 0 || Index >= ItemCount())
        return;
    switch (GetState(Index)) {
    case cbUnchecked: SetState(Index, AllowGrayed ? cbGrayed : cbChecked); break;
    case cbChecked: SetState(Index, cbUnchecked); break;
    case cbGrayed: SetState(Index, cbChecked); break;
    }
    ClickCheck();
}

void TkelCheckListBox::ClickCheck()
{
    OnClickCheck(this);
}

// ---- input

// For the system, a space chooses the first item when there is no choice.
void TkelCheckListBox::KeyDown(uint16_t& Key, TShiftState Shift)
{
    const TStillThere IsThere(this);
    inherited::KeyDown(Key, Shift);
    if (IsThere && Key == VK_SPACE && ItemIndex < 0)
        Key = 0;
}

void TkelCheckListBox::KeyPress(char16_t& Key)
{
    const TStillThere IsThere(this);
    inherited::KeyPress(Key);
    if (IsThere && Key == ' ')
        ToggleClickCheck(ItemIndex);
}

void TkelCheckListBox::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    const TStillThere IsThere(this);
    inherited::MouseDown(Button, Shift, X, Y);
    if (!IsThere || !HandleAllocated())
        return;
    const int Index = ItemAtPos({X, Y}, true);
    if (Index >= 0 && X - ItemRect(Index).Left < GetCheckWidth())
        ToggleClickCheck(Index);
}

// ---- drawing

void TkelCheckListBox::InvalidateCheck(int Index)
{
    if (!HandleAllocated() || !IsWindowVisible(Handle))
        return;
    TRect R = ItemRect(Index);
    R.Right = R.Left + GetCheckWidth();
    InvalidateRect(Handle, &R, !ControlStyle.Contains(csOpaque));
    UpdateWindow(Handle);
}

// What the item itself draws begins behind the column of check boxes.
void TkelCheckListBox::DrawItemOf(TMessage& Message)
{
    reinterpret_cast<DRAWITEMSTRUCT*>(Message.LParam)->rcItem.left += GetCheckWidth();
    inherited::DrawItemOf(Message);
}

void TkelCheckListBox::DrawItem(int Index, const TRect& Rect, TOwnerDrawState ItemState)
{
    if (Index < ItemCount())
        DrawCheck({Rect.Left - GetCheckWidth(), Rect.Top, Rect.Left, Rect.Bottom}, State[Index]);
    if (Style != lbStandard) {
        inherited::DrawItem(Index, Rect, ItemState);
        return;
    }
    const TScopedValue NoHandler(OnDrawItem, nullptr);
    inherited::DrawItem(Index, Rect, ItemState);
}

void TkelCheckListBox::DrawCheck(const TRect& R, TCheckBoxState CheckState)
{
    constexpr UINT States[] = {DFCS_BUTTONCHECK, DFCS_BUTTONCHECK | DFCS_CHECKED, DFCS_BUTTON3STATE | DFCS_CHECKED};
    const TSize Size = CheckSize();
    const int Left = R.Left + (R.Width() - Size.cx) / 2;
    const int Top = R.Top + (R.Height() - Size.cy) / 2;
    TRect Box(Left, Top, Left + Size.cx, Top + Size.cy);
    DrawFrameControl(Canvas->Handle, &Box, DFC_BUTTON, States[CheckState]);
}
