// TkelPopupButton: a tool button that drops a popup menu.
#pragma once

#include "toolbar/SpeedButton.h"
#include "vcl/menus/PopupMenu.h"

class TkelPopupButton : public TkelSpeedButton {
    VCL_CLASS(TkelPopupButton, TkelSpeedButton)
public:
    // In a random group of its own, with AllowAllUp.
    explicit TkelPopupButton(TComponent* AOwner);

    // What a click drops, not owned; cleared when it is deleted. Without it this is a plain speed button.
    TPopupMenu* GetMenu() const { return FMenu; }
    void SetMenu(TPopupMenu* Value) { FMenu = Value; }
    PROPERTY(TPopupMenu*, Menu);

    // Raises OnClick, then opens the menu below the button and returns when it is closed. The button stays down while
    // the menu is open, and is up when this returns.
    void Click() override;

    int AccessibleState() const override;

private:
    TComponentRef<TPopupMenu> FMenu;
};
