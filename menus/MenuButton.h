// TkelMenuButton: a button of a menu bar. It drops its menu when it is pressed; while a menu is open the pointer or the
// arrow keys go on to the menus of the neighbours.
#pragma once

#include "toolbar/SpeedButton.h"
#include "vcl/menus/PopupMenu.h"

class TkelMenuButton : public TkelSpeedButton {
    VCL_CLASS(TkelMenuButton, TkelSpeedButton)
public:
    // In a random group, so that it can stay down, with AllowAllUp.
    explicit TkelMenuButton(TComponent* AOwner);
    ~TkelMenuButton() override;

    // Not owned; cleared when it is deleted. Accelerators work in a TkelOfficePopupMenu only.
    TPopupMenu* GetMenu() const { return FMenu; }
    void SetMenu(TPopupMenu* Value) { FMenu = Value; }
    PROPERTY(TPopupMenu*, Menu);
    // The place of the button when menu bars are merged; see TkelMDIChildMenuBar::Merge.
    int MenuGroupIndex = 0;

    // Opens the menu and returns when it is closed; closes the menu when it is open. OnClick is raised each time before
    // the menu opens, also when the user comes from another menu: the menu can be brought up to date there.
    void Click() override;

    // Highlighted by the keyboard or because the menu is open.
    bool GetHot() const { return FHot; }
    void SetHot(bool Value);
    PROPERTY(bool, Hot);
    // Where the menu opens, on the screen: below the button, or to the right of it in a vertical bar.
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
