// Which form menus belong to: those of an MDI child belong to the main form, and a frame in which a bar floats counts
// as the form that owns the bar.
#pragma once

#include <vector>

class TCustomForm;
class TkelMenuButton;

// The form whose menus the keyboard works on: the active one, or the one that its menus belong to. nullptr when no form
// is active.
TCustomForm* ActiveMenuForm();
// The form that the menu of Button belongs to. For a button that no form owns it is ActiveMenuForm.
TCustomForm* MenuFormOf(const TkelMenuButton& Button);
// The forms that own the menus of MenuForm: first its active MDI child, if there is one, then itself.
std::vector<TCustomForm*> FormsWithMenusOf(TCustomForm* MenuForm);
// Whether Button belongs to one of these forms.
bool IsAmongMenusOf(TCustomForm* MenuForm, const TkelMenuButton& Button);
