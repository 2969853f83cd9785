// Whose menus are whose: the menus of an MDI child are with its parent's, and a frame in which a bar floats is part of
// the form that the bar has left.
#pragma once

#include <vector>

class TCustomForm;
class TkelMenuButton;

// The form that has the menus while the active one is active; nullptr when no form is.
TCustomForm* ActiveMenuForm();
// The form with whose menus those of Button are; for a button that belongs to no form it is the active one.
TCustomForm* MenuFormOf(const TkelMenuButton& Button);
// The forms whose menus are those of MenuForm: its active MDI child comes first.
std::vector<TCustomForm*> FormsWithMenusOf(TCustomForm* MenuForm);
// Button belongs to one of them.
bool IsAmongMenusOf(TCustomForm* MenuForm, const TkelMenuButton& Button);
