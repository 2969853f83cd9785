#include "vcl/stdctrls/ButtonControl.h"

#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"

void TButtonControl::Describe(TClassBuilder<TButtonControl>& Class)
{
    Class.Declare<&Self::GetChecked, &Self::SetChecked>("Checked").Default(false);
    Class.Declare<&Self::GetTabStop, &Self::SetTabStop>("TabStop").Default(true);
}

TButtonControl::TButtonControl(TComponent* AOwner) : TWinControl(AOwner)
{
    TabStop = true;
}

void TButtonControl::SendStyle(unsigned Style)
{
    if (HandleAllocated())
        SendMessageW(Handle, BM_SETSTYLE, Style, TRUE);
}

void TButtonControl::WndProc(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        // The focus comes before the press. A radio button would take the focus itself for a click.
        if (!IsDesigning() && !Focused()) {
            const TStillThere IsHere(this);
            ClicksDisabled = true;
            ::SetFocus(Handle);
            if (!IsHere)
                return;
            ClicksDisabled = false;
            if (!Focused())
                return;
        }
        break;
    case CN_COMMAND:
        if (ClicksDisabled)
            return;
        break;
    default: break;
    }
    inherited::WndProc(Message);
}

bool TButtonControl::AccessibleDefaultAction()
{
    if (!Enabled)
        return false;
    Click();
    return true;
}
