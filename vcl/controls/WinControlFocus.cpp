// Focus, tab order and keys of TWinControl.
#include "vcl/classes/StillThere.h"
#include "vcl/controls/DragManager.h"
#include "vcl/controls/FormHost.h"
#include "vcl/controls/WinControl.h"

#include <algorithm>

bool TWinControl::CanFocus() const
{
    if (!ParentFormControl() && !FParentWindow)
        return false;
    // The form itself is not checked: its active control can be set before it is shown.
    for (const TControl* Control = this; Control->GetParent(); Control = Control->GetParent())
        if (!Control->GetVisible() || !Control->GetEnabled())
            return false;
    return true;
}

bool TWinControl::Focused() const
{
    return FHandle && GetFocus() == FHandle;
}

void TWinControl::SetFocus()
{
    if (TFormLink* Form = ParentFormLink())
        Form->FocusControl(this);
    else if (FParentWindow)
        ::SetFocus(GetHandle());
    else
        throw EInvalidOperation("Control '" + GetName() + "' has no parent window");
}

void TWinControl::SetTabStop(bool Value)
{
    if (FTabStop == Value)
        return;
    FTabStop = Value;
    if (FHandle) {
        LONG Style = GetWindowLongW(FHandle, GWL_STYLE);
        SetWindowLongW(FHandle, GWL_STYLE, Value ? Style | WS_TABSTOP : Style & ~WS_TABSTOP);
    }
    Perform(CM_TABSTOPCHANGED);
}

TTabOrder TWinControl::GetTabOrder() const
{
    return GetParent() ? GetParent()->FTabList.PlaceOf(this) : -1;
}

void TWinControl::SetTabOrder(TTabOrder Value)
{
    // While the parent is read from a file, its children are not complete yet: the values are applied afterwards.
    if (GetControlState().Contains(csReadingState))
        FReadTabOrder = Value;
    else if (GetParent() && Value >= 0)
        GetParent()->FTabList.Move(this, Value);
}

void TWinControl::GetTabOrderList(std::vector<TWinControl*>& List) const
{
    FTabList.AppendAll(List);
}

TWinControl* TWinControl::FindNextControl(TWinControl* CurControl, bool GoForward, bool CheckTabStop,
                                          bool CheckParent) const
{
    std::vector<TWinControl*> List;
    GetTabOrderList(List);
    if (List.empty())
        return nullptr;
    auto Count = static_cast<int>(List.size());
    auto Found = std::find(List.begin(), List.end(), CurControl);
    int Start = Found != List.end() ? static_cast<int>(Found - List.begin()) : GoForward ? -1 : 0;
    for (int Step = 1; Step <= Count; ++Step) {
        int Place = ((Start + (GoForward ? Step : -Step)) % Count + Count) % Count;
        TWinControl* Control = List[Place];
        if (Control->CanFocus() && (!CheckTabStop || Control->FTabStop) &&
            (!CheckParent || Control->GetParent() == this))
            return Control;
    }
    return nullptr;
}

void TWinControl::SelectNext(TWinControl* CurControl, bool GoForward, bool CheckTabStop)
{
    if (TWinControl* Next = FindNextControl(CurControl, GoForward, CheckTabStop, !CheckTabStop))
        Next->SetFocus();
}

void TWinControl::DoEnter()
{
    OnEnter(this);
}

void TWinControl::DoExit()
{
    OnExit(this);
}

void TWinControl::CMEnter(TMessage&)
{
    DoEnter();
}

void TWinControl::CMExit(TMessage&)
{
    DoExit();
}

void TWinControl::KeyDown(uint16_t& Key, TShiftState Shift)
{
    OnKeyDown(this, Key, Shift);
}

void TWinControl::KeyPress(char16_t& Key)
{
    OnKeyPress(this, Key);
}

void TWinControl::KeyUp(uint16_t& Key, TShiftState Shift)
{
    OnKeyUp(this, Key, Shift);
}

// True when the key has been handled, or the control deleted.
bool TWinControl::DoKey(TWMKey& Message, void (TWinControl::*Handler)(uint16_t&, TShiftState))
{
    const TStillThere Still(this);
    TFormLink* Form = ParentFormLink();
    if ((Form && Form->WantKey(this, Message)) || !Still)
        return true;
    if (GetControlStyle().Contains(csNoStdEvents))
        return false;
    uint16_t Key = Message.CharCode;
    (this->*Handler)(Key, KeyDataToShiftState(Message.KeyData()));
    Message.CharCode = Key;
    return Key == 0 || !Still;
}

void TWinControl::WMKeyDown(TWMKey& Message)
{
    if (!DoKey(Message, &TWinControl::KeyDown))
        Inherited(Message);
}

void TWinControl::WMKeyUp(TWMKey& Message)
{
    if (!DoKey(Message, &TWinControl::KeyUp))
        Inherited(Message);
}

void TWinControl::WMChar(TWMKey& Message)
{
    const TStillThere Still(this);
    TFormLink* Form = ParentFormLink();
    if ((Form && Form->WantKey(this, Message)) || !Still)
        return;
    if (!GetControlStyle().Contains(csNoStdEvents)) {
        auto Key = static_cast<char16_t>(Message.CharCode);
        KeyPress(Key);
        Message.CharCode = Key;
        if (Key == 0 || !Still)
            return;
    }
    Inherited(Message);
}

// ---- keys before they are dispatched to this control; a result other than 0 stops that

namespace {

// The flag that WM_GETDLGCODE must return for a control to get the key itself.
unsigned WantedBy(uint16_t Key)
{
    switch (Key) {
    case VK_TAB: return DLGC_WANTTAB;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN: return DLGC_WANTARROWS;
    case VK_RETURN:
    case VK_EXECUTE:
    case VK_ESCAPE:
    case VK_CANCEL: return DLGC_WANTALLKEYS;
    default: return 0;
    }
}

} // namespace

void TWinControl::CNKeyDown(TWMKey& Message)
{
    TFormHost::Get().CancelHint();
    if (IsDesigning())
        return;
    if (Perform(CM_CHILDKEY, Message.WParam, reinterpret_cast<intptr_t>(this)) != 0) {
        Message.Result = 1;
        return;
    }
    unsigned Wanted = WantedBy(Message.CharCode);
    TWinControl* Form = ParentFormControl();
    if (Wanted == 0 || !Form || Perform(CM_WANTSPECIALKEY, Message.WParam) != 0)
        return;
    if ((static_cast<unsigned>(Perform(WM_GETDLGCODE)) & Wanted) != 0)
        return;
    if (Form->Perform(CM_DIALOGKEY, Message.WParam, Message.LParam) != 0)
        Message.Result = 1;
}

void TWinControl::CNKeyUp(TWMKey& Message)
{
    if (IsDesigning())
        return;
    unsigned Wanted = WantedBy(Message.CharCode);
    if (Wanted != 0 && Perform(CM_WANTSPECIALKEY, Message.WParam) == 0 &&
        (static_cast<unsigned>(Perform(WM_GETDLGCODE)) & Wanted) == 0 && Message.CharCode == VK_TAB)
        Message.Result = 1;
}

void TWinControl::CNChar(TWMKey& Message)
{
    TWinControl* Form = ParentFormControl();
    if (IsDesigning() || !Form)
        return;
    auto Code = static_cast<unsigned>(Perform(WM_GETDLGCODE));
    if ((Code & (DLGC_WANTCHARS | DLGC_WANTALLKEYS)) == 0 &&
        Form->Perform(CM_DIALOGCHAR, Message.WParam, Message.LParam) != 0)
        Message.Result = 1;
}

void TWinControl::CNSysChar(TWMKey& Message)
{
    TWinControl* Form = ParentFormControl();
    if (IsDesigning() || !Form || Message.CharCode == VK_SPACE)
        return;
    if (Form->Perform(CM_DIALOGCHAR, Message.WParam, Message.LParam) != 0)
        Message.Result = 1;
}
