#include "toolbar/PopupButton.h"

#include "toolbar/DropDown.h"
#include "toolbar/RandomGroup.h"
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

void TkelPopupButton::SetMenu(TPopupMenu* Value)
{
    FMenu = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TkelPopupButton::Click()
{
    inherited::Click();
    if (FMenu)
        DropDown(FMenu, this, this);
}

void TkelPopupButton::Notification(TComponent* Component, TOperation Operation)
{
    inherited::Notification(Component, Operation);
    if (Operation == opRemove && Component == FMenu)
        FMenu = nullptr;
}

int TkelPopupButton::AccessibleState() const
{
    return inherited::AccessibleState() | (FMenu ? STATE_SYSTEM_HASPOPUP : 0);
}
