#include "vcl/stdctrls/RadioButton.h"

#include "vcl/system/ClassBuilder.h"

void TRadioButton::Describe(TClassBuilder<TRadioButton>& Class)
{
    Class.Property<&Self::GetAlignment, &Self::SetAlignment>("Alignment").Default(taRightJustify);
    Class.PublishAll("Anchors", "BiDiMode", "Caption", "Checked", "Color", "Constraints", "Ctl3D", "DragCursor",
                     "DragKind", "DragMode", "Enabled", "Font", "ParentBiDiMode", "ParentColor", "ParentCtl3D",
                     "ParentFont", "ParentShowHint", "PopupMenu", "ShowHint", "TabOrder");
    Class.Publish("TabStop").Default(false).ReadLast();
    Class.PublishAll("Visible", "OnClick", "OnContextPopup", "OnDblClick", "OnDragDrop", "OnDragOver", "OnEndDrag",
                     "OnEnter", "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove",
                     "OnMouseUp", "OnStartDrag");

    Class.Message<&Self::WMSetFocus>(WM_SETFOCUS);
    Class.Message<&Self::CNCommand>(CN_COMMAND);
    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
}

TRadioButton::TRadioButton(TComponent* AOwner) : TButtonControl(AOwner)
{
    ControlStyle = TControlStyle{csSetCaption, csDoubleClicks};
    SetBounds(0, 0, 113, 17);
    TabStop = false;
}

void TRadioButton::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    CreateSubClass(Params, L"BUTTON");
    Params.Style |= BS_RADIOBUTTON | (FAlignment == taLeftJustify ? BS_LEFTTEXT : 0);
}

void TRadioButton::CreateWnd()
{
    inherited::CreateWnd();
    SendMessageW(Handle, BM_SETCHECK, FChecked, 0);
}

void TRadioButton::SetAlignment(TLeftRight Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    RecreateWnd();
}

void TRadioButton::SetChecked(bool Value)
{
    if (FChecked == Value)
        return;
    FChecked = Value;
    TabStop = Value;
    if (HandleAllocated())
        SendMessageW(Handle, BM_SETCHECK, Value, 0);
    if (!Value)
        return;
    TurnSiblingsOff();
    Changed();
    if (!ClicksDisabled && !IsLoading())
        Click();
}

void TRadioButton::TurnSiblingsOff()
{
    for (int I = 0; Parent && I < Parent->ControlCount; ++I) {
        auto* Sibling = As<TRadioButton>(Parent->Controls[I]);
        if (Sibling && Sibling != this)
            Sibling->SetChecked(false);
    }
}

void TRadioButton::CNCommand(TWMCommand& Message)
{
    if (Message.NotifyCode() == BN_CLICKED)
        SetChecked(true);
    else if (Message.NotifyCode() == BN_DOUBLECLICKED)
        DblClick();
}

// The arrow keys move the mark along with the focus; not every system tells so by itself.
void TRadioButton::WMSetFocus(TMessage& Message)
{
    auto* Before = As<TRadioButton>(FindControl(reinterpret_cast<HWND>(Message.WParam)));
    Inherited(Message);
    if (Before && Before->Parent == Parent && !ClicksDisabled && !IsDesigning())
        SetChecked(true);
}

// Focusing it by its accelerator checks it, as the arrow keys do.
void TRadioButton::CMDialogChar(TCMDialogChar& Message)
{
    if (!IsAccel(Message.CharCode, Caption) || !CanFocus()) {
        Inherited(Message);
        return;
    }
    SetFocus();
    SetChecked(true);
    Message.Result = 1;
}

int TRadioButton::AccessibleRole() const
{
    return ROLE_SYSTEM_RADIOBUTTON;
}

int TRadioButton::AccessibleState() const
{
    return inherited::AccessibleState() | (FChecked ? STATE_SYSTEM_CHECKED : 0);
}

bool TRadioButton::AccessibleDefaultAction()
{
    if (!Enabled)
        return false;
    SetChecked(true);
    return true;
}
