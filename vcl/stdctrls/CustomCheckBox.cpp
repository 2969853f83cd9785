#include "vcl/stdctrls/CustomCheckBox.h"

#include "vcl/system/ClassBuilder.h"

void TCustomCheckBox::Describe(TClassBuilder<TCustomCheckBox>& Class)
{
    Class.Declare<&Self::GetAlignment, &Self::SetAlignment>("Alignment").Default(taRightJustify);
    Class.Declare<&Self::AllowGrayed, &Self::AllowGrayed>("AllowGrayed").Default(false);
    Class.Declare<&Self::GetState, &Self::SetState>("State").Default(cbUnchecked).ReadLast();

    Class.Message<&Self::CNCommand>(CN_COMMAND);
    Class.Message<&Self::CMDialogChar>(CM_DIALOGCHAR);
}

TCustomCheckBox::TCustomCheckBox(TComponent* AOwner) : TButtonControl(AOwner)
{
    ControlStyle = TControlStyle{csSetCaption, csDoubleClicks};
    SetBounds(0, 0, 97, 17);
}

void TCustomCheckBox::CreateParams(TCreateParams& Params)
{
    inherited::CreateParams(Params);
    CreateSubClass(Params, L"BUTTON");
    Params.Style |= BS_3STATE | (FAlignment == taLeftJustify ? BS_LEFTTEXT : 0);
}

void TCustomCheckBox::CreateWnd()
{
    inherited::CreateWnd();
    SendMessageW(Handle, BM_SETCHECK, FState, 0);
}

void TCustomCheckBox::SetAlignment(TLeftRight Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    RecreateWnd();
}

void TCustomCheckBox::SetState(TCheckBoxState Value)
{
    if (FState == Value)
        return;
    FState = Value;
    // BST_UNCHECKED, BST_CHECKED and BST_INDETERMINATE are numbered as the states are.
    if (HandleAllocated())
        SendMessageW(Handle, BM_SETCHECK, Value, 0);
    Changed();
    if (!ClicksDisabled && !IsLoading())
        Click();
}

void TCustomCheckBox::Toggle()
{
    switch (FState) {
    case cbUnchecked: return SetState(AllowGrayed ? cbGrayed : cbChecked);
    case cbChecked: return SetState(cbUnchecked);
    case cbGrayed: return SetState(cbChecked);
    }
}

void TCustomCheckBox::CNCommand(TWMCommand& Message)
{
    if (Message.NotifyCode() == BN_CLICKED || Message.NotifyCode() == BN_DOUBLECLICKED)
        Toggle();
}

void TCustomCheckBox::CMDialogChar(TCMDialogChar& Message)
{
    if (!IsAccel(Message.CharCode, Caption) || !CanFocus()) {
        Inherited(Message);
        return;
    }
    SetFocus();
    if (Focused())
        Toggle();
    Message.Result = 1;
}

int TCustomCheckBox::AccessibleRole() const
{
    return ROLE_SYSTEM_CHECKBUTTON;
}

int TCustomCheckBox::AccessibleState() const
{
    constexpr int States[] = {0, STATE_SYSTEM_CHECKED, STATE_SYSTEM_MIXED};
    return inherited::AccessibleState() | States[FState];
}

bool TCustomCheckBox::AccessibleDefaultAction()
{
    if (!Enabled)
        return false;
    Toggle();
    return true;
}
