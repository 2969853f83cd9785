#include "toolbar/ComboPopupButton.h"

#include "toolbar/DropDown.h"
#include "vcl/system/ClassBuilder.h"

void TkelComboPopupButton::Describe(TClassBuilder<TkelComboPopupButton>& Class)
{
    Class.Property<&Self::GetMenu, &Self::SetMenu>("Menu");
}

TkelComboPopupButton::TkelComboPopupButton(TComponent* AOwner) : TkelComboButton(AOwner)
{}

void TkelComboPopupButton::ListDown()
{
    inherited::ListDown();
    if (FMenu)
        DropDown(FMenu, this, ArrowButton());
}
