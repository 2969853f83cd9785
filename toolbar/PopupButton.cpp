#include "toolbar/PopupButton.h"

#include "toolbar/DropDown.h"
#include "toolbar/RandomGroup.h"
#include "vcl/classes/StillThere.h"
#include "vcl/system/ClassBuilder.h"

namespace {

constexpr int LastRandomGroup = 9999;

} // namespace

void TkelPopupButton::Describe(TClassBuilder<TkelPopupButton>& Class)
{
    Class.Property<&Self::GetMenu, &Self::SetMenu>("Menu");
}

TkelPopupButton::TkelPopupButton(TComponent* AOwner) : TkelSpeedButton(AOwner)
{
    GroupIndex = RandomGroup(LastRandomGroup);
    AllowAllUp = true;
}

void TkelPopupButton::Click()
{
    // A click of the mouse has put it down.
    const TRaiseAtEnd ComesUp(this);
    const TStillThere IsHere(this);
    inherited::Click();
    if (IsHere && FMenu)
        DropDown(FMenu, this, this);
}

int TkelPopupButton::AccessibleState() const
{
    return inherited::AccessibleState() | (FMenu ? STATE_SYSTEM_HASPOPUP : 0);
}
