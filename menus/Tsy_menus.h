// The whole of the unit Tsy_toolbar: the tool bars, and its menu half.
#pragma once

#include "menus/ColorComboButton.h"
#include "menus/ColorMenu.h"
#include "menus/FolderMenu.h"
#include "menus/Icon.h"
#include "menus/MDIChildMenuBar.h"
#include "menus/MenuBanner.h"
#include "menus/MenuBar.h"
#include "menus/MenuButton.h"
#include "menus/OfficePopupMenu.h"
#include "menus/TBColorCombo.h"
#include "toolbar/Tsy_toolbar.h"
