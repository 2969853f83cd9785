// TkelMenuButton: a button of a menu bar. It drops its menu when it is pressed; while a menu is open the pointer or the
// arrow keys go on to the menus of the neighbours.
#pragma once

#include "toolbar/SpeedButton.h"
#include "vcl/menus/PopupMenu.h"

class TkelMenuButton : public TkelSpeedButton {
    VCL_CLASS(TkelMenuButton, TkelSpeedButton)
public:
    // Alone in a group of its own, so that it can stay down.
    explicit TkelMenuButton(TComponent* AOwner);
    ~TkelMenuButton() override;

    // Somebody else's; cleared when it is deleted. Accelerators work in a TkelOfficePopupMenu only.
    TPopupMenu* GetMenu() const { return FMenu; }
    void SetMenu(TPopupMenu* Value) { FMenu = Value; }
    PROPERTY(TPopupMenu*, Menu);
    // Where the button comes to lie when menu bars are merged.
    int MenuGroupIndex = 0;

    // Opens the menu, or closes it when it is this button's that is open, and returns when it is closed. OnClick is
    // raised before the menu opens, however that comes about: there it can be brought up to date.
    void Click() override;

    // Highlighted by the keyboard or because the menu is open.
    bool GetHot() const { return FHot; }
    void SetHot(bool Value);
    PROPERTY(bool, Hot);
    // Where the menu opens, on the screen: below the button, or beside one that stands in a vertical bar.
    TPoint DropPoint() const;

    int AccessibleRole() const override;

protected:
    void Paint() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;

private:
    void CMDialogChar(TCMDialogChar& Message);
    bool StandsOnEnd() const;
    void DrawStandingCaption(HDC Context);

    TComponentRef<TPopupMenu> FMenu;
    bool FHot = false;
};
