#include "vcl/stdctrls/Button.h"

#include "vcl/controls/FormHost.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/system/ClassBuilder.h"

void TButton::Describe(TClassBuilder<TButton>& Class)
{
    Class.Publish("Anchors");
    Class.Publish("BiDiMode");
    Class.Value<&Self::Cancel>("Cancel").Default(false);
    Class.Publish("Caption");
    Class.Publish("Constraints");
    Class.Property<&Self::GetDefault, &Self::SetDefault>("Default").Default(false);
    Class.PublishAll("DragCursor", "DragKind", "DragMode", "Enabled", "Font");
    Class.Value<&Self::ModalResult>("ModalResult").Default(mrNone);
    Class.PublishAll("ParentBiDiMode", "ParentFont", "ParentShowHint", "PopupMenu", "ShowHint", "TabOrder", "TabStop",
                     "Visible", "OnClick", "OnContextPopup", "OnDragDrop", "OnDragOver", "OnEndDrag", "OnEnter",
                     "OnExit", "OnKeyDown", "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp",
                     "OnStartDrag");

    Class.Message<&Self::CNCommand>(CN_COMMAND);
    Class.Message<&Self::CMDialogKey>(CM_DIALOGKEY);
    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
    Class.Message<&Self::CMFocusChanged>(CM_FOCUSCHANGED);
}

TButton::TButton(TComponent* AOwner) : TButtonControl(AOwner)
{
    ControlStyle = TControlStyle{csSetCaption, csDoubleClicks};
    SetBounds(0, 0, 75, 25);
}

void TButton::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    CreateSubClass(Params, L"BUTTON");
    Params.Style |= FDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
}

void TButton::CreateWnd()
{
    inherited::CreateWnd();
    FActive = FDefault;
}

void TButton::SetButtonStyle(bool ADefault)
{
    SendStyle(ADefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
}

void TButton::SetDefault(bool Value)
{
    FDefault = Value;
    TFormLink* Form = ParentFormLink();
    if (HandleAllocated() && Form)
        Perform(CM_FOCUSCHANGED, 0, reinterpret_cast<intptr_t>(Form->GetActiveControl()));
}

void TButton::Click()
{
    if (TCustomForm* Form = GetParentForm(this))
        Form->ModalResult = ModalResult;
    inherited::Click();
}

void TButton::CNCommand(TWMCommand& Message)
{
    if (Message.NotifyCode() == BN_CLICKED)
        Click();
}

void TButton::CMDialogKey(TCMDialogKey& Message)
{
    bool Wanted = Message.CharCode == VK_RETURN ? FActive : Message.CharCode == VK_ESCAPE && Cancel;
    if (!Wanted || !KeyDataToShiftState(Message.KeyData()).Empty() || !CanFocus()) {
        Inherited(Message);
        return;
    }
    Click();
    Message.Result = 1;
}

void TButton::CMDialogChar(TCMDialogChar& Message)
{
    if (!IsAccel(Message.CharCode, Caption) || !CanFocus()) {
        Inherited(Message);
        return;
    }
    Click();
    Message.Result = 1;
}

// The default button hands its part over to another button as long as that one has the focus.
void TButton::CMFocusChanged(TMessage& Message)
{
    auto* Control = reinterpret_cast<TWinControl*>(Message.LParam);
    bool WasActive = FActive;
    FActive = As<TButton>(Control) ? Control == this : FDefault;
    if (FActive != WasActive)
        SetButtonStyle(FActive);
    Inherited(Message);
}

int TButton::AccessibleRole() const
{
    return ROLE_SYSTEM_PUSHBUTTON;
}

int TButton::AccessibleState() const
{
    return inherited::AccessibleState() | (FActive ? STATE_SYSTEM_DEFAULT : 0);
}
