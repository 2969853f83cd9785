#include "toolbar/TBButtons.h"

#include "vcl/system/ClassBuilder.h"

void TkelTBButton::Describe(TClassBuilder<TkelTBButton>& Class)
{
    Class.Publish("Align");
}

TkelTBButton::TkelTBButton(TComponent* AOwner) : TkelSpeedButton(AOwner)
{
    Align = alLeft;
}

void TkelTBCombo::Describe(TClassBuilder<TkelTBCombo>& Class)
{
    Class.Publish("Align");
}

TkelTBCombo::TkelTBCombo(TComponent* AOwner) : TkelComboButton(AOwner)
{
    Align = alLeft;
}

void TkelTBPopup::Describe(TClassBuilder<TkelTBPopup>& Class)
{
    Class.Publish("Align");
}

TkelTBPopup::TkelTBPopup(TComponent* AOwner) : TkelPopupButton(AOwner)
{
    Align = alLeft;
}

void TkelTBComboPopup::Describe(TClassBuilder<TkelTBComboPopup>& Class)
{
    Class.Publish("Align");
}

TkelTBComboPopup::TkelTBComboPopup(TComponent* AOwner) : TkelComboPopupButton(AOwner)
{
    Align = alLeft;
}
