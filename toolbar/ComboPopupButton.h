// TkelComboPopupButton: a split button whose arrow drops a popup menu.
#pragma once

#include "toolbar/ComboButton.h"
#include "vcl/menus/PopupMenu.h"

class TkelComboPopupButton : public TkelComboButton {
    VCL_CLASS(TkelComboPopupButton, TkelComboButton)
public:
    explicit TkelComboPopupButton(TComponent* AOwner);

    // What the arrow drops, not owned; cleared when it is deleted.
    TPopupMenu* GetMenu() const { return FMenu; }
    void SetMenu(TPopupMenu* Value) { FMenu = Value; }
    PROPERTY(TPopupMenu*, Menu);

protected:
    // Opens the menu below the combo button and returns when it is closed. The arrow stays down while it is open.
    void ListDown() override;

private:
    TComponentRef<TPopupMenu> FMenu;
};
