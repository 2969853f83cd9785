// TFormMenu: the main menu of a form, and where it shows: on the form's own window, or merged into that of the main
// form, where the menus of MDI children and those with AutoMerge go while their form is active.
#pragma once

#include "vcl/classes/ComponentRef.h"
#include "vcl/menus/MainMenu.h"

class TCustomForm;

class TFormMenu {
public:
    explicit TFormMenu(TCustomForm* Form) : FForm(Form) {}

    TMainMenu* Get() const { return FMenu; }
    void Set(TMainMenu* Value);
    // It is on the form's own window.
    bool IsShown() const;
    // Brings the menu of the form's window up to date.
    void Update();
    // If the menu goes to the main form: it comes into that form's, or leaves it.
    void Merge(bool Merged);
    // The form's window is about to be destroyed, and what the system has of the menu with it.
    void LeaveWindow();

private:
    bool GoesToMainForm() const;
    void BarChanged();

    TCustomForm* FForm;
    TComponentRef<TMainMenu> FMenu;
};
